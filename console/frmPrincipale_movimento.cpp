// Motion control: keys, arrows, latch, STOP.
#include "console/Movimento.h"
#include "console/frmPrincipale.h"
#include "controls/Tasti.h"

#include <QKeyEvent>
#include <utility>

void frmPrincipale::KeyDown(int KeyCode, int Shift)
{
    mnuTastiera_KeyDown(KeyCode, Shift);
    premiTasto(KeyCode, std::exchange(m_ripetuto, false));
}

void frmPrincipale::premiTasto(int KeyCode, bool ripetuto)
{
    const bool stop = KeyCode == Tasti::Spazio && opzBase.Value();
    if (!m_fermo.accetta({KeyCode, ripetuto, ListaAttiva(), stop && m_attese > 0}))
        return;
    if (const int freccia = Movimento::frecciaDelTasto(KeyCode))
        imgFreccia(freccia).setPicture(Movimento::disegnoPremuta(freccia));
    const FermoTasti::Comando comando = m_fermo.comincia(KeyCode);
    // Arm mode drives the base, with the values that its hidden boxes hold.
    const std::optional<Azione> azione =
        Movimento::freccia(KeyCode, opzTesta.Value(),
                           {cbStepV.Text(), cbStepO.Text(), cbVelocità.Text(),
                            cbVelocità.ListIndex(), cbModGiro.Text(), cbModGiro.ListIndex()});
    if (azione && mandaOInserisci(*azione)) {
        m_fermo.finitoInLista(comando);
        return; // without the latch: a held key adds one line after another
    }
    if (stop) {
        lblStop_Click();
        // It may have been let go during the wait.
        if (m_fermo.giu(KeyCode)) {
            m_spazioSuStop = true;
            m_targaStop.premi();
        }
    }
    // Only now: a release that was served during the wait has passed, and the latch stays.
    m_fermo.finito(comando);
}

void frmPrincipale::KeyUp(int KeyCode, int)
{
    for (int i = 1; i <= 4; ++i)
        imgFreccia(i).setPicture(Movimento::disegnoARiposo(i));
    // The mode may have changed while the space bar was held.
    if (std::exchange(m_spazioSuStop, false) || opzBase.Value())
        m_targaStop.rilascia();
    m_fermo.lascia(KeyCode);
    mnuTastiera_KeyUp(KeyCode);
}

bool frmPrincipale::event(QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::WindowDeactivate:
    // A dialog comes up while the window is not the active one.
    case QEvent::WindowBlocked:
    case QEvent::Hide:
        eseguiGestore([this] { lasciaTutto(); });
        break;
    default:
        break;
    }
    return Finestra::event(evento);
}

bool frmPrincipale::eventFilter(QObject *oggetto, QEvent *evento)
{
    // The frame of a colour list would hand it on to the window, which forgets the head's side.
    if (evento->type() == QEvent::MouseMove &&
        (oggetto == &mnuComparsaOn || oggetto == &mnuComparsaOff))
        return true;
    // A list or a menu that opens takes keys and mouse as well, and leaves the window active.
    if (evento->type() == QEvent::Show && oggetto->isWidgetType() &&
        static_cast<QWidget *>(oggetto)->windowType() == Qt::Popup)
        eseguiGestore([this] { lasciaTutto(); });
    m_ripetuto =
        evento->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(evento)->isAutoRepeat();
    const bool esito = Finestra::eventFilter(oggetto, evento);
    m_ripetuto = false;
    return esito;
}

void frmPrincipale::lasciaTutto()
{
    for (int i = 1; i <= 10; ++i) {
        if (imgFreccia(i).Picture() == Movimento::disegnoPremuta(i))
            imgFreccia(i).setPicture(Movimento::disegnoARiposo(i));
    }
    for (Targa *targa : {&m_targaStop, &m_targaAccendi, &m_targaSpegni, &m_targaScatta}) {
        if (targa->premuta())
            targa->rilascia();
    }
    m_spazioSuStop = false;
    m_menuChiesto = false;
    m_fermo.lasciaTutto();
}

void frmPrincipale::collegaFreccia(int Index)
{
    imgFreccia(Index).MouseDown.collega(
        [this, Index](int, int, double, double) { imgFreccia_MouseDown(Index); });
    imgFreccia(Index).MouseUp.collega(
        [this, Index](int, int, double, double) { imgFreccia_MouseUp(Index); });
}

void frmPrincipale::imgFreccia_MouseDown(int Index)
{
    if (const int tasto = Movimento::tastoDellaFreccia(Index)) {
        premiTasto(tasto, false);
        return;
    }
    const std::optional<Azione> azione = Movimento::bacinoOBraccia(Index);
    if (!azione)
        return;
    imgFreccia(Index).setPicture(Movimento::disegnoPremuta(Index));
    mandaOInserisci(*azione);
}

void frmPrincipale::imgFreccia_MouseUp(int Index)
{
    if (const int tasto = Movimento::tastoDellaFreccia(Index))
        KeyUp(tasto, 0);
    else
        imgFreccia(Index).setPicture(Movimento::disegnoARiposo(Index));
}

void frmPrincipale::lblStop_Click()
{
    mandaOInserisci(Movimento::stop(opzBase.Value()));
}
