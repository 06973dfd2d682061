// Keeps line breaks out of text boxes of one line.
#pragma once

#include <QValidator>

// Replaces each line break by a blank, whether it was typed, pasted, dropped, composed by an input
// method or set by code. As the validator of a box it acts before the text is shown or read.
class UnaRiga : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;
    State validate(QString &testo, int &cursore) const override;
};
