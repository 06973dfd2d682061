// The layout of the window, and its state after it was unloaded.
#include "tests/filebrowser/BancoEsploraFile.h"
#include "tests/support/Modali.h"

using namespace Qt::StringLiterals;

namespace {

struct FinestraEsplora : Banco
{
    void misura(int larghezza, int altezza)
    {
        esplora.setMinimumSize(0, 0);
        esplora.resize(larghezza, altezza);
        ASSERT_TRUE(aspetta([&] { return esplora.size() == QSize(larghezza, altezza); }));
        gira(3);
    }
    // Checks the layout rule, in layout units.
    void controlla()
    {
        const double larghezza = esplora.width() * 15.0;
        const double altezza = esplora.height() * 15.0;
        const auto &e = esplora;
        EXPECT_EQ(e.imgFoto.Left(), larghezza - e.imgFoto.Width() - 200);
        EXPECT_EQ(e.lblNomeFoto.Left(), e.imgFoto.Left());
        EXPECT_EQ(e.lstCartelle.Height(), altezza - 800);
        EXPECT_EQ(e.lstFile.Height(), altezza - 800);
        const double margine = e.imgFoto.Visible() ? e.imgFoto.Width() + 400 : 300;
        EXPECT_EQ(e.lstFile.Width(),
                  larghezza - (e.lstCartelle.Left() + e.lstCartelle.Width()) - margine);
        EXPECT_EQ(e.pulHome.Left(), e.lstFile.Left() + e.lstFile.Width() - e.pulHome.Width());
        EXPECT_EQ(e.imgAttesa.Left(), e.pulHome.Left() - e.pulHome.Width());
    }
};

} // namespace

TEST_F(FinestraEsplora, HasItsCaptionAndAllItsControlsUnderTheirNames)
{
    EXPECT_EQ(esplora.Caption(), u"Esplora Risorse"_s);
    EXPECT_EQ(esplora.objectName(), u"frmEsploraFile"_s);
    for (const QString &nome : {u"lstCartelle"_s, u"lstFile"_s, u"pulHome"_s, u"imgFoto"_s,
                                u"lblNomeFoto"_s, u"imgAttesa"_s})
        EXPECT_NE(esplora.findChild<QWidget *>(nome), nullptr) << nome.toStdString();
    EXPECT_EQ(esplora.Label1.Caption(), u"Cartelle"_s);
    EXPECT_EQ(esplora.Label2.Caption(), u"File"_s);
    EXPECT_EQ(esplora.lstImgAttesa.ListCount(), 8);
}

TEST_F(FinestraEsplora, StartsWithThePhotoItsNameAndTheAnimationHidden)
{
    EXPECT_FALSE(esplora.imgFoto.Visible());
    EXPECT_FALSE(esplora.lblNomeFoto.Visible());
    EXPECT_FALSE(esplora.imgAttesa.Visible());
    EXPECT_EQ(esplora.Tag(), QString());
    EXPECT_EQ(esplora.lstCartelle.Tag(), QString());
}

TEST_F(FinestraEsplora, FollowsTheLayoutRuleAtItsFirstShowing)
{
    apri({"foto"}, {});
    controlla();
}

TEST_F(FinestraEsplora, FollowsTheLayoutRuleAtEverySize)
{
    apri({"foto"}, {});
    for (const QSize &dimensioni :
         {QSize(640, 320), QSize(901, 555), QSize(1600, 1000), QSize(333, 222)}) {
        misura(dimensioni.width(), dimensioni.height());
        controlla();
    }
}

TEST_F(FinestraEsplora, FollowsTheLayoutRuleWithThePhotoAtEverySize)
{
    apri({"foto"}, {"a.jpg"});
    doppioClick(esplora.lstFile, 0);
    ASSERT_TRUE(esplora.imgFoto.Visible());
    controlla();
    for (const QSize &dimensioni : {QSize(640, 320), QSize(901, 555), QSize(1600, 1000)}) {
        misura(dimensioni.width(), dimensioni.height());
        controlla();
    }
}

