#include "simulator/robot/Descrizione.h"
#include "simulator/robot/StatoRobot.h"
#include "simulator/robot/Vocabolario.h"

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
using T = Comando::Tipo;

namespace {
int byteIn(const QByteArray &b, qsizetype i)
{
    return static_cast<quint8>(b.at(i));
}

bool tra(int v, int da, int a)
{
    return v >= da && v <= a;
}

void conValore(Comando &c, T tipo, const QString &nome, const QString &lettera, int v,
               bool previsto)
{
    c.tipo = tipo;
    c.a = v;
    c.testo = u"%1 %2=%3"_s.arg(nome, lettera).arg(v);
    c.previsto = previsto;
}

void descriviLed(Comando &c, bool acceso, int maschera)
{
    c.tipo = T::LedTesta;
    c.a = maschera;
    c.b = acceso ? 1 : 0;
    const QString nome = nomeLed(maschera);
    c.testo = u"LedTesta nome=%1 acceso=%2"_s.arg(nome).arg(c.b);
    c.previsto = nome != u"?"_s;
}

void descriviRiproduci(Comando &c, int n)
{
    c.tipo = T::Riproduci;
    c.a = n;
    c.testo = u"Riproduci n=%1"_s.arg(n);
    if (const QString frase = Vocabolario::frase(n - Vocabolario::primaFrase); !frase.isEmpty())
        c.testo += u" frase %1 \"%2\""_s.arg(n - Vocabolario::primaFrase).arg(frase);
    else if (const QString suono = Vocabolario::suono(n - Vocabolario::primoSuono);
             !suono.isEmpty())
        c.testo += u" suono %1 \"%2\""_s.arg(n - Vocabolario::primoSuono).arg(suono);
    else
        c.previsto = false;
}

// One byte carries the deed in its high bits and the slot in the rest.
void descriviMessaggio(Comando &c, int v)
{
    if (v == 0) {
        c.tipo = T::MexStop;
        c.testo = u"MexStop"_s;
    } else if (v & 128) {
        conValore(c, T::MexPlay, u"MexPlay"_s, u"v"_s, v - 128, tra(v - 128, 1, 10));
    } else if (v & 64) {
        conValore(c, T::MexRegistra, u"MexRegistra"_s, u"v"_s, v - 64, tra(v - 64, 1, 10));
    } else {
        conValore(c, T::MexCancella, u"MexCancella"_s, u"v"_s, v - 32, tra(v - 32, 1, 10));
    }
}

void descriviProgramma(Comando &c, int v)
{
    c.tipo = T::ProgInterno;
    if (v == 0 || (v + 3) % 4 == 0) {
        c.a = v == 0 ? 0 : (v + 3) / 4;
        c.testo = u"ProgInterno n=%1"_s.arg(c.a);
        c.previsto = tra(c.a, 0, 10);
    } else {
        c.a = -1;
        c.testo = u"ProgInterno byte=%1"_s.arg(v);
        c.previsto = false;
    }
}

void descriviBase(Comando &c, int funzione, int v)
{
    if (funzione == 65 && v == 0) {
        c.tipo = T::BaseStop;
        c.testo = u"BaseStop"_s;
    } else if (funzione == 65) {
        conValore(c, T::BaseAvanti, u"BaseAvanti"_s, u"v"_s, v, tra(v, 1, 2));
    } else if (funzione == 66) {
        conValore(c, T::BaseIndietro, u"BaseIndietro"_s, u"v"_s, v, tra(v, 1, 2));
    } else if (funzione == 67) {
        conValore(c, T::BaseDestra, u"BaseDestra"_s, u"v"_s, 19 - v, tra(19 - v, 1, 3));
    } else {
        conValore(c, T::BaseSinistra, u"BaseSinistra"_s, u"v"_s, 19 - v, tra(19 - v, 1, 3));
    }
}

void descriviBacino(Comando &c, int v)
{
    if (v % 4 == 0) {
        conValore(c, T::Bacino, u"Bacino"_s, u"v"_s, v / 4, tra(v / 4, 1, 2));
    } else {
        conValore(c, T::Bacino, u"Bacino"_s, u"byte"_s, v, false);
        c.a = 0;
    }
}

void descriviBraccio(Comando &c, int quale, int v)
{
    c.tipo = T::Braccio;
    c.a = quale;
    c.b = v;
    c.testo = u"Braccio a=%1 v=%2"_s.arg(quale).arg(v);
    c.previsto = v == 0 || v == 2 || v == 4;
}

void descriviTool(Comando &c, int quale, int v)
{
    c.tipo = T::Tool;
    c.a = quale;
    c.b = v == 0 ? 0 : 1;
    c.previsto = v == 0 || v == 255;
    c.testo = c.previsto ? u"Tool n=%1 acceso=%2"_s.arg(quale).arg(c.b)
                         : u"Tool n=%1 byte=%2"_s.arg(quale).arg(v);
}

void descriviPinza(Comando &c, int v)
{
    c.previsto = v == 1 || v == 2;
    c.tipo = T::Pinza;
    c.a = v == 1 ? 1 : v == 2 ? 0 : -1;
    c.testo = c.previsto ? u"Pinza apri=%1"_s.arg(c.a) : u"Pinza byte=%1"_s.arg(v);
}

void descriviAttuatore(Comando &c, int funzione, int v)
{
    switch (funzione) {
    case 2:
        return descriviProgramma(c, v);
    case 3:
        c.tipo = T::ScattaFoto;
        c.previsto = v == 1;
        c.testo = c.previsto ? u"ScattaFoto"_s : u"ScattaFoto byte=%1"_s.arg(v);
        return;
    case 33:
        return conValore(c, T::TestaSu, u"TestaSu"_s, u"n"_s, v, tra(v, 1, 4));
    case 34:
        return conValore(c, T::TestaGiu, u"TestaGiu"_s, u"n"_s, v, tra(v, 1, 4));
    case 35:
        return conValore(c, T::TestaDestra, u"TestaDestra"_s, u"n"_s, v, tra(v, 1, 12));
    case 36:
        return conValore(c, T::TestaSinistra, u"TestaSinistra"_s, u"n"_s, v, tra(v, 1, 12));
    case 37:
        return descriviLed(c, true, v);
    case 38:
        return descriviLed(c, false, v);
    case 73:
        return descriviBacino(c, v);
    case 97:
        return descriviRiproduci(c, v);
    case 99:
        return descriviMessaggio(c, v);
    case 129:
    case 130:
        return descriviBraccio(c, funzione - 129, v);
    case 131:
        return conValore(c, T::LedPosizione, u"LedPosizione"_s, u"v"_s, static_cast<qint8>(v),
                         v == 0 || v == 255);
    case 139:
    case 140:
        return descriviTool(c, 141 - funzione, v);
    case 161:
        return descriviPinza(c, v);
    default:
        return descriviBase(c, funzione, v);
    }
}

void semplice(Comando &c, T tipo, const QString &nome)
{
    c.tipo = tipo;
    c.testo = nome;
}

void descriviPercorso(Comando &c)
{
    c.tipo = T::ApriPercorso;
    c.a = byteIn(c.byte, 1);
    c.percorso = c.byte.mid(3);
    c.testo = u"ApriPercorso n=%1 percorso=\"%2\""_s.arg(c.a).arg(QString::fromLatin1(c.percorso));
    c.previsto = c.a == 1 || c.a == 16;
}

void descriviBlocco(Comando &c)
{
    c.tipo = T::LeggiBlocco;
    c.a = byteIn(c.byte, 1);
    c.b = byteIn(c.byte, 2) + 256 * byteIn(c.byte, 3);
    c.testo =
        u"LeggiBlocco c=%1 a=%2 b=%3"_s.arg(c.a).arg(byteIn(c.byte, 2)).arg(byteIn(c.byte, 3));
}
} // namespace

