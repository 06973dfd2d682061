// The move language, line by line.
#include "movelists/Mossa.h"

#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using Specie = Mossa::Specie;

namespace {

struct Riga
{
    const char16_t *testo;
    Specie specie;
    std::initializer_list<int> byte;
    std::optional<qint32> attesa;
};

constexpr std::nullopt_t normale = std::nullopt;

QByteArray mandati(const Mossa &mossa)
{
    SerialeFinto seriale;
    seriale.apri();
    if (mossa.comando)
        mossa.comando(seriale.COM);
    return seriale.porta.scritti();
}

void controlla(std::initializer_list<Riga> tabella)
{
    for (const Riga &riga : tabella) {
        const QString testo = QString::fromUtf16(riga.testo);
        SCOPED_TRACE(testo.toStdString());
        const Mossa mossa = leggiMossa(testo);
        EXPECT_EQ(mossa.specie, riga.specie);
        EXPECT_EQ(mandati(mossa), b(riga.byte));
        EXPECT_EQ(mossa.attesa, riga.attesa);
    }
}

QByteArray ottoLed(int acceso)
{
    QByteArray byte;
    for (const int maschera : {8, 128, 4, 64, 2, 32, 1, 16})
        byte += b({19, acceso, maschera});
    return byte;
}

} // namespace

TEST(Mossa, EveryLineThatTheProgramWritesIsRecognised)
{
    controlla({
        {u"Pausa 250", Specie::Pausa, {}, 250},
        {u"Testa LED Vs on", Specie::Led, {19, 37, 8}, 600},
        {u"Testa LED Vd off", Specie::Led, {19, 38, 128}, 600},
        {u"Testa LED Gs on", Specie::Led, {19, 37, 2}, 600},
        {u"Testa LED Gd off", Specie::Led, {19, 38, 32}, 600},
        {u"Testa LED Rs on", Specie::Led, {19, 37, 4}, 600},
        {u"Testa LED Rd on", Specie::Led, {19, 37, 64}, 600},
        {u"Testa LED Bs on", Specie::Led, {19, 37, 1}, 600},
        {u"Testa LED Bd off", Specie::Led, {19, 38, 16}, 600},
        {u"Testa su 2", Specie::Comando, {19, 33, 2}, 1600},
        {u"Testa giu 4", Specie::Comando, {19, 34, 4}, 3200},
        {u"Testa destra 12", Specie::Comando, {19, 35, 12}, 9600},
        {u"Testa sinistra 2", Specie::Comando, {19, 36, 2}, 1600},
        {u"Braccio Sx Alza", Specie::Comando, {19, 129, 2}, normale},
        {u"Braccio Sx Abbassa", Specie::Comando, {19, 129, 4}, normale},
        {u"Braccio Dx Alza", Specie::Comando, {19, 130, 2}, normale},
        {u"Braccio Dx Abbassa", Specie::Comando, {19, 130, 4}, normale},
        {u"Braccia Stop", Specie::Comando, {19, 129, 0, 19, 130, 0}, normale},
        {u"Tool Sinistro ON", Specie::Comando, {19, 139, 255}, normale},
        {u"Tool Sinistro OFF", Specie::Comando, {19, 139, 0}, normale},
        {u"Tool Destro ON", Specie::Comando, {19, 140, 255}, normale},
        {u"Tool Destro OFF", Specie::Comando, {19, 140, 0}, normale},
        {u"Pinza Apri", Specie::Comando, {19, 161, 1}, normale},
        {u"Pinza Chiudi", Specie::Comando, {19, 161, 2}, normale},
        {u"Avanti piano", Specie::Comando, {19, 65, 1}, normale},
        {u"Avanti veloce", Specie::Comando, {19, 65, 2}, normale},
        {u"Indietro piano", Specie::Comando, {19, 66, 1}, normale},
        {u"Indietro veloce", Specie::Comando, {19, 66, 2}, normale},
        {u"Destra ½", Specie::Comando, {19, 67, 18}, normale},
        {u"Destra ¼", Specie::Comando, {19, 67, 17}, normale},
        {u"Destra ", Specie::Comando, {19, 67, 16}, normale},
        {u"Destra", Specie::Comando, {19, 67, 16}, normale},
        {u"Sinistra ½", Specie::Comando, {19, 68, 18}, normale},
        {u"Sinistra ¼", Specie::Comando, {19, 68, 17}, normale},
        {u"Sinistra ", Specie::Comando, {19, 68, 16}, normale},
        {u"Sinistra", Specie::Comando, {19, 68, 16}, normale},
        {u"Stop", Specie::Comando, {19, 65, 0}, normale},
        {u"Bacino Alza", Specie::Comando, {19, 73, 4}, normale},
        {u"Bacino Abbassa", Specie::Comando, {19, 73, 8}, normale},
        {u"LED Posizione ON", Specie::Comando, {19, 131, 255}, normale},
        {u"LED Posizione OFF", Specie::Comando, {19, 131, 0}, normale},
        {u"Suono 1", Specie::Comando, {19, 97, 207}, normale},
        {u"Suono 16", Specie::Comando, {19, 97, 222}, normale},
        {u"Frase 1", Specie::Comando, {19, 97, 67}, normale},
        {u"Frase 140", Specie::Comando, {19, 97, 206}, normale},
        {u"Mex stop", Specie::Comando, {19, 99, 0}, normale},
        {u"Mex 3 play", Specie::Comando, {19, 99, 131, 19, 99, 131}, 500},
        {u"Mex 10 registra", Specie::Comando, {19, 99, 74, 19, 99, 74}, 16000},
        {u"Mex 3 cancella", Specie::Comando, {19, 99, 35}, normale},
        {u"Foto", Specie::Comando, {19, 3, 1}, normale},
        {u"Prog interno 3", Specie::Comando, {19, 2, 9}, normale},
        {u"Prog interno Stop", Specie::Comando, {19, 2, 0}, normale},
        {u"Camera", Specie::Camera, {}, normale},
        {u"Programma C:\\a.exe", Specie::Programma, {}, normale},
        {u"Ripeti 5 volte", Specie::Ripeti, {}, normale},
    });
}

