// What the condition dialog shows, and how its panels go on and off.
#include "tests/conditional/BancoImpCondizioni.h"

#include "tests/support/Attesa.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QRegularExpression>

using testing::ElementsAre;
using testing::IsEmpty;

using FrmImpCondizioni = BancoImpCondizioni;

TEST_F(FrmImpCondizioni, HasItsTextsItsLimitsAndItsRows)
{
    EXPECT_EQ(dialogo.Caption(), u"Imposta condizione di avvio"_s);
    EXPECT_EQ(dialogo.lblSpiegazione.Caption(),
              u"Imposta la condizione che si deve verificare per avviare la lista "_s);
    const QStringList titoli = {u"Orario"_s, u"Sensori a ultrasuoni"_s, u"Temperatura"_s,
                                u"Batterie logica"_s, u"Batterie motori"_s};
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(dialogo.frame(i).Caption(), titoli[i - 1]);
        EXPECT_EQ(dialogo.frame(i).objectName(), u"frame(%1)"_s.arg(i));
        EXPECT_EQ(dialogo.imgCasella(i).objectName(), u"imgCasella(%1)"_s.arg(i));
        EXPECT_EQ(dialogo.imgCasella(i).Tag(), u"-1"_s);
    }
    EXPECT_EQ(dialogo.opzSens(1).Caption(), u"Destro"_s);
    EXPECT_EQ(dialogo.opzSens(2).Caption(), u"Centrale"_s);
    EXPECT_EQ(dialogo.opzSens(3).Caption(), u"Sinistro"_s);
    EXPECT_EQ(dialogo.SuGiuOre.Min(), -1);
    EXPECT_EQ(dialogo.SuGiuOre.Max(), 24);
    for (const SuGiu *barra : {&dialogo.SuGiuMinuti, &dialogo.SuGiuSecondi}) {
        EXPECT_EQ(barra->Min(), -1);
        EXPECT_EQ(barra->Max(), 60);
    }
    const QStringList livelli = {u"Scarichissime"_s, u"Scariche"_s, u"Medie"_s, u"Cariche"_s,
                                 u"Carichissime"_s};
    for (const Combo *combo : {&dialogo.cbBattLogica, &dialogo.cbBattMotori}) {
        ASSERT_EQ(combo->ListCount(), 5);
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(combo->List(i), livelli[i]);
    }
    EXPECT_EQ(dialogo.lblOre.Caption(), u"Ore"_s);
    EXPECT_EQ(dialogo.lblMinuti.Caption(), u"Minuti"_s);
    EXPECT_EQ(dialogo.lblSecondi.Caption(), u"Secondi"_s);
    EXPECT_EQ(dialogo.fraSample2.Caption(), u"Esempio 2"_s);
    EXPECT_EQ(dialogo.fraSample3.Caption(), u"Esempio 3"_s);
    EXPECT_EQ(dialogo.fraSample4.Caption(), u"Esempio 4"_s);
    EXPECT_THAT(attivi(), IsEmpty());
}

TEST_F(FrmImpCondizioni, NamesTheListWithoutItsBlanks)
{
    apri(u"no,no,25,no,no"_s, u"un ballo.sqm"_s);
    EXPECT_EQ(dialogo.lblSpiegazione.Caption(),
              u"Imposta la condizione che si deve verificare per avviare la lista "
              "\"un ballo.sqm\""_s);
}

TEST_F(FrmImpCondizioni, NamesALongListWithItsFirst30Characters)
{
    apri(u"no,no,25,no,no"_s, u"una lista che ha un nome lunghissimo.sqm"_s);
    EXPECT_EQ(dialogo.lblSpiegazione.Caption(),
              u"Imposta la condizione che si deve verificare per avviare la lista "
              "\"una lista che ha un nome lu...\""_s);
}

TEST_F(FrmImpCondizioni, TellsThatTheDefaultConditionIsSet)
{
    apriPredefinita();
    EXPECT_EQ(dialogo.lblSpiegazione.Caption(),
              u"Imposta la condizione predefinita per l'avvio automatico delle liste"_s);
}

