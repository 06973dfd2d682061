// From a drag on the picture to the record in the naming dialog.
#include "tests/vision/BancoVisione.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString erroreVideo =
    u"Attenzione: errore nella visualizzazione delle immagini della videocamera!"_s;

class SceltaSulVideo : public testing::Test
{
protected:
    SceltaSulVideo()
    {
        banco.apriCamera();
        // Wider than 80 * 10 pixels, so that a drag can end beyond the last column.
        camera.resize(830, 640);
        EXPECT_EQ(Schermo.Tag(), u"10"_s);
    }
    void trascina(QPoint da, QPoint a)
    {
        QTest::mousePress(&Schermo, Qt::LeftButton, {}, da);
        muovi(da + (a - da) / 2);
        muovi(a);
        QTest::mouseRelease(&Schermo, Qt::LeftButton, {}, a);
    }
    void muovi(QPoint dove, Qt::MouseButtons premuti = Qt::LeftButton)
    {
        QMouseEvent evento(QEvent::MouseMove, QPointF(dove), QPointF(dove), Qt::NoButton, premuti,
                           {});
        QApplication::sendEvent(&Schermo, &evento);
    }
    QRectF rettangolo() const { return shpSelezione.rettangoloPixel(); }
    // The record of an area of size W by H whose first pixel is at (colonna, riga), counted from 1,
    // with the colours of so many columns and rows.
    QString record(int W, int H, int colonna, int riga, int quanteColonne, int quanteRighe) const
    {
        QString testo = u"%1,%2"_s.arg(W).arg(H);
        for (int r = 0; r < quanteRighe; ++r)
            for (int c = 0; c < quanteColonne; ++c)
                testo += u',' + QString::number(
                                    coloreInArrivo(immagine.pixel(colonna - 1 + c, riga - 1 + r)));
        return testo;
    }
    void portaTasti()
    {
        camera.activateWindow();
        ASSERT_TRUE(aspetta([this] { return camera.isActiveWindow(); }));
        EXPECT_EQ(camera.focusWidget(), &Schermo);
    }
    void finisci()
    {
        ASSERT_TRUE(aspetta([this] {
            return nome.Visible() && nome.pulOK.Enabled() && !nome.tmrAcquisizione.Enabled();
        }));
    }

    const QImage immagine = immagineACaso(11);
    BancoSuPortaFinta banco;
    frmCamera &camera = banco.camera;
    frmNomeImmagine &nome = banco.nome;
    Superficie &Schermo = banco.camera.Schermo;
    FormaInPixel &shpSelezione = banco.camera.shpSelezione;
};

} // namespace

TEST_F(SceltaSulVideo, AtFirstThereIsNoSelection)
{
    EXPECT_FALSE(shpSelezione.Visible());
    EXPECT_EQ(shpSelezione.Tag(), u"0"_s);
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
}

TEST_F(SceltaSulVideo, APressShowsAPointAndADragEnlargesIt)
{
    QTest::mousePress(&Schermo, Qt::LeftButton, {}, {100, 200});
    EXPECT_TRUE(shpSelezione.Visible());
    EXPECT_EQ(rettangolo(), QRectF(100, 200, 1, 1));
    muovi({160, 290});
    EXPECT_EQ(rettangolo(), QRectF(100, 200, 60, 90));
    EXPECT_EQ(shpSelezione.Tag(), u"0"_s);
    QTest::mouseRelease(&Schermo, Qt::LeftButton, {}, {160, 290});
    EXPECT_EQ(shpSelezione.Tag(), u"True"_s);
}

TEST_F(SceltaSulVideo, ItsPropertiesAreInPixels)
{
    QTest::mousePress(&Schermo, Qt::LeftButton, {}, {100, 200});
    muovi({160, 290});
    EXPECT_EQ(shpSelezione.property("Left"), 100.0);
    EXPECT_EQ(shpSelezione.property("Top"), 200.0);
    EXPECT_EQ(shpSelezione.property("Width"), 60.0);
    EXPECT_EQ(shpSelezione.property("Height"), 90.0);
    ASSERT_TRUE(shpSelezione.setProperty("Left", 30.0));
    ASSERT_TRUE(shpSelezione.setProperty("Height", 40.0));
    EXPECT_EQ(shpSelezione.geometry(), QRect(30, 200, 60, 40));
    const Forma &forma = shpSelezione;
    EXPECT_EQ(forma.Left(), 30 * Unita::perPixel) << "layout units, as of every control";
}

