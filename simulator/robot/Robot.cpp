#include "simulator/robot/Robot.h"
#include "simulator/robot/Diario.h"
#include "simulator/robot/Memoria.h"
#include "simulator/robot/Stanza.h"
#include "simulator/robot/Telecamera.h"
#include "simulator/robot/Telegrammi.h"
#include <algorithm>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
using T = Comando::Tipo;

Robot::Robot(Diario &diario, QObject *parent)
    : QObject(parent),
      m_diario(diario),
      m_stanza(std::make_unique<Stanza>()),
      m_memoria(std::make_unique<Memoria>()),
      m_telecamera(std::make_unique<Telecamera>())
{
    m_riconoscitore.suComando = [this](const Comando &comando) { esegui(comando); };
    m_riconoscitore.suIgnoto = [this](char c) {
        m_diario.aggiungi(VoceDiario::Tipo::NonCapito,
                          u"Byte %1 non capito"_s.arg(static_cast<quint8>(c)), QByteArray(1, c));
    };
}

Robot::~Robot() = default;

void Robot::ricevi(const QByteArray &byte)
{
    m_riconoscitore.ricevi(byte);
}

void Robot::esegui(const Comando &comando)
{
    const bool apre = comando.tipo == T::ApriSessione || comando.tipo == T::Sollecito;
    const bool ignorato = !apre && !m_stato.sessioneAperta;
    QStringList note;
    if (!comando.previsto)
        note << u"valore non previsto"_s;
    if (ignorato)
        note << u"sessione chiusa: ignorato"_s;
    m_diario.aggiungi(VoceDiario::Tipo::Comando, comando.testo, comando.byte, note.join(u", "_s));
    if (ignorato)
        return;

    switch (comando.tipo) {
    case T::ApriSessione:
        apriSessione();
        break;
    case T::Sollecito:
        sollecito();
        break;
    case T::ChiudiSessione:
        chiudiSessione();
        break;
    case T::RichiediSensori:
    case T::RichiediStatoA:
    case T::RichiediStatoB:
    case T::ImpostaVideo:
    case T::PartenzaVideo:
    case T::FermaVideo:
        eseguiRichiesta(comando);
        break;
    case T::ApriPercorso:
    case T::ChiudiCanale:
    case T::LeggiBlocco:
    case T::LeggiElenco:
        eseguiMemoria(comando);
        break;
    case T::Riproduci:
    case T::MexPlay:
    case T::MexRegistra:
    case T::MexCancella:
    case T::MexStop:
    case T::ProgInterno:
    case T::ScattaFoto:
        eseguiVoce(comando);
        break;
    default:
        eseguiCorpo(comando);
        break;
    }
    Q_EMIT cambiato();
}

void Robot::apriSessione()
{
    m_memoria->chiudiTutti();
    m_stato.videoAttivo = false;
    m_stato.sessioneAperta = true;
    m_diario.aggiungi(VoceDiario::Tipo::Sessione, u"Sessione aperta"_s);
    m_attendeSollecito = m_guasti.soloDopoSollecito;
    if (m_attendeSollecito)
        return;
    if (m_guasti.unSoloByte)
        invia(QByteArray(1, 31));
    else
        saluta();
}

// Who nudges has heard nothing yet: the greeting goes out once more.
void Robot::sollecito()
{
    if (!m_stato.sessioneAperta || m_guasti.unSoloByte)
        return;
    m_attendeSollecito = false;
    saluta();
}

void Robot::saluta()
{
    invia(Telegrammi::batterie(m_stato.batteriaLogica, m_stato.batteriaMotori));
    invia(Telegrammi::temperatura(m_stato.temperatura));
}

void Robot::chiudiSessione()
{
    m_stato.sessioneAperta = false;
    fermaVideo();
    m_stato.base = MotoBase::Fermo;
    m_memoria->chiudiTutti();
    m_diario.aggiungi(VoceDiario::Tipo::Sessione, u"Sessione chiusa"_s);
}

void Robot::fermaVideo()
{
    m_stato.videoAttivo = false;
    Q_EMIT videoFermato();
}

void Robot::eseguiRichiesta(const Comando &comando)
{
    switch (comando.tipo) {
    case T::RichiediSensori:
        if (m_risponde) {
            invia(Telegrammi::ultrasuoni(m_stato.ultrasuoni));
            invia(Telegrammi::temperatura(m_stato.temperatura));
        }
        break;
    case T::RichiediStatoA:
        if (m_risponde)
            invia(Telegrammi::batterie(m_stato.batteriaLogica, m_stato.batteriaMotori));
        break;
    case T::RichiediStatoB:
        if (m_risponde)
            invia(Telegrammi::temperatura(m_stato.temperatura));
        break;
    case T::ImpostaVideo:
        reagisci();
        break;
    case T::PartenzaVideo:
        m_telecamera->ricomincia();
        m_stato.videoAttivo = true;
        break;
    default:
        fermaVideo();
        reagisci();
        break;
    }
}

void Robot::eseguiMemoria(const Comando &comando)
{
    switch (comando.tipo) {
    case T::ApriPercorso:
        invia(m_memoria->apri(comando.a, comando.percorso, m_guasti));
        break;
    case T::LeggiElenco:
        invia(m_memoria->leggiElenco(comando.a, m_guasti));
        break;
    case T::LeggiBlocco:
        invia(m_memoria->leggiBlocco(comando.a, comando.b, m_guasti));
        break;
    default:
        // No answer: a status 0 would start the next reading.
        m_memoria->chiudi(comando.a);
        break;
    }
}

// The robot answers every action with what its ultrasonic sensors see, so that the console's wait
// for a reaction ends.
void Robot::reagisci()
{
    if (m_risponde)
        invia(Telegrammi::ultrasuoni(m_stato.ultrasuoni));
}

void Robot::invia(const QByteArray &byte)
{
    if (m_stato.sessioneAperta && !m_guasti.silenzio && !m_attendeSollecito)
        Q_EMIT telegramma(byte);
}

void Robot::impostaTemperatura(int gradi)
{
    m_stato.temperatura = std::clamp(gradi, 0, 255);
    if (m_immediato)
        invia(Telegrammi::temperatura(m_stato.temperatura));
    Q_EMIT cambiato();
}

void Robot::impostaBatterie(int logica, int motori)
{
    m_stato.batteriaLogica = std::clamp(logica, 0, 255);
    m_stato.batteriaMotori = std::clamp(motori, 0, 255);
    if (m_immediato)
        invia(Telegrammi::batterie(m_stato.batteriaLogica, m_stato.batteriaMotori));
    Q_EMIT cambiato();
}

void Robot::impostaUltrasuoni(int destro, int centrale, int sinistro)
{
    m_stato.ultrasuoni = {std::clamp(destro, 0, 255), std::clamp(centrale, 0, 255),
                          std::clamp(sinistro, 0, 255)};
    if (m_immediato)
        invia(Telegrammi::ultrasuoni(m_stato.ultrasuoni));
    Q_EMIT cambiato();
}

void Robot::impostaUltrasuoniDallaStanza(bool attivo)
{
    m_dallaStanza = attivo;
    if (attivo)
        misura();
}

QByteArray Robot::prossimaRiga()
{
    if (!m_stato.videoAttivo || m_guasti.silenzio)
        return {};
    return Telegrammi::rigaVideo(m_telecamera->prossimaRiga(m_stato, *m_stanza));
}

void Robot::annota(const QString &testo)
{
    m_diario.aggiungi(VoceDiario::Tipo::Nota, testo);
}
} // namespace tessaro_sim
