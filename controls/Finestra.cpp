#include "controls/Finestra.h"

#include "controls/Tasti.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace {

// The window that got the last Activate. It gets no other one when the user comes back to it from a
// message box or from another program.
QPointer<Finestra> ultimaAttiva;

// All windows of the program, the most recently active one first.
QList<Finestra *> &perAttivita()
{
    static QList<Finestra *> finestre;
    return finestre;
}

void ricordaAttiva(Finestra *finestra)
{
    ultimaAttiva = finestra;
    perAttivita().removeOne(finestra);
    perAttivita().prepend(finestra);
}

// While a window is being hidden, isVisible() is still true and isHidden() is true already.
bool siVede(const QWidget &finestra)
{
    return finestra.isVisible() && !finestra.isHidden();
}

bool eAperta(const QWidget &finestra)
{
    return siVede(finestra) && !finestra.isMinimized();
}

// A menu or the splash goes away by itself, and would leave a dialog without its window.
bool resta(const QWidget &finestra)
{
    return finestra.windowType() != Qt::Popup && finestra.windowType() != Qt::SplashScreen;
}

// X11 reports each repeat of a held key as a release and a press with the same time stamp. Qt marks
// the release as automatic only if the press is already in its queue, which is often not the case
// while a handler pumps events in a wait. So a release is held back until it is certain.
struct RilascioSospeso
{
    int codice;
    quint64 quando;
    std::function<void()> consegna;
};
std::optional<RilascioSospeso> sospeso;

// Milliseconds: the largest difference of the two time stamps, and how long the press may be late.
constexpr quint64 stessoMomento = 2;
constexpr int attesaDelTasto = 150;

void consegnaSospeso()
{
    if (const auto rilascio = std::exchange(sospeso, {}))
        rilascio->consegna();
}

void sospendi(QObject &finestra, RilascioSospeso rilascio)
{
    const quint64 quando = rilascio.quando;
    sospeso = std::move(rilascio);
    QTimer::singleShot(attesaDelTasto, &finestra, [quando] {
        if (sospeso && sospeso->quando == quando)
            consegnaSospeso();
    });
}

} // namespace

Finestra::Finestra(const QString &nome, const QString &titolo) : m_titolo(titolo)
{
    setObjectName(nome);
    setWindowTitle(titolo);
    setMouseTracking(true);
    perAttivita().append(this);
}

Finestra::~Finestra()
{
    perAttivita().removeOne(this);
}

Finestra *Finestra::Ultima()
{
    const auto trovata = std::ranges::find_if(perAttivita(), [](auto *f) { return siVede(*f); });
    return trovata == perAttivita().end() ? nullptr : *trovata;
}

QWidget *Finestra::Davanti()
{
    QWidget *modale = QApplication::activeModalWidget();
    if (modale && siVede(*modale))
        return modale;
    QWidget *inUso = QApplication::activeWindow();
    if (inUso && eAperta(*inUso) && resta(*inUso))
        return inUso;
    const auto prima = [](auto &&condizione) {
        const auto trovata = std::ranges::find_if(perAttivita(), condizione);
        return trovata == perAttivita().end() ? nullptr : *trovata;
    };
    if (Finestra *aperta = prima([](auto *f) { return eAperta(*f) && resta(*f); }))
        return aperta;
    if (Finestra *aperta = prima([](auto *f) { return eAperta(*f); }))
        return aperta;
    Finestra *ultima = Ultima();
    return ultima ? ultima : perAttivita().value(0);
}

bool Finestra::carica()
{
    if (m_caricata)
        return true;
    if (!m_inizializzata) {
        m_inizializzata = true;
        m_misura = size();
        Initialize();
    }
    m_caricata = true;
    Load();
    return m_caricata;
}

void Finestra::Mostra()
{
    if (Visible()) {
        riportaDavanti();
        return;
    }
    impostaPulsanti();
    if (!carica())
        return;
    show();
    Resize();
    ricordaAttiva(this);
    Activate();
}

void Finestra::riportaDavanti()
{
    if (isMinimized())
        QWidget::setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
}

// Sets the buttons of the title bar; without flags the window system chooses them.
void Finestra::impostaPulsanti()
{
    if (windowType() == Qt::SplashScreen)
        return;
    const bool fissa = minimumSize() == maximumSize();
    if (!m_dialogo && !fissa)
        return;
    Qt::WindowFlags come = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    come |= m_dialogo ? Qt::Dialog : Qt::Window | Qt::WindowMinimizeButtonHint;
    // Setting the flags creates the native window again.
    if (come != windowFlags())
        setWindowFlags(come);
}

void Finestra::MostraModale()
{
    if (Visible())
        return;
    setDialogo();
    impostaPulsanti();
    if (!carica())
        return;
    const QWidget *sotto = Davanti();
    setWindowModality(Qt::ApplicationModal);
    winId();
    if (sotto && sotto != this && sotto->windowHandle())
        windowHandle()->setTransientParent(sotto->windowHandle());
    Mostra();
    QEventLoop attesa;
    while (Visible())
        attesa.processEvents(QEventLoop::WaitForMoreEvents);
    setWindowModality(Qt::NonModal);
    // Next time the parent may be another window, even one that is shown over this one.
    windowHandle()->setTransientParent(nullptr);
}

