#include "controls/Pulsanti.h"

#include "controls/CasellaTesto.h"
#include "controls/Tasti.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Keeps the focus on a button: on Up and Down Qt would move it to a neighbour, and a held key would
// then change the neighbour's value.
class FrecceFerme : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() != QEvent::KeyPress)
            return false;
        const int codice = Tasti::codice(*static_cast<QKeyEvent *>(evento));
        if (codice != Tasti::Su && codice != Tasti::Giu)
            return false;
        evento->ignore();
        return true;
    }
};

} // namespace

Pulsante::Pulsante(const QString &nome, QWidget *dentro, const QString &testo)
    : Controllo(nome, dentro)
{
    installEventFilter(new FrecceFerme(this));
    setText(testo);
    connect(this, &QPushButton::clicked, this, [this] { Click(); });
}

void Pulsante::mousePressEvent(QMouseEvent *evento)
{
    Controllo::mousePressEvent(evento);
    // The control that had the focus may have shown a message box now, and the box then got the
    // release of the mouse. It does not come here any more, and the button must not stay down.
    const auto rilasciato = [] { return !(QGuiApplication::mouseButtons() & Qt::LeftButton); };
    if (evento->button() != Qt::LeftButton || !evento->spontaneous() || !rilasciato())
        return;
    const auto alza = [this, rilasciato] {
        if (rilasciato())
            setDown(false);
    };
    QMetaObject::invokeMethod(this, alza, Qt::QueuedConnection);
}

CasellaSpunta::CasellaSpunta(const QString &nome, QWidget *dentro, const QString &testo)
    : Controllo(nome, dentro)
{
    setText(testo);
    connect(this, &QCheckBox::toggled, this, [this] { Click(); });
}

void CasellaSpunta::setValue(int valore)
{
    if (valore != 0 && valore != 1)
        throw Errore(Errore::ProprietaNonValida);
    setChecked(valore == 1);
}

void CasellaSpunta::setForeColor(const QColor &colore, const QColor &fondo)
{
    // The same padding with and without a ground, so that the text does not move.
    const QString aspetto = u"QCheckBox { padding: 4px 7px; border-radius: 5px; "_s;
    setStyleSheet(aspetto + (fondo.isValid() ? u"background: %1; }"_s.arg(fondo.name()) : u"}"_s));
    // After the style sheet, which resets the palette.
    QPalette tavolozza = palette();
    tavolozza.setColor(QPalette::WindowText, colore);
    // The colour of the mark; the style darkens it by the same factor.
    tavolozza.setColor(QPalette::Text, colore.lighter(120));
    setPalette(tavolozza);
}

CasellaOpzione::CasellaOpzione(const QString &nome, QWidget *dentro, const QString &testo)
    : Controllo(nome, dentro)
{
    setText(testo);
    connect(this, &QRadioButton::toggled, this, [this](bool scelta) {
        if (scelta)
            Click();
    });
}

void CasellaOpzione::setValue(bool valore)
{
    // Qt does not clear the chosen box of an exclusive group.
    setAutoExclusive(valore);
    setChecked(valore);
    setAutoExclusive(true);
}

void CasellaOpzione::setBackColor(const QColor &colore)
{
    m_fondo = colore;
    // The grounds used are light, so the text on them is black.
    QPalette tavolozza = palette();
    tavolozza.setColor(QPalette::WindowText, Qt::black);
    setPalette(tavolozza);
    update();
}

void CasellaOpzione::paintEvent(QPaintEvent *evento)
{
    if (m_fondo.isValid()) {
        QPainter pittore(this);
        pittore.setRenderHint(QPainter::Antialiasing);
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(m_fondo);
        pittore.drawRoundedRect(rect(), 4, 4);
    }
    QRadioButton::paintEvent(evento);
}

namespace {

// An arrow of the spin bar. It takes no keys: a key of the window must neither change the value nor
// move the focus to a neighbour. A handler of the bar may move the focus while the arrow is held;
// Qt would release the arrow then, this one goes on repeating.
class FrecciaSuGiu : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void keyPressEvent(QKeyEvent *evento) override { evento->ignore(); }
    void keyReleaseEvent(QKeyEvent *evento) override { evento->ignore(); }
    void focusOutEvent(QFocusEvent *evento) override
    {
        const bool tenuta = isDown() && evento->reason() == Qt::OtherFocusReason;
        QToolButton::focusOutEvent(evento);
        if (tenuta)
            setDown(true);
    }
};

} // namespace

SuGiu::SuGiu(const QString &nome, QWidget *dentro, int minimo, int massimo, int valore)
    : Controllo(nome, dentro), m_minimo(minimo), m_massimo(massimo), m_valore(valore)
{
    auto *colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    const auto freccia = [&](Qt::ArrowType verso, int di, const QString &cosa,
                             const QString &azione) {
        auto *pulsante = new FrecciaSuGiu(this);
        pulsante->setObjectName(nome + cosa);
        pulsante->setAccessibleName(azione);
        pulsante->setArrowType(verso);
        pulsante->setAutoRepeat(true);
        pulsante->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        pulsante->setFocusPolicy(Qt::ClickFocus);
        pulsante->setMinimumSize(0, 0);
        connect(pulsante, &QToolButton::clicked, this, [this, di] { passo(di); });
        colonna->addWidget(pulsante);
    };
    freccia(Qt::UpArrow, +1, u".Su"_s, u"Aumenta"_s);
    freccia(Qt::DownArrow, -1, u".Giu"_s, u"Diminuisci"_s);
    setFixedWidth(20);
}

void SuGiu::setValue(int valore)
{
    if (valore < m_minimo || valore > m_massimo)
        throw Errore(Errore::ProprietaNonValida);
    if (valore == m_valore)
        return;
    m_valore = valore;
    Change();
}

void SuGiu::conFrecce(CasellaTesto &casella)
{
    m_casella = &casella;
    casella.installEventFilter(this);
}

bool SuGiu::eventFilter(QObject *, QEvent *evento)
{
    if (evento->type() != QEvent::KeyPress)
        return false;
    const int tasto = Tasti::codice(*static_cast<QKeyEvent *>(evento));
    if (tasto != Tasti::Su && tasto != Tasti::Giu)
        return false;
    m_casella->LostFocus();
    // An empty box has no number to change.
    if (!m_casella->Text().isEmpty())
        passo(tasto == Tasti::Su ? +1 : -1);
    return true;
}

void SuGiu::passo(int di)
{
    if (m_valore + di >= m_minimo && m_valore + di <= m_massimo)
        setValue(m_valore + di);
}
