// An evening with the robot: the console, the editor and the runner on a real line, the clock
// alone is moved by hand. The robot's diary tells which lists ran.
#include "conditional/frmProcessor.h"
#include "console/frmPrincipale.h"
#include "serial/PortaAsio.h"
#include "simulator/Simulatore.h"
#include "tests/conditional/OrologioFermo.h"
#include "tests/movelists/BancoEditor.h"

#include <gmock/gmock.h>
#include <iostream>

namespace {

class ConsoleVera : public ConsoleVigilio
{
public:
    explicit ConsoleVera(frmPrincipale &principale) : m_principale(principale) {}

    bool PortOpen() override { return m_principale.COM.PortOpen(); }
    bool collegato() override { return m_principale.collegato(); }
    bool staTentando() override { return m_principale.staTentando(); }
    void Collega() override { m_principale.Collega(); }

private:
    frmPrincipale &m_principale;
};

class Sera : public testing::Test
{
protected:
    Sera()
    {
        cartella.scrivi(u"Porta COM"_s, "1\r\n");
        cartella.scrivi(u"prog.dat"_s, "0;");
        robot.impostaBaud(0);
        EXPECT_TRUE(robot.apri()) << robot.errore().toStdString();
        EXPECT_TRUE(robot.collegaPorta(cartella.percorso(), 1)) << robot.errore().toStdString();

        editor.corsa.Messaggio.collega(
            [this](const QString &testo) { principale.BarraStato.setPanels(3, testo); });
        editor.corsa.Inviato.collega(
            [this](const QString &testo) { principale.MostraInvio(testo); });
        principale.motore.ascoltaTelemetria(&processor);
        FinestreConsole finestre;
        finestre.frmEditor = &editor;
        finestre.opzInsComandi = &editor.opzInsComandi;
        finestre.documento = &editor.documento;
        finestre.frmProcessor = &processor;
        finestre.Stoppa = [this] { processor.Stoppa(); };
        principale.impostaFinestre(finestre);
    }
    ~Sera() override
    {
        if (principale.tmrControllaConn.Enabled())
            pulsante(1);
    }

    // A list that says one phrase, and is known by it in the diary.
    void crea(const QString &nome, int frase) const
    {
        cartella.scrivi(nome, " 1 \r\nFrase " + QByteArray::number(frase) + "\r\nPausa 200\r\n");
    }
    // Clicks a button of the toolbar.
    void pulsante(int numero) { principale.BarraPulsanti.Buttons(numero).click(); }
    // How often the robot has said it.
    qsizetype detta(int frase)
    {
        return robot.diario().comandi().filter(u" frase %1 "_s.arg(frase)).size();
    }
    // The robot has said it, and the list is at its end.
    [[nodiscard]] bool eseguita(int frase)
    {
        return aspetta([&] { return detta(frase) == 1 && !editor.tmrEseguiMosse.Enabled(); });
    }
    // The robot has been asked for its sensors a few times more: what they could start has started.
    void passaTempo()
    {
        const auto domande = [this] {
            return robot.diario().conta(u"RichiediSensori"_s) +
                   robot.diario().conta(u"RichiediStatoA"_s);
        };
        const int prima = domande();
        EXPECT_TRUE(aspetta([&] { return domande() >= prima + 4; }));
        EXPECT_TRUE(aspetta([this] { return !editor.tmrEseguiMosse.Enabled(); }));
    }
    int riga(const QString &nome) const
    {
        for (int i = 0; i < processor.File.ListCount(); ++i) {
            if (processor.File.List(i) == nome)
                return i;
        }
        ADD_FAILURE() << nome.toStdString();
        return -1;
    }
    // What the user does in the dialog for that list.
    void imposta(const QString &nome, std::function<void(frmImpCondizioni &)> scelta)
    {
        frmImpCondizioni &dialogo = processor.impCondizioni;
        const ConModale utente(u"frmImpCondizioni"_s, [&] {
            scelta(dialogo);
            dialogo.pulOK.click();
        });
        processor.lstFile.setListIndex(riga(nome));
        processor.lstFile_DblClick();
    }

