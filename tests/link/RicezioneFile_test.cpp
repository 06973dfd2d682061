// The receive engine: what the robot's storage sends (types 42, 45, 47).
#include "BancoRicezione.h"
#include "Modali.h"
#include "Sistema.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray blocco(int k, const QByteArray &corpo)
{
    const int n = static_cast<int>(corpo.size());
    return b({45, k, n & 0xFF, n >> 8}) + corpo;
}

QByteArray elenco(int k, int x, const QByteArray &corpo)
{
    return b({47, k, x, static_cast<int>(corpo.size())}) + corpo;
}

const QStringList fineDelFile = {u"finisciAttesa"_s, u"riabilita"_s, u"ImmagineAttesa ferma"_s};

} // namespace

TEST(StatoMemoria, Zero0WhileAListIsAwaitedAsksForTheNextEntries)
{
    BancoRicezione p;
    p.file.cheCosa = AscoltatoreFile::Attesa::Elenco;
    p.banco.BarraStato.setPanels(3, u"Apertura..."_s);
    ASSERT_TRUE(p.digerisci(b({42, 3, 0})));
    EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({46, 3})});
    EXPECT_EQ(p.pannello(3), QString());
    EXPECT_EQ(p.pannello(2), u"<42>"_s);
}

TEST(StatoMemoria, Zero0WhileAFileIsAwaitedAsksForOneBlock)
{
    BancoRicezione p;
    p.file.cheCosa = AscoltatoreFile::Attesa::File;
    p.banco.BarraStato.setPanels(3, u"Lettura..."_s);
    ASSERT_TRUE(p.digerisci(b({42, 5, 0})));
    EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({44, 5, 255, 255})});
    EXPECT_EQ(p.pannello(3), u"Lettura..."_s);
}

TEST(StatoMemoria, Zero0WhileNothingIsAwaitedDoesNothing)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({42, 5, 0})));
    EXPECT_TRUE(p.porta.scritture.isEmpty());
    EXPECT_TRUE(p.file.registro.isEmpty());
}

TEST(StatoMemoria, Four4IsConsumedAndIgnored)
{
    for (const auto attesa : {AscoltatoreFile::Attesa::Niente, AscoltatoreFile::Attesa::Elenco,
                              AscoltatoreFile::Attesa::File}) {
        BancoRicezione p;
        p.file.cheCosa = attesa;
        ASSERT_TRUE(p.digerisci(b({42, 5, 4, 31, 8})));
        EXPECT_TRUE(p.porta.scritture.isEmpty());
        EXPECT_TRUE(p.file.registro.isEmpty());
        EXPECT_EQ(p.pannello(3), QString());
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
    }
}

TEST(StatoMemoria, The255WhileAListIsAwaitedEndsIt)
{
    BancoRicezione p;
    p.file.cheCosa = AscoltatoreFile::Attesa::Elenco;
    ASSERT_TRUE(p.digerisci(b({42, 6, 255})));
    EXPECT_EQ(p.file.registro, (QStringList{u"finisciAttesa"_s, u"ImmagineAttesa ferma"_s}));
    EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({41, 6})});
}

TEST(StatoMemoria, The255WhileAFileIsAwaitedDoesNothing)
{
    BancoRicezione p;
    p.file.cheCosa = AscoltatoreFile::Attesa::File;
    ASSERT_TRUE(p.digerisci(b({42, 6, 255})));
    EXPECT_TRUE(p.file.registro.isEmpty());
    EXPECT_TRUE(p.porta.scritture.isEmpty());
}

TEST(StatoMemoria, AnyOtherValueTellsOfAnErrorAndClosesTheChannels1To9)
{
    QList<QByteArray> chiusi;
    for (int canale = 1; canale <= 9; ++canale)
        chiusi << b({41, canale});
    for (const int x : {1, 2, 3, 5, 128, 254}) {
        BancoRicezione p;
        ASSERT_TRUE(p.digerisci(b({42, 6, x})));
        EXPECT_EQ(p.pannello(3), u"Errore nella lettura dei file!"_s);
        EXPECT_EQ(p.porta.scritture, chiusi) << x;
    }
}

TEST(StatoMemoria, WithTheWindowClosedConsumes3BytesAndDoesNothing)
{
    for (const int x : {0, 7, 255}) {
        BancoRicezione p;
        p.file.inVista = false;
        p.file.cheCosa = AscoltatoreFile::Attesa::Elenco;
        ASSERT_TRUE(p.digerisci(b({42, 6, x, 31, 8})));
        EXPECT_TRUE(p.porta.scritture.isEmpty());
        EXPECT_EQ(p.pannello(3), QString());
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
    }
}

