#include "vision/frmCamera.h"

#include "base/Numeri.h"
#include "base/Pompa.h"
#include "controls/Tasti.h"
#include "vision/Mosaico.h"
#include "vision/RecordImmagine.h"

#include <QKeyEvent>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

// The zoom at the first showing: logical pixels for each pixel of the frame.
constexpr int zoomIniziale = 8;
// The step of an arrow key with the control key, in pixels of the frame.
constexpr int passoLungo = 10;
// A limit for the reads that empty the port, so that a robot that never stops sending cannot keep
// the program here. Each read takes up to 1024 bytes.
constexpr int lettureMassime = 256;

} // namespace

frmCamera::frmCamera(const ControlliVideo &console, ::frmNomeImmagine &nomeImmagine)
    : Finestra(u"frmCamera"_s, u"Videocamera"_s),
      Schermo(u"Schermo"_s, this, Superficie::Scala::Pixel),
      shpSelezione(u"shpSelezione"_s, &Schermo),
      shpMirino(u"shpMirino"_s, &Schermo),
      shpImgRilevata(u"shpImgRilevata"_s, &Schermo),
      lblNomeImmagine(u"lblNomeImmagine"_s, &Schermo),
      c(console),
      frmNomeImmagine(nomeImmagine)
{
    legaTag();
    disponi();
    Disegno();
    Schermo.Resize.collega(this, &frmCamera::Schermo_Resize);
    Schermo.MouseDown.collega(this, &frmCamera::Schermo_MouseDown);
    Schermo.MouseMove.collega(this, &frmCamera::Schermo_MouseMove);
    Schermo.MouseUp.collega(this, &frmCamera::Schermo_MouseUp);
    Schermo.DblClick.collega(this, &frmCamera::Schermo_DblClick);
}

frmCamera::~frmCamera()
{
    c.BarraPulsanti.mostraTag({}, {});
}

// Ties the Tags to the state that they show. A text that is out of range is ignored.
void frmCamera::legaTag()
{
    c.BarraPulsanti.mostraTag(
        [this] { return m_video.richiesto() ? u"Camera"_s : QString(); },
        [this](const QString &testo) { m_video.chiedi(testo == u"Camera"_s); });
    mostraTag([this] { return QString::number(m_video.scala()); },
              [this](const QString &testo) {
                  passaErrori([&] { m_video.impostaScala(Numeri::Byte(testo)); });
              });
    Schermo.mostraTag([this] { return QString::number(m_video.zoom()); },
                      [this](const QString &testo) {
                          passaErrori([&] { m_video.impostaZoom(Numeri::Intero(testo)); });
                      });
    shpSelezione.mostraTag(
        [this] { return m_selezione.mai() ? u"0"_s : Numeri::TestoLogico(m_selezione.finita()); },
        [this](const QString &testo) {
            passaErrori([&] {
                if (Numeri::Logico(testo))
                    m_selezione.finisci();
                else
                    m_selezione.lascia();
            });
        });
}

void frmCamera::disponi()
{
    const QColor scuro(0x20, 0x24, 0x28);
    const QColor giallo(0xFF, 0xD4, 0x2A);
    QPalette tavolozza = Schermo.palette();
    tavolozza.setColor(QPalette::Window, scuro);
    tavolozza.setColor(QPalette::WindowText, QColor(0xE8, 0xEA, 0xEC));
    Schermo.setPalette(tavolozza);
    Schermo.setAutoFillBackground(true);
    Schermo.setCursor(Qt::CrossCursor);
    Schermo.setToolTip(u"Doppio click: chiusura e riavvio ricezione delle immagini."_s);
    Schermo.setAccessibleName(u"Immagine della videocamera"_s);
    Schermo.setAccessibleDescription(
        u"Frecce e barra spaziatrice: scelta di un'area. F5: riavvio della ricezione."_s);
    Schermo.setFocusPolicy(Qt::StrongFocus);

    shpSelezione.setColori(QColor(255, 255, 255, 40), Qt::white);
    shpImgRilevata.setColori(Qt::transparent, giallo);
    // Mouse events go to Schermo, as they do on the shapes.
    lblNomeImmagine.setAttribute(Qt::WA_TransparentForMouseEvents);
    lblNomeImmagine.setForeColor(giallo);
    // A dark background, slightly transparent, makes the name readable on every picture.
    QPalette targa = lblNomeImmagine.palette();
    targa.setColor(QPalette::Window, QColor(scuro.red(), scuro.green(), scuro.blue(), 215));
    lblNomeImmagine.setPalette(targa);
    lblNomeImmagine.setAutoFillBackground(true);
    lblNomeImmagine.setContentsMargins(4, 0, 4, 0);

    // In a smaller window the zoom would be 0.
    setMinimumSize(Fotogramma::Colonne, Fotogramma::Righe);
    // The picture begins one enlarged pixel away from the upper left corner. The same margin is
    // left on the right and at the bottom.
    resize((Fotogramma::Colonne + 2) * zoomIniziale, (Fotogramma::Righe + 2) * zoomIniziale);
}