TEST_F(SceltaSulVideo, ItIsVisibleOnAWhitePicture)
{
    banco.manda(immaginePiena(0xFFFFFF));
    QTest::mousePress(&Schermo, Qt::LeftButton, {}, {100, 200});
    muovi({160, 290});
    const QImage visto = Schermo.grab().toImage();
    int scuro = 255;
    for (int y = 200; y < 204; ++y)
        scuro = qMin(scuro, qGray(visto.pixel(130, y)));
    EXPECT_LT(scuro, 120);
}

TEST_F(SceltaSulVideo, ADragUpOrLeftKeepsTheLastValidSize)
{
    QTest::mousePress(&Schermo, Qt::LeftButton, {}, {100, 200});
    muovi({130, 240});
    muovi({90, 260});
    EXPECT_EQ(rettangolo(), QRectF(100, 200, 30, 60));
    muovi({150, 190});
    EXPECT_EQ(rettangolo(), QRectF(100, 200, 50, 60));
    muovi({10, 10});
    EXPECT_EQ(rettangolo(), QRectF(100, 200, 50, 60));
}

TEST_F(SceltaSulVideo, OnlyTheLeftButtonAloneDrags)
{
    QTest::mousePress(&Schermo, Qt::RightButton, {}, {100, 200});
    EXPECT_EQ(rettangolo(), QRectF(100, 200, 1, 1));
    muovi({150, 250}, Qt::RightButton);
    muovi({150, 250}, Qt::LeftButton | Qt::RightButton);
    muovi({150, 250}, Qt::NoButton);
    EXPECT_EQ(rettangolo(), QRectF(100, 200, 1, 1));
    QTest::mouseRelease(&Schermo, Qt::RightButton, {}, {150, 250});
    EXPECT_EQ(shpSelezione.Tag(), u"True"_s);
}

TEST_F(SceltaSulVideo, TheNextFrameGivesARecordShiftedByOnePixel)
{
    trascina({100, 200}, {160, 290});
    banco.manda(immagine);
    EXPECT_FALSE(shpSelezione.Visible());
    EXPECT_EQ(shpSelezione.Tag(), u"False"_s);
    finisci();
    EXPECT_EQ(nome.Tag(), record(6, 9, 11, 21, 6, 9));
}

TEST_F(SceltaSulVideo, ItUsesTheNextFrameAndNoLaterOne)
{
    trascina({100, 100}, {700, 500});
    banco.manda(immagine);
    banco.manda(immaginePiena(0xFF00FF));
    finisci();
    EXPECT_EQ(nome.Tag(), record(60, 40, 11, 11, 60, 40));
}

TEST_F(SceltaSulVideo, TheDialogOpensAfterTwoRowsAndTheTimerCopiesTheRest)
{
    trascina({100, 100}, {150, 190});
    nome.tmrAcquisizione.setInterval(0);
    banco.manda(immagine);
    EXPECT_TRUE(nome.Visible());
    EXPECT_TRUE(nome.tmrAcquisizione.Enabled());
    EXPECT_EQ(nome.Tag(), record(5, 9, 11, 11, 5, 2));
    EXPECT_FALSE(nome.pulOK.Enabled());
    EXPECT_FALSE(nome.imgAcquisita.Visible());
    EXPECT_TRUE(nome.lblAttesa.Visible());
    nome.tmrAcquisizione.setInterval(1);
    finisci();
    EXPECT_EQ(nome.Tag(), record(5, 9, 11, 11, 5, 9));
    EXPECT_TRUE(nome.imgAcquisita.Visible());
    EXPECT_FALSE(nome.lblAttesa.Visible());
}