TEST_F(FrmImpCondizioni, ActivatesThePanelsOfTheFieldsThatAreSet)
{
    struct Caso
    {
        QString condizione;
        QList<int> pannelli;
    };
    for (const Caso &caso : {Caso{u"no,no,no,no,no"_s, {}},
                             {u"07:30:00,no,no,no,no"_s, {1}},
                             {u"no,101,no,no,no"_s, {2}},
                             {u"no,no,0,no,no"_s, {3}},
                             {u"no,no,no,0,no"_s, {4}},
                             {u"no,no,no,no,4"_s, {5}},
                             {u"07:30:00,no,40,no,1"_s, {1, 3, 5}},
                             {u"23:59:59,111,25,2,3"_s, {1, 2, 3, 4, 5}}}) {
        apri(caso.condizione);
        EXPECT_EQ(attivi(), caso.pannelli) << caso.condizione.toStdString();
        if (!caso.pannelli.isEmpty()) {
            EXPECT_EQ(dialogo.focusWidget(), &dialogo.pulOK);
        }
        for (int i = 1; i <= 5; ++i)
            EXPECT_EQ(dialogo.imgCasella(i).Tag(), u"True"_s);
        dialogo.Scarica();
    }
}

TEST_F(FrmImpCondizioni, ShowsWhatTheFieldsSay)
{
    apri(u"07:30:09,101,9,2,0"_s);
    EXPECT_EQ(orario(), u"7:30:9"_s);
    EXPECT_EQ(dialogo.SuGiuOre.Value(), 7);
    EXPECT_EQ(dialogo.SuGiuMinuti.Value(), 30);
    EXPECT_EQ(dialogo.SuGiuSecondi.Value(), 9);
    EXPECT_EQ(sensori(), u"101"_s);
    EXPECT_EQ(dialogo.cbTemperatura.ListCount(), 41);
    EXPECT_EQ(dialogo.cbTemperatura.Text(), u"9"_s);
    EXPECT_EQ(dialogo.cbBattLogica.Text(), u"Medie"_s);
    EXPECT_EQ(dialogo.cbBattMotori.Text(), u"Scarichissime"_s);
}

TEST_F(FrmImpCondizioni, FieldsThatAreNotSetShowTheirPresets)
{
    apri(u"no,no,no,no,no"_s);
    EXPECT_EQ(orario(), u"9:5:7"_s) << "the clock, without padding";
    EXPECT_EQ(dialogo.SuGiuOre.Value(), 9);
    EXPECT_EQ(dialogo.SuGiuMinuti.Value(), 5);
    EXPECT_EQ(dialogo.SuGiuSecondi.Value(), 7);
    EXPECT_EQ(sensori(), u"000"_s);
    EXPECT_EQ(dialogo.cbTemperatura.Text(), u"25"_s);
    EXPECT_EQ(dialogo.cbBattLogica.Text(), u"Cariche"_s);
    EXPECT_EQ(dialogo.cbBattMotori.Text(), u"Cariche"_s);
    EXPECT_THAT(attivi(), IsEmpty());
}

TEST_F(FrmImpCondizioni, MidnightToTheSecondMeansNoTime)
{
    apri(u"00:00:00,no,no,no,no"_s);
    EXPECT_THAT(attivi(), IsEmpty());
    EXPECT_EQ(orario(), u"9:5:7"_s);
    dialogo.Scarica();
    apri(u"00:00:00,no,30,no,no"_s);
    EXPECT_THAT(attivi(), ElementsAre(3)) << "the other panel keeps OK enabled";
    dialogo.Scarica();
    apri(u"00:00:01,no,no,no,no"_s);
    EXPECT_THAT(attivi(), ElementsAre(1));
    EXPECT_EQ(orario(), u"0:0:1"_s);
}

TEST_F(FrmImpCondizioni, TheDefaultModeShowsTheRowThatIsCurrent)
{
    lstFile.AddItem(u"ballo.sqm"_s);
    lstCondizioni.AddItem(u"no,no,12,no,no"_s);
    lstFile.setListIndex(0);
    apriPredefinita();
    EXPECT_THAT(attivi(), ElementsAre(3));
    EXPECT_EQ(dialogo.cbTemperatura.Text(), u"12"_s);
}

// No field of an empty text is "no".
TEST_F(FrmImpCondizioni, WithoutACurrentRowAllPanelsAreActiveAndShowZero)
{
    apriPredefinita();
    EXPECT_THAT(attivi(), ElementsAre(1, 2, 3, 4, 5));
    EXPECT_EQ(orario(), u"0:0:0"_s);
    EXPECT_EQ(sensori(), u"000"_s);
    EXPECT_EQ(dialogo.cbTemperatura.ListIndex(), 0);
    EXPECT_EQ(dialogo.cbBattLogica.ListIndex(), 0);
    EXPECT_EQ(dialogo.cbBattMotori.ListIndex(), 0);
}

