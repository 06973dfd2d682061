// The commands to the robot, one function for each. docs/protocol.md lists their bytes.
#pragma once

#include "base/Errore.h"
#include "serial/ControlloSeriale.h"

#include <functional>

// Asked during the waits of a long command: true if the caller has given it up. An empty function
// means never.
using Abbandono = std::function<bool()>;

// How AvviaVideo, the one long command, reports its progress.
class EsitoVideo
{
public:
    virtual ~EsitoVideo() = default;
    virtual void mostraMessaggio(const QString &testo) = 0;
    // Waits until the robot reacts and shows the text. If the command is given up, it returns at
    // once and shows nothing.
    virtual void MostraInvio(const QString &testo, const Abbandono &abbandono = {}) = 0;
};

// A command is one or more pieces; each piece is one write to the port. Numbers are not checked:
// only the low byte of a number is sent. If a piece fails, the rest of the command is not sent, and
// a closed port is reported to the user in a message box. No function throws an Errore, and only
// AvviaVideo waits for the robot.
namespace ComandiTessaro {

// These three ignore all errors: a piece that fails is skipped, and nothing is reported.
void ApriSessione(ControlloSeriale &COM);
void ChiudiSessione(ControlloSeriale &COM);
void FermaVideo(ControlloSeriale &COM);

// Sets the camera up and starts it, and reports both steps. a: the scale, a frame has 8a by 6a
// pixels; the program uses 10. b: its meaning is not known; the program sends 0. Returns false if a
// piece failed or the command was given up; then it sends and reports nothing more.
bool AvviaVideo(ControlloSeriale &COM, quint8 a, quint8 b, EsitoVideo &esito,
                const Abbandono &abbandono = {});

// n: steps, 1 to 4 up and down, 1 to 12 right and left.
void TestaSu(ControlloSeriale &COM, quint8 n);
void TestaGiu(ControlloSeriale &COM, quint8 n);
void TestaDestra(ControlloSeriale &COM, quint8 n);
void TestaSinistra(ControlloSeriale &COM, quint8 n);

// nome: the colour V (green), R (red), G (yellow) or B (blue) and the side s (left) or d (right),
// such as "Vs". Any other name sends mask 0.
void LedTesta(ControlloSeriale &COM, bool acceso, const QString &nome);
// Eight times LedTesta: green, red, yellow, blue, of each colour the left one first.
void LedTestaTutti(ControlloSeriale &COM, bool acceso);
// The bit of a head LED in the command's mask; 0 if there is no LED of this name.
quint8 MascheraLed(const QString &nome);

// n: 1 right, 2 left.
void Tool(ControlloSeriale &COM, quint8 n, bool acceso);
void Pinza(ControlloSeriale &COM, bool apri);

// v: 1 slow, 2 fast.
void BaseAvanti(ControlloSeriale &COM, quint8 v);
void BaseIndietro(ControlloSeriale &COM, quint8 v);
// v: 1 half a turn, 2 a quarter, 3 until BaseStop.
void BaseDestra(ControlloSeriale &COM, quint8 v);
void BaseSinistra(ControlloSeriale &COM, quint8 v);
void BaseStop(ControlloSeriale &COM);

// a: 0 left, 1 right. v: 2 up, 4 down, 0 stop.
void Braccio(ControlloSeriale &COM, quint8 a, quint8 v);
// v: 1 up, 2 down.
void Bacino(ControlloSeriale &COM, quint8 v);
// v: -1 on (sent as 255), 0 off.
void LedPosizione(ControlloSeriale &COM, qint16 v);
void ScattaFoto(ControlloSeriale &COM);

// n: 66 + number of a phrase (1 to 140), or 206 + number of a sound (1 to 16); see FrasiSuoni.
void Riproduci(ControlloSeriale &COM, qint16 n);
// v: number of the recorded message, 1 to 10. Play and record are sent twice in a row.
void MexPlay(ControlloSeriale &COM, quint8 v);
void MexRegistra(ControlloSeriale &COM, quint8 v);
void MexCancella(ControlloSeriale &COM, quint8 v);
void MexStop(ControlloSeriale &COM);
// n: number of a program stored in the robot, 1 to 10; 0 stops the running one.
void ProgInterno(ControlloSeriale &COM, quint8 n);

// The requests that are sent periodically: telemetry, and the two of the keep-alive.
void RichiediSensori(ControlloSeriale &COM);
void RichiediStatoA(ControlloSeriale &COM);
void RichiediStatoB(ControlloSeriale &COM);

// The robot's storage. n: 16 opens a folder, 1 a file. percorso: at most 255 bytes, since its
// length is sent as one byte. The robot answers with the number of a channel: c below.
void ApriPercorso(ControlloSeriale &COM, quint8 n, const QByteArray &percorso);
void ChiudiCanale(ControlloSeriale &COM, quint8 c);
// Asks for at most a + 256 * b bytes of an open file.
void LeggiBlocco(ControlloSeriale &COM, quint8 c, quint8 a, quint8 b);
// Asks for the next entry of an open folder.
void LeggiElenco(ControlloSeriale &COM, quint8 c);

// What a command does if a piece fails: if the port is closed, shows "Non sono collegato al robot",
// once even if more commands fail while that box is open. Any other error is ignored.
void SegnalaNonCollegato(const Errore &errore);

} // namespace ComandiTessaro
