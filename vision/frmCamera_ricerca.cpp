// What is done with a complete frame: the selection is copied, stored pictures are searched for.
#include "frmCamera.h"

#include "ArchivioImmagini.h"
#include "Colore.h"
#include "Numeri.h"
#include "RecordImmagine.h"
#include "Ricerca.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t attiveMassime = 30000;

// A place or a size on the surface in pixels of the frame.
quint8 inFotogramma(double pixel, int s)
{
    if (s == 0)
        throw Errore(Errore::DivisionePerZero);
    const qint32 intero = Numeri::Lungo(pixel) / s;
    return Numeri::Byte(intero);
}

// The indices of the pictures that are to be looked for, as 16-bit numbers.
std::vector<qint16> attive(const Elenco &lstImgCamera)
{
    std::vector<qint16> indici;
    for (int i = 0; i < lstImgCamera.ListCount(); ++i) {
        if (lstImgCamera.ItemData(i) == 0)
            continue;
        if (indici.size() == attiveMassime)
            throw Errore(Matrice::FuoriIntervallo);
        indici.push_back(Numeri::Intero(i));
    }
    return indici;
}

} // namespace

void frmCamera::PreparaAcquisizione()
{
    m_selezione.lascia();
    // What is being named already is not replaced.
    if (nominando())
        return;
    const int s = m_video.zoom();
    shpSelezione.hide();
    quint8 left = inFotogramma(shpSelezione.Left(), s);
    quint8 top = inFotogramma(shpSelezione.Top(), s);
    quint8 width = inFotogramma(shpSelezione.Width(), s);
    quint8 height = inFotogramma(shpSelezione.Height(), s);
    if (left == 0)
        left = 1;
    if (top == 0)
        top = 1;
    if (left + width > Fotogramma::Colonne)
        width = Numeri::Byte(Fotogramma::Colonne - left);
    if (top + height > Fotogramma::Righe)
        height = Numeri::Byte(Fotogramma::Righe - top);
    const int mezzaLarghezza = width / 2;
    const int mezzaAltezza = height / 2;
    frmNomeImmagine.imgAcquisita.Move(39 - mezzaLarghezza, 29 - mezzaAltezza);
    frmNomeImmagine.setTag(QString::number(width) + u',' + QString::number(height));
    frmNomeImmagine.imgAcquisita.hide();
    AcquisisciImmagine(m_video.fotogramma().Pixel, left, top, width, height);
    frmNomeImmagine.MostraSopra(*this);
    m_selezione.nomina();
    lasciaMirino();
    // Also where the copy is complete already: the first tick then switches it off.
    frmNomeImmagine.tmrAcquisizione.setEnabled(true);
}

void frmCamera::AcquisisciImmagine(const Matrice &matrice, quint8 left, quint8 top, quint8 width,
                                   quint8 height)
{
    if (matrice(1, 1) != Acquisizione::Prosegui)
        m_acquisizione.inizia(matrice, left, top, width, height);
    QString record = frmNomeImmagine.Tag();
    const bool finita = m_acquisizione.prosegui([&](int colonna, int riga, qint32 colore) {
        frmNomeImmagine.imgAcquisita.Riempi({colonna, riga, 1, 1}, QColor(rgb(colore)));
        record += u',' + QString::number(colore);
    });
    frmNomeImmagine.setTag(record);
    if (!finita)
        return;
    frmNomeImmagine.tmrAcquisizione.setEnabled(false);
    frmNomeImmagine.pulOK.setEnabled(true);
    frmNomeImmagine.imgAcquisita.show();
    frmNomeImmagine.lblAttesa.hide();
}

void frmCamera::CercaImmagini()
{
    try {
        if (cercaTraLeAttive())
            return;
        shpImgRilevata.hide();
        lblNomeImmagine.hide();
    } catch (const Errore &) {
        c.BarraStato.setPanels(3, u"Errore nella ricerca dell'immagine!"_s);
    }
}

bool frmCamera::cercaTraLeAttive()
{
    Ricerca ricerca(m_video.fotogramma().Pixel);
    Matrice Modello(Fotogramma::Colonne, Fotogramma::Righe);
    for (const qint16 indice : attive(c.lstImgCamera)) {
        const QString voce = c.lstImgCamera.List(indice);
        const Misure misure = misureImmagine(voce);
        const qint32 W = Numeri::Lungo(misure.W);
        const qint32 H = Numeri::Lungo(misure.H);
        leggiModello(leggiRecord(indice), W, H, Modello);
        if (!ricerca.cerca(Modello, W, H))
            continue;
        const int s = m_video.zoom();
        shpImgRilevata.Move(s * ricerca.colonna(), s * ricerca.riga());
        shpImgRilevata.Size(double(s) * W, double(s) * H);
        shpImgRilevata.show();
        QFont font = lblNomeImmagine.font();
        font.setPointSize(qMax(1, s * 3));
        lblNomeImmagine.setFont(font);
        lblNomeImmagine.Move(shpImgRilevata.Left() - s,
                             shpImgRilevata.Top() + shpImgRilevata.Height() - s);
        lblNomeImmagine.setCaption(nomeImmagine(voce));
        lblNomeImmagine.adjustSize();
        lblNomeImmagine.show();
        return true;
    }
    return false;
}
