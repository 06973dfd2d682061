// The send-or-list rule, over every action that there is.
#include "tests/console/TutteLeAzioni.h"

#include <gmock/gmock.h>

TEST(Azioni, WithTheListClosedEveryActionGoesToTheRobotAndSaysSo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (const AzioneManuale &azione : tutteLeAzioni()) {
        SCOPED_TRACE(azione.nome.toStdString());
        azione.prepara(c);
        EXPECT_TRUE(c.mandati().isEmpty());
        const QString prima = c.pannello();
        azione.fai(c);
        EXPECT_EQ(c.byteMandati(), azione.byte);
        EXPECT_EQ(c.pannello(), azione.esito.isEmpty() ? prima : azione.esito);
        EXPECT_TRUE(c.fuocoACasa());
        EXPECT_EQ(c.frmEditor.lstMosse.ListCount(), 0);
    }
}

TEST(Azioni, WithTheListActiveEveryActionBecomesALineAndNothingIsSent)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.attivaLista(true);
    for (const AzioneManuale &azione : tutteLeAzioni()) {
        SCOPED_TRACE(azione.nome.toStdString());
        c.frmEditor.lstMosse.Clear();
        azione.prepara(c);
        const QString prima = c.pannello();
        azione.fai(c);
        EXPECT_EQ(c.frmEditor.mosse(), QStringList(azione.riga));
        EXPECT_EQ(c.pannello(), prima);
        EXPECT_TRUE(c.mandati().isEmpty());
    }
}

TEST(Azioni, TheListNeedsNoPort)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    for (const AzioneManuale &azione : tutteLeAzioni()) {
        SCOPED_TRACE(azione.nome.toStdString());
        c.frmEditor.lstMosse.Clear();
        azione.prepara(c);
        azione.fai(c);
        EXPECT_EQ(c.frmEditor.mosse(), QStringList(azione.riga));
    }
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_FALSE(c.finestra.COM.PortOpen());
}

TEST(Azioni, WithoutAConnectionEachActionCostsOneMessageBoxAndChangesNothing)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    // The user lets the mouse go where the message box has come up.
    messaggi.mentreAperto = [&](QMessageBox &) {
        const Qt::MouseButtons premuti = QGuiApplication::mouseButtons();
        if (premuti != Qt::NoButton)
            c.lascia(c.finestra, Qt::MouseButton(premuti.toInt()), QPoint(399, 400));
    };
    for (const AzioneManuale &azione : tutteLeAzioni()) {
        SCOPED_TRACE(azione.nome.toStdString());
        azione.prepara(c);
        const QString prima = c.pannello();
        const qsizetype visti = messaggi.visti().size();
        azione.fai(c);
        ASSERT_EQ(messaggi.visti().size(), visti + 1);
        const MessaggioVisto &visto = messaggi.visti().last();
        EXPECT_EQ(visto.testo, u"Non sono collegato al robot"_s);
        EXPECT_EQ(visto.icona, QMessageBox::Information);
        EXPECT_EQ(visto.pulsanti, QMessageBox::Ok);
        EXPECT_EQ(c.pannello(), prima);
    }
    EXPECT_FALSE(c.robot.portaAperta());
}

TEST(Azioni, NoLinkHidesOrDisablesNoControl)
{
    ConsoleInProva c;
    c.mostra();
    for (int i = 1; i <= 6; ++i)
        EXPECT_TRUE(c.finestra.imgFreccia(i).isVisible() && c.finestra.imgFreccia(i).isEnabled());
    for (QWidget *controllo : std::initializer_list<QWidget *>{
             &c.finestra.lblStop, &c.finestra.ImgTesta, &c.finestra.imgLEDPos,
             &c.finestra.imgToolDx, &c.finestra.imgToolSx, &c.finestra.imgPinzaAperta,
             &c.finestra.lblScattaFoto, &c.finestra.pulFrase, &c.finestra.pulSuono,
             &c.finestra.pulPlayMex, &c.finestra.imgPlayProg})
        EXPECT_TRUE(controllo->isVisible() && controllo->isEnabled())
            << controllo->objectName().toStdString();
}

