// The head's picture: sides, hover arrows, colour lists, pressed labels.
#include "tests/console/TutteLeAzioni.h"

#include <gmock/gmock.h>

namespace {

bool comparsa(ConsoleInProva &c, bool accendi)
{
    frmPrincipale &f = c.finestra;
    const bool visibile = accendi ? f.mnuComparsaOn.isVisible() : f.mnuComparsaOff.isVisible();
    EXPECT_EQ((accendi ? f.lblOn : f.lblOff).isVisible(), visibile);
    EXPECT_EQ((accendi ? f.shCappelloOn : f.shCappelloOff).isVisible(), visibile);
    return visibile;
}

bool frecceVisibili(ConsoleInProva &c)
{
    const bool visibile = c.finestra.imgfr(0).isVisible();
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(c.finestra.imgfr(i).isVisible(), visibile);
    return visibile;
}

} // namespace

TEST(TestaConsole, TheMouseOverAHalfNamesTheRobotsSide)
{
    ConsoleInProva c;
    c.mostra();
    Superficie &testa = c.finestra.ImgTesta;
    c.muovi(testa, QPoint(5, 80));
    EXPECT_EQ(testa.Tag(), u"destro"_s);
    c.muovi(testa, QPoint(testa.width() / 2 - 1, 80));
    EXPECT_EQ(testa.Tag(), u"destro"_s);
    c.muovi(testa, QPoint(testa.width() / 2, 80));
    EXPECT_EQ(testa.Tag(), u"sinistro"_s);
    c.muovi(testa, QPoint(testa.width() - 1, 80));
    EXPECT_EQ(testa.Tag(), u"sinistro"_s);
}

TEST(TestaConsole, TheBandOfTheTwoLabelsIsNoLedArea)
{
    ConsoleInProva c;
    c.mostra();
    Superficie &testa = c.finestra.ImgTesta;
    EXPECT_EQ(c.finestra.Shape3.Top() + c.finestra.Shape3.Height(), 495);
    c.muovi(testa, QPoint(5, 33)); // 495
    EXPECT_EQ(testa.Tag(), QString());
    EXPECT_FALSE(frecceVisibili(c));
    c.muovi(testa, QPoint(5, 34));
    EXPECT_EQ(testa.Tag(), u"destro"_s);
    EXPECT_TRUE(frecceVisibili(c));
    c.muovi(testa, QPoint(5, 5));
    EXPECT_EQ(testa.Tag(), QString());
}

TEST(TestaConsole, TheArrowsCloseInWhileTheMouseIsOverAHalf)
{
    ConsoleInProva c;
    c.mostra();
    EXPECT_FALSE(frecceVisibili(c));
    c.muovi(c.finestra.ImgTesta, QPoint(5, 80));
    EXPECT_TRUE(frecceVisibili(c));
    EXPECT_TRUE(c.finestra.tmrAnimazFrecce.Enabled());
    const auto posti = [&] {
        QList<double> p;
        for (int i = 0; i <= 3; ++i)
            p << c.finestra.imgfr(i).Left() << c.finestra.imgfr(i).Top();
        return p;
    };
    for (const int s : {30, 60, 90, 120, 150, 180, 210, 0, 30}) {
        const double x1 = s + 30;
        const double x2 = 1000 - s;
        const QList<double> attesi = {x1, 1500.0 - s, x1, s + 300.0, x2, s + 300.0, x2, 1500.0 - s};
        EXPECT_TRUE(aspetta([&] { return posti() == attesi; })) << s;
    }
}

TEST(TestaConsole, AMoveElsewhereEndsTheAnimation)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    // Bare window between two plates, then the position LED.
    for (int giro = 0; giro < 2; ++giro) {
        c.muovi(f.ImgTesta, QPoint(150, 80));
        EXPECT_TRUE(frecceVisibili(c));
        if (giro == 0)
            c.muovi(f, QPoint(399, 200));
        else
            c.muovi(f.imgLEDPos);
        EXPECT_EQ(f.ImgTesta.Tag(), QString());
        EXPECT_TRUE(aspetta([&] { return !f.tmrAnimazFrecce.Enabled(); }));
        EXPECT_FALSE(frecceVisibili(c));
        for (int i = 0; i <= 3; ++i)
            EXPECT_EQ(f.imgfr(i).Left(), 0);
    }
}

TEST(TestaConsole, AMoveOntoALabelLeavesItRunning)
{
    ConsoleInProva c;
    c.mostra();
    c.muovi(c.finestra.ImgTesta, QPoint(150, 80));
    c.muovi(c.finestra.lblAccLED);
    c.muovi(c.finestra.Label3);
    EXPECT_EQ(c.finestra.ImgTesta.Tag(), u"sinistro"_s);
    EXPECT_TRUE(c.finestra.tmrAnimazFrecce.Enabled());
}

