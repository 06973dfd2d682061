// Any bytes as a project file, as "prog.dat" and as conditions: they are read, compared, and tested
// against telemetry, and the only failures are those of type Errore. A project without quotation
// marks in its texts is the same after writing and reading.
#include "base/Codifica.h"
#include "base/Errore.h"
#include "conditional/Condizione.h"
#include "conditional/OraDiLista.h"
#include "conditional/Progetto.h"
#include "shell/FileProgDat.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void esigi(bool vero)
{
    if (!vero)
        std::abort();
}

QList<Progetto::Lista> letto(const QByteArray &file)
{
    QList<Progetto::Lista> liste;
    passaErrori(
        [&] { Progetto::leggi(file, [&](const Progetto::Lista &lista) { liste += lista; }); });
    return liste;
}

void provaCondizione(const QString &condizione, const QString &altra)
{
    // The longest word is "Temperatura", 11 characters.
    esigi(DescriviCondizione(condizione).size() <= 11);
    std::array<QString, campiCondizione> campi;
    for (int campo = 1; campo <= campiCondizione; ++campo)
        campi[static_cast<size_t>(campo - 1)] = testoCampo(condizione, campo).toString();
    const QString composta = componiCondizione(campi);
    if (condizione.count(u',') == campiCondizione - 1)
        esigi(composta == condizione);
    Contrasto(condizione, altra);
    for (const QString &telemetria :
         {u"Ultrasuoni:101"_s, u"Temperatura:25"_s, u"Batterie:03"_s, altra})
        condizioneVera(condizione, telemetria);
    oraDiLista(condizione, u"07:05:09");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *dati, size_t quanti)
{
    const QByteArray file(reinterpret_cast<const char *>(dati), static_cast<qsizetype>(quanti));
    const QList<Progetto::Lista> liste = letto(file);
    bool virgolette = false;
    QString prima = condizionePredefinita.toString();
    for (const Progetto::Lista &lista : liste) {
        esigi(NomeLista(lista.nome).size() == 31);
        provaCondizione(lista.condizione, prima);
        prima = lista.condizione;
        virgolette = virgolette || lista.nome.contains(u'"') || lista.condizione.contains(u'"');
    }
    if (!virgolette)
        esigi(letto(Progetto::scritto(liste)) == liste);

    const QByteArray condizione = FileProgDat::condizione(file);
    if (file.contains(';'))
        esigi(FileProgDat::uniti(FileProgDat::impostazione(file), condizione) == file);
    provaCondizione(Codifica::daByte(condizione), prima);
    return 0;
}
