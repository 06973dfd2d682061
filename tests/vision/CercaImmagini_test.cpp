// The search for stored pictures: what is shown, and the effects of a damaged file.
#include "tests/vision/BancoVisione.h"

#include "tests/support/Attesa.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString erroreRicerca = u"Errore nella ricerca dell'immagine!"_s;

// The record of an area of the picture, with the colours that arrive from the robot. Places count
// from 1.
QByteArray record(const QByteArray &nome, const QImage &immagine, QRect area)
{
    QByteArray testo = '"' + nome + "\"," + QByteArray::number(area.width()) + ',' +
                       QByteArray::number(area.height());
    for (int riga = area.top(); riga <= area.bottom(); ++riga)
        for (int colonna = area.left(); colonna <= area.right(); ++colonna)
            testo +=
                ',' + QByteArray::number(coloreInArrivo(immagine.pixel(colonna - 1, riga - 1)));
    return testo;
}

class CercaImmagini : public testing::Test
{
protected:
    CercaImmagini()
        : banco("\"Nessuna\",2,1,77,88\r" + record("Pallone", scena, {30, 20, 20, 15}) + '\r' +
                record("Tazza", scena, {5, 5, 6, 4}))
    {
        banco.apriCamera();
        camera.resize(800, 600);
    }
    QRectF trovata() const { return camera.shpImgRilevata.rettangoloPixel(); }

    const QImage scena = immagineACaso(21);
    const QImage altra = immagineACaso(22);
    BancoSuPortaFinta banco;
    frmCamera &camera = banco.camera;
    Elenco &lstImgCamera = banco.console.lstImgCamera;
};

} // namespace

TEST_F(CercaImmagini, AtFirstNothingIsShown)
{
    EXPECT_FALSE(camera.shpImgRilevata.Visible());
    EXPECT_FALSE(camera.lblNomeImmagine.Visible());
}

TEST_F(CercaImmagini, TheActivePictureIsFramedAndNamed)
{
    banco.manda(scena);
    EXPECT_TRUE(camera.shpImgRilevata.isVisible());
    EXPECT_EQ(trovata(), QRectF(300, 200, 200, 150));
    const EtichettaInPixel &nome = camera.lblNomeImmagine;
    EXPECT_TRUE(nome.isVisible());
    EXPECT_EQ(nome.Caption(), u"Pallone"_s);
    EXPECT_EQ(nome.leftPixel(), 290);
    EXPECT_EQ(nome.topPixel(), 340);
    EXPECT_EQ(nome.font().pointSize(), 30);
    EXPECT_TRUE(camera.Schermo.rect().contains(nome.geometry()));
}

TEST_F(CercaImmagini, FrameAndNameAreVisibleOnLightAndDarkPictures)
{
    for (const QRgb sfondo : {0xFFFFFFU, 0x000000U, 0xFFD020U}) {
        QImage immagine = immaginePiena(sfondo);
        for (int y = 0; y < 15; ++y)
            for (int x = 0; x < 20; ++x)
                immagine.setPixel(29 + x, 19 + y, scena.pixel(29 + x, 19 + y));
        banco.manda(immagine);
        ASSERT_TRUE(camera.shpImgRilevata.isVisible());
        const QImage visto = camera.Schermo.grab().toImage();
        const auto grigio = [&](int x, int y) { return qGray(visto.pixel(x, y)); };
        // Across the upper edge of the frame, then across the beginning of the name.
        int chiaro = 0;
        int scuro = 255;
        for (int y = 197; y < 204; ++y) {
            chiaro = qMax(chiaro, grigio(400, y));
            scuro = qMin(scuro, grigio(400, y));
        }
        EXPECT_GT(chiaro - scuro, 120) << sfondo;
        const QRect nome = camera.lblNomeImmagine.geometry();
        chiaro = 0;
        for (int x = nome.left(); x < nome.left() + 60; ++x)
            chiaro = qMax(chiaro, grigio(x, nome.center().y()));
        EXPECT_GT(chiaro - grigio(nome.left() + 1, nome.bottom() - 1), 120) << sfondo;
    }
}

TEST_F(CercaImmagini, AFrameThatGivesASelectionIsSearchedToo)
{
    QTest::mouseClick(&camera.Schermo, Qt::LeftButton, {}, {100, 100});
    banco.manda(scena);
    EXPECT_TRUE(banco.nome.Visible());
    EXPECT_TRUE(camera.shpImgRilevata.Visible());
}

