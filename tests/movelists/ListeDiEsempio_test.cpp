// The lists that come with the program.
#include "base/Archivio.h"
#include "link/ComandiTessaro.h"
#include "movelists/FileMosse.h"
#include "movelists/Mossa.h"
#include "serial/PortaAsio.h"
#include "simulator/Simulatore.h"
#include "tests/movelists/BancoEditor.h"

#include <QDir>
#include <gmock/gmock.h>

namespace {

const QString cartellaListe = QStringLiteral(CARTELLA_LISTE);

QStringList nomi()
{
    return QDir(cartellaListe).entryList({u"*.sqm"_s}, QDir::Files, QDir::Name);
}

QByteArray contenuto(const QString &nome)
{
    QFile file(cartellaListe + u'/' + nome);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QStringList righe(const QString &nome)
{
    QStringList righe;
    Archivio::apri(1, cartellaListe + u'/' + nome, Archivio::Modo::Lettura);
    FileMosse::leggi(1, [&](const QString &riga) { righe += riga; });
    Archivio::abbandona();
    return righe;
}

} // namespace

TEST(ListeDiEsempio, ThereAreEnoughOfThem)
{
    EXPECT_GE(nomi().size(), 6);
}

TEST(ListeDiEsempio, EachFileIsWrittenAsTheEditorWritesIt)
{
    for (const QString &nome : nomi())
        EXPECT_EQ(FileMosse::scritto(righe(nome)), contenuto(nome)) << nome.toStdString();
}

TEST(ListeDiEsempio, EveryLineIsOneOfTheLanguage)
{
    for (const QString &nome : nomi()) {
        for (const QString &riga : righe(nome))
            EXPECT_NE(leggiMossa(riga).specie, Mossa::Specie::Ignota)
                << nome.toStdString() << ": " << riga.toStdString();
    }
}

TEST(ListeDiEsempio, EachRunsOnTheRobotWhichUnderstandsAllOfIt)
{
    const CartellaDiProva cartella;
    Simulatore robot;
    robot.impostaBaud(0);
    ASSERT_TRUE(robot.apri()) << robot.errore().toStdString();
    ASSERT_TRUE(robot.collegaPorta(cartella.percorso(), 1)) << robot.errore().toStdString();
    ControlloSeriale COM(u"COM"_s, nullptr, std::make_unique<PortaAsio>(), cartella.percorso());
    COM.setPortOpen(true);
    ComandiTessaro::ApriSessione(COM);
    ASSERT_TRUE(aspetta([&] { return robot.robot().stato().sessioneAperta; }));

    for (const QString &nome : nomi()) {
        SCOPED_TRACE(nome.toStdString());
        robot.diario().svuota();
        ConsoleFinta console;
        frmEditor editor(console.finestra, COM, cartellaListe);
        console.ascolta(editor);
        // The waits after lines that say nothing are cut short as well.
        QTimer fretta;
        QObject::connect(&fretta, &QTimer::timeout, &fretta, [&] {
            if (editor.tmrEseguiMosse.Interval() > 1)
                editor.tmrEseguiMosse.setInterval(1);
        });
        fretta.start(1);
        const bool infinita = righe(nome).last() == u"Ripeti all'infinito";
        int giri = 0;
        console.dopo = [&] {
            if (infinita && editor.lstMosse.ListIndex() == 0 && ++giri == 3)
                editor.pulEsegui.click();
        };
        editor.ApriLista(cartellaListe + u'/' + nome);
        editor.pulEsegui.click();
        EXPECT_TRUE(aspetta([&] { return !editor.tmrEseguiMosse.Enabled(); }));
        EXPECT_EQ(giri, infinita ? 3 : 0);
        // A byte that starts no command goes last: when the robot has it, it has all before it.
        COM.Output("\xC8");
        EXPECT_TRUE(aspetta([&] { return !robot.diario().nonCapiti().isEmpty(); }));
        EXPECT_EQ(robot.diario().nonCapiti(), "\xC8");
        EXPECT_GE(robot.diario().comandi().size(), 5);
        for (const VoceDiario &voce : robot.diario().voci())
            EXPECT_NE(voce.nota, u"valore non previsto"_s) << voce.testo.toStdString();
        // What moves by itself has been stopped.
        EXPECT_EQ(robot.robot().stato().base, MotoBase::Fermo);
        (void)COM.Input();
    }
}