TEST(Mossa, AllHeadLedsAreSwitchedByOneLineWithTheDefaultWait)
{
    for (const auto &[testo, acceso] :
         {std::pair{u"Testa LED tutti on"_s, 37}, {u"testa led TUTTI OFF"_s, 38}}) {
        const Mossa mossa = leggiMossa(testo);
        EXPECT_EQ(mossa.specie, Specie::Led);
        EXPECT_EQ(mandati(mossa), ottoLed(acceso));
        EXPECT_EQ(mossa.attesa, normale);
    }
}

TEST(Mossa, KeywordsCompareWithoutRegardToCase)
{
    controlla({
        {u"TESTA SU 2", Specie::Comando, {19, 33, 2}, 1600},
        {u"pausa 10", Specie::Pausa, {}, 10},
        {u"braccio sx alza", Specie::Comando, {19, 129, 2}, normale},
        {u"BRACCIA STOP", Specie::Comando, {19, 129, 0, 19, 130, 0}, normale},
        {u"tool sinistro on", Specie::Comando, {19, 139, 255}, normale},
        {u"PINZA APRI", Specie::Comando, {19, 161, 1}, normale},
        {u"AVANTI PIANO", Specie::Comando, {19, 65, 1}, normale},
        {u"led posizione on", Specie::Comando, {19, 131, 255}, normale},
        {u"MEX 1 PLAY", Specie::Comando, {19, 99, 129, 19, 99, 129}, 500},
        {u"sToP", Specie::Comando, {19, 65, 0}, normale},
        {u"FOTO", Specie::Comando, {19, 3, 1}, normale},
        {u"camera", Specie::Camera, {}, normale},
    });
}

TEST(Mossa, TheNameOfAHeadLedIsComparedExactly)
{
    controlla({
        {u"Testa LED vs on", Specie::Led, {19, 37, 0}, 600},
        {u"Testa LED VS on", Specie::Led, {19, 37, 0}, 600},
        {u"Testa LED Xx off", Specie::Led, {19, 38, 0}, 600},
        {u"Testa LED", Specie::Led, {19, 38, 0}, 600},
        {u"Testa LEDVs on", Specie::Led, {19, 37, 0}, 600},
    });
}

TEST(Mossa, TheWaitOfAHeadMoveGrowsWithItsSteps)
{
    controlla({
        {u"Testa su 1", Specie::Comando, {19, 33, 1}, 1500},
        {u"Testa su 2", Specie::Comando, {19, 33, 2}, 1600},
        {u"Testa su 3", Specie::Comando, {19, 33, 3}, 2400},
        {u"Testa su 40", Specie::Comando, {19, 33, 40}, 32000},
    });
}

TEST(Mossa, TheWaitOfAHeadMoveWrapsAsASigned16BitNumber)
{
    controlla({
        {u"Testa su 41", Specie::Comando, {19, 33, 41}, -32736},
        {u"Testa su 81", Specie::Comando, {19, 33, 81}, -736},
        {u"Testa su 82", Specie::Comando, {19, 33, 82}, 64},
        {u"Testa su 99", Specie::Comando, {19, 33, 99}, 13664},
    });
}

