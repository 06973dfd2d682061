// The receive engine: telemetry, video rows, unknown types.
#include "tests/link/BancoRicezione.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

QByteArray rigaVideo(quint8 seme = 0)
{
    QByteArray riga = b({13});
    for (int i = 0; i < 160; ++i)
        riga.append(static_cast<char>(seme + i));
    return riga;
}

// Everything that telemetry can change.
QStringList aspetto(const BancoRicezione &p)
{
    const Banco &c = p.banco;
    return {p.pannello(2),
            p.pannello(3),
            c.lblTemperatura.Caption(),
            c.imgBattLogica.toolTip(),
            c.imgBattMotori.toolTip(),
            QString::number(c.imgLivBattLogica.Width()),
            QString::number(c.imgLivBattMotori.Width()),
            QString::number(c.shpUltrasuoniDx.Visible()),
            QString::number(c.shpUltrasuoniCe.Visible()),
            QString::number(c.shpUltrasuoniSx.Visible()),
            p.telemetria.testi.join(u';'),
            c.tmrElabInput.Tag()};
}

} // namespace

TEST(Ricezione, ATemperatureIsShownWithItsSign)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({31, 23})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"23°"_s);
    EXPECT_EQ(p.pannello(2), u"<31>"_s);
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Temperatura:23"_s});
}

TEST(Ricezione, ATemperatureOf50IsShownAnd51IsNot)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({31, 50})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"50°"_s);
    ASSERT_TRUE(p.digerisci(b({31, 51})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"50°"_s);
    EXPECT_EQ(p.pannello(2), u"<31>"_s);
}

TEST(Ricezione, AFalseReadingIsReportedToTheRunnerAsWell)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({31, 255})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), QString());
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Temperatura:255"_s});
}

TEST(Ricezione, AFalseReadingShowsAQuestionMarkUntilTheTelegramEnds)
{
    BancoRicezione p;
    struct Curioso : AscoltatoreTelemetria
    {
        explicit Curioso(BancoRicezione &banco) : p(banco) {}
        bool avviato() const override { return true; }
        void VerificaCondizioni(const QString &) override { visto = p.pannello(2); }
        BancoRicezione &p;
        QString visto;
    } curioso(p);
    p.motore.ascoltaTelemetria(&curioso);
    ASSERT_TRUE(p.digerisci(b({31, 51})));
    EXPECT_EQ(curioso.visto, u"<?>"_s);
    EXPECT_EQ(p.pannello(2), u"<31>"_s);
}

TEST(Ricezione, NothingIsReportedToTheRunnerWhileItIsNotStarted)
{
    BancoRicezione p;
    p.telemetria.inMoto = false;
    ASSERT_TRUE(p.digerisci(b({31, 20, 32, 1, 2, 33, 0, 1, 0})));
    EXPECT_TRUE(p.telemetria.testi.isEmpty());
}

TEST(Ricezione, WithoutAnyListenerEveryTelegramIsConsumed)
{
    BancoRicezione p;
    p.motore.ascoltaFile(nullptr);
    p.motore.ascoltaVideo(nullptr);
    p.motore.ascoltaTelemetria(nullptr);
    ASSERT_TRUE(p.digerisci(b({31, 20, 42, 1, 0, 47, 1, 2, 1, 'a', 0, 45, 1, 1, 0, 'b', 0}) +
                            rigaVideo() + b({33, 1, 0, 0})));
    EXPECT_EQ(p.pannello(2), u"<33>"_s);
    EXPECT_TRUE(p.banco.shpUltrasuoniDx.Visible());
    EXPECT_TRUE(p.cartella.elenco().isEmpty());
}

TEST(Ricezione, TheBatteriesSetBarsAndToolTips)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({32, 150, 201})));
    EXPECT_EQ(p.banco.imgLivBattLogica.Width(), 150 * 615 / 255);
    EXPECT_EQ(p.banco.imgLivBattMotori.Width(), 201 * 615 / 255);
    EXPECT_EQ(p.banco.imgBattLogica.toolTip(), u"150/255 (Media)"_s);
    EXPECT_EQ(p.banco.imgBattMotori.toolTip(), u"201/255 (Carichissima)"_s);
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Batterie:24"_s});
    EXPECT_EQ(p.pannello(2), u"<32>"_s);
}

TEST(Ricezione, AFullBatteryIsABarOf615UnitsAndAnEmptyOneOf0)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({32, 255, 0})));
    EXPECT_EQ(p.banco.imgLivBattLogica.Width(), 615);
    EXPECT_EQ(p.banco.imgLivBattMotori.Width(), 0);
}

