#include "controls/Grafica.h"

#include "tests/support/Controlli.h"

#include <QAccessible>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

QIcon tinta(const QColor &colore)
{
    QPixmap pezza(16, 16);
    pezza.fill(colore);
    return QIcon(pezza);
}

QColor aMezzo(QWidget &controllo)
{
    const QImage visto = controllo.grab().toImage();
    return visto.pixelColor(visto.width() / 2, visto.height() / 2);
}

struct GraficaTest : ::testing::Test
{
    FinestraDiProva finestra;
    ListaImmagini lista{{tinta(Qt::red), tinta(Qt::green)}};
};

} // namespace

TEST_F(GraficaTest, AnImageListCountsFrom1)
{
    EXPECT_EQ(lista.ListCount(), 2);
    EXPECT_EQ(erroreDi([&] { lista.immagine(1); }), 0);
    EXPECT_EQ(erroreDi([&] { lista.immagine(2); }), 0);
    for (const int cattivo : {0, -1, 3})
        EXPECT_EQ(erroreDi([&] { lista.immagine(cattivo); }), 380) << cattivo;
}

TEST_F(GraficaTest, AnImageShowsThePictureOfItsNumber)
{
    Immagine immagine(u"imgVigilio"_s, &finestra, &lista, 1);
    immagine.resize(16, 16);
    EXPECT_EQ(aMezzo(immagine), QColor(Qt::red));
    EXPECT_TRUE(immagine.setProperty("Picture", 2));
    EXPECT_EQ(immagine.Picture(), 2);
    EXPECT_EQ(aMezzo(immagine), QColor(Qt::green));
}

TEST_F(GraficaTest, APictureNumberThatDoesNotExistGivesError380AndChangesNothing)
{
    Immagine immagine(u"imgVigilio"_s, &finestra, &lista, 1);
    for (const int cattivo : {-1, 3, 100})
        EXPECT_EQ(erroreDi([&] { immagine.setPicture(cattivo); }), 380) << cattivo;
    EXPECT_EQ(immagine.Picture(), 1);
    immagine.resize(16, 16);
    EXPECT_EQ(aMezzo(immagine), QColor(Qt::red));
    Immagine senzaLista(u"imgAltra"_s, &finestra);
    EXPECT_EQ(erroreDi([&] { senzaLista.setPicture(1); }), 380);
}

TEST_F(GraficaTest, Picture0ShowsNoPicture)
{
    Immagine immagine(u"imgVigilio"_s, &finestra, &lista, 1);
    immagine.setPicture(0);
    EXPECT_EQ(immagine.Picture(), 0);
    immagine.resize(16, 16);
    EXPECT_NE(aMezzo(immagine), QColor(Qt::red));
}

TEST_F(GraficaTest, ABorderCanBeShownOrNot)
{
    Immagine immagine(u"img"_s, &finestra);
    EXPECT_EQ(immagine.BorderStyle(), 0);
    immagine.setBorderStyle(1);
    EXPECT_EQ(immagine.BorderStyle(), 1);
    EXPECT_EQ(erroreDi([&] { immagine.setBorderStyle(2); }), 380);
    EXPECT_EQ(immagine.BorderStyle(), 1);
}

