// The listings of the robot's folders.
#include "tests/filebrowser/BancoEsploraFile.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString erroreLettura = u"Errore nella lettura dei file!"_s;

struct Elenchi : Banco
{
    void apriCartella(const QString &nome)
    {
        doppioClick(esplora.lstCartelle, rigaDi(esplora.lstCartelle, nome));
    }
    // What the window system does when the user goes to another window of the program and comes
    // back.
    void torna()
    {
        altra.Mostra();
        QEvent evento(QEvent::WindowActivate);
        QApplication::sendEvent(&esplora, &evento);
    }
    Finestra altra{u"altra"_s, u"Altra"_s};

    static QByteArray chiudiTutti()
    {
        QByteArray byte;
        for (int k = 1; k <= 9; ++k)
            byte += b({41, k});
        return byte;
    }
};

} // namespace

TEST_F(Elenchi, TheFirstShowingAsksForTheTopLevel)
{
    esplora.Mostra();
    EXPECT_EQ(porta.scritture, QList<QByteArray>{b({40, 16, 0})});
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_TRUE(esplora.imgAttesa.Visible());
    EXPECT_EQ(esplora.imgAttesa.Picture(), 1);
}

TEST_F(Elenchi, AnOpenChannelIsAskedForItsFirstEntry)
{
    esplora.Mostra();
    scritti();
    console.BarraStato.setPanels(3, u"prima"_s);
    robotFinito(stato(7, 0));
    EXPECT_EQ(scritti(), b({46, 7}));
    EXPECT_EQ(pannello(), QString());
}

TEST_F(Elenchi, EachEntryGoesToItsListAndAsksForTheNextOne)
{
    esplora.Mostra();
    robotFinito(stato(3, 0));
    scritti();
    robotFinito(voce(3, 2, "foto") + voce(3, 1, "b.txt") + voce(3, 0, "a.txt") + voce(3, 255, "c") +
                voce(3, 2, "alfa"));
    EXPECT_EQ(voci(esplora.lstCartelle), (QStringList{u"foto"_s, u"alfa"_s}));
    EXPECT_EQ(voci(esplora.lstFile), (QStringList{u"b.txt"_s, u"a.txt"_s, u"c"_s}));
    EXPECT_EQ(scritti(), b({46, 3, 46, 3, 46, 3, 46, 3, 46, 3}));
}

TEST_F(Elenchi, TheEndOfTheFolderEndsTheListing)
{
    esplora.Mostra();
    robotFinito(stato(3, 0) + voce(3, 2, "foto"));
    EXPECT_TRUE(esplora.imgAttesa.Visible());
    scritti();
    robotFinito(stato(3, 255));
    EXPECT_EQ(esplora.Tag(), QString());
    EXPECT_FALSE(esplora.imgAttesa.Visible());
    EXPECT_EQ(scritti(), b({41, 3}));
}

TEST_F(Elenchi, AnEmptyFolderEndsAtOnceWithEmptyLists)
{
    esplora.Mostra();
    robotFinito(stato(3, 0) + stato(3, 255));
    EXPECT_EQ(esplora.Tag(), QString());
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
    EXPECT_EQ(esplora.lstFile.ListCount(), 0);
    EXPECT_FALSE(esplora.imgAttesa.Visible());
}

TEST_F(Elenchi, TheAnimationGoesFromItsEighthPictureBackToTheFirst)
{
    esplora.Mostra();
    QList<int> immagini{esplora.imgAttesa.Picture()};
    robotFinito(stato(3, 0));
    for (int i = 0; i < 9; ++i) {
        robotFinito(voce(3, 1, "x"));
        immagini << esplora.imgAttesa.Picture();
    }
    EXPECT_EQ(immagini, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 1, 2}));
}

