// The video window: opening, closing and restarting, the rows, the zoom.
#include "tests/vision/BancoVisione.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray avvio = b({10, 10, 128, 0, 11, 160, 0});
const QString erroreVideo =
    u"Attenzione: errore nella visualizzazione delle immagini della videocamera!"_s;

// The drawing, cut to the current size of the surface.
QImage disegno(const Superficie &superficie)
{
    return superficie.disegno().copy(superficie.rect());
}

bool vuoto(const Superficie &superficie)
{
    QImage niente(superficie.size(), QImage::Format_ARGB32_Premultiplied);
    niente.fill(Qt::transparent);
    return disegno(superficie) == niente;
}

class Camera : public testing::Test
{
protected:
    BancoSuPortaFinta banco;
    frmCamera &camera = banco.camera;
    Superficie &Schermo = banco.camera.Schermo;
};

} // namespace

TEST_F(Camera, TheToolbarOpensItAndStartsTheVideo)
{
    banco.collega();
    banco.premi(3);
    EXPECT_TRUE(camera.isVisible());
    EXPECT_EQ(banco.comandi(), avvio);
    EXPECT_EQ(camera.Tag(), u"10"_s);
    EXPECT_EQ(banco.console.BarraPulsanti.Tag(), u"Camera"_s);
    EXPECT_EQ(banco.pannello3(), u"Video partito"_s);
    EXPECT_EQ(Schermo.toolTip(), u"Doppio click: chiusura e riavvio ricezione delle immagini."_s);
    EXPECT_TRUE(vuoto(Schermo));
}

TEST_F(Camera, IsCentredOnTheScreenWithItsFrame)
{
    for (int volta = 0; volta < 2; ++volta) {
        if (volta == 0)
            banco.apriCamera();
        else
            banco.premi(3);
        const QRect schermo = camera.screen()->availableGeometry();
        EXPECT_NEAR(camera.frameGeometry().center().x(), schermo.center().x(), 1);
        EXPECT_TRUE(schermo.contains(camera.frameGeometry()));
        // After it was moved and closed it opens at the same place again.
        camera.move(3, 3);
        camera.close();
    }
}

TEST_F(Camera, AtItsFirstSizeTheMarginIsTheSameOnAllSides)
{
    banco.apriCamera();
    EXPECT_EQ(Schermo.Tag(), u"8"_s);
    banco.manda(immaginePiena(0xFFFFFF));
    const QImage visto = disegno(Schermo);
    QRect dipinto;
    for (int y = 0; y < visto.height(); ++y)
        for (int x = 0; x < visto.width(); ++x)
            if (qAlpha(visto.pixel(x, y)) != 0)
                dipinto |= QRect(x, y, 1, 1);
    const int banda = qRound(8 * visto.devicePixelRatio());
    EXPECT_EQ(dipinto, visto.rect().adjusted(banda, banda, -banda, -banda));
}

TEST_F(Camera, AZoomThatIsOutOfRangeIsIgnored)
{
    banco.apriCamera();
    for (const QString &testo : {u"99999"_s, u"-99999"_s}) {
        Schermo.setTag(testo);
        EXPECT_EQ(Schermo.Tag(), u"8"_s);
        QTest::keyClick(&Schermo, Qt::Key_Left);
    }
    Schermo.setTag(u"3"_s);
    EXPECT_EQ(Schermo.Tag(), u"3"_s);
}

TEST_F(Camera, WritingTheTagsTakesEffect)
{
    banco.apriCamera();
    camera.setProperty("Tag", u"0"_s);
    EXPECT_EQ(camera.property("Tag"), u"0"_s);
    banco.mandaRighe(immagineACaso(1), 0, 3);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
    camera.setProperty("Tag", u"10"_s);
    banco.console.BarraPulsanti.setProperty("Tag", QString());
    banco.mandaRighe(immagineACaso(1), 0, 3);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
    banco.console.BarraPulsanti.setProperty("Tag", u"Camera"_s);
    EXPECT_EQ(banco.console.BarraPulsanti.property("Tag"), u"Camera"_s);
    banco.mandaRighe(immagineACaso(1), 0, 3);
    EXPECT_EQ(camera.fotogramma().Riga, 4);
}

