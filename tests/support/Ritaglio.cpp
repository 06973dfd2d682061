#include "tests/support/Ritaglio.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// The text of a control: its size, the room for it in the control, and how it is aligned there.
struct Scritta
{
    QString testo;
    QSize misura;
    QRect spazio;
    Qt::Alignment dove = Qt::AlignCenter;
};

QSize misuraDi(const QWidget &controllo, const QString &testo)
{
    return controllo.fontMetrics().size(Qt::TextShowMnemonic, testo);
}

Scritta scrittaDi(const QLabel &etichetta)
{
    const int margine = etichetta.margin();
    QRect spazio = etichetta.contentsRect().adjusted(margine, margine, -margine, -margine);
    QSize misura = misuraDi(etichetta, etichetta.text());
    if (etichetta.wordWrap()) {
        const auto largo = [&](const QString &parola) {
            return etichetta.fontMetrics().horizontalAdvance(parola);
        };
        int massima = 0;
        for (const QString &parola : etichetta.text().split(u' '))
            massima = std::max(massima, largo(parola));
        const QRect tutto = etichetta.fontMetrics().boundingRect(
            QRect(0, 0, spazio.width(), 10000), Qt::TextWordWrap, etichetta.text());
        misura = {massima, tutto.height()};
    }
    return {etichetta.text(), misura, spazio, etichetta.alignment()};
}

Scritta scrittaDi(const QPushButton &pulsante)
{
    QStyleOptionButton opzione;
    opzione.initFrom(&pulsante);
    QSize misura = misuraDi(pulsante, pulsante.text());
    if (!pulsante.icon().isNull())
        misura.rwidth() += pulsante.iconSize().width() + 4;
    // With a margin to the edge of the button.
    constexpr int respiro = 8;
    return {pulsante.text(), misura, pulsante.rect().adjusted(respiro, 1, -respiro, -1)};
}

template <class Casella>
Scritta scrittaDi(const Casella &casella, QStyle::SubElement contenuto)
{
    QStyleOptionButton opzione;
    opzione.initFrom(&casella);
    opzione.text = casella.text();
    return {casella.text(), misuraDi(casella, casella.text()),
            casella.style()->subElementRect(contenuto, &opzione, &casella),
            Qt::AlignLeft | Qt::AlignVCenter};
}

// The combo must have room for each of its entries.
Scritta scrittaDi(const QComboBox &combo)
{
    QStyleOptionComboBox opzione;
    opzione.initFrom(&combo);
    opzione.editable = combo.isEditable();
    QSize massima = misuraDi(combo, combo.currentText());
    for (int i = 0; i < combo.count(); ++i)
        massima = massima.expandedTo(misuraDi(combo, combo.itemText(i)));
    return {combo.currentText(), massima,
            combo.style()->subControlRect(QStyle::CC_ComboBox, &opzione,
                                          QStyle::SC_ComboBoxEditField, &combo),
            Qt::AlignLeft | Qt::AlignVCenter};
}

// The text comes from the user: only its height is checked.
Scritta scrittaDi(const QLineEdit &casella)
{
    return {casella.text(), {0, casella.fontMetrics().height()}, casella.contentsRect()};
}

Scritta scrittaDi(const QGroupBox &cornice)
{
    QFont grassetto = cornice.font();
    grassetto.setBold(true);
    const QSize misura = QFontMetrics(grassetto).size(Qt::TextSingleLine, cornice.title());
    return {cornice.title(), misura, cornice.rect()};
}

Scritta scrittaDi(const QMenuBar &barra)
{
    const QSize misura(barra.sizeHint().width(), barra.fontMetrics().height());
    return {barra.actions().isEmpty() ? QString() : barra.actions().constFirst()->text(), misura,
            barra.rect()};
}

