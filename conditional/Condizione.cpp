#include "conditional/Condizione.h"

#include "base/Numeri.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView nonImpostato = u"no";

// How many characters of a field are compared.
constexpr qsizetype lunghezzaOrario = 8;
constexpr qsizetype lunghezzaSensori = 3;
constexpr std::array<qsizetype, 3> cifre{2, 1, 1};

constexpr qsizetype larghezzaNome = 31;

QStringView daCampo(QStringView condizione, int campo)
{
    return condizione.sliced(posizioneCampo(condizione, campo));
}

bool eUno(QStringView testo, qsizetype posto)
{
    return posto < testo.size() && testo[posto] == u'1';
}

// Whether a field is set, and its number is this one.
bool numeroUguale(QStringView condizione, int campo, double numero)
{
    const QStringView daQui = daCampo(condizione, campo);
    return !daQui.startsWith(nonImpostato) && Numeri::Valore(daQui) == numero;
}

} // namespace

qsizetype posizioneCampo(QStringView condizione, int campo)
{
    qsizetype posizione = 0;
    for (int i = 1; i < campo; ++i) {
        const qsizetype virgola = condizione.indexOf(u',', posizione);
        if (virgola < 0)
            return condizione.size();
        posizione = virgola + 1;
    }
    return posizione;
}

QStringView testoCampo(QStringView condizione, int campo)
{
    const QStringView resto = daCampo(condizione, campo);
    const qsizetype virgola = resto.indexOf(u',');
    return virgola < 0 ? resto : resto.first(virgola);
}

bool campoNo(QStringView condizione, int campo)
{
    return daCampo(condizione, campo).startsWith(nonImpostato);
}

QString componiCondizione(const std::array<QString, campiCondizione> &campi)
{
    return QStringList(campi.begin(), campi.end()).join(u',');
}

QString DescriviCondizione(QStringView condizione)
{
    QString descrizione;
    int no = 0;
    for (int campo = CampoOrario; campo <= CampoMotori; ++campo) {
        if (campoNo(condizione, campo)) {
            ++no;
            continue;
        }
        switch (campo) {
        case CampoOrario:
            descrizione = condizione.left(lunghezzaOrario).toString();
            break;
        case CampoUltrasuoni:
            descrizione = u"Ultrasuoni"_s;
            break;
        case CampoTemperatura:
            descrizione = u"Temperatura"_s;
            break;
        case CampoLogica:
            descrizione = u"Batt.Logica"_s;
            break;
        default:
            descrizione = descrizione == u"Batt.Logica" ? u"Batterie"_s : u"Batt.Motori"_s;
        }
    }
    if (descrizione == u"Batterie" && no == campiCondizione - 2)
        return descrizione;
    return no < campiCondizione - 1 ? u"Varie"_s : descrizione;
}

QString NomeLista(const QString &nome)
{
    if (nome.size() < larghezzaNome)
        return nome.leftJustified(larghezzaNome);
    return nome.left(larghezzaNome - 4) + u"... "_s;
}

CondizioneLetta::CondizioneLetta(QStringView condizione)
    : m_orario(condizione.left(lunghezzaOrario).toString()),
      m_ultrasuoni(daCampo(condizione, CampoUltrasuoni).left(lunghezzaSensori).toString())
{
    for (int campo = CampoOrario; campo <= CampoMotori; ++campo)
        m_no[static_cast<size_t>(campo - CampoOrario)] = campoNo(condizione, campo);
    for (size_t i = 0; i < cifre.size(); ++i) {
        const int campo = CampoTemperatura + static_cast<int>(i);
        m_numeri[i] = Numeri::Valore(daCampo(condizione, campo).left(cifre[i]));
    }
}

bool CondizioneLetta::uguale(const CondizioneLetta &altra, int campo) const
{
    switch (campo) {
    case CampoOrario:
        return m_orario == altra.m_orario;
    case CampoUltrasuoni:
        return m_ultrasuoni == altra.m_ultrasuoni;
    default: {
        const auto i = static_cast<size_t>(campo - CampoTemperatura);
        return m_numeri[i] == altra.m_numeri[i];
    }
    }
}

std::optional<QString> CondizioneLetta::contrasto(const CondizioneLetta &altra) const
{
    static const std::array<QString, campiCondizione> testi = {
        u"hanno gli stessi orari di attivazione!"_s,
        u"si attivano entrambe con gli stessi sensori a ultrasuoni"_s,
        u"si attivano entrambe con la stessa temperatura"_s,
        u"si attivano entrambe con lo stesso stato delle batterie logica"_s,
        u"si attivano entrambe con lo stesso stato delle batterie dei motori"_s};
    for (int campo = CampoOrario; campo <= CampoMotori; ++campo) {
        const auto i = static_cast<size_t>(campo - CampoOrario);
        if (!m_no[i] && uguale(altra, campo))
            return testi[i];
    }
    return {};
}

std::optional<QString> Contrasto(QStringView condizione, QStringView altra)
{
    return CondizioneLetta(condizione).contrasto(CondizioneLetta(altra));
}

TelemetriaLetta::TelemetriaLetta(QStringView testo)
{
    constexpr QStringView ultrasuoni = u"Ultrasuoni:";
    constexpr QStringView temperatura = u"Temperatura:";
    constexpr QStringView batterie = u"Batterie:";
    if (testo.startsWith(ultrasuoni)) {
        m_campo = CampoUltrasuoni;
        for (size_t k = 0; k < m_visti.size(); ++k)
            m_visti[k] = eUno(testo, ultrasuoni.size() + static_cast<qsizetype>(k));
    } else if (testo.startsWith(temperatura)) {
        m_campo = CampoTemperatura;
        m_numero = Numeri::Valore(testo.sliced(temperatura.size()));
    } else if (testo.startsWith(batterie)) {
        m_campo = CampoLogica;
        m_numero = Numeri::Valore(testo.sliced(batterie.size()));
        m_motori = Numeri::Valore(testo.mid(batterie.size() + 1));
    }
}

bool TelemetriaLetta::avvera(QStringView condizione) const
{
    switch (m_campo) {
    case CampoUltrasuoni: {
        if (campoNo(condizione, CampoUltrasuoni))
            return false;
        const qsizetype posto = posizioneCampo(condizione, CampoUltrasuoni);
        for (size_t k = 0; k < m_visti.size(); ++k) {
            if (m_visti[k] && eUno(condizione, posto + static_cast<qsizetype>(k)))
                return true;
        }
        return false;
    }
    case CampoTemperatura:
        return numeroUguale(condizione, CampoTemperatura, m_numero);
    case CampoLogica:
        return numeroUguale(condizione, CampoLogica, m_numero) ||
               numeroUguale(condizione, CampoMotori, m_motori);
    default:
        return false;
    }
}

bool condizioneVera(QStringView condizione, QStringView telemetria)
{
    return TelemetriaLetta(telemetria).avvera(condizione);
}