TEST(Mossa, AHeadMoveReadsTheLastTwoCharactersOfItsLine)
{
    controlla({
        {u"Testa su", Specie::Comando, {19, 33, 0}, 0},
        {u"Testa su 123", Specie::Comando, {19, 33, 23}, 18400},
        {u"Testa su 5 volte 7", Specie::Comando, {19, 33, 7}, 5600},
        {u"Testa su 7 passi", Specie::Comando, {19, 33, 0}, 0},
        {u"Testa su 3 ", Specie::Comando, {19, 33, 3}, 2400},
        {u"Testa destra", Specie::Comando, {19, 35, 0}, 0},
        {u"Testa su .5", Specie::Comando, {19, 33, 0}, 0},
        {u"Testa su x½", Specie::Comando, {19, 33, 0}, 0},
    });
}

TEST(Mossa, AHeadMoveWithANegativeNumberSendsNothing)
{
    controlla({{u"Testa su -5", Specie::Comando, {}, normale}});
}

TEST(Mossa, ASoundReadsTheLastTwoCharactersAndAPhraseItsColumn)
{
    controlla({
        {u"Suono 123", Specie::Comando, {19, 97, 229}, normale},
        {u"Suono", Specie::Comando, {19, 97, 206}, normale},
        {u"Suono a", Specie::Comando, {19, 97, 206}, normale},
        {u"Frase 123", Specie::Comando, {19, 97, 189}, normale},
        {u"Frase", Specie::Comando, {19, 97, 66}, normale},
        {u"Frase12", Specie::Comando, {19, 97, 68}, normale},
        {u"Frase dodici", Specie::Comando, {19, 97, 66}, normale},
        {u"Frase 1 4 0", Specie::Comando, {19, 97, 206}, normale},
    });
}

TEST(Mossa, APhraseBeyond16BitsSendsNothing)
{
    controlla({
        {u"Frase 32768", Specie::Comando, {}, normale},
        {u"Frase -99999", Specie::Comando, {}, normale},
        {u"Frase 99999999999999999999", Specie::Comando, {}, normale},
    });
}

TEST(Mossa, ANumberBeyondAByteSendsNothingAndKeepsTheLinesWait)
{
    controlla({
        {u"Mex 256 play", Specie::Comando, {}, 500},
        {u"Mex -1 registra", Specie::Comando, {}, 16000},
        {u"Mex 1000 cancella", Specie::Comando, {}, normale},
        {u"Prog interno 256", Specie::Comando, {}, normale},
        {u"Prog interno -2", Specie::Comando, {}, normale},
    });
}

TEST(Mossa, APauseIsReadFromItsSixthColumn)
{
    controlla({
        {u"Pausa", Specie::Pausa, {}, 0},
        {u"Pausa0", Specie::Pausa, {}, 0},
        {u"Pausa1000", Specie::Pausa, {}, 1000},
        {u"Pausa 1 0 0", Specie::Pausa, {}, 100},
        {u"Pausa 2.5", Specie::Pausa, {}, 2},
        {u"Pausa 3.5", Specie::Pausa, {}, 4},
        {u"Pausa -5", Specie::Pausa, {}, -5},
        {u"Pausa lunga", Specie::Pausa, {}, 0},
        {u"Pausa 60000000", Specie::Pausa, {}, 60000000},
        {u"Pausa 2147483648", Specie::Pausa, {}, normale},
        {u"Pausa 99999999999999999999999", Specie::Pausa, {}, normale},
    });
}

TEST(Mossa, WhatIsNotTheOneWordIsTheOther)
{
    controlla({
        {u"Braccio", Specie::Comando, {19, 130, 4}, normale},
        {u"Braccio Sx", Specie::Comando, {19, 129, 4}, normale},
        {u"Braccio Zz alza", Specie::Comando, {19, 130, 2}, normale},
        {u"Tool", Specie::Comando, {19, 140, 0}, normale},
        {u"Toolbox on", Specie::Comando, {19, 140, 255}, normale},
        {u"Pinza", Specie::Comando, {19, 161, 2}, normale},
        {u"Pinza Apri ", Specie::Comando, {19, 161, 2}, normale},
        {u"Avanti", Specie::Comando, {19, 65, 2}, normale},
        {u"Avanti pian", Specie::Comando, {19, 65, 2}, normale},
        {u"Indietro pianoforte", Specie::Comando, {19, 66, 2}, normale},
        {u"Destra ~", Specie::Comando, {19, 67, 16}, normale},
        {u"Destra  ½", Specie::Comando, {19, 67, 16}, normale},
        {u"Destra ½ e poi altro", Specie::Comando, {19, 67, 18}, normale},
        {u"Bacino", Specie::Comando, {19, 73, 8}, normale},
        {u"LED Posizione", Specie::Comando, {19, 131, 0}, normale},
        {u"Prog interno", Specie::Comando, {19, 2, 0}, normale},
    });
}

