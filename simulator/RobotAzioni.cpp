// What the robot does with its body and its voice, and how it moves over time.
#include "Diario.h"
#include "Memoria.h"
#include "Robot.h"
#include "Stanza.h"
#include "Telecamera.h"
#include "Vocabolario.h"
#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
using T = Comando::Tipo;

namespace {
constexpr double velocitaPiano = 12.0; // cm/s
constexpr double velocitaForte = 30.0; // cm/s
constexpr double velocitaGiro = 60.0;  // degrees/s
constexpr double velocitaTesta = 90.0; // degrees/s
constexpr double velocitaArto = 0.5;   // whole strokes a second
constexpr int passoOrizzontale = 15;   // degrees
constexpr int passoVerticale = 15;     // degrees

double verso(double qui, double meta, double passo)
{
    return qui < meta ? std::min(qui + passo, meta) : std::max(qui - passo, meta);
}

// Moves a limb by its stroke; it rests at either end.
bool muoviArto(double &dove, MotoArto &moto, double passo)
{
    if (moto == MotoArto::Fermo)
        return false;
    const double meta = moto == MotoArto::Sale ? 1.0 : 0.0;
    dove = verso(dove, meta, passo);
    if (dove == meta)
        moto = MotoArto::Fermo;
    return true;
}

MotoArto motoDa(int v, int sale, int scende)
{
    return v == sale ? MotoArto::Sale : v == scende ? MotoArto::Scende : MotoArto::Fermo;
}
} // namespace

void Robot::eseguiCorpo(const Comando &comando)
{
    const auto gira = [&](MotoBase moto) {
        stato_.base = comando.a >= 1 && comando.a <= 3 ? moto : MotoBase::Fermo;
        stato_.restoGiro = comando.a == 1 ? 180.0 : comando.a == 2 ? 90.0 : -1.0;
    };
    const auto guida = [&](MotoBase moto) {
        stato_.base = comando.a == 0 ? MotoBase::Fermo : moto;
        stato_.velocita = std::min(comando.a, 2);
        stato_.urtato = false;
    };
    switch (comando.tipo) {
    case T::TestaSu:
        stato_.testaGradiV = std::clamp(stato_.testaGradiV + comando.a * passoVerticale, -30, 45);
        break;
    case T::TestaGiu:
        stato_.testaGradiV = std::clamp(stato_.testaGradiV - comando.a * passoVerticale, -30, 45);
        break;
    case T::TestaDestra:
        stato_.testaGradiO = std::clamp(stato_.testaGradiO + comando.a * passoOrizzontale, -90, 90);
        break;
    case T::TestaSinistra:
        stato_.testaGradiO = std::clamp(stato_.testaGradiO - comando.a * passoOrizzontale, -90, 90);
        break;
    case T::LedTesta: {
        const auto maschera = static_cast<quint8>(comando.a);
        stato_.ledTesta = static_cast<quint8>(comando.b ? stato_.ledTesta | maschera
                                                        : stato_.ledTesta & ~maschera);
        break;
    }
    case T::BaseAvanti:
        guida(MotoBase::Avanti);
        break;
    case T::BaseIndietro:
        guida(MotoBase::Indietro);
        break;
    case T::BaseDestra:
        gira(MotoBase::GiraDestra);
        break;
    case T::BaseSinistra:
        gira(MotoBase::GiraSinistra);
        break;
    case T::BaseStop:
        stato_.base = MotoBase::Fermo;
        break;
    case T::Braccio:
        stato_.motoBraccio[static_cast<std::size_t>(comando.a)] = motoDa(comando.b, 2, 4);
        break;
    case T::Bacino:
        stato_.motoBacino = motoDa(comando.a, 1, 2);
        break;
    case T::Pinza:
        if (comando.a >= 0)
            stato_.pinzaAperta = comando.a == 1;
        break;
    case T::Tool:
        (comando.a == 1 ? stato_.toolDestro : stato_.toolSinistro) = comando.b != 0;
        break;
    case T::LedPosizione:
        stato_.ledPosizione = comando.a != 0;
        break;
    default:
        break;
    }
    reagisci();
}

void Robot::eseguiVoce(const Comando &comando)
{
    switch (comando.tipo) {
    case T::Riproduci: {
        stato_.ultimaRiproduzione = comando.a;
        const QString frase = Vocabolario::frase(comando.a - Vocabolario::primaFrase);
        const QString suono = Vocabolario::suono(comando.a - Vocabolario::primoSuono);
        stato_.detto = !frase.isEmpty() ? frase : !suono.isEmpty() ? u"♪ %1"_s.arg(suono) : u"…"_s;
        Q_EMIT parla(stato_.detto);
        break;
    }
    case T::MexPlay:
        stato_.messaggioInCorso = comando.a;
        stato_.messaggioRegistra = false;
        stato_.detto = stato_.messaggi.contains(comando.a)
                           ? u"Messaggio %1"_s.arg(comando.a)
                           : u"Messaggio %1: vuoto"_s.arg(comando.a);
        Q_EMIT parla(stato_.detto);
        break;
    case T::MexRegistra:
        stato_.messaggioInCorso = comando.a;
        stato_.messaggioRegistra = true;
        stato_.messaggi.insert(comando.a);
        break;
    case T::MexCancella:
        stato_.messaggi.erase(comando.a);
        if (stato_.messaggioInCorso == comando.a)
            stato_.messaggioInCorso = 0;
        break;
    case T::MexStop:
        stato_.messaggioInCorso = 0;
        break;
    case T::ProgInterno:
        stato_.programma = std::max(comando.a, 0);
        break;
    default: {
        const QString nome =
            guasti_.memoriaPiena
                ? QString()
                : memoria_->salvaFoto(telecamera_->guarda(stato_, *stanza_, 320, 240));
        if (nome.isEmpty()) {
            annota(u"Memoria piena: foto perduta"_s);
        } else {
            ++stato_.foto;
            annota(u"Foto salvata: foto/%1"_s.arg(nome));
        }
        break;
    }
    }
    reagisci();
}

