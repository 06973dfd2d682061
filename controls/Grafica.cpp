#include "controls/Grafica.h"

#include <QFocusFrame>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

QIcon ListaImmagini::immagine(int numero) const
{
    if (numero < 1 || numero > ListCount())
        throw Errore(Errore::ProprietaNonValida);
    return m_immagini[static_cast<size_t>(numero - 1)];
}

Etichetta::Etichetta(const QString &nome, QWidget *dentro, const QString &testo)
    : Cliccabile(nome, dentro)
{
    setTextFormat(Qt::PlainText);
    setText(testo);
}

void Etichetta::setCaption(const QString &testo)
{
    if (testo == text())
        return;
    setText(testo);
    Change();
}

void Etichetta::setForeColor(const QColor &colore)
{
    QPalette tavolozza = palette();
    tavolozza.setColor(QPalette::WindowText, colore);
    setPalette(tavolozza);
}

Immagine::Immagine(const QString &nome, QWidget *dentro, const ListaImmagini *lista, int numero)
    : Cliccabile(nome, dentro), m_lista(lista)
{
    if (numero != 0)
        setPicture(numero);
}

Immagine::Immagine(const QString &nome, QWidget *dentro, const QIcon &disegno)
    : Cliccabile(nome, dentro), m_disegno(disegno)
{
}

void Immagine::setPicture(int numero)
{
    if (numero == 0) {
        m_disegno = {};
    } else {
        if (!m_lista)
            throw Errore(Errore::ProprietaNonValida);
        m_disegno = m_lista->immagine(numero);
    }
    m_numero = numero;
    update();
    if (spunta())
        annunciaSpunta(*this);
}

void Immagine::setDisegno(const QIcon &disegno)
{
    m_numero = 0;
    m_disegno = disegno;
    update();
}

void Immagine::setBorderStyle(int bordo)
{
    if (bordo != 0 && bordo != 1)
        throw Errore(Errore::ProprietaNonValida);
    if (bordo == m_bordo)
        return;
    m_bordo = bordo;
    update();
}

namespace {

// The focus ring. It is drawn around the picture, because on a small one it would hide too much.
class Anello : public QFocusFrame
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter pittore(this);
        pittore.setRenderHint(QPainter::Antialiasing);
        pittore.setPen(QPen(palette().color(QPalette::Highlight), 2));
        pittore.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
};

// Shows the ring while the control has the focus.
class Fuoco : public QObject
{
public:
    explicit Fuoco(QWidget &controllo) : QObject(&controllo), m_controllo(controllo)
    {
        controllo.installEventFilter(this);
    }
    ~Fuoco() override { delete m_anello; }
    Q_DISABLE_COPY_MOVE(Fuoco)

protected:
    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::FocusIn) {
            delete m_anello;
            m_anello = new Anello;
            m_anello->setWidget(&m_controllo);
        } else if (evento->type() == QEvent::FocusOut) {
            delete m_anello;
        }
        return false;
    }

private:
    QWidget &m_controllo;
    // Qt makes it a child of the control's parent, which may delete it first.
    QPointer<Anello> m_anello;
};

} // namespace

void Immagine::conTastiera()
{
    if (!m_conTastiera)
        new Fuoco(*this);
    m_conTastiera = true;
    // Not by a click: a text box must not lose the focus when a picture is clicked.
    setFocusPolicy(Qt::TabFocus);
}

std::optional<bool> Immagine::spunta() const
{
    if (m_spuntata == 0)
        return {};
    return m_numero == m_spuntata;
}

void Immagine::keyPressEvent(QKeyEvent *evento)
{
    const int tasto = evento->key();
    // On a check box Enter is left for the window's default button, as in every dialog.
    const bool invio = (tasto == Qt::Key_Return || tasto == Qt::Key_Enter) && m_spuntata == 0;
    if (m_conTastiera && (tasto == Qt::Key_Space || invio)) {
        // A held key is one click.
        if (!evento->isAutoRepeat())
            aziona();
    } else {
        Cliccabile::keyPressEvent(evento);
    }
}

