// The editor's files: opening, saving, the questions, closing.
#include "tests/movelists/BancoEditor.h"

#include "base/Archivio.h"
#include "tests/support/Sistema.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

namespace {

const QString salvareLista = u"Vuoi salvare la lista?"_s;
const QString salvareModifiche = u"Vuoi salvare le ultime modifiche?"_s;
const QString nienteDaSalvare = u"Non c'è niente da salvare!"_s;

class EditorFileTest : public testing::Test, protected Banco
{
protected:
    ~EditorFileTest() override { Archivio::abbandona(); }

    void cambia()
    {
        lista.setListIndex(-1);
        editor.mnuInsBStop.trigger();
    }
};

} // namespace

TEST_F(EditorFileTest, OpeningAFileFillsTheListAndSelectsNothing)
{
    mostra();
    cartella.scrivi(u"saluto.sqm"_s, " 1 \r\nFrase 14\r\nDestra \xBD\r\n");
    const RispondiFile utente(cartella.percorso(u"saluto.sqm"_s));
    editor.mnuFileApri.trigger();
    EXPECT_EQ(utente.visti, 1);
    EXPECT_EQ(utente.filtri, QStringList{u"Mosse (*.sqm)"_s});
    EXPECT_EQ(righe(), (QStringList{u"Frase 14"_s, u"Destra ½"_s}));
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_EQ(lista.Tag(), u"True"_s);
    EXPECT_EQ(editor.lblFile.Caption(), u"saluto.sqm"_s);
    EXPECT_EQ(editor.lblFile.toolTip(), u"File aperto: saluto.sqm"_s);
    EXPECT_EQ(editor.Finestre.FileName(), cartella.percorso(u"saluto.sqm"_s));
}

TEST_F(EditorFileTest, APathIsCutAtItsLastSeparator)
{
    cartella.scrivi(u"a.sqm"_s, " 0 \r\nStop\r\n");
    editor.ApriLista(u"a.sqm"_s);
    EXPECT_EQ(editor.lblFile.Caption(), u"a.sqm"_s);
    editor.ApriLista(cartella.percorso(u"a.sqm"_s));
    EXPECT_EQ(editor.lblFile.Caption(), u"a.sqm"_s);
    editor.Finestre.setFileName(u"C:\\Robot\\Liste\\b.sqm"_s);
    editor.mnuFileSalva.trigger();
    EXPECT_EQ(editor.lblFile.Caption(), u"b.sqm"_s);
}

