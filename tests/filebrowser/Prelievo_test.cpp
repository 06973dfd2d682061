// Fetching a file.
#include "tests/filebrowser/BancoEsploraFile.h"
#include "tests/support/Sistema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QTextDocument>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString erroreLettura = u"Errore nella lettura dei file!"_s;
const QString scaricato = u"File scaricato correttamente!"_s;

// A telegram after the block: a block is processed when a byte after it has arrived.
const QByteArray seguito = b({31, 20});

struct PrelievoDiFile : Banco
{
    // Lists one file and fetches it; the robot sends that content on channel 4.
    void preleva(const QByteArray &nome, const QByteArray &contenuto)
    {
        apri({"foto"}, {nome});
        chiedi(esplora.lstFile.List(0), 4);
        robotFinito(blocco(4, contenuto) + seguito);
    }
    void finito(const QString &esito)
    {
        EXPECT_EQ(pannello(), esito);
        EXPECT_EQ(esplora.Tag(), QString());
        EXPECT_TRUE(esplora.isEnabled());
        EXPECT_FALSE(esplora.imgAttesa.Visible());
        EXPECT_EQ(scritti(), b({41, 4}));
        EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s);
    }
};

QByteArray tuttiIByte(qsizetype quanti)
{
    QByteArray byte(quanti, Qt::Uninitialized);
    for (qsizetype i = 0; i < quanti; ++i)
        byte[i] = static_cast<char>(i * 7 + i / 256);
    return byte;
}

} // namespace

TEST_F(PrelievoDiFile, ADoubleClickAsksForTheFileAndDisablesTheWindow)
{
    apri({"foto"}, {"a.txt"});
    doppioClick(esplora.lstFile, 0);
    EXPECT_EQ(porta.scritture, QList<QByteArray>{b({40, 1, 5}) + "a.txt"});
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    EXPECT_FALSE(esplora.isEnabled());
    EXPECT_EQ(pannello(), u"Attendere..."_s);
    EXPECT_TRUE(esplora.imgAttesa.Visible());
    EXPECT_FALSE(esplora.imgFoto.Visible());
    EXPECT_FALSE(esplora.lblNomeFoto.Visible());
}

TEST_F(PrelievoDiFile, EnterOnAFileFetchesItAsADoubleClickDoes)
{
    apri({"foto"}, {"a.txt", "b.jpg"});
    QTest::keyClick(&esplora.lstFile, Qt::Key_Home);
    QTest::keyClick(&esplora.lstFile, Qt::Key_Down);
    QTest::keyClick(&esplora.lstFile, Qt::Key_Return);
    EXPECT_EQ(scritti(), b({40, 1, 5}) + "b.jpg");
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    EXPECT_FALSE(esplora.isEnabled());
    EXPECT_TRUE(esplora.imgFoto.Visible());
    EXPECT_EQ(pannello(), u"Attendere..."_s);
}

TEST_F(PrelievoDiFile, ThePrefixIsSentBeforeTheName)
{
    apri({"foto"}, {});
    doppioClick(esplora.lstCartelle, 0);
    robotFinito(stato(1, 0) + voce(1, 1, "x.jpg") + stato(1, 255));
    scritti();
    doppioClick(esplora.lstFile, 0);
    EXPECT_EQ(scritti(), b({40, 1, 10}) + "foto/x.jpg");
}

TEST_F(PrelievoDiFile, AnOpenChannelIsAskedForOneWholeBlock)
{
    apri({}, {"a.txt"});
    doppioClick(esplora.lstFile, 0);
    scritti();
    robotFinito(stato(4, 0));
    EXPECT_EQ(scritti(), b({44, 4, 255, 255}));
    EXPECT_EQ(pannello(), u"Attendere..."_s);
}

TEST_F(PrelievoDiFile, TheBlockIsWrittenIntoTheProgramsFolderUnderItsName)
{
    preleva("dati.bin", tuttiIByte(1000));
    EXPECT_EQ(cartella.elenco(), QStringList{u"dati.bin"_s});
    EXPECT_EQ(cartella.leggi(u"dati.bin"_s), tuttiIByte(1000));
    finito(scaricato);
}

