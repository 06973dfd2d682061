#include "console/LedTesta.h"
#include "tests/console/AzioneInProva.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

TEST(LedTesta, ThePicturesLeftHalfIsTheRobotsRightSide)
{
    EXPECT_EQ(LedTesta::lato(0, 2400), u"destro"_s);
    EXPECT_EQ(LedTesta::lato(1199.9, 2400), u"destro"_s);
    EXPECT_EQ(LedTesta::lato(1200, 2400), u"sinistro"_s);
    EXPECT_EQ(LedTesta::lato(2400, 2400), u"sinistro"_s);
}

TEST(LedTesta, EveryRowAndSideGivesItsLineItsBytesAndItsText)
{
    struct Riga
    {
        int numero;
        QString lato;
        QString nome;
        int maschera;
        QString parola;
    };
    const Riga righe[] = {
        {0, u"destro"_s, u"Vd"_s, 128, u"verde destro"_s},
        {1, u"destro"_s, u"Gd"_s, 32, u"giallo destro"_s},
        {2, u"destro"_s, u"Rd"_s, 64, u"rosso destro"_s},
        {3, u"destro"_s, u"Bd"_s, 16, u"dell'orecchio destro"_s},
        {0, u"sinistro"_s, u"Vs"_s, 8, u"verde sinistro"_s},
        {1, u"sinistro"_s, u"Gs"_s, 2, u"giallo sinistro"_s},
        {2, u"sinistro"_s, u"Rs"_s, 4, u"rosso sinistro"_s},
        {3, u"sinistro"_s, u"Bs"_s, 1, u"dell'orecchio sinistro"_s},
        // Over no half of the picture: the left one, and the words' own blanks stay.
        {0, QString(), u"Vs"_s, 8, u"verde "_s},
        {1, QString(), u"Gs"_s, 2, u"giallo "_s},
        {2, QString(), u"Rs"_s, 4, u"rosso "_s},
        {3, QString(), u"Bs"_s, 1, u"dell'orecchio "_s},
    };
    for (const Riga &riga : righe) {
        SCOPED_TRACE(riga.nome.toStdString());
        EXPECT_EQ(LedTesta::nome(riga.numero, riga.lato), riga.nome);
        const Azione accendi = LedTesta::azione(riga.numero, riga.lato, true);
        EXPECT_EQ(accendi.riga, u"Testa LED "_s + riga.nome + u" on"_s);
        EXPECT_EQ(accendi.esito, u"LED "_s + riga.parola + u" acceso"_s);
        EXPECT_EQ(byteDi(accendi), b({19, 37, riga.maschera}));
        const Azione spegni = LedTesta::azione(riga.numero, riga.lato, false);
        EXPECT_EQ(spegni.riga, u"Testa LED "_s + riga.nome + u" off"_s);
        EXPECT_EQ(spegni.esito, u"LED "_s + riga.parola + u" spento"_s);
        EXPECT_EQ(byteDi(spegni), b({19, 38, riga.maschera}));
        EXPECT_EQ(LedTesta::suggerimento(riga.numero, riga.lato, true),
                  u"Accendi il LED "_s + riga.parola);
        EXPECT_EQ(LedTesta::suggerimento(riga.numero, riga.lato, false),
                  u"Spegni il LED "_s + riga.parola);
    }
}

TEST(LedTesta, ARowThatIsNotThereHasNoHoverText)
{
    EXPECT_EQ(LedTesta::suggerimento(-1, u"destro"_s, true), QString());
    EXPECT_EQ(LedTesta::suggerimento(4, u"destro"_s, false), QString());
}

