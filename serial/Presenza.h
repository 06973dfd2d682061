// Whether the far end of a serial line is still there: the rule of all systems.
#pragma once

#include <functional>

// A lost line is open in name only: nothing is written to it, read from it or waited for any more.
class Presenza
{
public:
    // How a write ended.
    enum class Scrittura {
        Presa,
        // No room for it now, which was known at once: the line may take the next.
        SenzaPosto,
        // It failed, or was waited for in vain.
        Mancata,
    };

    bool persa() const { return m_persa; }
    // A line that was just opened.
    void ricomincia() { m_persa = false; }
    void perdi();

    // Runs the write, unless the line is lost: what was waited for in vain once is not waited for
    // again. Errore::LineaPersa unless the line took it.
    void scrivi(const std::function<Scrittura()> &scrittura);

    // Called when the line is lost.
    std::function<void()> perduta;

private:
    bool m_persa = false;
};
