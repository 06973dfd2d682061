#include "vision/Colore.h"

#include "base/Errore.h"

#include <array>

namespace {

// What a channel's field adds to the colour. Dividing anew for each of the 4800 pixels of a frame
// costs more than all else that is done with them.
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
