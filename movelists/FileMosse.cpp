#include "FileMosse.h"

#include "Archivio.h"
#include "Codifica.h"
#include "Errore.h"
#include "Numeri.h"

namespace FileMosse {

QByteArray scritto(const QStringList &righe)
{
    QByteArray byte = ' ' + QByteArray::number(righe.size() - 1) + " \r\n";
    for (const QString &riga : righe)
        byte += Codifica::inByte(riga) + "\r\n";
    return byte;
}

void leggi(int numero, const std::function<void(const QString &)> &aggiungi)
{
    const qint16 ultima = Numeri::Intero(Archivio::leggiNumero(numero));
    for (int i = 0; i <= ultima; ++i) {
        const QByteArray campo = Archivio::leggiCampo(numero);
        if (i == righeMassime)
            throw Errore(Errore::Overflow);
        aggiungi(Codifica::daByte(campo));
    }
}

} // namespace FileMosse
