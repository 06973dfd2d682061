// Events during a start of the video: the start waits for the robot twice, and the user can do
// anything meanwhile.
#include "tests/vision/BancoVisione.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray prima = b({10, 10, 128, 0});
const QByteArray seconda = b({11, 160, 0});
const QByteArray chiusura = b({12, 29, 132, 28, 103});

bool vuoto(const Superficie &superficie)
{
    QImage niente(superficie.size(), QImage::Format_ARGB32_Premultiplied);
    niente.fill(Qt::transparent);
    return superficie.disegno().copy(superficie.rect()) == niente;
}

class AvvioVideo : public testing::Test
{
protected:
    // Runs atto from the event loop in the first (1) or the second (2) wait of the next start.
    void nellAttesa(int quale, const std::function<void()> &atto, bool risponde = true)
    {
        dopo(b({0}), quale, atto, risponde);
    }
    // Runs atto from the event loop after scritta was written so many times. risponde: the robot
    // answers each write.
    void dopo(const QByteArray &scritta, int volte, const std::function<void()> &atto,
              bool risponde = true)
    {
        banco.porta.scritto = [=, this, viste = 0](const QByteArray &byte) mutable {
            if (byte == scritta && ++viste == volte) {
                QTimer::singleShot(0, &banco.console, [this, atto] {
                    atto();
                    ++fatti;
                });
            }
            if (risponde)
                banco.porta.arriva(b({31, 21}));
        };
    }
    void doppioClick() { QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200}); }
    void chiusaESilenziosa()
    {
        gira(50);
        EXPECT_EQ(fatti, 1);
        EXPECT_FALSE(camera.Visible());
        EXPECT_FALSE(camera.Caricata());
        EXPECT_EQ(camera.Tag(), u"0"_s);
        EXPECT_EQ(camera.shpSelezione.Tag(), u"0"_s);
        EXPECT_EQ(banco.console.BarraPulsanti.Tag(), QString());
        EXPECT_EQ(banco.pannello3(), u"Video interrotto"_s);
        EXPECT_EQ(banco.console.BarraCaricamento.Value(), 1);
    }

    BancoSuPortaFinta banco;
    frmCamera &camera = banco.camera;
    Superficie &Schermo = banco.camera.Schermo;
    int fatti = 0;
};

} // namespace

TEST_F(AvvioVideo, ClosingInTheFirstWaitStartsNothing)
{
    banco.apriCamera();
    nellAttesa(1, [this] { camera.close(); });
    doppioClick();
    EXPECT_EQ(banco.comandi(), b({12}) + prima + chiusura);
    chiusaESilenziosa();
}

TEST_F(AvvioVideo, ClosingInTheSecondWaitSendsTheStopLast)
{
    banco.apriCamera();
    nellAttesa(2, [this] { camera.close(); });
    doppioClick();
    EXPECT_EQ(banco.comandi(), b({12}) + prima + seconda + chiusura);
    chiusaESilenziosa();
}

TEST_F(AvvioVideo, ClosingEndsTheWaitForASilentRobotToo)
{
    for (const int attesa : {1, 2}) {
        if (attesa == 1)
            banco.apriCamera();
        else
            banco.premi(3);
        banco.comandi();
        fatti = 0;
        nellAttesa(
            attesa, [this] { camera.close(); }, false);
        doppioClick();
        EXPECT_EQ(banco.comandi(),
                  b({12}) + prima + (attesa == 1 ? QByteArray() : seconda) + chiusura);
        chiusaESilenziosa();
        banco.porta.scritto = [this](const QByteArray &) { banco.porta.arriva(b({31, 21})); };
    }
}

TEST_F(AvvioVideo, ClosingWhileARestartEmptiesTheLineStartsNothing)
{
    banco.apriCamera();
    dopo(b({12}), 1, [this] { camera.close(); });
    doppioClick();
    EXPECT_EQ(banco.comandi(), b({12}) + chiusura);
    chiusaESilenziosa();
}

