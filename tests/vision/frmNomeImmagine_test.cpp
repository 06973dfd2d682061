// The naming dialog: keys, storing, duplicates, full disks.
#include "tests/vision/BancoVisione.h"

#include "base/Archivio.h"
#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"
#include "tests/support/Sistema.h"

#include <QDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class NomeImmagine : public testing::Test
{
protected:
    // Opens the dialog as it is after a complete copy.
    void pronto(const QString &record = u"2,1,5,6"_s)
    {
        nome.Mostra();
        nome.setTag(record);
        nome.pulOK.setEnabled(true);
    }
    void ok(const QString &testo)
    {
        pronto();
        nome.txtNomeImmagine.setText(testo);
        QTest::mouseClick(&nome.pulOK, Qt::LeftButton);
    }
    QString battuto(const QString &testo)
    {
        for (const QChar c : testo) {
            QKeyEvent tasto(QEvent::KeyPress, 0, Qt::NoModifier, c);
            QApplication::sendEvent(&nome.txtNomeImmagine, &tasto);
        }
        return nome.txtNomeImmagine.Text();
    }
    QByteArray file() const { return banco.cartella.leggi(u"Immagini.dat"_s); }

    BancoSuPortaFinta banco;
    frmNomeImmagine &nome = banco.nome;
};

} // namespace

TEST_F(NomeImmagine, OpensWithTheFocusInTheNameAndOKOff)
{
    nome.Mostra();
    EXPECT_EQ(nome.windowTitle(), u"Dai un nome all'immagine"_s);
    EXPECT_EQ(nome.focusWidget(), &nome.txtNomeImmagine);
    EXPECT_FALSE(nome.pulOK.Enabled());
    EXPECT_TRUE(nome.pulAnnulla.Enabled());
    EXPECT_EQ(nome.lblAttesa.Caption(), u"un attimo solo"_s);
    EXPECT_TRUE(nome.lblAttesa.Visible());
    EXPECT_FALSE(nome.tmrAcquisizione.Enabled());
}

TEST_F(NomeImmagine, TheFirstLetterBecomesACapital)
{
    nome.Mostra();
    EXPECT_EQ(battuto(u"palla"_s), u"Palla"_s);
}

TEST_F(NomeImmagine, TheFirstLetterBecomesACapitalAlsoAfterAllWasDeleted)
{
    nome.Mostra();
    battuto(u"p"_s);
    nome.txtNomeImmagine.clear();
    EXPECT_EQ(battuto(u"tazza"_s), u"Tazza"_s);
}

TEST_F(NomeImmagine, CharactersThatNoFileNameCanHaveAreRefused)
{
    nome.Mostra();
    EXPECT_EQ(battuto(u"/\\:*?\"<>|a/b\\c:d*e?f\"g<h>i|j"_s), u"Abcdefghij"_s);
}

TEST_F(NomeImmagine, CommasAndBlanksAreAccepted)
{
    nome.Mostra();
    EXPECT_EQ(battuto(u"palla, rossa 1"_s), u"Palla, rossa 1"_s);
}

TEST_F(NomeImmagine, BlanksAroundTheNameAreKept)
{
    ok(u" palla "_s);
    EXPECT_EQ(file(), "\" palla \",2,1,5,6");
}

TEST_F(NomeImmagine, EnterStoresNothingBeforeTheCopyIsFinished)
{
    nome.Mostra();
    nome.txtNomeImmagine.setText(u"Palla"_s);
    QTest::keyClick(&nome.txtNomeImmagine, Qt::Key_Return);
    EXPECT_TRUE(nome.Visible());
    EXPECT_FALSE(banco.cartella.contiene(u"Immagini.dat"_s));
}

TEST_F(NomeImmagine, TheFirstPictureIsARecordWithoutALineEnd)
{
    ok(u"Pallone"_s);
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6");
    EXPECT_FALSE(nome.Visible());
}

TEST_F(NomeImmagine, TheSecondRecordFollowsACarriageReturn)
{
    ok(u"Pallone"_s);
    ok(u"Tazza"_s);
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6\r\"Tazza\",2,1,5,6");
}

TEST_F(NomeImmagine, TheFileIsInTheSingleByteCodePage)
{
    ok(u"Città"_s);
    EXPECT_EQ(file(), "\"Citt\xE0\",2,1,5,6");
}

TEST_F(NomeImmagine, EnterStores)
{
    pronto();
    nome.txtNomeImmagine.setText(u"Pallone"_s);
    QTest::keyClick(&nome.txtNomeImmagine, Qt::Key_Return);
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6");
}

TEST_F(NomeImmagine, WithoutANameNothingHappens)
{
    ok({});
    EXPECT_TRUE(nome.Visible());
    EXPECT_FALSE(banco.cartella.contiene(u"Immagini.dat"_s));
}

TEST_F(NomeImmagine, AnnullaStoresNothing)
{
    pronto();
    nome.txtNomeImmagine.setText(u"Pallone"_s);
    QTest::mouseClick(&nome.pulAnnulla, Qt::LeftButton);
    EXPECT_FALSE(nome.Visible());
    EXPECT_FALSE(banco.cartella.contiene(u"Immagini.dat"_s));
}

TEST_F(NomeImmagine, AnnullaStopsTheCopy)
{
    nome.Mostra();
    nome.tmrAcquisizione.setEnabled(true);
    QTest::keyClick(&nome.txtNomeImmagine, Qt::Key_Escape);
    EXPECT_FALSE(nome.Visible());
    EXPECT_FALSE(nome.tmrAcquisizione.Enabled());
}