TEST_F(Camera, ShownWithoutTheToolbarItClosesAtOnceAndChangesNothing)
{
    banco.collega();
    // The accumulator holds half a telegram.
    banco.porta.arriva(b({32, 7}));
    ASSERT_TRUE(aspetta([this] { return banco.porta.inArrivo() == 0; }));
    camera.Mostra();
    EXPECT_FALSE(camera.Visible());
    EXPECT_FALSE(camera.Caricata());
    EXPECT_EQ(camera.Tag(), u"0"_s);
    EXPECT_EQ(banco.comandi(), QByteArray());
    EXPECT_EQ(banco.console.tmrElabInput.accumulatore.tutto(), b({32, 7}));
}

TEST_F(Camera, WithoutAConnectionItShowsFallito)
{
    RispondiMessaggi risposte;
    banco.premi(3);
    EXPECT_TRUE(camera.Visible());
    EXPECT_EQ(camera.Tag(), u"0"_s);
    EXPECT_EQ(banco.pannello3(), QString());
    EXPECT_FALSE(vuoto(Schermo));
    EXPECT_EQ(risposte.visti().size(), 1);
}

TEST_F(Camera, ClosedWithoutAConnectionItSendsNothing)
{
    RispondiMessaggi risposte;
    banco.premi(3);
    camera.close();
    EXPECT_FALSE(camera.Visible());
    EXPECT_EQ(banco.comandi(), QByteArray());
    EXPECT_EQ(banco.console.BarraPulsanti.Tag(), QString());
}

TEST_F(Camera, ClosingStopsTheVideoAndAsksForTheState)
{
    banco.apriCamera();
    camera.close();
    EXPECT_FALSE(camera.Visible());
    EXPECT_EQ(banco.comandi(), b({12, 29, 132, 28, 103}));
    EXPECT_EQ(banco.pannello3(), u"Video interrotto"_s);
    EXPECT_EQ(banco.console.BarraPulsanti.Tag(), QString());
    EXPECT_EQ(camera.Tag(), u"0"_s);
}

TEST_F(Camera, ClosingDiscardsWhatWasOnTheWay)
{
    banco.apriCamera();
    banco.porta.scritto = nullptr;
    banco.porta.arriva(QByteArray(5000, '\x0D'));
    camera.close();
    gira(3);
    EXPECT_EQ(banco.porta.inArrivo(), 0);
    EXPECT_EQ(banco.console.COM.conteggio(), 0);
    EXPECT_TRUE(banco.console.tmrElabInput.accumulatore.vuoto());
}

TEST_F(Camera, DisconnectingUnloadsIt)
{
    banco.apriCamera();
    banco.scollega();
    EXPECT_FALSE(camera.Visible());
    EXPECT_FALSE(camera.Caricata());
    EXPECT_EQ(banco.comandi(), b({12, 29, 132, 28, 103, 4}));
    EXPECT_EQ(banco.pannello3(), u"Disconnesso"_s);
}

TEST_F(Camera, OpenedAgainItBeginsAsAtFirst)
{
    banco.apriCamera();
    const QString zoom = Schermo.Tag();
    camera.resize(320, 240);
    banco.manda(immagineACaso(1));
    camera.close();
    banco.premi(3);
    EXPECT_TRUE(camera.Visible());
    EXPECT_EQ(Schermo.Tag(), zoom);
    EXPECT_EQ(Schermo.size(), camera.size());
    EXPECT_TRUE(vuoto(Schermo));
}

TEST_F(Camera, TheZoomIsHowOftenEightyPixelsFitIntoTheWidth)
{
    banco.apriCamera();
    for (const auto &[larghezza, zoom] :
         {std::pair(800, "10"), {879, "10"}, {880, "11"}, {239, "2"}, {160, "2"}, {159, "1"}}) {
        camera.resize(larghezza, 400);
        EXPECT_EQ(Schermo.Tag(), QString::fromLatin1(zoom)) << larghezza;
        EXPECT_EQ(Schermo.size(), QSize(larghezza, 400));
    }
}

TEST_F(Camera, ResizingClearsThePicture)
{
    banco.apriCamera();
    banco.manda(immagineACaso(1));
    ASSERT_FALSE(vuoto(Schermo));
    camera.resize(320, 260);
    EXPECT_TRUE(vuoto(Schermo));
}

TEST_F(Camera, IfTheVideoDidNotStartResizingChangesNothing)
{
    RispondiMessaggi risposte;
    banco.premi(3);
    camera.resize(320, 260);
    EXPECT_EQ(Schermo.Tag(), u"0"_s);
    EXPECT_FALSE(vuoto(Schermo));
}

