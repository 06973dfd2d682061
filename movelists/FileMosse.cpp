#include "movelists/FileMosse.h"

#include "base/Archivio.h"
#include "base/Codifica.h"
#include "base/Numeri.h"

using namespace Qt::StringLiterals;

namespace FileMosse {

Errore listaPiena()
{
    return Errore(Errore::Overflow, u"Una lista ha al massimo %1 comandi"_s.arg(righeMassime));
}

QByteArray scritto(const QStringList &righe)
{
    QByteArray byte = ' ' + QByteArray::number(righe.size() - 1) + " \r\n";
    for (const QString &riga : righe)
        byte += Codifica::inByte(riga) + "\r\n";
    return byte;
}

void leggi(int numero, const std::function<void(const QString &)> &aggiungi)
{
    // The count is a field like the lines: in quotes it is read without them, and an empty first
    // line is 0.
    const double conteggio = Numeri::Valore(Archivio::leggiCampo(numero));
    if (conteggio > righeMassime)
        throw listaPiena();
    const qint16 ultima = Numeri::Intero(conteggio);
    for (int i = 0; i <= ultima; ++i) {
        const QByteArray campo = Archivio::leggiCampo(numero);
        if (i == righeMassime)
            throw listaPiena();
        aggiungi(Codifica::daByte(campo));
    }
}

} // namespace FileMosse
