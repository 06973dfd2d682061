// The condition text, without a window.
#include "conditional/Condizione.h"

#include "tests/support/Scritte.h"

#include <QStringList>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

// All that can be asked about a condition, for texts of which only a survival is expected.
void chiediTutto(const QString &condizione)
{
    EXPECT_LE(DescriviCondizione(condizione).size(), 11) << condizione.left(40).toStdString();
    for (int campo = 1; campo <= campiCondizione; ++campo) {
        const qsizetype posizione = posizioneCampo(condizione, campo);
        EXPECT_LE(posizione, condizione.size());
        EXPECT_EQ(campoNo(condizione, campo), condizione.mid(posizione, 2) == u"no");
        EXPECT_FALSE(testoCampo(condizione, campo).contains(u','));
    }
    // Two lists with one and the same text clash as soon as one field is set.
    bool tuttiNo = true;
    for (int campo = 1; campo <= campiCondizione; ++campo)
        tuttiNo = tuttiNo && campoNo(condizione, campo);
    EXPECT_EQ(Contrasto(condizione, condizione).has_value(), !tuttiNo);
    for (const QString &testo : {u"Ultrasuoni:111"_s, u"Temperatura:25"_s, u"Batterie:00"_s})
        condizioneVera(condizione, testo);
}

} // namespace

TEST(CampiCondizione, AreFoundByTheirNumber)
{
    const QString condizione = u"07:05:09,101,25,3,no"_s;
    EXPECT_EQ(testoCampo(condizione, CampoOrario), u"07:05:09");
    EXPECT_EQ(testoCampo(condizione, CampoUltrasuoni), u"101");
    EXPECT_EQ(testoCampo(condizione, CampoTemperatura), u"25");
    EXPECT_EQ(testoCampo(condizione, CampoLogica), u"3");
    EXPECT_EQ(testoCampo(condizione, CampoMotori), u"no");
    EXPECT_EQ(posizioneCampo(condizione, CampoOrario), 0);
    EXPECT_EQ(posizioneCampo(condizione, CampoMotori), 18);
    EXPECT_FALSE(campoNo(condizione, CampoLogica));
    EXPECT_TRUE(campoNo(condizione, CampoMotori));
}

TEST(CampiCondizione, OnlyTheFirstTwoCharactersSayNo)
{
    EXPECT_TRUE(campoNo(u"notte,no ,nove,n,NO", CampoOrario));
    EXPECT_TRUE(campoNo(u"notte,no ,nove,n,NO", CampoUltrasuoni));
    EXPECT_TRUE(campoNo(u"notte,no ,nove,n,NO", CampoTemperatura));
    EXPECT_FALSE(campoNo(u"notte,no ,nove,n,NO", CampoLogica));
    EXPECT_FALSE(campoNo(u"notte,no ,nove,n,NO", CampoMotori));
}

TEST(CampiCondizione, AMissingFieldIsEmptyAndNotUnset)
{
    for (const QString &condizione : {QString(), u"1"_s, u"1,no"_s}) {
        EXPECT_EQ(testoCampo(condizione, CampoTemperatura), u"");
        EXPECT_EQ(posizioneCampo(condizione, CampoTemperatura), condizione.size());
        EXPECT_FALSE(campoNo(condizione, CampoTemperatura));
    }
}

TEST(CampiCondizione, AreJoinedAsTheyWereTaken)
{
    EXPECT_EQ(componiCondizione({u"00:00:00"_s, u"no"_s, u"no"_s, u"no"_s, u"no"_s}),
              condizionePredefinita);
    EXPECT_EQ(componiCondizione({u"no"_s, u"010"_s, u"40"_s, u"0"_s, u"4"_s}), u"no,010,40,0,4"_s);
}

TEST(DescriviCondizione, OneFieldHasItsOwnWord)
{
    EXPECT_EQ(DescriviCondizione(u"07:05:09,no,no,no,no"), u"07:05:09"_s);
    EXPECT_EQ(DescriviCondizione(u"no,101,no,no,no"), u"Ultrasuoni"_s);
    EXPECT_EQ(DescriviCondizione(u"no,no,25,no,no"), u"Temperatura"_s);
    EXPECT_EQ(DescriviCondizione(u"no,no,no,0,no"), u"Batt.Logica"_s);
    EXPECT_EQ(DescriviCondizione(u"no,no,no,no,4"), u"Batt.Motori"_s);
    EXPECT_EQ(DescriviCondizione(condizionePredefinita), u"00:00:00"_s);
}

