// The connection attempt, step by step, on a line in memory.
#include "tests/link/BancoSessioneFinta.h"

#include <QDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Collega, OpensThePortOfTheFileAndTheSession)
{
    BancoSessioneFinta p;
    p.cartella.scrivi(u"Porta COM"_s, "42\r\n");
    p.rispondiAllApertura();
    p.sessione.Collega();
    EXPECT_EQ(p.banco.COM.CommPort(), 42);
    EXPECT_TRUE(p.banco.COM.PortOpen());
    EXPECT_EQ(p.porta.scritture.first(5),
              (QList<QByteArray>{b({3}), b({1}), b({1}), b({29, 132}), b({28, 103})}));
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}

TEST(Collega, EndsConnected)
{
    BancoSessioneFinta p;
    p.rispondiAllApertura();
    p.sessione.Collega();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_EQ(p.pannello(3), QString());
    EXPECT_TRUE(p.collegato());
    EXPECT_FALSE(p.banco.tmrChiusuraAutomatica.Enabled());
    EXPECT_TRUE(p.pulsante().Enabled());
    EXPECT_EQ(p.pulsante().Image(), 6);
    EXPECT_EQ(p.pulsante().toolTip(), u"Disconnetti"_s);
    EXPECT_TRUE(p.banco.imgLivBattLogica.Visible());
    EXPECT_TRUE(p.banco.imgLivBattMotori.Visible());
    EXPECT_FALSE(p.banco.shpUltrasuoniCe.Visible());
    EXPECT_EQ(p.finestre.registro, QStringList{u"RidaiFuoco"_s});
}

TEST(Collega, LeavesTheAnswerToTheReceiveEngine)
{
    BancoSessioneFinta p;
    p.rispondiAllApertura();
    p.sessione.Collega();
    EXPECT_EQ(p.banco.tmrElabInput.accumulatore.tutto(), b({31, 20}));
    EXPECT_TRUE(aspetta([&] { return p.banco.lblTemperatura.Caption() == u"20°"_s; }));
}

TEST(Collega, ShowsEachStepBeforeItIsTaken)
{
    BancoSessioneFinta p;
    QStringList passi;
    p.porta.scritto = [&](const QByteArray &) {
        passi << u"%1|%2|%3|%4"_s.arg(p.pannello(3))
                     .arg(p.pulsante().Enabled())
                     .arg(p.pulsante().Image())
                     .arg(p.collegato());
        if (p.porta.scritture.size() == 3)
            p.porta.arriva(b({31, 20}));
    };
    p.sessione.Collega();
    EXPECT_EQ(passi.first(5),
              (QStringList{u"Apertura porta...|0|1|0"_s, u"Apertura porta...|0|1|0"_s,
                           u"Apertura porta...|0|1|0"_s, u"Attendere prego...|1|6|1"_s,
                           u"Attendere prego...|1|6|1"_s}));
}

TEST(Collega, ShowsItsProgressInTheSplash)
{
    BancoSessioneFinta p;
    p.splash.Mostra();
    QString allApertura;
    p.porta.scritto = [&](const QByteArray &) {
        if (p.porta.scritture.size() == 1)
            allApertura = p.splash.lblColl.Caption();
        if (p.porta.scritture.size() == 3)
            p.porta.arriva(b({31, 20}));
    };
    p.sessione.Collega();
    EXPECT_EQ(allApertura, u"Apertura della porta di comunicazione..."_s);
    EXPECT_EQ(p.splash.lblColl.Caption(), u"Attendere il collegamento..."_s);
    EXPECT_TRUE(p.splash.tmrAnimazione.Enabled());
}

TEST(Collega, DoesNotChangeAHiddenSplash)
{
    BancoSessioneFinta p;
    p.rispondiAllApertura();
    p.sessione.Collega();
    EXPECT_EQ(p.splash.lblColl.Caption(), u"Apertura del programma..."_s);
    EXPECT_FALSE(p.splash.tmrAnimazione.Enabled());
}

TEST(Collega, ReadsTheFileOnlyIfThePortIsClosed)
{
    BancoSessioneFinta p;
    p.banco.COM.setPortOpen(true);
    p.cartella.scrivi(u"Porta COM"_s, "42\r\n");
    p.rispondiAllApertura();
    p.sessione.Collega();
    EXPECT_EQ(p.banco.COM.CommPort(), 1);
    EXPECT_EQ(p.porta.aperture, 1);
}

TEST(Collega, ASingleByteDoesNotCountAsAnAnswer)
{
    BancoSessioneFinta p;
    p.porta.arriva(b({31}));
    p.banco.tmrChiusuraAutomatica.setInterval(1);
    p.sessione.Collega();
    EXPECT_EQ(p.messaggi.testi(), QStringList{u"Collegamento non riuscito!"_s});
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
}