TEST_F(PrelievoDiFile, AFileOfTheLargestBlockIsWrittenWhole)
{
    preleva("dati.bin", tuttiIByte(65535));
    EXPECT_EQ(cartella.leggi(u"dati.bin"_s), tuttiIByte(65535));
    finito(scaricato);
}

TEST_F(PrelievoDiFile, ANameOf255BytesIsFetchedAndReplaced)
{
    const QByteArray nome(255, 'n');
    for (const QByteArray &contenuto : {QByteArray("prima"), QByteArray("dopo")}) {
        esplora.Scarica();
        preleva(nome, contenuto);
        finito(scaricato);
        EXPECT_EQ(cartella.leggi(QString::fromLatin1(nome)), contenuto);
        EXPECT_EQ(cartella.elenco(), QStringList{QString::fromLatin1(nome)});
    }
}

TEST_F(PrelievoDiFile, ANameThatIsTooLongForTheDiskIsReported)
{
    // On the disk each of these 255 characters takes two bytes.
    preleva(QByteArray(255, '\xe8'), "lungo");
    finito(erroreLettura);
    EXPECT_EQ(cartella.elenco(), QStringList());
}

TEST_F(PrelievoDiFile, ANameOfBytesAbove127IsWrittenAsItsText)
{
    preleva("perch\xe9 \x80\x85.txt", "ciao");
    finito(scaricato);
    EXPECT_EQ(cartella.elenco(), QStringList{u"perché €….txt"_s});
}

TEST_F(PrelievoDiFile, AnEmptyFileIsWrittenEmpty)
{
    preleva("vuoto.txt", {});
    EXPECT_EQ(cartella.leggi(u"vuoto.txt"_s), QByteArray());
    finito(scaricato);
}

TEST_F(PrelievoDiFile, AnEarlierFileOfThatNameIsReplaced)
{
    cartella.scrivi(u"a.txt"_s, "molto più lungo di prima");
    preleva("a.txt", "corto");
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "corto");
    EXPECT_EQ(cartella.elenco(), QStringList{u"a.txt"_s});
}

TEST_F(PrelievoDiFile, TheBlockIsProcessedOnlyAfterAFurtherByte)
{
    apri({}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    robot(blocco(4, "ciao"));
    gira(50);
    EXPECT_EQ(cartella.elenco(), QStringList());
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    EXPECT_FALSE(esplora.isEnabled());
    robotFinito(seguito);
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "ciao");
    finito(scaricato);
}

TEST_F(PrelievoDiFile, TheUnusedByteOfABlockIsConsumedWhateverItIs)
{
    apri({}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    QByteArray conAltro = blocco(4, "ciao");
    conAltro.back() = 31;
    robotFinito(conAltro + seguito);
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "ciao");
    EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s);
}

