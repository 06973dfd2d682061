// A list box with the names of the files in a folder.
#pragma once

#include "controls/Elenco.h"

// It is hidden; code reads it. Names have no path and are sorted without regard to case.
class ElencoFile : public Elenco
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ Path WRITE setPath)
    Q_PROPERTY(QString Pattern READ Pattern WRITE setPattern)

public:
    // modello: a pattern such as "*.sqm", or several separated by ";". The list is filled at once.
    ElencoFile(const QString &nome, QWidget *dentro, const QString &cartella,
               const QString &modello);

    QString Path() const { return m_cartella; }
    void setPath(const QString &cartella);
    QString Pattern() const { return m_modello; }
    void setPattern(const QString &modello);

    // Reads the folder again; no row is selected afterwards. A folder that does not exist counts as
    // empty. A new Path or Pattern does the same.
    void Refresh();

private:
    QString m_cartella;
    QString m_modello;
};