TEST(TestaConsole, LeftAndRightButtonBringUpTheirLists)
{
    ConsoleInProva c;
    c.mostra();
    EXPECT_FALSE(comparsa(c, true));
    EXPECT_FALSE(comparsa(c, false));
    const QPoint orecchio(8, 80);
    c.clicca(c.finestra.ImgTesta, Qt::LeftButton, orecchio);
    EXPECT_TRUE(comparsa(c, true));
    EXPECT_FALSE(comparsa(c, false));
    c.clicca(c.finestra.ImgTesta, Qt::RightButton, orecchio);
    EXPECT_FALSE(comparsa(c, true));
    EXPECT_FALSE(comparsa(c, false));
    c.clicca(c.finestra.ImgTesta, Qt::RightButton, orecchio);
    EXPECT_TRUE(comparsa(c, false));
    c.clicca(c.finestra.ImgTesta, Qt::LeftButton, orecchio);
    EXPECT_FALSE(comparsa(c, false));
    EXPECT_FALSE(comparsa(c, true));
}

TEST(TestaConsole, TheMiddleButtonBringsUpNothingButClosesAList)
{
    ConsoleInProva c;
    c.mostra();
    const QPoint orecchio(8, 80);
    c.clicca(c.finestra.ImgTesta, Qt::MiddleButton, orecchio);
    EXPECT_FALSE(comparsa(c, true));
    EXPECT_FALSE(comparsa(c, false));
    c.clicca(c.finestra.ImgTesta, Qt::LeftButton, orecchio);
    c.clicca(c.finestra.ImgTesta, Qt::MiddleButton, orecchio);
    EXPECT_FALSE(comparsa(c, true));
}

TEST(TestaConsole, AClickOnAHoverArrowIsAClickOnTheHead)
{
    ConsoleInProva c;
    c.mostra();
    c.muovi(c.finestra.ImgTesta, QPoint(5, 80));
    c.finestra.tmrAnimazFrecce.setEnabled(false);
    c.clicca(c.finestra.imgfr(0), Qt::RightButton, QPoint(2, 2));
    EXPECT_TRUE(comparsa(c, false));
    c.clicca(c.finestra.imgfr(0), Qt::LeftButton, QPoint(2, 2));
    EXPECT_FALSE(comparsa(c, false));
}

TEST(TestaConsole, HoveringFollowsTheMouseAndSendsNothing)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    const QString parole[] = {u"verde "_s, u"giallo "_s, u"rosso "_s, u"dell'orecchio "_s};
    for (const bool accendi : {true, false}) {
        for (const bool destro : {true, false}) {
            apriComparsa(c, destro, accendi);
            Elenco &lista = accendi ? c.finestra.mnuComparsaOn : c.finestra.mnuComparsaOff;
            for (const int riga : {0, 1, 2, 3, 2, 0}) {
                c.muovi(*lista.viewport(), suRiga(lista, riga));
                EXPECT_EQ(lista.ListIndex(), riga);
                EXPECT_EQ(lista.Tag(), u"SI"_s);
                EXPECT_EQ(c.pannello(), (accendi ? u"Accendi il LED "_s : u"Spegni il LED "_s) +
                                            parole[riga] + (destro ? u"destro"_s : u"sinistro"_s));
            }
            EXPECT_TRUE(lista.isVisible());
            EXPECT_TRUE(c.fuocoACasa());
            c.clicca(c.finestra.ImgTesta, Qt::LeftButton, QPoint(destro ? 8 : 152, 60));
            EXPECT_FALSE(lista.isVisible());
        }
    }
    EXPECT_TRUE(c.mandati().isEmpty());
}

TEST(TestaConsole, EveryPixelOfARowBelongsToIt)
{
    ConsoleInProva c;
    c.mostra();
    apriComparsa(c, true, true);
    Elenco &lista = c.finestra.mnuComparsaOn;
    ASSERT_EQ(lista.ListCount(), 4);
    EXPECT_EQ(lista.visualItemRect(lista.item(3)).bottom(), lista.viewport()->height() - 1);
    for (int y = 0; y < lista.viewport()->height(); ++y) {
        c.muovi(*lista.viewport(), QPoint(20, y));
        EXPECT_EQ(lista.ListIndex(), lista.row(lista.itemAt(20, y))) << y;
    }
}

