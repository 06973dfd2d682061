#include "controls/look/Aspetto.h"

#include "controls/look/Stile.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

namespace {

struct Colore
{
    QPalette::ColorRole ruolo;
    QRgb attivo;
    QRgb spento; // for disabled controls
};

// All roles of QPalette: a role that is not set would come from the desktop.
constexpr Colore colori[] = {
    {QPalette::Window, 0xEFEFEF, 0xEFEFEF},
    {QPalette::WindowText, 0x000000, 0x666666},
    {QPalette::Base, 0xFFFFFF, 0xEFEFEF},
    {QPalette::AlternateBase, 0xF5F7F9, 0xEFEFEF},
    {QPalette::Text, 0x000000, 0x666666},
    {QPalette::PlaceholderText, 0x666666, 0x666666},
    {QPalette::Button, 0xEFEFEF, 0xEFEFEF},
    {QPalette::ButtonText, 0x000000, 0x666666},
    {QPalette::BrightText, 0xFFFFFF, 0xFFFFFF},
    {QPalette::ToolTipBase, 0xFFFFDC, 0xFFFFDC},
    {QPalette::ToolTipText, 0x000000, 0x000000},
    {QPalette::Highlight, 0x1C6CA6, 0x5F6B75},
    {QPalette::HighlightedText, 0xFFFFFF, 0xFFFFFF},
    {QPalette::Link, 0x0A5C9E, 0x0A5C9E},
    {QPalette::LinkVisited, 0x6B2C91, 0x6B2C91},
    {QPalette::Light, 0xFFFFFF, 0xFFFFFF},
    {QPalette::Midlight, 0xCACACA, 0xCACACA},
    {QPalette::Mid, 0xB8B8B8, 0xB8B8B8},
    {QPalette::Dark, 0x9F9F9F, 0xBEBEBE},
    {QPalette::Shadow, 0x767676, 0xB1B1B1},
};

} // namespace

void impostaAspetto()
{
    QApplication::setStyle(new Stile);
    QPalette tavolozza;
    for (const Colore &colore : colori) {
        tavolozza.setColor(QPalette::Active, colore.ruolo, QColor(colore.attivo));
        tavolozza.setColor(QPalette::Inactive, colore.ruolo, QColor(colore.attivo));
        tavolozza.setColor(QPalette::Disabled, colore.ruolo, QColor(colore.spento));
    }
    QApplication::setPalette(tavolozza);
    QToolTip::setPalette(tavolozza);
}
