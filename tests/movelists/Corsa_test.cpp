// Lists on the simulated robot: the console itself, a real line, real timers.
#include "console/frmPrincipale.h"
#include "link/ComandiTessaro.h"
#include "movelists/frmEditor.h"
#include "serial/PortaAsio.h"
#include "simulator/Simulatore.h"
#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QElapsedTimer>
#include <gmock/gmock.h>

namespace {

// A real port that says when it is asked whether it is open.
class PortaOsservata : public PortaAsio
{
public:
    explicit PortaOsservata(std::function<void()> &richiesta) : m_richiesta(richiesta) {}
    bool aperta() const override
    {
        if (m_richiesta)
            m_richiesta();
        return PortaAsio::aperta();
    }

private:
    std::function<void()> &m_richiesta;
};

class CorsaTest : public testing::Test
{
protected:
    CorsaTest()
    {
        FinestreConsole finestre;
        finestre.frmEditor = &editor;
        finestre.opzInsComandi = &editor.opzInsComandi;
        finestre.documento = &editor.documento;
        principale.impostaFinestre(finestre);
        editor.corsa.Messaggio.collega([this](const QString &testo) {
            if (pausa)
                pausa();
            principale.BarraStato.setPanels(3, testo);
        });
        editor.corsa.Inviato.collega(
            [this](const QString &testo) { principale.MostraInvio(testo); });
        robot.impostaBaud(0);
        EXPECT_TRUE(robot.apri()) << robot.errore().toStdString();
        EXPECT_TRUE(robot.collegaPorta(cartella.percorso(), 1)) << robot.errore().toStdString();
        principale.COM.setPortOpen(true);
        ComandiTessaro::ApriSessione(principale.COM);
        EXPECT_TRUE(aspetta([this] { return robot.robot().stato().sessioneAperta; }));
        principale.tmrElabInput.setEnabled(true);
        gira(50);
        robot.diario().svuota();
    }

    void avvia(const QStringList &righe)
    {
        for (const QString &riga : righe)
            editor.lstMosse.AddItem(riga);
        editor.pulEsegui.click();
        EXPECT_TRUE(editor.tmrEseguiMosse.Enabled());
    }
    void aspettaFine()
    {
        EXPECT_TRUE(aspetta([this] { return !editor.tmrEseguiMosse.Enabled(); }));
    }
    // Waits until the robot has understood so many commands.
    QStringList comandi(qsizetype quanti)
    {
        EXPECT_TRUE(aspetta([&] { return robot.diario().comandi().size() >= quanti; }));
        return robot.diario().comandi();
    }
    QString pannello() const { return principale.BarraStato.Panels(3); }

    CartellaDiProva cartella;
    Simulatore robot;
    // Each time the run, or anybody else, asks for the port; each time a pause begins.
    std::function<void()> richiesta;
    std::function<void()> pausa;
    frmPrincipale principale{
        {std::make_unique<PortaOsservata>(richiesta), cartella.percorso(), [] {}}};
    frmEditor editor{principale, principale.COM, cartella.percorso()};
};

} // namespace

TEST_F(CorsaTest, TheRobotUnderstandsTheLinesInTheirOrder)
{
    avvia({u"Testa LED Vs on"_s, u"Pausa 50"_s, u"Mex 2 play"_s, u"Testa LED Vs off"_s});
    aspettaFine();
    EXPECT_EQ(comandi(4), (QStringList{u"LedTesta nome=Vs acceso=1"_s, u"MexPlay v=2"_s,
                                       u"MexPlay v=2"_s, u"LedTesta nome=Vs acceso=0"_s}));
    EXPECT_EQ(pannello(), u"Comando 3 ricevuto!"_s);
    EXPECT_TRUE(robot.diario().nonCapiti().isEmpty());
}