TEST_F(CercaImmagini, FrameAndNameAreHiddenByTheNextFrameWithoutThePicture)
{
    banco.manda(scena);
    banco.manda(altra);
    EXPECT_FALSE(camera.shpImgRilevata.Visible());
    EXPECT_FALSE(camera.lblNomeImmagine.Visible());
}

TEST_F(CercaImmagini, TheFirstActivePictureIsShown)
{
    lstImgCamera.setItemData(0, -1);
    lstImgCamera.setItemData(2, -1);
    banco.manda(scena);
    EXPECT_EQ(camera.lblNomeImmagine.Caption(), u"Pallone"_s);
    lstImgCamera.setItemData(1, 0);
    banco.manda(scena);
    EXPECT_EQ(camera.lblNomeImmagine.Caption(), u"Tazza"_s);
    EXPECT_EQ(trovata(), QRectF(50, 50, 60, 40));
}

TEST_F(CercaImmagini, WithoutAnActivePictureTheFileIsNotRead)
{
    lstImgCamera.setItemData(1, 0);
    ASSERT_TRUE(QFile::remove(u"Immagini.dat"_s));
    banco.manda(scena);
    EXPECT_NE(banco.pannello3(), erroreRicerca);
    EXPECT_FALSE(camera.shpImgRilevata.Visible());
}

TEST_F(CercaImmagini, AMissingFileIsReportedAndWhatIsShownStays)
{
    banco.manda(scena);
    ASSERT_TRUE(QFile::remove(u"Immagini.dat"_s));
    banco.manda(altra);
    EXPECT_EQ(banco.pannello3(), erroreRicerca);
    EXPECT_TRUE(camera.shpImgRilevata.Visible());
    EXPECT_TRUE(camera.lblNomeImmagine.Visible());
    // The frame was painted nevertheless, and the next row begins a new frame.
    EXPECT_EQ(camera.Schermo.disegno().copy(camera.Schermo.rect()),
              quadri(altra, 10, camera.Schermo.size()));
    EXPECT_EQ(camera.fotogramma().Riga, 0);
}

TEST_F(CercaImmagini, AFileThatIsTooShortCanBeReadAgainLater)
{
    banco.cartella.scrivi(u"Immagini.dat"_s, "\"a\",1,1,5");
    banco.manda(scena);
    EXPECT_EQ(banco.pannello3(), erroreRicerca);
    banco.cartella.scrivi(u"Immagini.dat"_s,
                          "\"a\",1,1,5\r" + record("Pallone", scena, {30, 20, 20, 15}));
    banco.manda(scena);
    EXPECT_TRUE(camera.shpImgRilevata.Visible());
}

TEST_F(CercaImmagini, TheColoursAreReadFromTheFileAtEveryFrame)
{
    banco.manda(altra);
    ASSERT_FALSE(camera.shpImgRilevata.Visible());
    // The size is still that of the entry read at the start.
    banco.cartella.scrivi(u"Immagini.dat"_s,
                          "\"a\",1,1,5\r" + record("Altra", altra, {40, 30, 20, 15}));
    banco.manda(altra);
    EXPECT_EQ(trovata(), QRectF(400, 300, 200, 150));
    EXPECT_EQ(camera.lblNomeImmagine.Caption(), u"Pallone"_s);
}

TEST_F(CercaImmagini, TheCurrentZoomIsUsed)
{
    camera.resize(320, 300);
    banco.manda(scena);
    EXPECT_EQ(trovata(), QRectF(120, 80, 80, 60));
    EXPECT_EQ(camera.lblNomeImmagine.font().pointSize(), 12);
}

TEST_F(CercaImmagini, APictureAsWideOrAsHighAsTheFrameIsNeverFoundAndNothingIsReported)
{
    for (const QSize misura : {QSize(80, 1), QSize(1, 60), QSize(80, 60)}) {
        const QByteArray voce = record("Tutto", scena, QRect(QPoint(1, 1), misura));
        lstImgCamera.setList(1, QString::fromLatin1(voce));
        banco.cartella.scrivi(u"Immagini.dat"_s, "\"a\",1,1,5\r" + voce);
        banco.console.BarraStato.setPanels(3, u"niente"_s);
        banco.manda(scena);
        EXPECT_FALSE(camera.shpImgRilevata.Visible()) << misura.width();
        EXPECT_EQ(banco.pannello3(), u"niente"_s) << misura.width();
    }
}

