#include "link/FrasiSuoni.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char16_t *, FrasiSuoni::ultimaFrase> testiFrasi = {
    u"Memorizzerò la tua voce per riconoscerti in futuro",
    u"Pronuncia la password",
    u"Ripeti per favore",
    u"Ok",
    u"Messaggio...",
    u"Se attivi la password risponderò solo a te",
    u"Rispondo solo se ti riconosco",
    u"Non ho capito!",
    u"Ripeti",
    u"Gradi",
    u"Per favore",
    u"Grazie!",
    u"Prego!",
    u"Ciao",
    u"Sono Tessaro",
    u"Ti ho riconosciuto",
    u"Non fare il furbo!",
    u"Non sai la password",
    u"Ciao, sono Tessaro",
    u"Buonanotte!",
    u"Attivato",
    u"Disattivato",
    u"Sinistra",
    u"Destra",
    u"Su",
    u"Giù",
    u"Avanti",
    u"Indietro",
    u"A chi?",
    u"A cosa giochiamo?",
    u"Adesso fammi riposare!",
    u"Adesso posso sentirti!",
    u"Aiuto!",
    u"Allora facciamo qualcosa!",
    u"Almeno",
    u"Anche tu",
    u"Ancora!",
    u"Annoiato",
    u"Arrabbiato",
    u"Aspettami",
    u"Assolutamente no!",
    u"Batterie elettronica...",
    u"Batterie motori...",
    u"Bello sì, ma che noia!",
    u"Bene",
    u"Caccia al tesoro",
    u"Caldo",
    u"Cattivo",
    u"Che bello vederti",
    u"Che vuoi adesso?",
    u"Chiapparello",
    u"Ci credo! Non mi fai fare niente!",
    u"Ci mancava anche questa!",
    u"Come è andata?",
    u"Come stai?",
    u"Come te!",
    u"Cominciamo subito!",
    u"Dai!",
    u"Dimmi",
    u"È divertente!",
    u"È molto...",
    u"E perchè?",
    u"È quello che mi ci vuole",
    u"È triste!",
    u"Eccomi!",
    u"Eccoti!",
    u"Evita ostacoli",
    u"Facciamo qualcosa insieme!",
    u"Facciamolo ancora! È divertente!",
    u"Felice",
    u"Finalmente!",
    u"Freddo",
    u"Giochiamo!",
    u"Giochiamo a...",
    u"Giochiamo ancora!",
    u"Ho tanto bisogno di affetto!",
    u"Tessaro",
    u"Il migliore",
    u"Il più bello!!",
    u"Inseguimento",
    u"Io mi sto divertendo!",
    u"Lasciami stare!",
    u"Lo pensi davvero?",
    u"Ma dove sei stato?",
    u"Meno",
    u"Mettimi alla prova!",
    u"Mi dispiace!",
    u"Mi piace questo gioco!",
    u"Mi prendi in giro",
    u"Mostrami il colore",
    u"Nascondino",
    u"Ne ho proprio bisogno",
    u"Nessuno vuol giocare con me!",
    u"No!",
    u"Non dire così",
    u"Non ho voglia",
    u"Non lo trovo",
    u"Non lo vedo",
    u"Non mi toccare!",
    u"Non mi va di giocare!",
    u"Non riesco a trovare la strada",
    u"Non sei male!",
    u"Non sono brutto",
    u"Non sono stanco",
    u"Non te la cavi con così poco!",
    u"Non ti permettere più!",
    u"Non ti trovo",
    u"Non ti vedo",
    u"Non voglio vederti!",
    u"Per giocare",
    u"Perché?",
    u"Perfetto!",
    u"Preso!",
    u"Pronto!",
    u"Punto!",
    u"Quanto mi piace!!!",
    u"Sarai bello te!",
    u"Scariche",
    u"Schiocca le dita",
    u"Segui suoni",
    u"Senti chi parla",
    u"Sì",
    u"Sicuro?",
    u"Sono",
    u"Sono contento di piacerti!",
    u"Sono solo stanco",
    u"Sono stato bravo?",
    u"Sono troppo stanco",
    u"Tanto lo so che scherzi",
    u"Temperatura",
    u"Ti piaccio quando sono arrabbiato!?!??",
    u"Ti sei divertito?",
    u"Ti voglio bene lo stesso!",
    u"Ti voglio bene quando fai così!",
    u"Ti voglio sempre più bene!",
    u"Ti voglio troppo bene per contraddirti!",
    u"Triste",
    u"Trovato",
    u"Visione",
    u"Vuoi giocare con me?",
};

struct NomiSuono
{
    const char16_t *console;
    const char16_t *dialogo;
};

constexpr std::array<NomiSuono, FrasiSuoni::ultimoSuono> nomiSuoni = {{
    {u"Clacson", u"Clacson"},
    {u"Sirena 1", u"Sirena 1"},
    {u"Boing", u"Boing"},
    {u"Rutto", u"Rutto"},
    {u"Fischio 1", u"Fischio 1"},
    {u"5 bip", u"5 bip"},
    {u"Esplosione", u"Esplosione"},
    {u"Campana", u"Campana"},
    {u"Trombetta", u"Trombetta"},
    {u"Sirena 2", u"Sirena 2"},
    {u"Scatto di una macchina fotografica", u"Scatto fotocamera"},
    {u"Risata 1", u"Risata 1"},
    {u"Risata 2", u"Risata 2"},
    {u"WOW!", u"WOW!"},
    {u"", u"Fischio 2"},
    {u"", u"Bip singolo"},
}};

// An entry, counted from 1; nullptr if there is none with this number.
template <class Tabella>
const typename Tabella::value_type *riga(const Tabella &tabella, int numero)
{
    if (numero < 1 || numero > static_cast<int>(tabella.size()))
        return nullptr;
    return &tabella[static_cast<size_t>(numero - 1)];
}

template <class Testo>
QStringList tutti(int ultimo, Testo testo)
{
    QStringList elenco;
    for (int i = 1; i <= ultimo; ++i)
        elenco << testo(i);
    return elenco;
}

} // namespace

namespace FrasiSuoni {

QString frase(int numero)
{
    const auto *testo = riga(testiFrasi, numero);
    return testo ? QString::fromUtf16(*testo) : QString();
}

QString suonoConsole(int numero)
{
    const NomiSuono *nomi = riga(nomiSuoni, numero);
    return nomi ? QString::fromUtf16(nomi->console) : QString();
}

QString suonoDialogo(int numero)
{
    const NomiSuono *nomi = riga(nomiSuoni, numero);
    return nomi ? QString::fromUtf16(nomi->dialogo) : QString();
}

QStringList frasi()
{
    return tutti(ultimaFrase, frase);
}

QStringList suoniDialogo()
{
    return tutti(ultimoSuono, suonoDialogo);
}

} // namespace FrasiSuoni
