// A box of one line holds no line break.
#pragma once

#include <QValidator>

// Makes a blank of every line break, however it comes: typed, pasted, dropped, composed, by code.
// Set on a box, it acts before anybody sees the text.
class UnaRiga : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;
    State validate(QString &testo, int &cursore) const override;
};
