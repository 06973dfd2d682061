// Lists that the runner and the clock start.
#include "tests/conditional/BancoVigilio.h"

#include <gmock/gmock.h>

namespace {

class EseguiListaTest : public testing::Test, protected BancoVigilio
{
protected:
    EseguiListaTest()
    {
        mostra();
        cartella.scrivi(u"lunga.sqm"_s, " 1 \r\nPausa 60000\r\nStop\r\n");
        cartella.scrivi(u"altra.sqm"_s, " 1 \r\nPausa 50000\r\nFoto\r\n");
        processor.Mostra();
        imposta(0, u"no,101,no,no,no"_s);
        imposta(1, u"12:00:00,no,no,no,no"_s);
    }

    // Lets the clock's timer tick now.
    void scatta()
    {
        editor.tmrAttivaAut.setInterval(1);
        editor.tmrAttivaAut.setEnabled(true);
        int scatti = 0;
        QTimer dopo;
        QObject::connect(&dopo, &QTimer::timeout, &dopo, [&] { ++scatti; });
        dopo.start(2);
        EXPECT_TRUE(aspetta([&] { return scatti >= 5; }));
        editor.tmrAttivaAut.setEnabled(false);
    }
};

} // namespace

TEST_F(EseguiListaTest, ALoadsAndRunsTheListOfItsRow)
{
    seriale.apri();
    processor.EseguiLista(1);
    EXPECT_EQ(righe(), (QStringList{u"Pausa 60000"_s, u"Stop"_s}));
    EXPECT_EQ(editor.lblFile.Caption(), u"lunga.sqm"_s);
    EXPECT_EQ(editor.Finestre.FileName(), u"lunga.sqm"_s);
    EXPECT_EQ(processor.lstFile.ListIndex(), 1);
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_TRUE(processor.lstFile.Selected(1));
}

TEST_F(EseguiListaTest, AListThatIsRunningIsLeftAlone)
{
    seriale.apri();
    processor.EseguiLista(1);
    EXPECT_TRUE(aspetta([this] { return lista.ListIndex() == 0; }));
    editor.Finestre.setFileName(u"LUNGA.sqm"_s);
    processor.EseguiLista(1);
    EXPECT_EQ(lista.ListIndex(), 0);
    EXPECT_EQ(editor.Finestre.FileName(), u"LUNGA.sqm"_s);
}

TEST_F(EseguiListaTest, AnotherListTakesTheRunningOnesPlace)
{
    seriale.apri();
    processor.EseguiLista(1);
    EXPECT_TRUE(aspetta([this] { return lista.ListIndex() == 0; }));
    processor.EseguiLista(0);
    EXPECT_EQ(righe(), (QStringList{u"Pausa 50000"_s, u"Foto"_s}));
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
}

TEST_F(EseguiListaTest, AListThatHasEndedStartsAgain)
{
    seriale.apri();
    processor.EseguiLista(1);
    editor.pulEsegui.click();
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
    processor.EseguiLista(1);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
}

TEST_F(EseguiListaTest, TheOptionTakesTheCheckMarkAway)
{
    seriale.apri();
    processor.mnuOpzDeselezionaAut.setChecked(true);
    processor.EseguiLista(1);
    EXPECT_FALSE(processor.lstFile.Selected(1));
    EXPECT_TRUE(processor.lstFile.Selected(0));
}

TEST_F(EseguiListaTest, WithoutARobotItIsToldAndThePictureChangesAllTheSame)
{
    const RispondiMessaggi messaggi;
    processor.EseguiLista(1);
    EXPECT_EQ(messaggi.testi(), QStringList{u"Il robot non è collegato"_s});
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
    EXPECT_FALSE(timer.Enabled());
}

TEST_F(EseguiListaTest, AMissingFileIsTheCallersError)
{
    ASSERT_TRUE(QFile::remove(cartella.percorso(u"altra.sqm"_s)));
    try {
        processor.EseguiLista(0);
        FAIL();
    } catch (const Errore &errore) {
        EXPECT_EQ(errore.numero(), Errore::FileNonTrovato);
    }
}

TEST_F(EseguiListaTest, AnUnsavedListIsDroppedWithoutAQuestion)
{
    const RispondiMessaggi messaggi;
    seriale.apri();
    editor.mnuInsBStop.trigger();
    processor.EseguiLista(1);
    EXPECT_EQ(righe(), (QStringList{u"Pausa 60000"_s, u"Stop"_s}));
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(EseguiListaTest, ItRunsWithTheWindowClosed)
{
    editor.Scarica();
    seriale.apri();
    processor.EseguiLista(1);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_TRUE(aspetta([this] { return lista.ListIndex() == 0; }));
}

TEST_F(EseguiListaTest, TheClockStartsTheListOfItsSecond)
{
    seriale.apri();
    scatta();
    EXPECT_EQ(processor.lstFile.ListIndex(), 1);
    EXPECT_TRUE(timer.Enabled());
}

TEST_F(EseguiListaTest, TheClockStartsAListThatIsNotSelectedToo)
{
    seriale.apri();
    scegli(1, false);
    scatta();
    EXPECT_EQ(processor.lstFile.ListIndex(), 1);
}

TEST_F(EseguiListaTest, AtAnotherSecondTheClockStartsNothing)
{
    seriale.apri();
    orologio.ora = QTime(12, 0, 1);
    scatta();
    EXPECT_EQ(processor.lstFile.ListIndex(), -1);
    EXPECT_FALSE(timer.Enabled());
}