TEST_F(GraficaTest, AnImageWithKeyboardSupportIsClickedWithTheSpaceBar)
{
    Immagine immagine(u"imgCasella"_s, &finestra, &lista, 1);
    immagine.resize(20, 20);
    int volte = 0;
    immagine.Click.collega([&] { ++volte; });
    finestra.mostraAttiva();
    immagine.setFocusPolicy(Qt::StrongFocus);
    immagine.setFocus();
    ASSERT_TRUE(immagine.hasFocus());
    QTest::keyClick(&immagine, Qt::Key_Space);
    EXPECT_EQ(volte, 0) << "the focus alone must not make it a button";
    immagine.clearFocus();
    immagine.move(20, 20);
    const QImage senza = finestra.grab().toImage();
    immagine.conTastiera();
    QTest::keyClick(&finestra, Qt::Key_Tab);
    ASSERT_TRUE(immagine.hasFocus());
    EXPECT_NE(finestra.grab().toImage(), senza) << "the focus must be visible";
    immagine.clearFocus();
    EXPECT_EQ(finestra.grab().toImage(), senza);
    immagine.setFocus();
    QTest::keyClick(&immagine, Qt::Key_Space);
    EXPECT_EQ(volte, 1);
    QTest::keyClick(&immagine, Qt::Key_A);
    EXPECT_EQ(volte, 1);
    QKeyEvent ripetuto(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
    QApplication::sendEvent(&immagine, &ripetuto);
    EXPECT_EQ(volte, 1) << "a held key must click once";
    QTest::keyClick(&immagine, Qt::Key_Return);
    EXPECT_EQ(volte, 2);
}

TEST_F(GraficaTest, OnAPictureWithACheckMarkEnterGoesToTheWindow)
{
    Pulsante predefinito(u"pulOK"_s, &finestra, u"OK"_s);
    finestra.setPredefinito(&predefinito);
    int confermata = 0;
    predefinito.Click.collega([&] { ++confermata; });
    Immagine immagine(u"imgCasella"_s, &finestra, &lista, 1);
    int volte = 0;
    immagine.Click.collega([&] { ++volte; });
    immagine.conTastiera();
    immagine.conSpunta(2);
    finestra.mostraAttiva();
    immagine.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&immagine, Qt::Key_Return);
    EXPECT_EQ(volte, 0);
    EXPECT_EQ(confermata, 1);
    QTest::keyClick(&immagine, Qt::Key_Space);
    EXPECT_EQ(volte, 1);
}

TEST_F(GraficaTest, APictureIsAButtonToAScreenReaderOnceItTakesAClick)
{
    Immagine immagine(u"img"_s, &finestra, &lista, 1);
    Etichetta etichetta(u"lbl"_s, &finestra, u"STOP"_s);
    QAccessibleInterface *disegno = QAccessible::queryAccessibleInterface(&immagine);
    QAccessibleInterface *scritta = QAccessible::queryAccessibleInterface(&etichetta);
    EXPECT_EQ(disegno->role(), QAccessible::Graphic);
    EXPECT_EQ(scritta->role(), QAccessible::StaticText);
    EXPECT_EQ(scritta->text(QAccessible::Name), u"STOP"_s);
    QStringList visti;
    immagine.MouseDown.collega(
        [&](int pulsante, int, double, double) { visti << u"giù %1"_s.arg(pulsante); });
    immagine.MouseUp.collega([&](int, int, double, double) { visti << u"su"_s; });
    etichetta.Click.collega([&] { visti << u"click"_s; });
    EXPECT_EQ(disegno->role(), QAccessible::PushButton);
    EXPECT_EQ(scritta->role(), QAccessible::PushButton);
    const QString premi = QAccessibleActionInterface::pressAction();
    disegno->actionInterface()->doAction(premi);
    scritta->actionInterface()->doAction(premi);
    EXPECT_EQ(visti, (QStringList{u"giù 1"_s, u"su"_s, u"click"_s}));
    etichetta.setEnabled(false);
    scritta->actionInterface()->doAction(premi);
    EXPECT_EQ(visti.size(), 3);
}

TEST_F(GraficaTest, TheCheckMarkIsReadFromThePicture)
{
    Immagine immagine(u"imgCasella"_s, &finestra, &lista, 1);
    immagine.Click.collega([&] { immagine.setPicture(3 - immagine.Picture()); });
    immagine.conSpunta(2);
    QAccessibleInterface *casella = QAccessible::queryAccessibleInterface(&immagine);
    EXPECT_EQ(casella->role(), QAccessible::CheckBox);
    EXPECT_TRUE(casella->state().checkable);
    EXPECT_FALSE(casella->state().checked);
    casella->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(casella->state().checked);
}