TEST(StatoMemoria, WithTheWindowOpenWaitsForItsThirdByte)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({42, 6})));
    EXPECT_EQ(p.accumulatore().lunghezza(), 2);
    ASSERT_TRUE(p.digerisci(b({9})));
    EXPECT_EQ(p.pannello(3), u"Errore nella lettura dei file!"_s);
}

TEST(StatoMemoria, WithTheWindowClosedDoesNotWaitForItsThirdByte)
{
    BancoRicezione p;
    p.file.inVista = false;
    ASSERT_TRUE(p.digerisci(b({42, 6})));
    // What comes now is a telegram of its own.
    ASSERT_TRUE(p.digerisci(b({9})));
    EXPECT_EQ(p.pannello(2), u"<9>"_s);
}

TEST(BloccoElenco, GoesToTheWindowWithChannelValueAndBody)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(elenco(4, 16, "FOTO") + b({0, 31, 8})));
    EXPECT_EQ(p.file.registro, QStringList{u"VisualizzaElenco 4 16 4"_s});
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"});
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}

TEST(BloccoElenco, WithExactlyNPlus4BytesIsAcceptedAndLeavesNothing)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(elenco(4, 16, "FOTO")));
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"});
    EXPECT_EQ(p.pannello(2), u"<47>"_s);
    // The byte that follows is a telegram of its own.
    ASSERT_TRUE(p.digerisci(b({99})));
    EXPECT_EQ(p.pannello(2), u"<99>"_s);
}

TEST(BloccoElenco, WithOneByteLessWaits)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(elenco(4, 16, "FOTO").chopped(1)));
    EXPECT_TRUE(p.file.registro.isEmpty());
    EXPECT_EQ(p.accumulatore().lunghezza(), 7);
    ASSERT_TRUE(p.digerisci("O"));
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"});
}

TEST(BloccoElenco, CutAtEveryByteGoesToTheWindowOnce)
{
    const QByteArray flusso = elenco(4, 2, "FOTO") + b({0, 31, 8});
    for (qsizetype taglio = 1; taglio < flusso.size(); ++taglio) {
        BancoRicezione p;
        ASSERT_TRUE(p.arriva(flusso.first(taglio)));
        ASSERT_TRUE(p.digerisci(flusso.sliced(taglio)));
        EXPECT_EQ(p.file.registro, QStringList{u"VisualizzaElenco 4 2 4"_s}) << taglio;
        EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"}) << taglio;
    }
}

TEST(BloccoElenco, MayBeEmptyAndMayHold255Bytes)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(elenco(1, 2, {}) + b({0})));
    ASSERT_TRUE(p.digerisci(elenco(1, 2, QByteArray(255, 'x')) + b({0})));
    EXPECT_EQ(p.file.corpi, (QList<QByteArray>{{}, QByteArray(255, 'x')}));
}

TEST(BloccoElenco, WithTheWindowClosedIsConsumedWhole)
{
    BancoRicezione p;
    p.file.inVista = false;
    ASSERT_TRUE(p.digerisci(elenco(4, 16, b({31, 1, 31, 1})) + b({0, 31, 8})));
    EXPECT_TRUE(p.file.registro.isEmpty());
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Temperatura:8"_s});
}

TEST(BloccoFile, IsSavedByteForByteUnderTheNameAskedFor)
{
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti.append(static_cast<char>(i));
    BancoRicezione p;
    p.file.nome = u"dati.dat"_s;
    p.file.cheCosa = AscoltatoreFile::Attesa::File;
    // The 31 begins the next telegram, whose tick waits.
    ASSERT_TRUE(p.arriva(blocco(5, tutti) + b({0, 31})));
    ASSERT_TRUE(aspetta([&] { return p.accumulatore().lunghezza() == 1; }));
    EXPECT_EQ(p.cartella.leggi(u"dati.dat"_s), tutti);
    EXPECT_EQ(p.cartella.elenco(), QStringList{u"dati.dat"_s});
    EXPECT_EQ(p.pannello(3), u"File scaricato correttamente!"_s);
    EXPECT_EQ(p.file.registro, fineDelFile);
    EXPECT_TRUE(p.file.abilitata);
    EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({41, 5})});
    EXPECT_EQ(p.pannello(2), u"<45>"_s);
}

