// The program looks the same on every desktop.
#include "art/Disegni.h"
#include "controls/DisegniDeiFile.h"
#include "controls/look/Aspetto.h"
#include "controls/look/Stile.h"
#include "tests/support/Contrasto.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QPushButton>
#include <QSet>
#include <QStyle>
#include <QStyleOptionButton>
#include <QToolTip>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

// Sets palettes as a dark desktop does, for all controls and for single classes.
void desktopScuro()
{
    const QPalette scura(QColor(0x2A, 0x2E, 0x32));
    QApplication::setPalette(scura);
    QApplication::setPalette(scura, "QLineEdit");
    QToolTip::setPalette(scura);
}

const QPalette::ColorGroup gruppi[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

} // namespace

TEST(Aspetto, TheColoursOfADarkDesktopAreNotUsed)
{
    const QPalette nostra = QApplication::palette();
    desktopScuro();
    ASSERT_NE(QApplication::palette(), nostra);
    impostaAspetto();
    EXPECT_EQ(QApplication::palette(), nostra);
    EXPECT_EQ(QToolTip::palette(), nostra);
    EXPECT_EQ(QLineEdit().palette().color(QPalette::Base), QColor(Qt::white));
    const auto *stile = qobject_cast<const QProxyStyle *>(QApplication::style());
    ASSERT_TRUE(stile);
    EXPECT_EQ(stile->baseStyle()->name(), u"fusion"_s);
}

TEST(Aspetto, NoColourComesFromTheDesktop)
{
    const QPalette nostra = QApplication::palette();
    for (const QPalette::ColorGroup gruppo : gruppi) {
        for (int ruolo = 0; ruolo < QPalette::NColorRoles; ++ruolo) {
            if (ruolo != QPalette::NoRole) {
                EXPECT_TRUE(nostra.isBrushSet(gruppo, QPalette::ColorRole(ruolo)))
                    << gruppo << ' ' << ruolo;
            }
        }
    }
}

TEST(Aspetto, ThePicturesOfMessageBoxesAndFileDialogsAreOurOwnAndSharp)
{
    const QStyle &stile = *QApplication::style();
    const std::pair<QStyle::StandardPixmap, QString> casi[] = {
        {QStyle::SP_MessageBoxInformation, u"messaggio_informazione"_s},
        {QStyle::SP_MessageBoxQuestion, u"messaggio_domanda"_s},
        {QStyle::SP_MessageBoxCritical, u"messaggio_stop"_s},
        {QStyle::SP_MessageBoxWarning, u"messaggio_attenzione"_s},
        {QStyle::SP_ArrowBack, u"dialogo_indietro"_s},
        {QStyle::SP_ArrowForward, u"dialogo_avanti"_s},
        {QStyle::SP_FileDialogToParent, u"dialogo_su"_s},
        {QStyle::SP_FileDialogNewFolder, u"dialogo_cartella_nuova"_s},
        {QStyle::SP_FileDialogListView, u"dialogo_elenco"_s},
        {QStyle::SP_FileDialogDetailedView, u"dialogo_dettagli"_s},
        {QStyle::SP_DirIcon, u"cartella"_s},
        {QStyle::SP_FileIcon, u"documento"_s},
        {QStyle::SP_ComputerIcon, u"computer"_s},
    };
    for (const auto &[quale, nome] : casi) {
        const QIcon icona = stile.standardIcon(quale);
        const QSize naturale = Disegni::icona(nome).availableSizes().constFirst();
        for (const int scala : {1, 2, 3}) {
            const QImage resa = icona.pixmap(naturale, scala).toImage();
            EXPECT_EQ(resa, Disegni::icona(nome).pixmap(naturale, scala).toImage())
                << nome.toStdString();
            EXPECT_EQ(resa.size(), naturale * scala) << nome.toStdString();
        }
    }
    EXPECT_EQ(stile.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
}

TEST(Aspetto, ALongTextHasRoomAtTheSidesOfItsButton)
{
    const QPushButton pulsante(u"Un testo assai lungo per un pulsante"_s);
    EXPECT_GE(pulsante.sizeHint().width(),
              pulsante.fontMetrics().horizontalAdvance(pulsante.text()) + 24);
}

TEST(Aspetto, EveryTextHasEnoughContrastWithItsGround)
{
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> coppie[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::WindowText, QPalette::Base},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Link, QPalette::Window},
        {QPalette::LinkVisited, QPalette::Window},
    };
    const QPalette nostra = QApplication::palette();
    for (const QPalette::ColorGroup gruppo : gruppi) {
        for (const auto &[testo, fondo] : coppie)
            EXPECT_GE(contrasto(nostra.color(gruppo, testo), nostra.color(gruppo, fondo)), 4.5)
                << gruppo << ' ' << testo << ' ' << fondo;
    }
}

TEST(Aspetto, TheDrawingsOfMessageBoxesAndFileDialogsAreMadeOnce)
{
    const auto chiave = [](QStyle::StandardPixmap quale) {
        return QApplication::style()->standardIcon(quale).cacheKey();
    };
    for (const auto quale : {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
                             QStyle::SP_MessageBoxCritical, QStyle::SP_FileDialogToParent,
                             QStyle::SP_FileDialogNewFolder, QStyle::SP_DirIcon}) {
        EXPECT_EQ(chiave(quale), chiave(quale)) << quale;
    }
    EXPECT_NE(chiave(QStyle::SP_MessageBoxInformation), chiave(QStyle::SP_MessageBoxQuestion));
    const DisegniDeiFile uno;
    const DisegniDeiFile altro;
    for (const auto tipo :
         {QFileIconProvider::Computer, QFileIconProvider::Folder, QFileIconProvider::File}) {
        EXPECT_EQ(uno.icon(tipo).cacheKey(), altro.icon(tipo).cacheKey()) << tipo;
    }
}

// A base style that records the palette numbers with which button panels are drawn.
class Spia : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement quale, const QStyleOption *opzione, QPainter *pittore,
                       const QWidget *controllo) const override
    {
        if (quale == PE_PanelButtonCommand)
            numeri.insert(opzione->palette.cacheKey());
        QProxyStyle::drawPrimitive(quale, opzione, pittore, controllo);
    }
    mutable QSet<qint64> numeri;
};

TEST(Aspetto, ANewButtonIsDrawnFromTheSamePicture)
{
    Stile stile;
    auto *spia = new Spia(u"Fusion"_s);
    stile.setBaseStyle(spia);
    const auto disegna = [&](const QPalette &tavolozza) {
        QStyleOptionButton pulsante;
        pulsante.palette = tavolozza;
        pulsante.rect = {0, 0, 80, 22};
        QPixmap foglio(80, 22);
        QPainter pittore(&foglio);
        stile.drawPrimitive(QStyle::PE_PanelButtonCommand, &pulsante, &pittore, nullptr);
    };
    QPushButton uno;
    QPushButton altro;
    ASSERT_NE(uno.palette().cacheKey(), altro.palette().cacheKey());
    disegna(uno.palette());
    disegna(altro.palette());
    EXPECT_EQ(spia->numeri.size(), 1);
    // With other colours it is another picture.
    QPalette rossa = uno.palette();
    rossa.setColor(QPalette::Button, Qt::red);
    disegna(rossa);
    EXPECT_EQ(spia->numeri.size(), 2);
}