QString nomeLed(int maschera)
{
    switch (maschera) {
    case LedBs:
        return u"Bs"_s;
    case LedGs:
        return u"Gs"_s;
    case LedRs:
        return u"Rs"_s;
    case LedVs:
        return u"Vs"_s;
    case LedBd:
        return u"Bd"_s;
    case LedGd:
        return u"Gd"_s;
    case LedRd:
        return u"Rd"_s;
    case LedVd:
        return u"Vd"_s;
    default:
        return u"?"_s;
    }
}

Comando descrivi(const QByteArray &byte)
{
    Comando c;
    c.byte = byte;
    switch (byteIn(byte, 0)) {
    case 1:
        semplice(c, T::Sollecito, u"Sollecito"_s);
        break;
    case 3:
        semplice(c, T::ApriSessione, u"ApriSessione"_s);
        break;
    case 4:
        semplice(c, T::ChiudiSessione, u"ChiudiSessione"_s);
        break;
    case 10:
        semplice(c, T::ImpostaVideo,
                 u"AvviaVideo a=%1 b=%2"_s.arg(byteIn(byte, 1)).arg(byteIn(byte, 3)));
        c.a = byteIn(byte, 1);
        c.b = byteIn(byte, 3);
        c.previsto = c.a == 10 && c.b == 0;
        break;
    case 11:
        semplice(c, T::PartenzaVideo, u"AvviaVideo partenza"_s);
        break;
    case 12:
        semplice(c, T::FermaVideo, u"FermaVideo"_s);
        break;
    case 19:
        descriviAttuatore(c, byteIn(byte, 1), byteIn(byte, 2));
        break;
    case 27:
        semplice(c, T::RichiediSensori, u"RichiediSensori"_s);
        break;
    case 28:
        semplice(c, T::RichiediStatoB, u"RichiediStatoB"_s);
        break;
    case 29:
        semplice(c, T::RichiediStatoA, u"RichiediStatoA"_s);
        break;
    case 40:
        descriviPercorso(c);
        break;
    case 41:
        conValore(c, T::ChiudiCanale, u"ChiudiCanale"_s, u"c"_s, byteIn(byte, 1), true);
        break;
    case 44:
        descriviBlocco(c);
        break;
    case 46:
        conValore(c, T::LeggiElenco, u"LeggiElenco"_s, u"c"_s, byteIn(byte, 1), true);
        break;
    default:
        break;
    }
    return c;
}
} // namespace tessaro_sim
