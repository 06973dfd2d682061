#pragma once
#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

inline namespace tessaro_sim {
// The robot's end of a serial line: all that depends on the operating system.
class Linea
{
public:
    virtual ~Linea() = default;

    // False on failure, with the reason in errore().
    virtual bool apri() = 0;
    // Hangs up; the other end finds its line gone.
    virtual void chiudi() = 0;
    virtual bool aperta() const = 0;
    virtual QString errore() const = 0;
    // What the program at the other end opens.
    virtual QString percorso() const = 0;
    // Whether a program holds the other end open right now.
    virtual bool ascoltata() = 0;
    // How many of the bytes the line took, maybe none. What nobody listens to is taken and lost.
    virtual qsizetype scrivi(const QByteArray &byte) = 0;

    // Called with each reading as it came.
    std::function<void(const QByteArray &)> suLettura;
    // Called when the program has opened or closed the other end.
    std::function<void(bool)> suAscolto;
};

// The line of this operating system.
std::unique_ptr<Linea> creaLinea();
} // namespace tessaro_sim
