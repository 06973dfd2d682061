#include "tests/support/Contrasto.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

double luminanza(const QColor &colore)
{
    const auto lineare = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) +
           0.0722 * lineare(colore.blueF());
}

QString testo(const QWidget &controllo)
{
    if (const auto *etichetta = qobject_cast<const QLabel *>(&controllo))
        return etichetta->text();
    if (const auto *pulsante = qobject_cast<const QAbstractButton *>(&controllo))
        return pulsante->text();
    if (const auto *casella = qobject_cast<const QLineEdit *>(&controllo))
        return casella->text();
    if (const auto *combo = qobject_cast<const QComboBox *>(&controllo))
        return combo->currentText();
    if (const auto *elenco = qobject_cast<const QListWidget *>(&controllo))
        return elenco->count() > 0 ? elenco->item(0)->text() : QString();
    if (const auto *cornice = qobject_cast<const QGroupBox *>(&controllo))
        return cornice->title();
    return {};
}

// The most frequent colour of a rectangle, without its edge. The face of a button changes colour
// from row to row, so that the edge may have more pixels of one colour than any row.
QColor fondo(const QImage &immagine, QRect posto)
{
    const int orlo = qMin(3, posto.height() / 4);
    posto.adjust(orlo, orlo, -orlo, -orlo);
    QHash<QRgb, int> quanti;
    for (int y = posto.top(); y <= posto.bottom(); ++y) {
        for (int x = posto.left(); x <= posto.right(); ++x)
            ++quanti[immagine.pixel(x, y)];
    }
    const auto primo =
        std::max_element(quanti.cbegin(), quanti.cend(), [](int a, int b) { return a < b; });
    return primo == quanti.cend() ? QColor() : QColor(primo.key());
}

} // namespace

double contrasto(const QColor &uno, const QColor &altro)
{
    const auto [scuro, chiaro] = std::minmax({luminanza(uno), luminanza(altro)});
    return (chiaro + 0.05) / (scuro + 0.05);
}

QStringList pocoLeggibili(QWidget &finestra)
{
    const QImage immagine = finestra.grab().toImage();
    const double scala = immagine.devicePixelRatio();
    QStringList trovati;
    for (const QWidget *controllo : finestra.findChildren<QWidget *>()) {
        if (!controllo->isVisible() || controllo->window() != &finestra ||
            testo(*controllo).trimmed().isEmpty())
            continue;
        const QRect posto(controllo->mapTo(&finestra, QPoint()), controllo->size());
        const QRect pixel = QRectF(QPointF(posto.topLeft()) * scala, QSizeF(posto.size()) * scala)
                                .toAlignedRect()
                                .intersected(immagine.rect());
        const QColor sotto = fondo(immagine, pixel);
        const QColor colore = controllo->palette().color(controllo->foregroundRole());
        const double quanto = contrasto(colore, sotto);
        if (quanto < 4.5) {
            trovati << u"%1 \"%2\": %3 on %4, %5"_s
                           .arg(controllo->objectName(), testo(*controllo), colore.name(),
                                sotto.name())
                           .arg(quanto, 0, 'f', 2);
        }
    }
    return trovati;
}