    CartellaDiProva cartella;
    Simulatore robot;
    frmPrincipale principale{{std::make_unique<PortaAsio>(), cartella.percorso(), [] {}}};
    ConsoleVera console{principale};
    OrologioFermo orologio;
    frmEditor editor{principale, principale.COM, cartella.percorso()};
    frmProcessor processor{console, editor, orologio, cartella.percorso()};
};

enum Frasi { Caldo = 11, Ostacolo, Scarica, Notte, Mattina, Gelo, Spenta, Logica };

} // namespace

TEST_F(Sera, TheListsOfTheEveningRunAndTheOthersDoNot)
{
    crea(u"caldo.sqm"_s, Caldo);
    crea(u"ostacolo.sqm"_s, Ostacolo);
    crea(u"scarica.sqm"_s, Scarica);
    crea(u"notte.sqm"_s, Notte);
    crea(u"mattina.sqm"_s, Mattina);
    crea(u"gelo.sqm"_s, Gelo);
    crea(u"spenta.sqm"_s, Spenta);
    crea(u"logica.sqm"_s, Logica);
    robot.robot().impostaTemperatura(21);
    robot.robot().impostaBatterie(210, 180);
    orologio.ora = QTime(20, 0, 0);

    // The user sets every list's condition, saves the project and opens it another day.
    principale.Mostra();
    pulsante(6);
    ASSERT_TRUE(processor.Visible());
    ASSERT_EQ(processor.lstFile.ListCount(), 8);
    imposta(u"caldo.sqm"_s, [](frmImpCondizioni &d) { d.cbTemperatura.setListIndex(31); });
    imposta(u"ostacolo.sqm"_s, [](frmImpCondizioni &d) { d.opzSens(2).click(); });
    imposta(u"scarica.sqm"_s, [](frmImpCondizioni &d) { d.cbBattMotori.setListIndex(1); });
    imposta(u"logica.sqm"_s, [](frmImpCondizioni &d) { d.cbBattLogica.setListIndex(4); });
    const auto orario = [](int ore, int minuti) {
        return [ore, minuti](frmImpCondizioni &d) {
            d.SuGiuOre.setValue(ore);
            d.SuGiuMinuti.setValue(minuti);
            d.SuGiuSecondi.setValue(30);
        };
    };
    imposta(u"notte.sqm"_s, orario(21, 45));
    imposta(u"mattina.sqm"_s, orario(7, 0));
    imposta(u"gelo.sqm"_s, [](frmImpCondizioni &d) { d.cbTemperatura.setListIndex(31); });
    imposta(u"spenta.sqm"_s, [](frmImpCondizioni &d) { d.cbTemperatura.setListIndex(30); });
    processor.lstFile.setSelected(riga(u"spenta.sqm"_s), false);
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    processor.pulSalva.click();
    processor.pulAnnulla.click();
    ASSERT_FALSE(processor.Visible());
    pulsante(6);
    {
        const RispondiFile utente(cartella.percorso(u"sera.vgp"_s));
        processor.mnuFileApri.trigger();
    }
    EXPECT_EQ(processor.Caption(), u"Vigilio  sera.vgp"_s);

    // Not connected yet: the question comes before the conflicts.
    RispondiMessaggi messaggi(QMessageBox::Yes);
    messaggi.mentreAperto = [&](QMessageBox &box) {
        messaggi.premi(box.standardButtons() == QMessageBox::Ok ? QMessageBox::Ok
                                                                : QMessageBox::Yes);
    };
    processor.pulAvvia.click();
    EXPECT_EQ(messaggi.testi(),
              (QStringList{u"Per avviare il Vigilio è necessario essere connessi ad Tessaro, "
                           "connettersi ora?"_s,
                           u"\"caldo.sqm\" e \"gelo.sqm\"\nsi attivano entrambe con la stessa "
                           "temperatura"_s}));
    EXPECT_FALSE(processor.avviato());
    EXPECT_TRUE(robot.robot().stato().sessioneAperta);
    imposta(u"gelo.sqm"_s, [](frmImpCondizioni &d) { d.cbTemperatura.setListIndex(2); });
    processor.mnuOpzRiduci.trigger();
    processor.mnuOpzDeselezionaAut.trigger();
    processor.pulAvvia.click();
    ASSERT_TRUE(processor.avviato());
    EXPECT_FALSE(processor.Visible());
    EXPECT_TRUE(editor.Visible());
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);

    // Nothing has happened yet.
    passaTempo();
    EXPECT_THAT(robot.diario().comandi(), testing::Each(testing::Eq(u"ApriSessione"_s)));

    // The temperature rises past a list that is not selected.
    robot.robot().impostaTemperatura(30);
    passaTempo();
    robot.robot().impostaTemperatura(31);
    EXPECT_TRUE(aspetta([this] { return editor.imgVigilio.Picture() == 3; }));
    EXPECT_TRUE(eseguita(Caldo));
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
    // It stays warm, and the list has lost its check mark.
    passaTempo();
    EXPECT_EQ(detta(Caldo), 1);

    // An obstacle at the right does not matter, one in front does.
    robot.robot().impostaUltrasuoni(90, 0, 0);
    passaTempo();
    EXPECT_EQ(detta(Ostacolo), 0);
    robot.robot().impostaUltrasuoni(90, 40, 0);
    EXPECT_TRUE(eseguita(Ostacolo));

    // The motors' battery sinks to the level that is asked for; the logic battery is at its fourth
    // level all the time, and nobody hears it.
    robot.robot().impostaBatterie(210, 120);
    passaTempo();
    EXPECT_EQ(detta(Scarica), 0);
    robot.robot().impostaBatterie(210, 80);
    EXPECT_TRUE(eseguita(Scarica));

    // The clock passes the list's second. It does not ask for the check mark.
    processor.lstFile.setSelected(riga(u"notte.sqm"_s), false);
    orologio.ora = QTime(21, 45, 30);
    EXPECT_TRUE(aspetta([this] { return editor.tmrEseguiMosse.Enabled(); }));
    orologio.ora = QTime(21, 45, 31);
    EXPECT_TRUE(eseguita(Notte));

    passaTempo();
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(detta(Caldo), 1);
    EXPECT_EQ(detta(Ostacolo), 1);
    EXPECT_EQ(detta(Scarica), 1);
    EXPECT_EQ(detta(Notte), 1);
    for (const int frase : {Mattina, Gelo, Spenta, Logica})
        EXPECT_EQ(detta(frase), 0) << frase;

    // Disconnecting ends it.
    pulsante(1);
    EXPECT_FALSE(processor.avviato());
    EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
    EXPECT_EQ(editor.imgVigilio.Picture(), 1);
    EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
    EXPECT_EQ(messaggi.visti().size(), 2);
}

