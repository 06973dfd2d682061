// Any bytes as the file of the stored pictures and as rows of the video: they are read, searched
// for and drawn. The only failures are those of type Errore.
#include "base/Codifica.h"
#include "base/Numeri.h"
#include "vision/ArchivioImmagini.h"
#include "vision/Fotogramma.h"
#include "vision/Mosaico.h"
#include "vision/NomeDoppio.h"
#include "vision/RecordImmagine.h"
#include "vision/Ricerca.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr qsizetype riga = 160;

// Uses the record as the list's entry and as the line of the file, and searches for it.
void provaRecord(const QByteArray &record, Ricerca &ricerca, Matrice &Modello)
{
    const QString voce = Codifica::daByte(record);
    nomeImmagine(voce);
    const Misure misure = misureImmagine(voce);
    const qint32 W = Numeri::Lungo(misure.W);
    const qint32 H = Numeri::Lungo(misure.H);
    leggiModello(record, W, H, Modello);
    mosaico(Modello, qMin(W, 80), qMin(H, 60), 2);
    ricerca.cerca(Modello, W, H);
}

} // namespace

// The bytes before the first 0 are the file, those after it are rows.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *dati, size_t quanti)
{
    const QByteArray tutto(reinterpret_cast<const char *>(dati), static_cast<qsizetype>(quanti));
    const qsizetype fine = tutto.indexOf('\0');
    const QByteArray file = fine < 0 ? tutto : tutto.first(fine);
    const QByteArray video = fine < 0 ? QByteArray() : tutto.sliced(fine + 1);

    Fotogramma fotogramma;
    for (qsizetype da = 0; da < video.size(); da += riga)
        passaErrori([&] { fotogramma.aggiungi(video.mid(da, riga), 10); });
    passaErrori([&] { fotogramma.aggiungi({}, 10); });

    Ricerca ricerca(fotogramma.Pixel);
    Matrice Modello(Fotogramma::Colonne, Fotogramma::Righe);
    for (const QByteArray &record : file.split('\r'))
        passaErrori([&] { provaRecord(record, ricerca, Modello); });
    for (const char *nome : {"a", "Pallone", "\""})
        nomeDoppio(file, nome);
    return 0;
}
