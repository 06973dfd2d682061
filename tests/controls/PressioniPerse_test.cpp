#include "controls/Barre.h"
#include "controls/Pulsanti.h"
#include "tests/support/Controlli.h"

#include <QDialog>

using namespace Qt::StringLiterals;

namespace {

class PressioniPerse : public ::testing::Test
{
protected:
    PressioniPerse()
    {
        barra.aggiungi(1, u"Opzioni"_s);
        pulsante.Click.collega([this] { ++scatti; });
        barra.ButtonClick.collega([this](PulsanteBarra &) { ++scatti; });
        pulsante.setGeometry(10, 100, 100, 30);
        finestra.mostraAttiva();
    }
    ~PressioniPerse() override { EXPECT_EQ(scatti, 0); }

    QPoint posto(const QWidget &controllo) const
    {
        return controllo.mapTo(&finestra, controllo.rect().center());
    }
    void premi(const QAbstractButton &quale)
    {
        QTest::mousePress(finestra.windowHandle(), Qt::LeftButton, {}, posto(quale));
        ASSERT_TRUE(quale.isDown());
    }
    void lascia(const QAbstractButton &quale)
    {
        QTest::mouseRelease(finestra.windowHandle(), Qt::LeftButton, {}, posto(quale));
    }

    FinestraDiProva finestra;
    ListaImmagini immagini{std::vector<QIcon>(8)};
    BarraDiPulsanti barra{u"barra"_s, &finestra, &immagini};
    Pulsante pulsante{u"pulsante"_s, &finestra, u"Salva"_s};
    int scatti = 0;
};

TEST_F(PressioniPerse, ADialogThatComesUpReleasesTheButtonThatIsHeld)
{
    premi(pulsante);
    QDialog dialogo(&finestra);
    dialogo.open();
    EXPECT_TRUE(attendi([this] { return !pulsante.isDown(); }));
    dialogo.close();
    lascia(pulsante);
}

TEST_F(PressioniPerse, ADialogThatComesUpReleasesTheToolbarsButton)
{
    premi(barra.Buttons(1));
    QDialog dialogo(&finestra);
    dialogo.open();
    EXPECT_TRUE(attendi([this] { return !barra.Buttons(1).isDown(); }));
    dialogo.close();
    lascia(barra.Buttons(1));
}

TEST_F(PressioniPerse, AnotherProgramInFrontReleasesTheButtonThatIsHeld)
{
    premi(pulsante);
    const AltroProgramma altro;
    EXPECT_TRUE(attendi([this] { return !pulsante.isDown(); }));
    lascia(pulsante);
}

TEST_F(PressioniPerse, AWindowThatIsHiddenReleasesTheButtonThatIsHeld)
{
    premi(pulsante);
    finestra.Nascondi();
    EXPECT_FALSE(pulsante.isDown());
    finestra.Mostra();
    lascia(pulsante);
}

} // namespace
