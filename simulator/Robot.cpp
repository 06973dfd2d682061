#include "Robot.h"
#include "Diario.h"
#include "Memoria.h"
#include "Stanza.h"
#include "Telecamera.h"
#include "Telegrammi.h"
#include <algorithm>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
using T = Comando::Tipo;

Robot::Robot(Diario &diario, QObject *parent)
    : QObject(parent),
      diario_(diario),
      stanza_(std::make_unique<Stanza>()),
      memoria_(std::make_unique<Memoria>()),
      telecamera_(std::make_unique<Telecamera>())
{
    riconoscitore_.suComando = [this](const Comando &comando) { esegui(comando); };
    riconoscitore_.suIgnoto = [this](char c) {
        diario_.aggiungi(VoceDiario::Tipo::NonCapito,
                         u"Byte %1 non capito"_s.arg(static_cast<quint8>(c)), QByteArray(1, c));
    };
}

Robot::~Robot() = default;

void Robot::ricevi(const QByteArray &byte)
{
    riconoscitore_.ricevi(byte);
}

void Robot::esegui(const Comando &comando)
{
    const bool apre = comando.tipo == T::ApriSessione || comando.tipo == T::Sollecito;
    const bool ignorato = !apre && !stato_.sessioneAperta;
    QStringList note;
    if (!comando.previsto)
        note << u"valore non previsto"_s;
    if (ignorato)
        note << u"sessione chiusa: ignorato"_s;
    diario_.aggiungi(VoceDiario::Tipo::Comando, comando.testo, comando.byte, note.join(u", "_s));
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
    memoria_->chiudiTutti();
    stato_.videoAttivo = false;
    stato_.sessioneAperta = true;
    diario_.aggiungi(VoceDiario::Tipo::Sessione, u"Sessione aperta"_s);
    attendeSollecito_ = guasti_.soloDopoSollecito;
    if (attendeSollecito_)
        return;
    if (guasti_.unSoloByte)
        invia(QByteArray(1, 31));
    else
        saluta();
}

// Who nudges has heard nothing yet: the greeting goes out once more.
void Robot::sollecito()
{
    if (!stato_.sessioneAperta || guasti_.unSoloByte)
        return;
    attendeSollecito_ = false;
    saluta();
}

void Robot::saluta()
{
    invia(Telegrammi::batterie(stato_.batteriaLogica, stato_.batteriaMotori));
    invia(Telegrammi::temperatura(stato_.temperatura));
}

void Robot::chiudiSessione()
{
    stato_.sessioneAperta = false;
    fermaVideo();
    stato_.base = MotoBase::Fermo;
    memoria_->chiudiTutti();
    diario_.aggiungi(VoceDiario::Tipo::Sessione, u"Sessione chiusa"_s);
}

void Robot::fermaVideo()
{
    stato_.videoAttivo = false;
    Q_EMIT videoFermato();
}

void Robot::eseguiRichiesta(const Comando &comando)
{
    switch (comando.tipo) {
    case T::RichiediSensori:
        if (risponde_) {
            invia(Telegrammi::ultrasuoni(stato_.ultrasuoni));
            invia(Telegrammi::temperatura(stato_.temperatura));
        }
        break;
    case T::RichiediStatoA:
        if (risponde_)
            invia(Telegrammi::batterie(stato_.batteriaLogica, stato_.batteriaMotori));
        break;
    case T::RichiediStatoB:
        if (risponde_)
            invia(Telegrammi::temperatura(stato_.temperatura));
        break;
    case T::ImpostaVideo:
        reagisci();
        break;
    case T::PartenzaVideo:
        telecamera_->ricomincia();
        stato_.videoAttivo = true;
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
        invia(memoria_->apri(comando.a, comando.percorso, guasti_));
        break;
    case T::LeggiElenco:
        invia(memoria_->leggiElenco(comando.a, guasti_));
        break;
    case T::LeggiBlocco:
        invia(memoria_->leggiBlocco(comando.a, comando.b, guasti_));
        break;
    default:
        // No answer: a status 0 would start the next reading.
        memoria_->chiudi(comando.a);
        break;
    }
}

// The robot answers every action with what its ultrasonic sensors see, so that the console's wait
// for a reaction ends.
void Robot::reagisci()
{
    if (risponde_)
        invia(Telegrammi::ultrasuoni(stato_.ultrasuoni));
}

void Robot::invia(const QByteArray &byte)
{
    if (stato_.sessioneAperta && !guasti_.silenzio && !attendeSollecito_)
        Q_EMIT telegramma(byte);
}

void Robot::impostaTemperatura(int gradi)
{
    stato_.temperatura = std::clamp(gradi, 0, 255);
    if (immediato_)
        invia(Telegrammi::temperatura(stato_.temperatura));
    Q_EMIT cambiato();
}

void Robot::impostaBatterie(int logica, int motori)
{
    stato_.batteriaLogica = std::clamp(logica, 0, 255);
    stato_.batteriaMotori = std::clamp(motori, 0, 255);
    if (immediato_)
        invia(Telegrammi::batterie(stato_.batteriaLogica, stato_.batteriaMotori));
    Q_EMIT cambiato();
}

void Robot::impostaUltrasuoni(int destro, int centrale, int sinistro)
{
    stato_.ultrasuoni = {std::clamp(destro, 0, 255), std::clamp(centrale, 0, 255),
                         std::clamp(sinistro, 0, 255)};
    if (immediato_)
        invia(Telegrammi::ultrasuoni(stato_.ultrasuoni));
    Q_EMIT cambiato();
}

void Robot::impostaUltrasuoniDallaStanza(bool attivo)
{
    dallaStanza_ = attivo;
    if (attivo)
        misura();
}

QByteArray Robot::prossimaRiga()
{
    if (!stato_.videoAttivo || guasti_.silenzio)
        return {};
    return Telegrammi::rigaVideo(telecamera_->prossimaRiga(stato_, *stanza_));
}

void Robot::annota(const QString &testo)
{
    diario_.aggiungi(VoceDiario::Tipo::Nota, testo);
}
} // namespace tessaro_sim
