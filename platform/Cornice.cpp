#include "Cornice.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

Cornice::Cornice(const QString &nome, QWidget *dentro, const QString &testo)
    : Cliccabile(nome, dentro)
{
    setTitle(testo);
}

QColor Cornice::ForeColor() const
{
    return m_colore.isValid() ? m_colore : palette().color(QPalette::WindowText);
}

void Cornice::setForeColor(const QColor &colore)
{
    // Not by the palette, which would hand the colour on to what lies in the frame.
    m_colore = colore;
    update();
}

void Cornice::paintEvent(QPaintEvent *)
{
    QStylePainter pittore(this);
    QStyleOptionGroupBox opzione;
    initStyleOption(&opzione);
    if (m_colore.isValid()) {
        // Some styles go by the one, some by the other.
        opzione.textColor = m_colore;
        opzione.palette.setColor(QPalette::WindowText, m_colore);
        // The stated colours are for a light window: in a dark theme a light plate carries them.
        if (palette().color(QPalette::Window).lightness() < 128) {
            const QRect scritta = style()->subControlRect(QStyle::CC_GroupBox, &opzione,
                                                          QStyle::SC_GroupBoxLabel, this);
            pittore.setRenderHint(QPainter::Antialiasing);
            pittore.setPen(Qt::NoPen);
            pittore.setBrush(QColor(0xEE, 0xF4, 0xF8));
            pittore.drawRoundedRect(scritta.adjusted(-4, 0, 4, 0), 3, 3);
        }
    }
    pittore.drawComplexControl(QStyle::CC_GroupBox, opzione);
}
