// What tests need from the operating system. If a system lacks it, the test is to be skipped.
#pragma once

#include <QString>
#include <memory>

// While an object of this class exists, no file of this process can grow beyond this number of
// bytes, as on a full disk.
class DiscoPieno
{
public:
    static bool possibile();

    explicit DiscoPieno(qsizetype byte);
    ~DiscoPieno();
    Q_DISABLE_COPY_MOVE(DiscoPieno)

private:
    struct Prima;
    std::unique_ptr<Prima> m_prima;
};

// While an object of this class exists, the folder is read-only, also for a test that runs as root.
class SenzaDiritti
{
public:
    static bool possibile();

    explicit SenzaDiritti(const QString &cartella);
    ~SenzaDiritti();
    Q_DISABLE_COPY_MOVE(SenzaDiritti)

private:
    QString m_cartella;
    bool m_eraRoot = false;
};

// Creates, under a relative name, something that can be seen and replaced but not read as a file.
// False if the system has no such thing.
bool mettiIlleggibile(const QString &nome);

// Makes a symbolic link with this name to a file; false if the system has no such links.
bool collega(const QString &file, const QString &nome);

// True if a file name may contain a quote.
bool virgoletteNeiNomi();

// True if a file without permissions cannot be opened by this user; false for root.
bool permessiContano();
