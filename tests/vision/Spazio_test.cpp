// The vision windows have room for their texts with the usual font sizes of a desktop.
#include "tests/support/Attesa.h"
#include "tests/support/Ritaglio.h"
#include "tests/support/Scritte.h"
#include "tests/vision/BancoVisione.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

QByteArray record(const QByteArray &nome, int larghezza, int altezza)
{
    QByteArray byte =
        '"' + nome + "\"," + QByteArray::number(larghezza) + ',' + QByteArray::number(altezza);
    for (int i = 0; i < larghezza * altezza; ++i)
        byte += ',' + QByteArray::number(i % 256);
    return byte;
}

} // namespace

TEST(Spazio, TheCameraAndItsDialogsHaveRoomForTheirTexts)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        BancoSuPortaFinta b(record("Quadro", 20, 10) + '\r' +
                            record("Un nome assai lungo per una immagine", 8, 8));
        b.apriCamera();
        b.manda(immagineACaso(1));
        b.camera.lblNomeImmagine.setCaption(u"Quadro"_s);
        b.camera.lblNomeImmagine.adjustSize();
        b.camera.lblNomeImmagine.show();
        EXPECT_THAT(guarda(b.camera, u"camera"_s), IsEmpty()) << punti;
        b.nome.Mostra();
        EXPECT_THAT(guarda(b.nome, u"nome-attesa"_s), IsEmpty()) << punti;
        b.nome.lblAttesa.hide();
        b.nome.txtNomeImmagine.setText(u"Palla"_s);
        EXPECT_THAT(guarda(b.nome, u"nome"_s), IsEmpty()) << punti;
        b.acquisite.Mostra();
        b.acquisite.lstImgAcquisite.setListIndex(0);
        EXPECT_THAT(guarda(b.acquisite, u"immagini"_s), IsEmpty()) << punti;
    }
}
