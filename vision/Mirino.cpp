#include "vision/Mirino.h"

namespace {

// Logical pixels.
constexpr int lato = 11;

} // namespace

Mirino::Mirino(const QString &nome, QWidget *superficie) : FormaInPixel(nome, superficie)
{
    setColori(Qt::transparent, Qt::white);
    sizePixel(lato, lato);
}

void Mirino::sposta(QPoint di)
{
    const QWidget &superficie = *parentWidget();
    if (m_posto.isNull())
        m_posto = superficie.rect().center();
    m_posto += di;
    // The surface may have become smaller.
    m_posto = {qBound(1, m_posto.x(), superficie.width() - 1),
               qBound(1, m_posto.y(), superficie.height() - 1)};
    movePixel(m_posto.x() - width() / 2, m_posto.y() - height() / 2);
    raise();
    show();
}

void Mirino::azzera()
{
    m_posto = {};
    hide();
}