TEST_F(GraficaTest, ALabelRaisesChangeOnlyWhenItsTextChanges)
{
    Etichetta etichetta(u"lblFile"_s, &finestra, u"uno"_s);
    int volte = 0;
    etichetta.Change.collega([&] { ++volte; });
    etichetta.setCaption(u"due"_s);
    etichetta.setCaption(u"due"_s);
    EXPECT_EQ(volte, 1);
    EXPECT_TRUE(etichetta.setProperty("Caption", u"<b>tre</b>"_s));
    EXPECT_EQ(etichetta.Caption(), u"<b>tre</b>"_s);
    EXPECT_EQ(volte, 2);
}

TEST_F(GraficaTest, AShapeLetsTheMouseThrough)
{
    Immagine sotto(u"img"_s, &finestra);
    sotto.setGeometry(0, 0, 50, 50);
    Forma sopra(u"shp"_s, &finestra);
    sopra.setGeometry(0, 0, 50, 50);
    finestra.mostraAttiva();
    int volte = 0;
    sotto.Click.collega([&] { ++volte; });
    QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {}, {20, 20});
    EXPECT_EQ(volte, 1);
}

TEST_F(GraficaTest, ADrawingStaysUntilItIsCleared)
{
    Superficie superficie(u"imgCam"_s, &finestra);
    superficie.resize(40, 30);
    finestra.mostraAttiva();
    superficie.Riempi({0, 0, 40, 30}, Qt::blue);
    EXPECT_EQ(aMezzo(superficie), QColor(Qt::blue));
    finestra.Nascondi();
    finestra.Mostra();
    EXPECT_EQ(aMezzo(superficie), QColor(Qt::blue));
    superficie.resize(10, 10);
    superficie.resize(40, 30);
    EXPECT_EQ(superficie.disegno().pixelColor(30, 20), QColor(Qt::blue));
    superficie.Pulisci();
    EXPECT_NE(aMezzo(superficie), QColor(Qt::blue));
}

TEST_F(GraficaTest, ADrawingMadeBeforeTheFirstShowingIsKept)
{
    Superficie superficie(u"imgCam"_s, &finestra);
    superficie.resize(40, 30);
    superficie.Riempi({0, 0, 40, 30}, Qt::blue);
    finestra.mostraAttiva();
    EXPECT_EQ(aMezzo(superficie), QColor(Qt::blue));
}

TEST_F(GraficaTest, AFilledRectangleCoversExactlyItsArea)
{
    Superficie superficie(u"imgCam"_s, &finestra);
    superficie.resize(40, 30);
    superficie.Pulisci();
    superficie.Riempi({10, 10, 5, 5}, Qt::blue);
    superficie.Riempi({-10, -10, 500, 12}, Qt::red);
    const QImage &disegno = superficie.disegno();
    EXPECT_EQ(disegno.pixelColor(10, 10), QColor(Qt::blue));
    EXPECT_EQ(disegno.pixelColor(14, 14), QColor(Qt::blue));
    EXPECT_EQ(disegno.pixelColor(15, 14).alpha(), 0);
    EXPECT_EQ(disegno.pixelColor(9, 10).alpha(), 0);
    EXPECT_EQ(disegno.pixelColor(39, 1), QColor(Qt::red));
    EXPECT_EQ(disegno.pixelColor(39, 2).alpha(), 0);
}

TEST_F(GraficaTest, PrintedTextIsDrawn)
{
    Superficie superficie(u"imgCam"_s, &finestra);
    superficie.resize(200, 50);
    superficie.Pulisci();
    const QImage vuota = superficie.disegno();
    superficie.Stampa(u"Attendere..."_s);
    EXPECT_NE(superficie.disegno(), vuota);
}

TEST_F(GraficaTest, ASurfaceInPixelsReportsTheMouseInPixels)
{
    Superficie superficie(u"imgCam"_s, &finestra, Superficie::Scala::Pixel);
    superficie.setGeometry(0, 0, 100, 100);
    finestra.mostraAttiva();
    QList<double> visti;
    superficie.MouseDown.collega([&](int, int, double x, double y) { visti = {x, y}; });
    QTest::mouseClick(&superficie, Qt::LeftButton, {}, {7, 9});
    EXPECT_EQ(visti, (QList<double>{7, 9}));
}

