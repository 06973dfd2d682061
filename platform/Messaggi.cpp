#include "Messaggi.h"

#include <QApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

Risposta messaggio(const QString &testo, Icona icona, Pulsanti pulsanti, const QString &titolo)
{
    QWidget *sopra = QApplication::activeModalWidget();
    if (!sopra)
        sopra = QApplication::activeWindow();
    QMessageBox box(sopra);
    box.setObjectName(u"Messaggio"_s);
    box.setWindowTitle(titolo.isEmpty() ? u"Lumbra"_s : titolo);
    box.setTextFormat(Qt::PlainText);
    box.setText(testo);
    switch (icona) {
    case Icona::Nessuna:
        break;
    case Icona::Informazione:
        box.setIcon(QMessageBox::Information);
        break;
    case Icona::Domanda:
        box.setIcon(QMessageBox::Question);
        break;
    case Icona::Stop:
        box.setIcon(QMessageBox::Critical);
        break;
    }
    switch (pulsanti) {
    case Pulsanti::OK:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case Pulsanti::SiNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case Pulsanti::SiNoAnnulla:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Risposta::Si;
    case QMessageBox::No:
        return Risposta::No;
    case QMessageBox::Cancel:
        return Risposta::Annulla;
    default:
        return Risposta::OK;
    }
}