TEST(Collega, WithoutAnAnswerNudgesOnceThenGivesUpWithAMessage)
{
    BancoSessioneFinta p;
    p.banco.tmrChiusuraAutomatica.setInterval(1);
    p.sessione.Collega();
    EXPECT_EQ(p.porta.scritture, (QList<QByteArray>{b({3}), b({1}), b({1}), b({1})}));
    ASSERT_EQ(p.messaggi.visti().size(), 1);
    EXPECT_EQ(p.messaggi.visti().first().testo, u"Collegamento non riuscito!"_s);
    EXPECT_EQ(p.messaggi.visti().first().icona, QMessageBox::NoIcon);
    EXPECT_EQ(p.messaggi.visti().first().pulsanti, QMessageBox::Ok);
}

TEST(Collega, AFailureLeavesEverythingDisconnected)
{
    BancoSessioneFinta p;
    p.banco.tmrChiusuraAutomatica.setInterval(1);
    p.sessione.Collega();
    EXPECT_FALSE(p.banco.COM.PortOpen());
    EXPECT_TRUE(p.fermo());
    EXPECT_FALSE(p.banco.tmrChiusuraAutomatica.Enabled());
    EXPECT_EQ(p.banco.tmrChiusuraAutomatica.Tag(), u"False"_s);
    EXPECT_EQ(p.splash.pulNonCollegare.Tag(), u"False"_s);
    EXPECT_TRUE(p.pulsante().Enabled());
    EXPECT_EQ(p.pulsante().Image(), 1);
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_EQ(p.pannello(3), QString());
    EXPECT_TRUE(p.finestre.registro.isEmpty());
}

TEST(Collega, TheFirstTickOnlyLengthensTheInterval)
{
    BancoSessioneFinta p;
    p.banco.tmrChiusuraAutomatica.setEnabled(true);
    EXPECT_TRUE(aspetta([&] { return p.banco.tmrChiusuraAutomatica.Interval() == 5000; }));
    EXPECT_TRUE(p.porta.scritture.isEmpty());
    EXPECT_TRUE(p.banco.tmrChiusuraAutomatica.Enabled());
    EXPECT_EQ(p.banco.tmrChiusuraAutomatica.Tag(), u"0"_s);
}

TEST(Collega, TheIntervalIsNeverShortenedAgain)
{
    BancoSessioneFinta p;
    p.banco.tmrChiusuraAutomatica.setInterval(5000);
    p.rispondiAllApertura();
    p.sessione.Collega();
    p.sessione.Scollega();
    EXPECT_EQ(p.banco.tmrChiusuraAutomatica.Interval(), 5000);
}

TEST(Collega, NonCollegareEndsItSilently)
{
    BancoSessioneFinta p;
    p.splash.Mostra();
    bool cliccato = false;
    const Durante durante([&] {
        if (!cliccato && p.pannello(3) == u"Attendere prego..."_s) {
            cliccato = true;
            QTest::mouseClick(&p.splash.pulNonCollegare, Qt::LeftButton);
        }
    });
    p.sessione.Collega();
    EXPECT_TRUE(cliccato);
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
    EXPECT_FALSE(p.banco.COM.PortOpen());
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_EQ(p.splash.pulNonCollegare.Tag(), u"False"_s);
    EXPECT_EQ(p.splash.lblColl.Caption(), u"Chiusura della porta di comunicazione..."_s);
}

TEST(Collega, AnAnswerBetweenNudgeAndGiveUpMakesTheNextAttemptShorter)
{
    BancoSessioneFinta p;
    Temporizzatore &timer = p.banco.tmrChiusuraAutomatica;
    timer.setInterval(1);
    p.porta.scritto = [&](const QByteArray &) {
        // The nudge is the fourth write. The answer comes after it, before the time limit.
        if (p.porta.scritture.size() == 4) {
            timer.setInterval(60000);
            p.porta.arriva(b({31, 20}));
        }
    };
    p.sessione.Collega();
    ASSERT_EQ(p.pannello(1), u"Connesso"_s);
    p.sessione.Scollega();
    p.porta.scritture.clear();
    p.porta.scritto = nullptr;
    timer.setInterval(1);
    p.sessione.Collega();
    EXPECT_EQ(p.porta.scritti(), b({3, 1, 1}));
    EXPECT_EQ(p.messaggi.testi(), QStringList{u"Collegamento non riuscito!"_s});
    // The flag has been cleared.
    p.porta.scritture.clear();
    p.sessione.Collega();
    EXPECT_EQ(p.porta.scritti(), b({3, 1, 1, 1}));
}

