// The run of a list: the selection walks down the list, one line for each tick of its timer.
#pragma once

#include "controls/Elenco.h"
#include "controls/Pulsanti.h"
#include "controls/Temporizzatore.h"
#include "controls/VoceMenu.h"

class ControlloSeriale;
struct Mossa;

// A list runs while its timer is enabled; the selected line is the one that was run last.
class Corsa
{
public:
    struct Controlli
    {
        Elenco &lstMosse;
        // Its Tag shows the row that was run last.
        Pulsante &pulEsegui;
        // Its Tag shows the loop's counter.
        Temporizzatore &tmrEseguiMosse;
        // Its Tag shows the row to which a loop goes back.
        VoceMenu &mnuInsRipeti;
    };

    // cartella: the program's folder, in which a list's programs are looked for first.
    Corsa(const Controlli &controlli, ControlloSeriale &seriale, const QString &cartella);
    ~Corsa();
    Q_DISABLE_COPY_MOVE(Corsa)

    bool inCorsa() const { return c.tmrEseguiMosse.Enabled(); }
    // Starts the list from its first line, or stops it if it runs; nothing else stops it. An empty
    // list does nothing. A closed port shows a message instead of a start.
    void comanda();
    void ferma();
    // Puts the selection back to the row that was run last, if that row still exists, and the
    // focus to pulEsegui.
    void riprendiRiga();
    // Back to the design values.
    void riposa();

    // The list was started or stopped.
    Evento<> Comandata;
    // A line asks for the camera.
    Evento<> CameraChiesta;
    // A text for panel 3 of the status bar.
    Evento<const QString &> Messaggio;
    // A command was sent: waits for the robot's reaction, then shows the text.
    Evento<const QString &> Inviato;

private:
    void avvia();
    void passo();
    void esegui(const Mossa &mossa);
    void passoCiclo(quint8 volte);

    Controlli c;
    ControlloSeriale &COM;
    QString m_cartella;
    int m_ultima = 0;
    // How often the loop has gone back, or cicloFinito.
    int m_giri = 0;
    // -1: before the first line.
    int m_ritorno = -1;
};
