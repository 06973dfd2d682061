#include "serial/PermessiPorta.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

bool contiene(const std::vector<gid_t> &gruppi, gid_t gruppo)
{
    return std::find(gruppi.begin(), gruppi.end(), gruppo) != gruppi.end();
}

// The groups of this process. They were fixed when the user's session began.
std::vector<gid_t> gruppiDelProcesso()
{
    const int quanti = ::getgroups(0, nullptr);
    std::vector<gid_t> gruppi(static_cast<size_t>(qMax(quanti, 0)));
    gruppi.resize(static_cast<size_t>(qMax(::getgroups(quanti, gruppi.data()), 0)));
    gruppi.push_back(::getegid());
    return gruppi;
}

// The groups of the user in the system's files now.
std::vector<gid_t> gruppiDellUtente(const passwd &utente)
{
    int quanti = 0;
    ::getgrouplist(utente.pw_name, utente.pw_gid, nullptr, &quanti);
    std::vector<gid_t> gruppi(static_cast<size_t>(qMax(quanti, 0)));
    if (::getgrouplist(utente.pw_name, utente.pw_gid, gruppi.data(), &quanti) < 0)
        return {};
    gruppi.resize(static_cast<size_t>(quanti));
    return gruppi;
}

} // namespace

PermessiPorta permessiPorta(const QString &percorso)
{
    PermessiPorta permessi;
    const QString vero = QFileInfo(percorso).canonicalFilePath();
    permessi.dispositivo = vero.isEmpty() ? percorso : vero;
    const passwd *utente = ::getpwuid(::geteuid());
    permessi.utente =
        utente ? QString::fromLocal8Bit(utente->pw_name) : QString::number(::geteuid());

    struct stat stato = {};
    if (::stat(QFile::encodeName(percorso).constData(), &stato) != 0)
        return permessi;
    // No advice to join a group that may not read and write, the group root, or a group that the
    // process has already and that did not help.
    constexpr mode_t leggeEScrive = S_IRGRP | S_IWGRP;
    if ((stato.st_mode & leggeEScrive) != leggeEScrive || stato.st_gid == 0 ||
        contiene(gruppiDelProcesso(), stato.st_gid))
        return permessi;
    if (const group *gruppo = ::getgrgid(stato.st_gid))
        permessi.gruppo = QString::fromLocal8Bit(gruppo->gr_name);
    permessi.daRientrare =
        !permessi.gruppo.isEmpty() && utente && contiene(gruppiDellUtente(*utente), stato.st_gid);
    return permessi;
}

QString spiegaPermessi(const PermessiPorta &permessi)
{
    const auto [dispositivo, utente, gruppo, daRientrare] = permessi;
    // At the end of the text, because the error's number is shown after it.
    const QString errore = u"\n\nAccesso alla porta negato"_s;
    if (gruppo.isEmpty())
        return u"La porta seriale %1 non è permessa al tuo utente \"%2\".\n\n"
               "Chiedi a chi amministra il computer di permettergliela."_s.arg(dispositivo,
                                                                               utente) +
               errore;
    if (daRientrare)
        return u"La porta seriale %1 è riservata al gruppo \"%3\".\n\n"
               "Il tuo utente \"%2\" ne fa già parte, ma solo da dopo l'inizio di questa "
               "sessione: esci dalla sessione, rientra e collegati di nuovo."_s.arg(
                   dispositivo, utente, gruppo) +
               errore;
    return u"La porta seriale %1 è riservata al gruppo \"%3\", di cui il tuo utente \"%2\" non fa "
           "parte.\n\n"
           "Per aggiungerlo, scrivi in un terminale (serve la password di chi amministra il "
           "computer):\n\n"
           "sudo usermod -aG %3 %2\n\n"
           "Poi esci dalla sessione, rientra e collegati di nuovo."_s.arg(dispositivo, utente,
                                                                          gruppo) +
           errore;
}
