// The state of the live video: whether it was requested and whether it runs, its scale and zoom,
// and the frame that is being received.
#pragma once

#include "vision/Fotogramma.h"

#include <optional>

class Video
{
public:
    // Fallito: the start failed, or the scale was set to 0 from outside. InChiusura: closed, but
    // bytes still on the way are being discarded.
    enum class Stato { Chiuso, InAvvio, Attivo, Fallito, InChiusura };

    // 80 by 60 pixels.
    static constexpr quint8 ScalaDiAvvio = 10;

    // One start of the video. While it waits for the robot other events are handled, so the video
    // can be closed, or closed and started again, before the wait ends. The number shows whether
    // this start is still the current one.
    class Avvio
    {
        friend class Video;
        explicit Avvio(quint32 n) : numero(n) {}
        quint32 numero;
    };

    Stato stato() const { return m_stato; }

    // Requested from the toolbar and not closed since then. Only then the window opens and receives
    // rows.
    bool richiesto() const { return m_richiesto; }
    void chiedi(bool richiesto) { m_richiesto = richiesto; }

    // Begins the start with which the window opens. The next row is the first of a frame.
    Avvio apri();
    // Begins the start after a stop. Refused (no value) while another start is running or the
    // window is not open.
    std::optional<Avvio> riavvia();
    bool abbandonato(Avvio avvio) const { return avvio.numero != m_avvio; }
    // Ends a start. Returns false and changes nothing if the start was given up.
    bool finisci(Avvio avvio, bool riuscito);
    // Closes the video and gives up a start that is running. Returns true if the robot may be
    // sending.
    bool chiudi();
    // Restores the initial state, except for the request.
    void azzera();

    // The scale: a frame has scala * 8 by scala * 6 pixels. At 0 the video is off and rows are
    // ignored. Setting the scale from outside switches the video off and on.
    quint8 scala() const { return m_scala; }
    bool acceso() const { return m_scala != 0; }
    void impostaScala(quint8 scala);

    // Logical pixels of the surface for each pixel of the frame.
    int zoom() const { return m_zoom; }
    void impostaZoom(int zoom) { m_zoom = zoom; }
    // Sets the zoom to how many times the frame's width fits into larghezza pixels; 0 if the video
    // is off. Returns true if the zoom has changed.
    bool misura(int larghezza);

    // Takes the next row. Returns true if the frame is complete. Throws what Fotogramma::aggiungi
    // throws.
    bool aggiungi(QByteArrayView riga) { return m_fotogramma.aggiungi(riga, m_scala); }
    // The next row is the first of a frame.
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
