// The whole outward wire protocol: one routine for each command that the robot understands.
#pragma once

#include "ControlloSeriale.h"
#include "Errore.h"

// What the one long command tells of its course.
class EsitoVideo
{
public:
    virtual ~EsitoVideo() = default;
    virtual void mostraMessaggio(const QString &testo) = 0;
    virtual void MostraInvio(const QString &testo) = 0;
};

// Numbers that do not fit a byte are sent as their low byte. Unless said otherwise a command stops
// at the first piece that fails and tells the user where the port is closed, by a message box; no
// error reaches the caller. Nothing waits for an answer.
namespace ComandiTessaro {

// These three pass over every error: a piece that fails is skipped.
void ApriSessione(ControlloSeriale &COM);
void ChiudiSessione(ControlloSeriale &COM);
void FermaVideo(ControlloSeriale &COM);

// Sets the video up (a is the scale) and starts it, telling about both; false on a failure.
bool AvviaVideo(ControlloSeriale &COM, quint8 a, quint8 b, EsitoVideo &esito);

// n: steps.
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

// n: phrase number plus 66, or sound number plus 206.
void Riproduci(ControlloSeriale &COM, qint16 n);
// v: number of the message. The first two go out twice, back to back.
void MexPlay(ControlloSeriale &COM, quint8 v);
void MexRegistra(ControlloSeriale &COM, quint8 v);
void MexCancella(ControlloSeriale &COM, quint8 v);
void MexStop(ControlloSeriale &COM);
// n: number of the program, 0 stops it.
void ProgInterno(ControlloSeriale &COM, quint8 n);

void RichiediSensori(ControlloSeriale &COM);
void RichiediStatoA(ControlloSeriale &COM);
void RichiediStatoB(ControlloSeriale &COM);

// n: 16 for a folder, 1 for a file.
void ApriPercorso(ControlloSeriale &COM, quint8 n, const QByteArray &percorso);
void ChiudiCanale(ControlloSeriale &COM, quint8 c);
void LeggiBlocco(ControlloSeriale &COM, quint8 c, quint8 a, quint8 b);
void LeggiElenco(ControlloSeriale &COM, quint8 c);

// What a command does with its failure: "Non sono collegato al robot" where the port is closed,
// nothing for any other number. While that box is open a further failure opens no second one.
void SegnalaNonCollegato(const Errore &errore);

} // namespace ComandiTessaro
