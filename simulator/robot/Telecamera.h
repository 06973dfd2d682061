#pragma once
#include <QImage>
#include <QString>
#include <QStringList>

inline namespace tessaro_sim {
class Stanza;
struct StatoRobot;

// What the robot's camera sees: the room, or the pictures of a folder one after the other.
class Telecamera
{
public:
    static constexpr int colonne = 80;
    static constexpr int righe = 60;

    // Pictures of this folder instead of the room, in the order of their names, a new one for
    // each frame; an empty name goes back to the room. False, and the room, where the folder
    // holds no picture that can be read.
    bool impostaCartella(const QString &cartella);
    const QString &cartella() const { return m_cartella; }

    // The picture of this moment in the given size. Does not step the folder.
    QImage guarda(const StatoRobot &stato, const Stanza &stanza, int larghezza, int altezza) const;

    // The next row of the stream, 160 bytes of RGB565 with the high byte first. A picture is
    // taken with its first row and holds for all its 60 rows.
    QByteArray prossimaRiga(const StatoRobot &stato, const Stanza &stanza);
    // The next row is the first of a new picture.
    void ricomincia() { m_riga = 0; }
    // The row that comes next, 0 to 59.
    int riga() const { return m_riga; }
    // The picture whose rows go out now.
    const QImage &fotogramma() const { return m_fotogramma; }

    // Turns one pixel row into its bytes on the wire.
    static QByteArray codifica(const QImage &immagine, int riga);

private:
    QString m_cartella;
    QStringList m_file;
    qsizetype m_prossimo = 0;
    int m_riga = 0;
    QImage m_fotogramma;
};
} // namespace tessaro_sim
