#include "vision/RecordImmagine.h"

#include "base/Numeri.h"

#include <cmath>

namespace {

// Characters of a colour that are read.
constexpr qsizetype cifreColore = 8;

// The position of the first comma after the position dopo, both counted from 1; 0 if there is none.
qsizetype virgola(QByteArrayView testo, qsizetype dopo)
{
    return testo.indexOf(',', dopo) + 1;
}
qsizetype virgola(const QString &testo, qsizetype dopo)
{
    return testo.indexOf(u',', dopo) + 1;
}

// The number between the position dopo and the next comma or the end.
double numero(const QString &testo, qsizetype dopo)
{
    const qsizetype fine = testo.indexOf(u',', dopo);
    return Numeri::Valore(QStringView(testo).mid(dopo, fine < 0 ? -1 : fine - dopo));
}

} // namespace

QString nomeImmagine(const QString &record)
{
    const qsizetype lunghezza = virgola(record, 0) - 3;
    return lunghezza > 0 ? record.mid(1, lunghezza) : QString();
}

Misure misureImmagine(const QString &record)
{
    const qsizetype prima = virgola(record, 0);
    const qsizetype seconda = virgola(record, prima);
    return {numero(record, prima), numero(record, seconda)};
}

void leggiModello(QByteArrayView record, qint32 W, qint32 H, Matrice &Modello)
{
    qsizetype posto = virgola(record, virgola(record, 0));
    // Without a width there is nothing to read, but H can be in the thousands of millions.
    if (W < 1)
        return;
    for (int riga = 1; riga <= H; ++riga) {
        for (int colonna = 1; colonna <= W; ++colonna) {
            posto = virgola(record, posto);
            const QByteArrayView testo =
                record.sliced(posto, qMin(cifreColore, record.size() - posto));
            Modello(colonna, riga) = Numeri::Lungo(std::trunc(Numeri::Valore(testo)));
        }
    }
}

QByteArray inUnaRiga(QByteArray nome)
{
    return nome.replace('\r', ' ').replace('\n', ' ');
}

QByteArray aggiungiRecord(const QByteArray &s, const QByteArray &nome, const QByteArray &dati)
{
    QByteArray testo = s;
    if (!testo.isEmpty())
        testo += '\r';
    return testo + '"' + inUnaRiga(nome) + "\"," + dati;
}
