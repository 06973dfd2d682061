#pragma once
#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

inline namespace tessaro_sim {
// One line of the diary.
struct VoceDiario
{
    enum class Tipo {
        Comando,   // a command of the byte tables
        NonCapito, // one byte that starts no command
        Sessione,  // opening, nudge, closing; the port opened or closed by the program
        Nota       // what the robot did by itself: end of a turn, a wall, a full queue
    };
    Tipo tipo = Tipo::Nota;
    qint64 ms = 0;   // since the diary's start, monotonic
    QString testo;   // as "BaseAvanti v=1"; never changes with the robot's state
    QByteArray byte; // the bytes as they came; empty for a note
    QString nota;    // remark, as "valore non previsto" or "sessione chiusa: ignorato"

    // The whole entry as one line of text: stamp, bytes, text, remark.
    QString riga() const;
};

// The readable diary of all that the robot understood, and of every byte that it did not.
class Diario : public QObject
{
    Q_OBJECT
public:
    explicit Diario(QObject *parent = nullptr);

    // Entries in order of arrival. Only the last `massimo` are kept.
    const QList<VoceDiario> &voci() const { return m_voci; }
    static constexpr int massimo = 20000;

    // All entries as lines of text.
    QStringList righe() const;
    // The texts of the commands understood, session commands included, in order.
    // Without the polls (RichiediSensori, RichiediStatoA, RichiediStatoB) unless asked.
    QStringList comandi(bool conRichieste = false) const;
    // How many entries carry exactly this text.
    int conta(const QString &testo) const;
    // The bytes that were not understood, in order.
    QByteArray nonCapiti() const;

    void aggiungi(VoceDiario::Tipo tipo, const QString &testo, const QByteArray &byte = {},
                  const QString &nota = {});
    void svuota();

Q_SIGNALS:
    void aggiunta(const VoceDiario &voce);
    void svuotato();

private:
    QList<VoceDiario> m_voci;
    QElapsedTimer m_orologio;
};
} // namespace tessaro_sim
