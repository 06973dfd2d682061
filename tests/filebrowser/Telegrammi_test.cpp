// Telegrams of the storage that arrive in pieces.
#include "tests/filebrowser/BancoEsploraFile.h"

using namespace Qt::StringLiterals;

namespace {

struct Pezzi : Banco
{
    // Sends the bytes in two pieces, with a pause between them.
    void spezzato(const QByteArray &byte, qsizetype taglio)
    {
        robot(byte.first(taglio));
        gira(4);
        robotFinito(byte.sliced(taglio));
    }
};

} // namespace

TEST_F(Pezzi, AListingCutAtEveryByteGivesTheSame)
{
    const QByteArray tutto = stato(5, 0) + voce(5, 2, "foto") + voce(5, 1, "a.txt") +
                             voce(5, 1, "") + stato(5, 4) + stato(5, 255) + b({31, 20});
    for (qsizetype taglio = 1; taglio < tutto.size(); ++taglio) {
        esplora.Scarica();
        console.lblTemperatura.setCaption({});
        esplora.Mostra();
        scritti();
        spezzato(tutto, taglio);
        EXPECT_EQ(voci(esplora.lstCartelle), QStringList{u"foto"_s}) << taglio;
        EXPECT_EQ(voci(esplora.lstFile), (QStringList{u"a.txt"_s, QString()})) << taglio;
        EXPECT_EQ(scritti(), b({46, 5, 46, 5, 46, 5, 46, 5, 41, 5})) << taglio;
        EXPECT_EQ(esplora.Tag(), QString()) << taglio;
        EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s) << taglio;
    }
}

TEST_F(Pezzi, AFetchCutAtEveryByteGivesTheSame)
{
    const QByteArray contenuto = b({45, 47, 42, 0, 255, 13, 10, 31});
    const QByteArray tutto = stato(5, 0) + blocco(5, contenuto) + b({31, 20});
    apri({"foto"}, {"a.bin"});
    for (qsizetype taglio = 1; taglio < tutto.size(); ++taglio) {
        console.lblTemperatura.setCaption({});
        doppioClick(esplora.lstFile, 0);
        scritti();
        spezzato(tutto, taglio);
        EXPECT_EQ(cartella.leggi(u"a.bin"_s), contenuto) << taglio;
        ASSERT_TRUE(QFile::remove(cartella.percorso(u"a.bin"_s)));
        EXPECT_EQ(scritti(), b({44, 5, 255, 255, 41, 5})) << taglio;
        EXPECT_TRUE(esplora.isEnabled()) << taglio;
        EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s) << taglio;
    }
}

TEST_F(Pezzi, AListingAndAFetchByteByByteGiveTheSame)
{
    esplora.Mostra();
    const auto unoPerUno = [&](const QByteArray &byte) {
        for (const char uno : byte) {
            robot(QByteArray(1, uno));
            gira(3);
        }
        robotFinito({});
    };
    unoPerUno(stato(5, 0) + voce(5, 2, "foto") + voce(5, 1, "a.bin") + stato(5, 255));
    EXPECT_EQ(voci(esplora.lstCartelle), QStringList{u"foto"_s});
    EXPECT_EQ(voci(esplora.lstFile), QStringList{u"a.bin"_s});
    EXPECT_EQ(scritti(), b({40, 16, 0, 46, 5, 46, 5, 46, 5, 41, 5}));
    doppioClick(esplora.lstFile, 0);
    unoPerUno(stato(5, 0) + blocco(5, b({45, 47, 42, 0, 31})) + b({31, 20}));
    EXPECT_EQ(cartella.leggi(u"a.bin"_s), b({45, 47, 42, 0, 31}));
    EXPECT_EQ(scritti(), b({40, 1, 5}) + "a.bin" + b({44, 5, 255, 255, 41, 5}));
    EXPECT_TRUE(esplora.isEnabled());
}

TEST_F(Pezzi, AFailureCutAtEveryByteIsReportedOnce)
{
    for (qsizetype taglio = 1; taglio < 3; ++taglio) {
        esplora.Scarica();
        esplora.Mostra();
        scritti();
        spezzato(stato(5, 2), taglio);
        EXPECT_EQ(scritti().size(), 18) << taglio;
    }
}

TEST_F(Pezzi, WithTheWindowClosedAnEntryCutAtEveryByteIsConsumed)
{
    const QByteArray tutto = voce(5, 2, "foto") + b({31, 20});
    for (qsizetype taglio = 1; taglio < tutto.size(); ++taglio) {
        console.lblTemperatura.setCaption({});
        spezzato(tutto, taglio);
        EXPECT_EQ(console.lblTemperatura.Caption(), u"20°"_s) << taglio;
    }
    EXPECT_EQ(scritti(), QByteArray());
}

TEST_F(Pezzi, AnIncompleteTelegramConsumesWhatFollowsAndTheEngineContinues)
{
    apri({"foto"}, {"a.txt"});
    const QByteArray interi[] = {stato(5, 0), voce(5, 1, "abcdef"), blocco(5, "abcdef")};
    for (const QByteArray &intero : interi) {
        for (qsizetype taglio = 1; taglio < intero.size(); ++taglio) {
            // Enough telemetry for any length that the cut telegram can have.
            QByteArray telemetria;
            for (int i = 0; i < 1000; ++i)
                telemetria += b({31, 30});
            console.lblTemperatura.setCaption({});
            robot(intero.first(taglio) + telemetria);
            // The length of a block may have been read from the telemetry: 31 + 256 * 30 = 7711
            // bytes.
            while (!console.tmrElabInput.accumulatore.vuoto())
                robot(telemetria);
            robotFinito(b({31, 30, 31, 30}));
            EXPECT_EQ(console.lblTemperatura.Caption(), u"30°"_s) << taglio;
        }
    }
}
