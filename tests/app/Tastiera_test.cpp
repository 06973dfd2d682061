// Everything that the mouse can do can be done with the keyboard, in every window.
#include "tests/app/Tastiera.h"

#include "controls/Messaggi.h"
#include "tests/app/TutteLeFinestre.h"

#include <QAbstractButton>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

// For each window its controls that have their own key, in the whole window or in the named
// control.
const QHash<QString, QHash<QString, QString>> conTasto = {
    {u"frmPrincipale"_s,
     {{u"imgFreccia(1)"_s, u"freccia su"_s},
      {u"imgFreccia(2)"_s, u"freccia a sinistra"_s},
      {u"imgFreccia(3)"_s, u"freccia a destra"_s},
      {u"imgFreccia(4)"_s, u"freccia giù"_s},
      // These lie on ImgTesta: a click on one of them, or on a colour, is a click on ImgTesta.
      {u"imgfr(0)"_s, u"menu, LED"_s},
      {u"imgfr(1)"_s, u"menu, LED"_s},
      {u"imgfr(2)"_s, u"menu, LED"_s},
      {u"imgfr(3)"_s, u"menu, LED"_s},
      {u"mnuComparsaOn"_s, u"menu, LED"_s},
      {u"mnuComparsaOff"_s, u"menu, LED"_s},
      {u"SuGiu1"_s, u"cifre, in txtValFrase"_s},
      {u"SuGiu2"_s, u"cifre, in txtValSuono"_s}}},
    {u"frmOpzioni"_s, {{u"SuGiu"_s, u"freccia su e giù, in txtPorta"_s}}},
    {u"frmImpostaPorta"_s, {{u"SuGiu"_s, u"freccia su e giù, in txtPorta"_s}}},
    {u"frmImpCondizioni"_s,
     {{u"frame(1)"_s, u"spazio, su imgCasella(1)"_s},
      {u"frame(2)"_s, u"spazio, su imgCasella(2)"_s},
      {u"frame(3)"_s, u"spazio, su imgCasella(3)"_s},
      {u"frame(4)"_s, u"spazio, su imgCasella(4)"_s},
      {u"frame(5)"_s, u"spazio, su imgCasella(5)"_s},
      {u"SuGiuOre"_s, u"freccia su e giù, in txtOre"_s},
      {u"SuGiuMinuti"_s, u"freccia su e giù, in txtMinuti"_s},
      {u"SuGiuSecondi"_s, u"freccia su e giù, in txtSecondi"_s}}},
};

} // namespace

TEST(TastieraFinestre, TheCheckFindsWhatTheKeyboardDoesNotReach)
{
    Finestra finestra(u"frmProva"_s, u"Prova"_s);
    Immagine disegno(u"imgProva"_s, &finestra);
    disegno.setGeometry(10, 10, 30, 30);
    Pulsante sotto(u"pulSotto"_s, &finestra, u"Sotto"_s);
    sotto.setGeometry(10, 80, 80, 30);
    Immagine soloDaVedere(u"imgVista"_s, &finestra);
    Pulsante sopra(u"pulSopra"_s, &finestra, u"Sopra"_s);
    sopra.setGeometry(10, 40, 80, 30);
    disegno.MouseDown.collega([](int, int, double, double) {});
    finestra.Mostra();
    portaAvanti(finestra);
    EXPECT_EQ(irraggiungibili(finestra), QStringList(u"imgProva"_s));
    EXPECT_THAT(irraggiungibili(finestra, {{u"imgProva"_s, u"F2"_s}}), IsEmpty());
    disegno.conTastiera();
    EXPECT_THAT(irraggiungibili(finestra), IsEmpty());
    EXPECT_EQ(fuoriOrdine(finestra), QStringList(u"pulSotto -> pulSopra"_s));
    QWidget::setTabOrder(&disegno, &sopra);
    QWidget::setTabOrder(&sopra, &sotto);
    EXPECT_THAT(fuoriOrdine(finestra), IsEmpty());
}

TEST(TastieraFinestre, WhatTakesAClickIsReachedByTheKeyboard)
{
    TutteLeFinestre tutte;
    QStringList viste;
    tutte.perOgnuna([&](Finestra &finestra, const QString &) {
        viste << finestra.objectName();
        EXPECT_THAT(irraggiungibili(finestra, conTasto[finestra.objectName()]), IsEmpty());
    });
    viste.removeDuplicates();
    EXPECT_EQ(viste, (QStringList{u"frmPrincipale"_s, u"frmOpzioni"_s, u"frmImpostaPorta"_s,
                                  u"frmEditor"_s, u"frmValore"_s, u"frmProcessor"_s,
                                  u"frmImpCondizioni"_s, u"frmEsploraFile"_s, u"frmCamera"_s,
                                  u"frmNomeImmagine"_s, u"frmImmaginiAcquisite"_s}));
}

TEST(TastieraFinestre, TheTabKeyFollowsTheReadingOrder)
{
    TutteLeFinestre tutte;
    tutte.perOgnuna([](Finestra &finestra, const QString &) {
        EXPECT_THAT(giroDiTab(finestra), Not(IsEmpty()));
        EXPECT_THAT(fuoriOrdine(finestra), IsEmpty());
    });
}

TEST(TastieraFinestre, ADoubleClickOnARowHasAKey)
{
    TutteLeFinestre tutte;
    int liste = 0;
    tutte.perOgnuna([&](Finestra &finestra, const QString &) {
        for (const Elenco *lista : finestra.findChildren<Elenco *>()) {
            if (lista->DblClick.collegato()) {
                ++liste;
                EXPECT_TRUE(lista->KeyDown.collegato()) << lista->objectName().toStdString();
            }
        }
    });
    EXPECT_GE(liste, 3);
}

TEST(TastieraFinestre, TheAltKeyGoesToTheMenuBar)
{
    TutteLeFinestre tutte;
    int barre = 0;
    tutte.perOgnuna([&](Finestra &finestra, const QString &) {
        for (QMenuBar *barra : finestra.findChildren<QMenuBar *>()) {
            ++barre;
            QTest::keyClick(finestra.windowHandle(), Qt::Key_Alt);
            EXPECT_NE(barra->activeAction(), nullptr);
            QTest::keyClick(finestra.windowHandle(), Qt::Key_Alt);
        }
    });
    EXPECT_GE(barre, 2);
}

TEST(TastieraFinestre, AMessageIsAnsweredByTheKeyboard)
{
    const std::pair<Pulsanti, QMessageBox::StandardButton> casi[] = {
        {Pulsanti::OK, QMessageBox::Ok},
        {Pulsanti::SiNo, QMessageBox::No},
        {Pulsanti::SiNoAnnulla, QMessageBox::Cancel}};
    for (const auto &[pulsanti, premuto] : casi) {
        RispondiMessaggi messaggi(premuto);
        messaggi.mentreAperto = [](QMessageBox &box) {
            const QHash<QString, QString> soloTesto = {{u"qt_msgbox_label"_s, u"si legge"_s}};
            EXPECT_THAT(irraggiungibili(box, soloTesto), IsEmpty());
            EXPECT_THAT(fuoriOrdine(box), IsEmpty());
        };
        messaggio(u"Prova"_s, Icona::Domanda, pulsanti);
        EXPECT_EQ(messaggi.visti().size(), 1);
    }
}