TEST_F(Sera, AvviaDuringTheToolbarsAttemptStartsNothingUnlessItHasSucceeded)
{
    crea(u"caldo.sqm"_s, Caldo);
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    principale.Mostra();
    pulsante(6);
    processor.lstCondizioni.setList(0, u"no,no,31,no,no"_s);
    processor.lstFile.setSelected(0, true);
    robot.guasti().silenzio = true;
    int clic = 0;
    QTimer utente;
    QObject::connect(&utente, &QTimer::timeout, &utente, [&] {
        if (!principale.COM.PortOpen())
            return;
        if (++clic <= 3) {
            processor.pulAvvia.click();
            EXPECT_FALSE(processor.avviato());
        } else {
            principale.splash.pulNonCollegare.setTag(u"True"_s);
        }
    });
    utente.start(5);
    pulsante(1);
    utente.stop();
    EXPECT_GE(clic, 4);
    EXPECT_FALSE(principale.COM.PortOpen());
    EXPECT_FALSE(processor.avviato());
    EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
    EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
    EXPECT_EQ(messaggi.testi(), QStringList());
}

TEST_F(Sera, WithoutTheOptionAListGoesOnWhileItsConditionLasts)
{
    crea(u"caldo.sqm"_s, Caldo);
    principale.Mostra();
    pulsante(6);
    processor.lstCondizioni.setList(0, u"no,no,31,no,no"_s);
    processor.lstFile.setSelected(0, true);
    pulsante(1);
    processor.pulAvvia.click();
    ASSERT_TRUE(processor.avviato());
    robot.robot().impostaTemperatura(31);
    EXPECT_TRUE(aspetta([this] { return detta(Caldo) >= 2; }));
    robot.robot().impostaTemperatura(32);
    passaTempo();
    const qsizetype volte = detta(Caldo);
    passaTempo();
    EXPECT_EQ(detta(Caldo), volte);
    EXPECT_TRUE(processor.avviato());
}