TEST(Ricezione, TheBatteryLevelsChangeAtTheirLimits)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({32, 50, 51, 32, 200, 201, 32, 151, 101})));
    EXPECT_EQ(p.telemetria.testi,
              (QStringList{u"Batterie:01"_s, u"Batterie:34"_s, u"Batterie:32"_s}));
}

TEST(Ricezione, TheUltrasonicSensorsShowTheirShapes)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({33, 0, 7, 0})));
    EXPECT_FALSE(p.banco.shpUltrasuoniDx.Visible());
    EXPECT_TRUE(p.banco.shpUltrasuoniCe.Visible());
    EXPECT_FALSE(p.banco.shpUltrasuoniSx.Visible());
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Ultrasuoni:010"_s});
    EXPECT_EQ(p.pannello(2), u"<33>"_s);
}

TEST(Ricezione, EachUltrasonicByteHasItsShapeRightCentreLeft)
{
    for (int i = 0; i < 8; ++i) {
        BancoRicezione p;
        const bool d = i & 4;
        const bool c = i & 2;
        const bool s = i & 1;
        ASSERT_TRUE(p.digerisci(b({33, d ? 255 : 0, c ? 1 : 0, s ? 128 : 0})));
        EXPECT_EQ(p.banco.shpUltrasuoniDx.Visible(), d);
        EXPECT_EQ(p.banco.shpUltrasuoniCe.Visible(), c);
        EXPECT_EQ(p.banco.shpUltrasuoniSx.Visible(), s);
        EXPECT_EQ(p.telemetria.testi, QStringList{u"Ultrasuoni:%1%2%3"_s.arg(d).arg(c).arg(s)});
    }
}

TEST(Ricezione, AShapeIsHiddenAgainByAZero)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({33, 1, 1, 1, 33, 0, 0, 0})));
    EXPECT_FALSE(p.banco.shpUltrasuoniDx.Visible() || p.banco.shpUltrasuoniCe.Visible() ||
                 p.banco.shpUltrasuoniSx.Visible());
}

TEST(Ricezione, TwoTelegramsTogetherAreHandledInOneTick)
{
    BancoRicezione p;
    p.banco.tmrElabInput.setEnabled(false);
    p.accumulatore().aggiungi(b({31, 20, 32, 1, 2}));
    p.banco.tmrElabInput.Timer();
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"20°"_s);
    EXPECT_EQ(p.banco.imgBattLogica.toolTip(), u"1/255 (Scarichissima)"_s);
    EXPECT_EQ(p.pannello(2), u"<32>"_s);
    EXPECT_TRUE(p.accumulatore().vuoto());
}

TEST(Ricezione, EveryUnknownTypeIsSkippedAsOneByteAndShown)
{
    const QByteArray noti = b({13, 31, 32, 33, 42, 45, 47});
    BancoRicezione p;
    for (int tipo = 0; tipo < 256; ++tipo) {
        if (noti.contains(static_cast<char>(tipo)))
            continue;
        ASSERT_TRUE(p.digerisci(b({tipo})));
        ASSERT_EQ(p.pannello(2), u"<%1>"_s.arg(tipo));
    }
    EXPECT_TRUE(p.telemetria.testi.isEmpty());
}

TEST(Ricezione, AfterALostByteTheParserFindsTheNextTelegram)
{
    BancoRicezione p;
    // The type of a temperature was lost; its value, 25, is skipped as an unknown type.
    ASSERT_TRUE(p.digerisci(b({25, 31, 26})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"26°"_s);
    EXPECT_EQ(p.pannello(2), u"<31>"_s);
}

TEST(Ricezione, AFalseByte13Takes161BytesWithIt)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({13}) + b({31, 26}).repeated(40)));
    EXPECT_EQ(p.accumulatore().lunghezza(), 81);
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), QString());
    ASSERT_TRUE(p.digerisci(b({31, 26}).repeated(40) + b({31, 27})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"27°"_s);
    EXPECT_EQ(p.telemetria.testi.size(), 1);
}

TEST(Ricezione, AVideoRowWithTheCameraClosedIsDropped)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({31, 20}) + rigaVideo()));
    EXPECT_TRUE(p.video.righe.isEmpty());
    // A video row does not change panel 2.
    EXPECT_EQ(p.pannello(2), u"<31>"_s);
}

TEST(Ricezione, AVideoRowGoesToTheCameraWithoutItsType)
{
    BancoRicezione p;
    p.video.aperta = true;
    ASSERT_TRUE(p.digerisci(rigaVideo(7)));
    EXPECT_EQ(p.video.righe, QList<QByteArray>{rigaVideo(7).sliced(1)});
}

