// The start: what is read, whether to connect, where the window stands.
#include "console/Collocazione.h"
#include "tests/console/ConsoleInProva.h"

#include <QDir>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>

TEST(AvvioConsole, ConnectsWhereTheFileSaysOne)
{
    for (const QByteArray contenuto : {"1;", "1", " 1;xyz", "01;", "1\r\n"}) {
        SCOPED_TRACE(contenuto.toStdString());
        ConsoleInProva c;
        c.cartella.scrivi(u"prog.dat"_s, contenuto);
        c.mostra();
        EXPECT_EQ(c.pannello(1), u"Connesso"_s);
        EXPECT_TRUE(c.finestra.COM.PortOpen());
        EXPECT_TRUE(c.finestra.tmrControllaConn.Enabled());
        EXPECT_TRUE(aspetta([&] { return c.robot.robot().stato().sessioneAperta; }));
    }
}

TEST(AvvioConsole, TheUsersOwnFileWinsOverTheSampleBesideIt)
{
    ConsoleInProva c;
    c.cartella.scrivi(u"Prog.dat"_s, "0;");
    c.cartella.scrivi(u"prog.dat"_s, "1;");
    c.mostra();
    EXPECT_EQ(c.pannello(1), u"Non connesso"_s);
    EXPECT_FALSE(c.finestra.COM.PortOpen());
}

TEST(AvvioConsole, DoesNotConnectWhereItSaysAnythingElse)
{
    for (const QByteArray contenuto : {"0;", "", "2;", "1.5;", "11;", "-1;", "uno"}) {
        SCOPED_TRACE(contenuto.toStdString());
        ConsoleInProva c;
        c.cartella.scrivi(u"prog.dat"_s, contenuto);
        c.mostra();
        EXPECT_EQ(c.pannello(1), u"Non connesso"_s);
        EXPECT_FALSE(c.finestra.COM.PortOpen());
        EXPECT_FALSE(c.finestra.tmrChiusuraAutomatica.Enabled());
        EXPECT_FALSE(c.finestra.tmrControllaConn.Enabled());
    }
}

TEST(AvvioConsole, ConnectsWhereThereIsNoFile)
{
    ConsoleInProva c;
    ASSERT_TRUE(QFile::remove(c.cartella.percorso(u"prog.dat"_s)));
    c.mostra();
    EXPECT_EQ(c.pannello(1), u"Connesso"_s);
}

TEST(AvvioConsole, ConnectsWhereTheFileCannotBeRead)
{
    ConsoleInProva c;
    ASSERT_TRUE(QFile::remove(c.cartella.percorso(u"prog.dat"_s)));
    ASSERT_TRUE(QDir().mkdir(c.cartella.percorso(u"prog.dat"_s)));
    c.mostra();
    EXPECT_EQ(c.pannello(1), u"Connesso"_s);
}

TEST(AvvioConsole, ShowsTheSplashUntilTheConsoleIsLoaded)
{
    ConsoleInProva c;
    bool visto = false;
    QObject::connect(&c.robot, &Simulatore::ricevuto, &c.finestra, [&] {
        if (!c.finestra.isVisible())
            visto = visto || c.finestra.splash.Visible();
    });
    ASSERT_TRUE(c.mostraCollegata());
    EXPECT_TRUE(visto);
    EXPECT_FALSE(c.finestra.splash.Visible());
    EXPECT_FALSE(c.finestra.splash.Caricata());
}

TEST(AvvioConsole, NonCollegareDuringTheAttemptShowsTheConsoleWithoutAWord)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.cartella.scrivi(u"prog.dat"_s, "1;");
    c.robot.guasti().silenzio = true;
    bool premuto = false;
    QTimer utente;
    QObject::connect(&utente, &QTimer::timeout, &utente, [&] {
        if (premuto || c.finestra.splash.lblColl.Caption() != u"Attendere il collegamento..."_s)
            return;
        premuto = true;
        EXPECT_FALSE(c.finestra.isVisible());
        EXPECT_TRUE(c.finestra.splash.tmrAnimazione.Enabled());
        QTest::mouseClick(&c.finestra.splash.pulNonCollegare, Qt::LeftButton);
    });
    utente.start(1);
    c.mostra();
    EXPECT_TRUE(premuto);
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(c.pannello(1), u"Non connesso"_s);
    EXPECT_EQ(c.pannello(3), QString());
    EXPECT_FALSE(c.finestra.COM.PortOpen());
    EXPECT_FALSE(c.finestra.tmrChiusuraAutomatica.Enabled());
    EXPECT_FALSE(c.finestra.splash.Caricata());
    // The next attempt, from the toolbar, is not cancelled by it.
    c.robot.guasti().silenzio = false;
    c.clicca(c.finestra.BarraPulsanti.Buttons(1));
    EXPECT_EQ(c.pannello(1), u"Connesso"_s);
}

