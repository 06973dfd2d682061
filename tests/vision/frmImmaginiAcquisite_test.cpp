// The list of the stored pictures: names, drawing, check marks.
#include "tests/vision/BancoVisione.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"

#include <QAbstractItemView>
#include <QDir>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray treImmagini = "\"Pallone\",2,2,255,65280,16711680,16777215\r"
                               "\"Tazza\",1,3,1,2,3\r"
                               "\"Mela\",0,0,77";

class ImmaginiAcquisite : public testing::Test
{
protected:
    explicit ImmaginiAcquisite(const QByteArray &file = treImmagini) : banco(file) {}

    void clicca(int riga)
    {
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                          lista.visualItemRect(lista.item(riga)).center());
    }
    void spunta(int riga)
    {
        // The style draws the mark at the beginning of the row.
        const QRect dove = lista.visualItemRect(lista.item(riga));
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                          {dove.left() + 10, dove.center().y()});
    }
    QColor punto(int x, int y) const { return finestra.imgSelezionata.disegno().pixelColor(x, y); }

    BancoSuPortaFinta banco;
    frmImmaginiAcquisite &finestra = banco.acquisite;
    Elenco &lista = banco.acquisite.lstImgAcquisite;
    Elenco &lstImgCamera = banco.console.lstImgCamera;
};

class SenzaFile : public ImmaginiAcquisite
{
protected:
    SenzaFile() : ImmaginiAcquisite(QByteArray()) {}
};

class FileGuasto : public ImmaginiAcquisite
{
protected:
    FileGuasto() : ImmaginiAcquisite("\"a\",300,2,5\r\"b\",81,1,5\r\"c\",-1,1,5\rgarbage") {}
};

// Clicks a row whose error ends the program; prints the text of the error's box.
void clickFatale(Elenco &lista, int riga)
{
    QTimer::singleShot(0, [] {
        RispondiMessaggi *risposte = new RispondiMessaggi;
        risposte->mentreAperto = [](QMessageBox &box) {
            std::fprintf(stderr, "%s\n", qPrintable(box.text()));
        };
    });
    lista.setListIndex(riga);
}

} // namespace

TEST_F(ImmaginiAcquisite, TheToolbarsButtonWithImageEightOpensItWithoutAConnection)
{
    banco.premi(8);
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_EQ(finestra.windowTitle(), u"Immagini acquisite"_s);
    ASSERT_EQ(lista.ListCount(), 3);
    EXPECT_EQ(lista.List(0), u"Pallone"_s);
    EXPECT_EQ(lista.List(1), u"Tazza"_s);
    EXPECT_EQ(lista.List(2), u"Mela"_s);
}

TEST_F(ImmaginiAcquisite, OnlyTheSecondPictureIsActiveAtTheStartAndNoCheckMarkShowsIt)
{
    banco.premi(8);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(lstImgCamera.ItemData(i), i == 1 ? 1 : 0);
        EXPECT_FALSE(lista.Selected(i));
    }
}

TEST_F(ImmaginiAcquisite, AClickShowsThePictureInSquaresOfTwoPixels)
{
    banco.premi(8);
    clicca(0);
    EXPECT_EQ(punto(2, 2), QColor(255, 0, 0));
    EXPECT_EQ(punto(3, 3), QColor(255, 0, 0));
    EXPECT_EQ(punto(4, 2), QColor(0, 255, 0));
    EXPECT_EQ(punto(2, 4), QColor(0, 0, 255));
    EXPECT_EQ(punto(5, 5), QColor(255, 255, 255));
    EXPECT_EQ(punto(1, 1).alpha(), 0);
    EXPECT_EQ(punto(6, 2).alpha(), 0);
    EXPECT_EQ(punto(2, 6).alpha(), 0);
}

TEST_F(ImmaginiAcquisite, TheNextClickClearsThePreviousPicture)
{
    banco.premi(8);
    clicca(0);
    clicca(1);
    EXPECT_EQ(punto(2, 2), QColor(1, 0, 0));
    EXPECT_EQ(punto(2, 6), QColor(3, 0, 0));
    EXPECT_EQ(punto(4, 2).alpha(), 0);
}

TEST_F(ImmaginiAcquisite, APictureWithoutASizeIsEmpty)
{
    banco.premi(8);
    clicca(0);
    clicca(2);
    EXPECT_EQ(punto(2, 2).alpha(), 0);
}