TEST_F(Camera, AMinimisedWindowKeepsItsPicture)
{
    banco.apriCamera();
    const QSize prima = Schermo.size();
    banco.manda(immagineACaso(1));
    camera.setWindowState(1);
    gira(3);
    EXPECT_EQ(Schermo.size(), prima);
    EXPECT_FALSE(vuoto(Schermo));
}

TEST_F(Camera, NothingIsPaintedBeforeTheLastRow)
{
    banco.apriCamera();
    banco.mandaRighe(immagineACaso(1), 0, 58);
    EXPECT_EQ(camera.fotogramma().Riga, 59);
    EXPECT_TRUE(vuoto(Schermo));
    banco.mandaRighe(immagineACaso(1), 59, 59);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
    EXPECT_FALSE(vuoto(Schermo));
}

TEST_F(Camera, AFrameIsPaintedAsSquaresOneSquareAwayFromTheCorner)
{
    banco.apriCamera();
    for (const int larghezza : {81 * 8, 800, 85, 200}) {
        camera.resize(larghezza, 488);
        const QImage immagine = immagineACaso(static_cast<quint32>(larghezza));
        banco.manda(immagine);
        EXPECT_EQ(disegno(Schermo), quadri(immagine, larghezza / 80, Schermo.size())) << larghezza;
    }
}

TEST_F(Camera, TheNextFrameReplacesTheLast)
{
    banco.apriCamera();
    banco.manda(immagineACaso(1));
    banco.manda(immagineACaso(2));
    EXPECT_EQ(disegno(Schermo), quadri(immagineACaso(2), Schermo.Tag().toInt(), Schermo.size()));
}

TEST_F(Camera, TelemetryBetweenTheRowsDoesNoHarm)
{
    banco.apriCamera();
    const QImage immagine = immagineACaso(3);
    QByteArray byte;
    for (int riga = 0; riga < 60; ++riga)
        byte += b({13}) + rigaVideo(immagine, riga) + b({31, riga % 50});
    banco.manda(byte);
    EXPECT_EQ(disegno(Schermo), quadri(immagine, Schermo.Tag().toInt(), Schermo.size()));
    EXPECT_EQ(banco.console.lblTemperatura.Caption(), u"9°"_s);
}

TEST_F(Camera, RowsForAClosedWindowAreDropped)
{
    banco.collega();
    banco.manda(telegrammiVideo(immagineACaso(1)) + b({31, 33}));
    EXPECT_EQ(banco.console.lblTemperatura.Caption(), u"33°"_s);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
}

TEST_F(Camera, ALostRowShiftsAllLaterOnesUntilADoubleClick)
{
    banco.apriCamera();
    const QImage immagine = immagineACaso(4);
    banco.mandaRighe(immagine, 1, 59);
    EXPECT_TRUE(vuoto(Schermo));
    banco.manda(immagine);
    EXPECT_EQ(camera.fotogramma().Riga, 59);
    EXPECT_NE(disegno(Schermo), quadri(immagine, Schermo.Tag().toInt(), Schermo.size()));
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    EXPECT_EQ(camera.fotogramma().Riga, 0);
    banco.manda(immagine);
    EXPECT_EQ(disegno(Schermo), quadri(immagine, Schermo.Tag().toInt(), Schermo.size()));
}

TEST_F(Camera, ADoubleClickStopsTheVideoEmptiesTheLineAndRestarts)
{
    banco.apriCamera();
    banco.mandaRighe(immagineACaso(1), 0, 30);
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    EXPECT_EQ(banco.comandi(), b({12}) + avvio);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
    EXPECT_EQ(banco.pannello3(), u"Video partito"_s);
}

TEST_F(Camera, TheReleaseAfterADoubleClickFinishesASelectionLikeEveryRelease)
{
    banco.apriCamera();
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    EXPECT_EQ(camera.shpSelezione.Tag(), u"False"_s);
    QTest::mouseRelease(&Schermo, Qt::LeftButton, {}, {300, 200});
    EXPECT_EQ(camera.shpSelezione.Tag(), u"True"_s);
}