TEST_F(CorsaTest, NoLineComesBeforeTheWaitOfTheOneBefore)
{
    QElapsedTimer orologioDiProva;
    orologioDiProva.start();
    const auto ora = [&] { return static_cast<double>(orologioDiProva.nsecsElapsed()) / 1e6; };
    // A tick selects its line and sends at once, which asks for the port; the wait begins after
    // that.
    QMap<int, double> primaRichiesta;
    double inizioPausa = 0;
    richiesta = [&] {
        const int riga = editor.lstMosse.ListIndex();
        if (!primaRichiesta.contains(riga))
            primaRichiesta[riga] = ora();
    };
    pausa = [&] { inizioPausa = ora(); };
    QList<double> sentiti;
    QObject::connect(&robot.diario(), &Diario::aggiunta, &robot, [&](const VoceDiario &voce) {
        if (voce.tipo == VoceDiario::Tipo::Comando && voce.testo.startsWith(u"Led"_s))
            sentiti += ora();
    });
    avvia({u"Testa LED Vs on"_s, u"Testa LED Vd on"_s, u"Pausa 250"_s, u"Testa LED Rs on"_s,
           u"LED Posizione ON"_s, u"Testa LED Rd on"_s});
    aspettaFine();
    ASSERT_TRUE(aspetta([&] { return sentiti.size() == 5; }));
    // A timer of whole milliseconds may be one early.
    constexpr double gioco = 1;
    EXPECT_GE(sentiti[1] - primaRichiesta[0], 600 - gioco);
    EXPECT_GE(sentiti[2] - inizioPausa, 250 - gioco);
    EXPECT_GE(sentiti[3] - primaRichiesta[3], 600 - gioco);
    EXPECT_GE(sentiti[4] - primaRichiesta[4], 1600 - gioco);
    richiesta = {};
}

TEST_F(CorsaTest, ALoopSendsItsBlockAgain)
{
    avvia({u"Testa LED Vs on"_s, u"Pausa 10"_s, u"Ripeti 1 volta"_s});
    aspettaFine();
    EXPECT_EQ(comandi(2),
              (QStringList{u"LedTesta nome=Vs acceso=1"_s, u"LedTesta nome=Vs acceso=1"_s}));
}

TEST_F(CorsaTest, ARunEndsWhenTheConsoleDisconnects)
{
    avvia({u"Pausa 60000"_s, u"Avanti piano"_s});
    EXPECT_TRUE(aspetta([this] { return editor.lstMosse.ListIndex() == 0; }));
    principale.COM.setPortOpen(false);
    editor.tmrEseguiMosse.setInterval(1);
    aspettaFine();
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
    EXPECT_TRUE(robot.diario().comandi().isEmpty());
}

TEST_F(CorsaTest, TheConsoleCannotOverfillTheOpenList)
{
    editor.Mostra();
    for (int i = 0; i < 32767; ++i)
        editor.lstMosse.AddItem(u"Stop"_s);
    const RispondiMessaggi messaggi;
    principale.AggiungiMossa(u"Foto"_s);
    EXPECT_EQ(messaggi.testi(), QStringList{u"Una lista ha al massimo 32767 comandi"_s});
    EXPECT_EQ(editor.lstMosse.ListCount(), 32767);
    EXPECT_EQ(editor.lstMosse.ListIndex(), -1);
    EXPECT_EQ(editor.lstMosse.Tag(), u"True"_s);
}

TEST_F(CorsaTest, TheConsoleWritesIntoTheOpenListAndSendsNothing)
{
    editor.Mostra();
    EXPECT_TRUE(principale.ListaAttiva());
    principale.AggiungiMossa(u"Foto"_s);
    principale.AggiungiMossa(u"Stop"_s);
    EXPECT_EQ(editor.lstMosse.List(0), u"Foto"_s);
    EXPECT_EQ(editor.lstMosse.ListIndex(), 1);
    EXPECT_EQ(editor.lstMosse.Tag(), u"False"_s);
    editor.opzInsComandi.setValue(0);
    EXPECT_FALSE(principale.ListaAttiva());
    editor.opzInsComandi.setValue(1);
    editor.Nascondi();
    EXPECT_FALSE(principale.ListaAttiva());
    EXPECT_TRUE(robot.diario().comandi().isEmpty());
}
