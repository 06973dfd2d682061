// The live video: whether it was asked for, whether it runs, how large it is, which row comes next.
#pragma once

#include "vision/Fotogramma.h"

#include <optional>

class Video
{
public:
    // InChiusura: closed, while what was on its way is still being emptied.
    enum class Stato { Chiuso, InAvvio, Attivo, Fallito, InChiusura };

    static constexpr quint8 ScalaDiAvvio = 10;

    // One start. It waits for the robot, and may come back to a video that was closed meanwhile, or
    // closed and started anew.
    class Avvio
    {
        friend class Video;
        explicit Avvio(quint32 n) : numero(n) {}
        quint32 numero;
    };

    Stato stato() const { return m_stato; }

    // Asked for from the toolbar, and not closed since: only then the window opens, and rows are
    // handed to it.
    bool richiesto() const { return m_richiesto; }
    void chiedi(bool richiesto) { m_richiesto = richiesto; }

    // The start with which the window opens; the next row is a frame's first.
    Avvio apri();
    // The start that follows a stop. Refused while one is under way, and if the window is not open.
    std::optional<Avvio> riavvia();
    bool abbandonato(Avvio avvio) const { return avvio.numero != m_avvio; }
    // The end of a start; false if it was given up: then nothing changes.
    bool finisci(Avvio avvio, bool riuscito);
    // Gives up the start that is under way. True if the robot may be sending.
    bool chiudi();
    // As before the first opening, but for the request.
    void azzera();

    // The frame's size: so many times 8 by 6 pixels. 0: no rows are taken. A scale that is set from
    // outside switches the video off and on.
    quint8 scala() const { return m_scala; }
    bool acceso() const { return m_scala != 0; }
    void impostaScala(quint8 scala);

    // How many screen pixels one pixel of the frame occupies.
    int zoom() const { return m_zoom; }
    void impostaZoom(int zoom) { m_zoom = zoom; }
    // As often as the frame's width fits into so many pixels; true if that is another zoom.
    bool misura(int larghezza);

    // Takes the next row; true if the frame is complete. Errors are those of Fotogramma.
    bool aggiungi(QByteArrayView riga) { return m_fotogramma.aggiungi(riga, m_scala); }
    // The next row is a frame's first.
    void ricomincia() { m_fotogramma.Riga = 0; }
    const Fotogramma &fotogramma() const { return m_fotogramma; }

private:
    Avvio nuovo();

    Stato m_stato = Stato::Chiuso;
    bool m_richiesto = false;
    quint32 m_avvio = 0;
    quint8 m_scala = 0;
    int m_zoom = 0;
    Fotogramma m_fotogramma;
};