TEST(Mossa, ALineThatNoRuleRecognisesDoesNothing)
{
    controlla({
        {u"", Specie::Ignota, {}, normale},
        {u" ", Specie::Ignota, {}, normale},
        {u"Ciao", Specie::Ignota, {}, normale},
        {u" Stop", Specie::Ignota, {}, normale},
        {u"Stop ", Specie::Ignota, {}, normale},
        {u"Stop piano", Specie::Ignota, {}, normale},
        {u"Foto 1", Specie::Ignota, {}, normale},
        {u"Camera accesa", Specie::Ignota, {}, normale},
        {u"Braccia", Specie::Ignota, {}, normale},
        {u"Braccia Stop ", Specie::Ignota, {}, normale},
        {u"Testa", Specie::Ignota, {}, normale},
        {u"Testa avanti 2", Specie::Ignota, {}, normale},
        {u"Testasu 2", Specie::Ignota, {}, normale},
        {u"Testa  su 2", Specie::Ignota, {}, normale},
        {u"Mex", Specie::Ignota, {}, normale},
        {u"Mex 1", Specie::Ignota, {}, normale},
        {u"Mex 1 play ", Specie::Ignota, {}, normale},
        {u"LED", Specie::Ignota, {}, normale},
        {u"LED posiz", Specie::Ignota, {}, normale},
        {u"Prog", Specie::Ignota, {}, normale},
        {u"Paus 5", Specie::Ignota, {}, normale},
        {u"½", Specie::Ignota, {}, normale},
        {u"\u0000", Specie::Ignota, {}, normale},
    });
}

TEST(Mossa, AMessageNumberSkipsBlanksWhereverTheyStand)
{
    controlla({
        {u"Mex3 play", Specie::Comando, {19, 99, 131, 19, 99, 131}, 500},
        {u"Mex 1 0 cancella", Specie::Comando, {19, 99, 42}, normale},
        {u"Mex tre play", Specie::Comando, {19, 99, 128, 19, 99, 128}, 500},
        {u"Mexplay", Specie::Comando, {19, 99, 128, 19, 99, 128}, 500},
        {u"Mex 2 stop", Specie::Comando, {19, 99, 0}, normale},
    });
}

TEST(Mossa, ALoopCountsFromItsEighthColumn)
{
    const std::initializer_list<std::pair<QString, int>> tabella = {
        {u"Ripeti all'infinito"_s, 0},
        {u"Ripeti 1 volta"_s, 1},
        {u"Ripeti 200 volte"_s, 200},
        {u"Ripeti"_s, 0},
        {u"RIPETI 3"_s, 3},
        {u"Ripeti4"_s, 0},
        {u"Ripeti 255 volte"_s, 255},
        {u"Ripeti 256 volte"_s, 0},
        {u"Ripeti -1 volte"_s, 0},
        {u"Ripeti 1.5 volte"_s, 2},
    };
    for (const auto &[testo, volte] : tabella) {
        SCOPED_TRACE(testo.toStdString());
        EXPECT_EQ(leggiMossa(testo).specie, Specie::Ripeti);
        EXPECT_EQ(leggiMossa(testo).volte, volte);
    }
}

TEST(Mossa, AProgramIsWhatStandsFromTheEleventhColumnOn)
{
    EXPECT_EQ(leggiMossa(u"Programma C:\\a,b.exe").programma, u"C:\\a,b.exe"_s);
    EXPECT_EQ(leggiMossa(u"programma /bin/true").programma, u"/bin/true"_s);
    EXPECT_EQ(leggiMossa(u"Programma").programma, QString());
    EXPECT_EQ(leggiMossa(u"Programma ").programma, QString());
    EXPECT_EQ(leggiMossa(u"Programmaxy").programma, u"y"_s);
}

TEST(Mossa, ALineOfAHundredThousandCharactersIsReadAsAnyOther)
{
    const QString coda(100'000, u' ');
    EXPECT_EQ(leggiMossa(u"Pausa "_s + coda + u"7"_s).attesa, 7);
    EXPECT_EQ(leggiMossa(u"Pausa "_s + QString(100'000, u'9')).attesa, normale);
    EXPECT_EQ(mandati(leggiMossa(u"Testa su "_s + coda + u"9"_s)), b({19, 33, 9}));
    EXPECT_EQ(leggiMossa(QString(100'000, u'x')).specie, Specie::Ignota);
    EXPECT_EQ(leggiMossa(u"Programma "_s + coda).programma, coda);
}

TEST(Mossa, ACommandGoesOutInThePiecesOfTheCommandSet)
{
    SerialeFinto seriale;
    seriale.apri();
    leggiMossa(u"Avanti piano").comando(seriale.COM);
    EXPECT_EQ(seriale.porta.scritture, (QList<QByteArray>{b({19}), b({65}), b({1})}));
}
