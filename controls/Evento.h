// Events of controls, and the one function that runs all handlers.
#pragma once

#include <functional>
#include <utility>

// Runs a handler. No exception leaves this function, since none may cross Qt's event loop: an error
// that was not caught is shown in a message box, and the program ends. No other handler runs after
// such an error.
void eseguiGestore(const std::function<void()> &gestore);

// No event is raised while an object of this class exists. A window uses it when it resets its
// controls to their design values.
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

// One event of one control. It has at most one handler; calling the event runs it.
template <class... Argomenti>
class Evento
{
public:
    // Sets the handler: a member function of a window, with the event's arguments or with none.
    template <class Finestra, class Classe, class... Parametri>
    void collega(Finestra *finestra, void (Classe::*gestore)(Parametri...))
    {
        m_gestore = [finestra, gestore](Argomenti... argomenti) {
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
            // A copy, because the handler may destroy the control, and this event with it.
            const auto gestore = m_gestore;
            eseguiGestore([&] { gestore(argomenti...); });
        }
    }

private:
    std::function<void(Argomenti...)> m_gestore;
};