TEST_F(SceltaSulVideo, TheDialogShowsThePictureInTheMiddleOfItsArea)
{
    trascina({100, 100}, {160, 190});
    banco.manda(immagine);
    finisci();
    EXPECT_EQ(nome.imgAcquisita.leftPixel(), 36);
    EXPECT_EQ(nome.imgAcquisita.topPixel(), 25);
    const QImage visto = nome.imgAcquisita.disegno();
    for (int riga = 1; riga <= 9; ++riga) {
        for (int colonna = 1; colonna <= 6; ++colonna) {
            const qint32 c = coloreInArrivo(immagine.pixel(10 + colonna - 1, 10 + riga - 1));
            EXPECT_EQ(visto.pixelColor(colonna, riga), QColor(c % 256, c / 256 % 256, c / 65536));
        }
    }
    EXPECT_EQ(visto.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(visto.pixelColor(7, 1).alpha(), 0);
    EXPECT_EQ(visto.pixelColor(1, 10).alpha(), 0);
}

TEST_F(SceltaSulVideo, AClickGivesARecordOfSizeZeroWithOneColour)
{
    QTest::mouseClick(&Schermo, Qt::LeftButton, {}, {105, 203});
    banco.manda(immagine);
    finisci();
    EXPECT_EQ(nome.Tag(), record(0, 0, 11, 21, 1, 1));
    // A later tick does not add to it.
    gira(20);
    EXPECT_EQ(nome.Tag(), record(0, 0, 11, 21, 1, 1));
}

TEST_F(SceltaSulVideo, TwoRowsAreCompleteWhenTheDialogOpens)
{
    trascina({100, 100}, {130, 120});
    banco.manda(immagine);
    finisci();
    gira(20);
    EXPECT_EQ(nome.Tag(), record(3, 2, 11, 11, 3, 2));
}

TEST_F(SceltaSulVideo, InTheUpperLeftCornerItBeginsAtOne)
{
    trascina({2, 3}, {52, 43});
    banco.manda(immagine);
    finisci();
    EXPECT_EQ(nome.Tag(), record(5, 4, 2, 2, 5, 4));
}

TEST_F(SceltaSulVideo, BeyondTheEdgesItIsCutToTheFrame)
{
    trascina({700, 500}, {1300, 1200});
    banco.manda(immagine);
    finisci();
    EXPECT_EQ(nome.Tag(), record(10, 10, 71, 51, 10, 10));
}

TEST_F(SceltaSulVideo, ADragFarBeyondTheEdgesStopsTheVideoUntilADoubleClick)
{
    trascina({100, 100}, {5000, 200});
    banco.manda(immagine);
    EXPECT_EQ(banco.pannello3(), erroreVideo);
    EXPECT_EQ(camera.fotogramma().Riga, 60);
    EXPECT_FALSE(nome.Visible());
    EXPECT_EQ(shpSelezione.Tag(), u"False"_s);
    QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 200});
    banco.manda(immagine);
    EXPECT_EQ(camera.fotogramma().Riga, 0);
}

TEST_F(SceltaSulVideo, AClickAfterTheLastColumnFails)
{
    QTest::mouseClick(&Schermo, Qt::LeftButton, {}, {805, 203});
    banco.manda(immagine);
    EXPECT_EQ(banco.pannello3(), erroreVideo);
    EXPECT_FALSE(nome.Visible());
    EXPECT_FALSE(nome.tmrAcquisizione.Enabled());
}

TEST_F(SceltaSulVideo, WhileTheDialogIsOpenNothingReplacesTheAreaThatIsNamed)
{
    trascina({100, 100}, {150, 190});
    banco.manda(immagine);
    finisci();
    const QString prima = nome.Tag();
    const std::vector<std::function<void()>> atti{
        [this] {
            QTest::mouseClick(&Schermo, Qt::LeftButton, {}, {300, 300});
        },
        [this] {
            QTest::mouseClick(&Schermo, Qt::RightButton, {}, {300, 300});
        },
        [this] {
            trascina({300, 300}, {400, 400});
        },
        [this] {
            QTest::mouseDClick(&Schermo, Qt::LeftButton, {}, {300, 300});
        },
        [this] {
            QWheelEvent giro(QPointF(300, 300), QPointF(300, 300), {}, {0, 120}, Qt::NoButton, {},
                             Qt::NoScrollPhase, false);
            QApplication::sendEvent(&Schermo, &giro);
        },
        [this] {
            portaTasti();
            for (const int tasto : {Qt::Key_Left, Qt::Key_Space, Qt::Key_Right, Qt::Key_Down,
                                    Qt::Key_Space, Qt::Key_F5})
                QTest::keyClick(&Schermo, static_cast<Qt::Key>(tasto));
        },
        [this] { camera.resize(410, 320); },
        // The Tag written from outside has no effect either.
        [this] { shpSelezione.setTag(u"True"_s); },
    };
    for (size_t i = 0; i < atti.size(); ++i) {
        atti[i]();
        EXPECT_FALSE(shpSelezione.Visible()) << i;
        EXPECT_FALSE(camera.shpMirino.Visible()) << i;
        EXPECT_EQ(rettangolo(), QRectF(100, 100, 50, 90)) << i;
        banco.manda(immaginePiena(0x000000));
        gira(20);
        EXPECT_TRUE(nome.Visible()) << i;
        EXPECT_EQ(nome.Tag(), prima) << i;
        EXPECT_TRUE(nome.imgAcquisita.Visible()) << i;
        EXPECT_EQ(nome.imgAcquisita.leftPixel(), 37) << i;
        EXPECT_EQ(shpSelezione.Tag(), u"False"_s) << i;
    }
    // Nothing of this has an effect after the dialog was closed.
    nome.Scarica();
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
}

