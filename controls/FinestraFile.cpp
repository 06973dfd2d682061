#include "controls/FinestraFile.h"

#include "base/Errore.h"
#include "controls/DisegniDeiFile.h"
#include "controls/Finestra.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QPointer>
#include <QSplitter>
#include <QTreeView>

using namespace Qt::StringLiterals;

// "Mosse|*.sqm;*.txt" becomes "Mosse (*.sqm *.txt)".
static QStringList filtriQt(const QString &filtro)
{
    const QStringList parti = filtro.split(u'|');
    QStringList filtri;
    for (qsizetype i = 0; i + 1 < parti.size(); i += 2)
        filtri += u"%1 (%2)"_s.arg(parti[i], QString(parti[i + 1]).replace(u';', u' '));
    return filtri;
}

// Makes the columns as wide as their contents; the column of the names takes the rest.
static void disponi(QFileDialog &dialogo)
{
    if (auto *tabella = dialogo.findChild<QTreeView *>(u"treeView"_s)) {
        QHeaderView *testata = tabella->header();
        testata->setStretchLastSection(false);
        testata->setSectionResizeMode(QHeaderView::ResizeToContents);
        testata->setSectionResizeMode(0, QHeaderView::Stretch);
    }
    const int lettera = dialogo.fontMetrics().averageCharWidth();
    dialogo.resize(dialogo.sizeHint().expandedTo({105 * lettera, 60 * lettera}));
    if (auto *divisore = dialogo.findChild<QSplitter *>(u"splitter"_s))
        divisore->setSizes({20 * lettera, dialogo.width()});
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
    DisegniDeiFile disegni;
    // On the heap, because the parent window may be destroyed first and then deletes it.
    const QPointer<QFileDialog> dialogo = new QFileDialog(Finestra::Davanti());
    // The system's own dialog would use the system's language.
    dialogo->setOption(QFileDialog::DontUseNativeDialog);
    dialogo->setOption(QFileDialog::DontConfirmOverwrite);
    dialogo->setAcceptMode(modo);
    dialogo->setFileMode(apre ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialogo->setWindowTitle(apre ? u"Apri"_s : u"Salva con nome"_s);
    dialogo->setNameFilters(filtriQt(m_filtro));
    dialogo->setIconProvider(&disegni);
    disponi(*dialogo);
    if (!m_file.isEmpty()) {
        dialogo->setDirectory(QFileInfo(m_file).path());
        dialogo->selectFile(m_file);
    }
    const bool accettato = dialogo->exec() == QDialog::Accepted;
    const QStringList scelti = accettato && dialogo ? dialogo->selectedFiles() : QStringList();
    delete dialogo;
    if (scelti.isEmpty())
        throw Errore(Errore::Annullato);
    m_file = scelti.constFirst();
}