TEST(TestaConsole, AClickWithoutAHoverActsOnceOnTheRowUnderIt)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    Elenco &lista = c.finestra.mnuComparsaOn;
    // A touch: no movement comes before the press.
    c.muovi(c.finestra.ImgTesta, QPoint(5, 80));
    c.clicca(c.finestra.ImgTesta, Qt::LeftButton, QPoint(5, 80));
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, suRiga(lista, 2));
    EXPECT_EQ(c.mandati(), QList<QByteArray>{b({19, 37, 64})});
    EXPECT_FALSE(lista.isVisible());
}

TEST(TestaConsole, TheSameRowActsAgainAtTheNextShowing)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    Elenco &lista = c.finestra.mnuComparsaOn;
    for (int volta = 0; volta < 2; ++volta) {
        apriComparsa(c, false, true);
        c.muovi(*lista.viewport(), suRiga(lista, 1));
        c.clicca(*lista.viewport(), Qt::LeftButton, suRiga(lista, 1));
        EXPECT_EQ(c.mandati(), QList<QByteArray>{b({19, 37, 2})});
        EXPECT_EQ(c.pannello(), u"LED giallo sinistro acceso"_s);
        EXPECT_FALSE(comparsa(c, true));
    }
}

TEST(TestaConsole, AClickInTheTopBandKnowsNoSide)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.muovi(c.finestra.ImgTesta, QPoint(80, 8));
    c.clicca(c.finestra.ImgTesta, Qt::LeftButton, QPoint(80, 8));
    Elenco &lista = c.finestra.mnuComparsaOn;
    ASSERT_TRUE(lista.isVisible());
    c.muovi(*lista.viewport(), suRiga(lista, 0));
    EXPECT_EQ(c.pannello(), u"Accendi il LED verde "_s);
    c.clicca(*lista.viewport(), Qt::LeftButton, suRiga(lista, 0));
    EXPECT_EQ(c.byteMandati(), b({19, 37, 8}));
    EXPECT_EQ(c.pannello(), u"LED verde  acceso"_s);
}

TEST(TestaConsole, WithoutAConnectionTheListClosesAfterTheMessage)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    apriComparsa(c, true, false);
    Elenco &lista = c.finestra.mnuComparsaOff;
    c.clicca(*lista.viewport(), Qt::LeftButton, suRiga(lista, 3));
    EXPECT_EQ(messaggi.testi(), QStringList(u"Non sono collegato al robot"_s));
    EXPECT_FALSE(comparsa(c, false));
}

TEST(TestaConsole, TheToolsNameThemselvesAtEveryMouseMove)
{
    ConsoleInProva c;
    c.mostra();
    c.muovi(c.finestra.imgToolDx);
    EXPECT_EQ(c.pannello(), u"Tool destro"_s);
    c.muovi(c.finestra.imgToolSx);
    EXPECT_EQ(c.pannello(), u"Tool sinistro"_s);
    c.scriviPannello(u"altro"_s);
    c.muovi(c.finestra.imgToolSx, QPoint(3, 3));
    EXPECT_EQ(c.pannello(), u"Tool sinistro"_s);
}

TEST(TestaConsole, TheLabelsSinkWithTheirShapesAndComeBack)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    frmPrincipale &f = c.finestra;
    struct Caso
    {
        Etichetta &etichetta;
        Forma &forma;
        double left;
        double top;
        double topDopo;
    };
    for (const Caso &t :
         {Caso{f.lblAccLED, f.Shape3, 60, 240, 240}, Caso{f.lblSpLED, f.Shape4, 1140, 240, 240},
          Caso{f.lblScattaFoto, f.Shape12, 4500, 2040, 2040},
          Caso{f.lblStop, f.shpStop, 2490, 3900, 3915}}) {
        SCOPED_TRACE(t.etichetta.objectName().toStdString());
        for (const bool lista : {false, true}) {
            c.attivaLista(lista);
            const double top = lista ? t.topDopo : t.top;
            EXPECT_EQ(t.forma.Left(), t.left);
            EXPECT_EQ(t.forma.Top(), top);
            c.premi(t.etichetta);
            EXPECT_EQ(t.forma.Left(), t.left + 50);
            EXPECT_EQ(t.forma.Top(), top + 50);
            EXPECT_EQ(t.etichetta.Left(), t.left + 50);
            EXPECT_EQ(t.etichetta.Top(), top + 50);
            EXPECT_TRUE(c.mandati().isEmpty());
            c.lascia(t.etichetta);
            EXPECT_EQ(t.forma.Left(), t.left);
            EXPECT_EQ(t.forma.Top(), t.topDopo);
            EXPECT_EQ(t.etichetta.Left(), t.left);
            EXPECT_EQ(t.etichetta.Top(), t.topDopo);
            EXPECT_EQ(c.mandati().isEmpty(), lista);
        }
    }
}

