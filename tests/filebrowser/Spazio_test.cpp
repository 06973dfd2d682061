// The file browser has room for its texts with the usual font sizes of a desktop.
#include "tests/filebrowser/BancoEsploraFile.h"
#include "tests/support/Ritaglio.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

struct InMostra : Banco
{
    void TestBody() override {}
    void guardaTutto(double punti)
    {
        esplora.Mostra();
        EXPECT_THAT(guarda(esplora, u"file-attesa"_s), IsEmpty()) << punti;
        esplora.Scarica();
        apri({}, {});
        EXPECT_THAT(guarda(esplora, u"file-vuoto"_s), IsEmpty()) << punti;
        esplora.Scarica();
        QList<QByteArray> file;
        for (int i = 0; i < 40; ++i)
            file << "foto " + QByteArray::number(i) + " di una giornata al mare con il robot.jpg";
        apri({"disk", "mmc", "usb", "una cartella dal nome piu lungo"}, file);
        esplora.resize(esplora.minimumSize());
        EXPECT_THAT(guarda(esplora, u"file-stretto"_s), IsEmpty()) << punti;
        esplora.resize(760, 440);
        chiedi(QString::fromLatin1(file[3]), 5);
        EXPECT_THAT(guarda(esplora, u"file-scarica"_s), IsEmpty()) << punti;
        robotFinito(blocco(5, jpeg({320, 240})) + stato(5, 255));
        EXPECT_THAT(guarda(esplora, u"file-foto"_s), IsEmpty()) << punti;
    }
};

} // namespace

TEST(Spazio, TheFileBrowserHasRoomForItsTexts)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        InMostra().guardaTutto(punti);
    }
}
