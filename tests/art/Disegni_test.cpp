#include "art/Disegni.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;

namespace {

struct Disegno
{
    const char *nome;
    int larghezza;
    int altezza;
};

void PrintTo(const Disegno &disegno, std::ostream *dove)
{
    *dove << disegno.nome;
}

// The natural size of each drawing, in logical pixels.
const Disegno disegni[] = {
    {"freccia_su", 48, 48},
    {"freccia_sinistra", 48, 48},
    {"freccia_destra", 48, 48},
    {"freccia_giu", 48, 48},
    {"freccia_su_premuta", 48, 48},
    {"freccia_sinistra_premuta", 48, 48},
    {"freccia_destra_premuta", 48, 48},
    {"freccia_giu_premuta", 48, 48},
    {"passi_verticali", 24, 24},
    {"velocita", 24, 24},
    {"passi_orizzontali", 24, 24},
    {"giro", 24, 24},
    {"barra_connetti", 32, 32},
    {"barra_opzioni", 32, 32},
    {"barra_video", 32, 32},
    {"barra_sequor", 32, 32},
    {"barra_vigilio", 32, 32},
    {"barra_disconnetti", 32, 32},
    {"barra_file", 32, 32},
    {"barra_immagini", 32, 32},
    {"testa", 160, 152},
    {"freccia_testa_0", 32, 32},
    {"freccia_testa_1", 32, 32},
    {"freccia_testa_2", 32, 32},
    {"freccia_testa_3", 32, 32},
    {"led_posizione", 40, 40},
    {"tool_sinistro", 40, 40},
    {"tool_destro", 40, 40},
    {"pinza_aperta", 40, 40},
    {"pinza_chiusa", 40, 40},
    {"mex_play", 24, 24},
    {"mex_registra", 24, 24},
    {"mex_stop", 24, 24},
    {"mex_cancella", 24, 24},
    {"prog_play", 28, 28},
    {"prog_stop", 28, 28},
    {"foto", 28, 28},
    {"sensori", 120, 72},
    {"batteria_logica", 56, 24},
    {"batteria_motori", 56, 24},
    {"termometro", 24, 24},
    {"base", 20, 20},
    {"braccia", 20, 20},
    {"capo", 20, 20},
    {"frase", 20, 20},
    {"suono", 20, 20},
    {"logo", 128, 128},
    {"attesa_iniziale_1", 48, 48},
    {"attesa_iniziale_2", 48, 48},
    {"attesa_iniziale_3", 48, 48},
    {"attesa_iniziale_4", 48, 48},
    {"attesa_iniziale_5", 48, 48},
    {"attesa_iniziale_6", 48, 48},
    {"ed_cancella", 24, 24},
    {"ed_pausa", 24, 24},
    {"ed_su", 24, 24},
    {"ed_giu", 24, 24},
    {"ed_frase", 24, 24},
    {"ed_suono", 24, 24},
    {"ed_cancella_sopra", 24, 24},
    {"ed_pausa_sopra", 24, 24},
    {"ed_su_sopra", 24, 24},
    {"ed_giu_sopra", 24, 24},
    {"ed_frase_sopra", 24, 24},
    {"ed_suono_sopra", 24, 24},
    {"vigilio_spento", 32, 32},
    {"vigilio_attesa", 32, 32},
    {"vigilio_avviato", 32, 32},
    {"attesa_file_1", 32, 32},
    {"attesa_file_2", 32, 32},
    {"attesa_file_3", 32, 32},
    {"attesa_file_4", 32, 32},
    {"attesa_file_5", 32, 32},
    {"attesa_file_6", 32, 32},
    {"attesa_file_7", 32, 32},
    {"attesa_file_8", 32, 32},
    {"casa", 24, 24},
    {"cartella", 16, 16},
    {"documento", 16, 16},
    {"messaggio_informazione", 48, 48},
    {"messaggio_domanda", 48, 48},
    {"messaggio_stop", 48, 48},
    {"messaggio_attenzione", 48, 48},
    {"dialogo_indietro", 16, 16},
    {"dialogo_avanti", 16, 16},
    {"dialogo_su", 16, 16},
    {"dialogo_cartella_nuova", 16, 16},
    {"dialogo_elenco", 16, 16},
    {"dialogo_dettagli", 16, 16},
    {"computer", 16, 16},
    {"casella_vuota", 20, 20},
    {"casella_spuntata", 20, 20},
};

QString nomeDi(const Disegno &disegno)
{
    return QString::fromLatin1(disegno.nome);
}

// The picture of an icon in this scale.
QImage immagine(const QIcon &icona, QSize naturale, int scala)
{
    return icona.pixmap(naturale, scala).toImage();
}

// The covered part of a picture, from 0 to 1, and its colours.
struct Contenuto
{
    double coperto = 0;
    std::set<QRgb> colori;
};

Contenuto contenuto(const QImage &immagine)
{
    Contenuto trovato;
    int visibili = 0;
    for (int y = 0; y < immagine.height(); ++y)
        for (int x = 0; x < immagine.width(); ++x)
            if (qAlpha(immagine.pixel(x, y)) > 200) {
                ++visibili;
                trovato.colori.insert(immagine.pixel(x, y));
            }
    trovato.coperto = double(visibili) / (immagine.width() * immagine.height());
    return trovato;
}

void stessa(const QIcon &trovata, const QString &nome, QSize naturale)
{
    const QIcon attesa = Disegni::icona(nome);
    ASSERT_FALSE(attesa.isNull()) << nome.toStdString();
    EXPECT_EQ(immagine(trovata, naturale, 1), immagine(attesa, naturale, 1)) << nome.toStdString();
}

class OgniDisegno : public testing::TestWithParam<Disegno>
{
};

} // namespace