TEST_F(FinestraEsplora, TheListIsWiderAgainWhenThePhotoIsHidden)
{
    apri({"foto"}, {"a.jpg", "b.txt"});
    const double senza = esplora.lstFile.Width();
    chiedi(u"a.jpg"_s, 1);
    EXPECT_EQ(esplora.lstFile.Width(), senza + 300 - 400 - esplora.imgFoto.Width());
    robotFinito(blocco(1, jpeg({8, 8})) + b({31, 20}));
    doppioClick(esplora.lstFile, 1);
    EXPECT_EQ(esplora.lstFile.Width(), senza);
}

TEST_F(FinestraEsplora, InATooSmallWindowInvalidSizesAreNotSet)
{
    apri({"foto"}, {});
    const double altezza = esplora.lstFile.Height();
    const double larghezza = esplora.lstFile.Width();
    misura(100, 40);
    EXPECT_EQ(esplora.lstCartelle.Height(), altezza);
    EXPECT_EQ(esplora.lstFile.Height(), altezza);
    EXPECT_EQ(esplora.lstFile.Width(), larghezza);
    EXPECT_EQ(esplora.imgFoto.Left(), 100 * 15 - esplora.imgFoto.Width() - 200);
}

TEST_F(FinestraEsplora, AtTheSmallestSizeThePhotoLeavesRoomForNames)
{
    apri({"foto"}, {"a.jpg"});
    doppioClick(esplora.lstFile, 0);
    esplora.resize(esplora.minimumSize());
    ASSERT_TRUE(aspetta([&] { return esplora.size() == esplora.minimumSize(); }));
    gira(3);
    controlla();
    EXPECT_GE(esplora.lstFile.width(), 80);
    EXPECT_LE(esplora.lstFile.geometry().right(), esplora.imgFoto.geometry().left());
    EXPECT_TRUE(esplora.rect().contains(esplora.imgFoto.geometry()));
}

TEST_F(FinestraEsplora, NoControlOverlapsAnother)
{
    apri({"foto"}, {"a.jpg"});
    doppioClick(esplora.lstFile, 0);
    const QList<const QWidget *> controlli{
        &esplora.Label1,    &esplora.Label2,  &esplora.lstCartelle, &esplora.lstFile,
        &esplora.imgAttesa, &esplora.pulHome, &esplora.imgFoto,     &esplora.lblNomeFoto};
    for (const QWidget *uno : controlli) {
        EXPECT_TRUE(esplora.rect().contains(uno->geometry())) << uno->objectName().toStdString();
        for (const QWidget *altro : controlli) {
            EXPECT_TRUE(uno == altro || !uno->geometry().intersects(altro->geometry()))
                << uno->objectName().toStdString() << ' ' << altro->objectName().toStdString();
        }
    }
}

TEST_F(FinestraEsplora, UnloadingRestoresTheDesignValues)
{
    apri({"foto"}, {"a.jpg"});
    const QSize misuraPrima = esplora.size();
    chiedi(u"a.jpg"_s, 1);
    robotFinito(blocco(1, jpeg({8, 8})) + b({31, 20}));
    doppioClick(esplora.lstCartelle, 0);
    misura(900, 600);
    esplora.Scarica();
    EXPECT_EQ(esplora.Tag(), QString());
    EXPECT_EQ(esplora.lstCartelle.Tag(), QString());
    EXPECT_EQ(esplora.lstCartelle.ListCount(), 0);
    EXPECT_EQ(esplora.lstFile.ListCount(), 0);
    EXPECT_FALSE(esplora.imgFoto.Visible());
    EXPECT_FALSE(esplora.lblNomeFoto.Visible());
    EXPECT_FALSE(esplora.imgAttesa.Visible());
    EXPECT_EQ(esplora.size(), misuraPrima);
}

TEST_F(FinestraEsplora, WithThePortClosedOneMessageIsShown)
{
    console.COM.setPortOpen(false);
    RispondiMessaggi messaggi;
    esplora.Mostra();
    EXPECT_EQ(messaggi.testi(), QStringList{u"Non sono collegato al robot"_s});
}
