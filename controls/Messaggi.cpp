#include "controls/Messaggi.h"

#include "controls/Finestra.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

// A box with only Sì and No closes only by one of them; Qt would take Esc and the close button of
// the title bar for No.
class Riquadro : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void closeEvent(QCloseEvent *evento) override
    {
        if (senzaUscita())
            evento->ignore();
        else
            QMessageBox::closeEvent(evento);
    }
    void keyPressEvent(QKeyEvent *evento) override
    {
        if (!senzaUscita() || !evento->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(evento);
    }

private:
    bool senzaUscita() const { return standardButtons() == (Yes | No); }
};

// The answer if the box was destroyed together with its parent window.
Risposta senzaRisposta(Pulsanti pulsanti)
{
    switch (pulsanti) {
    case Pulsanti::SiNo:
        return Risposta::No;
    case Pulsanti::SiNoAnnulla:
        return Risposta::Annulla;
    default:
        return Risposta::OK;
    }
}

void mostraIcona(QMessageBox &box, Icona icona)
{
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
}

void mostraPulsanti(QMessageBox &box, Pulsanti pulsanti)
{
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
}

} // namespace

Risposta messaggio(const QString &testo, Icona icona, Pulsanti pulsanti, const QString &titolo)
{
    // On the heap, because the parent window may be destroyed first and then deletes it.
    const QPointer<Riquadro> box = new Riquadro(Finestra::Davanti());
    box->setObjectName(u"Messaggio"_s);
    box->setWindowTitle(titolo.isEmpty() ? u"Lumbra"_s : titolo);
    box->setTextFormat(Qt::PlainText);
    box->setText(testo);
    mostraIcona(*box, icona);
    mostraPulsanti(*box, pulsanti);
    const int premuto = box->exec();
    if (!box)
        return senzaRisposta(pulsanti);
    delete box;
    switch (premuto) {
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
