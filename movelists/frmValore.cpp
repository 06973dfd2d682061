#include "movelists/frmValore.h"

#include "base/Numeri.h"
#include "controls/Messaggi.h"
#include "movelists/ModoValore.h"
#include "shell/AggiungiALista.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

frmValore::frmValore() : Finestra(u"frmValore"_s, u"Inserisci il valore"_s)
{
    disponi();
    Disegno();
    cbInfo.Click.collega(this, &frmValore::cbInfo_Click);
    txtValore.Change.collega(this, &frmValore::txtValore_Change);
    txtValore.KeyPress.collega(soloCifre);
    txtValore.LostFocus.collega(this, &frmValore::txtValore_LostFocus);
    pulOK.Click.collega(this, &frmValore::pulOK_Click);
}

void frmValore::disponi()
{
    txtValore.setAccessibleName(u"Numero"_s);
    txtValore.setAlignment(Qt::AlignRight);
    txtValore.setFixedWidth(90);
    cbInfo.setMaxVisibleItems(16);
    cbInfo.setAccessibleName(u"Informazioni"_s);
    lblInfo.setBuddy(&cbInfo);
    setDialogo();
    setPredefinito(&pulOK);

    auto *scelta = new QVBoxLayout;
    scelta->setSpacing(4);
    scelta->addWidget(&lblInfo);
    scelta->addWidget(&cbInfo);

    auto *riga = new QHBoxLayout;
    riga->setSpacing(12);
    riga->addWidget(&txtValore, 0, Qt::AlignBottom);
    riga->addLayout(scelta, 1);

    auto *pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(&pulOK);

    auto *colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(14, 14, 14, 14);
    colonna->setSpacing(16);
    colonna->addLayout(riga);
    colonna->addStretch();
    colonna->addLayout(pulsanti);
    // Wide enough for the longest phrase and for the longest title.
    constexpr int freccia = 44; // logical pixels, with the margins around the text
    int larghezza = 360;
    for (const QString &nome : {u"Frase"_s, u"Suono"_s, u"Ripeti"_s}) {
        const auto modo = Modi::cerca(nome);
        for (const QString &voce : modo->voci)
            larghezza = qMax(larghezza, fontMetrics().horizontalAdvance(voce) + freccia);
    }
    cbInfo.setMinimumWidth(larghezza);
    txtValore.setFixedHeight(cbInfo.sizeHint().height());
    resize(minimumSizeHint());
}

void frmValore::Disegno()
{
    txtValore.setText(u"0"_s);
    txtValore.setTag({});
    lblInfo.setCaption(u"Informazioni:"_s);
    cbInfo.Clear();
}

void frmValore::Activate()
{
    if (const auto modo = Modi::cerca(Tag())) {
        setCaption(modo->titolo);
        txtValore.setTag(QString::number(modo->limite));
        lblInfo.setCaption(modo->etichetta);
        cbInfo.Clear();
        AggiungiVoci(cbInfo, modo->voci);
        cbInfo.setListIndex(0);
    }
    passaErrori([this] { txtValore.SetFocus(); });
    txtValore.selectAll();
}

double frmValore::numero() const
{
    return Numeri::Valore(txtValore.Text());
}

double frmValore::limite() const
{
    return Numeri::Valore(txtValore.Tag());
}

void frmValore::cbInfo_Click()
{
    if (numerata())
        txtValore.setText(QString::number(cbInfo.ListIndex() + 1));
    else if (ripeti())
        txtValore.setText(QString::number(cbInfo.ListIndex()));
}

void frmValore::txtValore_Change()
{
    if (numerata())
        passaErrori([this] { cbInfo.setListIndex(Numeri::Intero(numero()) - 1); });
    else if (ripeti())
        passaErrori([this] { cbInfo.setListIndex(Numeri::Intero(numero())); });
}

void frmValore::txtValore_LostFocus()
{
    if (numero() > limite())
        txtValore.setText(txtValore.Tag());
    if (!ripeti() && numero() == 0)
        txtValore.setText(u"1"_s);
    txtValore_Change();
}

// With the mouse the box has lost the focus by now, and what it holds is in order; with Enter it
// has not.
void frmValore::pulOK_Click()
{
    if (txtValore.Text().isEmpty())
        rifiuta(u"Non hai impostato il numero!"_s);
    else if (!ripeti() && numero() == 0)
        rifiuta(u"Lo zero non si può mettere"_s);
    else if (numero() > limite())
        rifiuta(u"Il numero impostato è troppo alto!"_s);
    else
        Nascondi();
}

void frmValore::rifiuta(const QString &perche)
{
    messaggio(perche);
    passaErrori([this] { txtValore.SetFocus(); });
}

void frmValore::QueryUnload(bool &Cancel, Chiusura UnloadMode)
{
    if (UnloadMode != Chiusura::Utente)
        return;
    Cancel = true;
    setTag(u"Annulla"_s);
    Nascondi();
}
