#include "controls/VoceMenu.h"

#include <QMenu>

VoceMenu::VoceMenu(const QString &nome, QMenu *dentro, const QString &testo)
    : QAction(testo, dentro)
{
    setObjectName(nome);
    dentro->addAction(this);
    connect(this, &QAction::triggered, this, [this] {
        // Qt has toggled the check mark: put it back.
        setChecked(m_spuntata);
        Click();
    });
}

void VoceMenu::setChecked(bool spuntata)
{
    m_spuntata = spuntata;
    // Not checkable without a mark: the menu would show an empty box.
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
