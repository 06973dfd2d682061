// The whole path: from the camera of the simulated robot over a pseudo-terminal to the pixels on
// the screen.
#include "tests/vision/BancoVisione.h"

#include "serial/PortaAsio.h"
#include "simulator/Simulatore.h"
#include "simulator/robot/Telecamera.h"
#include "tests/support/Attesa.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Strada : public testing::Test
{
protected:
    Strada()
    {
        // With one picture in the folder the camera sees that picture in every frame.
        scena.save(immagini.percorso(u"scena.png"_s));
        QDir::setCurrent(banco.cartella.percorso());
        EXPECT_TRUE(robot.apri()) << robot.errore().toStdString();
        EXPECT_TRUE(robot.collegaPorta(banco.cartella.percorso(), 1));
        // No speed limit: then no row is still on the way when the robot stops.
        robot.impostaBaud(0);
        EXPECT_TRUE(robot.robot().telecamera().impostaCartella(immagini.percorso()));
    }
    ~Strada() override { banco.scollega(); }

    QImage vista() const
    {
        return banco.camera.Schermo.disegno().copy(banco.camera.Schermo.rect());
    }
    // On such a fast line the first rows can arrive before the window is open. Then the frames are
    // shifted, and the user double-clicks.
    bool aspettaScena()
    {
        qint64 da = robot.quantiInviati();
        return aspetta([this, &da] {
            if (vista() == attesa())
                return true;
            if (robot.quantiInviati() > da + 3 * 60 * 161) {
                QTest::mouseDClick(&banco.camera.Schermo, Qt::LeftButton, {}, {300, 200});
                da = robot.quantiInviati();
            }
            return false;
        });
    }
    QImage attesa() const
    {
        return quadri(scena, banco.camera.Schermo.Tag().toInt(), banco.camera.Schermo.size());
    }

    const QImage scena = immagineACaso(31);
    CartellaDiProva immagini;
    Simulatore robot;
    BancoVisione banco{std::make_unique<PortaAsio>()};
};

} // namespace

TEST_F(Strada, AFrameOfTheRobotsCameraIsOnTheScreenPixelByPixel)
{
    banco.collega();
    banco.premi(3);
    ASSERT_TRUE(aspettaScena());
    EXPECT_TRUE(robot.robot().stato().videoAttivo);
}

TEST_F(Strada, TheScreenShowsWhatWasDrawn)
{
    banco.collega();
    banco.premi(3);
    ASSERT_TRUE(aspettaScena());
    const QImage schermata = banco.camera.Schermo.grab().toImage();
    const int s = banco.camera.Schermo.Tag().toInt();
    for (const QPoint p : {QPoint(1, 1), QPoint(80, 1), QPoint(1, 60), QPoint(40, 30)}) {
        EXPECT_EQ(schermata.pixelColor(p * s), vista().pixelColor(p * s));
        EXPECT_EQ(schermata.pixelColor(p * s + QPoint(s - 1, s - 1)), vista().pixelColor(p * s));
    }
}

TEST_F(Strada, ADoubleClickDuringTheVideoRestoresThePicture)
{
    banco.collega();
    banco.premi(3);
    ASSERT_TRUE(aspettaScena());
    for (int volta = 0; volta < 3; ++volta) {
        ASSERT_TRUE(aspetta([this] { return banco.camera.fotogramma().Riga > 20; }));
        banco.camera.Schermo.Pulisci();
        QTest::mouseDClick(&banco.camera.Schermo, Qt::LeftButton, {}, {300, 200});
        ASSERT_TRUE(aspettaScena()) << volta;
    }
}

