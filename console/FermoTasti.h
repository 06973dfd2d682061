// The console's key latch: which keys are down, and whether the command of one still waits for the
// robot. A press of the mouse on a main arrow is a press of that arrow's key.
#pragma once

#include <QSet>
#include <QString>

class FermoTasti
{
public:
    // In which circumstances a key goes down.
    struct Pressione
    {
        int tasto;
        // An automatic repeat of a key that is held.
        bool ripetuta = false;
        // The press becomes a line and no command.
        bool inLista = false;
        // The press would stop the robot while another command still waits.
        bool stopNellAttesa = false;
    };
    // Whether the press acts. Nothing acts while a key counts as held, but a STOP in the wait of
    // another command. While the list is inactive a key whose command still waits does not act
    // again, nor does a repeat of a key that went down elsewhere: one command for each hold.
    bool accetta(const Pressione &pressione);

    // A press that acts, from its beginning to the end of its wait.
    struct Comando
    {
        int tasto;
        int giro;
    };
    Comando comincia(int tasto);
    // It became a line: the key does not count as held, its repeats act as well.
    void finitoInLista(const Comando &comando);
    // Its wait is over: the key counts as held, even if it was let go meanwhile. Not if all keys
    // were let go by lasciaTutto.
    void finito(const Comando &comando);

    bool giu(int tasto) const { return m_giu.contains(tasto); }
    void lascia(int tasto);
    // The releases of the keys will not be seen any more. False if no key was down.
    bool lasciaTutto();

    // What the Tag of the first arrow says, and what was written into it from outside.
    QString testo() const;
    void scrivi(const QString &testo);

private:
    enum class Stato { Iniziale, Tenuto, Rilasciato };
    Stato m_stato = Stato::Iniziale;
    QSet<int> m_giu;
    // The keys whose command still waits.
    QSet<int> m_inAttesa;
    // Grows each time that all keys are let go.
    int m_giro = 0;
};
