// What a screen reader finds, the keyboard reaches, and the eye can read.
#include "tests/console/ConsoleInProva.h"
#include "tests/console/TutteLeAzioni.h"
#include "tests/support/Contrasto.h"

#include <QAccessible>
#include <QLineEdit>
#include <QToolButton>
#include <gmock/gmock.h>

namespace {

QString nomeAccessibile(QWidget &controllo)
{
    QAccessibleInterface *interfaccia = QAccessible::queryAccessibleInterface(&controllo);
    return interfaccia ? interfaccia->text(QAccessible::Name) : QString();
}

// What the user acts on or reads from.
QList<QWidget *> controlli(frmPrincipale &f)
{
    QList<QWidget *> tutti;
    for (int i = 1; i <= 10; ++i)
        tutti << &f.imgFreccia(i);
    for (int i = 1; i <= 7; ++i)
        tutti << &f.BarraPulsanti.Buttons(i);
    for (int i = 0; i <= 3; ++i)
        tutti << &f.imgfr(i);
    tutti << &f.BarraPulsanti << &f.BarraStato << &f.BarraCaricamento << &f.Image1 << &f.Image2
          << &f.imgFoto << &f.imgTermometro << f.cbModGiro.lineEdit() << &f.opzBase << &f.opzBraccia
          << &f.opzTesta << &f.cbVelocità << &f.cbModGiro << &f.cbStepV << &f.cbStepO << &f.lblStop
          << &f.ImgTesta << &f.lblAccLED << &f.lblSpLED << &f.imgLEDPos << &f.lblOn << &f.lblOff
          << &f.mnuComparsaOn << &f.mnuComparsaOff << &f.lblScattaFoto << &f.imgToolSx
          << &f.imgToolDx << &f.imgPinzaAperta << &f.imgPinzaChiusa << &f.txtValFrase << &f.SuGiu1
          << &f.pulFrase << &f.txtValSuono << &f.SuGiu2 << &f.pulSuono << &f.corMex << &f.cbMex
          << &f.pulPlayMex << &f.pulRegistraMex << &f.pulStopMex << &f.pulCancMex << &f.cbProgrammi
          << &f.imgPlayProg << &f.imgStopProg << &f.imgSensori << &f.shpUltrasuoniDx
          << &f.shpUltrasuoniCe << &f.shpUltrasuoniSx << &f.imgBattLogica << &f.imgBattMotori
          << &f.lblTemperatura;
    return tutti;
}

} // namespace

TEST(AccessibilitaConsole, EveryControlHasAName)
{
    ConsoleInProva c;
    c.mostra();
    for (QWidget *controllo : controlli(c.finestra))
        EXPECT_NE(nomeAccessibile(*controllo), QString()) << controllo->objectName().toStdString();
}

TEST(AccessibilitaConsole, AToolTipOrACaptionIsTheName)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    for (QWidget *controllo : controlli(f)) {
        if (!controllo->toolTip().isEmpty()) {
            EXPECT_EQ(controllo->accessibleName(), controllo->toolTip())
                << controllo->objectName().toStdString();
        }
    }
    EXPECT_EQ(nomeAccessibile(f.pulFrase), u"Pronuncia frase"_s);
    EXPECT_EQ(nomeAccessibile(f.opzTesta), u"Controlla la testa"_s);
}

TEST(AccessibilitaConsole, NothingThatCanBePressedOrTypedIntoIsNameless)
{
    ConsoleInProva c;
    c.mostra();
    for (QWidget *controllo : c.finestra.findChildren<QWidget *>()) {
        const bool agibile = qobject_cast<QAbstractButton *>(controllo) ||
                             qobject_cast<QLineEdit *>(controllo) ||
                             qobject_cast<Immagine *>(controllo);
        if (agibile && controllo->window() == &c.finestra) {
            EXPECT_NE(nomeAccessibile(*controllo), QString())
                << controllo->objectName().toStdString();
        }
    }
}

TEST(AccessibilitaConsole, ToolsOfOneToolTipAreToldApartByTheirDescription)
{
    ConsoleInProva c;
    EXPECT_EQ(c.finestra.imgToolSx.accessibleDescription(), u"Tool sinistro"_s);
    EXPECT_EQ(c.finestra.imgToolDx.accessibleDescription(), u"Tool destro"_s);
}

TEST(AccessibilitaConsole, TheTemperatureIsReadOut)
{
    ConsoleInProva c;
    c.mostra();
    Etichetta &temperatura = c.finestra.lblTemperatura;
    EXPECT_EQ(nomeAccessibile(temperatura), u"Temperatura"_s);
    temperatura.setCaption(u"24°"_s);
    EXPECT_EQ(nomeAccessibile(temperatura), u"Temperatura 24°"_s);
    temperatura.setCaption({});
    EXPECT_EQ(nomeAccessibile(temperatura), u"Temperatura"_s);
}