TEST_F(Sera, AListDeletedMeanwhileEndsTheProgramWithAMessage)
{
    // A process of its own: drawing has started threads, which a fork would lose.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    crea(u"caldo.sqm"_s, Caldo);
    const auto finisci = [this] {
        principale.Mostra();
        pulsante(6);
        processor.lstCondizioni.setList(0, u"no,no,31,no,no"_s);
        processor.lstFile.setSelected(0, true);
        pulsante(1);
        processor.pulAvvia.click();
        QFile::remove(cartella.percorso(u"caldo.sqm"_s));
        RispondiMessaggi messaggi;
        messaggi.mentreAperto = [](QMessageBox &box) {
            std::fprintf(stderr, "%s\n", qPrintable(box.text()));
        };
        robot.robot().impostaTemperatura(31);
        static_cast<void>(aspetta([] { return false; }));
    };
    EXPECT_EXIT(finisci(), testing::ExitedWithCode(1), "Impossibile trovare il file \\(53\\)");
}

namespace {

struct ListaIlleggibile
{
    const char *nome;
    // Nothing: the file is not there any more.
    const char *contenuto;
    const char *errore;
};

class SeraGuasta : public Sera, public testing::WithParamInterface<ListaIlleggibile>
{
protected:
    // The runner starts a list that cannot be read, while more telemetry comes.
    [[noreturn]] void guasta()
    {
        RispondiMessaggi messaggi;
        messaggi.mentreAperto = [](const QMessageBox &box) {
            gira(500);
            std::cerr << box.text().toStdString() << "|" << std::endl;
        };
        principale.Mostra();
        pulsante(6);
        processor.lstCondizioni.setList(0, u"no,no,31,no,no"_s);
        processor.lstFile.setSelected(0, true);
        pulsante(1);
        processor.pulAvvia.click();
        if (GetParam().contenuto)
            cartella.scrivi(u"caldo.sqm"_s, GetParam().contenuto);
        else
            QFile::remove(cartella.percorso(u"caldo.sqm"_s));
        robot.robot().impostaTemperatura(31);
        static_cast<void>(aspetta([] { return false; }));
        std::_Exit(77);
    }
};

} // namespace

TEST_P(SeraGuasta, AListThatCannotBeReadEndsTheProgramWithItsErrorAlone)
{
    // A process of its own: drawing has started threads, which a fork would lose.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    crea(u"caldo.sqm"_s, Caldo);
    EXPECT_EXIT(guasta(), testing::ExitedWithCode(1), GetParam().errore);
}

INSTANTIATE_TEST_SUITE_P(
    Sera, SeraGuasta,
    testing::Values(ListaIlleggibile{"Missing", nullptr,
                                     "Impossibile trovare il file \\(53\\)[^|]*\\|\n$"},
                    ListaIlleggibile{"TooShort", " 5 \r\nFrase 1\r\n",
                                     "Il file finisce prima del previsto \\(62\\)[^|]*\\|\n$"}),
    [](const auto &caso) { return caso.param.nome; });