TEST(AvvioConsole, AnAttemptThatFailsSaysSoAndThenTheConsoleComesUp)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.cartella.scrivi(u"prog.dat"_s, "1;");
    c.robot.guasti().silenzio = true;
    c.finestra.tmrChiusuraAutomatica.setInterval(20);
    bool soloSplash = false;
    messaggi.mentreAperto = [&](const QMessageBox &) {
        soloSplash = c.finestra.splash.Visible() && !c.finestra.isVisible();
    };
    c.mostra();
    EXPECT_EQ(messaggi.testi(), QStringList{u"Collegamento non riuscito!"_s});
    EXPECT_TRUE(soloSplash);
    EXPECT_EQ(c.pannello(1), u"Non connesso"_s);
    EXPECT_FALSE(c.finestra.COM.PortOpen());
    EXPECT_FALSE(c.finestra.splash.Visible());
}

TEST(AvvioConsole, ItsBoxesStandOverTheSplashThoughAnotherProgramIsInFront)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.cartella.scrivi(u"prog.dat"_s, "1;");
    c.robot.guasti().silenzio = true;
    c.finestra.tmrChiusuraAutomatica.setInterval(20);
    QWindow altro;
    altro.resize(100, 100);
    QTimer::singleShot(0, &altro, [&] {
        altro.show();
        altro.requestActivate();
    });
    const QWidget *sopra = nullptr;
    messaggi.mentreAperto = [&](const QMessageBox &box) { sopra = box.parentWidget(); };
    c.mostra();
    EXPECT_EQ(messaggi.testi(), QStringList{u"Collegamento non riuscito!"_s});
    EXPECT_EQ(sopra, &c.finestra.splash);
}

TEST(AvvioConsole, AMissingPortFileAsksForThePortOverTheSplash)
{
    ConsoleInProva c;
    c.cartella.scrivi(u"prog.dat"_s, "1;");
    ASSERT_TRUE(QFile::remove(c.cartella.percorso(u"Porta COM"_s)));
    int volte = 0;
    const ConModale dialogo(u"frmImpostaPorta"_s, [&] {
        if (++volte > 1)
            return;
        EXPECT_TRUE(c.finestra.splash.Visible());
        EXPECT_FALSE(c.finestra.isVisible());
        // The attempt has not switched it on yet: it runs from the first moment.
        EXPECT_TRUE(c.finestra.tmrChiusuraAutomatica.Enabled());
        c.finestra.impostaPorta.pulOK.click();
    });
    c.mostra();
    EXPECT_EQ(volte, 1);
    EXPECT_EQ(c.cartella.leggi(u"Porta COM"_s), "1\r\n");
    EXPECT_EQ(c.pannello(1), u"Connesso"_s);
}

TEST(AvvioConsole, WorksInTheProgramsFolder)
{
    ConsoleInProva c;
    QDir::setCurrent(QDir::rootPath());
    c.mostra();
    EXPECT_EQ(QDir(QDir::currentPath()).canonicalPath(),
              QDir(c.cartella.percorso()).canonicalPath());
}

