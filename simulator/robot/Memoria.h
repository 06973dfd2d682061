#pragma once
#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QString>
#include <map>
#include <memory>

class QTemporaryDir;

inline namespace tessaro_sim {
struct Guasti;

// The robot's storage: a host folder seen through numbered channels, answered in telegrams.
//
// The host folder holds the folders disk, mmc and usb; without a folder disk it is itself the
// disk. Paths start in the disk: "" and "." are its root, "../mmc" and "../usb" the two cards,
// and "mmc/x", "usb/x" reach them too where the disk has no such folder. No path leads elsewhere.
class Memoria
{
public:
    // Status bytes of a telegram 42.
    enum Stato {
        Bene = 0,
        NonTrovato = 2,
        Guasto = 5,
        CanaleErrato = 9,
        TroppiCanali = 24,
        Fine = 255
    };
    static constexpr int modoFile = 1;
    static constexpr int modoCartella = 16;
    static constexpr int canali = 9;

    Memoria();
    ~Memoria();

    // The host folder. Until one is set, sample content in a temporary folder is made at need.
    void impostaRadice(const QString &cartella);
    QString radice();

    // The four requests; each gives the telegram that answers it, `chiudi` none.
    QByteArray apri(int modo, const QByteArray &percorso, const Guasti &guasti);
    QByteArray leggiElenco(int canale, const Guasti &guasti);
    QByteArray leggiBlocco(int canale, int quanti, const Guasti &guasti);
    void chiudi(int canale);
    void chiudiTutti();
    int aperti() const { return static_cast<int>(m_aperti.size()); }

    // Stores a photo in the disk's folder "foto" as JPEG; its name, empty on failure.
    QString salvaFoto(const QImage &foto);

private:
    struct Voce
    {
        int tipo = 1;
        QByteArray nome;
    };
    struct Canale
    {
        QList<Voce> elenco;          // an open folder: what is still to come
        std::unique_ptr<QFile> file; // an open file
    };
    QString trova(const QByteArray &percorso);
    QString scendi(const QString &da, const QList<QByteArray> &nomi) const;
    QString volume(const QByteArray &nome);
    QList<Voce> elenca(const QString &cartella);
    int canaleLibero() const;

    QString m_radice;
    std::unique_ptr<QTemporaryDir> m_temporanea;
    std::map<int, Canale> m_aperti;
};
} // namespace tessaro_sim
