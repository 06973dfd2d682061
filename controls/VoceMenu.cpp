#include "controls/VoceMenu.h"

#include <QMenu>

VoceMenu::VoceMenu(const QString &nome, QMenu *dentro, const QString &testo)
    : QAction(testo, dentro)
{
    setObjectName(nome);
    dentro->addAction(this);
    connect(this, &QAction::triggered, this, [this] {
        // Qt has taken the mark off by itself.
        setChecked(m_spuntata);
        Click();
    });
}

void VoceMenu::setChecked(bool spuntata)
{
    m_spuntata = spuntata;
    // An entry without a mark shows no empty box for one either.
    setCheckable(spuntata);
    QAction::setChecked(spuntata);
}

BarraMenu::BarraMenu(QWidget *finestra) : QMenuBar(finestra)
{
    setNativeMenuBar(false);
}

QMenu *BarraMenu::aggiungi(const QString &nome, const QString &testo)
{
    QMenu *menu = addMenu(testo);
    menu->menuAction()->setObjectName(nome);
    return menu;
}

QMenu *BarraMenu::aggiungi(QMenu *dentro, const QString &nome, const QString &testo)
{
    QMenu *menu = dentro->addMenu(testo);
    menu->menuAction()->setObjectName(nome);
    return menu;
}

void BarraMenu::aggiungiSeparatore(QMenu *dentro, const QString &nome)
{
    dentro->addSeparator()->setObjectName(nome);
}
