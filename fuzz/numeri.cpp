// Any bytes as numbers, as truth values and as the port file.
#include "base/Numeri.h"
#include "base/Archivio.h"
#include "base/Codifica.h"
#include "base/Errore.h"

#include <QFile>
#include <QTemporaryDir>
#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void pretendi(bool condizione)
{
    if (!condizione)
        std::abort();
}

// As the session reads the file: one number, into a byte.
void leggiPorta(const QByteArray &contenuto)
{
    static const QTemporaryDir cartella;
    static const QString nome = cartella.filePath(u"Porta COM"_s);
    QFile file(nome);
    pretendi(file.open(QIODevice::WriteOnly) && file.write(contenuto) == contenuto.size());
    file.close();
    try {
        Archivio::apri(1, nome, Archivio::Modo::Lettura);
        Numeri::Byte(Archivio::leggiNumero(1));
        while (!Archivio::fine(1))
            Archivio::leggiCampo(1);
        Archivio::chiudi();
    } catch (const Errore &errore) {
        Archivio::abbandona();
        pretendi(errore.numero() == Errore::Overflow || errore.numero() == Errore::FineDelFile);
    }
    try {
        Archivio::apri(1, nome, Archivio::Modo::Lettura);
        while (!Archivio::fine(1))
            Archivio::leggiRiga(1);
        Archivio::chiudi();
    } catch (const Errore &) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *dati, size_t quanti)
{
    const QByteArray byte(reinterpret_cast<const char *>(dati), static_cast<qsizetype>(quanti));
    const QString testo = Codifica::daByte(byte);
    pretendi(Codifica::inByte(testo) == byte);

    const double valore = Numeri::Valore(testo);
    pretendi(!std::isnan(valore));
    const bool entra = valore >= -0.5 && valore <= 255.5;
    pretendi(passaErrori([&] { pretendi(std::abs(Numeri::Byte(valore) - valore) <= 0.5); }) ==
             (entra && std::nearbyint(valore) <= 255));
    passaErrori([&] { pretendi(std::abs(Numeri::Intero(testo) - valore) <= 0.5); });
    passaErrori([&] { pretendi(std::abs(Numeri::Lungo(testo) - valore) <= 0.5); });
    passaErrori([&] { Numeri::Logico(testo); });
    leggiPorta(byte);
    return 0;
}
