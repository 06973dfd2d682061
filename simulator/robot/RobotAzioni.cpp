// What the robot does with its body and its voice, and how it moves over time.
#include "simulator/robot/Diario.h"
#include "simulator/robot/Memoria.h"
#include "simulator/robot/Robot.h"
#include "simulator/robot/Stanza.h"
#include "simulator/robot/Telecamera.h"
#include "simulator/robot/Vocabolario.h"
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
        m_stato.base = comando.a >= 1 && comando.a <= 3 ? moto : MotoBase::Fermo;
        m_stato.restoGiro = comando.a == 1 ? 180.0 : comando.a == 2 ? 90.0 : -1.0;
    };
    const auto guida = [&](MotoBase moto) {
        m_stato.base = comando.a == 0 ? MotoBase::Fermo : moto;
        m_stato.velocita = std::min(comando.a, 2);
        m_stato.urtato = false;
    };
    switch (comando.tipo) {
    case T::TestaSu:
        m_stato.testaGradiV = std::clamp(m_stato.testaGradiV + comando.a * passoVerticale, -30, 45);
        break;
    case T::TestaGiu:
        m_stato.testaGradiV = std::clamp(m_stato.testaGradiV - comando.a * passoVerticale, -30, 45);
        break;
    case T::TestaDestra:
        m_stato.testaGradiO =
            std::clamp(m_stato.testaGradiO + comando.a * passoOrizzontale, -90, 90);
        break;
    case T::TestaSinistra:
        m_stato.testaGradiO =
            std::clamp(m_stato.testaGradiO - comando.a * passoOrizzontale, -90, 90);
        break;
    case T::LedTesta: {
        const auto maschera = static_cast<quint8>(comando.a);
        m_stato.ledTesta = static_cast<quint8>(comando.b ? m_stato.ledTesta | maschera
                                                         : m_stato.ledTesta & ~maschera);
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
        m_stato.base = MotoBase::Fermo;
        break;
    case T::Braccio:
        m_stato.motoBraccio[static_cast<std::size_t>(comando.a)] = motoDa(comando.b, 2, 4);
        break;
    case T::Bacino:
        m_stato.motoBacino = motoDa(comando.a, 1, 2);
        break;
    case T::Pinza:
        if (comando.a >= 0)
            m_stato.pinzaAperta = comando.a == 1;
        break;
    case T::Tool:
        (comando.a == 1 ? m_stato.toolDestro : m_stato.toolSinistro) = comando.b != 0;
        break;
    case T::LedPosizione:
        m_stato.ledPosizione = comando.a != 0;
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
        m_stato.ultimaRiproduzione = comando.a;
        const QString frase = Vocabolario::frase(comando.a - Vocabolario::primaFrase);
        const QString suono = Vocabolario::suono(comando.a - Vocabolario::primoSuono);
        m_stato.detto = !frase.isEmpty() ? frase : !suono.isEmpty() ? u"♪ %1"_s.arg(suono) : u"…"_s;
        Q_EMIT parla(m_stato.detto);
        break;
    }
    case T::MexPlay:
        m_stato.messaggioInCorso = comando.a;
        m_stato.messaggioRegistra = false;
        m_stato.detto = m_stato.messaggi.contains(comando.a)
                            ? u"Messaggio %1"_s.arg(comando.a)
                            : u"Messaggio %1: vuoto"_s.arg(comando.a);
        Q_EMIT parla(m_stato.detto);
        break;
    case T::MexRegistra:
        m_stato.messaggioInCorso = comando.a;
        m_stato.messaggioRegistra = true;
        m_stato.messaggi.insert(comando.a);
        break;
    case T::MexCancella:
        m_stato.messaggi.erase(comando.a);
        if (m_stato.messaggioInCorso == comando.a)
            m_stato.messaggioInCorso = 0;
        break;
    case T::MexStop:
        m_stato.messaggioInCorso = 0;
        break;
    case T::ProgInterno:
        m_stato.programma = std::max(comando.a, 0);
        break;
    default: {
        const QString nome =
            m_guasti.memoriaPiena
                ? QString()
                : m_memoria->salvaFoto(m_telecamera->guarda(m_stato, *m_stanza, 320, 240));
        if (nome.isEmpty()) {
            annota(u"Memoria piena: foto perduta"_s);
        } else {
            ++m_stato.foto;
            annota(u"Foto salvata: foto/%1"_s.arg(nome));
        }
        break;
    }
    }
    reagisci();
}

