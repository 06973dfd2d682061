// Every command, with its bytes and its writes.
#include "link/ComandiTessaro.h"

#include "tests/link/TavolaComandi.h"
#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ComandoDellaTavola : public ::testing::TestWithParam<RigaComando>
{
};

// Records what AvviaVideo reports.
struct EsitoFinto : EsitoVideo
{
    QStringList registro;
    std::function<void()> durante;

    void mostraMessaggio(const QString &testo) override { registro << testo; }
    void MostraInvio(const QString &testo, const Abbandono &) override
    {
        registro << u"MostraInvio "_s + testo;
        if (durante)
            durante();
    }
};

} // namespace

TEST_P(ComandoDellaTavola, WritesItsPiecesInOrder)
{
    const RigaComando &riga = GetParam();
    SerialeFinto seriale;
    seriale.apri();
    riga.manda(seriale.COM);
    EXPECT_EQ(seriale.porta.scritture, riga.scritture);
}

TEST_P(ComandoDellaTavola, WithThePortClosedSendsNothingAndReportsItAtMostOnce)
{
    const RigaComando &riga = GetParam();
    SerialeFinto seriale;
    const RispondiMessaggi messaggi;
    riga.manda(seriale.COM);
    EXPECT_TRUE(seriale.porta.scritture.isEmpty());
    EXPECT_EQ(messaggi.visti().size(), riga.muto ? 0 : 1);
    for (const MessaggioVisto &visto : messaggi.visti()) {
        EXPECT_EQ(visto.testo, u"Non sono collegato al robot"_s);
        EXPECT_EQ(visto.icona, QMessageBox::Information);
        EXPECT_EQ(visto.pulsanti, QMessageBox::Ok);
    }
}

TEST_P(ComandoDellaTavola, AFailingPieceEndsItSilentlyUnlessItIgnoresErrors)
{
    const RigaComando &riga = GetParam();
    for (int k = 1; k <= riga.scritture.size(); ++k) {
        SerialeFinto seriale;
        seriale.apri();
        const RispondiMessaggi messaggi;
        seriale.porta.fallisciAlla(k);
        riga.manda(seriale.COM);
        QList<QByteArray> attese = riga.scritture;
        if (riga.muto)
            attese.removeAt(k - 1);
        else
            attese.resize(k - 1);
        EXPECT_EQ(seriale.porta.scritture, attese) << "piece " << k;
        EXPECT_TRUE(messaggi.visti().isEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(Tavola, ComandoDellaTavola, ::testing::ValuesIn(tavolaComandi()),
                         [](const auto &riga) { return riga.param.nome.toStdString(); });

TEST(MascheraLed, HasOneBitForEachNameAndNoneForOthers)
{
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Bs"_s), 1);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Gs"_s), 2);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Rs"_s), 4);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Vs"_s), 8);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Bd"_s), 16);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Gd"_s), 32);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Rd"_s), 64);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"Vd"_s), 128);
    EXPECT_EQ(ComandiTessaro::MascheraLed(u"bs"_s), 0);
    EXPECT_EQ(ComandiTessaro::MascheraLed({}), 0);
}

TEST(AvviaVideo, ReportsEachStepBeforeAndAfterItsBytes)
{
    SerialeFinto seriale;
    seriale.apri();
    EsitoFinto esito;
    QList<qsizetype> scrittePrima;
    esito.durante = [&] { scrittePrima << seriale.porta.scritture.size(); };
    EXPECT_TRUE(ComandiTessaro::AvviaVideo(seriale.COM, 5, 0, esito));
    EXPECT_EQ(esito.registro,
              (QStringList{u"Impostazione del video"_s, u"MostraInvio Impostazione del video OK"_s,
                           u"Richiesta partenza del video"_s, u"MostraInvio Video partito"_s}));
    EXPECT_EQ(scrittePrima, (QList<qsizetype>{4, 7}));
    EXPECT_EQ(seriale.porta.scritture,
              (QList<QByteArray>{b({10}), b({5}), b({128}), b({0}), b({11}), b({160}), b({0})}));
}

