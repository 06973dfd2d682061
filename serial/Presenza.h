// Whether the far end of a serial line is still there; the same rules for all systems.
#pragma once

#include <functional>

// A lost line counts as open, but it is no longer read, written or waited for.
class Presenza
{
public:
    // How a write ended.
    enum class Scrittura {
        Presa,
        // The system had no room for it and said so at once. The next write may succeed.
        SenzaPosto,
        // It failed or timed out: the line is lost.
        Mancata,
    };

    bool persa() const { return m_persa; }
    // The line was just opened.
    void ricomincia() { m_persa = false; }
    // The line is lost; calls perduta.
    void perdi();

    // Runs the write. Throws Errore::LineaPersa if it does not end as Presa; throws it without
    // running the write if the line is lost, so that the program does not wait for it again.
    void scrivi(const std::function<Scrittura()> &scrittura);

    // Called when the line is lost.
    std::function<void()> perduta;

private:
    bool m_persa = false;
};
