#include "serial/PermessiPorta.h"

#include "serial/PortaAsio.h"
#include "tests/serial/PseudoTerminale.h"

#include <QFile>
#include <QTemporaryDir>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nessuno = 65534;

// The result of a function in a process of another user that has only this group.
QString dettoDa(uid_t utente, gid_t gruppo, const std::function<QString()> &funzione)
{
    int tubo[2];
    if (::pipe(tubo) != 0)
        qFatal("no pipe");
    const pid_t pid = ::fork();
    if (pid == 0) {
        if (::setgroups(1, &gruppo) != 0 || ::setgid(gruppo) != 0 || ::setuid(utente) != 0)
            std::_Exit(1);
        const QByteArray testo = funzione().toUtf8();
        std::_Exit(::write(tubo[1], testo.constData(), static_cast<size_t>(testo.size())) < 0);
    }
    ::close(tubo[1]);
    QFile uscita;
    static_cast<void>(uscita.open(tubo[0], QIODevice::ReadOnly, QFile::AutoCloseHandle));
    const QString testo = QString::fromUtf8(uscita.readAll());
    ::waitpid(pid, nullptr, 0);
    return testo;
}

QString inUnaRiga(const PermessiPorta &permessi)
{
    return u"%1|%2|%3|%4"_s.arg(permessi.dispositivo, permessi.utente, permessi.gruppo)
        .arg(permessi.daRientrare);
}

// A line that belongs to root and to a given group.
class PermessiDiUnaLinea : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (::geteuid() != 0)
            GTEST_SKIP() << "only root can give a line to another user";
    }
    void appartiene(const char *nome, mode_t modo)
    {
        const group *gruppo = ::getgrnam(nome);
        ASSERT_TRUE(gruppo) << nome;
        m_gruppo = gruppo->gr_gid;
        ASSERT_EQ(::chown(qPrintable(capo.percorso()), 0, m_gruppo), 0);
        ASSERT_EQ(::chmod(qPrintable(capo.percorso()), modo), 0);
    }
    QString chiestiDa(uid_t utente, gid_t gruppo) const
    {
        return dettoDa(utente, gruppo,
                       [this] { return inUnaRiga(permessiPorta(capo.percorso())); });
    }

    const PseudoTerminale capo;
    gid_t m_gruppo = 0;
};

} // namespace

TEST(PermessiPorta, TheTextNamesTheGroupAndSaysWhatToDo)
{
    EXPECT_EQ(spiegaPermessi({u"/dev/ttyUSB0"_s, u"maria"_s, u"dialout"_s, false}),
              u"La porta seriale /dev/ttyUSB0 è riservata al gruppo \"dialout\", di cui il tuo "
              "utente \"maria\" non fa parte.\n\n"
              "Per aggiungerlo, scrivi in un terminale (serve la password di chi amministra il "
              "computer):\n\n"
              "sudo usermod -aG dialout maria\n\n"
              "Poi esci dalla sessione, rientra e collegati di nuovo.\n\n"
              "Accesso alla porta negato"_s);
}

TEST(PermessiPorta, AUserWhoHasJoinedTheGroupIsAskedToLogInAgain)
{
    EXPECT_EQ(spiegaPermessi({u"/dev/ttyUSB0"_s, u"maria"_s, u"dialout"_s, true}),
              u"La porta seriale /dev/ttyUSB0 è riservata al gruppo \"dialout\".\n\n"
              "Il tuo utente \"maria\" ne fa già parte, ma solo da dopo l'inizio di questa "
              "sessione: esci dalla sessione, rientra e collegati di nuovo.\n\n"
              "Accesso alla porta negato"_s);
}

TEST(PermessiPorta, IfNoGroupHelpsTheTextNamesNone)
{
    EXPECT_EQ(spiegaPermessi({u"/dev/ttyUSB0"_s, u"maria"_s, {}, false}),
              u"La porta seriale /dev/ttyUSB0 non è permessa al tuo utente \"maria\".\n\n"
              "Chiedi a chi amministra il computer di permettergliela.\n\n"
              "Accesso alla porta negato"_s);
}

TEST_F(PermessiDiUnaLinea, TheGroupIsThatOfTheDevice)
{
    appartiene("dialout", 0660);
    EXPECT_EQ(chiestiDa(nessuno, nessuno), capo.percorso() + u"|nobody|dialout|0"_s);
}

TEST_F(PermessiDiUnaLinea, ALinkToTheDeviceCountsAsTheDevice)
{
    appartiene("dialout", 0660);
    const QTemporaryDir cartella;
    ASSERT_EQ(::chmod(qPrintable(cartella.path()), 0755), 0);
    const QString collegamento = cartella.filePath(u"COM3"_s);
    ASSERT_TRUE(QFile::link(capo.percorso(), collegamento));
    EXPECT_EQ(dettoDa(nessuno, nessuno, [&] { return inUnaRiga(permessiPorta(collegamento)); }),
              capo.percorso() + u"|nobody|dialout|0"_s);
}

TEST_F(PermessiDiUnaLinea, AGroupThatMayNotReadAndWriteDoesNotHelp)
{
    for (const mode_t modo : {0600U, 0620U, 0640U}) {
        appartiene("dialout", modo);
        EXPECT_EQ(chiestiDa(nessuno, nessuno), capo.percorso() + u"|nobody||0"_s) << modo;
    }
}

TEST_F(PermessiDiUnaLinea, TheAdministratorsGroupIsNeverNamed)
{
    appartiene("root", 0660);
    EXPECT_EQ(chiestiDa(nessuno, nessuno), capo.percorso() + u"|nobody||0"_s);
}

TEST_F(PermessiDiUnaLinea, AGroupThatTheSessionHasAlreadyDoesNotHelp)
{
    appartiene("dialout", 0660);
    EXPECT_EQ(chiestiDa(nessuno, m_gruppo), capo.percorso() + u"|nobody||0"_s);
}

TEST_F(PermessiDiUnaLinea, AUserWhoJoinedAfterTheSessionBeganIsRecognised)
{
    // The group of the same name is in the system's files, but not in the process.
    const passwd *utente = ::getpwnam("games");
    ASSERT_TRUE(utente);
    appartiene("games", 0660);
    EXPECT_EQ(chiestiDa(utente->pw_uid, nessuno), capo.percorso() + u"|games|games|1"_s);
}

TEST_F(PermessiDiUnaLinea, ALineThatCannotBeExaminedKeepsItsName)
{
    const QTemporaryDir chiusa;
    const QString dentro = chiusa.filePath(u"COM3"_s);
    EXPECT_EQ(dettoDa(nessuno, nessuno, [&] { return inUnaRiga(permessiPorta(dentro)); }),
              dentro + u"|nobody||0"_s);
}

TEST_F(PermessiDiUnaLinea, AFailedOpeningExplainsThePermissions)
{
    appartiene("dialout", 0660);
    const auto apri = [this]() -> QString {
        try {
            PortaAsio().apri(capo.percorso());
            return {};
        } catch (const Errore &errore) {
            return u"%1: "_s.arg(errore.numero()) + errore.descrizione();
        }
    };
    EXPECT_EQ(dettoDa(nessuno, nessuno, apri),
              u"75: "_s + spiegaPermessi({capo.percorso(), u"nobody"_s, u"dialout"_s, false}));
    EXPECT_EQ(dettoDa(nessuno, m_gruppo, apri), QString()) << "a member must be able to open it";
}