TEST_F(ImmaginiAcquisite, ACheckMarkMakesAPictureActive)
{
    banco.premi(8);
    spunta(0);
    EXPECT_TRUE(lista.Selected(0));
    EXPECT_EQ(lista.ListIndex(), 0);
    EXPECT_EQ(lstImgCamera.ItemData(0), -1);
    spunta(0);
    EXPECT_FALSE(lista.Selected(0));
    EXPECT_EQ(lstImgCamera.ItemData(0), 0);
}

TEST_F(ImmaginiAcquisite, AClickOnAPictureWithoutAMarkMakesItInactive)
{
    banco.premi(8);
    clicca(1);
    EXPECT_EQ(lstImgCamera.ItemData(1), 0);
}

TEST_F(ImmaginiAcquisite, TheSpaceBarSetsTheMarkToo)
{
    banco.premi(8);
    clicca(2);
    QTest::keyClick(&lista, Qt::Key_Space);
    EXPECT_EQ(lstImgCamera.ItemData(2), -1);
}

TEST_F(ImmaginiAcquisite, TheKeyboardShowsAndActivatesPictures)
{
    banco.premi(8);
    // The first Tab goes to the list.
    QTest::keyClick(&finestra, Qt::Key_Tab);
    ASSERT_EQ(finestra.focusWidget(), &lista);
    EXPECT_EQ(lista.ListIndex(), -1);
    QTest::keyClick(&lista, Qt::Key_Down);
    QTest::keyClick(&lista, Qt::Key_Home);
    EXPECT_EQ(lista.ListIndex(), 0);
    EXPECT_EQ(punto(2, 2), QColor(255, 0, 0));
    QTest::keyClick(&lista, Qt::Key_Space);
    EXPECT_EQ(lstImgCamera.ItemData(0), -1);
}

TEST_F(ImmaginiAcquisite, OpenedAgainTheMarksAreClearedAndThePicturesStayActive)
{
    banco.premi(8);
    spunta(0);
    finestra.close();
    banco.premi(8);
    EXPECT_FALSE(lista.Selected(0));
    EXPECT_EQ(lstImgCamera.ItemData(0), -1);
    EXPECT_EQ(punto(2, 2).alpha(), 0);
}

TEST_F(ImmaginiAcquisite, ThePixelsAreReadFromTheFileAtEachClick)
{
    banco.premi(8);
    banco.cartella.scrivi(u"Immagini.dat"_s, "\"Pallone\",2,2,9,9,9,9");
    clicca(0);
    EXPECT_EQ(punto(2, 2), QColor(9, 0, 0));
}

TEST_F(SenzaFile, TheWindowHasOneRowWithoutAName)
{
    banco.premi(8);
    EXPECT_TRUE(finestra.isVisible());
    ASSERT_EQ(lista.ListCount(), 1);
    EXPECT_EQ(lista.List(0), QString());
}

TEST_F(SenzaFile, AClickEndsTheProgramWithTheErrorOfTheReading)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    banco.premi(8);
    EXPECT_EXIT(clickFatale(lista, 0), testing::ExitedWithCode(1), "\\(53\\)");
}

TEST_F(ImmaginiAcquisite, AFileThatHasBecomeTooShortEndsTheProgramWithTheErrorOfTheReading)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    banco.premi(8);
    banco.cartella.scrivi(u"Immagini.dat"_s, "\"Pallone\",2,2,9,9,9,9");
    EXPECT_EXIT(clickFatale(lista, 1), testing::ExitedWithCode(1), "\\(62\\)");
}

TEST_F(FileGuasto, SizesOutOfRangeEndTheProgram)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    banco.premi(8);
    EXPECT_EXIT(clickFatale(lista, 0), testing::ExitedWithCode(1), "\\(6\\)");
    EXPECT_EXIT(clickFatale(lista, 1), testing::ExitedWithCode(1), "\\(9\\)");
    EXPECT_EXIT(clickFatale(lista, 2), testing::ExitedWithCode(1), "\\(6\\)");
}

TEST_F(ImmaginiAcquisite, TheFractionOfASizeIsCutOff)
{
    banco.premi(8);
    lstImgCamera.setList(0, u"\"Pallone\",1.9,1.9,"_s);
    clicca(0);
    EXPECT_EQ(punto(2, 2), QColor(255, 0, 0));
    EXPECT_EQ(punto(4, 2).alpha(), 0);
    EXPECT_EQ(punto(2, 4).alpha(), 0);
}

TEST_F(FileGuasto, ARecordWithoutCommasIsAnEmptyPicture)
{
    banco.premi(8);
    EXPECT_EQ(lista.List(3), QString());
    clicca(3);
    EXPECT_EQ(punto(2, 2).alpha(), 0);
    EXPECT_EQ(lista.ListIndex(), 3);
}
