// The engine: start, conflicts, telemetry, clock, stop.
#include "tests/conditional/BancoVigilio.h"
#include "tests/support/Sistema.h"

#include <gmock/gmock.h>

namespace {

const QString chiedeConnessione =
    u"Per avviare il Vigilio è necessario essere connessi ad Tessaro, connettersi ora?"_s;

class MotoreTest : public testing::Test, protected BancoVigilio
{
protected:
    // Two selected lists of these conditions, connected; what the button then says.
    QStringList contrasto(const QString &prima, const QString &seconda)
    {
        const RispondiMessaggi messaggi;
        mostraVigilio({u"a.sqm"_s, u"b.sqm"_s});
        imposta(0, prima);
        imposta(1, seconda);
        if (!seriale.COM.PortOpen())
            seriale.apri();
        processor.pulAvvia.click();
        return messaggi.testi();
    }
    void controllaFermo() const
    {
        EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
        EXPECT_NE(processor.Tag(), u"AVVIATO"_s);
        EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
        EXPECT_EQ(editor.imgVigilio.Picture(), 1);
    }
    // Lets the clock's timer tick once at least.
    void scatta()
    {
        ASSERT_TRUE(editor.tmrAttivaAut.Enabled());
        editor.tmrAttivaAut.setInterval(1);
        int scatti = 0;
        QTimer dopo;
        QObject::connect(&dopo, &QTimer::timeout, &dopo, [&] { ++scatti; });
        dopo.start(2);
        EXPECT_TRUE(aspetta([&] { return scatti >= 5; }));
        editor.tmrAttivaAut.setInterval(1000);
    }
    // Runs the running list to its end.
    void finisci()
    {
        editor.tmrEseguiMosse.setInterval(1);
        console.accelera = true;
        EXPECT_TRUE(aspetta([this] { return !editor.tmrEseguiMosse.Enabled(); }));
        console.accelera = false;
    }
};

} // namespace

TEST_F(MotoreTest, StartingShowsTheEditorAndTheWaitingPicture)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    EXPECT_EQ(processor.Tag(), u"AVVIATO"_s);
    EXPECT_EQ(processor.pulAvvia.Caption(), u"STOP"_s);
    EXPECT_FALSE(processor.pulAvvia.font().italic());
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
    EXPECT_TRUE(editor.Visible());
    EXPECT_TRUE(editor.tmrAttivaAut.Enabled());
    EXPECT_EQ(editor.tmrAttivaAut.Interval(), 1000);
    EXPECT_TRUE(processor.Visible());
    EXPECT_EQ(inCorso(), QString());
}

TEST_F(MotoreTest, TheOptionHidesTheWindowAtTheStart)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    seriale.apri();
    processor.mnuOpzRiduci.trigger();
    processor.pulAvvia.click();
    EXPECT_TRUE(processor.avviato());
    EXPECT_FALSE(processor.Visible());
    EXPECT_TRUE(processor.Caricata());
    // The editor's picture brings it back, as it was.
    editor.imgVigilio.Click();
    EXPECT_TRUE(processor.Visible());
    EXPECT_EQ(processor.pulAvvia.Caption(), u"STOP"_s);
}

TEST_F(MotoreTest, TheSecondClickStops)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    cliccaVigilio(processor.pulAvvia);
    controllaFermo();
    EXPECT_EQ(processor.Tag(), QString());
    EXPECT_TRUE(processor.pulAvvia.font().italic());
    EXPECT_TRUE(processor.pulAvvia.Enabled());
    EXPECT_TRUE(editor.Visible());
    cliccaVigilio(processor.pulAvvia);
    EXPECT_TRUE(processor.avviato());
    EXPECT_FALSE(processor.pulAvvia.font().italic());
}

TEST_F(MotoreTest, StoppingWhenNothingIsStartedTouchesOnlyTheFontAndTheTag)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.setTag(u"Annulla"_s);
    processor.Stoppa();
    controllaFermo();
    EXPECT_EQ(processor.Tag(), QString());
    EXPECT_TRUE(processor.pulAvvia.font().italic());
    EXPECT_TRUE(processor.pulAvvia.Enabled());
    EXPECT_EQ(scelte(), QList<bool>{true});
    EXPECT_FALSE(editor.Visible());
}

TEST_F(MotoreTest, TheStartBringsAMinimisedEditorBack)
{
    editor.Mostra();
    mostraVigilio({u"a.sqm"_s});
    imposta(0, u"no,no,25,no,no"_s);
    editor.setWindowState(1);
    seriale.apri();
    processor.pulAvvia.click();
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(editor.WindowState(), 0);
}

