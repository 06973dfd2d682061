// The whole outward wire protocol: one routine for each command that the robot understands.
#pragma once

#include "serial/ControlloSeriale.h"
#include "base/Errore.h"

#include <functional>

// Whether whoever began a long command has given it up while it waits; empty: he never does.
using Abbandono = std::function<bool()>;

// What the one long command tells of its course.
class EsitoVideo
{
public:
    virtual ~EsitoVideo() = default;
    virtual void mostraMessaggio(const QString &testo) = 0;
    // Waits for the robot; given up, it ends at once and shows nothing.
    virtual void MostraInvio(const QString &testo, const Abbandono &abbandono = {}) = 0;
};

// The bytes of each command, and the pieces in which they are written, are those that the robot
// takes (tests/link/TavolaComandi.cpp lists them all). Numbers are not checked: what does not fit a
// byte is sent as its low byte. Unless said otherwise a command stops at the first piece that fails
// and tells the user where the port is closed, by a message box; no error reaches the caller.
// Nothing waits for an answer.
namespace ComandiTessaro {

// These three pass over every error: a piece that fails is skipped.
void ApriSessione(ControlloSeriale &COM);
void ChiudiSessione(ControlloSeriale &COM);
void FermaVideo(ControlloSeriale &COM);

// Sets the video up and starts it, telling about both; false on a failure. a: the scale, a frame
// being a times 8 pixels wide and a times 6 high; b goes out as it is, and is 0. Given up in one of
// its waits it sends and tells nothing more, and is false, too.
bool AvviaVideo(ControlloSeriale &COM, quint8 a, quint8 b, EsitoVideo &esito,
                const Abbandono &abbandono = {});

// n: steps, 1 to 4 up and down, 1 to 12 to the sides.
void TestaSu(ControlloSeriale &COM, quint8 n);
void TestaGiu(ControlloSeriale &COM, quint8 n);
void TestaDestra(ControlloSeriale &COM, quint8 n);
void TestaSinistra(ControlloSeriale &COM, quint8 n);

// nome: "Vs", "Vd", "Rs", "Rd", "Gs", "Gd", "Bs", "Bd" (colour, then side); any other is mask 0.
void LedTesta(ControlloSeriale &COM, bool acceso, const QString &nome);
// All eight, green first, then red, yellow, blue, left before right.
void LedTestaTutti(ControlloSeriale &COM, bool acceso);
// The bit of a head LED in the command's mask, 0 for a name that is none.
quint8 MascheraLed(const QString &nome);

// n: 1 right, 2 left.
void Tool(ControlloSeriale &COM, quint8 n, bool acceso);
void Pinza(ControlloSeriale &COM, bool apri);

// v: 1 slow, 2 fast.
void BaseAvanti(ControlloSeriale &COM, quint8 v);
void BaseIndietro(ControlloSeriale &COM, quint8 v);
// v: 1 half a turn, 2 a quarter, 3 without end.
void BaseDestra(ControlloSeriale &COM, quint8 v);
void BaseSinistra(ControlloSeriale &COM, quint8 v);
void BaseStop(ControlloSeriale &COM);

// a: 0 left, 1 right. v: 2 up, 4 down, 0 stop.
void Braccio(ControlloSeriale &COM, quint8 a, quint8 v);
// v: 1 up, 2 down.
void Bacino(ControlloSeriale &COM, quint8 v);
// v: -1 on, 0 off.
void LedPosizione(ControlloSeriale &COM, qint16 v);
void ScattaFoto(ControlloSeriale &COM);

// n: phrase number (1 to 140) plus 66, or sound number (1 to 16) plus 206; see FrasiSuoni.
void Riproduci(ControlloSeriale &COM, qint16 n);
// v: number of the recorded message, 1 to 10. The first two go out twice, back to back.
void MexPlay(ControlloSeriale &COM, quint8 v);
void MexRegistra(ControlloSeriale &COM, quint8 v);
void MexCancella(ControlloSeriale &COM, quint8 v);
void MexStop(ControlloSeriale &COM);
// n: number of the robot's own program, 1 to 10; 0 stops the one that runs.
void ProgInterno(ControlloSeriale &COM, quint8 n);

// The polls, for telemetry and for the keep-alive.
void RichiediSensori(ControlloSeriale &COM);
void RichiediStatoA(ControlloSeriale &COM);
void RichiediStatoB(ControlloSeriale &COM);

// The robot's storage. n: 16 for a folder, 1 for a file; percorso: up to 255 bytes, as its length
// goes out in one. The robot answers with the number of a channel, which is c below.
void ApriPercorso(ControlloSeriale &COM, quint8 n, const QByteArray &percorso);
void ChiudiCanale(ControlloSeriale &COM, quint8 c);
// Asks for so many bytes of an open file at most: a is the low byte of the number, b the high one.
void LeggiBlocco(ControlloSeriale &COM, quint8 c, quint8 a, quint8 b);
// Asks for the next entry of an open folder.
void LeggiElenco(ControlloSeriale &COM, quint8 c);

// What a command does with its failure: "Non sono collegato al robot" where the port is closed,
// nothing for any other number. While that box is open a further failure opens no second one.
void SegnalaNonCollegato(const Errore &errore);

} // namespace ComandiTessaro