TEST_F(FrmImpCondizioni, AnotherActivationDoublesNothing)
{
    apri(u"no,no,12,no,no"_s);
    const QString spiegazione = dialogo.lblSpiegazione.Caption();
    Finestra altra(u"frmAltra"_s, u"Altra"_s);
    altra.Mostra();
    altra.activateWindow();
    ASSERT_TRUE(aspetta([&] { return altra.isActiveWindow(); }));
    dialogo.cbTemperatura.setListIndex(3);
    dialogo.activateWindow();
    ASSERT_TRUE(aspetta([&] { return dialogo.cbTemperatura.ListIndex() == 12; }));
    EXPECT_EQ(dialogo.lblSpiegazione.Caption(), spiegazione);
    EXPECT_EQ(dialogo.cbTemperatura.ListCount(), 41);
    EXPECT_THAT(attivi(), ElementsAre(3));
}

TEST_F(FrmImpCondizioni, ComesAgainWithItsDesignValues)
{
    apri(u"12:34:56,111,0,0,0"_s);
    dialogo.Scarica();
    EXPECT_EQ(dialogo.Tag(), QString());
    EXPECT_EQ(dialogo.lblSpiegazione.Caption(),
              u"Imposta la condizione che si deve verificare per avviare la lista "_s);
    apri(u"no,no,no,no,no"_s, u"guardia.sqm"_s);
    EXPECT_TRUE(dialogo.lblSpiegazione.Caption().endsWith(u"lista \"guardia.sqm\""_s));
    EXPECT_THAT(attivi(), IsEmpty());
    EXPECT_EQ(sensori(), u"000"_s);
    EXPECT_EQ(dialogo.cbTemperatura.ListCount(), 41);
    EXPECT_EQ(dialogo.cbBattLogica.ListCount(), 5);
}

TEST_F(FrmImpCondizioni, AnyTextOpensAndMakesAConditionInOrder)
{
    const QStringList cattivi = {u"12:00:00"_s,
                                 u"12:00:00,"_s,
                                 u"no"_s,
                                 u"n"_s,
                                 u",,,,"_s,
                                 u"1"_s,
                                 u"ab:cd:ef,xyz,gradi,tanto,poco"_s,
                                 u"99:99:99,999,99,9,9"_s,
                                 u"24:60:60,222,41,5,5"_s,
                                 u"-1:-1:-1,-1-,-5,-,-"_s,
                                 u"  ,   ,  , , "_s,
                                 u"no,no,no,no,no,no,no"_s,
                                 u"No,NO,nO,no,no"_s,
                                 QString(10000, u'9'),
                                 QString(10000, u','),
                                 QString(10000, u'x') + u",no,25,no,no"_s,
                                 u"07:30:00,"_s + QString(10000, u'1'),
                                 u"\u20AC\u0660\u0661,\u0661\u0661\u0661,\u0662,\u0663,\u0664"_s};
    const QRegularExpression inOrdine(u"^(no|([01]\\d|2[0-3]):[0-5]\\d:[0-5]\\d),(no|[01]{3}),"
                                      "(no|[1-3]?\\d|40),(no|[0-4]),(no|[0-4])$"_s);
    for (const QString &cattivo : cattivi) {
        apri(cattivo);
        if (dialogo.pulOK.Enabled())
            clicca(dialogo.pulOK);
        else
            EXPECT_THAT(attivi(), IsEmpty());
        const QString dopo = condizione();
        EXPECT_TRUE(dopo == cattivo || inOrdine.match(dopo).hasMatch()) << dopo.toStdString();
        EXPECT_TRUE(!dialogo.Visible() || attivi().isEmpty()) << cattivo.left(40).toStdString();
        dialogo.Scarica();
    }
    EXPECT_THAT(messaggi.visti(), IsEmpty());
}

TEST_F(FrmImpCondizioni, AClickOnAFrameOrItsBoxSwitchesThePanel)
{
    apri(u"no,no,no,no,no"_s);
    for (int i = 1; i <= 5; ++i) {
        clicca(dialogo.frame(i), QPoint(60, 20));
        EXPECT_THAT(attivi(), ElementsAre(i));
        EXPECT_EQ(dialogo.focusWidget(), &dialogo.pulOK);
        clicca(dialogo.frame(i), QPoint(60, 20));
        EXPECT_THAT(attivi(), IsEmpty());
        clicca(dialogo.imgCasella(i));
        EXPECT_THAT(attivi(), ElementsAre(i));
        clicca(dialogo.imgCasella(i));
        EXPECT_THAT(attivi(), IsEmpty());
    }
}

