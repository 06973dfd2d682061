// The editor under the Vigilio: what its run, its menu and its closing mean to the lists.
#include "tests/conditional/BancoVigilio.h"
#include "tests/support/Modali.h"

#include <gmock/gmock.h>

namespace {

class EditorSotto : public testing::Test, protected BancoVigilio
{
protected:
    int riga(const QString &nome) const
    {
        for (int i = 0; i < processor.File.ListCount(); ++i) {
            if (processor.File.List(i) == nome)
                return i;
        }
        ADD_FAILURE() << nome.toStdString();
        return -1;
    }
};

const QString salvareLista = u"Vuoi salvare la lista?"_s;

} // namespace

TEST_F(EditorSotto, AtTheEndOfAListThatItStartedTheVigilioWaitsAgain)
{
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s});
    scegli(1);
    seriale.apri();
    console.accelera = true;
    processor.EseguiLista(0);
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
    aspettaFine();
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
}

TEST_F(EditorSotto, TheVigilioStopsAtTheEndOfAListIfNoListIsSelected)
{
    mostraVigilio({u"a.sqm"_s});
    seriale.apri();
    console.accelera = true;
    processor.EseguiLista(0);
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
    aspettaFine();
    EXPECT_EQ(editor.imgVigilio.Picture(), 1);
    EXPECT_TRUE(processor.pulAvvia.font().italic()); // what stopping leaves
}

TEST_F(EditorSotto, AStartByHandEndsTheVigiliosOwnRunToo)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    const RispondiMessaggi messaggi;
    processor.EseguiLista(0); // without a robot
    EXPECT_EQ(editor.imgVigilio.Picture(), 3);
    seriale.apri();
    editor.pulEsegui.click();
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
}

TEST_F(EditorSotto, TheConditionOpensOnTheRowOfTheOpenList)
{
    mostraVigilio({u"altra.sqm"_s, u"Saluto.sqm"_s});
    mostra();
    QStringList titolo;
    const ConModale dialogo(u"frmImpCondizioni"_s, [&] {
        titolo += processor.File.List(processor.lstFile.ListIndex());
        processor.impCondizioni.cbTemperatura.setListIndex(30);
        processor.impCondizioni.pulOK.click();
    });
    editor.Finestre.setFileName(cartella.percorso(u"SALUTO.SQM"_s));
    editor.mnuInsCondizione.trigger();
    EXPECT_EQ(titolo, QStringList{u"Saluto.sqm"_s});
    EXPECT_FALSE(processor.lstFile.Selected(riga(u"altra.sqm"_s)));
    EXPECT_TRUE(processor.lstFile.Selected(riga(u"Saluto.sqm"_s)));
    EXPECT_EQ(lista.ListCount(), 0);
}

TEST_F(EditorSotto, AListElsewhereCanHaveNoCondition)
{
    mostraVigilio({u"saluto.sqm"_s});
    mostra();
    for (const QString &file : {u"/altrove/saluto.sqm"_s, u"saluto.sqm"_s, QString()}) {
        processor.Nascondi();
        editor.Finestre.setFileName(file);
        editor.mnuInsCondizione.trigger();
        EXPECT_TRUE(processor.Visible());
        EXPECT_FALSE(processor.impCondizioni.Visible());
    }
    EXPECT_FALSE(processor.lstFile.Selected(0));
}

TEST_F(EditorSotto, ClosingTheEditorAsksAndStopsTheVigilio)
{
    avvia({{u"a.sqm"_s, fabbrica}});
    RispondiMessaggi messaggi(QMessageBox::No);
    editor.close();
    EXPECT_TRUE(editor.Visible());
    EXPECT_TRUE(processor.avviato());
    messaggi.premi(QMessageBox::Yes);
    editor.close();
    EXPECT_FALSE(editor.Visible());
    EXPECT_FALSE(processor.avviato());
    ASSERT_EQ(messaggi.visti().size(), 2);
    EXPECT_EQ(messaggi.visti()[0].testo,
              u"Il Vigilio è in esecuzione, se chiudi il Sequor il Vigilio verrà stoppato, "
              "chiudere?"_s);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Sequor"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Question);
    EXPECT_EQ(messaggi.visti()[0].pulsanti, QMessageBox::Yes | QMessageBox::No);
}

TEST_F(EditorSotto, CancellingTheSaveStillAsksAboutTheVigilio)
{
    avvia({{u"a.sqm"_s, fabbrica}});
    editor.mnuInsBStop.trigger();
    RispondiMessaggi messaggi(QMessageBox::Cancel);
    messaggi.mentreAperto = [&](QMessageBox &box) {
        messaggi.premi(box.text() == salvareLista ? QMessageBox::Cancel : QMessageBox::Yes);
    };
    editor.close();
    EXPECT_EQ(messaggi.visti().size(), 2);
    EXPECT_FALSE(processor.avviato());
    EXPECT_TRUE(editor.Visible());
    EXPECT_EQ(righe(), QStringList{u"Stop"_s});
}