TEST(Collega, ANonCollegareBetweenNudgeAndGiveUpMakesTheNextAttemptShorter)
{
    BancoSessioneFinta p;
    Temporizzatore &timer = p.banco.tmrChiusuraAutomatica;
    timer.setInterval(1);
    p.porta.scritto = [&](const QByteArray &) {
        if (p.porta.scritture.size() == 4) {
            timer.setInterval(60000);
            p.splash.pulNonCollegare.click();
        }
    };
    p.sessione.Collega();
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
    p.porta.scritture.clear();
    p.porta.scritto = nullptr;
    timer.setInterval(1);
    p.sessione.Collega();
    EXPECT_EQ(p.porta.scritti(), b({3, 1, 1}));
}

TEST(Collega, AMissingPortFileAsksForThePortAndGoesOnWithIt)
{
    BancoSessioneFinta p;
    QFile::remove(p.cartella.percorso(u"Porta COM"_s));
    p.rispondiAllApertura();
    int volte = 0;
    const ConModale dialogo(u"frmImpostaPorta"_s, [&] {
        if (++volte == 1) {
            EXPECT_EQ(p.pannello(3), u"Apertura porta..."_s);
            p.impostaPorta.txtPorta.setText(u"17"_s);
            p.impostaPorta.pulOK.click();
        }
    });
    p.sessione.Collega();
    EXPECT_EQ(volte, 1);
    EXPECT_EQ(p.cartella.leggi(u"Porta COM"_s), "17\r\n");
    EXPECT_EQ(p.banco.COM.CommPort(), 17);
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}

TEST(Collega, ThePortDialogClosedByItsCloseBoxMeansPort1)
{
    BancoSessioneFinta p;
    QFile::remove(p.cartella.percorso(u"Porta COM"_s));
    p.rispondiAllApertura();
    const ConModale dialogo(u"frmImpostaPorta"_s, [&] {
        p.impostaPorta.txtPorta.setText(u"17"_s);
        p.impostaPorta.close();
    });
    p.sessione.Collega();
    EXPECT_EQ(p.cartella.leggi(u"Porta COM"_s), "1\r\n");
    EXPECT_EQ(p.banco.COM.CommPort(), 1);
}

TEST(Collega, AFailedOpeningAfterThePortDialogIsNotReported)
{
    BancoSessioneFinta p;
    QFile::remove(p.cartella.percorso(u"Porta COM"_s));
    p.porta.apertura = Errore::PortaInUso;
    const ConModale dialogo(u"frmImpostaPorta"_s, [&] { p.impostaPorta.pulOK.click(); });
    p.banco.tmrSensori.setInterval(0);
    p.sessione.Collega();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    for (const MessaggioVisto &visto : p.messaggi.visti())
        EXPECT_EQ(visto.testo, u"Non sono collegato al robot"_s);
}

namespace {

// The messages about the port, in order.
QStringList dettoDellaPorta(const BancoSessioneFinta &p)
{
    QStringList testi;
    for (const MessaggioVisto &visto : p.messaggi.visti())
        if (visto.titolo == u"Errore - Collegamento"_s)
            testi << visto.testo;
    return testi;
}

} // namespace

TEST(Collega, AUserWithoutRightsLearnsWhatToDoEvenAfterThePortDialog)
{
    BancoSessioneFinta p;
    QFile::remove(p.cartella.percorso(u"Porta COM"_s));
    p.porta.apertura = Errore::AccessoNegato;
    p.porta.motivo = u"Entra nel gruppo"_s;
    const ConModale dialogo(u"frmImpostaPorta"_s, [&] { p.impostaPorta.pulOK.click(); });
    p.banco.tmrSensori.setInterval(0);
    p.sessione.Collega();
    EXPECT_EQ(dettoDellaPorta(p), QStringList{u"Entra nel gruppo (75)"_s});
    // The attempt goes on as after any other error.
    EXPECT_EQ(p.cartella.leggi(u"Porta COM"_s), "1\r\n");
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_FALSE(p.banco.COM.PortOpen());
}

TEST(Collega, MissingRightsAreReportedOnceForEachAttempt)
{
    BancoSessioneFinta p;
    p.porta.apertura = Errore::AccessoNegato;
    p.porta.motivo = u"Entra nel gruppo"_s;
    p.banco.tmrSensori.setInterval(0);
    p.banco.tmrControllaConn.setInterval(0);
    for (int tentativo = 1; tentativo <= 2; ++tentativo) {
        p.sessione.Collega();
        p.sessione.Scollega();
        EXPECT_EQ(dettoDellaPorta(p), QStringList(tentativo, u"Entra nel gruppo (75)"_s));
    }
}

