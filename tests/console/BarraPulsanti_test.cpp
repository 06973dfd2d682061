// The toolbar.
#include "tests/console/ConsoleInProva.h"

#include <gmock/gmock.h>

namespace {

PulsanteBarra &pulsante(ConsoleInProva &c, int numero)
{
    return c.finestra.BarraPulsanti.Buttons(numero);
}

} // namespace

TEST(BarraPulsanti, SevenButtonsStandInTheirOrder)
{
    ConsoleInProva c;
    c.mostra();
    const std::pair<int, QString> attesi[] = {
        {1, u"Connetti ad Tessaro"_s},
        {2, u"Accedi alle opzioni"_s},
        {0, QString()},
        {3, u"Accedi alla visione della Videocamera di Tessaro"_s},
        {4, u"Accedi all'editor delle mosse Sequor"_s},
        {5, u"Accedi al Vigilio"_s},
        {7, u"Esplora i file all'interno di Tessaro"_s},
    };
    for (int i = 1; i <= 7; ++i) {
        EXPECT_EQ(pulsante(c, i).Image(), attesi[i - 1].first) << i;
        EXPECT_EQ(pulsante(c, i).toolTip(), attesi[i - 1].second) << i;
    }
    EXPECT_THROW(pulsante(c, 8), Errore);
    EXPECT_EQ(c.finestra.imgPulsanti.ListCount(), 8);
}

TEST(BarraPulsanti, TheFirstButtonConnectsAndDisconnects)
{
    ConsoleInProva c;
    c.mostra();
    c.clicca(pulsante(c, 1));
    EXPECT_EQ(c.pannello(1), u"Connesso"_s);
    EXPECT_EQ(pulsante(c, 1).Image(), 6);
    EXPECT_EQ(pulsante(c, 1).toolTip(), u"Disconnetti"_s);
    EXPECT_TRUE(c.fuocoACasa());
    c.clicca(pulsante(c, 1));
    EXPECT_EQ(c.pannello(1), u"Non connesso"_s);
    EXPECT_EQ(c.pannello(2), u"<>"_s);
    EXPECT_EQ(c.pannello(3), u"Disconnesso"_s);
    EXPECT_EQ(pulsante(c, 1).Image(), 1);
    EXPECT_EQ(pulsante(c, 1).toolTip(), u"Connetti ad Tessaro"_s);
    EXPECT_TRUE(aspetta([&] { return !c.robot.robot().stato().sessioneAperta; }));
}

TEST(BarraPulsanti, TheSecondButtonShowsTheOptionsModally)
{
    ConsoleInProva c;
    c.mostra();
    bool modale = false;
    const ConModale dialogo(u"frmOpzioni"_s, [&] {
        modale = c.finestra.opzioni.isModal();
        c.finestra.opzioni.pulAnnulla.click();
    });
    c.clicca(pulsante(c, 2));
    EXPECT_TRUE(modale);
    EXPECT_FALSE(c.finestra.opzioni.Visible());
}

TEST(BarraPulsanti, TheVideoButtonAsksForTheVideoWindow)
{
    ConsoleInProva c;
    c.mostra();
    c.clicca(pulsante(c, 4));
    EXPECT_TRUE(c.frmCamera.Visible());
    EXPECT_EQ(c.finestra.BarraPulsanti.Tag(), u"Camera"_s);
}

TEST(BarraPulsanti, TheEditorAndTheRunnerAreShown)
{
    ConsoleInProva c;
    c.mostra();
    c.clicca(pulsante(c, 5));
    EXPECT_TRUE(c.frmEditor.Visible());
    c.clicca(pulsante(c, 6));
    EXPECT_TRUE(c.frmProcessor.Visible());
    EXPECT_EQ(c.finestra.BarraPulsanti.Tag(), QString());
}

TEST(BarraPulsanti, AWindowThatIsVisibleAlreadyIsNotLoadedAgain)
{
    ConsoleInProva c;
    c.mostra();
    c.clicca(pulsante(c, 6));
    c.clicca(pulsante(c, 6));
    EXPECT_EQ(c.frmProcessor.caricamenti, 1);
}

TEST(BarraPulsanti, AWindowThatIsMinimisedComesBack)
{
    ConsoleInProva c;
    c.mostra();
    for (const int numero : {5, 6}) {
        Finestra &finestra = numero == 5 ? static_cast<Finestra &>(c.frmEditor) : c.frmProcessor;
        c.clicca(pulsante(c, numero));
        finestra.setWindowState(1);
        c.clicca(pulsante(c, numero));
        EXPECT_TRUE(finestra.Visible()) << numero;
        EXPECT_EQ(finestra.WindowState(), 0) << numero;
    }
    EXPECT_EQ(c.frmProcessor.caricamenti, 1);
}

TEST(BarraPulsanti, WithoutAConnectionTheFilesCannotBeSeen)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    c.clicca(pulsante(c, 7));
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti().first().testo,
              u"I file del ROBOT si possono vedere solo se si è collegati ad Tessaro"_s);
    EXPECT_EQ(messaggi.visti().first().icona, QMessageBox::Information);
    EXPECT_EQ(messaggi.visti().first().pulsanti, QMessageBox::Ok);
    EXPECT_FALSE(c.frmEsploraFile.Visible());
}

TEST(BarraPulsanti, WithAConnectionTheFilesAreShown)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.clicca(pulsante(c, 7));
    EXPECT_TRUE(c.frmEsploraFile.Visible());
}

TEST(BarraPulsanti, TheEighthPictureOpensTheStoredPictures)
{
    ConsoleInProva c;
    c.mostra();
    pulsante(c, 5).setImage(8);
    c.clicca(pulsante(c, 5));
    EXPECT_TRUE(c.frmImmaginiAcquisite.Visible());
    EXPECT_FALSE(c.frmEditor.Visible());
}

TEST(BarraPulsanti, DisconnectingUnloadsTheWindowsThatLiveFromTheConnection)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.clicca(pulsante(c, 4));
    c.clicca(pulsante(c, 7));
    c.clicca(pulsante(c, 6));
    c.clicca(pulsante(c, 1));
    EXPECT_FALSE(c.frmCamera.Caricata());
    EXPECT_FALSE(c.frmEsploraFile.Caricata());
    EXPECT_TRUE(c.frmProcessor.Visible());
}

TEST(BarraPulsanti, DisconnectingStopsTheStartedRunner)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    int fermate = 0;
    c.finestra.impostaFinestre({&c.frmCamera, &c.frmEditor, &c.frmEditor.opzInsComandi,
                                &c.frmEditor.documento, &c.frmProcessor, [&] { ++fermate; },
                                &c.frmEsploraFile, &c.frmImmaginiAcquisite});
    c.frmProcessor.setTag(u"AVVIATO"_s);
    c.clicca(pulsante(c, 1));
    EXPECT_EQ(fermate, 1);
}
