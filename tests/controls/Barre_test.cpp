#include "controls/Barre.h"

#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

namespace {

QIcon icona()
{
    QPixmap pezza(32, 32);
    pezza.fill(Qt::red);
    return QIcon(pezza);
}

struct BarreTest : ::testing::Test
{
    FinestraDiProva finestra;
    ListaImmagini lista{{icona(), icona(), icona()}};
};

} // namespace

TEST_F(BarreTest, AToolbarButtonIsFoundByItsNameWithItsProperties)
{
    BarraDiPulsanti barra(u"BarraPulsanti"_s, &finestra, &lista);
    barra.aggiungi(1, u"Connetti"_s);
    barra.aggiungiSeparatore();
    barra.aggiungi(3, u"Camera"_s);
    auto *terzo = finestra.findChild<QWidget *>(u"BarraPulsanti.Buttons(3)"_s);
    ASSERT_TRUE(terzo);
    EXPECT_EQ(terzo->property("Image").toInt(), 3);
    EXPECT_EQ(terzo->property("toolTip").toString(), u"Camera"_s);
    EXPECT_EQ(barra.Buttons(2).Image(), 0);
}

TEST_F(BarreTest, TheToolbarReportsWhichButtonWasClicked)
{
    BarraDiPulsanti barra(u"BarraPulsanti"_s, &finestra, &lista);
    barra.aggiungi(1, u"uno"_s);
    barra.aggiungiSeparatore();
    barra.aggiungi(3, u"tre"_s);
    barra.resize(300, 50);
    finestra.mostraAttiva();
    QList<int> visti;
    barra.ButtonClick.collega([&](PulsanteBarra &pulsante) { visti += pulsante.Image(); });
    QTest::mouseClick(&barra.Buttons(3), Qt::LeftButton);
    QTest::mouseClick(&barra.Buttons(1), Qt::LeftButton);
    QTest::mouseClick(&barra.Buttons(2), Qt::LeftButton);
    barra.Buttons(1).setEnabled(false);
    QTest::mouseClick(&barra.Buttons(1), Qt::LeftButton);
    EXPECT_EQ(visti, (QList<int>{3, 1}));
}

TEST_F(BarreTest, AButtonOrAPictureThatDoesNotExistGivesError380)
{
    BarraDiPulsanti barra(u"BarraPulsanti"_s, &finestra, &lista);
    barra.aggiungi(1, u"uno"_s);
    for (const int cattivo : {0, -1, 2})
        EXPECT_EQ(erroreDi([&] { barra.Buttons(cattivo); }), 380) << cattivo;
    for (const int cattivo : {0, -1, 4})
        EXPECT_EQ(erroreDi([&] { barra.Buttons(1).setImage(cattivo); }), 380) << cattivo;
    EXPECT_EQ(barra.Buttons(1).Image(), 1);
}

TEST_F(BarreTest, AStatusPanelIsFoundByItsNameWithItsText)
{
    BarraDiStato barra(u"BarraStato"_s, &finestra, {100, 50, 0});
    barra.setPanels(3, u"Tessaro sta andando avanti"_s);
    auto *terzo = finestra.findChild<QWidget *>(u"BarraStato.Panels(3)"_s);
    ASSERT_TRUE(terzo);
    EXPECT_EQ(terzo->property("text").toString(), u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(barra.Panels(3), u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(barra.Panels(1), QString());
}

TEST_F(BarreTest, APanelThatDoesNotExistGivesError380)
{
    BarraDiStato barra(u"BarraStato"_s, &finestra, {100, 50, 0});
    for (const int cattivo : {0, -1, 4}) {
        EXPECT_EQ(erroreDi([&] { barra.setPanels(cattivo, u"x"_s); }), 380) << cattivo;
        EXPECT_EQ(erroreDi([&] { barra.Panels(cattivo); }), 380) << cattivo;
    }
}

TEST_F(BarreTest, TheProgressBarAcceptsOnlyValuesWithinItsLimits)
{
    BarraDiCaricamento barra(u"BarraCaricamento"_s, &finestra, 1, 100000);
    EXPECT_EQ(barra.Value(), 1);
    for (const int buono : {1, 2, 99999, 100000}) {
        EXPECT_TRUE(barra.setProperty("Value", buono));
        EXPECT_EQ(barra.Value(), buono);
    }
    for (const int cattivo : {0, -1, 100001}) {
        EXPECT_EQ(erroreDi([&] { barra.setValore(cattivo); }), 380) << cattivo;
        EXPECT_EQ(barra.Value(), 100000);
    }
    EXPECT_EQ(barra.property("Min").toInt(), 1);
    EXPECT_EQ(barra.property("Max").toInt(), 100000);
}
