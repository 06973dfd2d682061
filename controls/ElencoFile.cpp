#include "controls/ElencoFile.h"

#include <QDir>

ElencoFile::ElencoFile(const QString &nome, QWidget *dentro, const QString &cartella,
                       const QString &modello)
    : Elenco(nome, dentro), m_cartella(cartella), m_modello(modello)
{
    hide();
    Refresh();
}

void ElencoFile::setPath(const QString &cartella)
{
    m_cartella = cartella;
    Refresh();
}

void ElencoFile::setPattern(const QString &modello)
{
    m_modello = modello;
    Refresh();
}

void ElencoFile::Refresh()
{
    Clear();
    const QStringList nomi =
        QDir(m_cartella)
            .entryList(m_modello.split(u';'), QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString &nome : nomi)
        AddItem(nome);
}
