// How names are shown that are too long or contain special characters.
#include "filebrowser/Nomi.h"

#include "tests/filebrowser/BancoEsploraFile.h"

#include <QApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

struct Nomi : Banco
{
    // The text of the tool tip of a row, empty if there is none.
    QString suggerito(Elenco &lista, int riga)
    {
        QToolTip::hideText();
        EXPECT_TRUE(aspetta([] { return !QToolTip::isVisible(); }));
        const QPoint dove = lista.visualItemRect(lista.item(riga)).center();
        QHelpEvent evento(QEvent::ToolTip, dove, lista.viewport()->mapToGlobal(dove));
        QApplication::sendEvent(lista.viewport(), &evento);
        QTextDocument letto;
        letto.setHtml(QToolTip::text());
        return letto.toPlainText();
    }
};

} // namespace

TEST(Suggerimento, ShowsTheTextUnchanged)
{
    for (const QString &testo : {u"a.jpg"_s, u"a & b"_s, u"<b>a</b>"_s, u"&lt;"_s, u"a   b"_s}) {
        ASSERT_TRUE(Qt::mightBeRichText(suggerimento(testo)));
        QTextDocument letto;
        letto.setHtml(suggerimento(testo));
        EXPECT_EQ(letto.toPlainText(), testo);
    }
    EXPECT_EQ(suggerimento({}), QString());
}

TEST_F(Nomi, ALongNameIsShortenedAndShownInItsToolTip)
{
    const QString lungo = u"un <b>nome</b> & molto  lungo "_s.repeated(6);
    const QByteArray byte = lungo.toLatin1();
    apri({"foto", byte}, {"a.txt", byte});
    for (Elenco *lista : {&esplora.lstCartelle, &esplora.lstFile}) {
        EXPECT_EQ(lista->horizontalScrollBar()->maximum(), 0);
        EXPECT_FALSE(lista->horizontalScrollBar()->isVisible());
        EXPECT_EQ(lista->visualItemRect(lista->item(1)).width(), lista->viewport()->width());
        EXPECT_EQ(suggerito(*lista, 0), QString());
        EXPECT_EQ(suggerito(*lista, 1), lungo);
    }
}

TEST_F(Nomi, ARowIsOneLineWhateverTheNameContains)
{
    apri({}, {"a.txt", "riga\nnuova\ttab\x81.txt"});
    const auto *righe = esplora.lstFile.itemDelegate();
    const QLocale lingua;
    EXPECT_EQ(
        dynamic_cast<const RigheDiNomi &>(*righe).displayText(esplora.lstFile.List(1), lingua),
        u"riga\uFFFDnuova\uFFFDtab\uFFFD.txt"_s);
    EXPECT_EQ(esplora.lstFile.visualItemRect(esplora.lstFile.item(1)).height(),
              esplora.lstFile.visualItemRect(esplora.lstFile.item(0)).height());
    // The name is sent unchanged.
    doppioClick(esplora.lstFile, 1);
    EXPECT_EQ(scritti(), b({40, 1, 19}) + "riga\nnuova\ttab\x81.txt");
}
