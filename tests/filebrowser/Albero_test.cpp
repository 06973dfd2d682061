// The whole path: the console, a pseudo-terminal, and the simulated robot with its own storage.
#include "link/ComandiTessaro.h"
#include "serial/PortaAsio.h"
#include "simulator/Simulatore.h"
#include "simulator/robot/Memoria.h"
#include "tests/filebrowser/BancoEsploraFile.h"
#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;

namespace {

QByteArray contenuto(qsizetype quanti, int seme)
{
    QByteArray byte(quanti, Qt::Uninitialized);
    for (qsizetype i = 0; i < quanti; ++i)
        byte[i] = static_cast<char>((i * 31 + seme) ^ (i >> 8));
    return byte;
}

struct Albero : ::testing::Test
{
    Albero()
    {
        EXPECT_TRUE(robot.apri()) << robot.errore().toStdString();
        robot.impostaBaud(0);
        robot.robot().memoria().impostaRadice(memoria.path());
        EXPECT_TRUE(robot.collegaPorta(cartella.percorso(), 1));
        cartella.scrivi(u"Porta COM"_s, "1\r\n");
        cartella.scrivi(u"prog.dat"_s, "0;");
        console.motore.ascoltaFile(&esplora.prelievo);
        FinestreConsole finestre;
        finestre.frmEsploraFile = &esplora;
        console.impostaFinestre(finestre);
    }
    void scrivi(const QString &nome, const QByteArray &byte)
    {
        const QString percorso = memoria.filePath(nome);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(percorso).path()));
        QFile file(percorso);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(byte), byte.size());
    }
    QByteArray sulRobot(const QString &nome)
    {
        QFile file(memoria.filePath(nome));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << nome.toStdString();
        return file.readAll();
    }
    void collega()
    {
        console.Mostra();
        console.Collega();
        ASSERT_EQ(console.BarraStato.Panels(1), u"Connesso"_s);
    }
    // Clicks the toolbar's button with that image.
    void premi(int immagine)
    {
        for (int i = 1; i <= 7; ++i) {
            PulsanteBarra &pulsante = console.BarraPulsanti.Buttons(i);
            if (pulsante.Image() == immagine)
                return pulsante.click();
        }
        FAIL() << immagine;
    }
    [[nodiscard]] bool fermo()
    {
        return aspetta([&] { return esplora.Tag().isEmpty() && esplora.isEnabled(); });
    }
    void apri()
    {
        collega();
        premi(7);
        ASSERT_TRUE(esplora.Visible());
        ASSERT_TRUE(fermo());
    }
    void entra(const QString &nome)
    {
        doppioClick(esplora.lstCartelle, rigaDi(esplora.lstCartelle, nome));
        ASSERT_TRUE(fermo()) << nome.toStdString();
    }
    void casa()
    {
        esplora.pulHome.click();
        ASSERT_TRUE(fermo());
    }
    // Fetches every file of the shown folder and compares it with the robot's.
    void prelevaTutti(const QString &dove)
    {
        for (const QString &nome : voci(esplora.lstFile)) {
            doppioClick(esplora.lstFile, rigaDi(esplora.lstFile, nome));
            ASSERT_FALSE(esplora.isEnabled());
            ASSERT_TRUE(fermo()) << nome.toStdString();
            EXPECT_EQ(cartella.leggi(nome), sulRobot(dove + nome)) << nome.toStdString();
            prelevati << dove + nome;
        }
    }

    CartellaDiProva cartella;
    QTemporaryDir memoria;
    Simulatore robot;
    frmPrincipale console{{std::make_unique<PortaAsio>(), cartella.percorso(), [] {}}};
    frmEsploraFile esplora{console.COM, console.BarraStato, cartella.percorso()};
    QStringList prelevati;
};

} // namespace

