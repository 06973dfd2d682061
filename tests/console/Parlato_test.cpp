#include "console/Parlato.h"
#include "link/FrasiSuoni.h"
#include "tests/console/AzioneInProva.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Parlato, AKnownPhraseStandsBetweenQuoteMarks)
{
    EXPECT_EQ(Parlato::nomeFrase(u"14"_s), u"\"Ciao\""_s);
    for (int n = 1; n <= 140; ++n)
        EXPECT_EQ(Parlato::nomeFrase(QString::number(n)), u'"' + FrasiSuoni::frase(n) + u'"');
}

TEST(Parlato, AKnownSoundStandsBare)
{
    EXPECT_EQ(Parlato::nomeSuono(u"4"_s), u"Rutto"_s);
    EXPECT_EQ(Parlato::nomeSuono(u"11"_s), u"Scatto di una macchina fotografica"_s);
}

TEST(Parlato, TheLastTwoSoundsHaveNoName)
{
    EXPECT_EQ(Parlato::nomeSuono(u"15"_s), QString());
    EXPECT_EQ(Parlato::nomeSuono(u"16"_s), QString());
}

TEST(Parlato, TheTextIsComparedAndNotItsValue)
{
    for (const QString &testo : {u"07"_s, u" 7"_s, u"7 "_s, u"+7"_s, u"7.0"_s, u"0"_s, u"-1"_s,
                                 u"141"_s, u"x"_s, QString(), QString(300, u'9')}) {
        EXPECT_EQ(Parlato::nomeFrase(testo), QString()) << testo.toStdString();
        EXPECT_EQ(Parlato::nomeSuono(testo), QString()) << testo.toStdString();
    }
}

TEST(Parlato, ANumberThatIsLeftIsBroughtBetweenOneAndTheLimit)
{
    struct Riga
    {
        QString testo;
        QString frase;
        QString suono;
    };
    const Riga righe[] = {
        {QString(), u"1"_s, u"1"_s},
        {u"0"_s, u"1"_s, u"1"_s},
        {u"000"_s, u"1"_s, u"1"_s},
        {u"1"_s, u"1"_s, u"1"_s},
        {u"16"_s, u"16"_s, u"16"_s},
        {u"17"_s, u"17"_s, u"16"_s},
        {u"140"_s, u"140"_s, u"16"_s},
        {u"141"_s, u"140"_s, u"16"_s},
        {u"007"_s, u"007"_s, u"007"_s},
        {u"ciao"_s, u"1"_s, u"1"_s},
        {u"-5"_s, u"1"_s, u"1"_s},
        {u"0.5"_s, u"1"_s, u"1"_s},
        {u"12abc"_s, u"12abc"_s, u"12abc"_s},
        {QString(100, u'9'), u"140"_s, u"16"_s},
        {QString(400, u'9'), u"140"_s, u"16"_s},
    };
    for (const Riga &riga : righe) {
        EXPECT_EQ(Parlato::limitato(riga.testo, 140), riga.frase) << riga.testo.toStdString();
        EXPECT_EQ(Parlato::limitato(riga.testo, 16), riga.suono) << riga.testo.toStdString();
    }
}

TEST(Parlato, EveryPhraseAndSoundGoesOutUnderTheRobotsOneNumbering)
{
    for (int n = 1; n <= 140; ++n)
        EXPECT_EQ(byteDi(Parlato::frase(QString::number(n))), b({19, 97, n + 66}));
    for (int n = 1; n <= 16; ++n)
        EXPECT_EQ(byteDi(Parlato::suono(QString::number(n))), b({19, 97, n + 206}));
}

TEST(Parlato, LinesTakeTheTextOfTheBox)
{
    EXPECT_EQ(Parlato::frase(u"140"_s).riga, u"Frase 140"_s);
    EXPECT_EQ(Parlato::frase(u"007"_s).riga, u"Frase 007"_s);
    EXPECT_EQ(Parlato::suono(u"16"_s).riga, u"Suono 16"_s);
    EXPECT_EQ(Parlato::frase(u"1"_s).esito, QString());
    EXPECT_EQ(Parlato::suono(u"1"_s).esito, QString());
}

TEST(Parlato, EveryMessageSlotIsPlayedRecordedAndDeleted)
{
    for (int n = 1; n <= 10; ++n) {
        const QString slot = QString::number(n);
        const Azione suona = Parlato::suonaMessaggio(slot);
        EXPECT_EQ(suona.riga, u"Mex "_s + slot + u" play"_s);
        EXPECT_EQ(byteDi(suona), b({19, 99, n + 128, 19, 99, n + 128}));
        EXPECT_EQ(suona.esito, QString());
        const Azione registra = Parlato::registraMessaggio(slot);
        EXPECT_EQ(registra.riga, u"Mex "_s + slot + u" registra"_s);
        EXPECT_EQ(byteDi(registra), b({19, 99, n + 64, 19, 99, n + 64}));
        EXPECT_EQ(registra.esito, QString());
        const Azione cancella = Parlato::cancellaMessaggio(slot);
        EXPECT_EQ(cancella.riga, u"Mex "_s + slot + u" cancella"_s);
        EXPECT_EQ(byteDi(cancella), b({19, 99, n + 32}));
        EXPECT_EQ(cancella.esito, QString());
    }
    EXPECT_EQ(Parlato::fermaMessaggio().riga, u"Mex stop"_s);
    EXPECT_EQ(byteDi(Parlato::fermaMessaggio()), b({19, 99, 0}));
    EXPECT_EQ(Parlato::fermaMessaggio().esito, QString());
}

TEST(Parlato, EveryInternalProgramIsStartedAndStopped)
{
    for (int n = 1; n <= 10; ++n) {
        const Azione avvia = Parlato::avviaProgramma(QString::number(n));
        EXPECT_EQ(avvia.riga, u"Prog interno "_s + QString::number(n));
        EXPECT_EQ(byteDi(avvia), b({19, 2, n * 4 - 3}));
        EXPECT_EQ(avvia.esito, u"Programma interno del ROBOT avviato."_s);
    }
    const Azione ferma = Parlato::fermaProgramma();
    EXPECT_EQ(ferma.riga, u"Prog interno Stop"_s);
    EXPECT_EQ(byteDi(ferma), b({19, 2, 0}));
    EXPECT_EQ(ferma.esito, u"Programma interno del ROBOT arrestato."_s);
}

TEST(Parlato, TheBorderStandsWhileTheMouseIsFiftyUnitsInsideAllEdges)
{
    EXPECT_EQ(Parlato::bordo(225, 225, 450, 450), 1);
    EXPECT_EQ(Parlato::bordo(50, 50, 450, 450), 1);
    EXPECT_EQ(Parlato::bordo(400, 400, 450, 450), 1);
    EXPECT_EQ(Parlato::bordo(49, 225, 450, 450), 0);
    EXPECT_EQ(Parlato::bordo(401, 225, 450, 450), 0);
    EXPECT_EQ(Parlato::bordo(225, 49, 450, 450), 0);
    EXPECT_EQ(Parlato::bordo(225, 401, 450, 450), 0);
    EXPECT_EQ(Parlato::bordo(-10, 225, 450, 450), 0);
}