namespace {

struct CasoPorta
{
    const char *nome;
    QByteArray contenuto;
    int apertura;
    int errore;
};

class PortaSbagliata : public ::testing::TestWithParam<CasoPorta>
{
};

} // namespace

TEST_P(PortaSbagliata, IsReportedWithItsNumberAndTheAttemptGoesOnToTheEnd)
{
    BancoSessioneFinta p;
    p.cartella.scrivi(u"Porta COM"_s, GetParam().contenuto);
    p.porta.apertura = GetParam().apertura;
    p.banco.tmrSensori.setInterval(0);
    p.sessione.Collega();
    ASSERT_FALSE(p.messaggi.visti().isEmpty());
    const MessaggioVisto &primo = p.messaggi.visti().first();
    EXPECT_EQ(primo.titolo, u"Errore - Collegamento"_s);
    EXPECT_EQ(primo.testo,
              Errore(GetParam().errore).descrizione() + u" (%1)"_s.arg(GetParam().errore));
    EXPECT_EQ(primo.icona, QMessageBox::Critical);
    EXPECT_EQ(primo.pulsanti, QMessageBox::Ok);
    // The attempt ends as if the bytes had come; the keep-alive ends the connection later.
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_EQ(p.pulsante().Image(), 6);
    EXPECT_TRUE(p.collegato());
    EXPECT_FALSE(p.banco.COM.PortOpen());
}

INSTANTIATE_TEST_SUITE_P(
    Collega, PortaSbagliata,
    ::testing::Values(
        CasoPorta{"Vuota", "", 0, Errore::FineDelFile},
        CasoPorta{"SoloRigaVuota", "\r\n", 0, Errore::FineDelFile},
        CasoPorta{"NonUnNumero", "ciao\r\n", 0, Errore::PortaInesistente},
        CasoPorta{"Zero", "0\r\n", 0, Errore::PortaInesistente},
        CasoPorta{"Negativa", "-1\r\n", 0, Errore::Overflow},
        CasoPorta{"Enorme", "256\r\n", 0, Errore::Overflow},
        CasoPorta{"MilleCifre", QByteArray(1000, '9'), 0, Errore::Overflow},
        CasoPorta{"InUso", "3\r\n", Errore::PortaInUso, Errore::PortaInUso},
        CasoPorta{"SenzaPermessi", "3\r\n", Errore::AccessoNegato, Errore::AccessoNegato},
        CasoPorta{"Inesistente", "3\r\n", Errore::PortaInesistente, Errore::PortaInesistente}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Collega, AFolderInsteadOfThePortFileIsReported)
{
    BancoSessioneFinta p;
    QFile::remove(p.cartella.percorso(u"Porta COM"_s));
    QDir().mkdir(u"Porta COM"_s);
    p.banco.tmrSensori.setInterval(0);
    p.sessione.Collega();
    ASSERT_FALSE(p.messaggi.visti().isEmpty());
    EXPECT_EQ(p.messaggi.visti().first().testo,
              Errore(Errore::AccessoNegato).descrizione() + u" (75)"_s);
}

TEST(Collega, TheKeepAliveEndsAConnectionWithoutAPort)
{
    BancoSessioneFinta p;
    p.porta.apertura = Errore::PortaInUso;
    p.banco.tmrSensori.setInterval(0);
    p.banco.tmrControllaConn.setInterval(1);
    p.sessione.Collega();
    EXPECT_TRUE(aspetta([&] { return p.pannello(1) == u"Non connesso"_s; }));
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
    EXPECT_EQ(p.pulsante().Image(), 1);
    EXPECT_TRUE(p.fermo());
}

TEST(Collega, AConnectionEndedWhileItsBoxIsOpenDoesNotShowConnesso)
{
    BancoSessioneFinta p;
    p.porta.apertura = Errore::PortaInUso;
    p.banco.tmrSensori.setInterval(0);
    bool fatto = false;
    p.messaggi.mentreAperto = [&](const QMessageBox &box) {
        if (!fatto && box.text() == u"Non sono collegato al robot"_s) {
            fatto = true;
            p.sessione.Scollega();
        }
    };
    p.sessione.Collega();
    EXPECT_TRUE(fatto);
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_FALSE(p.banco.imgLivBattLogica.Visible());
}

TEST(Collega, AWaitingTickOfTheEngineDoesNotTakeTheAnswer)
{
    BancoSessioneFinta p;
    p.collega();
    p.sessione.Scollega();
    // The tick of the old session still waits for a byte. It must not take the robot's new answer.
    p.rispondiAllApertura();
    p.banco.tmrChiusuraAutomatica.setInterval(60000);
    p.sessione.Collega();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_TRUE(aspetta([&] { return p.telemetria.testi.size() == 1; }));
}
