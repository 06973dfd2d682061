#pragma once
#include <QImage>
#include <QString>
#include <QStringList>

inline namespace tessaro_sim {
class Stanza;
struct StatoRobot;

/// What the robot's camera sees: the room, or the pictures of a folder one after the other.
class Telecamera
{
public:
    static constexpr int colonne = 80;
    static constexpr int righe = 60;

    /// Pictures of this folder instead of the room, in the order of their names, a new one for
    /// each frame; an empty name goes back to the room. False, and the room, where the folder
    /// holds no picture that can be read.
    bool impostaCartella(const QString &cartella);
    const QString &cartella() const { return cartella_; }

    /// The picture of this moment in the given size. Does not step the folder.
    QImage guarda(const StatoRobot &stato, const Stanza &stanza, int larghezza, int altezza) const;

    /// The next row of the stream, 160 bytes of RGB565 with the high byte first. A picture is
    /// taken with its first row and holds for all its 60 rows.
    QByteArray prossimaRiga(const StatoRobot &stato, const Stanza &stanza);
    /// The next row is the first of a new picture.
    void ricomincia() { riga_ = 0; }
    /// The row that comes next, 0 to 59.
    int riga() const { return riga_; }
    /// The picture whose rows go out now.
    const QImage &fotogramma() const { return fotogramma_; }

    /// Turns one pixel row into its bytes on the wire.
    static QByteArray codifica(const QImage &immagine, int riga);

private:
    QString cartella_;
    QStringList file_;
    qsizetype prossimo_ = 0;
    int riga_ = 0;
    QImage fotogramma_;
};
} // namespace tessaro_sim