TEST_F(Elenchi, ADoubleClickOnAFolderOpensItByItsNameAlone)
{
    apri({"foto", "dentro"}, {"a.txt"});
    apriCartella(u"foto"_s);
    EXPECT_EQ(scritti(), b({40, 16, 4}) + "foto");
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_EQ(esplora.lstCartelle.Tag(), u"foto/"_s);
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
    EXPECT_EQ(esplora.lstFile.ListCount(), 0);
    robotFinito(stato(1, 0) + voce(1, 2, "altra") + stato(1, 255));
    scritti();
    apriCartella(u"altra"_s);
    EXPECT_EQ(scritti(), b({40, 16, 5}) + "altra");
    EXPECT_EQ(esplora.lstCartelle.Tag(), u"altra/"_s);
}

TEST_F(Elenchi, TheWordsOfTheTopLevelAreSentAsTheirPaths)
{
    apri({"disk", "mmc", "usb"}, {});
    apriCartella(u"mmc"_s);
    EXPECT_EQ(scritti(), b({40, 16, 6}) + "../mmc");
    EXPECT_EQ(esplora.lstCartelle.Tag(), u"mmc/"_s);
    robotFinito(stato(1, 0) + voce(1, 2, "disk") + voce(1, 2, "usb") + stato(1, 255));
    scritti();
    apriCartella(u"usb"_s);
    EXPECT_EQ(scritti(), b({40, 16, 6}) + "../usb");
    EXPECT_EQ(esplora.lstCartelle.Tag(), u"usb/"_s);
    robotFinito(stato(1, 0) + voce(1, 2, "disk") + stato(1, 255));
    scritti();
    apriCartella(u"disk"_s);
    EXPECT_EQ(scritti(), b({40, 16, 0}));
    EXPECT_EQ(esplora.lstCartelle.Tag(), QString());
}

TEST_F(Elenchi, ADotIsSentUnchangedAndClearsThePrefix)
{
    apri({"foto"}, {});
    apriCartella(u"foto"_s);
    robotFinito(stato(1, 0) + voce(1, 2, ".") + stato(1, 255));
    scritti();
    apriCartella(u"."_s);
    EXPECT_EQ(scritti(), b({40, 16, 1}) + ".");
    EXPECT_EQ(esplora.lstCartelle.Tag(), QString());
}

TEST_F(Elenchi, OpeningAFolderStartsTheAnimationOnlyWithItsFirstEntry)
{
    apri({"foto"}, {});
    apriCartella(u"foto"_s);
    robotFinito(stato(1, 0));
    EXPECT_FALSE(esplora.imgAttesa.Visible());
    robotFinito(voce(1, 1, "a"));
    EXPECT_TRUE(esplora.imgAttesa.Visible());
}

TEST_F(Elenchi, HomeClearsTheListsAndThePrefixAndAsksForTheTopLevel)
{
    apri({"foto"}, {"a"});
    apriCartella(u"foto"_s);
    robotFinito(stato(1, 0) + voce(1, 1, "b") + stato(1, 255));
    scritti();
    esplora.pulHome.click();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_EQ(esplora.lstCartelle.Tag(), QString());
    EXPECT_EQ(esplora.lstFile.ListCount(), 0);
    EXPECT_TRUE(esplora.imgAttesa.Visible());
}

TEST_F(Elenchi, ASecondOpeningKeepsTheLists)
{
    apri({"foto"}, {"a"});
    esplora.Mostra();
    torna();
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(voci(esplora.lstCartelle), QStringList{u"foto"_s});
    EXPECT_EQ(voci(esplora.lstFile), QStringList{u"a"_s});
}

TEST_F(Elenchi, ComingBackToAFolderWithoutFoldersGoesToTheTopLevel)
{
    apri({"foto"}, {});
    apriCartella(u"foto"_s);
    robotFinito(stato(1, 0) + voce(1, 1, "b.jpg") + stato(1, 255));
    scritti();
    torna();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
    EXPECT_EQ(esplora.lstFile.ListCount(), 0);
}