void frmCamera::Disegno()
{
    m_video.azzera();
    m_selezione.azzera();
    Schermo.Pulisci();
    // A size of 1 by 1, so that the next showing resizes it, which sets the zoom.
    Schermo.resize(1, 1);
    shpSelezione.hide();
    shpImgRilevata.hide();
    lblNomeImmagine.hide();
    lasciaMirino();
    shpMirino.azzera();
}

void frmCamera::Load()
{
    if (!m_video.richiesto()) {
        Scarica();
        return;
    }
    // Only the inner part can be placed, because the size of the window's frame is not known yet.
    // The frame is as wide on the left as on the right, so the window is centred with it, too.
    const QRect schermo = screen()->availableGeometry();
    setGeometry(qMax(schermo.x(), schermo.x() + (schermo.width() - width()) / 2),
                schermo.y() + schermo.height() / 12, width(), height());
    AvviaRicezione(m_video.apri());
}

void frmCamera::Activate()
{
    if (!m_video.acceso())
        stampaFallito();
}

void frmCamera::stampaFallito()
{
    Schermo.Stampa(u"Fallito"_s);
}

void frmCamera::Resize()
{
    if (WindowState() != 1)
        Schermo.resize(size());
}

void frmCamera::Unload(bool &Cancel)
{
    switch (m_video.stato()) {
    case Video::Stato::Chiuso:
        // The window was shown without the toolbar: nothing was started.
        return;
    case Video::Stato::InChiusura:
        // This is a second Unload while the first one is emptying the line; the first one closes
        // the window.
        Cancel = true;
        return;
    case Video::Stato::InAvvio:
    case Video::Stato::Attivo:
    case Video::Stato::Fallito:
        break;
    }
    const bool inviava = m_video.chiudi();
    if (c.COM.PortOpen() && inviava) {
        ComandiTessaro::FermaVideo(c.COM);
        c.BarraStato.setPanels(3, u"Video interrotto"_s);
        ComandiTessaro::RichiediStatoA(c.COM);
        ComandiTessaro::RichiediStatoB(c.COM);
    }
    m_video.chiedi(false);
    SvuotaRicezione();
    // A request made while the line was emptied is dropped, because the window closes.
    m_video.chiedi(false);
}

void frmCamera::Schermo_Resize()
{
    if (!m_video.acceso())
        return;
    Schermo.Pulisci();
    m_video.misura(Schermo.width());
}

void frmCamera::Schermo_MouseDown(int, int, double X, double Y)
{
    lasciaMirino();
    const bool disegna = m_video.acceso() && !nominando();
    m_selezione.premi(disegna, nominando());
    if (!disegna)
        return;
    shpSelezione.movePixel(X, Y);
    shpSelezione.sizePixel(1, 1);
    shpSelezione.show();
}

void frmCamera::Schermo_MouseMove(int Button, int, double X, double Y)
{
    if (Button != 1 || !m_video.acceso() || nominando())
        return;
    passaErrori([&] { shpSelezione.setWidthPixel(X - shpSelezione.leftPixel()); });
    passaErrori([&] { shpSelezione.setHeightPixel(Y - shpSelezione.topPixel()); });
}

void frmCamera::Schermo_MouseUp()
{
    m_selezione.rilascia(nominando());
}

void frmCamera::Schermo_DblClick()
{
    const bool fallito = m_video.stato() == Video::Stato::Fallito;
    const std::optional<Video::Avvio> avvio = m_video.riavvia();
    if (!avvio)
        return;
    ComandiTessaro::FermaVideo(c.COM);
    SvuotaRicezione();
    if (m_video.abbandonato(*avvio))
        return;
    if (fallito)
        Schermo.Pulisci();
    AvviaRicezione(*avvio);
    if (m_video.abbandonato(*avvio))
        return;
    if (fallito && m_video.stato() == Video::Stato::Fallito)
        stampaFallito();
    m_selezione.lascia();
    Schermo.update();
}

void frmCamera::AvviaRicezione(Video::Avvio avvio)
{
    m_video.impostaScala(Video::ScalaDiAvvio);
    // The size of the surface may have changed while there was no video.
    if (m_video.misura(Schermo.width()))
        Schermo.Pulisci();
    const bool partito = ComandiTessaro::AvviaVideo(c.COM, m_video.scala(), 0, c.esito,
                                                    [&] { return m_video.abbandonato(avvio); });
    if (m_video.finisci(avvio, partito) && !partito)
        c.BarraStato.setPanels(3, {});
}

void frmCamera::SvuotaRicezione()
{
    // Each read takes what the control holds; the rest waits in the operating system.
    passaErrori([&] {
        for (int i = 0; i < lettureMassime && !c.COM.Input().isEmpty(); ++i) {
        }
    });
    c.tmrElabInput.accumulatore.svuota();
    ricominciaFotogramma();
    pompa();
}

