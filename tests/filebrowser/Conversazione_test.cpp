// One request to the storage at a time: what arrives meanwhile, requests that are given up, late
// answers.
#include "tests/filebrowser/BancoEsploraFile.h"
#include "tests/support/Modali.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString erroreLettura = u"Errore nella lettura dei file!"_s;
const QByteArray seguito = b({31, 20});

struct Conversazione : Banco
{
    void apriCartella(const QString &nome)
    {
        doppioClick(esplora.lstCartelle, rigaDi(esplora.lstCartelle, nome));
    }
    void premiCasa() { QTest::mouseClick(&esplora.pulHome, Qt::LeftButton); }
    void torna()
    {
        altra.Mostra();
        QEvent evento(QEvent::WindowActivate);
        QApplication::sendEvent(&esplora, &evento);
    }
    // The entries of the top level on channel k, and the end of the listing.
    static QByteArray cima(int k)
    {
        return voce(k, 2, "foto") + voce(k, 1, "a.txt") + stato(k, 255);
    }
    void cimaMostrata()
    {
        EXPECT_EQ(voci(esplora.lstCartelle), QStringList{u"foto"_s});
        EXPECT_EQ(voci(esplora.lstFile), QStringList{u"a.txt"_s});
        EXPECT_EQ(esplora.Tag(), QString());
        EXPECT_TRUE(esplora.isEnabled());
        EXPECT_FALSE(esplora.imgAttesa.Visible());
    }
    void riapri()
    {
        esplora.close();
        ASSERT_FALSE(esplora.Visible());
        scritti();
        esplora.Mostra();
        ASSERT_EQ(scritti(), b({40, 16, 0}));
        ASSERT_EQ(esplora.Tag(), u"Elenco"_s);
        ASSERT_TRUE(esplora.isEnabled());
    }
    static QByteArray chiudiTutti()
    {
        QByteArray byte;
        for (int k = 1; k <= 9; ++k)
            byte += b({41, k});
        return byte;
    }
    Finestra altra{u"altra"_s, u"Altra"_s};
};

} // namespace

TEST_F(Conversazione, ASecondClickOnHomeIsIgnoredAndTheListingIsComplete)
{
    apri({}, {});
    premiCasa();
    premiCasa();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
    robotFinito(stato(1, 0) + voce(1, 2, "foto"));
    premiCasa();
    EXPECT_EQ(voci(esplora.lstCartelle), QStringList{u"foto"_s});
    robotFinito(voce(1, 1, "a.txt") + stato(1, 255));
    cimaMostrata();
    EXPECT_EQ(scritti(), b({46, 1, 46, 1, 46, 1, 41, 1}));
    // Afterwards a click sends a request again.
    premiCasa();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
}

TEST_F(Conversazione, AFolderIsNotOpenedWhileItsListingRuns)
{
    esplora.Mostra();
    robotFinito(stato(1, 0) + voce(1, 2, "foto"));
    scritti();
    apriCartella(u"foto"_s);
    QTest::keyClick(&esplora.lstCartelle, Qt::Key_Return);
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(esplora.lstCartelle.Tag(), QString());
    robotFinito(voce(1, 1, "a.txt") + stato(1, 255));
    cimaMostrata();
    apriCartella(u"foto"_s);
    EXPECT_EQ(scritti(), b({46, 1, 41, 1}) + b({40, 16, 4}) + "foto");
}

TEST_F(Conversazione, AFileIsNotFetchedWhileItsListingRuns)
{
    esplora.Mostra();
    robotFinito(stato(1, 0) + voce(1, 1, "a.txt"));
    scritti();
    console.BarraStato.setPanels(3, u"prima"_s);
    doppioClick(esplora.lstFile, 0);
    QTest::keyClick(&esplora.lstFile, Qt::Key_Return);
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_TRUE(esplora.isEnabled());
    EXPECT_EQ(pannello(), u"prima"_s);
}

