#include "filebrowser/NomeSicuro.h"

#include "base/Cartella.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

static bool restaNellaCartella(const QString &nome)
{
    static constexpr QStringView vietati = u"/\\:*?\"<>|";
    // Windows removes blanks and dots at the end, so the file would get another name.
    if (nome.isEmpty() || nome.endsWith(u' ') || nome.endsWith(u'.'))
        return false;
    return std::ranges::none_of(
        nome, [](QChar c) { return c.category() == QChar::Other_Control || vietati.contains(c); });
}

static bool riservato(const QString &nome)
{
    // Names of devices on Windows, also with an extension. On other systems COMn is the link to a
    // port.
    static const QRegularExpression dispositivo(
        u"^((con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9¹²³])( *\\..*)?|com[0-9]+)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return dispositivo.match(nome).hasMatch();
}

static bool delProgramma(const QString &nome)
{
    // Files that would become a part of the program at its next start: a library in the program's
    // folder is loaded before the system's, and Qt reads in its configuration file where its parts
    // are.
    static const QRegularExpression libreria(u"\\.(dll|so(\\.[0-9]+)*)$"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    if (libreria.match(nome).hasMatch())
        return true;
    const QString propri[] = {
        u"Porta COM"_s,       u"prog.dat"_s,
        u"Immagini.dat"_s,    u"qt.conf"_s,
        u"qt6.conf"_s,        u"tessaro-sim"_s,
        u"tessaro-sim.exe"_s, nomeDelFile(QCoreApplication::applicationFilePath())};
    return std::ranges::any_of(propri, [&](const QString &proprio) {
        return nome.compare(proprio, Qt::CaseInsensitive) == 0;
    });
}

bool nomeSicuro(const QString &nome)
{
    return restaNellaCartella(nome) && !riservato(nome) && !delProgramma(nome);
}