TEST(AvviaVideo, WithThePortClosedIsFalseAfterTheFirstStep)
{
    SerialeFinto seriale;
    const RispondiMessaggi messaggi;
    EsitoFinto esito;
    EXPECT_FALSE(ComandiTessaro::AvviaVideo(seriale.COM, 5, 0, esito));
    EXPECT_EQ(esito.registro, QStringList{u"Impostazione del video"_s});
    EXPECT_EQ(messaggi.testi(), QStringList{u"Non sono collegato al robot"_s});
}

TEST(AvviaVideo, IsFalseIfTheUserDisconnectsBetweenItsSteps)
{
    SerialeFinto seriale;
    seriale.apri();
    const RispondiMessaggi messaggi;
    EsitoFinto esito;
    esito.durante = [&] { seriale.COM.setPortOpen(false); };
    EXPECT_FALSE(ComandiTessaro::AvviaVideo(seriale.COM, 1, 0, esito));
    EXPECT_EQ(seriale.porta.scritti(), b({10, 1, 128, 0}));
    EXPECT_EQ(esito.registro.last(), u"Richiesta partenza del video"_s);
    EXPECT_EQ(messaggi.visti().size(), 1);
}

TEST(AvviaVideo, GivenUpInAWaitItSendsAndReportsNothingMore)
{
    for (const int attesa : {1, 2}) {
        SerialeFinto seriale;
        seriale.apri();
        const RispondiMessaggi messaggi;
        EsitoFinto esito;
        int attese = 0;
        esito.durante = [&] { ++attese; };
        EXPECT_FALSE(
            ComandiTessaro::AvviaVideo(seriale.COM, 5, 0, esito, [&] { return attese >= attesa; }));
        EXPECT_EQ(seriale.porta.scritti(),
                  attesa == 1 ? b({10, 5, 128, 0}) : b({10, 5, 128, 0, 11, 160, 0}));
        EXPECT_EQ(esito.registro.size(), attesa == 1 ? 2 : 4);
        EXPECT_TRUE(messaggi.visti().isEmpty());
    }
}

TEST(AvviaVideo, AFailingPieceEndsItWithFalse)
{
    for (int k = 1; k <= 7; ++k) {
        SerialeFinto seriale;
        seriale.apri();
        EsitoFinto esito;
        seriale.porta.fallisciAlla(k);
        EXPECT_FALSE(ComandiTessaro::AvviaVideo(seriale.COM, 5, 0, esito)) << k;
        EXPECT_EQ(seriale.porta.scritture.size(), k - 1);
    }
}

TEST(SegnalaNonCollegato, ShowsNothingForAnyOtherNumber)
{
    const RispondiMessaggi messaggi;
    for (const int numero : {53, 75, 8002, 8005, 8020, 32755})
        ComandiTessaro::SegnalaNonCollegato(Errore(numero));
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST(SegnalaNonCollegato, OpensNoSecondBoxWhileOneIsOpen)
{
    SerialeFinto seriale;
    RispondiMessaggi messaggi;
    messaggi.trattieni(true);
    int ticchettii = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        ComandiTessaro::RichiediSensori(seriale.COM);
        if (++ticchettii == 20)
            messaggi.trattieni(false);
    });
    timer.start(1);
    ComandiTessaro::TestaSu(seriale.COM, 1);
    timer.stop();
    EXPECT_GE(ticchettii, 20);
    EXPECT_EQ(messaggi.visti().size(), 1);
}

TEST(SegnalaNonCollegato, ShowsABoxAgainAfterTheFirstIsClosed)
{
    SerialeFinto seriale;
    const RispondiMessaggi messaggi;
    ComandiTessaro::TestaSu(seriale.COM, 1);
    ComandiTessaro::TestaSu(seriale.COM, 1);
    EXPECT_EQ(messaggi.visti().size(), 2);
}