TEST_F(Conversazione, ComingBackDuringAListingSendsNothing)
{
    esplora.Mostra();
    scritti();
    torna();
    EXPECT_EQ(scritti(), QByteArray());
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
}

TEST_F(Conversazione, ClosingTheWindowClosesTheChannelOfItsListing)
{
    esplora.Mostra();
    robotFinito(stato(3, 0) + voce(3, 1, "a"));
    scritti();
    esplora.close();
    EXPECT_EQ(scritti(), b({41, 3}));
}

TEST_F(Conversazione, ClosingTheWindowClosesTheChannelOfItsFetch)
{
    apri({}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    esplora.close();
    EXPECT_EQ(scritti(), b({41, 4}));
}

TEST_F(Conversazione, ClosingTheWindowBeforeTheChannelIsKnownClosesThemAll)
{
    // The robot executes commands in order: one of these closes the channel that it has just
    // opened.
    esplora.Mostra();
    scritti();
    esplora.close();
    EXPECT_EQ(scritti(), chiudiTutti());
    apri({}, {"a.txt"});
    doppioClick(esplora.lstFile, 0);
    scritti();
    esplora.close();
    EXPECT_EQ(scritti(), chiudiTutti());
}

TEST_F(Conversazione, ClosingTheWindowWithNothingRunningSendsNothing)
{
    apri({}, {"a.txt"});
    esplora.close();
    EXPECT_EQ(scritti(), QByteArray());
    esplora.Mostra();
    robotFinito(stato(0, 2));
    scritti();
    esplora.close();
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Conversazione, WithThePortClosedMeanwhileClosingTheWindowShowsNoMessage)
{
    esplora.Mostra();
    robotFinito(stato(1, 0));
    console.COM.setPortOpen(false);
    const RispondiMessaggi messaggi;
    esplora.close();
    EXPECT_FALSE(esplora.Visible());
    EXPECT_EQ(messaggi.testi(), QStringList());
}

TEST_F(Conversazione, ReopenedDuringAFetchTheWindowIsListedAndTheBlockIsNotWritten)
{
    cartella.scrivi(u"a.txt"_s, "vecchio");
    apri({"foto"}, {"a.txt"});
    chiedi(u"a.txt"_s, 1);
    const QByteArray tutto = blocco(1, QByteArray(3000, 'x'));
    robot(tutto.first(1500));
    riapri();
    const QString prima = pannello();
    robotFinito(tutto.sliced(1500) + seguito);
    EXPECT_EQ(pannello(), prima);
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
    EXPECT_EQ(scritti(), b({46, 1, 46, 1, 46, 1, 41, 1}));
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "vecchio");
}

TEST_F(Conversazione, ReopenedDuringAListingTheRestOfTheOldOneIsIgnored)
{
    esplora.Mostra();
    robotFinito(stato(1, 0) + voce(1, 2, "vecchia"));
    riapri();
    robotFinito(voce(1, 2, "vecchia anche questa"));
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
    EXPECT_EQ(scritti(), b({46, 1, 46, 1, 46, 1, 41, 1}));
}

TEST_F(Conversazione, ReopenedDuringAListingTheEndOfTheOldOneIsIgnored)
{
    esplora.Mostra();
    robotFinito(stato(1, 0) + voce(1, 2, "vecchia"));
    riapri();
    robotFinito(stato(1, 255));
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_EQ(scritti(), QByteArray());
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
}

TEST_F(Conversazione, ReopenedBeforeTheAnswerToTheOpeningTheListingIsComplete)
{
    // The robot uses the freed number once more.
    esplora.Mostra();
    riapri();
    robotFinito(stato(1, 0) + stato(1, 0) + cima(1));
    cimaMostrata();
    EXPECT_EQ(scritti(), b({46, 1, 46, 1, 46, 1, 41, 1}));
}

