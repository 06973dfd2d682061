#include "controls/ElencoFile.h"

#include "tests/support/Controlli.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

struct ElencoFileTest : ::testing::Test
{
    void crea(const QStringList &nomi)
    {
        for (const QString &nome : nomi) {
            QFile file(cartella.filePath(nome));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    static QStringList righe(const ElencoFile &lista)
    {
        QStringList tutte;
        for (int i = 0; i < lista.ListCount(); ++i)
            tutte += lista.List(i);
        return tutte;
    }
    QTemporaryDir cartella;
    FinestraDiProva finestra;
};

} // namespace

TEST_F(ElencoFileTest, ListsTheFilesOfThePatternSortedWithoutRegardToCase)
{
    crea({u"beta.sqm"_s, u"Alfa.sqm"_s, u"gamma.SQM"_s, u"altro.txt"_s, u"sqm"_s, u"x.sqm.bak"_s});
    QDir(cartella.path()).mkdir(u"cartella.sqm"_s);
    const ElencoFile lista(u"File"_s, &finestra, cartella.path(), u"*.sqm"_s);
    EXPECT_EQ(righe(lista), (QStringList{u"Alfa.sqm"_s, u"beta.sqm"_s, u"gamma.SQM"_s}));
}

TEST_F(ElencoFileTest, IsHiddenAndFoundByItsName)
{
    const ElencoFile lista(u"File"_s, &finestra, cartella.path(), u"*.sqm"_s);
    finestra.mostraAttiva();
    EXPECT_FALSE(lista.isVisible());
    EXPECT_TRUE(finestra.findChild<ElencoFile *>(u"File"_s));
}

TEST_F(ElencoFileTest, ShowsNewFilesWhenItIsRefreshed)
{
    ElencoFile lista(u"File"_s, &finestra, cartella.path(), u"*.sqm"_s);
    int volte = 0;
    lista.Click.collega([&] { ++volte; });
    EXPECT_EQ(lista.ListCount(), 0);
    crea({u"b.sqm"_s});
    EXPECT_EQ(lista.ListCount(), 0);
    lista.Refresh();
    EXPECT_EQ(righe(lista), QStringList{u"b.sqm"_s});
    EXPECT_EQ(volte, 0);
    lista.setListIndex(0);
    crea({u"a.sqm"_s});
    lista.Refresh();
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_EQ(righe(lista), (QStringList{u"a.sqm"_s, u"b.sqm"_s}));
}

TEST_F(ElencoFileTest, TakesAnotherFolderAndOtherPatterns)
{
    crea({u"a.sqm"_s, u"b.vgp"_s, u"c.txt"_s});
    ElencoFile lista(u"File"_s, &finestra, u"/not-there"_s, u"*.sqm"_s);
    EXPECT_EQ(lista.ListCount(), 0);
    lista.setPath(cartella.path());
    EXPECT_EQ(righe(lista), QStringList{u"a.sqm"_s});
    lista.setPattern(u"*.sqm;*.vgp"_s);
    EXPECT_EQ(righe(lista), (QStringList{u"a.sqm"_s, u"b.vgp"_s}));
}

TEST_F(ElencoFileTest, ARowThatDoesNotExistGivesAnError)
{
    const ElencoFile lista(u"File"_s, &finestra, cartella.path(), u"*.sqm"_s);
    EXPECT_EQ(erroreDi([&] { lista.List(0); }), 380);
}
