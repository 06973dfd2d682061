// What the file dialog shows for each file: the program's own pictures, and the kind in Italian.
#pragma once

#include <QFileIconProvider>

class DisegniDeiFile : public QFileIconProvider
{
public:
    DisegniDeiFile();

    // Qt calls this from another thread, too: the pictures are made in the constructor.
    QIcon icon(IconType quale) const override;
    QIcon icon(const QFileInfo &file) const override;
    QString type(const QFileInfo &file) const override;

private:
    QIcon m_computer;
    QIcon m_cartella;
    QIcon m_documento;
};