TEST_F(Conversazione, ReopenedBeforeTheAnswerToTheOpeningTheLaterChannelIsUsed)
{
    esplora.Mostra();
    riapri();
    robotFinito(stato(1, 0) + stato(2, 0) + voce(1, 2, "vecchia") + stato(1, 255));
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    robotFinito(cima(2));
    cimaMostrata();
    EXPECT_TRUE(scritti().endsWith(b({46, 2, 46, 2, 46, 2, 41, 2})));
}

TEST_F(Conversazione, ReopenedAfterAMissingAnswerTheWindowWorks)
{
    esplora.Mostra();
    riapri();
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
    doppioClick(esplora.lstFile, 0);
    scritti();
    // The robot does not answer this request either.
    riapri();
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
    chiedi(u"a.txt"_s, 2);
    riapri();
    robotFinito(stato(2, 0) + cima(2));
    cimaMostrata();
    EXPECT_EQ(cartella.elenco(), QStringList());
}

TEST_F(Conversazione, TelegramsOfAnotherChannelAreIgnored)
{
    esplora.Mostra();
    robotFinito(stato(3, 0));
    scritti();
    robotFinito(voce(5, 2, "altrui") + stato(5, 255));
    EXPECT_EQ(scritti(), QByteArray());
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
    // The robot has opened a channel that is not needed: it is closed.
    robotFinito(stato(6, 0));
    EXPECT_EQ(scritti(), b({41, 6}));
    robotFinito(cima(3));
    cimaMostrata();
    EXPECT_EQ(scritti(), b({46, 3, 46, 3, 41, 3}));
}

TEST_F(Conversazione, AnEntryWithoutAListingIsIgnored)
{
    apri({"foto"}, {"a.txt"});
    robotFinito(voce(1, 2, "tardi"));
    cimaMostrata();
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Conversazione, AfterAFailureTheNextRequestIsSent)
{
    esplora.Mostra();
    robotFinito(stato(1, 0) + voce(1, 2, "foto") + voce(1, 1, "a.txt") + stato(1, 5));
    EXPECT_EQ(pannello(), erroreLettura);
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    scritti();
    premiCasa();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
    apriCartella(u"foto"_s);
    robotFinito(stato(0, 2));
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
    premiCasa();
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
}

TEST_F(Conversazione, WithThePortClosedEachClickOnHomeShowsAMessage)
{
    apri({"foto"}, {});
    console.COM.setPortOpen(false);
    RispondiMessaggi messaggi;
    premiCasa();
    premiCasa();
    EXPECT_EQ(messaggi.testi(), QStringList(2, u"Non sono collegato al robot"_s));
}

TEST_F(Conversazione, ABlockThatWasNotRequestedIsConsumedAndNotWritten)
{
    cartella.scrivi(u"a.txt"_s, "vecchio");
    apri({"foto"}, {"a.txt"});
    esplora.lstFile.setListIndex(0);
    console.BarraStato.setPanels(3, u"prima"_s);
    const auto intatto = [&] {
        EXPECT_EQ(cartella.leggi(u"a.txt"_s), "vecchio");
        EXPECT_EQ(cartella.elenco(), QStringList{u"a.txt"_s});
        EXPECT_EQ(scritti(), QByteArray());
        EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s);
        console.lblTemperatura.setCaption({});
    };
    robotFinito(blocco(1, "nemico") + seguito);
    intatto();
    EXPECT_EQ(pannello(), u"prima"_s);
    EXPECT_FALSE(esplora.imgAttesa.Visible());
    // From another channel.
    chiedi(u"a.txt"_s, 4);
    robotFinito(blocco(1, "nemico") + seguito);
    intatto();
    EXPECT_EQ(pannello(), u"Attendere..."_s);
    robotFinito(blocco(4, "nuovo") + seguito);
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "nuovo");
    EXPECT_EQ(scritti(), b({41, 4}));
    // During a listing.
    cartella.scrivi(u"a.txt"_s, "vecchio");
    premiCasa();
    robotFinito(stato(1, 0));
    scritti();
    robotFinito(blocco(1, "nemico") + seguito);
    intatto();
    robotFinito(cima(1));
    cimaMostrata();
}