TEST_F(Albero, EveryFileOfTheTreeIsFetchedUnchanged)
{
    scrivi(u"disk/leggimi.txt"_s, "ciao\r\n");
    scrivi(u"disk/vuoto"_s, {});
    scrivi(u"disk/pieno.bin"_s, contenuto(65535, 3));
    scrivi(u"disk/perché.txt"_s, "è così");
    scrivi(u"disk/telegrammi"_s, b({45, 1, 3, 0, 47, 1, 2, 3, 42, 1, 255, 13, 31}));
    scrivi(u"disk/foto/a.jpg"_s, jpeg({160, 120}));
    scrivi(u"disk/foto/b.JPG"_s, jpeg({16, 12}));
    scrivi(u"disk/foto/rotta.jpg"_s, "niente");
    scrivi(u"disk/due parole/x y.txt"_s, "x");
    scrivi(u"mmc/carta.txt"_s, contenuto(300, 5));
    scrivi(u"mmc/dati/in fondo.bin"_s, contenuto(10000, 7));
    scrivi(u"usb/chiave.txt"_s, contenuto(1, 1));
    ASSERT_TRUE(QDir(memoria.path()).mkpath(u"disk/vuota"_s));

    apri();
    EXPECT_EQ(voci(esplora.lstCartelle),
              (QStringList{u"disk"_s, u"mmc"_s, u"usb"_s, u"due parole"_s, u"foto"_s, u"vuota"_s}));
    prelevaTutti(u"disk/"_s);
    for (const QString &nome : {u"foto"_s, u"due parole"_s, u"vuota"_s}) {
        entra(nome);
        EXPECT_EQ(voci(esplora.lstCartelle), QStringList{u"."_s});
        EXPECT_EQ(esplora.lstCartelle.Tag(), nome + u'/');
        prelevaTutti(u"disk/"_s + nome + u'/');
        entra(u"."_s);
    }
    entra(u"mmc"_s);
    EXPECT_EQ(voci(esplora.lstCartelle), (QStringList{u"."_s, u"dati"_s}));
    prelevaTutti(u"mmc/"_s);
    casa();
    entra(u"usb"_s);
    prelevaTutti(u"usb/"_s);
    entra(u"."_s);
    entra(u"disk"_s);

    // All files but the one that no path of a single name can open.
    QStringList tutti;
    QDirIterator cammino(memoria.path(), QDir::Files, QDirIterator::Subdirectories);
    while (cammino.hasNext())
        tutti << QDir(memoria.path()).relativeFilePath(cammino.next());
    tutti.removeOne(u"mmc/dati/in fondo.bin"_s);
    tutti.sort();
    prelevati.sort();
    EXPECT_EQ(prelevati, tutti);
    EXPECT_TRUE(aspetta([&] { return robot.robot().memoria().aperti() == 0; }));
}

TEST_F(Albero, AFolderThatNoSingleNameCanOpenIsReported)
{
    scrivi(u"mmc/dati/in fondo.bin"_s, "x");
    scrivi(u"disk/a"_s, "a");
    apri();
    entra(u"mmc"_s);
    doppioClick(esplora.lstCartelle, rigaDi(esplora.lstCartelle, u"dati"_s));
    ASSERT_TRUE(aspetta(
        [&] { return console.BarraStato.Panels(3) == u"Errore nella lettura dei file!"_s; }));
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_TRUE(esplora.isEnabled());
    casa();
    EXPECT_EQ(voci(esplora.lstFile), QStringList{u"a"_s});
}

TEST_F(Albero, AFileThatTheRobotCannotReadLeavesTheWindowDisabledUntilItIsClosed)
{
    scrivi(u"disk/a.txt"_s, "a");
    apri();
    robot.robot().guasti().statoLettura = 5;
    doppioClick(esplora.lstFile, 0);
    ASSERT_TRUE(aspetta(
        [&] { return console.BarraStato.Panels(3) == u"Errore nella lettura dei file!"_s; }));
    EXPECT_FALSE(esplora.isEnabled());
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    ASSERT_TRUE(aspetta([&] { return robot.robot().memoria().aperti() == 0; }));
    robot.robot().guasti().statoLettura = -1;
    esplora.close();
    premi(7);
    ASSERT_TRUE(fermo());
    doppioClick(esplora.lstFile, 0);
    ASSERT_TRUE(fermo());
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "a");
}

TEST_F(Albero, TheFilesAreShownOnlyDuringAConnection)
{
    RispondiMessaggi messaggi;
    console.Mostra();
    premi(7);
    EXPECT_FALSE(esplora.Visible());
    EXPECT_EQ(
        messaggi.testi(),
        QStringList{u"I file del ROBOT si possono vedere solo se si è collegati ad Tessaro"_s});
}

TEST_F(Albero, DisconnectingDuringAListingUnloadsTheWindow)
{
    for (int i = 0; i < 300; ++i)
        scrivi(u"disk/file%1"_s.arg(i), {});
    collega();
    robot.impostaBaud(57600);
    premi(7);
    ASSERT_TRUE(aspetta([&] { return esplora.lstFile.ListCount() > 3; }));
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    premi(6);
    EXPECT_FALSE(esplora.Visible());
    EXPECT_FALSE(console.COM.PortOpen());
    // The bytes that were on the way are lost with the line.
    robot.impostaBaud(0);
    robot.sgancia();
    ASSERT_TRUE(robot.riaggancia());
    console.tmrElabInput.setTag({});
    console.Collega();
    premi(7);
    ASSERT_TRUE(fermo());
    EXPECT_EQ(esplora.lstFile.ListCount(), 300);
}

