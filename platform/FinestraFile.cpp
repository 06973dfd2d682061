#include "FinestraFile.h"

#include "Errore.h"
#include "Finestra.h"

#include <QApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

static QStringList filtriQt(const QString &filtro)
{
    const QStringList parti = filtro.split(u'|');
    QStringList filtri;
    for (qsizetype i = 0; i + 1 < parti.size(); i += 2)
        filtri += u"%1 (%2)"_s.arg(parti[i], QString(parti[i + 1]).replace(u';', u' '));
    return filtri;
}

FinestraFile::FinestraFile(const QString &nome, QWidget *finestra) : QObject(finestra)
{
    setObjectName(nome);
}

void FinestraFile::ShowOpen()
{
    mostra(QFileDialog::AcceptOpen);
}

void FinestraFile::ShowSave()
{
    mostra(QFileDialog::AcceptSave);
}

void FinestraFile::mostra(QFileDialog::AcceptMode modo)
{
    const bool apre = modo == QFileDialog::AcceptOpen;
    QWidget *sopra = QApplication::activeWindow();
    QFileDialog dialogo(sopra ? sopra : Finestra::Ultima());
    // The system's own dialog speaks the system's language.
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite);
    dialogo.setAcceptMode(modo);
    dialogo.setFileMode(apre ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialogo.setWindowTitle(apre ? u"Apri"_s : u"Salva con nome"_s);
    dialogo.setNameFilters(filtriQt(m_filtro));
    if (!m_file.isEmpty()) {
        dialogo.setDirectory(QFileInfo(m_file).path());
        dialogo.selectFile(m_file);
    }
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        throw Errore(Errore::Annullato);
    m_file = dialogo.selectedFiles().constFirst();
}
