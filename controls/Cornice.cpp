#include "controls/Cornice.h"

#include <QPainter>

namespace {

constexpr int altezzaTitolo = 40;
constexpr int raggio = 6;

} // namespace

Cornice::Cornice(const QString &nome, QWidget *dentro, const QString &testo, int rientro)
    : Cliccabile(nome, dentro), m_rientro(rientro)
{
    setTitle(testo);
    setContentsMargins({});
}

QColor Cornice::ForeColor() const
{
    return m_colore.isValid() ? m_colore : palette().color(QPalette::WindowText);
}

void Cornice::setForeColor(const QColor &colore)
{
    // Not set in the palette: the controls in the frame would inherit it.
    m_colore = colore;
    update();
}

QFont Cornice::carattere() const
{
    QFont grassetto = font();
    grassetto.setBold(true);
    return grassetto;
}

QRect Cornice::titolo() const
{
    const QSize misura = QFontMetrics(carattere()).size(Qt::TextSingleLine, title());
    const int altezza = qMax(altezzaTitolo, misura.height() + 8);
    return {m_rientro, (altezza - misura.height()) / 2, misura.width(), misura.height()};
}

void Cornice::paintEvent(QPaintEvent *)
{
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::Antialiasing);
    const QColor fondo = palette().color(QPalette::Base);
    pittore.setBrush(fondo);
    pittore.setPen(palette().color(QPalette::Mid));
    pittore.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), raggio, raggio);
    // The colours are chosen for a light ground: on a dark one the caption gets a light plate.
    if (m_colore.isValid() && fondo.lightness() < 128) {
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(QColor(0xEE, 0xF4, 0xF8));
        pittore.drawRoundedRect(titolo().adjusted(-4, -2, 4, 2), 3, 3);
    }
    pittore.setPen(ForeColor());
    pittore.setFont(carattere());
    pittore.drawText(titolo(), Qt::AlignLeft | Qt::TextSingleLine, title());
}

// QGroupBox sets margins for its own caption, which is not drawn: they are removed again.
void Cornice::resizeEvent(QResizeEvent *evento)
{
    Cliccabile::resizeEvent(evento);
    setContentsMargins({});
}

void Cornice::changeEvent(QEvent *evento)
{
    Cliccabile::changeEvent(evento);
    setContentsMargins({});
}