void frmCamera::ricominciaFotogramma()
{
    if (m_video.acceso() && Visible())
        m_video.ricomincia();
}

void frmCamera::CalcolaRiga(const QByteArray &riga)
{
    if (!m_video.acceso() || !Visible())
        return;
    try {
        if (!m_video.aggiungi(riga))
            return;
        mostraFotogramma();
        if (m_selezione.finita())
            PreparaAcquisizione();
        CercaImmagini();
        m_video.ricomincia();
    } catch (const Errore &) {
        c.BarraStato.setPanels(
            3, u"Attenzione: errore nella visualizzazione delle immagini della videocamera!"_s);
    }
}

void frmCamera::mostraFotogramma()
{
    // The picture begins one enlarged pixel away from the corner.
    const int s = m_video.zoom();
    Schermo.Dipingi({s, s},
                    mosaico(m_video.fotogramma().Pixel, Fotogramma::Colonne, Fotogramma::Righe, s));
}

void frmCamera::PreparaAcquisizione()
{
    m_selezione.lascia();
    // A picture that is being named is not replaced.
    if (nominando())
        return;
    shpSelezione.hide();
    frmNomeImmagine.nomina(m_video.fotogramma().Pixel,
                           areaInFotogramma(shpSelezione.rettangoloPixel(), m_video.zoom()), *this);
    m_selezione.nomina();
    lasciaMirino();
}

void frmCamera::CercaImmagini()
{
    try {
        if (const auto trovata = cercaTraLeAttive(m_video.fotogramma().Pixel, c.lstImgCamera)) {
            mostraTrovata(*trovata);
            return;
        }
        shpImgRilevata.hide();
        lblNomeImmagine.hide();
    } catch (const Errore &) {
        c.BarraStato.setPanels(3, u"Errore nella ricerca dell'immagine!"_s);
    }
}

void frmCamera::mostraTrovata(const Trovata &trovata)
{
    const int s = m_video.zoom();
    shpImgRilevata.movePixel(s * trovata.colonna, s * trovata.riga);
    shpImgRilevata.sizePixel(double(s) * trovata.W, double(s) * trovata.H);
    shpImgRilevata.show();
    QFont font = lblNomeImmagine.font();
    font.setPointSize(qMax(1, s * 3));
    lblNomeImmagine.setFont(font);
    const QRectF cornice = shpImgRilevata.rettangoloPixel();
    lblNomeImmagine.movePixel(cornice.left() - s, cornice.bottom() - s);
    lblNomeImmagine.setCaption(nomeImmagine(c.lstImgCamera.List(trovata.indice)));
    lblNomeImmagine.adjustSize();
    lblNomeImmagine.show();
}

// Does by keyboard what pressing, dragging and releasing the mouse does on the picture.
void frmCamera::keyPressEvent(QKeyEvent *evento)
{
    const int codice = Tasti::codice(*evento);
    const int passo = evento->modifiers().testFlag(Qt::ControlModifier) ? passoLungo : 1;
    const bool ripetuto = evento->isAutoRepeat();
    switch (codice) {
    case Tasti::Sinistra:
        eseguiGestore([=, this] { muoviMirino(-passo, 0); });
        break;
    case Tasti::Destra:
        eseguiGestore([=, this] { muoviMirino(passo, 0); });
        break;
    case Tasti::Su:
        eseguiGestore([=, this] { muoviMirino(0, -passo); });
        break;
    case Tasti::Giu:
        eseguiGestore([=, this] { muoviMirino(0, passo); });
        break;
    case Tasti::Spazio:
        if (!ripetuto)
            eseguiGestore([this] { spazio(); });
        break;
    case Tasti::Esc:
        eseguiGestore([this] { lasciaSelezione(); });
        break;
    case Tasti::F5:
        if (!ripetuto)
            eseguiGestore([this] { Schermo_DblClick(); });
        break;
    default:
        Finestra::keyPressEvent(evento);
    }
}

// colonne, righe: in pixels of the frame.
void frmCamera::muoviMirino(int colonne, int righe)
{
    if (nominando())
        return;
    const int s = qMax(1, m_video.zoom());
    shpMirino.sposta(QPoint(colonne, righe) * s);
    if (m_traccia)
        Schermo_MouseMove(1, 0, shpMirino.posto().x(), shpMirino.posto().y());
}

void frmCamera::spazio()
{
    if (nominando())
        return;
    if (m_traccia) {
        lasciaMirino();
        Schermo_MouseUp();
        return;
    }
    shpMirino.sposta({});
    Schermo_MouseDown(1, 0, shpMirino.posto().x(), shpMirino.posto().y());
    m_traccia = shpSelezione.Visible();
    shpMirino.show();
}

void frmCamera::lasciaSelezione()
{
    if (m_traccia) {
        shpSelezione.hide();
        m_selezione.interrompi();
    }
    lasciaMirino();
}

void frmCamera::lasciaMirino()
{
    m_traccia = false;
    shpMirino.hide();
}
