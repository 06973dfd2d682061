// What a screen reader is told of pictures and labels that act as buttons.
#pragma once

class QWidget;

// Makes them known to the accessibility of Qt; once is enough.
void dichiaraAzionabili();
// The mark of a picture has changed.
void annunciaSpunta(QWidget &controllo);