TEST_F(MotoreTest, WithoutAConnectionItAsksAndNoEndsIt)
{
    const RispondiMessaggi messaggi(QMessageBox::No);
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.pulAvvia.click();
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti()[0].testo, chiedeConnessione);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Vigilio"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Question);
    EXPECT_EQ(messaggi.visti()[0].pulsanti, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(collegamento.tentativi, 0);
    controllaFermo();
    EXPECT_FALSE(editor.Visible());
}

TEST_F(MotoreTest, YesConnectsAndStarts)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.pulAvvia.click();
    EXPECT_EQ(collegamento.tentativi, 1);
    EXPECT_TRUE(processor.avviato());
}

TEST_F(MotoreTest, AConnectionThatFailsEndsIt)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    collegamento.riesce = false;
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.pulAvvia.click();
    EXPECT_EQ(collegamento.tentativi, 1);
    EXPECT_EQ(messaggi.visti().size(), 1);
    controllaFermo();
}

TEST_F(MotoreTest, AWindowThatIsClosedWhileItConnectsStartsNothing)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.lstFile.setTag(u"True"_s);
    collegamento.intanto = [this] { processor.close(); };
    processor.pulAvvia.click();
    controllaFermo();
    EXPECT_EQ(processor.Tag(), u"Annulla"_s);
}

TEST_F(MotoreTest, AClickWhileItConnectsStartsNothing)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    for (const bool riesce : {false, true}) {
        mostraVigilio({u"a.sqm"_s});
        scegli(0);
        collegamento.riesce = riesce;
        collegamento.tentativi = 0;
        collegamento.intanto = [this] {
            for (int i = 0; i < 3; ++i) {
                cliccaVigilio(processor.pulAvvia);
                controllaFermo();
            }
        };
        processor.pulAvvia.click();
        EXPECT_EQ(collegamento.tentativi, 1);
        EXPECT_EQ(processor.avviato(), riesce);
        EXPECT_EQ(editor.tmrAttivaAut.Enabled(), riesce);
    }
    EXPECT_EQ(messaggi.testi(), (QStringList{chiedeConnessione, chiedeConnessione}));
}

TEST_F(MotoreTest, WhatStopsItWhileItConnectsTakesTheStartBack)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    const QList<std::function<void()>> modi = {[&] { processor.Stoppa(); },
                                               [&] {
                                                   processor.pulAvvia.setProperty("Caption",
                                                                                  u"STOP"_s);
                                                   cliccaVigilio(processor.pulAvvia);
                                               },
                                               [&] { processor.setProperty("Tag", QString()); },
                                               [&] { scegli(0, false); },
                                               [&] {
                                                   scegli(0, false);
                                                   scegli(0);
                                               },
                                               [&] {
                                                   processor.lstFile.setTag(u"True"_s);
                                                   processor.mnuFileNuovo.trigger();
                                               },
                                               [&] {
                                                   processor.lstFile.setTag(u"True"_s);
                                                   processor.close();
                                               },
                                               [&] {
                                                   processor.lstFile.setTag(u"True"_s);
                                                   processor.close();
                                                   processor.Mostra();
                                                   scegli(0);
                                               }};
    for (const auto &ferma : modi) {
        mostraVigilio({u"a.sqm"_s});
        scegli(0);
        collegamento.intanto = ferma;
        processor.pulAvvia.click();
        controllaFermo();
        EXPECT_FALSE(editor.Visible());
        EXPECT_TRUE(seriale.COM.PortOpen()) << "the connection itself stays";
        seriale.COM.setPortOpen(false);
        processor.lstFile.setTag(u"True"_s);
        processor.Scarica();
    }
    EXPECT_EQ(messaggi.visti().size(), modi.size());
}

TEST_F(MotoreTest, AStartThatWasTakenBackDoesNotComeTrueThroughTheNextOne)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    collegamento.intanto = [this] {
        processor.Stoppa();
        processor.pulAvvia.click();
        controllaFermo();
    };
    processor.pulAvvia.click();
    controllaFermo();
    EXPECT_EQ(collegamento.tentativi, 1);
    // Connected now, a click starts at once.
    processor.pulAvvia.click();
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(collegamento.tentativi, 1);
}

