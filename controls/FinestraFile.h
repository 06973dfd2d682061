// The file dialog, for opening and for saving.
#pragma once

#include <QFileDialog>
#include <QObject>
#include <QString>

// Holds the name from one showing to the next; each showing fails with Errore::Annullato where the
// user cancels, and leaves the name as it was then.
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

    // A file that is there.
    void ShowOpen();
    // The name as typed: no extension is added, and overwriting is not asked about.
    void ShowSave();

private:
    void mostra(QFileDialog::AcceptMode modo);

    QString m_file;
    QString m_filtro;
};
