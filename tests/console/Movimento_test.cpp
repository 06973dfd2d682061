#include "console/Movimento.h"
#include "controls/Tasti.h"
#include "tests/console/AzioneInProva.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ValoriMovimento valori()
{
    return {u"2"_s, u"2"_s, u"piano"_s, 0, u"½"_s, 0};
}

void attesa(const std::optional<Azione> &azione, const QString &riga, const QByteArray &byte,
            const QString &esito)
{
    ASSERT_TRUE(azione);
    EXPECT_EQ(azione->riga, riga);
    EXPECT_EQ(byteDi(*azione), byte);
    EXPECT_EQ(azione->esito, esito);
}

} // namespace

TEST(Movimento, InHeadModeTheArrowsMoveTheHeadByTheirSteps)
{
    for (int n = 1; n <= 12; ++n) {
        const QString passi = QString::number(n);
        ValoriMovimento v = valori();
        v.passiO = passi;
        attesa(Movimento::freccia(Tasti::Sinistra, true, v), u"Testa sinistra "_s + passi,
               b({19, 36, n}), u"Testa spostata a sinistra di "_s + passi + u" step"_s);
        attesa(Movimento::freccia(Tasti::Destra, true, v), u"Testa destra "_s + passi,
               b({19, 35, n}), u"Testa spostata a destra di "_s + passi + u" step"_s);
    }
    for (int n = 1; n <= 4; ++n) {
        const QString passi = QString::number(n);
        ValoriMovimento v = valori();
        v.passiV = passi;
        attesa(Movimento::freccia(Tasti::Su, true, v), u"Testa su "_s + passi, b({19, 33, n}),
               u"Testa alzata di "_s + passi + u" step"_s);
        attesa(Movimento::freccia(Tasti::Giu, true, v), u"Testa giu "_s + passi, b({19, 34, n}),
               u"Testa abbassata di "_s + passi + u" step"_s);
    }
}

TEST(Movimento, TheBaseRunsAtTheSpeedChosen)
{
    for (int indice = 0; indice < 2; ++indice) {
        ValoriMovimento v = valori();
        v.velocita = indice == 0 ? u"piano"_s : u"veloce"_s;
        v.indiceVelocita = indice;
        attesa(Movimento::freccia(Tasti::Su, false, v), u"Avanti "_s + v.velocita,
               b({19, 65, indice + 1}), u"Tessaro sta andando avanti"_s);
        attesa(Movimento::freccia(Tasti::Giu, false, v), u"Indietro "_s + v.velocita,
               b({19, 66, indice + 1}), u"Tessaro sta andando all'indietro"_s);
    }
}

TEST(Movimento, TheBaseTurnsByTheKindChosen)
{
    struct Giro
    {
        QString testo;
        int indice;
        int byte;
    };
    for (const Giro &giro : {Giro{u"½"_s, 0, 18}, Giro{u"¼"_s, 1, 17}, Giro{u"metà"_s, -1, 19}}) {
        ValoriMovimento v = valori();
        v.giro = giro.testo;
        v.indiceGiro = giro.indice;
        attesa(Movimento::freccia(Tasti::Sinistra, false, v), u"Sinistra "_s + giro.testo,
               b({19, 68, giro.byte}),
               u"Robot svoltato a sinistra per "_s + giro.testo + u" di giro"_s);
        attesa(Movimento::freccia(Tasti::Destra, false, v), u"Destra "_s + giro.testo,
               b({19, 67, giro.byte}),
               u"Robot svoltato a destra per "_s + giro.testo + u" di giro"_s);
    }
}

TEST(Movimento, TheEndlessTurnsLineEndsInItsBlank)
{
    ValoriMovimento v = valori();
    v.giro = u"~"_s;
    v.indiceGiro = 2;
    attesa(Movimento::freccia(Tasti::Sinistra, false, v), u"Sinistra "_s, b({19, 68, 16}),
           u"Tessaro sta girando verso sinistra"_s);
    attesa(Movimento::freccia(Tasti::Destra, false, v), u"Destra "_s, b({19, 67, 16}),
           u"Tessaro sta girando verso destra"_s);
}

TEST(Movimento, OtherKeysMoveNothing)
{
    for (const int tasto : {Tasti::Spazio, Tasti::Invio, Tasti::Canc, 65, 255}) {
        EXPECT_FALSE(Movimento::freccia(tasto, true, valori())) << tasto;
        EXPECT_FALSE(Movimento::freccia(tasto, false, valori())) << tasto;
        EXPECT_EQ(Movimento::frecciaDelTasto(tasto), 0) << tasto;
    }
}

TEST(Movimento, ArrowsFiveToTenMovePelvisAndArms)
{
    attesa(Movimento::bacinoOBraccia(5), u"Bacino Alza"_s, b({19, 73, 4}), u"Bacino Alzato"_s);
    attesa(Movimento::bacinoOBraccia(6), u"Bacino Abbassa"_s, b({19, 73, 8}),
           u"Bacino Abbassato"_s);
    attesa(Movimento::bacinoOBraccia(7), u"Braccio Sx Alza"_s, b({19, 129, 2}),
           u"Braccio sinistro alzato"_s);
    attesa(Movimento::bacinoOBraccia(8), u"Braccio Dx Alza"_s, b({19, 130, 2}),
           u"Braccio destro alzato"_s);
    attesa(Movimento::bacinoOBraccia(9), u"Braccio Sx Abbassa"_s, b({19, 129, 4}),
           u"Braccio sinistro abbassato"_s);
    attesa(Movimento::bacinoOBraccia(10), u"Braccio Dx Abbassa"_s, b({19, 130, 4}),
           u"Braccio destro abbassato"_s);
    for (const int Index : {-1, 0, 1, 4, 11})
        EXPECT_FALSE(Movimento::bacinoOBraccia(Index)) << Index;
}

TEST(Movimento, StopHaltsTheBaseOrBothArms)
{
    attesa(Movimento::stop(true), u"Stop"_s, b({19, 65, 0}), u"Robot stoppato"_s);
    attesa(Movimento::stop(false), u"Braccia Stop"_s, b({19, 129, 0, 19, 130, 0}),
           u"Braccia stoppate"_s);
}

TEST(Movimento, KeysAndMainArrowsBelongTogether)
{
    const int tasti[] = {38, 37, 39, 40};
    for (int Index = 1; Index <= 4; ++Index) {
        EXPECT_EQ(Movimento::tastoDellaFreccia(Index), tasti[Index - 1]);
        EXPECT_EQ(Movimento::frecciaDelTasto(tasti[Index - 1]), Index);
    }
    for (const int Index : {0, 5, 10, 11})
        EXPECT_EQ(Movimento::tastoDellaFreccia(Index), 0) << Index;
}

TEST(Movimento, EveryArrowHasAPictureAtRestAndOnePressed)
{
    const int riposo[] = {1, 2, 3, 4, 1, 4, 1, 1, 4, 4};
    for (int Index = 1; Index <= 10; ++Index) {
        EXPECT_EQ(Movimento::disegnoARiposo(Index), riposo[Index - 1]) << Index;
        EXPECT_EQ(Movimento::disegnoPremuta(Index), riposo[Index - 1] + 4) << Index;
    }
}