TEST_F(CercaImmagini, AnEmptyFileIsReportedAndTheVideoContinues)
{
    banco.cartella.scrivi(u"Immagini.dat"_s, {});
    banco.manda(scena);
    EXPECT_EQ(banco.pannello3(), erroreRicerca);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
}

TEST_F(CercaImmagini, AnEarlierPictureIsFoundAlsoIfALaterOneFails)
{
    banco.cartella.scrivi(u"Immagini.dat"_s,
                          "\"a\",1,1,5\r" + record("Pallone", scena, {30, 20, 20, 15}));
    lstImgCamera.setItemData(2, -1);
    banco.manda(scena);
    EXPECT_EQ(camera.lblNomeImmagine.Caption(), u"Pallone"_s);
    EXPECT_NE(banco.pannello3(), erroreRicerca);
}

class VociGuaste : public testing::TestWithParam<QByteArray>
{
};

TEST_P(VociGuaste, AreReportedOrIgnoredAndTheVideoContinues)
{
    BancoSuPortaFinta banco("\"a\",1,1,5\r" + GetParam());
    banco.apriCamera();
    banco.manda(immagineACaso(1));
    banco.manda(immaginePiena(0));
    EXPECT_EQ(banco.camera.fotogramma().Riga, 0);
    EXPECT_EQ(banco.camera.Schermo.disegno().copy(banco.camera.Schermo.rect()),
              quadri(immaginePiena(0), 8, banco.camera.Schermo.size()));
}

INSTANTIATE_TEST_SUITE_P(
    File, VociGuaste,
    testing::Values(QByteArray(), QByteArray("\"\""), QByteArray("\"Palla,rossa\",2,2,1,2,3,4"),
                    QByteArray("\"b\",300,2,1,2"), QByteArray("\"b\",81,61,1"),
                    QByteArray("\"b\",-3,2,1,2,3"), QByteArray("\"b\",3,-2,1,2,3"),
                    QByteArray("\"b\",0,0,0"), QByteArray("\"b\",2,2,1677721599,9999999999,-1,x"),
                    QByteArray("\"b\",2,2"), QByteArray("\"b\",1e9,99999999999999999999,1"),
                    QByteArray("\"b\",80,60") + QByteArray(",0").repeated(4800),
                    QByteArray(5000, ','), QByteArray("\xFF\x00\x0D\x0A\x22,,,", 8)));

TEST(StoreOf50Megabytes, IsReadAndTheVideoContinues)
{
    const QImage scena = immagineACaso(21);
    QByteArray file = "\"a\",1,1," + QByteArray(50'000'000, '7') + '\r';
    file += record("Pallone", scena, {30, 20, 20, 15});
    BancoSuPortaFinta banco(file);
    banco.apriCamera();
    banco.manda(scena);
    EXPECT_EQ(banco.camera.lblNomeImmagine.Caption(), u"Pallone"_s);
    EXPECT_TRUE(banco.camera.shpImgRilevata.Visible());
}

TEST(CercaImmaginiGuaste, RecordsAfterOneThatALineBreakHasSplitAreFound)
{
    const QImage scena = immagineACaso(21);
    BancoSuPortaFinta banco("\"Nessuna\",2,1,77,88\r\"Pal\rla\",1,1,6\r" +
                            record("Tazza", scena, {5, 5, 6, 4}));
    Elenco &lstImgCamera = banco.console.lstImgCamera;
    ASSERT_EQ(lstImgCamera.ListCount(), 4);
    banco.apriCamera();
    // The start makes the second record active, which is the first half of the split one. The video
    // continues nevertheless.
    banco.manda(scena);
    EXPECT_EQ(banco.camera.fotogramma().Riga, 0);
    lstImgCamera.setItemData(1, 0);
    lstImgCamera.setItemData(3, 1);
    banco.manda(scena);
    EXPECT_TRUE(banco.camera.shpImgRilevata.Visible());
    EXPECT_EQ(banco.camera.lblNomeImmagine.Caption(), u"Tazza"_s);
}