TEST_F(PrelievoDiFile, TheAnimationStepsWhileTheBlockIsIncomplete)
{
    apri({}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    robot(blocco(4, tuttiIByte(100)).first(60));
    for (int passo = 0; passo < 10; ++passo) {
        const int prima = esplora.imgAttesa.Picture();
        EXPECT_TRUE(aspetta([&] { return esplora.imgAttesa.Picture() != prima; }));
    }
    EXPECT_TRUE(esplora.imgAttesa.Visible());
}

TEST_F(PrelievoDiFile, AFetchedPhotoIsShownUnderItsName)
{
    apri({}, {"a.jpg"});
    doppioClick(esplora.lstFile, 0);
    EXPECT_TRUE(esplora.imgFoto.Visible());
    EXPECT_TRUE(esplora.lblNomeFoto.Visible());
    robotFinito(stato(4, 0));
    scritti();
    const QImage prima = esplora.imgFoto.grab().toImage();
    robotFinito(blocco(4, jpeg({320, 240}, Qt::red)) + seguito);
    finito(scaricato);
    EXPECT_EQ(esplora.lblNomeFoto.Caption(), u"a.jpg"_s);
    const QColor colore = esplora.imgFoto.grab().toImage().pixelColor(160, 120);
    EXPECT_NE(prima.pixelColor(160, 120), colore);
    EXPECT_GT(colore.red(), 240);
    EXPECT_LT(colore.blue(), 16);
}

TEST_F(PrelievoDiFile, ThePhotosToolTipIsItsExactName)
{
    preleva("gatti & cani, &lt;forse&gt;  due.jpg", jpeg({32, 32}));
    EXPECT_EQ(esplora.lblNomeFoto.Caption(), u"gatti & cani, &lt;forse&gt;  due.jpg"_s);
    QTextDocument letto;
    ASSERT_TRUE(Qt::mightBeRichText(esplora.lblNomeFoto.toolTip()));
    letto.setHtml(esplora.lblNomeFoto.toolTip());
    EXPECT_EQ(letto.toPlainText(), u"gatti & cani, &lt;forse&gt;  due.jpg"_s);
}

TEST_F(PrelievoDiFile, APhotoLargerThanItsPlaceIsShownWhole)
{
    preleva("a.jpg", jpeg({1280, 960}, Qt::green));
    const QImage vista = esplora.imgFoto.grab().toImage();
    for (const QPoint &punto : {QPoint(4, 4), QPoint(315, 235), QPoint(160, 120)})
        EXPECT_GT(vista.pixelColor(punto).green(), 240) << punto.x() << ' ' << punto.y();
}

TEST_F(PrelievoDiFile, APhotoSmallerThanItsPlaceIsEnlargedInItsProportions)
{
    // Twice as wide as high: there are empty bands above and below.
    preleva("a.jpg", jpeg({40, 20}, Qt::green));
    const QImage vista = esplora.imgFoto.grab().toImage();
    for (const QPoint &punto :
         {QPoint(6, 120), QPoint(313, 120), QPoint(160, 46), QPoint(160, 193)})
        EXPECT_GT(vista.pixelColor(punto).green(), 240) << punto.x() << ' ' << punto.y();
    const QColor fondo = esplora.palette().color(QPalette::Window);
    for (const QPoint &punto : {QPoint(160, 34), QPoint(160, 205)})
        EXPECT_EQ(vista.pixelColor(punto), fondo) << punto.y();
}

TEST_F(PrelievoDiFile, ANameInCapitalsIsNoPhoto)
{
    preleva("a.JPG", jpeg({32, 32}));
    finito(scaricato);
    EXPECT_FALSE(esplora.imgFoto.Visible());
    EXPECT_FALSE(esplora.lblNomeFoto.Visible());
    EXPECT_EQ(esplora.lblNomeFoto.Caption(), QString());
}

TEST_F(PrelievoDiFile, AFileThatIsNoPhotoHidesThePreviousPhoto)
{
    apri({}, {"a.jpg", "b.txt"});
    chiedi(u"a.jpg"_s, 4);
    robotFinito(blocco(4, jpeg({32, 32})) + seguito);
    EXPECT_TRUE(esplora.imgFoto.Visible());
    doppioClick(esplora.lstFile, 1);
    EXPECT_FALSE(esplora.imgFoto.Visible());
    EXPECT_FALSE(esplora.lblNomeFoto.Visible());
}

TEST_F(PrelievoDiFile, AnInvalidPhotoIsReportedAndTheFetchEnds)
{
    apri({}, {"a.jpg", "b.jpg"});
    chiedi(u"a.jpg"_s, 4);
    robotFinito(blocco(4, jpeg({320, 240}, Qt::red)) + seguito);
    scritti();
    chiedi(u"b.jpg"_s, 4);
    robotFinito(blocco(4, "nessuna foto") + seguito);
    finito(u"Errore nella rappresentazione dell'immagine!"_s);
    EXPECT_EQ(cartella.leggi(u"b.jpg"_s), "nessuna foto");
    EXPECT_EQ(esplora.lblNomeFoto.Caption(), u"b.jpg"_s);
    EXPECT_TRUE(esplora.imgFoto.Visible());
    const QColor colore = esplora.imgFoto.grab().toImage().pixelColor(160, 120);
    EXPECT_FALSE(colore.red() > 240 && colore.blue() < 16);
}

TEST_F(PrelievoDiFile, AFetchThatFailsLeavesTheWindowDisabledUntilItIsClosed)
{
    apri({"foto"}, {"a.txt"});
    doppioClick(esplora.lstFile, 0);
    scritti();
    robotFinito(stato(0, 2));
    EXPECT_EQ(pannello(), erroreLettura);
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    EXPECT_FALSE(esplora.isEnabled());
    EXPECT_TRUE(esplora.imgAttesa.Visible());
    EXPECT_EQ(scritti().size(), 18);
    esplora.close();
    esplora.Mostra();
    EXPECT_TRUE(esplora.isEnabled());
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_EQ(scritti(), b({40, 16, 0}));
}

TEST_F(PrelievoDiFile, TheEndOfAFolderIsNoAnswerToAFetch)
{
    apri({"foto"}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    robotFinito(stato(4, 255) + stato(4, 4));
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    EXPECT_FALSE(esplora.isEnabled());
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(PrelievoDiFile, ANameThatLeavesTheFolderIsRefusedBeforeAnythingIsWritten)
{
    const QString fuori = cartella.percorso(u"../fuori.txt"_s);
    for (const QByteArray nome : {"../fuori.txt", "..", "/tmp/fuori.txt", "..\\fuori.txt", "a/b",
                                  "", "a\nb", "a\x1b", "a\x7f", "a\x81", "C:a", "a "}) {
        esplora.Scarica();
        preleva(nome, "nemico");
        finito(erroreLettura);
        EXPECT_EQ(cartella.elenco(), QStringList()) << nome.toStdString();
        EXPECT_FALSE(QFile::exists(fuori));
    }
}

TEST_F(PrelievoDiFile, TheProgramsOwnFilesAreNotOverwritten)
{
    cartella.scrivi(u"Porta COM"_s, "3\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;");
    const QString programma = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    for (const QString &nome : {u"Porta COM"_s, u"PORTA COM"_s, u"prog.dat"_s, u"Prog.dat"_s,
                                u"Immagini.dat"_s, u"COM1"_s, programma}) {
        esplora.Scarica();
        preleva(nome.toLatin1(), "nemico");
        finito(erroreLettura);
    }
    EXPECT_EQ(cartella.elenco(), (QStringList{u"Porta COM"_s, u"prog.dat"_s}));
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "3\r\n");
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;");
}

TEST_F(PrelievoDiFile, ALinkThatLeadsOutOfTheFolderIsNotFollowed)
{
    const CartellaDiProva altrove;
    altrove.scrivi(u"vittima"_s, "intatta");
    if (!collega(altrove.percorso(u"vittima"_s), cartella.percorso(u"a.txt"_s)))
        GTEST_SKIP();
    preleva("a.txt", "nemico");
    finito(erroreLettura);
    EXPECT_EQ(altrove.leggi(u"vittima"_s), "intatta");
}

TEST_F(PrelievoDiFile, AFolderOfThatNameIsReportedAndStays)
{
    ASSERT_TRUE(QDir(cartella.percorso()).mkdir(u"a.txt"_s));
    preleva("a.txt", "ciao");
    finito(erroreLettura);
    EXPECT_EQ(cartella.elenco(), QStringList{u"a.txt"_s});
    EXPECT_TRUE(QFileInfo(cartella.percorso(u"a.txt"_s)).isDir());
}

TEST_F(PrelievoDiFile, OnAFullDiskTheOldFileStaysWhole)
{
    if (!DiscoPieno::possibile())
        GTEST_SKIP() << "no full disk here";
    cartella.scrivi(u"a.txt"_s, "vecchio");
    for (const qsizetype quanti : {2000, 65535}) {
        esplora.Scarica();
        {
            const DiscoPieno pieno(1000);
            preleva("a.txt", tuttiIByte(quanti));
        }
        finito(erroreLettura);
        EXPECT_EQ(cartella.leggi(u"a.txt"_s), "vecchio");
        EXPECT_EQ(cartella.elenco(), QStringList{u"a.txt"_s});
    }
    // A file that has room is written again.
    esplora.Scarica();
    preleva("a.txt", "nuovo");
    finito(scaricato);
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "nuovo");
}

TEST_F(PrelievoDiFile, WithoutTheRightToWriteTheOldFileStaysWhole)
{
    if (!SenzaDiritti::possibile())
        GTEST_SKIP() << "the right to write cannot be taken away here";
    cartella.scrivi(u"a.txt"_s, "vecchio");
    {
        const SenzaDiritti senza(cartella.percorso());
        preleva("a.txt", "nuovo");
    }
    finito(erroreLettura);
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "vecchio");
}