TEST_F(SceltaSulVideo, AClickWhileTheDialogIsOpenIsIgnoredAlsoIfItClosesBeforeTheNextFrame)
{
    trascina({100, 100}, {150, 190});
    banco.manda(immagine);
    finisci();
    QTest::mouseClick(&Schermo, Qt::LeftButton, {}, {300, 300});
    nome.Scarica();
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
    EXPECT_EQ(shpSelezione.Tag(), u"False"_s);
}

TEST_F(SceltaSulVideo, APressWhileTheDialogIsOpenIsIgnoredAlsoIfItsReleaseComesLater)
{
    trascina({100, 100}, {150, 190});
    banco.manda(immagine);
    finisci();
    QTest::mousePress(&Schermo, Qt::LeftButton, {}, {300, 300});
    nome.Scarica();
    QTest::mouseRelease(&Schermo, Qt::LeftButton, {}, {300, 300});
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
    // The next selection has an effect again.
    trascina({100, 200}, {160, 290});
    banco.manda(immagine);
    finisci();
    EXPECT_EQ(nome.Tag(), record(6, 9, 11, 21, 6, 9));
}

TEST_F(SceltaSulVideo, ADragThatTheDialogInterruptsIsDropped)
{
    trascina({100, 100}, {150, 190});
    QTest::mousePress(&Schermo, Qt::LeftButton, {}, {300, 300});
    muovi({400, 400});
    banco.manda(immagine);
    finisci();
    EXPECT_FALSE(shpSelezione.Visible());
    nome.Scarica();
    QTest::mouseRelease(&Schermo, Qt::LeftButton, {}, {420, 420});
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
}

TEST_F(SceltaSulVideo, AKeyboardSelectionThatTheDialogInterruptsIsDropped)
{
    portaTasti();
    trascina({100, 100}, {150, 190});
    QTest::keyClick(&Schermo, Qt::Key_Space);
    QTest::keyClick(&Schermo, Qt::Key_Right);
    banco.manda(immagine);
    finisci();
    EXPECT_FALSE(camera.shpMirino.Visible());
    nome.Scarica();
    portaTasti();
    QTest::keyClick(&Schermo, Qt::Key_Right);
    EXPECT_FALSE(shpSelezione.Visible());
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
}

TEST_F(SceltaSulVideo, TheDialogStaysInFrontOfTheCamera)
{
    trascina({100, 100}, {150, 190});
    banco.manda(immagine);
    ASSERT_TRUE(nome.Visible());
    EXPECT_EQ(nome.windowHandle()->transientParent(), camera.windowHandle());
    EXPECT_EQ(nome.windowType(), Qt::Dialog);
    EXPECT_EQ(nome.windowModality(), Qt::NonModal);
}

TEST_F(SceltaSulVideo, WithoutVideoNoRectangleAppears)
{
    camera.setTag(u"0"_s);
    trascina({100, 100}, {150, 190});
    EXPECT_FALSE(shpSelezione.Visible());
    EXPECT_EQ(shpSelezione.Tag(), u"True"_s);
}

TEST_F(SceltaSulVideo, ADisconnectionDuringTheCopyLetsTheDialogFinish)
{
    trascina({100, 100}, {500, 500});
    nome.tmrAcquisizione.setInterval(0);
    banco.manda(immagine);
    ASSERT_FALSE(nome.pulOK.Enabled());
    banco.scollega();
    EXPECT_FALSE(camera.Visible());
    EXPECT_TRUE(nome.Visible());
    nome.tmrAcquisizione.setInterval(1);
    finisci();
    EXPECT_EQ(nome.Tag(), record(40, 40, 11, 11, 40, 40));
    nome.txtNomeImmagine.setText(u"Palla"_s);
    QTest::keyClick(&nome.txtNomeImmagine, Qt::Key_Return);
    EXPECT_FALSE(nome.Visible());
    EXPECT_EQ(banco.cartella.leggi(u"Immagini.dat"_s),
              "\"Palla\"," + record(40, 40, 11, 11, 40, 40).toLatin1());
}