TEST_F(Conversazione, TheBlockOfAFetchThatWasGivenUpIsNotUsedForTheNextOne)
{
    apri({}, {"a.txt", "b.txt"});
    chiedi(u"a.txt"_s, 4);
    console.tmrElabInput.accumulatore.svuota();
    EXPECT_TRUE(esplora.isEnabled());
    doppioClick(esplora.lstFile, 1);
    scritti();
    robotFinito(blocco(4, "di a") + seguito);
    EXPECT_EQ(cartella.elenco(), QStringList());
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    robotFinito(stato(4, 0) + blocco(4, "di b") + seguito);
    EXPECT_EQ(cartella.leggi(u"b.txt"_s), "di b");
    EXPECT_EQ(cartella.elenco(), QStringList{u"b.txt"_s});
}

TEST_F(Conversazione, ClosedWhileABlockIsOnTheWayItWritesAndReportsNothing)
{
    apri({}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    esplora.close();
    scritti();
    console.BarraStato.setPanels(3, u"prima"_s);
    robotFinito(blocco(4, "tardi") + seguito);
    EXPECT_EQ(cartella.elenco(), QStringList());
    EXPECT_EQ(pannello(), u"prima"_s);
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Conversazione, ReopenedWhileAPhotoIsRefusedTheNewListingContinues)
{
    apri({"foto"}, {"b.jpg"});
    chiedi(u"b.jpg"_s, 4);
    QTimer utente;
    int chiusure = 0;
    QObject::connect(&utente, &QTimer::timeout, &utente, [&] {
        if (!esplora.isEnabled() && pannello().startsWith(u"File scaricato") && ++chiusure == 1) {
            esplora.close();
            esplora.Mostra();
        }
    });
    utente.start(0);
    robotFinito(blocco(4, "nessuna foto") + seguito);
    utente.stop();
    ASSERT_EQ(chiusure, 1);
    EXPECT_EQ(scritti(), b({41, 4, 40, 16, 0}));
    EXPECT_EQ(esplora.Tag(), u"Elenco"_s);
    EXPECT_TRUE(esplora.imgAttesa.Visible());
    EXPECT_EQ(esplora.lblNomeFoto.Caption(), QString());
    robotFinito(stato(1, 0) + cima(1));
    cimaMostrata();
}

TEST_F(Conversazione, TheTagCanBeWrittenFromOutside)
{
    apri({"foto"}, {"a.txt"});
    esplora.lstFile.setListIndex(0);
    const char *tag = "Tag";
    ASSERT_TRUE(esplora.setProperty(tag, u"Elenco"_s));
    EXPECT_EQ(esplora.property(tag), u"Elenco"_s);
    robotFinito(stato(7, 0));
    EXPECT_EQ(scritti(), b({46, 7}));
    robotFinito(voce(7, 1, "c") + stato(7, 255));
    EXPECT_EQ(scritti(), b({46, 7, 41, 7}));
    EXPECT_EQ(esplora.property(tag), QString());

    ASSERT_TRUE(esplora.setProperty(tag, u"File"_s));
    robotFinito(stato(8, 0));
    EXPECT_EQ(scritti(), b({44, 8, 255, 255}));
    robotFinito(blocco(8, "ciao") + seguito);
    EXPECT_EQ(scritti(), b({41, 8}));
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "ciao");
    EXPECT_EQ(esplora.property(tag), QString());

    premiCasa();
    robotFinito(stato(1, 0));
    scritti();
    ASSERT_TRUE(esplora.setProperty(tag, QString()));
    robotFinito(stato(1, 255));
    EXPECT_EQ(scritti(), QByteArray());
    // Nothing is awaited any more, so the next request can begin.
    premiCasa();
    EXPECT_EQ(scritti(), b({40, 16, 0}));
}

