#include "tests/vision/BancoVisione.h"

#include "tests/support/Attesa.h"
#include "tests/support/Scritte.h"

#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

qint32 coloreInArrivo(QRgb punto)
{
    const int rosso = (qRed(punto) / 8) * 255 / 31;
    const int verde = (qGreen(punto) / 4) * 255 / 63;
    const int blu = (qBlue(punto) / 8) * 255 / 31;
    return rosso + verde * 256 + blu * 65536;
}

QByteArray rigaVideo(const QImage &immagine, int riga)
{
    QByteArray byte;
    for (int colonna = 0; colonna < 80; ++colonna) {
        const QRgb p = immagine.pixel(colonna, riga);
        const int v = (qRed(p) / 8) * 2048 + (qGreen(p) / 4) * 32 + qBlue(p) / 8;
        byte += b({v / 256, v % 256});
    }
    return byte;
}

QByteArray telegrammiVideo(const QImage &immagine)
{
    QByteArray byte;
    for (int riga = 0; riga < 60; ++riga)
        byte += b({13}) + rigaVideo(immagine, riga);
    return byte;
}

QImage immagineACaso(quint32 seme)
{
    std::mt19937 caso(seme);
    QImage immagine(80, 60, QImage::Format_RGB32);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x)
            immagine.setPixel(x, y, 0xFF000000 | (caso() & 0xFFFFFF));
    return immagine;
}

QImage immaginePiena(QRgb colore)
{
    QImage immagine(80, 60, QImage::Format_RGB32);
    immagine.fill(colore);
    return immagine;
}

QImage quadri(const QImage &immagine, int s, QSize superficie)
{
    QImage quadro(superficie, QImage::Format_ARGB32_Premultiplied);
    quadro.fill(Qt::transparent);
    QPainter pittore(&quadro);
    for (int riga = 1; riga <= 60; ++riga) {
        for (int colonna = 1; colonna <= 80; ++colonna) {
            const qint32 c = coloreInArrivo(immagine.pixel(colonna - 1, riga - 1));
            pittore.fillRect(colonna * s, riga * s, s, s,
                             QColor(c % 256, c / 256 % 256, c / 65536));
        }
    }
    return quadro;
}

std::unique_ptr<Porta> BancoVisione::preparata(std::unique_ptr<Porta> porta,
                                               const CartellaDiProva &cartella,
                                               const QByteArray &immagini)
{
    cartella.scrivi(u"Porta COM"_s, "1\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;");
    if (!immagini.isNull())
        cartella.scrivi(u"Immagini.dat"_s, immagini);
    return porta;
}

BancoVisione::BancoVisione(std::unique_ptr<Porta> porta, const QByteArray &immagini)
    : console({preparata(std::move(porta), cartella, immagini), cartella.percorso(), [] {}})
{
    FinestreConsole finestre;
    finestre.frmCamera = &camera;
    finestre.frmImmaginiAcquisite = &acquisite;
    console.impostaFinestre(finestre);
    console.motore.ascoltaVideo(&camera);
    console.Mostra();
}

BancoVisione::~BancoVisione()
{
    console.motore.ascoltaVideo(nullptr);
    console.impostaFinestre({});
}

void BancoVisione::premi(int immagine)
{
    for (auto *pulsante : console.BarraPulsanti.findChildren<PulsanteBarra *>()) {
        if (pulsante->Image() == immagine) {
            QTest::mouseClick(pulsante, Qt::LeftButton);
            return;
        }
    }
    console.BarraPulsanti.aggiungi(immagine, {});
    console.BarraPulsanti.findChildren<PulsanteBarra *>().last()->click();
}

void BancoVisione::collega()
{
    premi(1);
    ASSERT_EQ(console.BarraStato.Panels(1), u"Connesso"_s);
}

void BancoVisione::scollega()
{
    premi(6);
    ASSERT_FALSE(console.COM.PortOpen());
}

BancoSuPortaFinta::BancoSuPortaFinta(const QByteArray &immagini)
    : BancoSuPortaFinta(new PortaFinta, immagini)
{
}

BancoSuPortaFinta::BancoSuPortaFinta(PortaFinta *nuova, const QByteArray &immagini)
    : BancoVisione(std::unique_ptr<Porta>(nuova), immagini), porta(*nuova)
{
    porta.scritto = [this](const QByteArray &) { porta.arriva(b({31, 21})); };
}

void BancoSuPortaFinta::collega()
{
    BancoVisione::collega();
    comandi();
}

void BancoSuPortaFinta::apriCamera()
{
    collega();
    premi(3);
    ASSERT_TRUE(camera.Visible());
    ASSERT_EQ(camera.Tag(), u"10"_s);
    manda(QByteArray());
    comandi();
}

void BancoSuPortaFinta::manda(const QByteArray &byte)
{
    porta.arriva(byte);
    ASSERT_TRUE(aspetta([this] {
        return porta.inArrivo() == 0 && console.COM.conteggio() == 0 &&
               console.tmrElabInput.accumulatore.vuoto();
    }));
}

void BancoSuPortaFinta::manda(const QImage &immagine)
{
    manda(telegrammiVideo(immagine));
}

void BancoSuPortaFinta::mandaRighe(const QImage &immagine, int prima, int ultima)
{
    manda(telegrammiVideo(immagine).sliced(161 * prima, 161 * (ultima - prima + 1)));
}

QByteArray BancoSuPortaFinta::comandi()
{
    QByteArray comandi;
    for (const QByteArray &scrittura : std::exchange(porta.scritture, {})) {
        if (scrittura != b({27, 70}))
            comandi += scrittura;
    }
    return comandi;
}
