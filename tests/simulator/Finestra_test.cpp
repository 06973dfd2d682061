// The simulator's window, worked as a person would.
#include "simulator/Simulatore.h"
#include "simulator/robot/Stanza.h"
#include "simulator/window/FinestraSimulatore.h"
#include "tests/simulator/RobotInProva.h"
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
struct Finestra : testing::Test
{
    Simulatore sim;
    std::unique_ptr<FinestraSimulatore> finestra;
    QByteArray mandati;

    void SetUp() override
    {
        ASSERT_TRUE(sim.apri());
        finestra = std::make_unique<FinestraSimulatore>(sim);
        finestra->show();
        QObject::connect(&sim.robot(), &Robot::telegramma, finestra.get(),
                         [this](const QByteArray &byte) { mandati += byte; });
        sim.robot().ricevi(b({3, 1, 1}));
        mandati.clear();
    }
    template <typename T>
    T *trova(const char16_t *nome)
    {
        T *controllo = finestra->findChild<T *>(QString::fromUtf16(nome));
        EXPECT_NE(controllo, nullptr) << QString::fromUtf16(nome).toStdString();
        return controllo;
    }
    QString testo(const char16_t *nome) { return trova<QLabel>(nome)->text(); }
    QStringList diario()
    {
        const QAbstractItemModel *modello = trova<QAbstractItemView>(u"elencoDiario")->model();
        QStringList righe;
        for (int i = 0; i < modello->rowCount(); ++i)
            righe << modello->index(i, 2).data().toString();
        return righe;
    }
    void trascina(const QPointF &da, const QPointF &a)
    {
        QWidget *stanza = trova<QWidget>(u"quadroStanza");
        const auto manda = [&](QEvent::Type tipo, const QPointF &dove, Qt::MouseButtons giu) {
            QMouseEvent evento(tipo, dove, stanza->mapToGlobal(dove), Qt::LeftButton, giu,
                               Qt::NoModifier);
            QApplication::sendEvent(stanza, &evento);
        };
        manda(QEvent::MouseButtonPress, da, Qt::LeftButton);
        manda(QEvent::MouseMove, a, Qt::LeftButton);
        manda(QEvent::MouseButtonRelease, a, Qt::NoButton);
    }
    // Where a point of the room lies in the picture of it.
    QPointF nelQuadro(double x, double y)
    {
        const QWidget *stanza = trova<QWidget>(u"quadroStanza");
        const double scala = std::min(stanza->width() / (Stanza::larghezza + 18),
                                      stanza->height() / (Stanza::profondita + 18));
        return {(stanza->width() - Stanza::larghezza * scala) / 2 + x * scala,
                (stanza->height() - Stanza::profondita * scala) / 2 + y * scala};
    }
};
} // namespace

TEST_F(Finestra, TheSlidersAreTheSensors)
{
    trova<QSlider>(u"cursoreTemperatura")->setValue(37);
    trova<QSlider>(u"cursoreBatteriaLogica")->setValue(50);
    trova<QSlider>(u"cursoreBatteriaMotori")->setValue(201);
    EXPECT_EQ(mandati, b({31, 37, 32, 50, 180, 32, 50, 201}));
    EXPECT_EQ(testo(u"lblTemperatura"), u"37 °C"_s);
    EXPECT_EQ(testo(u"lblBatteriaLogica"), u"50  scarichissima"_s);
    EXPECT_EQ(testo(u"lblBatteriaMotori"), u"201  carichissima"_s);
}

TEST_F(Finestra, TheSwitchesAreTheObstacles)
{
    trova<QCheckBox>(u"opzUltrasuoniDestro")->click();
    trova<QCheckBox>(u"opzUltrasuoniSinistro")->click();
    trova<QCheckBox>(u"opzUltrasuoniDestro")->click();
    trova<QCheckBox>(u"opzUltrasuoniCentrale")->click();
    EXPECT_EQ(mandati, b({33, 255, 0, 0, 33, 255, 0, 255, 33, 0, 0, 255, 33, 0, 255, 255}));
}

TEST_F(Finestra, ChangesFromElsewhereAreShownAndNotSentAgain)
{
    sim.robot().impostaTemperatura(12);
    EXPECT_EQ(trova<QSlider>(u"cursoreTemperatura")->value(), 12);
    EXPECT_EQ(mandati, b({31, 12}));
}

TEST_F(Finestra, SilenceAndNoiseAreSwitches)
{
    auto *silenzio = trova<QAbstractButton>(u"pulSilenzio");
    auto *disturbi = trova<QAbstractButton>(u"pulDisturbi");
    EXPECT_EQ(silenzio->text(), u"Silenzio"_s);
    EXPECT_EQ(disturbi->text(), u"Disturbi"_s);
    silenzio->click();
    EXPECT_TRUE(sim.guasti().silenzio);
    silenzio->click();
    EXPECT_FALSE(sim.guasti().silenzio);
    disturbi->click();
    EXPECT_GT(sim.guasti().sporchi, 0.0);
    disturbi->click();
    EXPECT_DOUBLE_EQ(sim.guasti().sporchi, 0.0);
}