TEST(AccessibilitaConsole, TabGoesRoundFromTopToBottom)
{
    ConsoleInProva c;
    c.mostra();
    QStringList giro;
    for (int i = 0; i < 11; ++i) {
        c.tasto(Qt::Key_Tab);
        giro << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(giro, (QStringList{u"txtValFrase"_s, u"pulFrase"_s, u"txtValSuono"_s, u"pulSuono"_s,
                                 u"BarraPulsanti.Buttons(1)"_s, u"BarraPulsanti.Buttons(2)"_s,
                                 u"BarraPulsanti.Buttons(4)"_s, u"BarraPulsanti.Buttons(5)"_s,
                                 u"BarraPulsanti.Buttons(6)"_s, u"BarraPulsanti.Buttons(7)"_s,
                                 u"ImgTesta"_s}));
}

TEST(AccessibilitaConsole, EveryTextStandsOutFromItsGround)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    frmPrincipale &f = c.finestra;
    f.lblTemperatura.setCaption(u"24°"_s);
    c.scriviPannello(u"Tool destro acceso"_s);
    for (CasellaOpzione *modo : {&f.opzBraccia, &f.opzTesta, &f.opzBase}) {
        modo->setValue(true);
        EXPECT_THAT(pocoLeggibili(f), testing::IsEmpty());
    }
    for (const bool accendi : {true, false}) {
        apriComparsa(c, true, accendi);
        EXPECT_THAT(pocoLeggibili(f), testing::IsEmpty());
        c.clicca(f.ImgTesta, Qt::LeftButton, QPoint(8, 80));
    }
}

TEST(AccessibilitaConsole, SoItIsInTheSplashAndInTheDialogs)
{
    ConsoleInProva c;
    c.mostra();
    for (Finestra *finestra : std::initializer_list<Finestra *>{
             &c.finestra.splash, &c.finestra.opzioni, &c.finestra.impostaPorta}) {
        finestra->Mostra();
        EXPECT_THAT(pocoLeggibili(*finestra), testing::IsEmpty())
            << finestra->objectName().toStdString();
        finestra->Scarica();
    }
}

TEST(AccessibilitaConsole, EveryControlIsFoundByItsName)
{
    ConsoleInProva c;
    for (const QString &nome : {u"BarraPulsanti"_s,
                                u"BarraPulsanti.Buttons(1)"_s,
                                u"BarraStato"_s,
                                u"BarraStato.Panels(3)"_s,
                                u"BarraCaricamento"_s,
                                u"lstImgCamera"_s,
                                u"opzBase"_s,
                                u"opzBraccia"_s,
                                u"opzTesta"_s,
                                u"imgFreccia(1)"_s,
                                u"imgFreccia(10)"_s,
                                u"Image1"_s,
                                u"Image2"_s,
                                u"lblOpzioni"_s,
                                u"cbVelocità"_s,
                                u"cbModGiro"_s,
                                u"cbStepV"_s,
                                u"cbStepO"_s,
                                u"lblStop"_s,
                                u"shpStop"_s,
                                u"ImgTesta"_s,
                                u"imgfr(0)"_s,
                                u"imgfr(3)"_s,
                                u"lblAccLED"_s,
                                u"Shape3"_s,
                                u"lblSpLED"_s,
                                u"Shape4"_s,
                                u"lblOn"_s,
                                u"shCappelloOn"_s,
                                u"mnuComparsaOn"_s,
                                u"lblOff"_s,
                                u"shCappelloOff"_s,
                                u"mnuComparsaOff"_s,
                                u"lblLED"_s,
                                u"imgLEDPos"_s,
                                u"imgToolSx"_s,
                                u"imgToolDx"_s,
                                u"imgPinzaAperta"_s,
                                u"imgPinzaChiusa"_s,
                                u"lblScattaFoto"_s,
                                u"Shape12"_s,
                                u"txtValFrase"_s,
                                u"SuGiu1"_s,
                                u"pulFrase"_s,
                                u"txtValSuono"_s,
                                u"SuGiu2"_s,
                                u"pulSuono"_s,
                                u"corMex"_s,
                                u"cbMex"_s,
                                u"pulPlayMex"_s,
                                u"pulRegistraMex"_s,
                                u"pulStopMex"_s,
                                u"pulCancMex"_s,
                                u"cbProgrammi"_s,
                                u"imgPlayProg"_s,
                                u"imgStopProg"_s,
                                u"imgSensori"_s,
                                u"shpUltrasuoniDx"_s,
                                u"shpUltrasuoniCe"_s,
                                u"shpUltrasuoniSx"_s,
                                u"lblTemperatura"_s,
                                u"imgBattMotori"_s,
                                u"imgBattLogica"_s,
                                u"imgLivBattMotori"_s,
                                u"imgLivBattLogica"_s,
                                u"lblProva"_s,
                                u"tmrElabInput"_s,
                                u"tmrSensori"_s,
                                u"tmrControllaConn"_s,
                                u"tmrChiusuraAutomatica"_s,
                                u"tmrAnimazFrecce"_s,
                                u"COM"_s})
        EXPECT_NE(c.finestra.findChild<QObject *>(nome), nullptr) << nome.toStdString();
    for (int i = 1; i <= 11; ++i)
        EXPECT_NE(c.finestra.findChild<QLabel *>(u"Label%1"_s.arg(i)), nullptr) << i;
    EXPECT_EQ(c.finestra.objectName(), u"frmPrincipale"_s);
}