TEST_F(FrmImpCondizioni, OkIsEnabledWhileAnyPanelIsActive)
{
    apri(u"no,no,no,no,no"_s);
    clicca(dialogo.imgCasella(3));
    clicca(dialogo.imgCasella(5));
    clicca(dialogo.imgCasella(3));
    EXPECT_THAT(attivi(), ElementsAre(5));
    clicca(dialogo.imgCasella(5));
    EXPECT_THAT(attivi(), IsEmpty());
}

TEST_F(FrmImpCondizioni, EveryPanelIsReachedByTheKeyboard)
{
    apri(u"no,no,no,no,no"_s);
    QStringList giro;
    dialogo.imgCasella(1).setFocus();
    do {
        giro += dialogo.focusWidget()->objectName();
        tasto(Qt::Key_Tab);
    } while (dialogo.focusWidget() != &dialogo.imgCasella(1) && giro.size() < 50);
    EXPECT_EQ(giro, (QStringList{u"imgCasella(1)"_s, u"txtOre"_s, u"txtMinuti"_s, u"txtSecondi"_s,
                                 u"imgCasella(2)"_s, u"opzSens(3)"_s, u"opzSens(2)"_s,
                                 u"opzSens(1)"_s, u"imgCasella(3)"_s, u"cbTemperatura"_s,
                                 u"imgCasella(4)"_s, u"cbBattLogica"_s, u"imgCasella(5)"_s,
                                 u"cbBattMotori"_s, u"pulAnnulla"_s}));
    for (int i = 1; i <= 5; ++i) {
        dialogo.imgCasella(i).setFocus(Qt::TabFocusReason);
        tasto(Qt::Key_Space);
        EXPECT_THAT(attivi(), ElementsAre(i));
        dialogo.imgCasella(i).setFocus(Qt::TabFocusReason);
        tasto(Qt::Key_Space);
        EXPECT_THAT(attivi(), IsEmpty());
    }
}

TEST_F(FrmImpCondizioni, WithoutAnActivePanelTheFirstControlHasTheFocusAtEveryShowing)
{
    apri(u"no,no,no,no,no"_s);
    EXPECT_EQ(dialogo.focusWidget(), &dialogo.imgCasella(1));
    clicca(dialogo.imgCasella(4));
    EXPECT_EQ(dialogo.focusWidget(), &dialogo.pulOK);
    dialogo.Scarica();
    apri(u"no,no,no,no,no"_s);
    EXPECT_EQ(dialogo.focusWidget(), &dialogo.imgCasella(1));
}

TEST_F(FrmImpCondizioni, ATimeThatCountsAsNoneLeavesTheFocusOnTheFirstControl)
{
    // Midnight switches its panel on and off again while the dialog opens.
    apri(u"00:00:00,no,no,no,no"_s);
    EXPECT_THAT(attivi(), IsEmpty());
    EXPECT_EQ(dialogo.focusWidget(), &dialogo.imgCasella(1));
    tasto(Qt::Key_Return);
    EXPECT_TRUE(dialogo.Visible()) << "there is nothing to be stored yet";
}

TEST_F(FrmImpCondizioni, SwitchingTheLastPanelOffNeverLeavesTheFocusOnCancel)
{
    apri(u"no,no,no,no,no"_s);
    for (int i = 1; i <= 5; ++i) {
        clicca(dialogo.frame(i), QPoint(60, 20));
        ASSERT_EQ(dialogo.focusWidget(), &dialogo.pulOK);
        clicca(dialogo.frame(i), QPoint(60, 20));
        EXPECT_EQ(dialogo.focusWidget(), &dialogo.imgCasella(1));
    }
}

TEST_F(FrmImpCondizioni, EveryControlHasANameForScreenReaders)
{
    apri(u"no,no,no,no,no"_s);
    const auto nome = [](QWidget &controllo) {
        return QAccessible::queryAccessibleInterface(&controllo)->text(QAccessible::Name);
    };
    for (int i = 1; i <= 5; ++i)
        EXPECT_EQ(nome(dialogo.imgCasella(i)), dialogo.frame(i).Caption());
    EXPECT_EQ(nome(dialogo.txtOre), u"Ore"_s);
    EXPECT_EQ(nome(dialogo.txtMinuti), u"Minuti"_s);
    EXPECT_EQ(nome(dialogo.txtSecondi), u"Secondi"_s);
    EXPECT_EQ(dialogo.cbTemperatura.accessibleName(), u"Temperatura"_s);
    EXPECT_EQ(dialogo.cbBattLogica.accessibleName(), u"Batterie logica"_s);
    EXPECT_EQ(dialogo.cbBattMotori.accessibleName(), u"Batterie motori"_s);
    EXPECT_EQ(dialogo.imgCasella(2).accessibleDescription(), u"non attivo"_s);
    clicca(dialogo.imgCasella(2));
    EXPECT_EQ(dialogo.imgCasella(2).accessibleDescription(), u"attivo"_s);
}