TEST_F(Camera, ADoubleClickDuringATickBeginsANewFrame)
{
    banco.apriCamera();
    // Many rows arrive at once. The tick processes them one after the other, and the click is
    // handled between two of them.
    bool fatto = false;
    QTimer occhio;
    QObject::connect(&occhio, &QTimer::timeout, &occhio, [&] {
        if (fatto || camera.fotogramma().Riga < 5 ||
            banco.console.tmrElabInput.accumulatore.lunghezza() < 500)
            return;
        fatto = true;
        QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    });
    occhio.start(0);
    banco.mandaRighe(immagineACaso(1), 0, 40);
    ASSERT_TRUE(fatto);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
    const QImage immagine = immagineACaso(6);
    banco.manda(immagine);
    EXPECT_EQ(disegno(Schermo), quadri(immagine, Schermo.Tag().toInt(), Schermo.size()));
}

TEST_F(Camera, ARestartThatFailsLeavesTheVideoOff)
{
    banco.apriCamera();
    banco.porta.persa = true;
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    EXPECT_EQ(camera.Tag(), u"0"_s);
    EXPECT_EQ(banco.pannello3(), QString());
    camera.CalcolaRiga(rigaVideo(immagineACaso(1), 0));
    EXPECT_EQ(camera.fotogramma().Riga, 0);
}

TEST_F(Camera, NoNewFrameBeginsWhileVideoIsOffOrTheWindowHidden)
{
    banco.apriCamera();
    banco.mandaRighe(immagineACaso(1), 0, 6);
    camera.Nascondi();
    camera.ricominciaFotogramma();
    EXPECT_EQ(camera.fotogramma().Riga, 7);
    camera.Mostra();
    camera.setTag(u"0"_s);
    camera.ricominciaFotogramma();
    EXPECT_EQ(camera.fotogramma().Riga, 7);
    camera.setTag(u"10"_s);
    camera.ricominciaFotogramma();
    EXPECT_EQ(camera.fotogramma().Riga, 0);
}

TEST_F(Camera, ARowThatIsTooShortIsReportedAndCounted)
{
    banco.apriCamera();
    camera.CalcolaRiga(rigaVideo(immagineACaso(1), 0));
    camera.CalcolaRiga(rigaVideo(immagineACaso(1), 1).left(77));
    EXPECT_EQ(banco.pannello3(), erroreVideo);
    EXPECT_EQ(camera.fotogramma().Riga, 2);
}

TEST_F(Camera, AfterALastRowThatIsTooShortNoFrameIsCompleteUntilADoubleClick)
{
    banco.apriCamera();
    banco.mandaRighe(immagineACaso(1), 0, 58);
    camera.CalcolaRiga({});
    EXPECT_EQ(camera.fotogramma().Riga, 60);
    for (int i = 0; i < 5; ++i)
        banco.manda(immagineACaso(2));
    EXPECT_EQ(camera.fotogramma().Riga, 255);
    EXPECT_TRUE(vuoto(Schermo));
    EXPECT_EQ(banco.pannello3(), erroreVideo);
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    banco.manda(immagineACaso(2));
    EXPECT_EQ(disegno(Schermo), quadri(immagineACaso(2), Schermo.Tag().toInt(), Schermo.size()));
}

TEST_F(Camera, DisconnectingWhileTheRestartWaitsForTheRobotClosesTheWindow)
{
    banco.apriCamera();
    RispondiMessaggi risposte;
    bool fatto = false;
    // The robot does not answer, and the user disconnects.
    banco.porta.scritto = [this, &fatto](const QByteArray &byte) {
        if (fatto || byte != b({0}))
            return;
        fatto = true;
        QTimer::singleShot(0, &banco.console, [this] { banco.premi(6); });
    };
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    EXPECT_TRUE(fatto);
    EXPECT_FALSE(camera.Visible());
    EXPECT_EQ(camera.Tag(), u"0"_s);
    EXPECT_EQ(banco.console.BarraPulsanti.Tag(), QString());
}

TEST_F(Camera, ClosedDuringTheRestartItCanBeOpenedAgain)
{
    banco.apriCamera();
    bool fatto = false;
    banco.porta.scritto = [this, &fatto](const QByteArray &byte) {
        if (byte == b({0}) && !fatto) {
            fatto = true;
            QTimer::singleShot(0, &camera, [this] { camera.close(); });
        }
        banco.porta.arriva(b({31, 21}));
    };
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    ASSERT_TRUE(aspetta([this] { return !camera.Visible(); }));
    EXPECT_TRUE(fatto);
    banco.premi(3);
    EXPECT_TRUE(camera.Visible());
}
