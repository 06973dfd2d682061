// How the window looks, and its design values.
#include "RigaTagliata.h"
#include "frmEditor.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// 240 layout units: the window's rule of what lies under the pointer counts on it.
constexpr int latoPulsante = 16;
constexpr int latoVigilio = 32;

void separatorePrima(QMenu *menu, QAction *voce, const QString &nome)
{
    menu->insertSeparator(voce)->setObjectName(nome);
}

} // namespace

void frmEditor::disponi()
{
    separatorePrima(mnuFile, &mnuFileSalva, u"t1"_s);
    separatorePrima(mnuFile, &mnuFileEsci, u"t2"_s);
    separatorePrima(mnuIns, &mnuInsCondizione, u"t3"_s);

    mnuFileNuovo.setShortcut(QKeySequence::New);
    mnuFileApri.setShortcut(QKeySequence::Open);
    mnuFileSalva.setShortcut(QKeySequence::Save);
    mnuFileSalvacome.setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);

    lstMosse.setItemDelegate(new RigaTagliata(&lstMosse));
    lstMosse.setAccessibleName(u"Lista delle mosse"_s);
    // A long name must not widen the window: its tool tip has it whole.
    lblFile.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblFile.setMinimumHeight(lblFile.fontMetrics().height());
    setPredefinito(&pulEsegui);
    QFont grassetto = pulEsegui.font();
    grassetto.setBold(true);
    pulEsegui.setFont(grassetto);
    pulEsegui.setMinimumHeight(34);

    auto *pulsanti = new QVBoxLayout;
    disponiPulsanti(pulsanti);

    auto *corpo = new QHBoxLayout;
    corpo->setSpacing(8);
    corpo->addWidget(&lstMosse, 1);
    corpo->addLayout(pulsanti);

    auto *colonna = new QVBoxLayout(this);
    colonna->setMenuBar(&barraMenu);
    colonna->setContentsMargins(10, 8, 10, 10);
    colonna->setSpacing(8);
    colonna->addWidget(&lblFile);
    colonna->addLayout(corpo, 1);
    colonna->addWidget(&opzInsComandi);
    colonna->addWidget(&pulEsegui);
    // The longer of its two texts, its box and the room around them.
    constexpr int casella = 44;
    opzInsComandi.setMinimumWidth(
        fontMetrics().horizontalAdvance(u"Inserisci comandi nella lista (Disattivato)"_s) +
        casella);
    resize(qMax(330, minimumSizeHint().width()), 520);
}

void frmEditor::disponiPulsanti(QBoxLayout *colonna)
{
    const auto aggiungi = [&](Immagine &immagine, int lato, const QString &suggerimento) {
        immagine.setFixedSize(lato, lato);
        immagine.setToolTip(suggerimento);
        immagine.setAccessibleName(suggerimento);
        immagine.setCursor(Qt::PointingHandCursor);
        immagine.conTastiera();
        colonna->addWidget(&immagine, 0, Qt::AlignHCenter);
    };
    colonna->setSpacing(12);
    aggiungi(pulSu, latoPulsante, u"Sposta in su il comando selezionato"_s);
    aggiungi(pulGiu, latoPulsante, u"Sposta in giu il comando selezionato"_s);
    aggiungi(pulCanc, latoPulsante, u"Cancella il comando selezionato"_s);
    colonna->addSpacing(16);
    aggiungi(pulPausa, latoPulsante, u"Aggiunge una pausa"_s);
    aggiungi(pulFrase, latoPulsante, u"Aggiunge una frase"_s);
    aggiungi(pulSuono, latoPulsante, u"Aggiunge un suono"_s);
    colonna->addStretch();
    aggiungi(imgVigilio, latoVigilio, u"Apri il Vigilio"_s);
}

void frmEditor::Disegno()
{
    tmrEseguiMosse.setEnabled(false);
    tmrEseguiMosse.setInterval(2000);
    tmrEseguiMosse.setTag(u"0"_s);
    tmrAttivaAut.setEnabled(false);
    tmrAttivaAut.setInterval(1000);
    mnuInsRipeti.setTag(u"-1"_s);
    pulEsegui.setCaption(u"ESEGUI"_s);
    pulEsegui.setTag(u"0"_s);
    lstMosse.Clear();
    lstMosse.setTag({});
    lblFile.setCaption({});
    lblFile.setToolTip({});
    Finestre.setFileName({});
    Finestre.setFilter({});
    opzInsComandi.setValue(1);
    opzInsComandi_Click();
    imgVigilio.setPicture(1);
    normali();
}

void frmEditor::colloca()
{
    constexpr double distanza = 200;
    constexpr double piuInAlto = 1300;
    const ConsoleEditor::Posto console = m_console.posto();
    // Wide letters widen the window when it is shown: what stands beside it is reckoned with that.
    ensurePolished();
    layout()->activate();
    Move(console.Left + console.Width + distanza, console.Top - piuInAlto);
    // A console at the right edge of the last screen leaves no place beside it, and the user could
    // never reach the window there.
    const QScreen *suo = screen();
    if (suo->virtualGeometry().intersects(frameGeometry()))
        return;
    const QRect libero = suo->availableGeometry();
    const int aSinistra = Unita::pixel(console.Left - distanza) - frameGeometry().width();
    move(aSinistra >= libero.left()
             ? aSinistra
             : libero.right() - Unita::pixel(distanza) - frameGeometry().width(),
         qBound(libero.top(), y(), qMax(libero.top(), libero.bottom() + 1 - height())));
}