void Robot::avanza(int ms)
{
    const StatoRobot prima = m_stato;
    const double secondi = ms / 1000.0;
    muoviBase(secondi);
    muoviArti(secondi);
    if (m_dallaStanza)
        misura();
    const bool mosso = prima.x != m_stato.x || prima.y != m_stato.y ||
                       prima.direzione != m_stato.direzione || prima.testaO != m_stato.testaO ||
                       prima.testaV != m_stato.testaV || prima.braccio != m_stato.braccio ||
                       prima.bacino != m_stato.bacino || prima.base != m_stato.base;
    if (mosso)
        Q_EMIT cambiato();
}

void Robot::muoviBase(double secondi)
{
    if (m_stato.base == MotoBase::Fermo)
        return;
    if (m_stato.base == MotoBase::Avanti || m_stato.base == MotoBase::Indietro) {
        const double rad = m_stato.direzione * std::numbers::pi / 180.0;
        const double passo = (m_stato.velocita == 1 ? velocitaPiano : velocitaForte) * secondi *
                             (m_stato.base == MotoBase::Avanti ? 1.0 : -1.0);
        const QPointF qui(m_stato.x, m_stato.y);
        const QPointF la = m_stanza->avanza(
            qui, qui + QPointF(std::cos(rad), std::sin(rad)) * passo, m_stato.urtato);
        m_stato.x = la.x();
        m_stato.y = la.y();
        if (m_stato.urtato) {
            m_stato.base = MotoBase::Fermo;
            annota(u"Urto: la base si ferma"_s);
        }
        return;
    }
    double giro = velocitaGiro * secondi;
    if (m_stato.restoGiro >= 0.0) {
        giro = std::min(giro, m_stato.restoGiro);
        m_stato.restoGiro -= giro;
    }
    const double segno = m_stato.base == MotoBase::GiraDestra ? 1.0 : -1.0;
    m_stato.direzione = std::fmod(m_stato.direzione + segno * giro + 360.0, 360.0);
    if (m_stato.restoGiro == 0.0) {
        m_stato.base = MotoBase::Fermo;
        annota(u"Rotazione finita"_s);
    }
}

void Robot::muoviArti(double secondi)
{
    m_stato.testaO = verso(m_stato.testaO, m_stato.testaGradiO, velocitaTesta * secondi);
    m_stato.testaV = verso(m_stato.testaV, m_stato.testaGradiV, velocitaTesta * secondi);
    for (std::size_t i = 0; i < 2; ++i)
        muoviArto(m_stato.braccio[i], m_stato.motoBraccio[i], velocitaArto * secondi);
    muoviArto(m_stato.bacino, m_stato.motoBacino, velocitaArto * secondi);
}

void Robot::impostaPosa(double x, double y, double direzione)
{
    m_stato.x = std::clamp(x, Stanza::raggioRobot, Stanza::larghezza - Stanza::raggioRobot);
    m_stato.y = std::clamp(y, Stanza::raggioRobot, Stanza::profondita - Stanza::raggioRobot);
    m_stato.direzione = std::fmod(std::fmod(direzione, 360.0) + 360.0, 360.0);
    Q_EMIT cambiato();
}

// Something nearer than the reach shows as a byte, larger the nearer it is.
void Robot::misura()
{
    constexpr double portata = 40.0; // cm before the robot's hull
    const QPointF qui(m_stato.x, m_stato.y);
    const auto valore = [&](double gradi) {
        const double spazio =
            m_stanza->distanza(qui, m_stato.direzione + gradi) - Stanza::raggioRobot;
        return spazio >= portata
                   ? 0
                   : std::clamp(static_cast<int>(255.0 * (1.0 - spazio / portata)), 1, 255);
    };
    const std::array<int, 3> nuovi{valore(35.0), valore(0.0), valore(-35.0)};
    bool soglia = false;
    for (std::size_t i = 0; i < 3; ++i)
        soglia = soglia || (nuovi[i] == 0) != (m_stato.ultrasuoni[i] == 0);
    // A telegram for each millimetre would fill the line: only coming and going counts.
    if (soglia)
        impostaUltrasuoni(nuovi[0], nuovi[1], nuovi[2]);
    else
        m_stato.ultrasuoni = nuovi;
}
} // namespace tessaro_sim