TEST_P(OgniDisegno, HasItsSizeAndIsNotBlankAtAllThreeScales)
{
    const QSize naturale(GetParam().larghezza, GetParam().altezza);
    const QIcon icona = Disegni::icona(nomeDi(GetParam()));
    ASSERT_FALSE(icona.isNull());
    EXPECT_EQ(icona.availableSizes().size(), 3);
    for (int scala = 1; scala <= 3; ++scala) {
        EXPECT_TRUE(icona.availableSizes().contains(naturale * scala)) << "scale " << scala;
        const QImage resa = immagine(icona, naturale, scala);
        EXPECT_EQ(resa.size(), naturale * scala);
        const Contenuto visto = contenuto(resa);
        EXPECT_GT(visto.coperto, 0.1) << "scale " << scala;
        EXPECT_GT(visto.colori.size(), 4U) << "scale " << scala;
    }
}

INSTANTIATE_TEST_SUITE_P(Disegni, OgniDisegno, testing::ValuesIn(disegni),
                         [](const auto &caso) { return std::string(caso.param.nome); });

TEST(Disegni, EveryPictureOfTheResourceIsInTheTable)
{
    Disegni::icona(u"logo"); // the first use loads the resource
    std::set<QString> noti;
    for (const Disegno &disegno : disegni)
        noti.insert(nomeDi(disegno));
    for (const QString &file : QDir(u":/art"_s).entryList({u"*@3x.png"_s}))
        EXPECT_EQ(noti.count(file.chopped(7)), 1U) << file.toStdString();
}

// CMakeLists.txt runs it a second time, with a screen of 150 %.
TEST(Scala, EveryPictureHasThePixelsOfTheScreen)
{
    const double scala = qGuiApp->devicePixelRatio();
    for (const Disegno &disegno : disegni) {
        const QSize naturale(disegno.larghezza, disegno.altezza);
        const QImage resa = Disegni::icona(nomeDi(disegno)).pixmap(naturale, scala).toImage();
        EXPECT_EQ(resa.size(), (QSizeF(naturale) * scala).toSize()) << disegno.nome;
        EXPECT_DOUBLE_EQ(resa.devicePixelRatio(), scala) << disegno.nome;
    }
}

TEST(Disegni, AnUnknownNameGivesANullIcon)
{
    EXPECT_TRUE(Disegni::icona(u"nessuna").isNull());
}

TEST(Disegni, TheProgramsHaveTheirIconsInAllSizes)
{
    for (const QStringView nome : {u"lumbra", u"tessaro-sim"}) {
        const QIcon icona = Disegni::icona(nome);
        for (const int lato : {16, 32, 48, 128, 256}) {
            const QImage resa = immagine(icona, {lato, lato}, 1);
            EXPECT_EQ(resa.size(), QSize(lato, lato));
            EXPECT_GT(contenuto(resa).coperto, 0.5) << lato;
        }
    }
}

TEST(ListaImg, ContainsTheNormalArrowsThenThePressedOnesThenTheOptionIcons)
{
    const auto icone = Disegni::listaImg();
    const QString frecce[] = {u"su"_s, u"sinistra"_s, u"destra"_s, u"giu"_s};
    ASSERT_EQ(icone.size(), 12U);
    for (size_t i = 0; i < 4; ++i) {
        stessa(icone[i], u"freccia_"_s + frecce[i], {48, 48});
        stessa(icone[i + 4], u"freccia_"_s + frecce[i] + u"_premuta"_s, {48, 48});
    }
    stessa(icone[8], u"passi_verticali"_s, {24, 24});
    stessa(icone[9], u"velocita"_s, {24, 24});
    stessa(icone[10], u"passi_orizzontali"_s, {24, 24});
    stessa(icone[11], u"giro"_s, {24, 24});
}

