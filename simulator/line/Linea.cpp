#include "simulator/line/Linea.h"
#ifdef Q_OS_UNIX
#include "simulator/line/LineaPty.h"
#endif

inline namespace tessaro_sim {
std::unique_ptr<Linea> creaLinea()
{
#ifdef Q_OS_UNIX
    return std::make_unique<LineaPty>();
#else
    return nullptr;
#endif
}
} // namespace tessaro_sim