TEST_F(MotoreTest, ItDoesNotStartOnAnAttemptThatSomebodyElseHasUnderWay)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    collegamento.tenta = true;
    // Before the port is open, and after.
    processor.pulAvvia.click();
    controllaFermo();
    seriale.apri();
    processor.pulAvvia.click();
    controllaFermo();
    EXPECT_EQ(messaggi.testi(), QStringList());
    EXPECT_EQ(collegamento.tentativi, 0);
    // It has succeeded.
    collegamento.tenta = false;
    processor.pulAvvia.click();
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(collegamento.tentativi, 0);
}

TEST_F(MotoreTest, AnAttemptThatBeginsWhileItAsksIsNotDoubled)
{
    RispondiMessaggi messaggi(QMessageBox::Yes);
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    messaggi.mentreAperto = [this](QMessageBox &) { collegamento.tenta = true; };
    processor.pulAvvia.click();
    controllaFermo();
    EXPECT_EQ(collegamento.tentativi, 0);
}

TEST_F(MotoreTest, APortThatIsOpenWithoutAConnectionAfterTheAttemptEndsIt)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    collegamento.riesce = false;
    const auto apre = [this] { seriale.COM.setPortOpen(true); };
    collegamento.dopo = apre;
    processor.pulAvvia.click();
    EXPECT_TRUE(seriale.COM.PortOpen());
    controllaFermo();
}

TEST_F(MotoreTest, TheTagAndTheCaptionCountAlsoWhenTheyAreWrittenFromOutside)
{
    mostraVigilio({u"a.sqm"_s});
    imposta(0, u"no,no,25,no,no"_s);
    seriale.apri();
    EXPECT_TRUE(processor.setProperty("Tag", u"AVVIATO"_s));
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
    EXPECT_TRUE(processor.setProperty("Tag", u"altro"_s));
    EXPECT_FALSE(processor.avviato());
    EXPECT_EQ(processor.property("Tag").toString(), u"altro"_s);
    // The button goes by its own words.
    EXPECT_TRUE(processor.pulAvvia.setProperty("Caption", u"FERMA"_s));
    processor.pulAvvia.click();
    controllaFermo();
    EXPECT_EQ(processor.Tag(), QString());
    processor.pulAvvia.click();
    ASSERT_TRUE(processor.avviato());
    EXPECT_TRUE(processor.pulAvvia.setProperty("Caption", u"AVVIA"_s));
    processor.pulAvvia.click();
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(processor.pulAvvia.Caption(), u"STOP"_s);
}

TEST_F(MotoreTest, AClashLeavesAStartedVigilioStarted)
{
    const RispondiMessaggi messaggi;
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    imposta(1, u"no,no,25,no,no"_s);
    processor.pulAvvia.setProperty("Caption", u"AVVIA"_s);
    processor.pulAvvia.click();
    EXPECT_EQ(messaggi.visti().size(), 1);
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(processor.Tag(), u"AVVIATO"_s);
}

TEST_F(MotoreTest, TwoListsWithTheDefaultConditionAreToldAndNothingStarts)
{
    const RispondiMessaggi messaggi;
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s});
    scegli(0);
    scegli(1);
    seriale.apri();
    processor.mnuOpzRiduci.trigger();
    processor.pulAvvia.click();
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti()[0].testo,
              u"\"a.sqm\" e \"b.sqm\"\nhanno gli stessi orari di attivazione!"_s);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Vigilio"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Information);
    EXPECT_EQ(messaggi.visti()[0].pulsanti, QMessageBox::Ok);
    controllaFermo();
    EXPECT_TRUE(processor.Visible());
    EXPECT_FALSE(editor.Visible());
}

TEST_F(MotoreTest, EveryFieldsConflictIsTold)
{
    EXPECT_EQ(contrasto(u"no,101,no,no,no"_s, u"no,101,no,no,no"_s),
              QStringList{u"\"a.sqm\" e \"b.sqm\"\nsi attivano entrambe con gli stessi sensori a "
                          "ultrasuoni"_s});
    EXPECT_EQ(contrasto(u"no,no,25,no,no"_s, u"no,no,25,no,no"_s),
              QStringList{u"\"a.sqm\" e \"b.sqm\"\nsi attivano entrambe con la stessa "
                          "temperatura"_s});
    EXPECT_EQ(contrasto(u"no,no,no,2,no"_s, u"no,no,no,2,no"_s),
              QStringList{u"\"a.sqm\" e \"b.sqm\"\nsi attivano entrambe con lo stesso stato delle "
                          "batterie logica"_s});
    EXPECT_EQ(contrasto(u"no,no,no,no,2"_s, u"no,no,no,no,2"_s),
              QStringList{u"\"a.sqm\" e \"b.sqm\"\nsi attivano entrambe con lo stesso stato delle "
                          "batterie dei motori"_s});
    controllaFermo();
}

