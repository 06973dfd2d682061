// The video window and the file browser share a line: the file browser learns that the video window
// has discarded bytes.
#include "filebrowser/frmEsploraFile.h"
#include "tests/support/Attesa.h"
#include "tests/support/Scritte.h"
#include "tests/vision/BancoVisione.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString erroreLettura = u"Errore nella lettura dei file!"_s;

struct CameraEFile : ::testing::Test
{
    CameraEFile()
    {
        p.console.motore.ascoltaFile(&esplora.prelievo);
        p.apriCamera();
        esplora.Mostra();
        p.manda(b({42, 1, 0, 47, 1, 2, 4, 'd', 'i', 's', 'k', 0, 47, 1, 1, 1, 'a', 0, 42, 1, 255}));
        EXPECT_EQ(esplora.Tag(), QString());
        p.comandi();
    }
    ~CameraEFile() override { p.console.motore.ascoltaFile(nullptr); }

    // The user fetches the file, and the robot sends the beginning of its block.
    void preleva()
    {
        esplora.lstFile.setListIndex(0);
        QTest::keyClick(&esplora.lstFile, Qt::Key_Return);
        ASSERT_EQ(esplora.Tag(), u"File"_s);
        p.manda(b({42, 4, 0}));
        p.porta.arriva(b({45, 4, 200, 0}) + QByteArray(50, 'x'));
        ASSERT_TRUE(aspetta([&] { return p.console.tmrElabInput.accumulatore.lunghezza() >= 54; }));
        ASSERT_FALSE(esplora.isEnabled());
        p.comandi();
    }
    void finita()
    {
        EXPECT_EQ(esplora.Tag(), QString());
        EXPECT_TRUE(esplora.isEnabled());
        EXPECT_FALSE(esplora.imgAttesa.Visible());
        EXPECT_TRUE(p.comandi().contains(b({41, 4})));
        EXPECT_FALSE(p.cartella.contiene(u"a"_s));
    }

    BancoSuPortaFinta p;
    frmEsploraFile esplora{p.console.COM, p.console.BarraStato, p.cartella.percorso()};
};

} // namespace

TEST_F(CameraEFile, ClosingTheCameraDuringAFetchEndsItWithItsError)
{
    preleva();
    p.camera.close();
    ASSERT_FALSE(p.camera.Visible());
    EXPECT_EQ(p.pannello3(), erroreLettura);
    finita();
    // The window can be used: the next fetch succeeds.
    esplora.lstFile.setListIndex(0);
    QTest::keyClick(&esplora.lstFile, Qt::Key_Return);
    ASSERT_EQ(esplora.Tag(), u"File"_s);
    p.manda(b({42, 4, 0, 45, 4, 1, 0, 'z', 0, 31, 20}));
    EXPECT_EQ(p.cartella.leggi(u"a"_s), "z");
    EXPECT_TRUE(esplora.isEnabled());
}

TEST_F(CameraEFile, ARestartOfTheVideoDuringAFetchEndsIt)
{
    preleva();
    p.camera.Schermo.DblClick();
    finita();
}

TEST_F(CameraEFile, ClosingTheCameraDuringAListingEndsItWithTheSameError)
{
    QTest::mouseClick(&esplora.pulHome, Qt::LeftButton);
    p.manda(b({42, 3, 0}));
    p.comandi();
    p.camera.close();
    EXPECT_EQ(p.pannello3(), erroreLettura);
    EXPECT_EQ(esplora.Tag(), QString());
    EXPECT_FALSE(esplora.imgAttesa.Visible());
    EXPECT_TRUE(p.comandi().contains(b({41, 3})));
}

TEST_F(CameraEFile, ClosingTheCameraWithoutAFetchIsNoError)
{
    p.camera.close();
    EXPECT_EQ(p.pannello3(), u"Video interrotto"_s);
    EXPECT_TRUE(esplora.isEnabled());
    EXPECT_FALSE(p.comandi().contains(b({41})));
}