TEST_F(PrelievoDiFile, ARefusedPhotoIsNotShownFromAnOlderFile)
{
    apri({}, {"a.jpg"});
    ASSERT_TRUE(QDir(cartella.percorso()).mkdir(u"a.jpg"_s));
    chiedi(u"a.jpg"_s, 4);
    robotFinito(blocco(4, jpeg({32, 32})) + seguito);
    finito(erroreLettura);
    EXPECT_EQ(esplora.lblNomeFoto.Caption(), QString());
}

TEST_F(PrelievoDiFile, APathThatIsTooLongForTheCommandIsNotSent)
{
    apri({QByteArray(200, 'c')}, {});
    doppioClick(esplora.lstCartelle, 0);
    robotFinito(stato(1, 0) + voce(1, 1, QByteArray(54, 'f')) + voce(1, 1, QByteArray(55, 'f')) +
                stato(1, 255));
    scritti();
    doppioClick(esplora.lstFile, 1);
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(pannello(), erroreLettura);
    EXPECT_TRUE(esplora.isEnabled());
    EXPECT_EQ(esplora.Tag(), QString());
    doppioClick(esplora.lstFile, 0);
    EXPECT_EQ(scritti().size(), 3 + 255);
}

TEST_F(PrelievoDiFile, ClosedDuringAFetchTheBlockIsConsumedAndNotWritten)
{
    apri({"foto"}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    const QByteArray tutto = blocco(4, tuttiIByte(3000)) + seguito;
    robot(tutto.first(1500));
    esplora.close();
    EXPECT_FALSE(esplora.Visible());
    robotFinito(tutto.sliced(1500));
    EXPECT_EQ(cartella.elenco(), QStringList());
    EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s);
    esplora.Mostra();
    EXPECT_TRUE(esplora.isEnabled());
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
}