TEST_F(Albero, DisconnectingDuringAFetchUnloadsTheWindowAndWritesNothing)
{
    scrivi(u"disk/grande.bin"_s, contenuto(20000, 1));
    apri();
    robot.impostaBaud(57600);
    doppioClick(esplora.lstFile, 0);
    ASSERT_TRUE(aspetta([&] { return console.tmrElabInput.accumulatore.lunghezza() > 2000; }));
    EXPECT_FALSE(esplora.isEnabled());
    premi(6);
    EXPECT_FALSE(esplora.Visible());
    EXPECT_FALSE(cartella.contiene(u"grande.bin"_s));
    EXPECT_TRUE(esplora.isEnabled());
}

TEST_F(Albero, IfTheLineIsLostDuringAFetchTheDisconnectionEndsIt)
{
    scrivi(u"disk/grande.bin"_s, contenuto(20000, 1));
    apri();
    robot.impostaBaud(57600);
    doppioClick(esplora.lstFile, 0);
    ASSERT_TRUE(aspetta([&] { return console.tmrElabInput.accumulatore.lunghezza() > 2000; }));
    robot.sgancia();
    gira(500);
    EXPECT_TRUE(esplora.Visible());
    EXPECT_FALSE(esplora.isEnabled());
    premi(6);
    EXPECT_FALSE(esplora.Visible());
    EXPECT_FALSE(cartella.contiene(u"grande.bin"_s));
}

TEST_F(Albero, ConsoleAndAnimationWorkDuringAFetchAtTheSpeedOfTheLine)
{
    scrivi(u"disk/grande.bin"_s, contenuto(1500, 1));
    apri();
    robot.impostaBaud(9600);
    doppioClick(esplora.lstFile, 0);
    ASSERT_TRUE(aspetta([&] { return console.tmrElabInput.accumulatore.lunghezza() > 100; }));
    for (int i = 0; i < 8; ++i) {
        const int prima = esplora.imgAttesa.Picture();
        ASSERT_TRUE(aspetta([&] { return esplora.imgAttesa.Picture() != prima; }));
    }
    // The user moves the robot meanwhile.
    robot.dimentica();
    console.opzBraccia.click();
    EXPECT_TRUE(console.opzBraccia.Value());
    ComandiTessaro::TestaSu(console.COM, 2);
    ASSERT_TRUE(aspetta([&] { return robot.ricevuti().contains(b({19, 33, 2})); }));
    EXPECT_FALSE(esplora.isEnabled());
    ASSERT_TRUE(fermo());
    EXPECT_EQ(cartella.leggi(u"grande.bin"_s), contenuto(1500, 1));
}

TEST_F(Albero, WrongLengthsDroppedAndDoubledBytesBreakNothing)
{
    for (int i = 0; i < 20; ++i)
        scrivi(u"disk/file%1"_s.arg(i), contenuto(200, i));
    apri();
    robot.impostaSeme(7);
    for (int giro = 0; giro < 6; ++giro) {
        Guasti &guasti = robot.robot().guasti();
        guasti.deltaLunghezza = giro - 3;
        guasti.persi = giro % 2 ? 0.02 : 0.0;
        guasti.doppi = giro % 3 ? 0.02 : 0.0;
        guasti.sporchi = giro > 3 ? 0.02 : 0.0;
        esplora.close();
        premi(7);
        gira(200);
        if (esplora.lstFile.ListCount() > 0 && esplora.isEnabled())
            doppioClick(esplora.lstFile, 0);
        gira(200);
    }
    robot.robot().guasti() = {};
    // Telemetry completes the telegrams that were cut off; after that everything works again.
    esplora.close();
    premi(7);
    ASSERT_TRUE(aspetta([&] {
        robot.robot().impostaTemperatura(20);
        return console.tmrElabInput.accumulatore.vuoto();
    }));
    esplora.close();
    ASSERT_TRUE(aspetta([&] { return console.tmrElabInput.accumulatore.vuoto(); }));
    // A status that was still on the way can end the first listing too early.
    bool intero = false;
    for (int tentativo = 0; tentativo < 5 && !intero; ++tentativo) {
        esplora.close();
        premi(7);
        ASSERT_TRUE(fermo());
        intero = esplora.lstFile.ListCount() >= 20;
    }
    EXPECT_TRUE(intero);
}
