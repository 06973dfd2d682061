// What tests ask of the operating system, and not every system gives.
#pragma once

#include <QString>
#include <memory>

// While it lives no file of this process grows beyond so many bytes, as on a full disk.
class DiscoPieno
{
public:
    // Where not, the test is to be skipped.
    static bool possibile();

    explicit DiscoPieno(qsizetype byte);
    ~DiscoPieno();
    Q_DISABLE_COPY_MOVE(DiscoPieno)

private:
    struct Prima;
    std::unique_ptr<Prima> m_prima;
};

// While it lives the folder cannot be written to, even by a test that runs as root.
class SenzaDiritti
{
public:
    // Where not, the test is to be skipped.
    static bool possibile();

    explicit SenzaDiritti(const QString &cartella);
    ~SenzaDiritti();
    Q_DISABLE_COPY_MOVE(SenzaDiritti)

private:
    QString m_cartella;
    bool m_eraRoot = false;
};

// Puts there, under a relative name, what can be seen and replaced but not read as a file. False
// where the system knows no such thing: then the test is to be skipped.
bool mettiIlleggibile(const QString &nome);

// Makes a symbolic link of this name to a file; false where the system knows none: then the test is
// to be skipped.
bool collega(const QString &file, const QString &nome);

// Whether a file's name may hold a quote; a test that needs one is to be skipped where not.
bool virgoletteNeiNomi();

// Whether a file whose permissions are taken away is closed to this user.
bool permessiContano();
