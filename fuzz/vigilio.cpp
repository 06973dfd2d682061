// Any bytes as a project file: reading it never does more than fail, and every condition in it can
// be described, held against the others and asked about telemetry. What was read is written and
// read back: texts without a quote survive.
#include "Condizione.h"
#include "Errore.h"
#include "Progetto.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// A quote is not marked inside a text, and a "?" may stand for what the code page lacks.
bool sopravvive(const Progetto::Lista &lista)
{
    return !lista.nome.contains(u'"') && !lista.condizione.contains(u'"');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *byte, size_t quanti)
{
    const QByteArray file(reinterpret_cast<const char *>(byte), static_cast<qsizetype>(quanti));
    QList<Progetto::Lista> liste;
    passaErrori([&] { Progetto::leggi(file, [&](const auto &lista) { liste += lista; }); });

    for (const Progetto::Lista &lista : liste) {
        if (NomeLista(lista.nome).size() != 31)
            std::abort();
        DescriviCondizione(lista.condizione);
        for (const QStringView testo :
             {u"Ultrasuoni:101", u"Temperatura:25", u"Batterie:03", u"Batterie:", u"Temperatura:"})
            condizioneVera(lista.condizione, testo);
        Contrasto(lista.condizione, liste.first().condizione);
    }

    QList<Progetto::Lista> buone;
    for (const Progetto::Lista &lista : liste) {
        if (sopravvive(lista))
            buone += lista;
    }
    QList<Progetto::Lista> rilette;
    Progetto::leggi(Progetto::scritto(buone), [&](const auto &lista) { rilette += lista; });
    if (rilette != buone)
        std::abort();
    return 0;
}
