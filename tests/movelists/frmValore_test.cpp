// The value dialog in its four modes, with the keyboard and the mouse.
#include "movelists/frmValore.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QTest>
#include <gmock/gmock.h>
#include <memory>

namespace {

class FrmValoreTest : public testing::Test
{
protected:
    // Shows the dialog in a mode, does what a user does, and returns when it has been hidden.
    void conDialogo(const QString &modo, const std::function<void()> &agisci)
    {
        m_dialogo->setTag(modo);
        bool fatto = false;
        const ConModale utente(u"frmValore"_s, [&] {
            if (std::exchange(fatto, true))
                return;
            // Without a window manager only a window's first showing makes it the active one.
            if (!std::exchange(m_mostrato, true)) {
                EXPECT_TRUE(aspetta([this] { return m_dialogo->isActiveWindow(); }));
            }
            agisci();
            if (m_dialogo->Visible())
                m_dialogo->close();
        });
        m_dialogo->MostraModale();
        EXPECT_TRUE(fatto);
    }

    // Types into the box in place of what it holds.
    void scrivi(const QString &testo)
    {
        m_dialogo->txtValore.setFocus();
        m_dialogo->txtValore.selectAll();
        if (testo.isEmpty())
            QTest::keyClick(&m_dialogo->txtValore, Qt::Key_Backspace);
        QTest::keyClicks(&m_dialogo->txtValore, testo);
    }
    void invio() { QTest::keyClick(m_dialogo->focusWidget(), Qt::Key_Return); }
    void clicca(QWidget &controllo)
    {
        const QPoint punto = controllo.mapTo(m_dialogo.get(), controllo.rect().center());
        QTest::mouseClick(m_dialogo->windowHandle(), Qt::LeftButton, {}, punto);
    }
    QString testo() const { return m_dialogo->txtValore.Text(); }

    std::unique_ptr<frmValore> m_dialogo = std::make_unique<frmValore>();
    bool m_mostrato = false;
};

} // namespace

TEST_F(FrmValoreTest, EachModeHasItsTitleItsHeadingAndItsRows)
{
    struct Modo
    {
        QString nome, titolo, etichetta, limite;
        int righe;
    };
    const std::initializer_list<Modo> modi = {
        {u"Pausa"_s, u"Inserisci la durata della pausa"_s, u"Unità di misura:"_s, u"60000"_s, 2},
        {u"Frase"_s, u"Inserisci il numero della frase desiderata"_s, u"Frase selezionata:"_s,
         u"140"_s, 140},
        {u"Suono"_s, u"Inserisci il numero del suono desiderato"_s, u"Suono selezionato:"_s,
         u"16"_s, 16},
        {u"Ripeti"_s, u"Indica quante volte si devono ripetere i comandi"_s, u"Ripeti:"_s, u"200"_s,
         201},
    };
    for (const Modo &modo : modi) {
        conDialogo(modo.nome, [&] {
            EXPECT_EQ(m_dialogo->Caption(), modo.titolo);
            EXPECT_EQ(m_dialogo->lblInfo.Caption(), modo.etichetta);
            EXPECT_EQ(m_dialogo->txtValore.Tag(), modo.limite);
            EXPECT_EQ(m_dialogo->cbInfo.ListCount(), modo.righe);
            EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 0);
        });
    }
}

TEST_F(FrmValoreTest, AnUnknownModeSetsNothing)
{
    conDialogo(u"pausa"_s, [&] {
        EXPECT_EQ(m_dialogo->lblInfo.Caption(), u"Informazioni:"_s);
        EXPECT_EQ(m_dialogo->cbInfo.ListCount(), 0);
    });
}

TEST_F(FrmValoreTest, TheFirstRowPresetsTheNumber)
{
    conDialogo(u"Frase"_s, [&] { EXPECT_EQ(testo(), u"1"_s); });
    conDialogo(u"Ripeti"_s, [&] { EXPECT_EQ(testo(), u"0"_s); });
    conDialogo(u"Suono"_s, [&] { EXPECT_EQ(testo(), u"1"_s); });
}

TEST_F(FrmValoreTest, APauseStartsWithZeroAndThenWithTheLastNumber)
{
    conDialogo(u"Pausa"_s, [&] {
        EXPECT_EQ(testo(), u"0"_s);
        scrivi(u"250"_s);
        invio();
    });
    conDialogo(u"Frase"_s, [&] {
        scrivi(u"33"_s);
        invio();
    });
    conDialogo(u"Pausa"_s, [&] {
        EXPECT_EQ(testo(), u"33"_s);
        EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 0);
    });
}