Scritta scrittaDi(const QWidget &controllo)
{
    if (const auto *etichetta = qobject_cast<const QLabel *>(&controllo))
        return scrittaDi(*etichetta);
    if (const auto *pulsante = qobject_cast<const QPushButton *>(&controllo))
        return scrittaDi(*pulsante);
    if (const auto *spunta = qobject_cast<const QCheckBox *>(&controllo))
        return scrittaDi(*spunta, QStyle::SE_CheckBoxContents);
    if (const auto *opzione = qobject_cast<const QRadioButton *>(&controllo))
        return scrittaDi(*opzione, QStyle::SE_RadioButtonContents);
    if (const auto *combo = qobject_cast<const QComboBox *>(&controllo))
        return scrittaDi(*combo);
    if (const auto *casella = qobject_cast<const QLineEdit *>(&controllo))
        return scrittaDi(*casella);
    if (const auto *cornice = qobject_cast<const QGroupBox *>(&controllo))
        return scrittaDi(*cornice);
    if (const auto *barra = qobject_cast<const QMenuBar *>(&controllo))
        return scrittaDi(*barra);
    return {};
}

// The part of a control that its parents do not cut off, in the control's coordinates.
QRect visibile(const QWidget &controllo)
{
    QRect resta = controllo.rect();
    for (const QWidget *w = &controllo; !w->isWindow(); w = w->parentWidget())
        resta &= QRect(controllo.mapFrom(w->parentWidget(), QPoint()), w->parentWidget()->size());
    return resta;
}

// True inside a list or a table, whose contents are scrolled.
bool scorre(const QWidget &controllo)
{
    for (const QWidget *w = &controllo; w && !w->isWindow(); w = w->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea *>(w))
            return true;
    }
    return false;
}

} // namespace

QStringList tagliati(QWidget &finestra)
{
    struct Posto
    {
        const QWidget *controllo;
        QString testo;
        QRect dove;
    };
    QList<Posto> scritte;
    QStringList trovati;
    const auto nota = [&](const QWidget &controllo, const QString &testo, const QString &che) {
        trovati << u"%1 \"%2\": %3"_s.arg(controllo.objectName(), testo, che);
    };
    const auto misure = [](QSize s) { return u"%1x%2"_s.arg(s.width()).arg(s.height()); };
    for (const QWidget *controllo : finestra.findChildren<QWidget *>()) {
        if (!controllo->isVisible() || controllo->window() != &finestra || scorre(*controllo))
            continue;
        const QRect resta = visibile(*controllo);
        if (resta != controllo->rect() && qobject_cast<const QGroupBox *>(controllo))
            nota(*controllo, {},
                 u"is cut off, %1 of %2"_s.arg(misure(resta.size()), misure(controllo->size())));
        const Scritta scritta = scrittaDi(*controllo);
        if (scritta.testo.trimmed().isEmpty())
            continue;
        const QRect spazio = scritta.spazio & resta;
        if (scritta.misura.width() > spazio.width() || scritta.misura.height() > spazio.height())
            nota(*controllo, scritta.testo,
                 u"takes %1, has %2"_s.arg(misure(scritta.misura), misure(spazio.size())));
        if (qobject_cast<const QGroupBox *>(controllo))
            continue;
        const QRect testo =
            QStyle::alignedRect(Qt::LeftToRight, scritta.dove, scritta.misura, scritta.spazio);
        scritte.append(
            {controllo, scritta.testo, testo.translated(controllo->mapTo(&finestra, QPoint()))});
    }
    for (qsizetype i = 0; i < scritte.size(); ++i) {
        for (qsizetype j = i + 1; j < scritte.size(); ++j) {
            const auto &[uno, testo, dove] = scritte[i];
            const auto &altro = scritte[j];
            if (!uno->isAncestorOf(altro.controllo) && dove.intersects(altro.dove))
                nota(*uno, testo, u"runs into \"%1\""_s.arg(altro.testo));
        }
    }
    return trovati;
}

QStringList guarda(QWidget &finestra, const QString &nome)
{
    const QString cartella = qEnvironmentVariable("LOOKS_PICTURES");
    if (!cartella.isEmpty()) {
        const QString file =
            u"%1/%2-%3pt.png"_s.arg(cartella, nome).arg(QApplication::font().pointSizeF());
        QDir().mkpath(cartella);
        if (!finestra.grab().save(file))
            return {u"No picture "_s + file};
    }
    return tagliati(finestra);
}

ConCarattere::ConCarattere(double punti) : m_prima(QApplication::font())
{
    QFont carattere = m_prima;
    carattere.setPointSizeF(punti);
    QApplication::setFont(carattere);
}

ConCarattere::~ConCarattere()
{
    QApplication::setFont(m_prima);
}