// A widget on a screen with two physical pixels to a logical one.
template <class Base>
class Fine : public Base
{
public:
    using Base::Base;

protected:
    int metric(QPaintDevice::PaintDeviceMetric misura) const override
    {
        if (misura == QPaintDevice::PdmDevicePixelRatio)
            return 2;
        if (misura == QPaintDevice::PdmDevicePixelRatioScaled)
            return static_cast<int>(2 * QPaintDevice::devicePixelRatioFScale());
        return Base::metric(misura);
    }
};

TEST_F(GraficaTest, PicturesKeepSharpEdgesOnAScreenWithMorePixels)
{
    Fine<Superficie> superficie(u"imgCam"_s, &finestra);
    superficie.resize(40, 30);
    QImage immagine(20, 30, QImage::Format_RGB32);
    immagine.fill(Qt::red);
    superficie.Dipingi({0, 0}, immagine);
    superficie.Riempi({20, 0, 20, 30}, Qt::blue);
    const QImage visto = superficie.grab().toImage();
    ASSERT_EQ(visto.size(), QSize(80, 60));
    for (int x = 0; x < 80; ++x)
        EXPECT_EQ(visto.pixelColor(x, 30), QColor(x < 40 ? Qt::red : Qt::blue)) << x;
}

TEST_F(GraficaTest, TextIsDrawnInTheResolutionOfTheScreen)
{
    Fine<Superficie> superficie(u"imgCam"_s, &finestra);
    superficie.resize(200, 50);
    QImage atteso = superficie.grab().toImage();
    ASSERT_EQ(atteso.size(), QSize(400, 100));
    superficie.Stampa(u"Fallito"_s);
    const QImage visto = superficie.grab().toImage();
    EXPECT_NE(visto, atteso);
    QPainter pittore(&atteso);
    pittore.setPen(superficie.palette().color(QPalette::WindowText));
    pittore.setFont(superficie.font());
    pittore.drawText(QRect(4, 4, 200, 50), Qt::AlignLeft | Qt::AlignTop, u"Fallito"_s);
    pittore.end();
    // The text was blended twice, so rounding errors add up.
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 400; ++x)
            ASSERT_NEAR(qGreen(visto.pixel(x, y)), qGreen(atteso.pixel(x, y)), 3) << x << ',' << y;
}

TEST_F(GraficaTest, ADrawingIsKeptOnAScreenWithMorePixels)
{
    struct Mobile : Superficie
    {
        using Superficie::Superficie;
        int scala = 1;
        int metric(PaintDeviceMetric misura) const override
        {
            if (misura == PdmDevicePixelRatio)
                return scala;
            if (misura == PdmDevicePixelRatioScaled)
                return static_cast<int>(scala * devicePixelRatioFScale());
            return Superficie::metric(misura);
        }
    };
    Mobile superficie(u"imgCam"_s, &finestra);
    superficie.resize(40, 30);
    superficie.Riempi({10, 10, 5, 5}, Qt::blue);
    superficie.scala = 2;
    superficie.Riempi({30, 10, 5, 5}, Qt::red);
    const QImage visto = superficie.grab().toImage();
    EXPECT_EQ(visto.pixelColor(20, 20), QColor(Qt::blue));
    EXPECT_EQ(visto.pixelColor(29, 29), QColor(Qt::blue));
    EXPECT_NE(visto.pixelColor(30, 29), QColor(Qt::blue));
    EXPECT_EQ(visto.pixelColor(60, 20), QColor(Qt::red));
    EXPECT_EQ(visto.pixelColor(69, 29), QColor(Qt::red));
}

TEST_F(GraficaTest, TheCornersOfAShapeAreComplete)
{
    Fine<Forma> forma(u"shp"_s, &finestra);
    forma.setColori(Qt::transparent, Qt::blue, 0, 2);
    forma.resize(30, 20);
    QImage visto(60, 40, QImage::Format_ARGB32_Premultiplied);
    visto.setDevicePixelRatio(2);
    visto.fill(Qt::white);
    forma.render(&visto);
    for (const QPoint angolo : {QPoint(0, 0), QPoint(59, 0), QPoint(0, 39), QPoint(59, 39)})
        EXPECT_EQ(visto.pixelColor(angolo), QColor(Qt::blue));
}