void Immagine::paintEvent(QPaintEvent *)
{
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_disegno.isNull())
        m_disegno.paint(&pittore, rect());
    if (m_bordo == 1) {
        pittore.setPen(palette().color(QPalette::WindowText));
        pittore.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

Forma::Forma(const QString &nome, QWidget *dentro) : Controllo(nome, dentro)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Forma::setColori(const QColor &fondo, const QColor &bordo, int raggio, int spessore)
{
    m_fondo = fondo;
    m_bordo = bordo;
    m_raggio = raggio;
    m_spessore = spessore;
    update();
}

void Forma::paintEvent(QPaintEvent *)
{
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::Antialiasing, m_raggio > 0);
    pittore.setBrush(m_fondo);
    pittore.setPen(m_spessore > 0
                       ? QPen(m_bordo, m_spessore, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin)
                       : QPen(Qt::NoPen));
    const double mezzo = m_spessore / 2.0;
    pittore.drawRoundedRect(QRectF(rect()).adjusted(mezzo, mezzo, -mezzo, -mezzo), m_raggio,
                            m_raggio);
}

Superficie::Superficie(const QString &nome, QWidget *dentro, Scala scala) : Cliccabile(nome, dentro)
{
    if (scala == Scala::Pixel)
        unitaPerPixel = 1;
}

void Superficie::setSfondo(const QIcon &disegno)
{
    m_sfondo = disegno;
    update();
}

void Superficie::Riempi(const QRect &rettangolo, const QColor &colore)
{
    adatta();
    QPainter(&m_disegno).fillRect(rettangolo, colore);
    update(rettangolo);
}

void Superficie::Dipingi(QPoint angolo, const QImage &immagine)
{
    adatta();
    QPainter pittore(&m_disegno);
    pittore.setCompositionMode(QPainter::CompositionMode_Source);
    pittore.drawImage(angolo, immagine);
    update(QRect(angolo, immagine.size()));
}

void Superficie::Stampa(const QString &testo)
{
    adatta();
    QPainter pittore(&m_disegno);
    pittore.setPen(palette().color(QPalette::WindowText));
    pittore.setFont(font());
    pittore.drawText(QRect(QPoint(4, 4), size()), Qt::AlignLeft | Qt::AlignTop, testo);
    update();
}

void Superficie::Pulisci()
{
    m_disegno.fill(Qt::transparent);
    update();
}

// Fits the image to the surface. Called before drawing, too: before the first showing Qt sends no
// resize event.
void Superficie::adatta()
{
    // It only grows, so that a drawing is not lost if the window is made smaller and larger again.
    const QSize dovuta = size().expandedTo(m_disegno.deviceIndependentSize().toSize());
    // Pixels of the screen for each logical pixel.
    const double finezza = devicePixelRatioF();
    if (dovuta != m_disegno.deviceIndependentSize().toSize() ||
        finezza != m_disegno.devicePixelRatio()) {
        QImage nuovo((QSizeF(dovuta) * finezza).toSize(), QImage::Format_ARGB32_Premultiplied);
        nuovo.setDevicePixelRatio(finezza);
        nuovo.fill(Qt::transparent);
        if (!m_disegno.isNull())
            QPainter(&nuovo).drawImage(0, 0, m_disegno);
        m_disegno = nuovo;
    }
}

void Superficie::resizeEvent(QResizeEvent *)
{
    adatta();
    Resize();
}

void Superficie::paintEvent(QPaintEvent *evento)
{
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_sfondo.isNull())
        m_sfondo.paint(&pittore, rect());
    // Without smoothing: drawn blocks keep sharp edges.
    pittore.setRenderHint(QPainter::SmoothPixmapTransform, false);
    pittore.setClipRect(evento->rect());
    pittore.drawImage(0, 0, m_disegno);
}