TEST_F(Elenchi, ComingBackDuringAFetchLeavesItAlone)
{
    apri({}, {"b.txt"});
    chiedi(u"b.txt"_s, 1);
    torna();
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Elenchi, AStatusOfFailureIsReportedAndClosesAllChannels)
{
    for (const int x : {1, 2, 3, 5, 24, 254}) {
        esplora.Mostra();
        scritti();
        console.BarraStato.setPanels(3, {});
        robotFinito(stato(8, x));
        EXPECT_EQ(pannello(), erroreLettura) << x;
        EXPECT_EQ(scritti(), chiudiTutti()) << x;
        EXPECT_EQ(esplora.Tag(), u"Elenco"_s) << x;
        EXPECT_TRUE(esplora.imgAttesa.Visible()) << x;
    }
}

TEST_F(Elenchi, StatusFourIsConsumedAndDoesNothing)
{
    esplora.Mostra();
    scritti();
    console.BarraStato.setPanels(3, u"prima"_s);
    robotFinito(stato(1, 4) + b({31, 21}));
    EXPECT_EQ(console.lblTemperatura.Caption(), u"21°"_s);
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(pannello(), u"prima"_s);
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    robotFinito(stato(1, 0));
    EXPECT_EQ(scritti(), b({46, 1}));
}

TEST_F(Elenchi, WithTheWindowClosedEveryStatusIsConsumedAndDoesNothing)
{
    for (const int x : {0, 2, 4, 255}) {
        robotFinito(stato(1, x) + b({31, x % 50}));
        EXPECT_EQ(console.lblTemperatura.Caption(), QString::number(x % 50) + u'°');
    }
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(pannello(), QString());
    EXPECT_EQ(console.BarraStato.Panels(2), u"<31>"_s);
}

TEST_F(Elenchi, WithTheWindowClosedAnEntryIsConsumedAndDoesNothing)
{
    robotFinito(voce(1, 2, "foto") + b({31, 21}));
    EXPECT_EQ(console.lblTemperatura.Caption(), u"21°"_s);
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Elenchi, TheEndWithoutAListingDoesNothing)
{
    apri({"foto"}, {});
    robotFinito(stato(1, 255) + stato(1, 0));
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Elenchi, TheUnusedByteOfAnEntryIsConsumedWhateverItIs)
{
    esplora.Mostra();
    robotFinito(stato(1, 0));
    QByteArray entrata = voce(1, 1, "a");
    entrata.back() = 31;
    robotFinito(entrata + b({31, 20}));
    EXPECT_EQ(voci(esplora.lstFile), QStringList{u"a"_s});
    EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s);
}

TEST_F(Elenchi, AnEntryWithoutItsUnusedByteIsConsumedAndTheNextByteBeginsATelegram)
{
    esplora.Mostra();
    robotFinito(stato(1, 0));
    QByteArray corta = voce(1, 1, "abc");
    corta.chop(1);
    robotFinito(corta);
    EXPECT_EQ(voci(esplora.lstFile), QStringList{u"abc"_s});
    robotFinito(b({31, 33}));
    EXPECT_EQ(console.lblTemperatura.Caption(), u"33°"_s);
}

TEST_F(Elenchi, AnIncompleteNameWaitsForItsRest)
{
    esplora.Mostra();
    robotFinito(stato(1, 0));
    const QByteArray intera = voce(1, 1, "abc");
    robot(intera.chopped(2));
    gira(20);
    EXPECT_EQ(esplora.lstFile.ListCount(), 0);
    robotFinito(intera.last(2));
    EXPECT_EQ(voci(esplora.lstFile), QStringList{u"abc"_s});
}

TEST_F(Elenchi, NamesAreSentBackWithAllTheirBytes)
{
    QByteArray tutti;
    for (int i = 1; i < 256; ++i)
        tutti += static_cast<char>(i);
    apri({tutti}, {});
    doppioClick(esplora.lstCartelle, 0);
    EXPECT_EQ(scritti(), b({40, 16, 255}) + tutti);
}

TEST_F(Elenchi, ANameOfCharactersOutsideAsciiIsShownAsText)
{
    apri({}, {"perch\xe9 \x80.txt"});
    EXPECT_EQ(esplora.lstFile.List(0), u"perché €.txt"_s);
}

