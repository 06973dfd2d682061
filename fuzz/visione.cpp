// The file of the stored pictures and the rows of the video: foreign bytes, read, searched for,
// drawn. Every failure has to be an Errore.
#include "vision/ArchivioImmagini.h"
#include "base/Codifica.h"
#include "vision/Fotogramma.h"
#include "vision/Mosaico.h"
#include "vision/NomeDoppio.h"
#include "base/Numeri.h"
#include "vision/RecordImmagine.h"
#include "vision/Ricerca.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr qsizetype riga = 160;

// One record is taken as both the entry and the line of the file, and searched for.
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

// The bytes up to the first one of 0 are the file, the others are rows.
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
