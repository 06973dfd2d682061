// The four modes of the value dialog, and the lines that they give.
#include "movelists/ModoValore.h"

#include "tests/support/Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

TEST(ModoValore, EachModeHasItsTextsAndItsLimit)
{
    const auto pausa = Modi::cerca(u"Pausa"_s);
    ASSERT_TRUE(pausa);
    EXPECT_EQ(pausa->titolo, u"Inserisci la durata della pausa"_s);
    EXPECT_EQ(pausa->limite, 60000);
    EXPECT_EQ(pausa->etichetta, u"Unità di misura:"_s);
    EXPECT_EQ(pausa->voci, (QStringList{u"Millisecondi"_s, u"Secondi"_s}));

    const auto frase = Modi::cerca(u"Frase"_s);
    ASSERT_TRUE(frase);
    EXPECT_EQ(frase->titolo, u"Inserisci il numero della frase desiderata"_s);
    EXPECT_EQ(frase->limite, 140);
    EXPECT_EQ(frase->etichetta, u"Frase selezionata:"_s);
    ASSERT_EQ(frase->voci.size(), 140);
    EXPECT_EQ(frase->voci[13], u"Ciao"_s);

    const auto suono = Modi::cerca(u"Suono"_s);
    ASSERT_TRUE(suono);
    EXPECT_EQ(suono->titolo, u"Inserisci il numero del suono desiderato"_s);
    EXPECT_EQ(suono->limite, 16);
    EXPECT_EQ(suono->etichetta, u"Suono selezionato:"_s);
    ASSERT_EQ(suono->voci.size(), 16);
    EXPECT_EQ(suono->voci[10], u"Scatto fotocamera"_s);
    EXPECT_EQ(suono->voci[15], u"Bip singolo"_s);

    const auto ripeti = Modi::cerca(u"Ripeti"_s);
    ASSERT_TRUE(ripeti);
    EXPECT_EQ(ripeti->titolo, u"Indica quante volte si devono ripetere i comandi"_s);
    EXPECT_EQ(ripeti->limite, 200);
    EXPECT_EQ(ripeti->etichetta, u"Ripeti:"_s);
    ASSERT_EQ(ripeti->voci.size(), 201);
    EXPECT_EQ(ripeti->voci[0], u"all'infinito"_s);
    EXPECT_EQ(ripeti->voci[1], u"1 volta"_s);
    EXPECT_EQ(ripeti->voci[2], u"2 volte"_s);
    EXPECT_EQ(ripeti->voci[200], u"200 volte"_s);
}

TEST(ModoValore, NamesCompareExactly)
{
    for (const QString &nome : {u"pausa"_s, u"Annulla"_s, u""_s, u"Frase "_s})
        EXPECT_FALSE(Modi::cerca(nome)) << nome.toStdString();
}

TEST(ModoValore, APauseInMillisecondsIsTheTextAsTyped)
{
    EXPECT_EQ(Modi::riga(u"Pausa"_s, u"250"_s, 0, u"Millisecondi"_s), u"Pausa 250"_s);
    EXPECT_EQ(Modi::riga(u"Pausa"_s, u"007"_s, 0, u"Millisecondi"_s), u"Pausa 007"_s);
    EXPECT_EQ(Modi::riga(u"Pausa"_s, u"250"_s, -1, QString()), u"Pausa 250"_s);
}

TEST(ModoValore, APauseInSecondsIsMultiplied)
{
    EXPECT_EQ(Modi::riga(u"Pausa"_s, u"3"_s, 1, u"Secondi"_s), u"Pausa 3000"_s);
    EXPECT_EQ(Modi::riga(u"Pausa"_s, u"60000"_s, 1, u"Secondi"_s), u"Pausa 60000000"_s);
}

TEST(ModoValore, PhrasesAndSoundsAreTheirNumberAndALoopIsItsWords)
{
    EXPECT_EQ(Modi::riga(u"Frase"_s, u"14"_s, 13, u"Ciao"_s), u"Frase 14"_s);
    EXPECT_EQ(Modi::riga(u"Suono"_s, u"1"_s, 0, u"Clacson"_s), u"Suono 1"_s);
    EXPECT_EQ(Modi::riga(u"Ripeti"_s, u"0"_s, 0, u"all'infinito"_s), u"Ripeti all'infinito"_s);
    EXPECT_EQ(Modi::riga(u"Ripeti"_s, u"5"_s, 5, u"5 volte"_s), u"Ripeti 5 volte"_s);
}