void Robot::avanza(int ms)
{
    const StatoRobot prima = stato_;
    const double secondi = ms / 1000.0;
    muoviBase(secondi);
    muoviArti(secondi);
    if (dallaStanza_)
        misura();
    const bool mosso = prima.x != stato_.x || prima.y != stato_.y ||
                       prima.direzione != stato_.direzione || prima.testaO != stato_.testaO ||
                       prima.testaV != stato_.testaV || prima.braccio != stato_.braccio ||
                       prima.bacino != stato_.bacino || prima.base != stato_.base;
    if (mosso)
        Q_EMIT cambiato();
}

void Robot::muoviBase(double secondi)
{
    if (stato_.base == MotoBase::Fermo)
        return;
    if (stato_.base == MotoBase::Avanti || stato_.base == MotoBase::Indietro) {
        const double rad = stato_.direzione * std::numbers::pi / 180.0;
        const double passo = (stato_.velocita == 1 ? velocitaPiano : velocitaForte) * secondi *
                             (stato_.base == MotoBase::Avanti ? 1.0 : -1.0);
        const QPointF qui(stato_.x, stato_.y);
        const QPointF la = stanza_->avanza(qui, qui + QPointF(std::cos(rad), std::sin(rad)) * passo,
                                           stato_.urtato);
        stato_.x = la.x();
        stato_.y = la.y();
        if (stato_.urtato) {
            stato_.base = MotoBase::Fermo;
            annota(u"Urto: la base si ferma"_s);
        }
        return;
    }
    double giro = velocitaGiro * secondi;
    if (stato_.restoGiro >= 0.0) {
        giro = std::min(giro, stato_.restoGiro);
        stato_.restoGiro -= giro;
    }
    const double segno = stato_.base == MotoBase::GiraDestra ? 1.0 : -1.0;
    stato_.direzione = std::fmod(stato_.direzione + segno * giro + 360.0, 360.0);
    if (stato_.restoGiro == 0.0) {
        stato_.base = MotoBase::Fermo;
        annota(u"Rotazione finita"_s);
    }
}

void Robot::muoviArti(double secondi)
{
    stato_.testaO = verso(stato_.testaO, stato_.testaGradiO, velocitaTesta * secondi);
    stato_.testaV = verso(stato_.testaV, stato_.testaGradiV, velocitaTesta * secondi);
    for (std::size_t i = 0; i < 2; ++i)
        muoviArto(stato_.braccio[i], stato_.motoBraccio[i], velocitaArto * secondi);
    muoviArto(stato_.bacino, stato_.motoBacino, velocitaArto * secondi);
}

void Robot::impostaPosa(double x, double y, double direzione)
{
    stato_.x = std::clamp(x, Stanza::raggioRobot, Stanza::larghezza - Stanza::raggioRobot);
    stato_.y = std::clamp(y, Stanza::raggioRobot, Stanza::profondita - Stanza::raggioRobot);
    stato_.direzione = std::fmod(std::fmod(direzione, 360.0) + 360.0, 360.0);
    Q_EMIT cambiato();
}

// Something nearer than the reach shows as a byte, larger the nearer it is.
void Robot::misura()
{
    constexpr double portata = 40.0; // cm before the robot's hull
    const QPointF qui(stato_.x, stato_.y);
    const auto valore = [&](double gradi) {
        const double spazio =
            stanza_->distanza(qui, stato_.direzione + gradi) - Stanza::raggioRobot;
        return spazio >= portata
                   ? 0
                   : std::clamp(static_cast<int>(255.0 * (1.0 - spazio / portata)), 1, 255);
    };
    const std::array<int, 3> nuovi{valore(35.0), valore(0.0), valore(-35.0)};
    bool soglia = false;
    for (std::size_t i = 0; i < 3; ++i)
        soglia = soglia || (nuovi[i] == 0) != (stato_.ultrasuoni[i] == 0);
    // A telegram for each millimetre would fill the line: only coming and going counts.
    if (soglia)
        impostaUltrasuoni(nuovi[0], nuovi[1], nuovi[2]);
    else
        stato_.ultrasuoni = nuovi;
}
} // namespace tessaro_sim
