#include "movelists/Mossa.h"

#include "base/Numeri.h"
#include "link/ComandiTessaro.h"
#include "link/FrasiSuoni.h"

using namespace Qt::StringLiterals;
namespace Tessaro = ComandiTessaro;

namespace {

constexpr qint32 attesaLed = 600;
constexpr qint32 attesaUnPasso = 1500;
constexpr int attesaPasso = 800;
constexpr qint32 attesaMexPlay = 500;
constexpr qint32 attesaMexRegistra = 16000;

bool uguale(QStringView testo, QStringView parola)
{
    return testo.compare(parola, Qt::CaseInsensitive) == 0;
}

// A line as the language looks at it.
class Riga
{
public:
    explicit Riga(QStringView testo) : m_testo(testo) {}

    bool tutta(QStringView parola) const { return uguale(m_testo, parola); }
    bool inizia(QStringView parola) const { return uguale(m_testo.left(parola.size()), parola); }
    bool finisce(QStringView parola) const { return uguale(ultimi(parola.size()), parola); }
    QStringView da(qsizetype colonna) const { return m_testo.mid(colonna - 1); }
    QStringView colonne(qsizetype prima, qsizetype ultima) const
    {
        return m_testo.mid(prima - 1, ultima - prima + 1);
    }
    QStringView ultimi(qsizetype quanti) const { return m_testo.right(quanti); }

private:
    QStringView m_testo;
};

// Nothing where the number does not fit.
template <class Intero>
std::optional<Intero> seEntra(Intero (*converti)(double), double valore)
{
    std::optional<Intero> numero;
    passaErrori([&] { numero = converti(valore); });
    return numero;
}

std::optional<quint8> byte(QStringView testo)
{
    return seEntra<quint8>(Numeri::Byte, Numeri::Valore(testo));
}

Mossa comando(std::function<void(ControlloSeriale &)> cosa, std::optional<qint32> attesa = {})
{
    return {Mossa::Specie::Comando, std::move(cosa), attesa, {}, 0};
}

// A command whose number does not fit.
Mossa senzaNumero(std::optional<qint32> attesa = {})
{
    return comando(std::function<void(ControlloSeriale &)>(), attesa);
}

using ConByte = void (*)(ControlloSeriale &, quint8);

Mossa comando(ConByte cosa, std::optional<quint8> n, std::optional<qint32> attesa = {})
{
    if (!n)
        return senzaNumero(attesa);
    return comando([=](ControlloSeriale &COM) { cosa(COM, *n); }, attesa);
}

Mossa pausa(const Riga &riga)
{
    Mossa mossa;
    mossa.specie = Mossa::Specie::Pausa;
    mossa.attesa = seEntra<qint32>(Numeri::Lungo, Numeri::Valore(riga.da(6)));
    return mossa;
}

Mossa led(const Riga &riga)
{
    const bool acceso = riga.finisce(u"on");
    Mossa mossa;
    mossa.specie = Mossa::Specie::Led;
    if (uguale(riga.colonne(11, 15), u"tutti")) {
        mossa.comando = [=](ControlloSeriale &COM) { Tessaro::LedTestaTutti(COM, acceso); };
        return mossa;
    }
    const QString nome = riga.colonne(11, 12).toString();
    mossa.comando = [=](ControlloSeriale &COM) { Tessaro::LedTesta(COM, acceso, nome); };
    mossa.attesa = attesaLed;
    return mossa;
}

Mossa passiTesta(const Riga &riga, ConByte cosa)
{
    const auto n = byte(riga.ultimi(2));
    if (!n)
        return comando(cosa, n);
    // A product of 16 bits that wraps: from 41 steps on it is negative or wrong.
    const qint32 attesa = *n == 1 ? attesaUnPasso : static_cast<qint16>(*n * attesaPasso);
    return comando(cosa, n, attesa);
}

Mossa testa(const Riga &riga)
{
    if (uguale(riga.colonne(7, 9), u"LED"))
        return led(riga);
    if (uguale(riga.colonne(7, 8), u"su"))
        return passiTesta(riga, Tessaro::TestaSu);
    if (uguale(riga.colonne(7, 9), u"giu"))
        return passiTesta(riga, Tessaro::TestaGiu);
    if (uguale(riga.colonne(7, 12), u"destra"))
        return passiTesta(riga, Tessaro::TestaDestra);
    if (uguale(riga.colonne(7, 14), u"sinistra"))
        return passiTesta(riga, Tessaro::TestaSinistra);
    return {};
}

Mossa braccio(const Riga &riga)
{
    const quint8 a = uguale(riga.colonne(9, 10), u"Sx") ? 0 : 1;
    const quint8 v = riga.finisce(u"Alza") ? 2 : 4;
    return comando([=](ControlloSeriale &COM) { Tessaro::Braccio(COM, a, v); });
}

Mossa fermaBraccia(const Riga &)
{
    return comando([](ControlloSeriale &COM) {
        Tessaro::Braccio(COM, 0, 0);
        Tessaro::Braccio(COM, 1, 0);
    });
}

Mossa tool(const Riga &riga)
{
    const quint8 n = uguale(riga.colonne(6, 13), u"Sinistro") ? 2 : 1;
    const bool acceso = riga.finisce(u"ON");
    return comando([=](ControlloSeriale &COM) { Tessaro::Tool(COM, n, acceso); });
}

Mossa pinza(const Riga &riga)
{
    const bool apri = uguale(riga.da(7), u"Apri");
    return comando([=](ControlloSeriale &COM) { Tessaro::Pinza(COM, apri); });
}

Mossa avanti(const Riga &riga)
{
    return comando(Tessaro::BaseAvanti, uguale(riga.da(8), u"piano") ? quint8{1} : quint8{2});
}

Mossa indietro(const Riga &riga)
{
    return comando(Tessaro::BaseIndietro, uguale(riga.da(10), u"piano") ? quint8{1} : quint8{2});
}

// Half a turn, a quarter, or without end.
quint8 giro(QStringView segno)
{
    return segno == u"½" ? 1 : segno == u"¼" ? 2 : 3;
}

Mossa destra(const Riga &riga)
{
    return comando(Tessaro::BaseDestra, giro(riga.colonne(8, 8)));
}

Mossa sinistra(const Riga &riga)
{
    return comando(Tessaro::BaseSinistra, giro(riga.colonne(10, 10)));
}

Mossa stop(const Riga &)
{
    return comando(Tessaro::BaseStop);
}

Mossa bacino(const Riga &riga)
{
    return comando(Tessaro::Bacino, riga.finisce(u"Alza") ? quint8{1} : quint8{2});
}

Mossa ledPosizione(const Riga &riga)
{
    const qint16 v = riga.finisce(u"ON") ? -1 : 0;
    return comando([=](ControlloSeriale &COM) { Tessaro::LedPosizione(COM, v); });
}

Mossa riproduci(double numero)
{
    const auto n = seEntra<qint16>(Numeri::Intero, numero);
    if (!n)
        return senzaNumero();
    return comando([=](ControlloSeriale &COM) { Tessaro::Riproduci(COM, *n); });
}

Mossa suono(const Riga &riga)
{
    return riproduci(Numeri::Valore(riga.ultimi(2)) + FrasiSuoni::primaDeiSuoni);
}

Mossa frase(const Riga &riga)
{
    return riproduci(Numeri::Valore(riga.da(7)) + FrasiSuoni::primaDelleFrasi);
}

Mossa mex(const Riga &riga)
{
    if (riga.finisce(u"stop"))
        return comando(Tessaro::MexStop);
    const auto n = byte(riga.da(4));
    if (riga.finisce(u"play"))
        return comando(Tessaro::MexPlay, n, attesaMexPlay);
    if (riga.finisce(u"registra"))
        return comando(Tessaro::MexRegistra, n, attesaMexRegistra);
    if (riga.finisce(u"cancella"))
        return comando(Tessaro::MexCancella, n);
    return {};
}

Mossa foto(const Riga &)
{
    return comando(Tessaro::ScattaFoto);
}

// "Prog interno Stop" has no rule of its own: its number reads as 0.
Mossa progInterno(const Riga &riga)
{
    return comando(Tessaro::ProgInterno, byte(riga.da(14)));
}

Mossa camera(const Riga &)
{
    Mossa mossa;
    mossa.specie = Mossa::Specie::Camera;
    return mossa;
}

Mossa programma(const Riga &riga)
{
    Mossa mossa;
    mossa.specie = Mossa::Specie::Programma;
    mossa.programma = riga.da(11).toString();
    return mossa;
}

Mossa ripeti(const Riga &riga)
{
    Mossa mossa;
    mossa.specie = Mossa::Specie::Ripeti;
    mossa.volte = byte(riga.da(8)).value_or(0);
    return mossa;
}

enum class Dove { Inizio, Tutta };

struct Regola
{
    QStringView parola;
    Dove dove;
    Mossa (*leggi)(const Riga &);
};

// No two of them recognise the same line.
constexpr Regola regole[] = {
    {u"Pausa", Dove::Inizio, pausa},
    {u"Testa", Dove::Inizio, testa},
    {u"Braccio", Dove::Inizio, braccio},
    {u"Braccia Stop", Dove::Tutta, fermaBraccia},
    {u"Tool", Dove::Inizio, tool},
    {u"Pinza", Dove::Inizio, pinza},
    {u"Avanti", Dove::Inizio, avanti},
    {u"Indietro", Dove::Inizio, indietro},
    {u"Destra", Dove::Inizio, destra},
    {u"Sinistra", Dove::Inizio, sinistra},
    {u"Stop", Dove::Tutta, stop},
    {u"Bacino", Dove::Inizio, bacino},
    {u"LED Posizione", Dove::Inizio, ledPosizione},
    {u"Suono", Dove::Inizio, suono},
    {u"Frase", Dove::Inizio, frase},
    {u"Mex", Dove::Inizio, mex},
    {u"Foto", Dove::Tutta, foto},
    {u"Prog interno", Dove::Inizio, progInterno},
    {u"Camera", Dove::Tutta, camera},
    {u"Programma", Dove::Inizio, programma},
    {u"Ripeti", Dove::Inizio, ripeti},
};

} // namespace

Mossa leggiMossa(QStringView testo)
{
    const Riga riga(testo);
    for (const Regola &regola : regole) {
        if (regola.dove == Dove::Tutta ? riga.tutta(regola.parola) : riga.inizia(regola.parola))
            return regola.leggi(riga);
    }
    return {};
}