TEST(Ricezione, AVideoRowIsHandedOverWithTheNextByteWhichIsNotConsumed)
{
    BancoRicezione p;
    p.video.aperta = true;
    ASSERT_TRUE(p.digerisci(rigaVideo(7) + b({31, 22})));
    ASSERT_EQ(p.video.righe.size(), 1);
    EXPECT_EQ(p.video.righe.first(), rigaVideo(7).sliced(1) + b({31}));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"22°"_s);
}

TEST(Ricezione, ARowOf160BytesWaitsForTheLastOne)
{
    BancoRicezione p;
    p.video.aperta = true;
    ASSERT_TRUE(p.arriva(rigaVideo().first(160)));
    EXPECT_TRUE(p.video.righe.isEmpty());
    EXPECT_EQ(p.accumulatore().lunghezza(), 160);
    ASSERT_TRUE(p.digerisci(rigaVideo().last(1)));
    EXPECT_EQ(p.video.righe.size(), 1);
}

TEST(Ricezione, ACameraThatEmptiesTheAccumulatorEndsTheTick)
{
    BancoRicezione p;
    p.video.aperta = true;
    p.video.durante = [&] { p.tmrElabInput().setTag({}); };
    ASSERT_TRUE(p.digerisci(rigaVideo() + rigaVideo()));
    ASSERT_TRUE(p.digerisci(b({31, 9})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"9°"_s);
}

TEST(Ricezione, CutAtEveryByteTheTelemetryGivesTheSame)
{
    const QByteArray flusso = b({31, 20, 9, 32, 150, 90, 33, 1, 0, 1, 200}) + rigaVideo(3) +
                              b({31, 51, 42, 1, 7, 0, 31, 30});
    BancoRicezione intero;
    intero.file.inVista = false;
    ASSERT_TRUE(intero.digerisci(flusso));
    const QStringList atteso = aspetto(intero);
    for (qsizetype taglio = 1; taglio < flusso.size(); ++taglio) {
        BancoRicezione p;
        p.file.inVista = false;
        ASSERT_TRUE(p.arriva(flusso.first(taglio)));
        ASSERT_TRUE(p.digerisci(flusso.sliced(taglio)));
        // After the two bytes of a status the third one counts as a new telegram.
        if (taglio == flusso.indexOf(b({42, 1, 7})) + 2)
            continue;
        ASSERT_EQ(aspetto(p), atteso) << taglio;
    }
}

TEST(Ricezione, ByteByByteTheTelemetryGivesTheSame)
{
    const QByteArray flusso =
        b({31, 20, 9, 32, 150, 90, 33, 1, 0, 1, 200}) + rigaVideo(3) + b({31, 51, 0, 31, 30});
    BancoRicezione intero;
    ASSERT_TRUE(intero.digerisci(flusso));
    BancoRicezione p;
    ASSERT_TRUE(p.arrivaUnoAlla(flusso));
    ASSERT_TRUE(p.digeriti());
    EXPECT_EQ(aspetto(p), aspetto(intero));
}

TEST(Ricezione, MoreThanTheControlHoldsIsNotLost)
{
    BancoRicezione p;
    QByteArray flusso;
    for (int i = 0; i < 3000; ++i)
        flusso += b({31, i % 50});
    ASSERT_TRUE(p.digerisci(flusso));
    EXPECT_EQ(p.telemetria.testi.size(), 3000);
    EXPECT_EQ(p.telemetria.testi.last(), u"Temperatura:49"_s);
}

TEST(Ricezione, AfterAMillionRandomBytesTheNextTelegramIsUnderstood)
{
    std::mt19937 caso(20240131);
    BancoRicezione p;
    p.video.aperta = true;
    // Many bytes are known types and small lengths, so that no single block takes most of them.
    static constexpr std::array<int, 9> frequenti = {13, 31, 32, 33, 42, 45, 47, 0, 255};
    QByteArray flusso;
    flusso.reserve(1'000'000);
    while (flusso.size() < 1'000'000) {
        const auto tiro = caso();
        flusso.append(static_cast<char>(tiro % 3 == 0 ? frequenti[(tiro >> 8) % frequenti.size()]
                                                      : (tiro >> 16) & 0xFF));
    }
    ASSERT_TRUE(p.arriva(flusso));
    // Completes the last telegram, which may be a block of 65535 bytes.
    ASSERT_TRUE(p.digerisci(QByteArray(65535 + 6, '\0')));
    p.telemetria.testi.clear();
    ASSERT_TRUE(p.digerisci(b({31, 17})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"17°"_s);
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Temperatura:17"_s});
    // The engine itself writes no file.
    EXPECT_EQ(p.cartella.elenco(), QStringList());
}
