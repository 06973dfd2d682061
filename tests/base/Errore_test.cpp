#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

TEST(Errore, CarriesItsNumberAndAnItalianDescription)
{
    const Errore errore(Errore::PORT_NOT_OPEN);
    EXPECT_EQ(errore.numero(), 8018);
    EXPECT_EQ(errore.descrizione(), u"La porta non è aperta"_s);
}

TEST(Errore, UsesTheDescriptionThatItIsGiven)
{
    EXPECT_EQ(Errore(53, u"Manca \"Porta COM\""_s).descrizione(), u"Manca \"Porta COM\""_s);
}

TEST(Errore, HasTheNumbersThatTheProgramCompares)
{
    EXPECT_EQ(Errore::FileNonTrovato, 53);
    EXPECT_EQ(Errore::PercorsoNonTrovato, 76);
    EXPECT_EQ(Errore::ImmagineNonValida, 481);
    EXPECT_EQ(Errore::ProprietaNonValida, 380);
    EXPECT_EQ(Errore::Annullato, 32755);
}

TEST(Errore, EveryNumberInUseHasItsOwnDescription)
{
    const QString imprevisto = Errore(1).descrizione();
    for (const int numero :
         {5, 6, 11, 13, 52, 53, 55, 61, 62, 75, 76, 380, 481, 8002, 8005, 8018, 8020, 32755})
        EXPECT_NE(Errore(numero).descrizione(), imprevisto) << numero;
}

TEST(PassaErrori, IgnoresAnErrorAndReturnsFalse)
{
    bool dopo = false;
    EXPECT_FALSE(passaErrori([&] {
        throw Errore(Errore::FileNonTrovato);
        dopo = true;
    }));
    EXPECT_FALSE(dopo);
}

TEST(PassaErrori, RunsAStatementThatSucceedsAndReturnsTrue)
{
    int volte = 0;
    EXPECT_TRUE(passaErrori([&] { ++volte; }));
    EXPECT_EQ(volte, 1);
}

TEST(PassaErrori, LetsOtherExceptionsThrough)
{
    EXPECT_THROW(passaErrori([] { throw std::runtime_error("other"); }), std::runtime_error);
}

TEST(ProvaPassata, IsTheResultOfTheConditionIfItDoesNotThrow)
{
    EXPECT_TRUE(provaPassata([] { return true; }));
    EXPECT_FALSE(provaPassata([] { return false; }));
}

TEST(ProvaPassata, IsTrueIfTheConditionThrows)
{
    EXPECT_TRUE(provaPassata([]() -> bool { throw Errore(Errore::PORT_NOT_OPEN); }));
}
