#include "movelists/AspettoEditor.h"

#include "movelists/RigaTagliata.h"
#include "movelists/frmEditor.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// 240 layout units: frmEditor judges by this size whether the pointer is near a picture's edge.
constexpr int latoPulsante = 16;
constexpr int latoVigilio = 32;

void separatorePrima(QMenu *menu, QAction *voce, const QString &nome)
{
    menu->insertSeparator(voce)->setObjectName(nome);
}

void disponiMenu(frmEditor &e)
{
    separatorePrima(e.mnuFile, &e.mnuFileSalva, u"t1"_s);
    separatorePrima(e.mnuFile, &e.mnuFileEsci, u"t2"_s);
    separatorePrima(e.mnuIns, &e.mnuInsCondizione, u"t3"_s);

    e.mnuFileNuovo.setShortcut(QKeySequence::New);
    e.mnuFileApri.setShortcut(QKeySequence::Open);
    e.mnuFileSalva.setShortcut(QKeySequence::Save);
    e.mnuFileSalvacome.setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
}

void aggiungi(QBoxLayout *colonna, Immagine &immagine, int lato, const QString &suggerimento)
{
    immagine.setFixedSize(lato, lato);
    immagine.setToolTip(suggerimento);
    immagine.setAccessibleName(suggerimento);
    immagine.setCursor(Qt::PointingHandCursor);
    immagine.conTastiera();
    colonna->addWidget(&immagine, 0, Qt::AlignHCenter);
}

QLayout *disponiPulsanti(frmEditor &e)
{
    auto *colonna = new QVBoxLayout;
    colonna->setSpacing(12);
    aggiungi(colonna, e.pulSu, latoPulsante, u"Sposta in su il comando selezionato"_s);
    aggiungi(colonna, e.pulGiu, latoPulsante, u"Sposta in giu il comando selezionato"_s);
    aggiungi(colonna, e.pulCanc, latoPulsante, u"Cancella il comando selezionato"_s);
    colonna->addSpacing(16);
    aggiungi(colonna, e.pulPausa, latoPulsante, u"Aggiunge una pausa"_s);
    aggiungi(colonna, e.pulFrase, latoPulsante, u"Aggiunge una frase"_s);
    aggiungi(colonna, e.pulSuono, latoPulsante, u"Aggiunge un suono"_s);
    colonna->addStretch();
    aggiungi(colonna, e.imgVigilio, latoVigilio, u"Apri il Vigilio"_s);
    return colonna;
}

void vesti(frmEditor &e)
{
    e.lstMosse.setItemDelegate(new RigaTagliata(&e.lstMosse));
    // Long lines differ at their two ends: "Programma", and the program's name.
    e.lstMosse.setTextElideMode(Qt::ElideMiddle);
    e.lstMosse.setAccessibleName(u"Lista delle mosse"_s);
    // A long name must not widen the window: the tool tip shows it whole.
    e.lblFile.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    e.lblFile.setMinimumHeight(e.lblFile.fontMetrics().height());
    QFont grassetto = e.pulEsegui.font();
    grassetto.setBold(true);
    e.pulEsegui.setFont(grassetto);
    e.pulEsegui.setMinimumHeight(34);
    // The longer of its two texts, its box and the room around them.
    constexpr int casella = 44;
    e.opzInsComandi.setMinimumWidth(
        e.fontMetrics().horizontalAdvance(u"Inserisci comandi nella lista (Disattivato)"_s) +
        casella);
}

} // namespace

void disponiEditor(frmEditor &editor)
{
    disponiMenu(editor);
    vesti(editor);

    auto *corpo = new QHBoxLayout;
    corpo->setSpacing(8);
    corpo->addWidget(&editor.lstMosse, 1);
    corpo->addLayout(disponiPulsanti(editor));

    auto *colonna = new QVBoxLayout(&editor);
    colonna->setMenuBar(&editor.barraMenu);
    colonna->setContentsMargins(10, 8, 10, 10);
    colonna->setSpacing(8);
    colonna->addWidget(&editor.lblFile);
    colonna->addLayout(corpo, 1);
    colonna->addWidget(&editor.opzInsComandi);
    colonna->addWidget(&editor.pulEsegui);
    editor.resize(qMax(330, editor.minimumSizeHint().width()), 520);
}