TEST(BloccoFile, WithExactlyNPlus5BytesWaitsForOneMore)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(blocco(5, "abc") + b({31})));
    EXPECT_TRUE(p.cartella.elenco().isEmpty());
    EXPECT_EQ(p.accumulatore().lunghezza(), 8);
    ASSERT_TRUE(p.digerisci(b({31, 8})));
    EXPECT_EQ(p.cartella.leggi(u"foto.bin"_s), "abc");
    // The fifth byte beyond the body was consumed with it, the next one begins a telegram.
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}

TEST(BloccoFile, StepsTheWaitAnimationAtEveryLook)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({45, 5, 3, 0})));
    EXPECT_TRUE(aspetta([&] { return p.file.passi >= 3; }));
    EXPECT_TRUE(p.file.registro.isEmpty());
}

TEST(BloccoFile, CutAtEveryByteIsSavedTheSame)
{
    const QByteArray flusso = blocco(5, "un corpo") + b({0, 0});
    for (qsizetype taglio = 1; taglio < flusso.size(); ++taglio) {
        BancoRicezione p;
        ASSERT_TRUE(p.arriva(flusso.first(taglio)));
        ASSERT_TRUE(p.digerisci(flusso.sliced(taglio)));
        ASSERT_EQ(p.cartella.leggi(u"foto.bin"_s), "un corpo") << taglio;
        ASSERT_EQ(p.file.registro, fineDelFile) << taglio;
        ASSERT_EQ(p.porta.scritture, QList<QByteArray>{b({41, 5})}) << taglio;
    }
}

TEST(BloccoFile, ComingByteByByteIsSavedTheSame)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arrivaUnoAlla(blocco(5, "un corpo") + b({0})));
    EXPECT_TRUE(p.cartella.elenco().isEmpty());
    ASSERT_TRUE(p.digerisci(b({0})));
    EXPECT_EQ(p.cartella.leggi(u"foto.bin"_s), "un corpo");
    EXPECT_EQ(p.file.registro, fineDelFile);
}

TEST(BloccoFile, HoldsUpTo65535Bytes)
{
    BancoRicezione p;
    QByteArray corpo(65535, 'x');
    corpo[0] = 'a';
    corpo[65534] = 'z';
    ASSERT_TRUE(p.digerisci(blocco(1, corpo) + b({0, 31, 8})));
    EXPECT_TRUE(p.cartella.leggi(u"foto.bin"_s) == corpo);
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}

TEST(BloccoFile, MayBeEmpty)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(blocco(1, {}) + b({0, 0})));
    EXPECT_EQ(p.cartella.leggi(u"foto.bin"_s), QByteArray());
    EXPECT_EQ(p.pannello(3), u"File scaricato correttamente!"_s);
}

TEST(BloccoFile, ReplacesAnEarlierFileOfThatName)
{
    BancoRicezione p;
    p.cartella.scrivi(u"foto.bin"_s, "un testo molto più lungo");
    ASSERT_TRUE(p.digerisci(blocco(1, "corto") + b({0, 0})));
    EXPECT_EQ(p.cartella.leggi(u"foto.bin"_s), "corto");
}

TEST(BloccoFile, APictureIsShownWithItsName)
{
    BancoRicezione p;
    p.file.nome = u"gatto.jpg"_s;
    ASSERT_TRUE(p.digerisci(blocco(5, "jpeg") + b({0, 0})));
    EXPECT_EQ(p.file.registro,
              (QStringList{u"caricaFoto gatto.jpg"_s, u"intitolaFoto gatto.jpg"_s}) + fineDelFile);
    EXPECT_EQ(p.pannello(3), u"File scaricato correttamente!"_s);
}

TEST(BloccoFile, OnlySmallLettersMakeAPicture)
{
    for (const QString &nome : {u"gatto.JPG"_s, u"gatto.jpeg"_s, u"gattojpg"_s}) {
        BancoRicezione p;
        p.file.nome = nome;
        ASSERT_TRUE(p.digerisci(blocco(5, "jpeg") + b({0, 0})));
        EXPECT_EQ(p.file.registro, fineDelFile);
        EXPECT_TRUE(p.cartella.contiene(nome));
    }
}

TEST(BloccoFile, APictureThatCannotBeShownIsToldAndTheWorkGoesOn)
{
    for (const int errore : {76, 481}) {
        BancoRicezione p;
        p.file.nome = u"gatto.jpg"_s;
        p.file.erroreFoto = errore;
        ASSERT_TRUE(p.digerisci(blocco(5, "niente") + b({0, 31, 8})));
        EXPECT_EQ(p.pannello(3), u"Errore nella rappresentazione dell'immagine!"_s);
        EXPECT_EQ(p.file.registro, (QStringList{u"caricaFoto gatto.jpg"_s, u"togliFoto"_s,
                                                u"intitolaFoto gatto.jpg"_s}) +
                                       fineDelFile);
        EXPECT_EQ(p.cartella.leggi(u"gatto.jpg"_s), "niente");
        EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({41, 5})});
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
    }
}