TEST_F(FrmValoreTest, TypingANumberMovesTheList)
{
    conDialogo(u"Frase"_s, [&] {
        scrivi(u"7"_s);
        EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 6);
        EXPECT_EQ(testo(), u"7"_s);
        scrivi(u"140"_s);
        EXPECT_EQ(m_dialogo->cbInfo.Text(), u"Vuoi giocare con me?"_s);
    });
    conDialogo(u"Ripeti"_s, [&] {
        scrivi(u"7"_s);
        EXPECT_EQ(m_dialogo->cbInfo.Text(), u"7 volte"_s);
    });
    conDialogo(u"Pausa"_s, [&] {
        scrivi(u"1"_s);
        EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 0);
    });
}

TEST_F(FrmValoreTest, ChoosingARowSetsTheNumber)
{
    conDialogo(u"Frase"_s, [&] {
        scrivi(u"7"_s);
        m_dialogo->cbInfo.setListIndex(0);
        EXPECT_EQ(testo(), u"1"_s);
        m_dialogo->cbInfo.setFocus();
        QTest::keyClick(&m_dialogo->cbInfo, Qt::Key_Down);
        EXPECT_EQ(testo(), u"2"_s);
    });
    conDialogo(u"Ripeti"_s, [&] {
        m_dialogo->cbInfo.setListIndex(5);
        EXPECT_EQ(testo(), u"5"_s);
    });
    conDialogo(u"Pausa"_s, [&] {
        scrivi(u"9"_s);
        m_dialogo->cbInfo.setListIndex(1);
        EXPECT_EQ(testo(), u"9"_s);
    });
}

TEST_F(FrmValoreTest, ANumberOutsideTheListLeavesItsRow)
{
    conDialogo(u"Suono"_s, [&] {
        scrivi(u"17"_s);
        // "1" came first, and row 16 is refused.
        EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 0);
        EXPECT_EQ(testo(), u"17"_s);
        scrivi(u"99999999999"_s);
        EXPECT_EQ(testo(), u"99999999999"_s);
    });
}

TEST_F(FrmValoreTest, AnEmptiedNumberSelectsNothingAndStaysEmpty)
{
    for (const QString &modo : {u"Frase"_s, u"Suono"_s}) {
        conDialogo(modo, [&] {
            scrivi(u"5"_s);
            scrivi(QString());
            EXPECT_EQ(testo(), QString());
            EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), -1);
        });
    }
}

TEST_F(FrmValoreTest, TypingInTheMiddleKeepsItsPlace)
{
    for (const QString &modo : {u"Frase"_s, u"Ripeti"_s, u"Pausa"_s}) {
        conDialogo(modo, [&] {
            scrivi(u"5"_s);
            QTest::keyClick(&m_dialogo->txtValore, Qt::Key_Home);
            QTest::keyClicks(&m_dialogo->txtValore, u"12"_s);
            EXPECT_EQ(testo(), u"125"_s) << modo.toStdString();
        });
    }
}

TEST_F(FrmValoreTest, ANumberThatTheListPutsRightKeepsTheCaretsPlace)
{
    conDialogo(u"Frase"_s, [&] {
        // The row of 15 is chosen at the second digit, and gives the number without its zero.
        scrivi(u"05"_s);
        QTest::keyClick(&m_dialogo->txtValore, Qt::Key_Left);
        QTest::keyClicks(&m_dialogo->txtValore, u"1"_s);
        EXPECT_EQ(testo(), u"15"_s);
        QTest::keyClicks(&m_dialogo->txtValore, u"2"_s);
        EXPECT_EQ(testo(), u"125"_s);
        QTest::keyClick(&m_dialogo->txtValore, Qt::Key_Backspace);
        EXPECT_EQ(testo(), u"15"_s);
        QTest::keyClicks(&m_dialogo->txtValore, u"3"_s);
        EXPECT_EQ(testo(), u"135"_s);
    });
}

TEST_F(FrmValoreTest, OnlyDigitsCanBeTyped)
{
    conDialogo(u"Pausa"_s, [&] {
        scrivi(u"1a.-, 2"_s);
        EXPECT_EQ(testo(), u"12"_s);
        QTest::keyClick(&m_dialogo->txtValore, Qt::Key_Backspace);
        EXPECT_EQ(testo(), u"1"_s);
    });
}