TEST(ImgPulsantiConsole, ConnectsWithPicture1AndDisconnectsWithPicture6)
{
    const auto icone = Disegni::imgPulsantiConsole();
    const QString nomi[] = {u"connetti"_s, u"opzioni"_s,     u"video"_s, u"sequor"_s,
                            u"vigilio"_s,  u"disconnetti"_s, u"file"_s,  u"immagini"_s};
    ASSERT_EQ(icone.size(), 8U);
    for (size_t i = 0; i < 8; ++i)
        stessa(icone[i], u"barra_"_s + nomi[i], {32, 32});
}

TEST(ImgPulsantiEditor, ContainsThePictureForThePointerSixPlacesAfterTheNormalOne)
{
    const auto icone = Disegni::imgPulsantiEditor();
    const QString nomi[] = {u"cancella"_s, u"pausa"_s, u"su"_s, u"giu"_s, u"frase"_s, u"suono"_s};
    ASSERT_EQ(icone.size(), 12U);
    for (size_t i = 0; i < 6; ++i) {
        stessa(icone[i], u"ed_"_s + nomi[i], {24, 24});
        stessa(icone[i + 6], u"ed_"_s + nomi[i] + u"_sopra"_s, {24, 24});
    }
}

TEST(LstImgVigilio, GoesFromOffToWaitingToRunning)
{
    const auto icone = Disegni::lstImgVigilio();
    ASSERT_EQ(icone.size(), 3U);
    stessa(icone[0], u"vigilio_spento"_s, {32, 32});
    stessa(icone[1], u"vigilio_attesa"_s, {32, 32});
    stessa(icone[2], u"vigilio_avviato"_s, {32, 32});
}

TEST(Attese, HaveSixAndEightFramesInOrder)
{
    const auto iniziale = Disegni::attesaIniziale();
    const auto file = Disegni::lstImgAttesa();
    ASSERT_EQ(iniziale.size(), 6U);
    ASSERT_EQ(file.size(), 8U);
    for (size_t i = 0; i < 6; ++i)
        stessa(iniziale[i], u"attesa_iniziale_%1"_s.arg(i + 1), {48, 48});
    for (size_t i = 0; i < 8; ++i)
        stessa(file[i], u"attesa_file_%1"_s.arg(i + 1), {32, 32});
}

TEST(ImgCaselle, ContainsTheEmptyBoxThenTheTickedOne)
{
    const auto icone = Disegni::imgCaselle();
    ASSERT_EQ(icone.size(), 2U);
    stessa(icone[0], u"casella_vuota"_s, {20, 20});
    stessa(icone[1], u"casella_spuntata"_s, {20, 20});
}

TEST(Disegni, NoTwoPicturesAreTheSame)
{
    std::set<QByteArray> viste;
    for (const Disegno &disegno : disegni) {
        const QString nome = nomeDi(disegno);
        const QImage resa = immagine(Disegni::icona(nome), {disegno.larghezza, disegno.altezza}, 1);
        const QByteArray punti(reinterpret_cast<const char *>(resa.constBits()),
                               resa.sizeInBytes());
        EXPECT_TRUE(viste.insert(punti).second) << disegno.nome;
    }
}

TEST(Testa, IsTransparentUnderTheTwoLabelsAtTheTop)
{
    const QImage testa = immagine(Disegni::icona(u"testa"), {160, 152}, 1);
    for (int y = 0; y < 33; ++y)
        for (int x = 0; x < testa.width(); ++x)
            ASSERT_EQ(qAlpha(testa.pixel(x, y)), 0) << x << ',' << y;
}

TEST(Batterie, HaveAPlainGroundUnderTheLevelBar)
{
    // The corners of the 41 by 14 pixels at (4, 5); the emblem is in the middle.
    for (const QStringView nome : {u"batteria_logica", u"batteria_motori"}) {
        const QImage batteria = immagine(Disegni::icona(nome), {56, 24}, 1);
        const QRgb fondo = batteria.pixel(6, 12);
        for (const QPoint angolo : {QPoint(4, 5), QPoint(44, 5), QPoint(4, 18), QPoint(44, 18)})
            EXPECT_EQ(batteria.pixel(angolo), fondo) << angolo.x() << ',' << angolo.y();
    }
}