namespace {

std::vector<Etichetta *> etichette(ConsoleInProva &c)
{
    frmPrincipale &f = c.finestra;
    return {&f.lblStop, &f.lblAccLED, &f.lblSpLED, &f.lblScattaFoto};
}

} // namespace

TEST(TestaConsole, EveryPointOfALabelWorks)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    for (Etichetta *etichetta : etichette(c)) {
        SCOPED_TRACE(etichetta->objectName().toStdString());
        // Pressed once, the label of STOP rests a little lower.
        c.clicca(*etichetta);
        const QRect punti = etichetta->rect();
        for (int y = 0; y <= punti.bottom(); ++y) {
            for (const int x : {0, 1, 2, 3, punti.center().x(), punti.right()}) {
                c.frmEditor.lstMosse.Clear();
                c.clicca(*etichetta, Qt::LeftButton, QPoint(x, y));
                ASSERT_EQ(c.frmEditor.mosse().size(), 1) << x << ',' << y;
            }
        }
    }
}

TEST(TestaConsole, APressThatSlidesOffALabelAndComesBackWorks)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    for (Etichetta *etichetta : etichette(c)) {
        SCOPED_TRACE(etichetta->objectName().toStdString());
        c.clicca(*etichetta);
        const QPoint angolo = etichetta->mapTo(&c.finestra, QPoint(0, 0));
        c.frmEditor.lstMosse.Clear();
        c.premi(c.finestra, Qt::LeftButton, angolo + QPoint(10, 10));
        c.muovi(c.finestra, angolo - QPoint(20, 0));
        c.muovi(c.finestra, angolo);
        c.lascia(c.finestra, Qt::LeftButton, angolo);
        EXPECT_EQ(c.frmEditor.mosse().size(), 1);
    }
}

TEST(TestaConsole, AnotherButtonDoesNotTakeALabelsClickAway)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    for (Etichetta *etichetta : etichette(c)) {
        c.frmEditor.lstMosse.Clear();
        c.premi(*etichetta);
        c.premi(*etichetta, Qt::RightButton);
        c.lascia(*etichetta, Qt::RightButton);
        EXPECT_TRUE(c.frmEditor.mosse().isEmpty());
        c.lascia(*etichetta);
        EXPECT_EQ(c.frmEditor.mosse().size(), 1) << etichetta->objectName().toStdString();
    }
}

TEST(TestaConsole, TheListOpensBesideThePointerAndNotOverTheHalfItIsAbout)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    const QRect testa = f.ImgTesta.geometry();
    const QRect meta[] = {{testa.topLeft(), QSize(testa.width() / 2, testa.height())},
                          {testa.center() + QPoint(1, -testa.height() / 2),
                           QSize(testa.width() / 2, testa.height())}};
    for (const bool destro : {true, false}) {
        for (const bool accendi : {true, false}) {
            apriComparsa(c, destro, accendi);
            const Elenco &lista = accendi ? f.mnuComparsaOn : f.mnuComparsaOff;
            const Etichetta &testo = accendi ? f.lblOn : f.lblOff;
            const Forma &cappello = accendi ? f.shCappelloOn : f.shCappelloOff;
            const QRect mia = meta[destro ? 0 : 1];
            for (const QWidget *parte :
                 std::initializer_list<const QWidget *>{&lista, &testo, &cappello}) {
                EXPECT_FALSE(parte->geometry().intersects(mia));
                EXPECT_TRUE(f.rect().contains(parte->geometry()));
            }
            // On the border between the halves: nothing else comes in between.
            EXPECT_EQ(destro ? lista.x() : lista.x() + lista.width(), testa.center().x() + 1);
            c.clicca(f.ImgTesta, Qt::LeftButton, QPoint(destro ? 8 : 152, 80));
            EXPECT_FALSE(lista.isVisible());
        }
    }
}