TEST_F(SceltaSulVideo, AfterACancelledCopyTheNextOneIsComplete)
{
    trascina({100, 100}, {500, 500});
    nome.tmrAcquisizione.setInterval(0);
    banco.manda(immagine);
    QTest::mouseClick(&nome.pulAnnulla, Qt::LeftButton);
    ASSERT_FALSE(nome.Visible());
    nome.tmrAcquisizione.setInterval(1);
    gira(20);
    EXPECT_EQ(nome.Tag(), QString());
    trascina({100, 200}, {160, 290});
    banco.manda(immagine);
    finisci();
    EXPECT_EQ(nome.Tag(), record(6, 9, 11, 21, 6, 9));
}

TEST_F(SceltaSulVideo, ADisconnectionDuringTheMessageOfADuplicateNameDoesNoHarm)
{
    banco.cartella.scrivi(u"Immagini.dat"_s, "\"Palla\",1,1,5");
    trascina({100, 100}, {130, 130});
    banco.manda(immagine);
    finisci();
    nome.txtNomeImmagine.setText(u"Palla"_s);
    RispondiMessaggi risposte;
    risposte.mentreAperto = [this](QMessageBox &) {
        banco.scollega();
        nome.Scarica();
    };
    QTest::mouseClick(&nome.pulOK, Qt::LeftButton);
    EXPECT_EQ(risposte.testi(), QStringList(u"Il nome esiste già!"_s));
    EXPECT_FALSE(nome.Visible());
    EXPECT_FALSE(camera.Visible());
    EXPECT_EQ(banco.cartella.leggi(u"Immagini.dat"_s), "\"Palla\",1,1,5");
}

TEST_F(SceltaSulVideo, TheKeyboardSelectsWhatTheMouseSelects)
{
    EXPECT_FALSE(camera.shpMirino.Visible());
    portaTasti();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&Schermo, Qt::Key_Left);
    EXPECT_TRUE(camera.shpMirino.Visible());
    const QPoint da = Schermo.rect().center() - QPoint(30, 0);
    QTest::keyClick(&Schermo, Qt::Key_Space);
    EXPECT_EQ(rettangolo(), QRectF(da, QSizeF(1, 1)));
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&Schermo, Qt::Key_Right);
    QTest::keyClick(&Schermo, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(&Schermo, Qt::Key_Up);
    EXPECT_EQ(rettangolo(), QRectF(da, QSizeF(50, 90)));
    EXPECT_EQ(shpSelezione.Tag(), u"0"_s);
    QTest::keyClick(&Schermo, Qt::Key_Space);
    EXPECT_FALSE(camera.shpMirino.Visible());
    banco.manda(immagine);
    finisci();
    const QString conTasti = nome.Tag();
    EXPECT_TRUE(conTasti.startsWith(u"5,9,"_s));
    nome.Scarica();

    trascina(da, da + QPoint(50, 90));
    banco.manda(immagine);
    finisci();
    EXPECT_EQ(nome.Tag(), conTasti);
}

TEST_F(SceltaSulVideo, EscDropsTheSelectionThatTheKeyboardDraws)
{
    portaTasti();
    QTest::keyClick(&Schermo, Qt::Key_Space);
    QTest::keyClick(&Schermo, Qt::Key_Right);
    EXPECT_TRUE(shpSelezione.Visible());
    QTest::keyClick(&Schermo, Qt::Key_Escape);
    EXPECT_FALSE(shpSelezione.Visible());
    EXPECT_FALSE(camera.shpMirino.Visible());
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
    QTest::keyClick(&Schermo, Qt::Key_Right);
    EXPECT_FALSE(shpSelezione.Visible()) << "the arrows only move the mark";
}

TEST_F(SceltaSulVideo, TheKeyboardCannotLeaveThePicture)
{
    portaTasti();
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(&Schermo, Qt::Key_Left, Qt::ControlModifier);
        QTest::keyClick(&Schermo, Qt::Key_Up, Qt::ControlModifier);
    }
    QTest::keyClick(&Schermo, Qt::Key_Space);
    EXPECT_EQ(rettangolo().topLeft(), QPointF(1, 1));
}

TEST_F(SceltaSulVideo, F5RestartsTheVideoAndSelectsNothing)
{
    portaTasti();
    banco.comandi();
    QTest::keyClick(&Schermo, Qt::Key_F5);
    const QByteArray comandi = banco.comandi();
    EXPECT_TRUE(comandi.startsWith(b({12}))) << "FermaVideo";
    EXPECT_TRUE(comandi.endsWith(b({10, 10, 128, 0, 11, 160, 0}))) << "AvviaVideo";
    banco.manda(immagine);
    EXPECT_FALSE(nome.Visible());
}