TEST_F(Strada, AtTheSpeedOfALineTheFirstFrameIsRightAndADoubleClickRestoresItAtOnce)
{
    // A picture without a byte that begins a telegram: the rest of a row that was on the way when
    // the robot stopped is skipped byte by byte.
    QImage righe(80, 60, QImage::Format_RGB32);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x)
            righe.setPixel(x, y, qRgb(128 + (y & 15) * 8, 0xFC, 0xE0 - (y >> 4) * 8));
    for (const char byte : telegrammiVideo(righe))
        ASSERT_TRUE(byte == 13 || static_cast<quint8>(byte) > 47);
    CartellaDiProva altre;
    righe.save(altre.percorso(u"righe.png"_s));
    QDir::setCurrent(banco.cartella.percorso());
    ASSERT_TRUE(robot.robot().telecamera().impostaCartella(altre.percorso()));
    robot.impostaBaud(115200);

    banco.collega();
    banco.premi(3);
    const auto inPasso = [&] {
        return vista() ==
               quadri(righe, banco.camera.Schermo.Tag().toInt(), banco.camera.Schermo.size());
    };
    const auto unFotogramma = [&] {
        banco.camera.Schermo.Pulisci();
        const qint64 da = robot.quantiInviati();
        return aspetta([&] { return inPasso() || robot.quantiInviati() > da + 3 * 60 * 161; }) &&
               inPasso();
    };
    ASSERT_TRUE(unFotogramma());
    for (int volta = 0; volta < 3; ++volta) {
        ASSERT_TRUE(aspetta([&] { return banco.camera.fotogramma().Riga == 15 + volta; }));
        QTest::mouseDClick(&banco.camera.Schermo, Qt::LeftButton, {}, {300, 200});
        ASSERT_TRUE(unFotogramma()) << volta;
    }
}

TEST_F(Strada, ClosingTheWindowStopsTheRobotsVideo)
{
    banco.collega();
    banco.premi(3);
    ASSERT_TRUE(aspettaScena());
    banco.camera.close();
    ASSERT_TRUE(aspetta([this] { return !robot.robot().stato().videoAttivo; }));
    EXPECT_FALSE(banco.camera.Visible());
    // Telemetry still arrives after the rows that were on the way.
    robot.robot().impostaTemperatura(41);
    EXPECT_TRUE(aspetta([this] { return banco.console.lblTemperatura.Caption() == u"41°"_s; }));
}

TEST_F(Strada, AnAreaIsStoredAndFoundAfterTheNextStart)
{
    banco.collega();
    banco.premi(3);
    ASSERT_TRUE(aspettaScena());
    Superficie &Schermo = banco.camera.Schermo;
    QTest::mousePress(&Schermo, Qt::LeftButton, {}, {160, 80});
    QTest::mouseMove(&Schermo, {240, 160});
    QTest::mouseRelease(&Schermo, Qt::LeftButton, {}, {240, 160});
    ASSERT_TRUE(aspetta([this] {
        return banco.nome.Visible() && banco.nome.pulOK.Enabled() &&
               !banco.nome.tmrAcquisizione.Enabled();
    }));
    QTest::keyClicks(&banco.nome.txtNomeImmagine, u"primo"_s);
    QTest::keyClick(&banco.nome.txtNomeImmagine, Qt::Key_Return);
    ASSERT_FALSE(banco.nome.Visible());
    const QByteArray record = banco.cartella.leggi(u"Immagini.dat"_s);
    EXPECT_TRUE(record.startsWith("\"Primo\",10,10,"));

    // The second record of the file is active at the start: the next console finds it.
    banco.camera.close();
    banco.scollega();
    BancoSuPortaFinta dopo(record + '\r' + record);
    dopo.premi(8);
    EXPECT_EQ(dopo.acquisite.lstImgAcquisite.List(1), u"Primo"_s);
    dopo.apriCamera();
    dopo.manda(scena);
    EXPECT_TRUE(dopo.camera.shpImgRilevata.Visible());
    EXPECT_EQ(dopo.camera.lblNomeImmagine.Caption(), u"Primo"_s);
    // Column and row are one more than where the drag began.
    EXPECT_EQ(dopo.camera.shpImgRilevata.leftPixel(), 21 * 8);
    EXPECT_EQ(dopo.camera.shpImgRilevata.topPixel(), 11 * 8);
    banco.collega();
}

TEST_F(Strada, AfterGarbledLostAndCutRowsADoubleClickRestoresThePicture)
{
    banco.collega();
    banco.premi(3);
    ASSERT_TRUE(aspettaScena());
    robot.impostaSeme(7);
    robot.guasti().persi = 0.002;
    robot.guasti().sporchi = 0.01;
    robot.guasti().troncati = 0.05;
    const qint64 da = robot.quantiInviati();
    ASSERT_TRUE(aspetta([&] { return robot.quantiInviati() > da + 20'000; }));
    robot.guasti() = {};
    banco.camera.Schermo.Pulisci();
    EXPECT_TRUE(aspettaScena());
}
