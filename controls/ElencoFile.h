// The list of the files in a folder.
#pragma once

#include "controls/Elenco.h"

// Hidden: it is read by code. Names without a path, sorted without regard to case.
class ElencoFile : public Elenco
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ Path WRITE setPath)
    Q_PROPERTY(QString Pattern READ Pattern WRITE setPattern)

public:
    // A pattern as in "*.sqm"; several are parted by ";". Filled at once.
    ElencoFile(const QString &nome, QWidget *dentro, const QString &cartella,
               const QString &modello);

    QString Path() const { return m_cartella; }
    void setPath(const QString &cartella);
    QString Pattern() const { return m_modello; }
    void setPattern(const QString &modello);

    // Reads the folder anew; nothing is selected then. A folder that is not there has no files.
    void Refresh();

private:
    QString m_cartella;
    QString m_modello;
};