TEST_F(Finestra, TheCableIsPulledAndPutBack)
{
    auto *stacca = trova<QAbstractButton>(u"pulStacca");
    stacca->click();
    EXPECT_TRUE(sim.percorso().isEmpty());
    EXPECT_EQ(testo(u"lblLinea"), u"Cavo staccato"_s);
    EXPECT_EQ(stacca->text(), u"Riattacca il cavo"_s);
    stacca->click();
    EXPECT_EQ(testo(u"lblLinea"), sim.percorso() + u": in attesa"_s);
}

TEST_F(Finestra, TheLinesSpeedIsChosen)
{
    trova<QComboBox>(u"cbVelocitaLinea")->setCurrentIndex(4);
    EXPECT_EQ(sim.baud(), 0);
}

TEST_F(Finestra, TheDiaryGrowsWithoutThePolls)
{
    sim.robot().ricevi(b({27, 70, 19, 65, 1, 200}));
    EXPECT_EQ(diario(), (QStringList{u"ApriSessione"_s, u"Sessione aperta"_s, u"BaseAvanti v=1"_s,
                                     u"Byte 200 non capito"_s}));
    trova<QCheckBox>(u"opzNascondiRichieste")->click();
    EXPECT_TRUE(diario().contains(u"RichiediSensori"_s));
    trova<QAbstractButton>(u"pulSvuotaDiario")->click();
    EXPECT_TRUE(diario().isEmpty());
}

TEST_F(Finestra, TheStripTellsWhatTheRobotDoes)
{
    EXPECT_EQ(testo(u"lblSessione"), u"aperta"_s);
    sim.robot().ricevi(b({19, 66, 2, 19, 2, 5, 19, 97, 80}));
    EXPECT_EQ(testo(u"lblBase"), u"indietro forte"_s);
    EXPECT_EQ(testo(u"lblProgramma"), u"2"_s);
    EXPECT_EQ(trova<QLabel>(u"lblVoce")->toolTip(), u"Ciao"_s);
    sim.robot().ricevi(b({4}));
    EXPECT_EQ(testo(u"lblSessione"), u"chiusa"_s);
}

TEST_F(Finestra, AThingIsDraggedThroughTheRoom)
{
    const QPointF prima = sim.robot().stanza().cose().constFirst().centro;
    trascina(nelQuadro(prima.x(), prima.y()), nelQuadro(100, 100));
    EXPECT_NEAR(sim.robot().stanza().cose().constFirst().centro.x(), 100, 1.0);
    EXPECT_NEAR(sim.robot().stanza().cose().constFirst().centro.y(), 100, 1.0);
}

TEST_F(Finestra, TheRobotIsDraggedAndStaysInsideTheWalls)
{
    const StatoRobot &s = sim.robot().stato();
    trascina(nelQuadro(s.x, s.y), nelQuadro(-50, 150));
    EXPECT_NEAR(s.x, Stanza::raggioRobot, 0.01);
    EXPECT_NEAR(s.y, 150, 1.0);
}

TEST_F(Finestra, TheRoomIsRedrawnWhereTheRobotHasMoved)
{
    QWidget *stanza = trova<QWidget>(u"quadroStanza");
    const QImage prima = stanza->grab().toImage();
    sim.robot().impostaPosa(300, 100, 45);
    EXPECT_NE(stanza->grab().toImage(), prima);
}

TEST_F(Finestra, TheRobotsLedsArmsAndSwitchesAreSeen)
{
    QWidget *robot = trova<QWidget>(u"quadroRobot");
    QImage prima = robot->grab().toImage();
    for (const QByteArray &comando : {b({19, 37, 8}), b({19, 131, 255}), b({19, 140, 255}),
                                      b({19, 139, 255}), b({19, 161, 1})}) {
        sim.robot().ricevi(comando);
        const QImage dopo = robot->grab().toImage();
        EXPECT_NE(dopo, prima) << comando.toHex(' ').toStdString();
        prima = dopo;
    }
    for (const QByteArray &comando :
         {b({19, 129, 2}), b({19, 130, 2}), b({19, 73, 4}), b({19, 33, 1}), b({19, 35, 3})}) {
        sim.robot().ricevi(comando);
        sim.robot().avanza(1000);
        const QImage dopo = robot->grab().toImage();
        EXPECT_NE(dopo, prima) << comando.toHex(' ').toStdString();
        prima = dopo;
    }
}

TEST_F(Finestra, NoTextIsWiderThanItsPlace)
{
    QApplication::processEvents();
    for (const QLabel *scritta : finestra->findChildren<QLabel *>()) {
        if (scritta->pixmap().isNull() && scritta->isVisible()) {
            EXPECT_LE(scritta->fontMetrics().horizontalAdvance(scritta->text()), scritta->width())
                << scritta->text().toStdString();
        }
    }
    for (const QAbstractButton *pulsante : finestra->findChildren<QAbstractButton *>()) {
        if (pulsante->isVisible()) {
            EXPECT_GE(pulsante->width(), pulsante->sizeHint().width())
                << pulsante->text().toStdString();
        }
    }
}
