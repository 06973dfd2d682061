// The file dialog, to choose a file to open or to save.
#pragma once

#include <QFileDialog>
#include <QObject>
#include <QString>

// Keeps the name from one showing to the next. If the user cancels, ShowOpen and ShowSave throw
// Errore::Annullato and the name stays as it was.
class FinestraFile : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString FileName READ FileName WRITE setFileName)
    Q_PROPERTY(QString Filter READ Filter WRITE setFilter)

public:
    FinestraFile(const QString &nome, QWidget *finestra);

    // The full path, empty at first.
    QString FileName() const { return m_file; }
    void setFileName(const QString &file) { m_file = file; }
    // Pairs of a text and its patterns, as in "Mosse|*.sqm|Testo|*.txt;*.md".
    QString Filter() const { return m_filtro; }
    void setFilter(const QString &filtro) { m_filtro = filtro; }

    // Asks for an existing file.
    void ShowOpen();
    // Asks for a name and takes it as typed: no extension is added, and there is no question before
    // overwriting a file.
    void ShowSave();

private:
    void mostra(QFileDialog::AcceptMode modo);

    QString m_file;
    QString m_filtro;
};
