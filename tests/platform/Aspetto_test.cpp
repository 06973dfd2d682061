// One look on every desktop.
#include "Aspetto.h"
#include "Contrasto.h"

#include <QApplication>
#include <QLineEdit>
#include <QPalette>
#include <QStyle>
#include <QToolTip>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

// As a dark desktop hands it to every program, for all controls and for single kinds.
void desktopScuro()
{
    const QPalette scura(QColor(0x2A, 0x2E, 0x32));
    QApplication::setPalette(scura);
    QApplication::setPalette(scura, "QLineEdit");
    QToolTip::setPalette(scura);
}

const QPalette::ColorGroup gruppi[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

} // namespace

TEST(Aspetto, a_dark_desktops_colours_do_not_come_in)
{
    const QPalette nostra = QApplication::palette();
    desktopScuro();
    ASSERT_NE(QApplication::palette(), nostra);
    impostaAspetto();
    EXPECT_EQ(QApplication::palette(), nostra);
    EXPECT_EQ(QToolTip::palette(), nostra);
    EXPECT_EQ(QLineEdit().palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(QApplication::style()->name(), u"fusion"_s);
}

TEST(Aspetto, no_colour_is_left_to_the_desktop)
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

TEST(Aspetto, every_text_stands_out_from_its_ground)
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
