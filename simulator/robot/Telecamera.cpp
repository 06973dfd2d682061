#include "simulator/robot/Telecamera.h"
#include "simulator/robot/Prospettiva.h"
#include <QDir>
#include <QImageReader>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
bool Telecamera::impostaCartella(const QString &cartella)
{
    m_cartella.clear();
    m_file.clear();
    m_prossimo = 0;
    if (cartella.isEmpty())
        return true;
    const QDir dir(cartella);
    const QFileInfoList trovati = dir.entryInfoList(QDir::Files | QDir::Readable, QDir::Name);
    for (const QFileInfo &info : trovati) {
        if (QImageReader(info.filePath()).canRead())
            m_file << info.filePath();
    }
    if (m_file.isEmpty())
        return false;
    m_cartella = cartella;
    return true;
}

QImage Telecamera::guarda(const StatoRobot &stato, const Stanza &stanza, int larghezza,
                          int altezza) const
{
    if (!m_file.isEmpty()) {
        const QImage letta(m_file.at(m_prossimo % m_file.size()));
        // A file can vanish or turn out broken after the folder was chosen.
        if (!letta.isNull()) {
            const QImage grande = letta.scaled(larghezza, altezza, Qt::KeepAspectRatioByExpanding,
                                               Qt::SmoothTransformation);
            return grande
                .copy((grande.width() - larghezza) / 2, (grande.height() - altezza) / 2, larghezza,
                      altezza)
                .convertToFormat(QImage::Format_RGB32);
        }
    }
    return disegnaProspettiva(stato, stanza, larghezza, altezza);
}

QByteArray Telecamera::prossimaRiga(const StatoRobot &stato, const Stanza &stanza)
{
    if (m_riga == 0) {
        m_fotogramma = guarda(stato, stanza, colonne, righe);
        ++m_prossimo;
    }
    QByteArray byte = codifica(m_fotogramma, m_riga);
    m_riga = (m_riga + 1) % righe;
    return byte;
}

QByteArray Telecamera::codifica(const QImage &immagine, int riga)
{
    QByteArray byte;
    byte.reserve(immagine.width() * 2);
    for (int x = 0; x < immagine.width(); ++x) {
        const QRgb c = immagine.pixel(x, riga);
        const int v = ((qRed(c) >> 3) << 11) | ((qGreen(c) >> 2) << 5) | (qBlue(c) >> 3);
        byte += static_cast<char>(static_cast<quint8>(v >> 8));
        byte += static_cast<char>(static_cast<quint8>(v & 255));
    }
    return byte;
}
} // namespace tessaro_sim