TEST(Azioni, TheListIsActiveOnlyWhileTheEditorIsOpenAndItsBoxIsTicked)
{
    ConsoleInProva c;
    c.mostra();
    EXPECT_FALSE(c.finestra.ListaAttiva());
    c.frmEditor.opzInsComandi.setValue(1);
    EXPECT_FALSE(c.finestra.ListaAttiva());
    c.frmEditor.Mostra();
    EXPECT_TRUE(c.finestra.ListaAttiva());
    c.frmEditor.opzInsComandi.setValue(0);
    EXPECT_FALSE(c.finestra.ListaAttiva());
    c.frmEditor.opzInsComandi.setValue(1);
    c.frmEditor.Nascondi();
    EXPECT_FALSE(c.finestra.ListaAttiva());
}

TEST(Azioni, ALineGoesBehindTheSelectedOneAndIsSelected)
{
    ConsoleInProva c;
    Elenco &lstMosse = c.frmEditor.lstMosse;
    lstMosse.setTag(u"True"_s);
    c.finestra.AggiungiMossa(u"prima"_s);
    EXPECT_EQ(c.frmEditor.mosse(), QStringList(u"prima"_s));
    EXPECT_EQ(lstMosse.ListIndex(), 0);
    EXPECT_EQ(lstMosse.Tag(), u"False"_s);
    for (int i = 2; i <= 6; ++i)
        c.finestra.AggiungiMossa(QString::number(i));
    lstMosse.setListIndex(4);
    c.finestra.AggiungiMossa(u"in mezzo"_s);
    EXPECT_EQ(lstMosse.ListIndex(), 5);
    EXPECT_EQ(c.frmEditor.mosse(),
              (QStringList{u"prima"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"in mezzo"_s, u"6"_s}));
}

TEST(Azioni, WithNothingSelectedALineGoesToTheTop)
{
    ConsoleInProva c;
    c.frmEditor.lstMosse.AddItem(u"vecchia"_s);
    c.finestra.AggiungiMossa(u"nuova"_s);
    EXPECT_EQ(c.frmEditor.mosse(), (QStringList{u"nuova"_s, u"vecchia"_s}));
    EXPECT_EQ(c.frmEditor.lstMosse.ListIndex(), 0);
}

TEST(Azioni, ASilentRobotGivesNoAnswer)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    c.clicca(c.finestra.imgToolDx);
    EXPECT_EQ(c.byteMandati(), b({19, 140, 255}));
    EXPECT_EQ(c.pannello(), u"Nessuna risposta."_s);
    EXPECT_EQ(c.finestra.BarraCaricamento.Value(), c.finestra.BarraCaricamento.Max());
    EXPECT_TRUE(c.finestra.COM.PortOpen());
}

TEST(Azioni, AClickDuringAWaitActsWithinIt)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QStringList esiti;
    QTimer parla;
    QObject::connect(&parla, &QTimer::timeout, &parla, [&] { c.robot.inviaGrezzo(b({31, 20})); });
    QTimer::singleShot(0, &parla, [&] {
        // The robot speaks again, until both waits have seen it.
        parla.start(5);
        c.clicca(c.finestra.imgToolSx);
        esiti << c.pannello();
    });
    c.clicca(c.finestra.imgToolDx);
    esiti << c.pannello();
    parla.stop();
    EXPECT_EQ(c.mandati(), (QList<QByteArray>{b({19, 140, 255}), b({19, 139, 255})}));
    EXPECT_EQ(esiti, (QStringList{u"Tool sinistro acceso"_s, u"Tool destro acceso"_s}));
}

TEST(Azioni, ADisconnectionDuringAWaitEndsIt)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QTimer::singleShot(0, &c.finestra, [&] { c.clicca(c.finestra.BarraPulsanti.Buttons(1)); });
    c.clicca(c.finestra.imgToolDx);
    EXPECT_FALSE(c.finestra.COM.PortOpen());
    EXPECT_EQ(c.pannello(), u"Disconnesso"_s);
}