TEST(BloccoFile, AHostileNameWritesNothingAnywhere)
{
    for (const QString &nome : {QString(),      u"."_s,
                                u".."_s,        u"../fuori.txt"_s,
                                u"a/b"_s,       u"a\\b"_s,
                                u"..\\fuori"_s, u"/tmp/fuori"_s,
                                u"C:fuori"_s,   u"a\nb"_s,
                                u"a\u0001"_s,   u"\u007f"_s,
                                u"a\u0081"_s,   QString(QChar(0)),
                                u"a\u0000b"_s,  u"sotto/"_s,
                                u" "_s,         u"punto."_s,
                                u"*"_s,         u"a|b"_s}) {
        BancoRicezione p;
        QDir().mkdir(u"dentro"_s);
        QDir().mkdir(u"a"_s);
        QDir::setCurrent(p.cartella.percorso(u"dentro"_s));
        MotoreRicezione motore(p.banco.COM, p.banco.tmrElabInput, p.banco.telemetria(),
                               p.cartella.percorso(u"dentro"_s));
        motore.ascoltaFile(&p.file);
        p.file.nome = nome;
        p.file.cheCosa = AscoltatoreFile::Attesa::File;
        ASSERT_TRUE(p.digerisci(blocco(5, "male") + b({0, 31, 8}))) << nome.toStdString();
        EXPECT_EQ(p.pannello(3), u"Errore nella lettura dei file!"_s);
        EXPECT_EQ(p.file.registro, fineDelFile) << nome.toStdString();
        EXPECT_TRUE(p.file.abilitata);
        EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({41, 5})});
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
        EXPECT_EQ(p.cartella.elenco(), (QStringList{u"a"_s, u"dentro"_s})) << nome.toStdString();
        EXPECT_TRUE(QDir(p.cartella.percorso(u"dentro"_s)).isEmpty()) << nome.toStdString();
        EXPECT_TRUE(QDir(p.cartella.percorso(u"a"_s)).isEmpty());
    }
}

TEST(BloccoFile, ANameOf255BytesIsWrittenAndReplaced)
{
    BancoRicezione p;
    p.file.nome = QString(255, u'x');
    for (const QByteArray &corpo : {QByteArray("lungo"), QByteArray("di nuovo")}) {
        ASSERT_TRUE(p.digerisci(blocco(5, corpo) + b({0, 31, 8})));
        EXPECT_EQ(p.pannello(3), u"File scaricato correttamente!"_s);
        EXPECT_EQ(p.cartella.leggi(p.file.nome), corpo);
        EXPECT_EQ(p.cartella.elenco(), QStringList{p.file.nome});
    }
}

TEST(BloccoFile, ANameThatIsTooLongForTheDiskIsTold)
{
    // 255 characters that the disk keeps in two bytes each.
    BancoRicezione p;
    p.file.nome = QString(255, u'è');
    ASSERT_TRUE(p.digerisci(blocco(5, "lungo") + b({0, 31, 8})));
    EXPECT_EQ(p.pannello(3), u"Errore nella lettura dei file!"_s);
    EXPECT_EQ(p.file.registro, fineDelFile);
    EXPECT_TRUE(p.cartella.elenco().isEmpty());
    EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({41, 5})});
}

TEST(BloccoFile, ALinkThatLeadsElsewhereIsNotFollowed)
{
    const CartellaDiProva fuori;
    fuori.scrivi(u"bersaglio"_s, "intatto");
    BancoRicezione p;
    if (!collega(fuori.percorso(u"bersaglio"_s), p.cartella.percorso(u"foto.bin"_s)))
        GTEST_SKIP();
    ASSERT_TRUE(p.digerisci(blocco(5, "male") + b({0, 0})));
    EXPECT_EQ(p.pannello(3), u"Errore nella lettura dei file!"_s);
    EXPECT_EQ(fuori.leggi(u"bersaglio"_s), "intatto");
}

TEST(BloccoFile, AFileThatCannotBeWrittenIsToldAndTheTelegramConsumed)
{
    BancoRicezione p;
    QDir().mkdir(u"foto.bin"_s);
    ASSERT_TRUE(p.digerisci(blocco(5, "corpo") + b({0, 31, 8})));
    EXPECT_EQ(p.pannello(3), u"Errore nella lettura dei file!"_s);
    EXPECT_EQ(p.file.registro, fineDelFile);
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}
