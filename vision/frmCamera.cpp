// The window's life, its mouse, and the road of a row.
#include "frmCamera.h"

#include "Mosaico.h"
#include "Numeri.h"
#include "Pompa.h"

#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

constexpr auto scalaAvvio = "10"_L1;
// At the size of the first showing, 8 screen pixels for one of the frame, all of them to be seen.
constexpr int zoomIniziale = 8;
constexpr int latoMirino = 11;
// More than any port holds back.
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
    disponi();
    Disegno();
    frmNomeImmagine.impostaAcquisitore(this);
    Schermo.Resize.collega(this, &frmCamera::Schermo_Resize);
    Schermo.MouseDown.collega(this, &frmCamera::Schermo_MouseDown);
    Schermo.MouseMove.collega(this, &frmCamera::Schermo_MouseMove);
    Schermo.MouseUp.collega(this, &frmCamera::Schermo_MouseUp);
    Schermo.DblClick.collega(this, &frmCamera::Schermo_DblClick);
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
    shpMirino.setColori(Qt::transparent, Qt::white);
    shpMirino.Size(latoMirino, latoMirino);
    shpImgRilevata.setColori(Qt::transparent, giallo);
    // The mouse goes through, as it does through the shapes.
    lblNomeImmagine.setAttribute(Qt::WA_TransparentForMouseEvents);
    lblNomeImmagine.setForeColor(giallo);
    // The picture shows through, the name is read on every picture.
    QPalette targa = lblNomeImmagine.palette();
    targa.setColor(QPalette::Window, QColor(scuro.red(), scuro.green(), scuro.blue(), 215));
    lblNomeImmagine.setPalette(targa);
    lblNomeImmagine.setAutoFillBackground(true);
    lblNomeImmagine.setContentsMargins(4, 0, 4, 0);

    // Narrower, no zoom is left.
    setMinimumSize(Fotogramma::Colonne, Fotogramma::Righe);
    resize((Fotogramma::Colonne + 1) * zoomIniziale, (Fotogramma::Righe + 1) * zoomIniziale);
}

void frmCamera::Disegno()
{
    setTag(u"0"_s);
    Schermo.setTag(u"0"_s);
    Schermo.Pulisci();
    // Small, so that it takes the window's size, and its zoom, at the next showing.
    Schermo.resize(1, 1);
    shpSelezione.setTag(u"0"_s);
    shpSelezione.hide();
    shpImgRilevata.hide();
    lblNomeImmagine.hide();
    lasciaMirino();
    m_mirino = {};
}

void frmCamera::Load()
{
    if (c.BarraPulsanti.Tag().isEmpty()) {
        Scarica();
        return;
    }
    const QRect schermo = screen()->availableGeometry();
    Move(Unita::unita(schermo.x()) + (Unita::unita(schermo.width()) - Width()) / 2,
         Unita::unita(schermo.y() + schermo.height() / 12.0));
    AvviaRicezione();
}

void frmCamera::Activate()
{
    if (!Numeri::Logico(Tag()))
        Schermo.Stampa(u"Fallito"_s);
}

void frmCamera::Resize()
{
    if (WindowState() != 1)
        Schermo.resize(size());
}

void frmCamera::Unload(bool &)
{
    // Nothing was begun where the window was shown without the toolbar.
    if (c.BarraPulsanti.Tag().isEmpty())
        return;
    if (c.COM.PortOpen() && Numeri::Valore(Tag()) != 0) {
        ComandiTessaro::FermaVideo(c.COM);
        c.BarraStato.setPanels(3, u"Video interrotto"_s);
        ComandiTessaro::RichiediStatoA(c.COM);
        ComandiTessaro::RichiediStatoB(c.COM);
    }
    c.BarraPulsanti.setTag({});
    SvuotaRicezione();
}

void frmCamera::Schermo_Resize()
{
    if (!Numeri::Logico(Tag()))
        return;
    Schermo.Pulisci();
    const int colonne = Numeri::Byte(Tag()) * 8;
    Schermo.setTag(QString::number(Numeri::Lungo(Schermo.Width()) / (colonne * Unita::perPixel)));
}

void frmCamera::Schermo_MouseDown(int, int, double X, double Y)
{
    lasciaMirino();
    if (!Numeri::Logico(Tag()) || frmNomeImmagine.Visible())
        return;
    shpSelezione.Move(X, Y);
    shpSelezione.Size(1, 1);
    shpSelezione.show();
}

void frmCamera::Schermo_MouseMove(int Button, int, double X, double Y)
{
    if (Button != 1 || !Numeri::Logico(Tag()) || frmNomeImmagine.Visible())
        return;
    passaErrori([&] { shpSelezione.setWidth(X - shpSelezione.Left()); });
    passaErrori([&] { shpSelezione.setHeight(Y - shpSelezione.Top()); });
}

void frmCamera::Schermo_MouseUp()
{
    shpSelezione.setTag(Numeri::TestoLogico(true));
}

void frmCamera::Schermo_DblClick()
{
    ComandiTessaro::FermaVideo(c.COM);
    SvuotaRicezione();
    AvviaRicezione();
    shpSelezione.setTag(Numeri::TestoLogico(false));
    Schermo.update();
}

void frmCamera::AvviaRicezione()
{
    setTag(scalaAvvio);
    if (!ComandiTessaro::AvviaVideo(c.COM, Numeri::Byte(Tag()), 0, c.esito)) {
        setTag(u"0"_s);
        c.BarraStato.setPanels(3, {});
    }
}

void frmCamera::SvuotaRicezione()
{
    // The control holds little; the rest waits in the operating system.
    passaErrori([&] {
        for (int i = 0; i < lettureMassime && !c.COM.Input().isEmpty(); ++i) {
        }
    });
    c.tmrElabInput.accumulatore.svuota();
    CalcolaRiga("Azzera");
    pompa();
}

bool frmCamera::cameraAperta() const
{
    return c.BarraPulsanti.Tag() == u"Camera"_s;
}

int frmCamera::zoom() const
{
    return Numeri::Intero(Schermo.Tag());
}

void frmCamera::CalcolaRiga(const QByteArray &riga)
{
    if (!Numeri::Logico(Tag()) || !Visible())
        return;
    if (riga == "Azzera") {
        m_fotogramma.Riga = 0;
        return;
    }
    try {
        if (!m_fotogramma.aggiungi(riga, Numeri::Byte(Tag())))
            return;
        mostraFotogramma();
        if (Numeri::Logico(shpSelezione.Tag()))
            PreparaAcquisizione();
        CercaImmagini();
        m_fotogramma.Riga = 0;
    } catch (const Errore &) {
        c.BarraStato.setPanels(
            3, u"Attenzione: errore nella visualizzazione delle immagini della videocamera!"_s);
    }
}

void frmCamera::mostraFotogramma()
{
    // The first box lies at one box's distance from the corner.
    const int s = zoom();
    Schermo.Dipingi({s, s}, mosaico(m_fotogramma.Pixel, Fotogramma::Colonne, Fotogramma::Righe, s));
}
