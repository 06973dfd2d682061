// Events of controls, and the one road by which handlers run.
#pragma once

#include <functional>
#include <utility>

// Runs a handler. No exception leaves it: an error that nobody handled is shown in a message box,
// and the program ends. From that error on no handler runs any more.
void eseguiGestore(const std::function<void()> &gestore);

// While one of these lives no event is raised: a window puts its design values back, which no
// handler is to see.
class EventiSospesi
{
public:
    EventiSospesi() { ++s_vivi; }
    ~EventiSospesi() { --s_vivi; }
    EventiSospesi(const EventiSospesi &) = delete;
    EventiSospesi &operator=(const EventiSospesi &) = delete;

    static bool ora() { return s_vivi > 0; }

private:
    static inline int s_vivi = 0;
};

// One event of one control, with the one handler that its window gave it.
template <class... Argomenti>
class Evento
{
public:
    template <class Finestra, class Classe, class... Parametri>
    void collega(Finestra *finestra, void (Classe::*gestore)(Parametri...))
    {
        m_gestore = [finestra, gestore](Argomenti... argomenti) {
            // A handler may leave out the arguments that it has no use for.
            if constexpr (sizeof...(Parametri) == 0)
                (finestra->*gestore)();
            else
                (finestra->*gestore)(argomenti...);
        };
    }
    void collega(std::function<void(Argomenti...)> gestore) { m_gestore = std::move(gestore); }

    bool collegato() const { return static_cast<bool>(m_gestore); }

    void operator()(Argomenti... argomenti) const
    {
        if (m_gestore && !EventiSospesi::ora()) {
            // A copy: the handler may live longer than its control.
            const auto gestore = m_gestore;
            eseguiGestore([&] { gestore(argomenti...); });
        }
    }

private:
    std::function<void(Argomenti...)> m_gestore;
};