TEST_F(EditorFileTest, CancellingTheDialogChangesNothingAndSaysNothing)
{
    mostra();
    const RispondiMessaggi messaggi;
    const RispondiFile utente{std::nullopt};
    riempi({u"A"_s});
    editor.mnuFileApri.trigger();
    editor.mnuFileSalvacome.trigger();
    editor.mnuInsProg.trigger();
    EXPECT_EQ(utente.visti, 3);
    EXPECT_EQ(righe(), QStringList{u"A"_s});
    EXPECT_EQ(editor.Finestre.FileName(), QString());
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(EditorFileTest, SavingWritesTheFileByteByByte)
{
    mostra();
    riempi({u"Destra ½"_s, u"Ripeti all'infinito"_s, u" Ciao, ciao"_s});
    editor.Finestre.setFileName(cartella.percorso(u"x.sqm"_s));
    lista.setTag(u"False"_s);
    editor.mnuFileSalva.trigger();
    EXPECT_EQ(cartella.leggi(u"x.sqm"_s),
              " 2 \r\nDestra \xBD\r\nRipeti all'infinito\r\n Ciao, ciao\r\n");
    EXPECT_EQ(lista.Tag(), u"True"_s);
    EXPECT_EQ(editor.lblFile.Caption(), u"x.sqm"_s);
}

TEST_F(EditorFileTest, SavingWithoutANameAsksForOneAndUsesItAsTyped)
{
    mostra();
    riempi({u"Stop"_s});
    const RispondiFile utente(cartella.percorso(u"senza estensione"_s));
    editor.mnuFileSalva.trigger();
    EXPECT_EQ(utente.visti, 1);
    EXPECT_EQ(utente.filtri, QStringList{u"Mosse (*.sqm)"_s});
    EXPECT_EQ(cartella.elenco(), QStringList{u"senza estensione"_s});
    editor.mnuFileSalva.trigger();
    EXPECT_EQ(utente.visti, 1);
}

TEST_F(EditorFileTest, SavingUnderANameOverwritesWithoutAQuestion)
{
    mostra();
    const RispondiMessaggi messaggi;
    cartella.scrivi(u"vecchia.sqm"_s, "vecchio contenuto, molto più lungo di quello nuovo");
    riempi({u"Stop"_s});
    const RispondiFile utente(cartella.percorso(u"vecchia.sqm"_s));
    editor.mnuFileSalvacome.trigger();
    EXPECT_EQ(cartella.leggi(u"vecchia.sqm"_s), " 0 \r\nStop\r\n");
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(EditorFileTest, AnEmptyListIsNotSaved)
{
    mostra();
    const RispondiMessaggi messaggi;
    const RispondiFile utente(cartella.percorso(u"x.sqm"_s));
    editor.mnuFileSalva.trigger();
    editor.mnuFileSalvacome.trigger();
    ASSERT_EQ(messaggi.testi(), (QStringList{nienteDaSalvare, nienteDaSalvare}));
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Information);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Sequor"_s);
    EXPECT_EQ(utente.visti, 0);
    EXPECT_TRUE(cartella.elenco().isEmpty());
}

TEST_F(EditorFileTest, ASaveThatCannotWriteSaysNothingAndCountsAsSaved)
{
    mostra();
    const RispondiMessaggi messaggi;
    riempi({u"Stop"_s});
    cambia();
    editor.Finestre.setFileName(cartella.percorso(u"non c'è/x.sqm"_s));
    editor.mnuFileSalva.trigger();
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(lista.Tag(), u"True"_s);
    EXPECT_EQ(editor.lblFile.Caption(), u"x.sqm"_s);
}

TEST_F(EditorFileTest, AFullDiskLeavesTheOldFileAsItWas)
{
    if (!DiscoPieno::possibile())
        GTEST_SKIP() << "no full disk here";
    mostra();
    const RispondiMessaggi messaggi;
    cartella.scrivi(u"vecchia.sqm"_s, " 0 \r\nFoto\r\n");
    riempi(QStringList(5000, u"Avanti veloce"_s));
    editor.Finestre.setFileName(cartella.percorso(u"vecchia.sqm"_s));
    {
        const DiscoPieno pieno(1000);
        editor.mnuFileSalva.trigger();
    }
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(lista.Tag(), u"True"_s);
    EXPECT_EQ(cartella.leggi(u"vecchia.sqm"_s), " 0 \r\nFoto\r\n");
    EXPECT_EQ(cartella.elenco(), QStringList{u"vecchia.sqm"_s});
    editor.mnuFileSalva.trigger();
    EXPECT_EQ(cartella.leggi(u"vecchia.sqm"_s).size(), 8 + 5000 * 15);
}

TEST_F(EditorFileTest, AFolderThatTakesNoNewFilesKeepsNoListFromItsFile)
{
    if (!SenzaDiritti::possibile())
        GTEST_SKIP() << "folders have no rights here";
    mostra();
    const RispondiMessaggi messaggi;
    cartella.scrivi(u"lista.sqm"_s, " 1 \r\nFoto\r\nAvanti veloce\r\n");
    QFile::setPermissions(cartella.percorso(u"lista.sqm"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                              QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther);
    riempi({u"Stop"_s});
    editor.Finestre.setFileName(cartella.percorso(u"lista.sqm"_s));
    {
        const SenzaDiritti chiusa(cartella.percorso());
        editor.mnuFileSalva.trigger();
    }
    EXPECT_EQ(cartella.leggi(u"lista.sqm"_s), " 0 \r\nStop\r\n");
    EXPECT_EQ(cartella.elenco(), QStringList{u"lista.sqm"_s});
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(EditorFileTest, AFileWithoutRightsIsNotOpenedAndIsTold)
{
    if (!permessiContano())
        GTEST_SKIP() << "this user may read everything";
    mostra();
    cartella.scrivi(u"chiusa.sqm"_s, " 0 \r\nStop\r\n");
    QFile::setPermissions(cartella.percorso(u"chiusa.sqm"_s), {});
    const RispondiMessaggi messaggi;
    editor.Finestre.setFileName({});
    const RispondiFile utente(cartella.percorso(u"chiusa.sqm"_s));
    editor.mnuFileApri.trigger();
    EXPECT_EQ(messaggi.testi(), QStringList{u"Accesso al file negato"_s});
}

TEST_F(EditorFileTest, AFileThatEndsTooEarlyIsToldAndKeepsWhatWasRead)
{
    mostra();
    editor.Finestre.setFileName(u"prima.sqm"_s);
    editor.lblFile.setCaption(u"prima.sqm"_s);
    riempi({u"A"_s});
    cartella.scrivi(u"corta.sqm"_s, " 5 \r\nStop\r\nFoto\r\n");
    const RispondiMessaggi messaggi;
    const RispondiFile utente(cartella.percorso(u"corta.sqm"_s));
    editor.mnuFileApri.trigger();
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti()[0].testo, u"Il file finisce prima del previsto"_s);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Sequor - Errore"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Critical);
    EXPECT_EQ(righe(), (QStringList{u"Stop"_s, u"Foto"_s}));
    EXPECT_EQ(editor.lblFile.Caption(), u"prima.sqm"_s);
    EXPECT_EQ(lista.Tag(), u"True"_s);
}

TEST_F(EditorFileTest, AfterAFailedReadingTheNextFileOperationFailsToo)
{
    mostra();
    cartella.scrivi(u"corta.sqm"_s, " 5 \r\nStop\r\n");
    cartella.scrivi(u"buona.sqm"_s, " 0 \r\nFoto\r\n");
    EXPECT_THROW(editor.ApriLista(u"corta.sqm"_s), Errore);
    const RispondiMessaggi messaggi;
    {
        const RispondiFile utente(cartella.percorso(u"buona.sqm"_s));
        editor.mnuFileApri.trigger();
    }
    EXPECT_EQ(messaggi.testi(), QStringList{u"Il file è già aperto"_s});
    // A save fails silently, and closes what was left open.
    riempi({u"Stop"_s});
    editor.Finestre.setFileName(cartella.percorso(u"nuova.sqm"_s));
    editor.mnuFileSalva.trigger();
    EXPECT_FALSE(cartella.contiene(u"nuova.sqm"_s));
    editor.mnuFileSalva.trigger();
    EXPECT_TRUE(cartella.contiene(u"nuova.sqm"_s));
}

TEST_F(EditorFileTest, NewClearsEverything)
{
    mostra();
    riempi({u"A"_s});
    editor.lblFile.setCaption(u"a.sqm"_s);
    editor.Finestre.setFileName(u"a.sqm"_s);
    editor.mnuFileNuovo.trigger();
    EXPECT_EQ(lista.ListCount(), 0);
    EXPECT_EQ(lista.Tag(), u"True"_s);
    EXPECT_EQ(editor.lblFile.Caption(), QString());
    EXPECT_EQ(editor.lblFile.toolTip(), u"File aperto: "_s);
    EXPECT_EQ(editor.Finestre.FileName(), QString());
}

TEST_F(EditorFileTest, ASavedOrEmptyListIsDroppedWithoutAQuestion)
{
    mostra();
    const RispondiMessaggi messaggi;
    editor.mnuFileNuovo.trigger();
    lista.setTag(u"False"_s);
    editor.mnuFileNuovo.trigger();
    riempi({u"A"_s, u"B"_s});
    lista.setListIndex(0);
    clicca(editor.pulGiu);
    editor.mnuFileNuovo.trigger();
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(lista.ListCount(), 0);
}

TEST_F(EditorFileTest, TheQuestionDependsOnWhetherThereIsAFile)
{
    mostra();
    RispondiMessaggi messaggi(QMessageBox::Cancel);
    cambia();
    editor.mnuFileNuovo.trigger();
    editor.lblFile.setCaption(u"x.sqm"_s);
    editor.mnuFileApri.trigger();
    ASSERT_EQ(messaggi.testi(), (QStringList{salvareLista, salvareModifiche}));
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Sequor"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Question);
    EXPECT_EQ(messaggi.visti()[0].pulsanti,
              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(righe(), QStringList{u"Stop"_s});
}

TEST_F(EditorFileTest, YesSavesAndNoDrops)
{
    mostra();
    RispondiMessaggi messaggi(QMessageBox::Yes);
    editor.Finestre.setFileName(cartella.percorso(u"x.sqm"_s));
    cambia();
    editor.mnuFileNuovo.trigger();
    EXPECT_EQ(cartella.leggi(u"x.sqm"_s), " 0 \r\nStop\r\n");
    EXPECT_EQ(lista.ListCount(), 0);
    messaggi.premi(QMessageBox::No);
    cambia();
    editor.mnuFileNuovo.trigger();
    EXPECT_EQ(lista.ListCount(), 0);
    EXPECT_EQ(cartella.elenco(), QStringList{u"x.sqm"_s});
}

TEST_F(EditorFileTest, AProgramsPathBecomesALineAndLeavesTheFileNameAlone)
{
    mostra();
    cartella.scrivi(u"gioco.exe"_s, "");
    editor.Finestre.setFileName(u"lista.sqm"_s);
    const RispondiFile utente(cartella.percorso(u"gioco.exe"_s));
    editor.mnuInsProg.trigger();
    EXPECT_EQ(utente.filtri, QStringList{u"Applicazioni (*.exe)"_s});
    EXPECT_EQ(righe(), QStringList{u"Programma "_s +
                                   QDir::toNativeSeparators(cartella.percorso(u"gioco.exe"_s))});
    EXPECT_EQ(editor.Finestre.FileName(), u"lista.sqm"_s);
}

TEST_F(EditorFileTest, ClosingDiscardsTheContent)
{
    mostra();
    riempi({u"A"_s});
    editor.Finestre.setFileName(u"a.sqm"_s);
    editor.lblFile.setCaption(u"a.sqm"_s);
    editor.opzInsComandi.setValue(0);
    editor.setTag(u"Aperto"_s);
    editor.mnuFileEsci.trigger();
    EXPECT_FALSE(editor.Visible());
    editor.Mostra();
    EXPECT_TRUE(editor.Visible());
    EXPECT_EQ(lista.ListCount(), 0);
    EXPECT_EQ(editor.Finestre.FileName(), QString());
    EXPECT_EQ(editor.lblFile.Caption(), QString());
    EXPECT_EQ(editor.lblFile.toolTip(), QString());
    EXPECT_EQ(editor.opzInsComandi.Value(), 1);
    EXPECT_EQ(editor.opzInsComandi.Caption(), u"Inserisci comandi nella lista (Attivato)"_s);
    EXPECT_EQ(editor.Tag(), u"Aperto"_s);
}

TEST_F(EditorFileTest, ClosingAsksAndCancelKeepsTheWindow)
{
    mostra();
    RispondiMessaggi messaggi(QMessageBox::Cancel);
    cambia();
    editor.close();
    EXPECT_EQ(messaggi.testi(), QStringList{salvareLista});
    EXPECT_TRUE(editor.Visible());
    EXPECT_EQ(righe(), QStringList{u"Stop"_s});
    messaggi.premi(QMessageBox::No);
    editor.close();
    EXPECT_FALSE(editor.Visible());
}

TEST_F(EditorFileTest, OpeningStopsARunningList)
{
    mostra();
    riempi({u"Pausa 60000"_s, u"Stop"_s});
    seriale.apri();
    editor.pulEsegui.click();
    ASSERT_TRUE(timer.Enabled());
    cartella.scrivi(u"a.sqm"_s, " 0 \r\nFoto\r\n");
    editor.ApriLista(u"a.sqm"_s);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
}

TEST_F(EditorFileTest, NewStopsARunningList)
{
    mostra();
    riempi({u"Pausa 60000"_s, u"Stop"_s});
    seriale.apri();
    editor.pulEsegui.click();
    editor.mnuFileNuovo.trigger();
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
}

TEST_F(EditorFileTest, TheLongestListIsLoadedAndShown)
{
    mostra();
    QByteArray file = " 32766 \r\n";
    for (int i = 0; i < 32767; ++i)
        file += "Pausa " + QByteArray::number(i) + "\r\n";
    cartella.scrivi(u"lunga.sqm"_s, file);
    editor.ApriLista(u"lunga.sqm"_s);
    EXPECT_EQ(lista.ListCount(), 32767);
    lista.setListIndex(32766);
    gira(20);
    EXPECT_TRUE(lista.viewport()->rect().intersects(lista.visualItemRect(lista.item(32766))));
    editor.Finestre.setFileName(cartella.percorso(u"copia.sqm"_s));
    editor.mnuFileSalva.trigger();
    EXPECT_EQ(cartella.leggi(u"copia.sqm"_s), file);
}

TEST_F(EditorFileTest, AFileOfTooManyLinesIsToldClearlyAndFillsTheList)
{
    mostra();
    const RispondiMessaggi messaggi;
    for (const QByteArray &conteggio : {QByteArray(" 32767 "), QByteArray(" 40000 ")}) {
        cartella.scrivi(u"troppo.sqm"_s,
                        conteggio + "\r\n" + QByteArray("Stop\r\n").repeated(40001));
        const RispondiFile utente(cartella.percorso(u"troppo.sqm"_s));
        editor.mnuFileApri.trigger();
        Archivio::abbandona();
    }
    ASSERT_EQ(messaggi.testi(), (QStringList{u"Una lista ha al massimo 32767 comandi"_s,
                                             u"Una lista ha al massimo 32767 comandi"_s}));
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Critical);
}

TEST_F(EditorFileTest, AHugeLineIsShownWithoutHarm)
{
    mostra();
    cartella.scrivi(u"grande.sqm"_s, " 0 \r\n" + QByteArray(100'000'000, 'x'));
    editor.ApriLista(u"grande.sqm"_s);
    gira(50);
    EXPECT_EQ(lista.List(0).size(), 100'000'000);
}
