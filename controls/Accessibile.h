// What a screen reader gets to know about pictures and labels that act as buttons.
#pragma once

class QWidget;

// Registers their interface with Qt's accessibility. Further calls do nothing.
void dichiaraAzionabili();
// Reports that the check mark of a picture has changed.
void annunciaSpunta(QWidget &controllo);
