// What of a window the keyboard reaches.
#pragma once

#include <QHash>
#include <QList>
#include <QStringList>
#include <QWidget>

// Brings the window to the front, so that keys go to it.
void portaAvanti(QWidget &finestra);

// The controls that the Tab key goes through, in its order, from the one that stands first in
// reading order; the list is empty where there is none. The focus ends where it was.
QList<QWidget *> giroDiTab(QWidget &finestra);

// The controls whose action stands, enabled, in the menu that the Menu key opens; none where it
// opens none.
QList<QWidget *> nelMenu(QWidget &finestra);

// What is shown and takes a click, and is reached by neither of the two nor has a key of its own:
// conTasto names the key for each such control. The arrows of a spin bar count as conTasto of the
// bar.
QStringList irraggiungibili(QWidget &finestra, const QHash<QString, QString> &conTasto = {});

// Where the Tab key goes back: to a control above, unless it stands further right, or to the left
// in the same line.
QStringList fuoriOrdine(QWidget &finestra);
