// Motion control: keys, arrows, latch, STOP.
#include "Movimento.h"
#include "Tasti.h"
#include "frmPrincipale.h"

#include <QGuiApplication>

void frmPrincipale::KeyDown(int KeyCode, int Shift)
{
    mnuTastiera_KeyDown(KeyCode, Shift);
    if (imgFreccia(1).Tag() == u"Tasto premuto"_s)
        return;
    if (const int freccia = Movimento::frecciaDelTasto(KeyCode))
        imgFreccia(freccia).setPicture(Movimento::disegnoPremuta(freccia));
    // Arm mode drives the base, with the values that its hidden boxes hold.
    const std::optional<Azione> azione =
        Movimento::freccia(KeyCode, opzTesta.Value(),
                           {cbStepV.Text(), cbStepO.Text(), cbVelocità.Text(),
                            cbVelocità.ListIndex(), cbModGiro.Text(), cbModGiro.ListIndex()});
    if (azione && mandaOInserisci(*azione))
        return; // without the latch: a held key adds one line after another
    if (KeyCode == Tasti::Spazio && opzBase.Value()) {
        lblStop_Click();
        lblStop_MouseDown();
    }
    // Only now: a release that was served during the wait is behind us, and the latch stays.
    imgFreccia(1).setTag(u"Tasto premuto"_s);
}

void frmPrincipale::KeyUp(int KeyCode, int)
{
    for (int i = 1; i <= 4; ++i)
        imgFreccia(i).setPicture(Movimento::disegnoARiposo(i));
    if (opzBase.Value())
        lblStop_MouseUp();
    imgFreccia(1).setTag(u"Tasto rilasciato"_s);
    mnuTastiera_KeyUp(KeyCode);
}

void frmPrincipale::collegaFreccia(int Index)
{
    imgFreccia(Index).MouseDown.collega([this, Index](int, int, double, double) {
        const bool premuta = QGuiApplication::mouseButtons() != Qt::NoButton;
        m_frecciaPremuta = Index;
        imgFreccia_MouseDown(Index);
        // A message box that came up meanwhile keeps the release to itself.
        const bool lasciata = premuta && QGuiApplication::mouseButtons() == Qt::NoButton;
        if (lasciata && m_frecciaPremuta == Index)
            imgFreccia_MouseUp(Index);
    });
    imgFreccia(Index).MouseUp.collega([this, Index](int, int, double, double) {
        m_frecciaPremuta = 0;
        imgFreccia_MouseUp(Index);
    });
}

void frmPrincipale::imgFreccia_MouseDown(int Index)
{
    if (const int tasto = Movimento::tastoDellaFreccia(Index)) {
        KeyDown(tasto, 0);
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

void frmPrincipale::lblStop_MouseDown()
{
    premi(shpStop, lblStop);
}

void frmPrincipale::lblStop_MouseUp()
{
    rilascia(shpStop, lblStop, 2490, 3915);
}

void frmPrincipale::premi(Forma &forma, Etichetta &etichetta)
{
    forma.Move(forma.Left() + 50, forma.Top() + 50);
    etichetta.Move(forma.Left(), forma.Top());
}

void frmPrincipale::rilascia(Forma &forma, Etichetta &etichetta, double left, double top)
{
    forma.Move(left, top);
    etichetta.Move(left, top);
}
