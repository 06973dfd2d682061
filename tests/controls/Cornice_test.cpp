#include "controls/Cornice.h"

#include "controls/CasellaTesto.h"
#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

namespace {

// How many pixels of a picture have this colour or one close to it.
int punti(const QImage &visto, const QColor &colore)
{
    const auto vicino = [](int uno, int altro) { return std::abs(uno - altro) < 40; };
    int quanti = 0;
    for (int y = 0; y < visto.height(); ++y) {
        for (int x = 0; x < visto.width(); ++x) {
            const QColor c = visto.pixelColor(x, y);
            quanti += vicino(c.red(), colore.red()) && vicino(c.green(), colore.green()) &&
                      vicino(c.blue(), colore.blue());
        }
    }
    return quanti;
}

struct CorniceTest : ::testing::Test
{
    CorniceTest() { cornice.setGeometry(10, 10, 200, 80); }

    FinestraDiProva finestra;
    Cornice cornice{u"frame(1)"_s, &finestra, u"Sensori a ultrasuoni"_s};
    int volte = 0;
    std::function<void()> conta = [this] { ++volte; };
};

} // namespace

TEST_F(CorniceTest, ItsCaptionIsAProperty)
{
    EXPECT_EQ(cornice.Caption(), u"Sensori a ultrasuoni"_s);
    EXPECT_TRUE(cornice.setProperty("Caption", u"Orario"_s));
    EXPECT_EQ(cornice.Caption(), u"Orario"_s);
}

TEST_F(CorniceTest, TheColourOfItsCaptionCanBeSetAndSeen)
{
    EXPECT_EQ(cornice.ForeColor(), cornice.palette().color(QPalette::WindowText));
    finestra.mostraAttiva();
    const QColor rosso(0xD0, 0x00, 0x00);
    EXPECT_EQ(punti(cornice.grab().toImage(), rosso), 0);
    EXPECT_TRUE(cornice.setProperty("ForeColor", rosso));
    EXPECT_EQ(cornice.ForeColor(), rosso);
    EXPECT_GT(punti(cornice.grab().toImage(), rosso), 20);
}

TEST_F(CorniceTest, ItsColourIsNotInheritedByItsContents)
{
    const Etichetta etichetta(u"lblOre"_s, &cornice, u"Ore"_s);
    const QPalette prima = etichetta.palette();
    cornice.setForeColor(Qt::red);
    EXPECT_EQ(etichetta.palette(), prima);
}

TEST_F(CorniceTest, OnADarkGroundAColouredCaptionGetsALightPlate)
{
    QPalette scura;
    scura.setColor(QPalette::Base, QColor(0x2A, 0x2C, 0x30));
    finestra.setPalette(scura);
    finestra.mostraAttiva();
    cornice.setForeColor(QColor(0x00, 0x00, 0xC0));
    EXPECT_GT(punti(cornice.grab().toImage(), QColor(0xEE, 0xF4, 0xF8)), 200);
}

TEST_F(CorniceTest, AClickOnItRaisesClickAndAClickOnItsContentsDoesNot)
{
    CasellaTesto testo(u"txtOre"_s, &cornice);
    testo.setGeometry(100, 30, 50, 30);
    cornice.Click.collega(conta);
    finestra.mostraAttiva();
    const auto clicca = [&](QPoint punto, Qt::MouseButton pulsante = Qt::LeftButton) {
        QTest::mouseClick(finestra.windowHandle(), pulsante, {}, cornice.mapTo(&finestra, punto));
    };
    clicca({40, 20});
    EXPECT_EQ(volte, 1) << "a click on the caption";
    clicca({40, 60});
    EXPECT_EQ(volte, 2);
    clicca({120, 45});
    EXPECT_EQ(volte, 2) << "a click on the text box must not count";
    clicca({40, 60}, Qt::RightButton);
    EXPECT_EQ(volte, 2);
}