TEST_F(Conversazione, AnyOtherTextInTheTagMeansThatNothingIsAwaited)
{
    esplora.Mostra();
    robotFinito(stato(1, 0));
    scritti();
    ASSERT_TRUE(esplora.setProperty("Tag", u"elenco"_s));
    EXPECT_EQ(esplora.property("Tag"), QString());
    robotFinito(voce(1, 1, "a") + stato(1, 255));
    EXPECT_EQ(esplora.lstFile.ListCount(), 0);
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Conversazione, AFetchWhoseBytesAreDiscardedEndsWithItsError)
{
    apri({"foto"}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    robot(blocco(4, QByteArray(500, '\xff')).first(300));
    console.tmrElabInput.accumulatore.svuota();
    EXPECT_EQ(pannello(), erroreLettura);
    EXPECT_EQ(esplora.Tag(), QString());
    EXPECT_TRUE(esplora.isEnabled());
    EXPECT_EQ(esplora.focusWidget(), &esplora.lstFile);
    EXPECT_FALSE(esplora.imgAttesa.Visible());
    EXPECT_EQ(scritti(), b({41, 4}));
    robotFinito(QByteArray(206, '\xff') + seguito);
    EXPECT_EQ(cartella.elenco(), QStringList());
    scritti();
    chiedi(u"a.txt"_s, 4);
    robotFinito(blocco(4, "ciao") + seguito);
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "ciao");
}

TEST_F(Conversazione, AListingWhoseBytesAreDiscardedEndsWithTheSameError)
{
    for (const bool aperta : {false, true}) {
        esplora.Mostra();
        if (aperta)
            robotFinito(stato(3, 0) + voce(3, 1, "b"));
        scritti();
        robot(b({42}));
        console.tmrElabInput.setTag({});
        EXPECT_EQ(pannello(), erroreLettura);
        EXPECT_EQ(esplora.Tag(), QString());
        EXPECT_FALSE(esplora.imgAttesa.Visible());
        EXPECT_EQ(scritti(), aperta ? b({41, 3}) : chiudiTutti());
        // The waiting tick takes the next bytes for the rest of the discarded telegram.
        robotFinito(b({42, 9, 4}));
        premiCasa();
        EXPECT_EQ(scritti(), b({40, 16, 0}));
        robotFinito(stato(1, 0) + cima(1));
        cimaMostrata();
        esplora.Scarica();
        scritti();
    }
}

TEST_F(Conversazione, WithNothingRunningDiscardedBytesAreNoError)
{
    apri({"foto"}, {"a.txt"});
    console.BarraStato.setPanels(3, u"prima"_s);
    console.tmrElabInput.accumulatore.svuota();
    EXPECT_EQ(pannello(), u"prima"_s);
    EXPECT_EQ(scritti(), QByteArray());
    // A fetch that has failed is not changed.
    doppioClick(esplora.lstFile, 0);
    robotFinito(stato(0, 2));
    scritti();
    console.tmrElabInput.accumulatore.svuota();
    EXPECT_EQ(esplora.Tag(), u"File"_s);
    EXPECT_FALSE(esplora.isEnabled());
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Conversazione, AddingToTheAccumulatorDiscardsNothing)
{
    apri({}, {"a.txt"});
    chiedi(u"a.txt"_s, 4);
    TemporizzatoreIngresso &timer = console.tmrElabInput;
    robot(blocco(4, "ciao"));
    gira(5);
    timer.setTag(timer.Tag() + u'?');
    ASSERT_TRUE(aspetta([&] { return esplora.Tag().isEmpty(); }));
    EXPECT_EQ(cartella.leggi(u"a.txt"_s), "ciao");
    EXPECT_EQ(pannello(), u"File scaricato correttamente!"_s);
}