TEST(AvvioConsole, StartsWithTheTextsOfTheDesign)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    EXPECT_EQ(f.Caption(), u"Lumbra Tessaro"_s);
    EXPECT_EQ(c.pannello(2), QString());
    EXPECT_EQ(c.pannello(3), QString());
    EXPECT_EQ(f.txtValFrase.Text(), u"1"_s);
    EXPECT_EQ(f.txtValSuono.Text(), u"1"_s);
    EXPECT_EQ(f.tmrElabInput.Interval(), 1);
    EXPECT_EQ(f.tmrSensori.Interval(), 300);
    EXPECT_EQ(f.tmrControllaConn.Interval(), 5000);
    EXPECT_EQ(f.tmrAnimazFrecce.Interval(), 100);
    EXPECT_EQ(f.tmrChiusuraAutomatica.Interval(), 1000);
    EXPECT_FALSE(f.tmrAnimazFrecce.Enabled());
    EXPECT_EQ(f.imgFreccia(1).Tag(), QString());
    EXPECT_EQ(f.ImgTesta.Tag(), QString());
    EXPECT_EQ(f.mnuComparsaOn.Tag(), QString());
    EXPECT_EQ(f.mnuComparsaOff.Tag(), QString());
    EXPECT_EQ(f.BarraCaricamento.Min(), 1);
    EXPECT_EQ(f.BarraCaricamento.Max(), 100000);
    EXPECT_TRUE(c.fuocoACasa());
}

TEST(AvvioConsole, CopiesThePicturesOfTheArrows)
{
    ConsoleInProva c;
    c.mostra();
    const int disegni[] = {1, 2, 3, 4, 1, 4, 1, 1, 4, 4};
    for (int i = 1; i <= 10; ++i)
        EXPECT_EQ(c.finestra.imgFreccia(i).Picture(), disegni[i - 1]) << i;
}

TEST(AvvioConsole, TakesTheStoredPicturesLineByLineAndActivatesTheSecond)
{
    ConsoleInProva c;
    c.cartella.scrivi(u"Immagini.dat"_s, "\"uno\",1,1,5\r\"due\",1,1,6\r\"tre\",1,1,7");
    c.mostra();
    Elenco &lista = c.finestra.lstImgCamera;
    ASSERT_EQ(lista.ListCount(), 3);
    EXPECT_EQ(lista.List(0), u"\"uno\",1,1,5"_s);
    EXPECT_EQ(lista.List(2), u"\"tre\",1,1,7"_s);
    EXPECT_EQ(lista.ItemData(0), 0);
    EXPECT_EQ(lista.ItemData(1), 1);
    EXPECT_EQ(lista.ItemData(2), 0);
    EXPECT_FALSE(lista.isVisible());
}

TEST(AvvioConsole, WithoutStoredPicturesTheListHoldsOneEmptyEntry)
{
    ConsoleInProva c;
    c.mostra();
    ASSERT_EQ(c.finestra.lstImgCamera.ListCount(), 1);
    EXPECT_EQ(c.finestra.lstImgCamera.List(0), QString());
    EXPECT_EQ(c.finestra.lstImgCamera.ItemData(0), 0);
}

TEST(AvvioConsole, AnEmptyFileOfPicturesLeavesTheListEmpty)
{
    ConsoleInProva c;
    c.cartella.scrivi(u"Immagini.dat"_s, {});
    c.mostra();
    EXPECT_EQ(c.finestra.lstImgCamera.ListCount(), 0);
}

TEST(AvvioConsole, OneStoredPictureIsNotActive)
{
    ConsoleInProva c;
    c.cartella.scrivi(u"Immagini.dat"_s, "\"uno\",1,1,5");
    c.mostra();
    ASSERT_EQ(c.finestra.lstImgCamera.ListCount(), 1);
    EXPECT_EQ(c.finestra.lstImgCamera.ItemData(0), 0);
}

TEST(AvvioConsole, AFileOfNothingButLineEndsDoesNotFillTheMemory)
{
    ConsoleInProva c;
    c.cartella.scrivi(u"Immagini.dat"_s, QByteArray(200'000, '\r'));
    c.mostra();
    EXPECT_EQ(c.finestra.lstImgCamera.ListCount(), 32768);
}

TEST(AvvioConsole, StandsWhereTheScreenAsksItTo)
{
    ConsoleInProva c;
    c.mostra();
    const QRect schermo = c.finestra.screen()->geometry();
    const Posizione posto = collocaConsole(schermo.width() * 15.0, schermo.height() * 15.0,
                                           c.finestra.Width(), c.finestra.Height());
    EXPECT_EQ(c.finestra.x(), schermo.x() + qRound(posto.Left / 15));
    EXPECT_EQ(c.finestra.y(), schermo.y() + qRound(posto.Top / 15));
}
