#include "controls/FinestraFile.h"

#include "tests/support/Controlli.h"
#include "controls/Italiano.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <memory>

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

TEST_F(FinestraFileTest, is_found_by_its_name_with_its_properties)
{
    auto *trovata = finestra.findChild<QObject *>(u"Finestre"_s);
    ASSERT_EQ(trovata, &finestre);
    EXPECT_EQ(trovata->property("FileName").toString(), QString());
    EXPECT_TRUE(trovata->setProperty("FileName", u"/tmp/x"_s));
    EXPECT_EQ(finestre.FileName(), u"/tmp/x"_s);
    EXPECT_EQ(trovata->property("Filter").toString(), u"Mosse|*.sqm"_s);
}

TEST_F(FinestraFileTest, gives_the_full_path_of_the_file_that_was_opened)
{
    const ManoSuiFile mano([&](QFileDialog &dialogo) {
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_TRUE(dialogo.testOption(QFileDialog::DontUseNativeDialog));
        scrivi(dialogo, percorso(u"a.sqm"_s));
    });
    finestre.ShowOpen();
    EXPECT_EQ(finestre.FileName(), percorso(u"a.sqm"_s));
}

TEST_F(FinestraFileTest, cancelled_it_fails_with_32755_and_keeps_its_name)
{
    finestre.setFileName(percorso(u"prima.sqm"_s));
    const ManoSuiFile mano([](QFileDialog &dialogo) { dialogo.reject(); });
    EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
    EXPECT_EQ(finestre.FileName(), percorso(u"prima.sqm"_s));
    EXPECT_EQ(erroreDi([&] { finestre.ShowSave(); }), 32755);
    EXPECT_EQ(finestre.FileName(), percorso(u"prima.sqm"_s));
    EXPECT_EQ(mano.visti, 2);
}

TEST_F(FinestraFileTest, saves_under_the_name_as_it_was_typed)
{
    const ManoSuiFile mano([&](QFileDialog &dialogo) {
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
        scrivi(dialogo, percorso(u"senza estensione"_s));
    });
    finestre.ShowSave();
    EXPECT_EQ(finestre.FileName(), percorso(u"senza estensione"_s));
}

TEST_F(FinestraFileTest, does_not_ask_before_overwriting)
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
    EXPECT_EQ(file.readAll(), "contents") << "the dialog itself writes nothing";
}

TEST_F(FinestraFileTest, shows_the_filters_by_their_texts)
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

TEST_F(FinestraFileTest, without_a_whole_filter_it_shows_all_files)
{
    for (const QString &filtro : {QString(), u"Mosse"_s}) {
        finestre.setFilter(filtro);
        const ManoSuiFile mano(
            [&](QFileDialog &dialogo) { scrivi(dialogo, percorso(u"a.sqm"_s)); });
        finestre.ShowOpen();
        EXPECT_EQ(finestre.FileName(), percorso(u"a.sqm"_s));
    }
}

TEST_F(FinestraFileTest, starts_in_the_folder_of_the_file_that_it_has)
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

TEST_F(FinestraFileTest, does_not_open_a_file_that_is_not_there)
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

TEST_F(FinestraFileTest, its_window_is_not_activated_behind_it)
{
    finestra.mostraAttiva();
    finestra.diario.clear();
    const ManoSuiFile mano([](QFileDialog &dialogo) { dialogo.reject(); });
    EXPECT_EQ(erroreDi([&] { finestre.ShowOpen(); }), 32755);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_TRUE(finestra.diario.isEmpty());
}

TEST_F(FinestraFileTest, speaks_italian_whatever_the_systems_language_is)
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

TEST_F(FinestraFileTest, stands_over_a_window_of_the_program)
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

TEST_F(FinestraFileTest, a_window_that_goes_beneath_it_cancels_it)
{
    auto sotto = std::make_unique<FinestraDiProva>(u"frmAltra"_s);
    sotto->mostraAttiva();
    const ManoSuiFile mano([&](QFileDialog &) { sotto.reset(); });
    EXPECT_EQ(erroreDi([&] { finestre.ShowSave(); }), 32755);
    EXPECT_EQ(finestre.FileName(), QString());
}
