#include "controls/Barre.h"

#include "controls/Tasti.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

PulsanteBarra::PulsanteBarra(const QString &nome, QWidget *dentro, const ListaImmagini *lista)
    : QToolButton(dentro), m_lista(lista)
{
    setObjectName(nome);
    setAutoRaise(true);
    setIconSize({32, 32});
    setFocusPolicy(Qt::TabFocus);
}

void PulsanteBarra::setImage(int numero)
{
    setIcon(m_lista->immagine(numero));
    m_immagine = numero;
}

void PulsanteBarra::setToolTipText(const QString &testo)
{
    setToolTip(testo);
    setAccessibleName(testo);
}

void PulsanteBarra::keyPressEvent(QKeyEvent *evento)
{
    if (Tasti::codice(*evento) != Tasti::Invio)
        QToolButton::keyPressEvent(evento);
    else if (!evento->isAutoRepeat())
        setDown(true);
}

void PulsanteBarra::keyReleaseEvent(QKeyEvent *evento)
{
    if (Tasti::codice(*evento) != Tasti::Invio) {
        QToolButton::keyReleaseEvent(evento);
    } else if (!evento->isAutoRepeat() && isDown()) {
        setDown(false);
        click();
    }
}

BarraDiPulsanti::BarraDiPulsanti(const QString &nome, QWidget *dentro, const ListaImmagini *lista)
    : Controllo(nome, dentro), m_lista(lista)
{
    auto *riga = new QHBoxLayout(this);
    riga->setContentsMargins(6, 4, 6, 4);
    riga->setSpacing(4);
    riga->setAlignment(Qt::AlignLeft);
}

PulsanteBarra *BarraDiPulsanti::nuovo()
{
    const QString nome = u"%1.Buttons(%2)"_s.arg(objectName()).arg(m_pulsanti.size() + 1);
    auto *pulsante = new PulsanteBarra(nome, this, m_lista);
    layout()->addWidget(pulsante);
    m_pulsanti.push_back(pulsante);
    return pulsante;
}

void BarraDiPulsanti::aggiungi(int immagine, const QString &suggerimento)
{
    PulsanteBarra *pulsante = nuovo();
    pulsante->setImage(immagine);
    pulsante->setToolTipText(suggerimento);
    connect(pulsante, &QToolButton::clicked, this, [this, pulsante] { ButtonClick(*pulsante); });
}

void BarraDiPulsanti::aggiungiSeparatore()
{
    PulsanteBarra *spazio = nuovo();
    spazio->setFocusPolicy(Qt::NoFocus);
    spazio->setAccessibleName(u"Separatore"_s);
    spazio->setAttribute(Qt::WA_TransparentForMouseEvents);
    spazio->setFixedSize(12, 32);
    auto *linea = new QFrame(spazio);
    linea->setFrameShape(QFrame::VLine);
    linea->setFrameShadow(QFrame::Sunken);
    linea->setGeometry(5, 2, 2, 28);
}

PulsanteBarra &BarraDiPulsanti::Buttons(int numero)
{
    if (numero < 1 || numero > static_cast<int>(m_pulsanti.size()))
        throw Errore(Errore::ProprietaNonValida);
    return *m_pulsanti[static_cast<size_t>(numero - 1)];
}

BarraDiStato::BarraDiStato(const QString &nome, QWidget *dentro, const std::vector<int> &larghezze)
    : Controllo(nome, dentro)
{
    auto *riga = new QHBoxLayout(this);
    riga->setContentsMargins(4, 2, 4, 2);
    riga->setSpacing(4);
    for (const int larghezza : larghezze) {
        auto *nuovo = new QLabel(this);
        nuovo->setObjectName(u"%1.Panels(%2)"_s.arg(nome).arg(m_pannelli.size() + 1));
        nuovo->setTextFormat(Qt::PlainText);
        nuovo->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        nuovo->setMargin(2);
        if (larghezza > 0) {
            nuovo->setFixedWidth(larghezza);
        } else {
            // A long message must not widen the window.
            nuovo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        }
        riga->addWidget(nuovo, larghezza > 0 ? 0 : 1);
        m_pannelli.push_back(nuovo);
    }
}

QLabel &BarraDiStato::pannello(int numero) const
{
    if (numero < 1 || numero > static_cast<int>(m_pannelli.size()))
        throw Errore(Errore::ProprietaNonValida);
    return *m_pannelli[static_cast<size_t>(numero - 1)];
}

BarraDiCaricamento::BarraDiCaricamento(const QString &nome, QWidget *dentro, int minimo,
                                       int massimo)
    : Controllo(nome, dentro)
{
    setRange(minimo, massimo);
    setValue(minimo);
    setTextVisible(false);
}

void BarraDiCaricamento::setValore(int valore)
{
    if (valore < minimum() || valore > maximum())
        throw Errore(Errore::ProprietaNonValida);
    setValue(valore);
}
