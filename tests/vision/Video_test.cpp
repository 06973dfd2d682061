// The state of the video and of the selection, without a window.
#include "vision/Selezione.h"
#include "vision/Video.h"

#include <gtest/gtest.h>

namespace {

using Stato = Video::Stato;

// Open and running.
Video attivo()
{
    Video video;
    video.chiedi(true);
    const Video::Avvio avvio = video.apri();
    video.impostaScala(Video::ScalaDiAvvio);
    EXPECT_TRUE(video.finisci(avvio, true));
    return video;
}

} // namespace

TEST(Video, IsClosedAtFirstAndRunsAfterAStart)
{
    Video video;
    EXPECT_EQ(video.stato(), Stato::Chiuso);
    EXPECT_FALSE(video.acceso());
    const Video::Avvio avvio = video.apri();
    EXPECT_EQ(video.stato(), Stato::InAvvio);
    video.impostaScala(10);
    EXPECT_TRUE(video.finisci(avvio, true));
    EXPECT_EQ(video.stato(), Stato::Attivo);
    EXPECT_FALSE(video.abbandonato(avvio));
}

TEST(Video, AStartThatFailsSetsTheScaleToZero)
{
    Video video;
    const Video::Avvio avvio = video.apri();
    video.impostaScala(10);
    EXPECT_TRUE(video.finisci(avvio, false));
    EXPECT_EQ(video.stato(), Stato::Fallito);
    EXPECT_EQ(video.scala(), 0);
}

TEST(Video, RunsOneStartAtATime)
{
    Video video;
    EXPECT_FALSE(video.riavvia()) << "closed";
    const Video::Avvio avvio = video.apri();
    EXPECT_FALSE(video.riavvia());
    EXPECT_FALSE(video.abbandonato(avvio));
    video.impostaScala(10);
    video.finisci(avvio, true);
    EXPECT_TRUE(video.riavvia());
    EXPECT_FALSE(video.riavvia());
    video.chiudi();
    EXPECT_FALSE(video.riavvia());
}

TEST(Video, AStartGivenUpByClosingHasNoEffect)
{
    Video video = attivo();
    const auto avvio = video.riavvia();
    EXPECT_TRUE(video.chiudi());
    EXPECT_TRUE(video.abbandonato(*avvio));
    EXPECT_FALSE(video.finisci(*avvio, true));
    EXPECT_EQ(video.stato(), Stato::InChiusura);
    video.azzera();
    const Video::Avvio nuovo = video.apri();
    EXPECT_TRUE(video.abbandonato(*avvio));
    EXPECT_FALSE(video.finisci(*avvio, false));
    EXPECT_EQ(video.stato(), Stato::InAvvio);
    EXPECT_FALSE(video.abbandonato(nuovo));
}

TEST(Video, ClosingStopsTheRobotUnlessTheStartHasFailed)
{
    EXPECT_TRUE(attivo().chiudi());
    Video inAvvio;
    inAvvio.apri();
    EXPECT_TRUE(inAvvio.chiudi());
    Video fallito;
    fallito.finisci(fallito.apri(), false);
    EXPECT_FALSE(fallito.chiudi());
}

TEST(Video, AScaleFromOutsideSwitchesItOffAndOn)
{
    Video video = attivo();
    video.impostaScala(0);
    EXPECT_EQ(video.stato(), Stato::Fallito);
    video.impostaScala(5);
    EXPECT_EQ(video.stato(), Stato::Attivo);
    EXPECT_EQ(video.scala(), 5);
    const auto avvio = video.riavvia();
    video.impostaScala(0);
    EXPECT_EQ(video.stato(), Stato::InAvvio);
    EXPECT_TRUE(video.finisci(*avvio, true));
    EXPECT_EQ(video.stato(), Stato::Fallito);
}

TEST(Video, TheZoomIsHowOftenTheFrameFits)
{
    Video video = attivo();
    EXPECT_TRUE(video.misura(656));
    EXPECT_EQ(video.zoom(), 8);
    EXPECT_FALSE(video.misura(719));
    EXPECT_TRUE(video.misura(720));
    EXPECT_TRUE(video.misura(79));
    EXPECT_EQ(video.zoom(), 0);
    video.impostaScala(0);
    EXPECT_FALSE(video.misura(656));
}

TEST(Video, OpenedAgainItBeginsAtTheFirstRow)
{
    Video video = attivo();
    EXPECT_FALSE(video.aggiungi(QByteArray(160, '\0')));
    EXPECT_EQ(video.fotogramma().Riga, 1);
    video.azzera();
    video.apri();
    EXPECT_EQ(video.fotogramma().Riga, 0);
}

TEST(StatoSelezione, IsDrawnFinishedAndTaken)
{
    Selezione selezione;
    EXPECT_EQ(selezione.stato(), Selezione::Stato::Nessuna);
    EXPECT_TRUE(selezione.mai());
    selezione.premi(true, false);
    EXPECT_EQ(selezione.stato(), Selezione::Stato::Tracciata);
    EXPECT_TRUE(selezione.mai());
    selezione.rilascia(false);
    EXPECT_TRUE(selezione.finita());
    selezione.lascia();
    EXPECT_EQ(selezione.stato(), Selezione::Stato::Nessuna);
    EXPECT_FALSE(selezione.mai());
    selezione.azzera();
    EXPECT_TRUE(selezione.mai());
}

TEST(StatoSelezione, AReleaseFinishesItAlsoIfNothingWasDrawn)
{
    Selezione selezione;
    selezione.premi(false, false);
    EXPECT_EQ(selezione.stato(), Selezione::Stato::Nessuna);
    selezione.rilascia(false);
    EXPECT_TRUE(selezione.finita());
}

TEST(StatoSelezione, AFinishedOneStaysFinishedWhileANewOneIsDrawn)
{
    Selezione selezione;
    selezione.premi(true, false);
    selezione.rilascia(false);
    selezione.premi(true, false);
    EXPECT_TRUE(selezione.finita());
    selezione.interrompi();
    EXPECT_TRUE(selezione.finita());
}

TEST(StatoSelezione, PressAndReleaseAreIgnoredDuringTheNamingDialog)
{
    // Whether the dialog is open at the press and at the release.
    for (const auto &[sotto, poi] : {std::pair(true, true), {true, false}, {false, true}}) {
        Selezione selezione;
        selezione.premi(true, sotto);
        selezione.rilascia(poi);
        EXPECT_EQ(selezione.stato(), Selezione::Stato::Nessuna) << sotto << poi;
        // The next selection has an effect.
        selezione.premi(true, false);
        selezione.rilascia(false);
        EXPECT_TRUE(selezione.finita());
    }
    Selezione selezione;
    selezione.premi(true, false);
    selezione.nomina();
    selezione.rilascia(false);
    EXPECT_EQ(selezione.stato(), Selezione::Stato::Nessuna);
}