TEST_F(MotoreTest, A0AgainstAnUnsetFieldIsAConflictWhicheverComesFirst)
{
    EXPECT_EQ(contrasto(u"no,no,0,no,no"_s, u"07:00:00,no,no,no,no"_s),
              QStringList{u"\"a.sqm\" e \"b.sqm\"\nsi attivano entrambe con la stessa "
                          "temperatura"_s});
    // Every pair is looked at in both directions.
    EXPECT_EQ(contrasto(u"07:00:00,no,no,no,no"_s, u"no,no,0,no,no"_s),
              QStringList{u"\"b.sqm\" e \"a.sqm\"\nsi attivano entrambe con la stessa "
                          "temperatura"_s});
}

TEST_F(MotoreTest, AListThatIsNotSelectedClashesWithNobody)
{
    const RispondiMessaggi messaggi;
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s, u"c.sqm"_s});
    scegli(1);
    seriale.apri();
    processor.pulAvvia.click();
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_TRUE(processor.avviato());
}

TEST_F(MotoreTest, TheFirstPairInTheOrderOfTheLinesIsTold)
{
    const RispondiMessaggi messaggi;
    // Neither quotes nor marks of a text to be filled in change what is told.
    const QString difficile = virgoletteNeiNomi() ? u"d \"%1\".sqm"_s : u"d %1.sqm"_s;
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s, u"c.sqm"_s, difficile});
    imposta(0, u"07:00:00,no,no,no,no"_s);
    imposta(1, u"no,no,25,no,no"_s);
    imposta(2, u"no,no,no,no,3"_s);
    imposta(3, u"no,no,25,no,3"_s);
    seriale.apri();
    processor.pulAvvia.click();
    EXPECT_EQ(messaggi.testi(),
              QStringList{u"\"b.sqm\" e \""_s + difficile +
                          u"\"\nsi attivano entrambe con la stessa temperatura"_s});
}

TEST_F(MotoreTest, ATemperatureStartsTheListThatAsksForIt)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    processor.VerificaCondizioni(u"Temperatura:24"_s);
    EXPECT_EQ(inCorso(), QString());
    processor.VerificaCondizioni(u"Temperatura:26"_s);
    EXPECT_EQ(inCorso(), u"b.sqm"_s);
    EXPECT_EQ(processor.lstFile.ListIndex(), 1);
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
    EXPECT_TRUE(processor.avviato());
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
}

TEST_F(MotoreTest, SensorsAndBatteriesStartTheirLists)
{
    avvia({{u"a.sqm"_s, u"no,101,no,no,no"_s},
           {u"b.sqm"_s, u"no,no,no,3,no"_s},
           {u"c.sqm"_s, u"no,no,no,no,2"_s}});
    processor.VerificaCondizioni(u"Ultrasuoni:010"_s);
    EXPECT_EQ(inCorso(), QString());
    processor.VerificaCondizioni(u"Ultrasuoni:100"_s);
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
    processor.VerificaCondizioni(u"Batterie:33"_s);
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
    processor.VerificaCondizioni(u"Batterie:03"_s);
    EXPECT_EQ(inCorso(), u"b.sqm"_s);
    processor.VerificaCondizioni(u"Batterie:42"_s);
    EXPECT_EQ(inCorso(), u"c.sqm"_s);
}

TEST_F(MotoreTest, OfSeveralListsTheLastOneKeepsTheRobot)
{
    avvia({{u"a.sqm"_s, u"no,100,no,no,no"_s},
           {u"b.sqm"_s, u"no,010,no,no,no"_s},
           {u"c.sqm"_s, u"no,001,no,no,no"_s}});
    processor.VerificaCondizioni(u"Ultrasuoni:110"_s);
    EXPECT_EQ(inCorso(), u"b.sqm"_s);
}

TEST_F(MotoreTest, AListThatIsNotSelectedIsNotStartedByTelemetry)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    scegli(0, false);
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_EQ(inCorso(), QString());
    EXPECT_TRUE(processor.avviato());
}

TEST_F(MotoreTest, WhileTheConditionLastsTheRunningListIsLeftAlone)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    ASSERT_TRUE(aspetta([this] { return lista.ListIndex() == 0; }));
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_EQ(lista.ListIndex(), 0);
}