TEST_F(FrmValoreTest, EnterRefusesANumberAboveTheLimit)
{
    const std::initializer_list<std::pair<QString, QString>> troppo = {{u"Frase"_s, u"141"_s},
                                                                       {u"Suono"_s, u"17"_s},
                                                                       {u"Ripeti"_s, u"201"_s},
                                                                       {u"Pausa"_s, u"60001"_s}};
    for (const auto &[modo, numero] : troppo) {
        RispondiMessaggi utente;
        conDialogo(modo, [&] {
            scrivi(numero);
            invio();
            EXPECT_TRUE(m_dialogo->Visible());
            EXPECT_EQ(m_dialogo->focusWidget(), &m_dialogo->txtValore);
        });
        ASSERT_EQ(utente.visti().size(), 1);
        EXPECT_EQ(utente.visti()[0].testo, u"Il numero impostato è troppo alto!"_s);
        EXPECT_EQ(utente.visti()[0].icona, QMessageBox::NoIcon);
        EXPECT_EQ(utente.visti()[0].titolo, u"Lumbra"_s);
    }
}

TEST_F(FrmValoreTest, EnterRefusesZeroButForALoop)
{
    for (const QString &modo : {u"Frase"_s, u"Suono"_s, u"Pausa"_s}) {
        const RispondiMessaggi utente;
        conDialogo(modo, [&] {
            scrivi(u"0"_s);
            invio();
            EXPECT_TRUE(m_dialogo->Visible());
        });
        EXPECT_EQ(utente.testi(), QStringList{u"Lo zero non si può mettere"_s});
    }
    conDialogo(u"Ripeti"_s, [&] {
        scrivi(u"0"_s);
        invio();
        EXPECT_FALSE(m_dialogo->Visible());
    });
    EXPECT_EQ(m_dialogo->Tag(), u"Ripeti"_s);
}

TEST_F(FrmValoreTest, EnterRefusesAnEmptyNumber)
{
    const RispondiMessaggi utente;
    conDialogo(u"Pausa"_s, [&] {
        scrivi(QString());
        invio();
        EXPECT_TRUE(m_dialogo->Visible());
    });
    EXPECT_EQ(utente.testi(), QStringList{u"Non hai impostato il numero!"_s});
}

TEST_F(FrmValoreTest, AClickOnOkFindsTheNumberInOrder)
{
    const RispondiMessaggi utente;
    const auto conClick = [&](const QString &modo, const QString &scritto) {
        m_dialogo = std::make_unique<frmValore>();
        m_mostrato = false;
        conDialogo(modo, [&] {
            scrivi(scritto);
            clicca(m_dialogo->pulOK);
            EXPECT_FALSE(m_dialogo->Visible());
        });
        EXPECT_EQ(m_dialogo->Tag(), modo);
        return testo();
    };
    EXPECT_EQ(conClick(u"Frase"_s, u"141"_s), u"140"_s);
    EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 139);
    EXPECT_EQ(conClick(u"Suono"_s, u"0"_s), u"1"_s);
    EXPECT_EQ(conClick(u"Pausa"_s, u""_s), u"1"_s);
    EXPECT_EQ(conClick(u"Pausa"_s, u"99999"_s), u"60000"_s);
    EXPECT_EQ(conClick(u"Ripeti"_s, u"0"_s), u"0"_s);
    EXPECT_EQ(conClick(u"Ripeti"_s, u"999"_s), u"200"_s);
    EXPECT_EQ(m_dialogo->cbInfo.Text(), u"200 volte"_s);
    EXPECT_TRUE(utente.visti().isEmpty());
}

TEST_F(FrmValoreTest, LeavingTheBoxBringsTheNumberIntoItsLimits)
{
    conDialogo(u"Frase"_s, [&] {
        scrivi(u"500"_s);
        m_dialogo->cbInfo.setFocus();
        EXPECT_EQ(testo(), u"140"_s);
        EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 139);
        scrivi(QString());
        m_dialogo->cbInfo.setFocus();
        EXPECT_EQ(testo(), u"1"_s);
        EXPECT_EQ(m_dialogo->cbInfo.ListIndex(), 0);
    });
}

TEST_F(FrmValoreTest, TheCloseBoxIsTheWayOutWithoutAValue)
{
    conDialogo(u"Frase"_s, [&] { m_dialogo->close(); });
    EXPECT_EQ(m_dialogo->Tag(), u"Annulla"_s);
    EXPECT_TRUE(m_dialogo->Caricata());
}

TEST_F(FrmValoreTest, TheNumberIsReadyToBeTypedOver)
{
    conDialogo(u"Frase"_s, [&] {
        ASSERT_TRUE(m_dialogo->txtValore.hasFocus());
        QTest::keyClicks(m_dialogo->focusWidget(), u"25"_s);
        EXPECT_EQ(testo(), u"25"_s);
    });
}
