#include "vision/RicercaAttive.h"

#include "base/Numeri.h"
#include "vision/ArchivioImmagini.h"
#include "vision/Fotogramma.h"
#include "vision/RecordImmagine.h"
#include "vision/Ricerca.h"

namespace {

constexpr size_t attiveMassime = 30000;

// The indices of the active pictures, as 16-bit numbers.
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

std::optional<Trovata> cercaTraLeAttive(const Matrice &pixel, const Elenco &lstImgCamera)
{
    Ricerca ricerca(pixel);
    Matrice Modello(Fotogramma::Colonne, Fotogramma::Righe);
    for (const qint16 indice : attive(lstImgCamera)) {
        const Misure misure = misureImmagine(lstImgCamera.List(indice));
        const qint32 W = Numeri::Lungo(misure.W);
        const qint32 H = Numeri::Lungo(misure.H);
        leggiModello(leggiRecord(indice), W, H, Modello);
        if (ricerca.cerca(Modello, W, H))
            return Trovata{indice, ricerca.colonna(), ricerca.riga(), W, H};
    }
    return {};
}
