#include "vision/Colore.h"

#include "base/Errore.h"

#include <array>

namespace {

// For each value of a channel's field its part of the packed colour: field * 255 / largest field,
// moved to the byte of the channel. The table saves three divisions for each of the 4800 pixels of
// a frame.
template <size_t Valori>
constexpr std::array<qint32, Valori> canale(int spostamento)
{
    std::array<qint32, Valori> tavola{};
    for (size_t campo = 0; campo < Valori; ++campo)
        tavola[campo] = static_cast<qint32>(campo * 255 / (Valori - 1)) << spostamento;
    return tavola;
}

constexpr auto rosso = canale<32>(0);
constexpr auto verde = canale<64>(8);
constexpr auto blu = canale<32>(16);

} // namespace

qint32 ColorePixel(QByteArrayView byte)
{
    if (byte.size() < 2)
        throw Errore(Errore::ChiamataNonValida);
    const auto b1 = static_cast<quint8>(byte[0]);
    const auto b2 = static_cast<quint8>(byte[1]);
    return rosso[b1 >> 3] + verde[static_cast<size_t>((b1 & 7) << 3 | b2 >> 5)] + blu[b2 & 31];
}