TEST_F(FrmImpCondizioni, TheSensorPanelChoosesTheCentreWhereNothingIsTicked)
{
    apri(u"no,no,no,no,no"_s);
    clicca(dialogo.imgCasella(2));
    EXPECT_EQ(sensori(), u"010"_s);
    EXPECT_THAT(attivi(), ElementsAre(2));
}

TEST_F(FrmImpCondizioni, TickingASensorSwitchesItsPanelOn)
{
    for (int k = 1; k <= 3; ++k) {
        apri(u"no,no,no,no,no"_s);
        clicca(dialogo.opzSens(k));
        EXPECT_THAT(attivi(), ElementsAre(2));
        EXPECT_EQ(sensori(), QString(u"000"_s).replace(k - 1, 1, u'1'));
        dialogo.Scarica();
    }
}

TEST_F(FrmImpCondizioni, UntickingTheLastSensorSwitchesThePanelOff)
{
    apri(u"no,101,no,no,no"_s);
    clicca(dialogo.opzSens(1));
    EXPECT_EQ(sensori(), u"001"_s);
    EXPECT_THAT(attivi(), ElementsAre(2));
    clicca(dialogo.opzSens(3));
    EXPECT_EQ(sensori(), u"000"_s) << "the centre is not ticked anew";
    EXPECT_THAT(attivi(), IsEmpty());
}

TEST_F(FrmImpCondizioni, ThePanelSwitchedOffKeepsItsTicks)
{
    apri(u"no,100,no,no,no"_s);
    clicca(dialogo.imgCasella(2));
    EXPECT_THAT(attivi(), IsEmpty());
    EXPECT_EQ(sensori(), u"100"_s);
    clicca(dialogo.imgCasella(2));
    EXPECT_EQ(sensori(), u"100"_s);
    clicca(dialogo.imgCasella(2));
    clicca(dialogo.opzSens(2));
    EXPECT_THAT(attivi(), ElementsAre(2));
    EXPECT_EQ(sensori(), u"110"_s);
}

TEST_F(FrmImpCondizioni, ASensorFieldOfZerosStaysActiveWithNothingTicked)
{
    apri(u"no,000,no,no,no"_s);
    EXPECT_THAT(attivi(), ElementsAre(2));
    EXPECT_EQ(sensori(), u"000"_s);
}

TEST_F(FrmImpCondizioni, ChoosingInAComboBoxSwitchesItsPanelOn)
{
    const std::initializer_list<std::pair<int, Combo *>> combo = {
        {3, &dialogo.cbTemperatura}, {4, &dialogo.cbBattLogica}, {5, &dialogo.cbBattMotori}};
    for (const auto &[pannello, scelta] : combo) {
        apri(u"no,no,no,no,no"_s);
        const int prima = scelta->ListIndex();
        scelta->setFocus();
        tasto(Qt::Key_Down);
        EXPECT_EQ(scelta->ListIndex(), prima + 1);
        EXPECT_THAT(attivi(), ElementsAre(pannello));
        EXPECT_EQ(dialogo.focusWidget(), &dialogo.pulOK);
        // Once it is on, a choice leaves it on.
        scelta->setFocus();
        tasto(Qt::Key_Up);
        EXPECT_THAT(attivi(), ElementsAre(pannello));
        EXPECT_EQ(dialogo.focusWidget(), scelta);
        dialogo.Scarica();
    }
}

TEST_F(FrmImpCondizioni, ChoosingTheSameRowAnewSwitchesThePanelOn)
{
    apri(u"no,no,no,no,no"_s);
    clicca(dialogo.cbTemperatura);
    QAbstractItemView *lista = dialogo.cbTemperatura.view();
    ASSERT_TRUE(aspetta([&] { return lista->isVisible(); }));
    QTest::keyClick(lista, Qt::Key_Return);
    ASSERT_TRUE(aspetta([&] { return !lista->isVisible(); }));
    EXPECT_EQ(dialogo.cbTemperatura.Text(), u"25"_s);
    EXPECT_THAT(attivi(), ElementsAre(3));
}