TEST_F(NomeImmagine, OpenedAgainItIsAsAtFirst)
{
    ok(u"Pallone"_s);
    nome.Mostra();
    EXPECT_EQ(nome.txtNomeImmagine.Text(), QString());
    EXPECT_FALSE(nome.pulOK.Enabled());
    EXPECT_TRUE(nome.lblAttesa.Visible());
    EXPECT_EQ(nome.Tag(), QString());
}

TEST_F(NomeImmagine, AStoredNameIsRefused)
{
    ok(u"Pallone"_s);
    RispondiMessaggi risposte;
    ok(u"Pal"_s);
    ASSERT_EQ(risposte.testi(), QStringList(u"Il nome esiste già!"_s));
    EXPECT_EQ(risposte.visti().first().icona, QMessageBox::NoIcon);
    EXPECT_EQ(risposte.visti().first().pulsanti, QMessageBox::Ok);
    EXPECT_TRUE(nome.Visible());
    EXPECT_EQ(nome.txtNomeImmagine.Text(), u"Pal"_s);
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6");
}

TEST_F(NomeImmagine, ALongerNameThanTheStoredOneIsAccepted)
{
    ok(u"Pallone"_s);
    ok(u"Pallone1"_s);
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6\r\"Pallone1\",2,1,5,6");
}

TEST_F(NomeImmagine, ANameWithALineBreakIsStoredInOneLine)
{
    // Keeps the text box from removing the line breaks.
    const QSignalBlocker zitta(nome.txtNomeImmagine);
    for (const auto *testo : {u"Pal\rla", u"Taz\nza", u"Me\r\nla"})
        ok(QString::fromUtf16(testo));
    const QByteArrayList righe = file().split('\r');
    ASSERT_EQ(righe.size(), 3);
    for (const QByteArray &riga : righe) {
        EXPECT_TRUE(riga.startsWith('"') && riga.endsWith("\",2,1,5,6")) << riga.toStdString();
        EXPECT_FALSE(riga.contains('\n'));
    }
    RispondiMessaggi risposte;
    ok(u"Pal\rla"_s);
    EXPECT_EQ(risposte.testi(), QStringList(u"Il nome esiste già!"_s));
    EXPECT_EQ(file().count('\r'), 2);
}

TEST_F(NomeImmagine, AFileThatALineBreakHasDamagedKeepsItsContent)
{
    const QByteArray guasto = "\"a\",1,1,5\r\"Pal\rla\",1,1,6\r\"c\",1,1,7";
    banco.cartella.scrivi(u"Immagini.dat"_s, guasto);
    ok(u"Tazza"_s);
    EXPECT_FALSE(nome.Visible());
    EXPECT_EQ(file(), guasto + "\r\"Tazza\",2,1,5,6");
}

TEST_F(NomeImmagine, OnAFullDiskTheOldFileStaysAndNothingIsReported)
{
    if (!DiscoPieno::possibile())
        GTEST_SKIP() << "no full disk here";
    ok(u"Pallone"_s);
    pronto(u"2,1"_s + u",16777215"_s.repeated(4800));
    nome.txtNomeImmagine.setText(u"Tazza"_s);
    {
        const DiscoPieno pieno(100);
        QTest::mouseClick(&nome.pulOK, Qt::LeftButton);
    }
    EXPECT_FALSE(nome.Visible());
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6");
    // The next picture can be stored.
    ok(u"Mela"_s);
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6\r\"Mela\",2,1,5,6");
}

TEST_F(NomeImmagine, AFileThatCannotBeReadIsNotOverwritten)
{
    ok(u"Pallone"_s);
    // The file number is in use for another file.
    Archivio::apri(1, u"prog.dat"_s, Archivio::Modo::Lettura);
    ok(u"Tazza"_s);
    Archivio::abbandona();
    EXPECT_FALSE(nome.Visible());
    EXPECT_EQ(file(), "\"Pallone\",2,1,5,6");
}

TEST_F(NomeImmagine, AFileThatCannotBeOpenedIsNotReplaced)
{
    if (!mettiIlleggibile(u"Immagini.dat"_s))
        GTEST_SKIP();
    ok(u"Pallone"_s);
    EXPECT_FALSE(nome.Visible());
    EXPECT_FALSE(QFileInfo(u"Immagini.dat"_s).isFile());
}

TEST_F(NomeImmagine, AFolderOfThatNameIsNotReplaced)
{
    ASSERT_TRUE(QDir().mkdir(u"Immagini.dat"_s));
    ok(u"Pallone"_s);
    EXPECT_FALSE(nome.Visible());
    EXPECT_TRUE(QFileInfo(u"Immagini.dat"_s).isDir());
}

TEST_F(NomeImmagine, TheListOfPicturesIsFilledAgainFromTheRecordsReadAtTheStart)
{
    banco.acquisite.Mostra();
    banco.acquisite.lstImgAcquisite.AddItem(u"di troppo"_s);
    ok(u"Pallone"_s);
    // Without a file at the start there is one empty entry, and the new picture is not in the list
    // yet.
    ASSERT_EQ(banco.acquisite.lstImgAcquisite.ListCount(), 1);
    EXPECT_EQ(banco.acquisite.lstImgAcquisite.List(0), QString());
    EXPECT_EQ(banco.console.lstImgCamera.ListCount(), 1);
}