TEST_F(AvvioVideo, ClosedDuringTheStartAfterASecondClickItStaysClosed)
{
    for (const int attesa : {1, 2}) {
        if (attesa == 1)
            banco.collega();
        fatti = 0;
        nellAttesa(attesa, [this] {
            banco.premi(3);
            EXPECT_TRUE(camera.Visible());
            camera.close();
        });
        banco.premi(3);
        EXPECT_EQ(banco.comandi(), prima + (attesa == 1 ? QByteArray() : seconda) + chiusura);
        chiusaESilenziosa();
    }
}

TEST_F(AvvioVideo, TheListLineCameraDuringTheStartShowsTheWindowAndStartsNothing)
{
    banco.collega();
    nellAttesa(1, [this] { camera.Mostra(); });
    banco.premi(3);
    EXPECT_EQ(fatti, 1);
    EXPECT_TRUE(camera.Visible());
    EXPECT_EQ(banco.comandi(), prima + seconda);
    EXPECT_EQ(camera.Tag(), u"10"_s);
    EXPECT_TRUE(vuoto(Schermo));
    camera.close();
    EXPECT_EQ(banco.comandi(), chiusura);
}

TEST_F(AvvioVideo, ClosedAndReopenedInTheWaitOnlyTheSecondStartContinues)
{
    for (const int attesa : {1, 2}) {
        if (attesa == 1)
            banco.apriCamera();
        banco.comandi();
        fatti = 0;
        nellAttesa(attesa, [this] {
            camera.close();
            banco.premi(3);
        });
        doppioClick();
        EXPECT_EQ(fatti, 1);
        EXPECT_EQ(banco.comandi(), b({12}) + prima + (attesa == 1 ? QByteArray() : seconda) +
                                       chiusura + prima + seconda);
        EXPECT_TRUE(camera.Visible());
        EXPECT_EQ(camera.Tag(), u"10"_s);
        EXPECT_EQ(banco.pannello3(), u"Video partito"_s);
        const QImage immagine = immagineACaso(1);
        banco.manda(immagine);
        EXPECT_EQ(Schermo.disegno().copy(Schermo.rect()),
                  quadri(immagine, Schermo.Tag().toInt(), Schermo.size()));
    }
    banco.comandi();
    camera.close();
    EXPECT_EQ(banco.comandi(), chiusura);
}

TEST_F(AvvioVideo, ADoubleClickDuringTheStartStartsNothing)
{
    for (const int attesa : {1, 2}) {
        if (attesa == 1)
            banco.apriCamera();
        nellAttesa(attesa, [this] { doppioClick(); });
        fatti = 0;
        doppioClick();
        EXPECT_EQ(fatti, 1);
        EXPECT_EQ(banco.comandi(), b({12}) + prima + seconda);
        EXPECT_EQ(camera.Tag(), u"10"_s);
    }
    nellAttesa(0, {});
    doppioClick();
    EXPECT_EQ(banco.comandi(), b({12}) + prima + seconda)
        << "a later double click restarts the video";
}

TEST_F(AvvioVideo, DisconnectingDuringARestartSendsNothingAfterTheEnd)
{
    const RispondiMessaggi messaggi;
    banco.apriCamera();
    nellAttesa(1, [this] { banco.premi(6); });
    doppioClick();
    gira(50);
    EXPECT_EQ(fatti, 1);
    EXPECT_EQ(banco.comandi(), b({12}) + prima + chiusura + b({4}));
    EXPECT_FALSE(camera.Visible());
    EXPECT_TRUE(messaggi.testi().isEmpty()) << "the user has disconnected, no message is needed";
    EXPECT_EQ(banco.pannello3(), u"Disconnesso"_s);
}

TEST_F(AvvioVideo, DisconnectedWhileTheWindowOpensItShowsFallito)
{
    RispondiMessaggi messaggi;
    banco.collega();
    nellAttesa(1, [this] { banco.premi(6); });
    banco.premi(3);
    EXPECT_EQ(fatti, 1);
    EXPECT_EQ(banco.comandi(), prima + b({4}));
    EXPECT_TRUE(camera.Visible());
    EXPECT_EQ(camera.Tag(), u"0"_s);
    EXPECT_FALSE(vuoto(Schermo));
    camera.close();
    EXPECT_EQ(banco.comandi(), QByteArray());
}