TEST_F(PrelievoDiFile, ABlockThatStillArrivesChangesNothingInAReopenedWindow)
{
    apri({"foto"}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    robot(blocco(4, tuttiIByte(3000)).first(1500));
    esplora.close();
    // Each check of the incomplete block shows the next picture of the animation, also while the
    // window is closed.
    gira(100);
    esplora.Mostra();
    EXPECT_EQ(esplora.imgAttesa.Picture(), 1);
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
}

TEST_F(PrelievoDiFile, ClosedWhileAPhotoIsRefusedTheWindowReopensWithItsDesignValues)
{
    apri({"foto"}, {"b.jpg"});
    chiedi(u"b.jpg"_s, 4);
    // The only moment between the report and the enabling of the window.
    QTimer utente;
    int chiusure = 0;
    QObject::connect(&utente, &QTimer::timeout, &utente, [&] {
        if (pannello() == scaricato && !esplora.isEnabled() && ++chiusure == 1)
            esplora.close();
    });
    utente.start(0);
    robotFinito(blocco(4, "nessuna foto") + seguito);
    utente.stop();
    EXPECT_EQ(chiusure, 1);
    EXPECT_FALSE(esplora.Visible());
    EXPECT_EQ(pannello(), u"Errore nella rappresentazione dell'immagine!"_s);
    EXPECT_EQ(scritti(), b({41, 4}));
    esplora.Mostra();
    EXPECT_EQ(esplora.lblNomeFoto.Caption(), QString());
    EXPECT_EQ(esplora.lblNomeFoto.toolTip(), QString());
    EXPECT_FALSE(esplora.imgFoto.Visible());
}

TEST_F(PrelievoDiFile, IfTheRobotStopsForAWhileTheFetchWaitsForTheRest)
{
    apri({}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    const QByteArray tutto = blocco(4, tuttiIByte(3000)) + seguito;
    robot(tutto.first(2999));
    gira(200);
    EXPECT_FALSE(esplora.isEnabled());
    EXPECT_EQ(cartella.elenco(), QStringList());
    robotFinito(tutto.sliced(2999));
    finito(scaricato);
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), tuttiIByte(3000));
}

TEST_F(PrelievoDiFile, TheListHasTheFocusAgainWhenTheWindowIsEnabled)
{
    preleva("a.txt", "ciao");
    EXPECT_EQ(esplora.focusWidget(), &esplora.lstFile);
}