TEST(DescriviCondizione, NoFieldHasNoWord)
{
    EXPECT_EQ(DescriviCondizione(u"no,no,no,no,no"), QString());
}

TEST(DescriviCondizione, TheTwoBatteriesAloneAreTheBatteries)
{
    EXPECT_EQ(DescriviCondizione(u"no,no,no,1,2"), u"Batterie"_s);
    EXPECT_EQ(DescriviCondizione(u"no,no,25,1,2"), u"Varie"_s);
    EXPECT_EQ(DescriviCondizione(u"07:05:09,no,no,1,2"), u"Varie"_s);
}

TEST(DescriviCondizione, AnyOtherMixIsVarious)
{
    // Every choice of two fields or more, but for the two batteries.
    const QStringList pieni = {u"07:05:09"_s, u"101"_s, u"25"_s, u"1"_s, u"2"_s};
    int misti = 0;
    for (unsigned scelta = 0; scelta < 32; ++scelta) {
        std::array<QString, campiCondizione> campi;
        int quanti = 0;
        for (unsigned i = 0; i < 5; ++i) {
            const bool pieno = (scelta & (1U << i)) != 0;
            campi[i] = pieno ? pieni[i] : u"no"_s;
            quanti += pieno ? 1 : 0;
        }
        if (quanti < 2 || scelta == 0b11000)
            continue;
        ++misti;
        EXPECT_EQ(DescriviCondizione(componiCondizione(campi)), u"Varie"_s) << scelta;
    }
    EXPECT_EQ(misti, 25);
}

TEST(DescriviCondizione, AConditionWithMissingFieldsIsVarious)
{
    EXPECT_EQ(DescriviCondizione(u"1"), u"Varie"_s);
    EXPECT_EQ(DescriviCondizione(u""), u"Varie"_s);
    EXPECT_EQ(DescriviCondizione(u"no,no,no,no"), u"Batt.Motori"_s);
}

TEST(NomeLista, AShortNameIsFilledUpTo31)
{
    EXPECT_EQ(NomeLista(u"saluto.sqm"_s), u"saluto.sqm                     "_s);
    EXPECT_EQ(NomeLista({}), QString(31, u' '));
    EXPECT_EQ(NomeLista(u"perché è già lì.sqm"_s).size(), 31);
}

