#include "filebrowser/Foto.h"

#include "tests/filebrowser/BancoEsploraFile.h"
#include "tests/support/ErroreDi.h"

#include <QBuffer>

using namespace Qt::StringLiterals;

namespace {

struct LetturaFoto : ::testing::Test
{
    // The number of the error when this content is read, 0 for none.
    int esito(const QByteArray &contenuto)
    {
        cartella.scrivi(u"prova.jpg"_s, contenuto);
        return erroreDi([this] { leggiFoto(cartella.percorso(u"prova.jpg"_s)); });
    }
    CartellaDiProva cartella;
};

// The file with another width and height in its header.
QByteArray conMisura(QByteArray byte, int larghezza, int altezza)
{
    const qsizetype cornice = byte.indexOf(b({0xFF, 0xC0}));
    EXPECT_GE(cornice, 0);
    byte.replace(cornice + 5, 4, b({altezza >> 8, altezza & 255, larghezza >> 8, larghezza & 255}));
    return byte;
}

} // namespace

TEST(NomeDiFoto, OnlyTheEndingJpgInSmallLettersMakesAPhoto)
{
    EXPECT_TRUE(nomeDiFoto(u"a.jpg"_s));
    EXPECT_TRUE(nomeDiFoto(u".jpg"_s));
    for (const QString &nome :
         {u"a.JPG"_s, u"a.Jpg"_s, u"a.jpeg"_s, u"ajpg"_s, u"a.jpg "_s, u"jpg"_s, QString()})
        EXPECT_FALSE(nomeDiFoto(nome)) << nome.toStdString();
}

TEST_F(LetturaFoto, GivesThePhotoInItsOwnSize)
{
    cartella.scrivi(u"prova.jpg"_s, jpeg({320, 240}));
    EXPECT_EQ(leggiFoto(cartella.percorso(u"prova.jpg"_s)).size(), QSize(320, 240));
}

TEST_F(LetturaFoto, FailsIfThereIsNoFile)
{
    EXPECT_THROW(leggiFoto(cartella.percorso(u"manca.jpg"_s)), Errore);
}

TEST_F(LetturaFoto, FailsIfTheContentIsNoJpeg)
{
    QByteArray png;
    QBuffer uscita(&png);
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(&uscita, "PNG"));
    EXPECT_EQ(esito(png), Errore::ImmagineNonValida);
    EXPECT_EQ(esito({}), Errore::ImmagineNonValida);
    EXPECT_EQ(esito("una lista della spesa"), Errore::ImmagineNonValida);
    EXPECT_EQ(esito(b({0xFF, 0xD8, 0xFF})), Errore::ImmagineNonValida);
}

TEST_F(LetturaFoto, FailsIfTheHeaderClaimsMorePixelsThanACameraHas)
{
    EXPECT_EQ(esito(conMisura(jpeg({16, 16}), 65500, 65500)), Errore::ImmagineNonValida);
    EXPECT_EQ(esito(conMisura(jpeg({16, 16}), 4097, 16)), Errore::ImmagineNonValida);
    EXPECT_EQ(esito(conMisura(jpeg({16, 16}), 0, 16)), Errore::ImmagineNonValida);
}

TEST_F(LetturaFoto, AnIncompleteFileFailsOrShowsWhatItHas)
{
    const QByteArray intera = jpeg({64, 48});
    for (qsizetype n = 0; n < intera.size(); n += 7) {
        const int numero = esito(intera.first(n));
        EXPECT_TRUE(numero == 0 || numero == Errore::ImmagineNonValida) << n;
    }
}