TEST_F(MotoreTest, AfterItsEndTheListStartsAgainWhileTheConditionLasts)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    finisci();
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
    EXPECT_TRUE(processor.avviato());
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
}

TEST_F(MotoreTest, WithTheOptionAListFiresOnce)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    processor.mnuOpzDeselezionaAut.trigger();
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
    EXPECT_EQ(scelte(), (QList<bool>{false, true}));
    finisci();
    EXPECT_TRUE(processor.avviato());
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_EQ(inCorso(), QString());
}

TEST_F(MotoreTest, TheLastListToFireEndsTheActiveStateAndRunsToItsEnd)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.mnuOpzDeselezionaAut.trigger();
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_FALSE(processor.avviato());
    EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
    finisci();
    controllaFermo();
}

TEST_F(MotoreTest, StoppingLetsTheRunningListGoOn)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    processor.pulAvvia.click();
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
    controllaFermo();
    finisci();
    EXPECT_EQ(editor.imgVigilio.Picture(), 1);
}

TEST_F(MotoreTest, UntickingTheLastLineStops)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    scegli(0, false);
    EXPECT_TRUE(processor.avviato());
    scegli(1, false);
    controllaFermo();
    EXPECT_FALSE(processor.pulAvvia.Enabled());
}

TEST_F(MotoreTest, TheClockStartsAlsoAListThatIsNotSelected)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"07:05:09,no,no,no,no"_s}});
    scegli(1, false);
    orologio.ora = QTime(7, 5, 8);
    scatta();
    EXPECT_EQ(inCorso(), QString());
    orologio.ora = QTime(7, 5, 9);
    scatta();
    EXPECT_EQ(inCorso(), u"b.sqm"_s);
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
}

TEST_F(MotoreTest, AtMidnightListsWithTheDefaultConditionStart)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.lstCondizioni.setList(0, fabbrica);
    orologio.ora = QTime(0, 0, 0);
    scatta();
    EXPECT_EQ(inCorso(), u"a.sqm"_s);
}

TEST_F(MotoreTest, WithoutAPortItIsToldAndThePictureChangesAllTheSame)
{
    const RispondiMessaggi messaggi;
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    seriale.COM.setPortOpen(false);
    processor.VerificaCondizioni(u"Temperatura:25"_s);
    EXPECT_EQ(messaggi.testi(), QStringList{u"Il robot non è collegato"_s});
    EXPECT_EQ(inCorso(), QString());
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
}

TEST_F(MotoreTest, ClosingTheEditorWhileStartedAsksAndStops)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    editor.close();
    EXPECT_FALSE(editor.Visible());
    EXPECT_EQ(messaggi.testi(),
              QStringList{u"Il Vigilio è in esecuzione, se chiudi il Sequor il Vigilio verrà "
                          "stoppato, chiudere?"_s});
    controllaFermo();
    EXPECT_TRUE(processor.Visible());
}

TEST_F(MotoreTest, AListDeletedMeanwhileIsTheCallersError)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    ASSERT_TRUE(QFile::remove(cartella.percorso(u"a.sqm"_s)));
    try {
        processor.VerificaCondizioni(u"Temperatura:25"_s);
        FAIL();
    } catch (const Errore &errore) {
        EXPECT_EQ(errore.numero(), Errore::FileNonTrovato);
    }
}

TEST_F(MotoreTest, AListDeletedMeanwhileThatIsNotAskedForDisturbsNobody)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    ASSERT_TRUE(QFile::remove(cartella.percorso(u"a.sqm"_s)));
    processor.VerificaCondizioni(u"Temperatura:26"_s);
    EXPECT_EQ(inCorso(), u"b.sqm"_s);
}

TEST_F(MotoreTest, StrangeConditionsAreLookedAtWithoutHarm)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    for (const QString &strana : {QString(), u"1"_s, u"abc,def,ghi,j,k"_s, QString(10'000, u'x'),
                                  QString(10'000, u','), u"\"no\",no,no,no,no"_s}) {
        processor.lstCondizioni.setList(0, strana);
        for (const QString &testo :
             {u"Ultrasuoni:101"_s, u"Temperatura:25"_s, u"Batterie:34"_s, QString()})
            processor.VerificaCondizioni(testo);
        EXPECT_EQ(inCorso(), QString()) << strana.left(20).toStdString();
        scatta();
        EXPECT_EQ(inCorso(), QString()) << strana.left(20).toStdString();
    }
    processor.VerificaCondizioni(u"Temperatura:26"_s);
    EXPECT_EQ(inCorso(), u"b.sqm"_s);
}
