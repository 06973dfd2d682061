#include "controls/FinestraFile.h"

#include "controls/Italiano.h"
#include "tests/support/Controlli.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <memory>

using namespace Qt::StringLiterals;

using ManoSuiFile = Mano<QFileDialog>;

namespace {

struct FinestraFileTest : ::testing::Test
{
    FinestraFileTest()
    {
        crea(u"a.sqm"_s);
        finestre.setFilter(u"Mosse|*.sqm"_s);
    }
    void crea(const QString &nome)
    {
        QFile file(percorso(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("contents");
    }
    QString percorso(const QString &nome) const { return cartella.filePath(nome); }
    static void scrivi(QFileDialog &dialogo, const QString &nome)
    {
        auto *riga = dialogo.findChild<QLineEdit *>(u"fileNameEdit"_s);
        ASSERT_TRUE(riga);
        riga->setText(nome);
        QTest::keyClick(riga, Qt::Key_Return);
    }

    QTemporaryDir cartella;
    FinestraDiProva finestra;
    FinestraFile finestre{u"Finestre"_s, &finestra};
};

} // namespace

TEST_F(FinestraFileTest, IsFoundByItsNameWithItsProperties)
{
    auto *trovata = finestra.findChild<QObject *>(u"Finestre"_s);
    ASSERT_EQ(trovata, &finestre);
    EXPECT_EQ(trovata->property("FileName").toString(), QString());
    EXPECT_TRUE(trovata->setProperty("FileName", u"/tmp/x"_s));
    EXPECT_EQ(finestre.FileName(), u"/tmp/x"_s);
    EXPECT_EQ(trovata->property("Filter").toString(), u"Mosse|*.sqm"_s);
}

TEST_F(FinestraFileTest, GivesTheFullPathOfTheFileThatWasOpened)
{
    const ManoSuiFile mano([&](QFileDialog &dialogo) {
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_TRUE(dialogo.testOption(QFileDialog::DontUseNativeDialog));
        scrivi(dialogo, percorso(u"a.sqm"_s));
    });
    finestre.ShowOpen();
    EXPECT_EQ(finestre.FileName(), percorso(u"a.sqm"_s));
}

TEST_F(FinestraFileTest, WhenCancelledItFailsWith32755AndKeepsItsName)
{
    finestre.setFileName(percorso(u"prima.sqm"_s));
    const ManoSuiFile mano([](QFileDialog &dialogo) { dialogo.reject(); });
    EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
    EXPECT_EQ(finestre.FileName(), percorso(u"prima.sqm"_s));
    EXPECT_EQ(erroreDi([&] { finestre.ShowSave(); }), 32755);
    EXPECT_EQ(finestre.FileName(), percorso(u"prima.sqm"_s));
    EXPECT_EQ(mano.visti, 2);
}

TEST_F(FinestraFileTest, SavesUnderTheNameAsItWasTyped)
{
    const ManoSuiFile mano([&](QFileDialog &dialogo) {
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
        scrivi(dialogo, percorso(u"senza estensione"_s));
    });
    finestre.ShowSave();
    EXPECT_EQ(finestre.FileName(), percorso(u"senza estensione"_s));
}

TEST_F(FinestraFileTest, DoesNotAskBeforeOverwriting)
{
    int domande = 0;
    const ManoSuiMessaggi altra([&](QMessageBox &box) {
        ++domande;
        box.reject();
    });
    const ManoSuiFile mano([&](QFileDialog &dialogo) { scrivi(dialogo, percorso(u"a.sqm"_s)); });
    finestre.ShowSave();
    EXPECT_EQ(finestre.FileName(), percorso(u"a.sqm"_s));
    EXPECT_EQ(domande, 0);
    QFile file(percorso(u"a.sqm"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "contents") << "the dialog itself must not write";
}

TEST_F(FinestraFileTest, ShowsTheFiltersByTheirTexts)
{
    const struct
    {
        QString filtro;
        QStringList nomi;
    } casi[] = {{u"Mosse|*.sqm"_s, {u"Mosse (*.sqm)"_s}},
                {u"Mosse|*.sqm|Tutto|*.a;*.b"_s, {u"Mosse (*.sqm)"_s, u"Tutto (*.a *.b)"_s}}};
    for (const auto &caso : casi) {
        QStringList visti;
        const ManoSuiFile mano([&](QFileDialog &dialogo) {
            visti = dialogo.nameFilters();
            dialogo.reject();
        });
        finestre.setFilter(caso.filtro);
        EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
        EXPECT_EQ(visti, caso.nomi);
    }
}

TEST_F(FinestraFileTest, WithAnIncompleteFilterItShowsAllFiles)
{
    for (const QString &filtro : {QString(), u"Mosse"_s}) {
        finestre.setFilter(filtro);
        const ManoSuiFile mano(
            [&](QFileDialog &dialogo) { scrivi(dialogo, percorso(u"a.sqm"_s)); });
        finestre.ShowOpen();
        EXPECT_EQ(finestre.FileName(), percorso(u"a.sqm"_s));
    }
}

TEST_F(FinestraFileTest, StartsInTheFolderOfTheFileThatItHas)
{
    finestre.setFileName(percorso(u"a.sqm"_s));
    QString dove;
    const ManoSuiFile mano([&](QFileDialog &dialogo) {
        dove = dialogo.directory().path();
        dialogo.reject();
    });
    EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
    EXPECT_EQ(dove, cartella.path());
}

TEST_F(FinestraFileTest, DoesNotOpenAFileThatDoesNotExist)
{
    int avvisi = 0;
    const ManoSuiMessaggi avviso([&](QMessageBox &box) {
        ++avvisi;
        box.accept();
    });
    int volte = 0;
    const ManoSuiFile mano([&](QFileDialog &dialogo) {
        if (++volte == 1)
            scrivi(dialogo, percorso(u"manca.sqm"_s));
        else
            dialogo.reject();
    });
    EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
    EXPECT_EQ(avvisi, 1);
    EXPECT_EQ(finestre.FileName(), QString());
}

TEST_F(FinestraFileTest, ItsWindowIsNotActivatedAgainAfterIt)
{
    finestra.mostraAttiva();
    finestra.diario.clear();
    const ManoSuiFile mano([](QFileDialog &dialogo) { dialogo.reject(); });
    EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_TRUE(finestra.diario.isEmpty());
}

TEST_F(FinestraFileTest, IsInItalianWhateverTheLanguageOfTheSystem)
{
    EXPECT_EXIT(
        {
            qputenv("LANG", "de_DE.UTF-8");
            installaItaliano(*qApp);
            QStringList testi;
            const ManoSuiFile mano([&](QFileDialog &dialogo) {
                testi += dialogo.windowTitle();
                for (const auto quale :
                     {QDialogButtonBox::Open, QDialogButtonBox::Save, QDialogButtonBox::Cancel}) {
                    const auto *pulsante = dialogo.findChild<QDialogButtonBox *>()->button(quale);
                    if (pulsante)
                        testi += QString(pulsante->text()).remove(u'&');
                }
                dialogo.reject();
            });
            passaErrori([&] { finestre.ShowOpen(); });
            passaErrori([&] { finestre.ShowSave(); });
            std::cerr << testi.join(u'|').toStdString();
            std::_Exit(0);
        },
        ::testing::ExitedWithCode(0), "Apri\\|Apri\\|Annulla\\|Salva con nome\\|Salva\\|Annulla$");
}

TEST_F(FinestraFileTest, IsShownOverAWindowOfTheProgram)
{
    FinestraDiProva altra(u"frmAltra"_s);
    finestra.mostraAttiva();
    altra.mostraAttiva();
    altra.Scarica();
    const AltroProgramma altro;
    QWidget *sopra = nullptr;
    const ManoSuiFile mano([&](QFileDialog &dialogo) {
        sopra = dialogo.parentWidget();
        dialogo.reject();
    });
    EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
    EXPECT_EQ(sopra, &finestra);
}

TEST_F(FinestraFileTest, DestroyingTheWindowBelowCancelsIt)
{
    auto sotto = std::make_unique<FinestraDiProva>(u"frmAltra"_s);
    sotto->mostraAttiva();
    const ManoSuiFile mano([&](QFileDialog &) { sotto.reset(); });
    EXPECT_EQ(erroreDi([&] { finestre.ShowSave(); }), 32755);
    EXPECT_EQ(finestre.FileName(), QString());
}
