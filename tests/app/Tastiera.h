// Finds out what the keyboard reaches in a window.
#pragma once

#include <QHash>
#include <QList>
#include <QStringList>
#include <QWidget>

// Brings the window to the front, so that keys go to it.
void portaAvanti(QWidget &finestra);

// The controls that the Tab key reaches, in its order, from the first one in reading order. Empty
// if there is none. The focus is the same afterwards.
QList<QWidget *> giroDiTab(QWidget &finestra);

// The controls that have an enabled action in the menu of the Menu key. Empty if there is no menu.
QList<QWidget *> nelMenu(QWidget &finestra);

// The names of the visible controls that react to a click but are reached neither by Tab nor by the
// menu. Those in conTasto are left out: it gives the key of each control that has its own. For the
// arrows of a spin bar use the name of the bar.
QStringList irraggiungibili(QWidget &finestra, const QHash<QString, QString> &conTasto = {});

// The pairs of controls between which the Tab key goes back: to a control above that is not further
// right, or to the left in the same line.
QStringList fuoriOrdine(QWidget &finestra);