TEST_F(Elenchi, EnterOnAFolderOpensItAsADoubleClickDoes)
{
    apri({"foto", "mmc"}, {});
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(&esplora.lstCartelle, Qt::Key_Down);
        QTest::keyClick(&esplora.lstCartelle, Qt::Key_Down);
        EXPECT_EQ(esplora.lstCartelle.Text(), u"mmc"_s);
        QTest::keyClick(&esplora.lstCartelle, tasto);
        EXPECT_EQ(scritti(), b({40, 16, 6}) + "../mmc");
        EXPECT_EQ(esplora.lstCartelle.Tag(), u"mmc/"_s);
        EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
        robotFinito(stato(1, 0) + voce(1, 2, "disk") + voce(1, 2, "mmc") + stato(1, 255));
        scritti();
    }
}

TEST_F(Elenchi, EnterWithNothingChosenDoesNothing)
{
    apri({"foto"}, {"a"});
    for (Elenco *lista : {&esplora.lstCartelle, &esplora.lstFile}) {
        lista->setFocus();
        QTest::keyClick(lista, Qt::Key_Return);
    }
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(esplora.Tag(), QString());
    EXPECT_TRUE(esplora.isEnabled());
}

TEST_F(Elenchi, TheTabKeyGoesFromTheFoldersToTheFilesToTheTopLevelsButton)
{
    apri({"foto"}, {"a"});
    EXPECT_EQ(esplora.focusWidget(), &esplora.lstCartelle);
    QTest::keyClick(esplora.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(esplora.focusWidget(), &esplora.lstFile);
    QTest::keyClick(esplora.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(esplora.focusWidget(), &esplora.pulHome);
    scritti();
    QTest::keyClick(esplora.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(scritti(), b({40, 16, 0}));
}

TEST_F(Elenchi, AClickBesideTheRowsKeepsTheSelection)
{
    apri({}, {"a", "b"});
    esplora.lstFile.setListIndex(1);
    QTest::mouseClick(esplora.lstFile.viewport(), Qt::LeftButton, {},
                      esplora.lstFile.viewport()->rect().center());
    EXPECT_EQ(esplora.lstFile.ListIndex(), 1);
    EXPECT_TRUE(esplora.lstFile.item(1)->isSelected());
}

TEST_F(Elenchi, TheKeysMoveInAListThatIsStillGrowing)
{
    esplora.Mostra();
    QByteArray elenco = stato(1, 0);
    for (int i = 0; i < 200; ++i)
        elenco += voce(1, 1, QByteArray::number(i));
    robotFinito(elenco);
    QTest::keyClick(&esplora.lstFile, Qt::Key_Home);
    QTest::keyClick(&esplora.lstFile, Qt::Key_End);
    EXPECT_EQ(esplora.lstFile.Text(), u"199"_s);
    robotFinito(voce(1, 1, "dopo"));
    QTest::keyClick(&esplora.lstFile, Qt::Key_Down);
    EXPECT_EQ(esplora.lstFile.Text(), u"dopo"_s);
    robotFinito(voce(1, 1, "in fondo"));
    QTest::keyClick(&esplora.lstFile, Qt::Key_PageUp);
    EXPECT_GT(esplora.lstFile.ListIndex(), 100);
    EXPECT_EQ(esplora.lstFile.ListCount(), 202);
}

TEST_F(Elenchi, ADoubleClickBesideTheRowsDoesNothing)
{
    apri({}, {});
    for (Elenco *lista : {&esplora.lstCartelle, &esplora.lstFile}) {
        const QPoint dove = lista->viewport()->rect().center();
        QMouseEvent evento(QEvent::MouseButtonDblClick, dove, lista->viewport()->mapToGlobal(dove),
                           Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(lista->viewport(), &evento);
    }
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_TRUE(esplora.isEnabled());
}

TEST_F(Elenchi, ADoubleClickBesideTheRowsOrWithAnotherButtonDoesNothing)
{
    apri({"foto"}, {"a.jpg"});
    scritti();
    for (Elenco *lista : {&esplora.lstCartelle, &esplora.lstFile}) {
        lista->setListIndex(0);
        QWidget &sopra = *lista->viewport();
        const QPoint riga = lista->visualItemRect(lista->item(0)).center();
        const QPoint sotto(riga.x(), sopra.height() - 5);
        ASSERT_EQ(lista->itemAt(sotto), nullptr);
        for (const auto &[pulsante, punto] :
             {std::pair(Qt::LeftButton, sotto), std::pair(Qt::RightButton, riga),
              std::pair(Qt::MiddleButton, riga), std::pair(Qt::RightButton, sotto)}) {
            QTest::mouseClick(&sopra, pulsante, {}, punto);
            QMouseEvent secondo(QEvent::MouseButtonDblClick, punto, sopra.mapToGlobal(punto),
                                pulsante, pulsante, Qt::NoModifier);
            QApplication::sendEvent(&sopra, &secondo);
        }
    }
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_TRUE(esplora.isEnabled());
    EXPECT_EQ(esplora.lstFile.ListCount(), 1);
}

TEST_F(Elenchi, ClosedDuringAListingTheRestIsConsumedAndNothingIsSent)
{
    esplora.Mostra();
    robotFinito(stato(2, 0) + voce(2, 2, "foto"));
    scritti();
    esplora.close();
    EXPECT_FALSE(esplora.Visible());
    EXPECT_EQ(scritti(), b({41, 2}));
    robotFinito(voce(2, 1, "a") + stato(2, 255) + b({31, 5}));
    EXPECT_EQ(console.lblTemperatura.Caption(), u"5°"_s);
    EXPECT_EQ(scritti(), QByteArray());
    esplora.Mostra();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
}

TEST_F(Elenchi, IfTheRobotStopsDuringAListingTheWindowCanBeUsed)
{
    esplora.Mostra();
    robotFinito(stato(2, 0) + voce(2, 2, "foto"));
    robot(voce(2, 1, "mai finita").first(6));
    gira(50);
    EXPECT_TRUE(esplora.isEnabled());
    // Only one request runs at a time; a window that is opened again begins a new one.
    scritti();
    esplora.pulHome.click();
    EXPECT_EQ(scritti(), QByteArray());
    esplora.close();
    EXPECT_EQ(scritti(), b({41, 2}));
    esplora.Mostra();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
}

TEST_F(Elenchi, ALongListingHasItsRowsInOrderAndInTheRightPlaces)
{
    esplora.Mostra();
    QByteArray elenco = stato(1, 0);
    for (int i = 0; i < 300; ++i)
        elenco += voce(1, 1, QByteArray::number(i));
    robotFinito(elenco);
    ASSERT_EQ(esplora.lstFile.ListCount(), 300);
    robotFinito(stato(1, 255));
    scritti();
    for (const int riga : {0, 1, 150, 299}) {
        const QRect sotto = esplora.lstFile.visualItemRect(esplora.lstFile.item(riga));
        EXPECT_EQ(sotto.top() - esplora.lstFile.visualItemRect(esplora.lstFile.item(0)).top(),
                  riga * sotto.height());
    }
    doppioClick(esplora.lstFile, 299);
    EXPECT_EQ(scritti(), b({40, 1, 3}) + "299");
}

TEST_F(Elenchi, RowsAreLaidOutAlsoIfTheListingNeverEnds)
{
    esplora.Mostra();
    robotFinito(stato(1, 0) + voce(1, 1, "a") + voce(1, 1, "b") + voce(1, 1, "c"));
    const auto bordo = [&](int riga) {
        return esplora.lstFile.visualItemRect(esplora.lstFile.item(riga)).bottom();
    };
    EXPECT_TRUE(aspetta([&] { return bordo(2) > bordo(1) && bordo(1) > bordo(0); }));
}
