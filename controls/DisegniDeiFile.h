// What a file dialog shows beside a name: a picture of ours, and the kind in Italian.
#pragma once

#include <QFileIconProvider>

class DisegniDeiFile : public QFileIconProvider
{
public:
    DisegniDeiFile();

    // Qt asks from a thread of its own, too.
    QIcon icon(IconType quale) const override;
    QIcon icon(const QFileInfo &file) const override;
    QString type(const QFileInfo &file) const override;

private:
    QIcon m_computer;
    QIcon m_cartella;
    QIcon m_documento;
};