TEST_F(AvvioVideo, ResizedDuringTheStartThePictureHasTheNewSize)
{
    banco.apriCamera();
    nellAttesa(1, [this] { camera.resize(410, 310); });
    doppioClick();
    EXPECT_EQ(fatti, 1);
    EXPECT_EQ(Schermo.Tag(), u"5"_s);
    const QImage immagine = immagineACaso(2);
    banco.manda(immagine);
    EXPECT_EQ(Schermo.disegno().copy(Schermo.rect()), quadri(immagine, 5, Schermo.size()));
}

TEST_F(AvvioVideo, ClosingStopsTheRobotAlsoAfterTheScaleWasSetToZero)
{
    banco.apriCamera();
    nellAttesa(2, [this] {
        camera.setTag(u"0"_s);
        camera.close();
    });
    doppioClick();
    EXPECT_EQ(banco.comandi(), b({12}) + prima + seconda + chiusura);
    chiusaESilenziosa();
}

TEST_F(AvvioVideo, ADoubleClickWhileTheWindowClosesStartsNothing)
{
    banco.apriCamera();
    dopo(b({28, 103}), 1, [this] { doppioClick(); });
    camera.close();
    EXPECT_EQ(banco.comandi(), chiusura);
    chiusaESilenziosa();
}

TEST_F(AvvioVideo, AToolbarClickWhileTheWindowClosesLeavesNoRequest)
{
    banco.apriCamera();
    dopo(b({28, 103}), 1, [this] { banco.premi(3); });
    camera.close();
    chiusaESilenziosa();
    EXPECT_EQ(banco.comandi(), chiusura);
    camera.Mostra();
    EXPECT_FALSE(camera.Visible()) << "a list does not open the window";
}

TEST_F(AvvioVideo, AfterFallitoADoubleClickShowsThePicture)
{
    RispondiMessaggi risposte;
    banco.premi(3);
    ASSERT_EQ(camera.Tag(), u"0"_s);
    ASSERT_FALSE(vuoto(Schermo));
    banco.collega();
    doppioClick();
    EXPECT_EQ(banco.comandi(), b({12}) + prima + seconda);
    EXPECT_EQ(camera.Tag(), u"10"_s);
    EXPECT_TRUE(vuoto(Schermo)) << "Fallito is cleared";
    const QImage immagine = immagineACaso(3);
    banco.manda(immagine);
    EXPECT_EQ(Schermo.Tag().toInt(), Schermo.width() / 80);
    EXPECT_EQ(Schermo.disegno().copy(Schermo.rect()),
              quadri(immagine, Schermo.width() / 80, Schermo.size()));
}

TEST_F(AvvioVideo, AfterFallitoAFailedDoubleClickShowsFallitoAgain)
{
    RispondiMessaggi risposte;
    banco.premi(3);
    const QImage detto = Schermo.disegno().copy(Schermo.rect());
    doppioClick();
    EXPECT_EQ(camera.Tag(), u"0"_s);
    EXPECT_EQ(Schermo.disegno().copy(Schermo.rect()), detto);
    EXPECT_EQ(risposte.visti().size(), 2);
}

TEST_F(AvvioVideo, ResizedWhileTheVideoWasOffThePictureHasTheNewSize)
{
    banco.apriCamera();
    banco.porta.persa = true;
    doppioClick();
    ASSERT_EQ(camera.Tag(), u"0"_s);
    camera.resize(410, 310);
    banco.porta.persa = false;
    doppioClick();
    const QImage immagine = immagineACaso(4);
    banco.manda(immagine);
    EXPECT_EQ(Schermo.disegno().copy(Schermo.rect()), quadri(immagine, 5, Schermo.size()));
}
