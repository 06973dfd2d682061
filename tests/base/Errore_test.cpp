#include "tests/support/Controlli.h"

TEST(Errore, carries_its_number_and_an_Italian_description)
{
    const Errore errore(Errore::PORT_NOT_OPEN);
    EXPECT_EQ(errore.numero(), 8018);
    EXPECT_EQ(errore.descrizione(), u"La porta non è aperta"_s);
}

TEST(Errore, takes_the_description_that_it_is_given)
{
    EXPECT_EQ(Errore(53, u"Manca \"Porta COM\""_s).descrizione(), u"Manca \"Porta COM\""_s);
}

TEST(Errore, has_the_numbers_that_the_code_tests)
{
    EXPECT_EQ(Errore::FileNonTrovato, 53);
    EXPECT_EQ(Errore::PercorsoNonTrovato, 76);
    EXPECT_EQ(Errore::ImmagineNonValida, 481);
    EXPECT_EQ(Errore::ProprietaNonValida, 380);
    EXPECT_EQ(Errore::Annullato, 32755);
}

TEST(Errore, every_number_in_use_has_a_description_of_its_own)
{
    const QString imprevisto = Errore(1).descrizione();
    for (const int numero :
         {5, 6, 11, 13, 52, 53, 55, 61, 62, 75, 76, 380, 481, 8002, 8005, 8018, 8020, 32755})
        EXPECT_NE(Errore(numero).descrizione(), imprevisto) << numero;
}

TEST(PassaErrori, passes_over_an_error_and_says_so)
{
    bool dopo = false;
    EXPECT_FALSE(passaErrori([&] {
        throw Errore(Errore::FileNonTrovato);
        dopo = true;
    }));
    EXPECT_FALSE(dopo);
}

TEST(PassaErrori, runs_a_statement_that_does_not_fail)
{
    int volte = 0;
    EXPECT_TRUE(passaErrori([&] { ++volte; }));
    EXPECT_EQ(volte, 1);
}

TEST(PassaErrori, lets_other_exceptions_through)
{
    EXPECT_THROW(passaErrori([] { throw std::runtime_error("other"); }), std::runtime_error);
}

TEST(ProvaPassata, is_the_tests_own_outcome_when_it_does_not_fail)
{
    EXPECT_TRUE(provaPassata([] { return true; }));
    EXPECT_FALSE(provaPassata([] { return false; }));
}

TEST(ProvaPassata, counts_as_passed_when_the_test_itself_fails)
{
    EXPECT_TRUE(provaPassata([]() -> bool { throw Errore(Errore::PORT_NOT_OPEN); }));
}
