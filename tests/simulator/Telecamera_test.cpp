#include "simulator/robot/Stanza.h"
#include "simulator/robot/Telecamera.h"
#include "tests/simulator/RobotInProva.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
QList<QByteArray> fotogramma(Robot &robot)
{
    QList<QByteArray> righe;
    for (int i = 0; i < 60; ++i)
        righe << robot.prossimaRiga();
    return righe;
}
} // namespace

TEST(TelecameraDelRobot, AFrameIsSixtyRowsOf161Bytes)
{
    RobotInProva p;
    p.apri();
    EXPECT_TRUE(p.robot.prossimaRiga().isEmpty());
    p.robot.ricevi(b({10, 10, 128, 0, 11, 160, 0}));
    for (const QByteArray &riga : fotogramma(p.robot)) {
        ASSERT_EQ(riga.size(), 161);
        EXPECT_EQ(riga.at(0), 13);
    }
    EXPECT_EQ(p.robot.telecamera().riga(), 0);
}

TEST(TelecameraDelRobot, ColoursAreRgb565HighByteFirst)
{
    QImage punti(4, 1, QImage::Format_RGB32);
    punti.setPixel(0, 0, qRgb(255, 0, 0));
    punti.setPixel(1, 0, qRgb(0, 255, 0));
    punti.setPixel(2, 0, qRgb(0, 0, 255));
    punti.setPixel(3, 0, qRgb(255, 255, 255));
    EXPECT_EQ(Telecamera::codifica(punti, 0), b({0xF8, 0x00, 0x07, 0xE0, 0x00, 0x1F, 0xFF, 0xFF}));
}

TEST(TelecameraDelRobot, TheRowsTogetherAreThePicture)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({11, 160, 0}));
    const QList<QByteArray> righe = fotogramma(p.robot);
    const QImage &intera = p.robot.telecamera().fotogramma();
    ASSERT_EQ(intera.size(), QSize(80, 60));
    for (int y = 0; y < 60; ++y)
        EXPECT_EQ(righe.at(y).mid(1), Telecamera::codifica(intera, y));
}

TEST(TelecameraDelRobot, StoppingEndsTheRowsAndStartingBeginsAtTheTop)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({11, 160, 0}));
    const QByteArray prima = p.robot.prossimaRiga();
    p.robot.prossimaRiga();
    p.robot.ricevi(b({12}));
    EXPECT_TRUE(p.robot.prossimaRiga().isEmpty());
    p.robot.ricevi(b({11, 160, 0}));
    EXPECT_EQ(p.robot.prossimaRiga(), prima);
}

TEST(TelecameraDelRobot, TheRoomLooksDifferentFromElsewhere)
{
    RobotInProva p;
    const auto guarda = [&] {
        return p.robot.telecamera().guarda(p.robot.stato(), p.robot.stanza(), 80, 60);
    };
    const QImage prima = guarda();
    p.robot.impostaPosa(200, 150, 120);
    const QImage girato = guarda();
    EXPECT_NE(prima, girato);
    p.robot.stanza().cose().append({u"Cosa"_s, {160, 220}, 20, 60, Qt::magenta, false});
    EXPECT_NE(guarda(), girato);
}

TEST(TelecameraDelRobot, AFolderGivesItsPicturesOneAFrame)
{
    QTemporaryDir cartella;
    for (const auto &[nome, colore] : {std::pair{u"1.png"_s, Qt::red}, {u"2.png"_s, Qt::blue}}) {
        QImage immagine(200, 100, QImage::Format_RGB32);
        immagine.fill(colore);
        ASSERT_TRUE(immagine.save(cartella.filePath(nome)));
    }
    RobotInProva p;
    p.apri();
    ASSERT_TRUE(p.robot.telecamera().impostaCartella(cartella.path()));
    p.robot.ricevi(b({11, 160, 0}));
    EXPECT_EQ(fotogramma(p.robot).at(30).mid(1, 2), b({0xF8, 0x00}));
    EXPECT_EQ(fotogramma(p.robot).at(30).mid(1, 2), b({0x00, 0x1F}));
    EXPECT_EQ(fotogramma(p.robot).at(30).mid(1, 2), b({0xF8, 0x00}));
}

TEST(TelecameraDelRobot, AFolderWithoutPicturesIsRefused)
{
    QTemporaryDir cartella;
    Telecamera telecamera;
    EXPECT_FALSE(telecamera.impostaCartella(cartella.path()));
    EXPECT_TRUE(telecamera.cartella().isEmpty());
}