TEST(LedTesta, AllOfThemGoOutAsEightCommands)
{
    const Azione accendi = LedTesta::tutti(true);
    EXPECT_EQ(accendi.riga, u"Testa LED tutti on"_s);
    EXPECT_EQ(accendi.esito, u"Tutti i LED sono stati accesi"_s);
    EXPECT_EQ(byteDi(accendi), b({19, 37, 8, 19, 37, 128, 19, 37, 4, 19, 37, 64,
                                  19, 37, 2, 19, 37, 32,  19, 37, 1, 19, 37, 16}));
    const Azione spegni = LedTesta::tutti(false);
    EXPECT_EQ(spegni.riga, u"Testa LED tutti off"_s);
    EXPECT_EQ(spegni.esito, u"Tutti i LED sono stati spenti"_s);
    EXPECT_EQ(byteDi(spegni), b({19, 38, 8, 19, 38, 128, 19, 38, 4, 19, 38, 64,
                                 19, 38, 2, 19, 38, 32,  19, 38, 1, 19, 38, 16}));
}

TEST(LedTesta, TheRowUnderTheMouseFollowsFromTheItemsHeight)
{
    EXPECT_EQ(LedTesta::rigaSotto(0, 338), 0);
    EXPECT_EQ(LedTesta::rigaSotto(337, 338), 0);
    EXPECT_EQ(LedTesta::rigaSotto(338, 338), 1);
    EXPECT_EQ(LedTesta::rigaSotto(1351, 338), 3);
    EXPECT_EQ(LedTesta::rigaSotto(1352, 338), 4);
}

TEST(LedTesta, HeightsAreRoundedHalfToEvenBeforeTheDivision)
{
    EXPECT_EQ(LedTesta::rigaSotto(337.5, 337.5), 1); // both become 338
    EXPECT_EQ(LedTesta::rigaSotto(336.5, 337.5), 0); // 336
}

TEST(LedTesta, AboveTheListTheDivisionCutsTowardZero)
{
    EXPECT_EQ(LedTesta::rigaSotto(-300, 338), 0);
    EXPECT_EQ(LedTesta::rigaSotto(-400, 338), -1);
}

TEST(LedTesta, AListWithoutAHeightHasNoRow)
{
    EXPECT_EQ(LedTesta::rigaSotto(10, 0), -1);
}

TEST(LedTesta, TheArrowsStepsRunTo210AndBeginAgain)
{
    quint8 passo = 0;
    for (const int atteso : {30, 60, 90, 120, 150, 180, 210, 0, 30}) {
        passo = LedTesta::passoSeguente(passo);
        EXPECT_EQ(passo, atteso);
    }
}

static std::array<std::pair<double, double>, 4> coppie(const std::array<LedTesta::Punto, 4> &posti)
{
    return {{{posti[0].Left, posti[0].Top},
             {posti[1].Left, posti[1].Top},
             {posti[2].Left, posti[2].Top},
             {posti[3].Left, posti[3].Top}}};
}

TEST(LedTesta, OnTheRobotsRightTheArrowsCloseInOnThePicturesLeftHalf)
{
    using P = std::pair<double, double>;
    EXPECT_THAT(coppie(LedTesta::frecce(0, u"destro"_s, 2400)),
                testing::ElementsAre(P(30, 1500), P(30, 300), P(1000, 300), P(1000, 1500)));
    EXPECT_THAT(coppie(LedTesta::frecce(210, u"destro"_s, 2400)),
                testing::ElementsAre(P(240, 1290), P(240, 510), P(790, 510), P(790, 1290)));
}

TEST(LedTesta, OnTheRobotsLeftTheyFollowThePicturesWidth)
{
    using P = std::pair<double, double>;
    EXPECT_THAT(coppie(LedTesta::frecce(60, u"sinistro"_s, 2400)),
                testing::ElementsAre(P(960, 1440), P(960, 360), P(1840, 360), P(1840, 1440)));
}

TEST(LedTesta, OnNoSideTheyStandAtTheLeftEdge)
{
    using P = std::pair<double, double>;
    EXPECT_THAT(coppie(LedTesta::frecce(30, {}, 2400)),
                testing::ElementsAre(P(0, 1470), P(0, 330), P(0, 330), P(0, 1470)));
}
