// How the window looks, and its design values.
#include "movelists/PostoAccanto.h"
#include "movelists/RigaTagliata.h"
#include "movelists/frmEditor.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QWindow>

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
    // What tells one long line from the next stands at its ends: "Programma", and the program.
    lstMosse.setTextElideMode(Qt::ElideMiddle);
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

// What the window system puts around a window. It tells only when a window is shown: before that,
// what it has put around another one holds.
static QMargins cornice(const QWidget &finestra)
{
    const auto sua = [](const QWidget &quale) {
        return quale.windowHandle() ? quale.windowHandle()->frameMargins() : QMargins();
    };
    if (const QMargins propria = sua(finestra); !propria.isNull())
        return propria;
    for (const QWidget *altra : QApplication::topLevelWidgets()) {
        if (altra->isVisible() && qobject_cast<const Finestra *>(altra) && !sua(*altra).isNull())
            return sua(*altra);
    }
    return {};
}

static QList<QRect> schermi()
{
    QList<QRect> liberi;
    for (const QScreen *schermo : QGuiApplication::screens())
        liberi += schermo->availableGeometry();
    return liberi;
}

void frmEditor::colloca()
{
    constexpr double distanza = 200;
    constexpr double piuInAlto = 1300;
    const ConsoleEditor::Posto console = m_console.posto();
    // Wide letters widen the window when it is shown: what stands beside it is reckoned with that.
    ensurePolished();
    layout()->activate();
    metti(postoAccanto(
        {Unita::pixel(console.Left), Unita::pixel(console.Top), Unita::pixel(console.Width), 1},
        size().grownBy(cornice(*this)), {Unita::pixel(distanza), Unita::pixel(piuInAlto)},
        schermi()));
}

void frmEditor::metti(const QRect &conCornice)
{
    const QMargins bordi = cornice(*this);
    if (windowHandle()) {
        setGeometry(conCornice.marginsRemoved(bordi));
    } else {
        resize(conCornice.size().shrunkBy(bordi));
        move(conCornice.topLeft());
    }
}

// The screen on which the window was may be gone by the time the console brings it back, and its
// own frame is known only now.
void frmEditor::rientra()
{
    if (WindowState() != 0)
        return;
    const QRect conCornice = geometry().marginsAdded(cornice(*this));
    if (const QRect visibile = riportata(conCornice, schermi()); visibile != conCornice)
        metti(visibile);
}

void frmEditor::showEvent(QShowEvent *evento)
{
    Finestra::showEvent(evento);
    if (evento->spontaneous())
        return;
    m_daRivedere = true;
    windowHandle()->installEventFilter(this);
}