TEST(TestaConsole, OnTheStraightWayToTheListTheSideStaysWhatItWas)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    for (const bool destro : {true, false}) {
        const QString lato = destro ? u"destro"_s : u"sinistro"_s;
        for (const QPoint da : {QPoint(5, 40), QPoint(40, 140), QPoint(75, 80), QPoint(5, 151)}) {
            const QPoint via(destro ? da.x() : 159 - da.x(), da.y());
            for (int riga = 0; riga < 4; ++riga) {
                c.muovi(f.ImgTesta, via);
                c.clicca(f.ImgTesta, Qt::LeftButton, via);
                ASSERT_TRUE(f.mnuComparsaOn.isVisible());
                const QPoint inizio = f.ImgTesta.mapTo(&f, via);
                const QPoint fine =
                    f.mnuComparsaOn.viewport()->mapTo(&f, suRiga(f.mnuComparsaOn, riga));
                for (int passo = 0; passo <= 60; ++passo)
                    c.muovi(f, inizio + (fine - inizio) * passo / 60);
                EXPECT_EQ(f.ImgTesta.Tag(), lato) << via.x() << ',' << via.y();
                EXPECT_EQ(f.mnuComparsaOn.ListIndex(), riga);
                c.muovi(f.ImgTesta, via);
                c.clicca(f.ImgTesta, Qt::LeftButton, via);
            }
        }
    }
}

TEST(TestaConsole, ADoubleClickOnTheHeadSwitchesNothing)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    for (const QPoint dove : {QPoint(8, 80), QPoint(40, 60), QPoint(79, 120), QPoint(80, 80),
                              QPoint(81, 140), QPoint(120, 100), QPoint(80, 8)}) {
        c.muovi(c.finestra.ImgTesta, dove);
        c.cliccaDoppio(c.finestra.ImgTesta, dove);
        EXPECT_TRUE(c.frmEditor.mosse().isEmpty());
        EXPECT_FALSE(comparsa(c, true)) << "the second press closes it: " << dove.x();
    }
    // The hand is not steady: the second press is a pixel farther, on the list.
    c.muovi(c.finestra.ImgTesta, QPoint(79, 100));
    c.clicca(c.finestra.ImgTesta, Qt::LeftButton, QPoint(79, 100));
    Elenco &lista = c.finestra.mnuComparsaOn;
    ASSERT_TRUE(comparsa(c, true));
    QMouseEvent seconda(QEvent::MouseButtonDblClick, QPointF(1, 30),
                        lista.viewport()->mapToGlobal(QPointF(1, 30)), Qt::LeftButton,
                        Qt::LeftButton, {});
    // A release puts the clock of the test's mouse on by more than a double click's time.
    seconda.setTimestamp(static_cast<quint64>(QTest::lastMouseTimestamp - 400));
    QApplication::sendEvent(lista.viewport(), &seconda);
    EXPECT_TRUE(c.frmEditor.mosse().isEmpty());
    EXPECT_TRUE(comparsa(c, true));
}

TEST(TestaConsole, ADoubleClickOnALabelOrAPictureIsOneClick)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    frmPrincipale &f = c.finestra;
    std::vector<QWidget *> tutti(
        {&f.imgPinzaAperta, &f.imgPinzaChiusa, &f.pulPlayMex, &f.imgPlayProg, &f.imgStopProg});
    for (Etichetta *etichetta : etichette(c))
        tutti.push_back(etichetta);
    for (QWidget *controllo : tutti) {
        c.frmEditor.lstMosse.Clear();
        c.cliccaDoppio(*controllo);
        EXPECT_EQ(c.frmEditor.mosse().size(), 1) << controllo->objectName().toStdString();
    }
    // What acts on the press acts twice.
    c.frmEditor.lstMosse.Clear();
    c.cliccaDoppio(f.imgFreccia(5));
    EXPECT_EQ(c.frmEditor.mosse().size(), 2);
}

TEST(TestaConsole, ARightPressOnARowDoesNothingWhetherOrNotItIsTheCurrentOne)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    Elenco &lista = c.finestra.mnuComparsaOn;
    for (const bool corrente : {false, true}) {
        apriComparsa(c, true, true);
        // A touch: no movement comes before the press.
        lista.setTag(u"SI"_s);
        if (corrente)
            c.muovi(*lista.viewport(), suRiga(lista, 2));
        for (const Qt::MouseButton pulsante : {Qt::RightButton, Qt::MiddleButton})
            QTest::mouseClick(lista.viewport(), pulsante, {}, suRiga(lista, 2));
        EXPECT_TRUE(lista.isVisible());
        EXPECT_TRUE(c.frmEditor.mosse().isEmpty());
        c.clicca(c.finestra.ImgTesta, Qt::LeftButton, QPoint(8, 80));
    }
}

TEST(TestaConsole, APressThatEndsOutsideTheLabelDoesNotAct)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premi(c.finestra.lblScattaFoto);
    c.lascia(c.finestra, Qt::LeftButton, QPoint(399, 400));
    EXPECT_TRUE(c.mandati().isEmpty());
    EXPECT_EQ(c.finestra.Shape12.Left(), 4500);
}
