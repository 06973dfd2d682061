#pragma once
#include "simulator/line/Guasti.h"
#include "simulator/robot/Riconoscitore.h"
#include "simulator/robot/StatoRobot.h"
#include <QObject>
#include <memory>

inline namespace tessaro_sim {
class Diario;
class Memoria;
class Stanza;
class Telecamera;

// The robot itself: takes the console's bytes, keeps its state, gives telegrams. It owns no line
// and no clock: bytes and time are handed to it.
class Robot : public QObject
{
    Q_OBJECT
public:
    // `diario` must outlive the robot.
    explicit Robot(Diario &diario, QObject *parent = nullptr);
    ~Robot() override;

    // Bytes from the console, cut anywhere.
    void ricevi(const QByteArray &byte);
    // Lets this many milliseconds of the robot's time go by.
    void avanza(int ms);

    const StatoRobot &stato() const { return m_stato; }
    Guasti &guasti() { return m_guasti; }
    Stanza &stanza() { return *m_stanza; }
    Memoria &memoria() { return *m_memoria; }
    Telecamera &telecamera() { return *m_telecamera; }

    // What the sensors measure. Each sends its telegram at once while a session is open, unless
    // `impostaInvioImmediato(false)`. Values are held to 0..255.
    void impostaTemperatura(int gradi);
    void impostaBatterie(int logica, int motori);
    void impostaUltrasuoni(int destro, int centrale, int sinistro);
    void impostaInvioImmediato(bool attivo) { m_immediato = attivo; }
    // True: the three ultrasonic sensors follow the room instead of impostaUltrasuoni.
    void impostaUltrasuoniDallaStanza(bool attivo);
    // False: polls (27, 28, 29) and actuators get no answer; opening, storage and video still do.
    void impostaRisponde(bool attivo) { m_risponde = attivo; }
    // Puts the robot somewhere: cm and degrees as in StatoRobot.
    void impostaPosa(double x, double y, double direzione);

    // The next row of the camera's picture, 161 bytes; empty while the video is off.
    QByteArray prossimaRiga();

Q_SIGNALS:
    // One whole telegram for the console.
    void telegramma(const QByteArray &byte);
    // The video was stopped; the camera sends nothing more, not even the rest of a row.
    void videoFermato();
    // Something of stato() changed.
    void cambiato();
    // A phrase, a sound or a message begins; the text is stato().detto.
    void parla(const QString &testo);

private:
    void esegui(const Comando &comando);
    void apriSessione();
    void sollecito();
    void saluta();
    void chiudiSessione();
    void fermaVideo();
    void eseguiCorpo(const Comando &comando);
    void eseguiVoce(const Comando &comando);
    void eseguiRichiesta(const Comando &comando);
    void eseguiMemoria(const Comando &comando);
    void reagisci();
    void invia(const QByteArray &byte);
    void muoviBase(double secondi);
    void muoviArti(double secondi);
    void misura();
    void annota(const QString &testo);

    Diario &m_diario;
    StatoRobot m_stato;
    Guasti m_guasti;
    Riconoscitore m_riconoscitore;
    std::unique_ptr<Stanza> m_stanza;
    std::unique_ptr<Memoria> m_memoria;
    std::unique_ptr<Telecamera> m_telecamera;
    bool m_immediato = true;
    bool m_dallaStanza = false;
    bool m_risponde = true;
    bool m_attendeSollecito = false;
};
} // namespace tessaro_sim