TEST(NomeLista, FromThirtyOneOnItIsCut)
{
    const QString trenta = u"abcdefghijklmnopqrstuvwxyz.sqm"_s;
    ASSERT_EQ(trenta.size(), 30);
    EXPECT_EQ(NomeLista(trenta), trenta + u' ');
    EXPECT_EQ(NomeLista(u"abcdefghijklmnopqrstuvwxyza.sqm"_s),
              u"abcdefghijklmnopqrstuvwxyza... "_s);
    EXPECT_EQ(NomeLista(QString(10'000, u'x')), QString(27, u'x') + u"... "_s);
    EXPECT_EQ(NomeLista(u"a \"b\" ciò che è lungo più di trenta.sqm"_s),
              u"a \"b\" ciò che è lungo più d... "_s);
}

TEST(Contrasto, TwoListsWithTheDefaultConditionClash)
{
    EXPECT_EQ(Contrasto(condizionePredefinita, condizionePredefinita),
              u"hanno gli stessi orari di attivazione!"_s);
}

TEST(Contrasto, EveryFieldHasItsOwnText)
{
    EXPECT_EQ(Contrasto(u"no,101,no,no,no", u"no,101,no,no,no"),
              u"si attivano entrambe con gli stessi sensori a ultrasuoni"_s);
    EXPECT_EQ(Contrasto(u"no,no,25,no,no", u"no,no,25,no,no"),
              u"si attivano entrambe con la stessa temperatura"_s);
    EXPECT_EQ(Contrasto(u"no,no,no,3,no", u"no,no,no,3,no"),
              u"si attivano entrambe con lo stesso stato delle batterie logica"_s);
    EXPECT_EQ(Contrasto(u"no,no,no,no,3", u"no,no,no,no,3"),
              u"si attivano entrambe con lo stesso stato delle batterie dei motori"_s);
}

TEST(Contrasto, TheFirstFieldThatClashesIsTold)
{
    EXPECT_EQ(Contrasto(u"07:00:00,101,25,3,4", u"07:00:00,101,25,3,4"),
              u"hanno gli stessi orari di attivazione!"_s);
    EXPECT_EQ(Contrasto(u"07:00:00,101,25,3,4", u"08:00:00,001,25,3,4"),
              u"si attivano entrambe con la stessa temperatura"_s);
}

TEST(Contrasto, DifferentFieldsDoNotClash)
{
    EXPECT_EQ(Contrasto(u"07:00:00,101,25,3,4", u"07:00:01,100,24,2,3"), std::nullopt);
    EXPECT_EQ(Contrasto(u"07:00:00,no,no,no,no", u"no,101,no,no,no"), std::nullopt);
    EXPECT_EQ(Contrasto(u"no,no,no,no,no", u"no,no,no,no,no"), std::nullopt);
    // Sensors clash as a whole only.
    EXPECT_EQ(Contrasto(u"no,100,no,no,no", u"no,101,no,no,no"), std::nullopt);
}

TEST(Contrasto, NoOfTheOtherListReadsAs0)
{
    const QString nessuna = u"no,no,no,no,no"_s;
    EXPECT_EQ(Contrasto(u"no,no,0,no,no", nessuna),
              u"si attivano entrambe con la stessa temperatura"_s);
    EXPECT_EQ(Contrasto(u"no,no,no,0,no", nessuna),
              u"si attivano entrambe con lo stesso stato delle batterie logica"_s);
    EXPECT_EQ(Contrasto(u"no,no,no,no,0", nessuna),
              u"si attivano entrambe con lo stesso stato delle batterie dei motori"_s);
    // The other way round there is nothing set that could clash.
    EXPECT_EQ(Contrasto(nessuna, u"no,no,0,0,0"), std::nullopt);
}

TEST(Contrasto, NumbersAreComparedAndNotTexts)
{
    EXPECT_TRUE(Contrasto(u"no,no,5,no,no", u"no,no,05,no,no"));
    EXPECT_TRUE(Contrasto(u"no,no,5,no,no", u"no,no, 5,no,no"));
    // Two characters of the temperature, one of each level.
    EXPECT_TRUE(Contrasto(u"no,no,251,no,no", u"no,no,259,no,no"));
    EXPECT_TRUE(Contrasto(u"no,no,no,12,no", u"no,no,no,13,no"));
    EXPECT_TRUE(Contrasto(u"no,no,no,no,12", u"no,no,no,no,13"));
}

TEST(CondizioneVera, ASensorThatIsAskedForStarts)
{
    const QString condizione = u"no,101,no,no,no"_s;
    EXPECT_TRUE(condizioneVera(condizione, u"Ultrasuoni:100"));
    EXPECT_TRUE(condizioneVera(condizione, u"Ultrasuoni:001"));
    EXPECT_TRUE(condizioneVera(condizione, u"Ultrasuoni:111"));
    EXPECT_FALSE(condizioneVera(condizione, u"Ultrasuoni:010"));
    EXPECT_FALSE(condizioneVera(condizione, u"Ultrasuoni:000"));
    EXPECT_FALSE(condizioneVera(u"no,no,no,no,no", u"Ultrasuoni:111"));
    EXPECT_FALSE(condizioneVera(u"no,000,no,no,no", u"Ultrasuoni:111"));
}

TEST(CondizioneVera, TheExactTemperatureStarts)
{
    EXPECT_TRUE(condizioneVera(u"no,no,25,no,no", u"Temperatura:25"));
    EXPECT_FALSE(condizioneVera(u"no,no,25,no,no", u"Temperatura:26"));
    EXPECT_FALSE(condizioneVera(u"no,no,25,no,no", u"Temperatura:2"));
    EXPECT_FALSE(condizioneVera(u"no,no,25,no,no", u"Temperatura:255"));
    EXPECT_FALSE(condizioneVera(u"no,no,no,no,no", u"Temperatura:0"));
    EXPECT_TRUE(condizioneVera(u"no,no,0,no,no", u"Temperatura:0"));
}

TEST(CondizioneVera, TheLogicBatteryIsMetAtItsLevel0ByTheMotorsLevel)
{
    EXPECT_TRUE(condizioneVera(u"no,no,no,3,no", u"Batterie:03"));
    EXPECT_FALSE(condizioneVera(u"no,no,no,3,no", u"Batterie:33"));
    EXPECT_FALSE(condizioneVera(u"no,no,no,3,no", u"Batterie:30"));
    for (int logica = 0; logica <= 4; ++logica)
        for (int motori = 0; motori <= 4; ++motori)
            for (int campo = 0; campo <= 4; ++campo)
                EXPECT_EQ(condizioneVera(u"no,no,no,%1,no"_s.arg(campo),
                                         u"Batterie:%1%2"_s.arg(logica).arg(motori)),
                          logica == 0 && motori == campo)
                    << logica << motori << campo;
}

TEST(CondizioneVera, TheMotorsBatteryStartsAtItsLevel)
{
    EXPECT_TRUE(condizioneVera(u"no,no,no,no,3", u"Batterie:03"));
    EXPECT_TRUE(condizioneVera(u"no,no,no,no,3", u"Batterie:33"));
    EXPECT_FALSE(condizioneVera(u"no,no,no,no,3", u"Batterie:34"));
    EXPECT_TRUE(condizioneVera(u"no,no,no,4,3", u"Batterie:43"));
    EXPECT_FALSE(condizioneVera(u"no,no,no,no,no", u"Batterie:00"));
}

TEST(CondizioneVera, EachTelegramLooksAtItsOwnFieldOnly)
{
    const QString tutti = u"07:00:00,111,25,2,2"_s;
    EXPECT_FALSE(condizioneVera(tutti, u"Temperatura:24"));
    EXPECT_FALSE(condizioneVera(tutti, u"Batterie:25"));
    EXPECT_FALSE(condizioneVera(tutti, u"Ultrasuoni:000"));
    EXPECT_FALSE(condizioneVera(tutti, u"07:00:00"));
    EXPECT_FALSE(condizioneVera(tutti, u"temperatura:25"));
    EXPECT_FALSE(condizioneVera(tutti, u""));
}

TEST(CondizioneVera, AShortTelemetryTextStartsNothing)
{
    EXPECT_FALSE(condizioneVera(u"no,111,no,no,no", u"Ultrasuoni:"));
    EXPECT_FALSE(condizioneVera(u"no,111,no,no,no", u"Ultrasuoni:0"));
    EXPECT_FALSE(condizioneVera(u"no,no,25,no,no", u"Temperatura:"));
    EXPECT_FALSE(condizioneVera(u"no,no,no,no,3", u"Batterie:3"));
}

TEST(CondizioneVera, WhatIsNoNumberReadsAs0)
{
    EXPECT_TRUE(condizioneVera(u"no,no,caldo,no,no", u"Temperatura:0"));
    EXPECT_FALSE(condizioneVera(u"no,no,caldo,no,no", u"Temperatura:25"));
    EXPECT_TRUE(condizioneVera(u"no,no", u"Temperatura:0"));
    EXPECT_FALSE(condizioneVera(u"no,abc,no,no,no", u"Ultrasuoni:111"));
}

TEST(CondizioneVera, AFieldThatIsTooShortBorrowsNothingThatCounts)
{
    EXPECT_FALSE(condizioneVera(u"no,0,no,no,no", u"Ultrasuoni:111"));
    EXPECT_TRUE(condizioneVera(u"no,1", u"Ultrasuoni:100"));
    EXPECT_FALSE(condizioneVera(u"no,1", u"Ultrasuoni:011"));
}

TEST(CondizioneStrana, AnyTextIsSurvived)
{
    const QStringList strane = {
        {},
        u","_s,
        u",,,,"_s,
        u",,,,,,,,"_s,
        u"n"_s,
        u"no"_s,
        u"no,no,no,no,n"_s,
        u"abc,def,ghi,j,k"_s,
        u"\"07:00:00\",no,no,no,no"_s,
        u"07:00:00;no;no;no;no"_s,
        u"no,no,-5,no,no"_s,
        u"no,no,1e400,no,no"_s,
        u"no,no,25.5,no,no"_s,
        u"perché,così,è,già,lì"_s,
        QString(10'000, u'x'),
        QString(10'000, u'9'),
        QString(10'000, u','),
        QString(10'000, u' '),
        u"no,no,"_s + QString(10'000, u'9') + u",no,no"_s,
    };
    for (const QString &condizione : strane)
        chiediTutto(condizione);
}

TEST(CondizioneStrana, CutAtEveryCharacterItIsSurvived)
{
    const QString intera = u"07:05:09,101,25,3,4"_s;
    for (qsizetype n = 0; n <= intera.size(); ++n)
        chiediTutto(intera.left(n));
}
