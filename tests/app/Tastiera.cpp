#include "tests/app/Tastiera.h"

#include "controls/Grafica.h"
#include "controls/Pulsanti.h"
#include "tests/support/Attesa.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int tabMassimi = 100;

QRect posto(const QWidget &controllo)
{
    return {controllo.mapTo(controllo.window(), QPoint()), controllo.size()};
}

// Whether uno comes before altro in reading order: above it, or further left in the same line.
bool primaInLettura(const QWidget &uno, const QWidget &altro)
{
    const QRect a = posto(uno);
    const QRect b = posto(altro);
    return a.bottom() < b.top() || (a.top() <= b.bottom() && a.left() < b.left());
}

void raccogli(const QMenu &menu, QList<QWidget *> &controlli)
{
    for (const QAction *azione : menu.actions()) {
        if (!azione->isEnabled())
            continue;
        if (azione->menu())
            raccogli(*azione->menu(), controlli);
        else if (auto *controllo = azione->data().value<QWidget *>())
            controlli << controllo;
    }
}

// Whether a click on the control has an effect. The parts of a control count as the control.
bool prendeClick(QWidget &controllo)
{
    if (const auto *azionabile = dynamic_cast<Azionabile *>(&controllo))
        return azionabile->prendeClick();
    if (controllo.testAttribute(Qt::WA_TransparentForMouseEvents) ||
        qobject_cast<QScrollBar *>(&controllo) || qobject_cast<QHeaderView *>(&controllo))
        return false;
    if (qobject_cast<QLineEdit *>(&controllo))
        return !qobject_cast<QComboBox *>(controllo.parentWidget());
    return qobject_cast<QAbstractButton *>(&controllo) ||
           qobject_cast<QAbstractItemView *>(&controllo) ||
           qobject_cast<QAbstractSlider *>(&controllo) || qobject_cast<QComboBox *>(&controllo) ||
           // A plain widget that takes the focus was made to do so.
           controllo.focusPolicy() != Qt::NoFocus;
}

QString nome(const QWidget &controllo)
{
    return qobject_cast<SuGiu *>(controllo.parentWidget()) ? controllo.parentWidget()->objectName()
                                                           : controllo.objectName();
}

} // namespace

void portaAvanti(QWidget &finestra)
{
    finestra.activateWindow();
    ASSERT_TRUE(aspetta([&] { return finestra.isActiveWindow(); }));
}

QList<QWidget *> giroDiTab(QWidget &finestra)
{
    const QPointer<QWidget> prima = finestra.focusWidget();
    QList<QWidget *> giro;
    for (int i = 0; i < tabMassimi; ++i) {
        QTest::keyClick(finestra.windowHandle(), Qt::Key_Tab);
        QWidget *ora = finestra.focusWidget();
        if (!ora || giro.contains(ora))
            break;
        giro << ora;
    }
    EXPECT_LT(giro.size(), tabMassimi);
    if (prima)
        prima->setFocus(Qt::OtherFocusReason);
    auto primo = giro.begin();
    for (auto altro = giro.begin(); altro != giro.end(); ++altro) {
        if (primaInLettura(**altro, **primo))
            primo = altro;
    }
    std::rotate(giro.begin(), primo, giro.end());
    return giro;
}

QList<QWidget *> nelMenu(QWidget &finestra)
{
    QTest::keyClick(finestra.windowHandle(), Qt::Key_Menu);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QList<QWidget *> controlli;
    if (menu) {
        raccogli(*menu, controlli);
        menu->close();
    }
    return controlli;
}

QStringList irraggiungibili(QWidget &finestra, const QHash<QString, QString> &conTasto)
{
    const QList<QWidget *> raggiunti = giroDiTab(finestra) + nelMenu(finestra);
    QStringList mancano;
    for (QWidget *controllo : finestra.findChildren<QWidget *>()) {
        if (!controllo->isVisible() || !controllo->isEnabled() ||
            controllo->window() != &finestra || !prendeClick(*controllo))
            continue;
        if (!raggiunti.contains(controllo) && !conTasto.contains(nome(*controllo)))
            mancano << nome(*controllo);
    }
    mancano.removeDuplicates();
    return mancano;
}

QStringList fuoriOrdine(QWidget &finestra)
{
    const QList<QWidget *> giro = giroDiTab(finestra);
    QStringList salti;
    for (qsizetype i = 1; i < giro.size(); ++i) {
        const QRect da = posto(*giro[i - 1]);
        const QRect a = posto(*giro[i]);
        const bool sopra = a.bottom() < da.top();
        const bool sotto = a.top() > da.bottom();
        const bool indietro = sopra ? a.left() < da.right() : !sotto && a.right() < da.left();
        if (indietro)
            salti << giro[i - 1]->objectName() + u" -> "_s + giro[i]->objectName();
    }
    return salti;
}