void Finestra::Scarica()
{
    scarica(Chiusura::Codice);
}

void Finestra::scarica(Chiusura come)
{
    if (!m_caricata)
        return;
    bool rifiutata = false;
    QueryUnload(rifiutata, come);
    if (!rifiutata && m_caricata)
        Unload(rifiutata);
    if (rifiutata || !m_caricata)
        return;
    m_caricata = false;
    hide();
    if (ultimaAttiva == this)
        ultimaAttiva.clear();
    const EventiSospesi zitti;
    QWidget::setWindowState(Qt::WindowNoState);
    setWindowTitle(m_titolo);
    Disegno();
    resize(m_misura);
}

void Finestra::QueryUnload(bool &, Chiusura) {}

void Finestra::Unload(bool &) {}

void Finestra::KeyDown(int, int) {}

void Finestra::KeyUp(int, int) {}

int Finestra::WindowState() const
{
    const Qt::WindowStates stato = windowState();
    if (stato & Qt::WindowMinimized)
        return 1;
    return (stato & Qt::WindowMaximized) ? 2 : 0;
}

void Finestra::setWindowState(int stato)
{
    Qt::WindowStates nuovo = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (stato == 1)
        nuovo |= Qt::WindowMinimized;
    else if (stato == 2)
        nuovo |= Qt::WindowMaximized;
    QWidget::setWindowState(nuovo);
}

void Finestra::setPredefinito(Pulsante *pulsante)
{
    m_predefinito = pulsante;
    pulsante->setDefault(true);
}

void Finestra::setKeyPreview()
{
    qApp->installEventFilter(this);
}

void Finestra::attiva()
{
    if (ultimaAttiva == this || !Visible())
        return;
    ricordaAttiva(this);
    eseguiGestore([this] { Activate(); });
}

bool Finestra::event(QEvent *evento)
{
    const bool esito = QWidget::event(evento);
    if (evento->type() == QEvent::WindowActivate)
        attiva();
    return esito;
}

// Qt sends a key event that a widget ignores to its parents as well, always the same object; only
// the first widget counts. State outside the event cannot tell, since a handler may move the focus
// or handle other keys meanwhile. So the event is marked, with the highest bit of its time stamp,
// which no clock reaches.
static bool primaTappa(QKeyEvent &tasto)
{
    constexpr quint64 segno = quint64(1) << 63;
    if (tasto.timestamp() & segno)
        return false;
    tasto.setTimestamp(tasto.timestamp() | segno);
    return true;
}

bool Finestra::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (evento->type() != QEvent::KeyPress && evento->type() != QEvent::KeyRelease)
        return false;
    const auto *controllo = qobject_cast<QWidget *>(oggetto);
    if (!controllo || controllo->window() != this)
        return false;
    auto *tasto = static_cast<QKeyEvent *>(evento);
    const quint64 quando = tasto->timestamp();
    if (!primaTappa(*tasto))
        return false;
    const int codice = Tasti::codice(*tasto);
    const int maiuscole = numeroMaiuscole(tasto->modifiers());
    const bool premuto = evento->type() == QEvent::KeyPress;
    if (premuto && sospeso && sospeso->codice == codice &&
        quando - sospeso->quando <= stessoMomento)
        sospeso.reset(); // the key is still held
    else
        consegnaSospeso();
    if (premuto) {
        eseguiGestore([&] { KeyDown(codice, maiuscole); });
    } else if (!tasto->isAutoRepeat()) {
        const auto consegna = [questa = QPointer(this), codice, maiuscole] {
            if (questa)
                eseguiGestore([&] { questa->KeyUp(codice, maiuscole); });
        };
        if (QGuiApplication::platformName() == u"xcb")
            sospendi(*this, {codice, quando, consegna});
        else
            consegna();
    }
    return false;
}

void Finestra::closeEvent(QCloseEvent *evento)
{
    // Ignored because scarica() decides if the window closes, not Qt.
    evento->ignore();
    eseguiGestore([this] { scarica(Chiusura::Utente); });
}

void Finestra::changeEvent(QEvent *evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::WindowStateChange && m_caricata)
        eseguiGestore([this] { Resize(); });
}

void Finestra::resizeEvent(QResizeEvent *evento)
{
    QWidget::resizeEvent(evento);
    if (m_caricata && Visible())
        eseguiGestore([this] { Resize(); });
}

void Finestra::mouseMoveEvent(QMouseEvent *)
{
    eseguiGestore([this] { MouseMove(); });
}

void Finestra::keyPressEvent(QKeyEvent *evento)
{
    const int codice = Tasti::codice(*evento);
    if (codice == Tasti::Invio) {
        auto *conFuoco = qobject_cast<Pulsante *>(focusWidget());
        if (Pulsante *pulsante = conFuoco ? conFuoco : m_predefinito)
            pulsante->click();
    } else if (codice == Tasti::Esc && m_annulla) {
        m_annulla->click();
    } else {
        QWidget::keyPressEvent(evento);
    }
}
