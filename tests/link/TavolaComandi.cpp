#include "tests/link/TavolaComandi.h"

#include "link/ComandiTessaro.h"
#include "tests/support/Scritte.h"

using namespace Qt::StringLiterals;
namespace C = ComandiTessaro;

namespace {

using Seriale = ControlloSeriale &;
using Scritture = QList<QByteArray>;

// One write for each byte.
Scritture aUnoAUno(std::initializer_list<int> byte)
{
    Scritture scritture;
    for (const int uno : byte)
        scritture << b({uno});
    return scritture;
}

Scritture tuttiILed(int comando)
{
    Scritture scritture;
    for (const int maschera : {8, 128, 4, 64, 2, 32, 1, 16})
        scritture << aUnoAUno({19, comando, maschera});
    return scritture;
}

} // namespace

std::vector<RigaComando> tavolaComandi()
{
    std::vector<RigaComando> righe = {
        {u"ApriSessione"_s, [](Seriale s) { C::ApriSessione(s); }, aUnoAUno({3, 1, 1}), true},
        {u"ChiudiSessione"_s, [](Seriale s) { C::ChiudiSessione(s); }, aUnoAUno({4}), true},
        {u"FermaVideo"_s, [](Seriale s) { C::FermaVideo(s); }, aUnoAUno({12}), true},
        {u"TestaSu"_s, [](Seriale s) { C::TestaSu(s, 3); }, aUnoAUno({19, 33, 3})},
        {u"TestaGiu"_s, [](Seriale s) { C::TestaGiu(s, 4); }, aUnoAUno({19, 34, 4})},
        {u"TestaDestra"_s, [](Seriale s) { C::TestaDestra(s, 12); }, aUnoAUno({19, 35, 12})},
        {u"TestaSinistra"_s, [](Seriale s) { C::TestaSinistra(s, 1); }, aUnoAUno({19, 36, 1})},
        {u"LedTesta_SenzaNome"_s, [](Seriale s) { C::LedTesta(s, true, {}); },
         aUnoAUno({19, 37, 0})},
        {u"LedTesta_NomeIgnoto"_s, [](Seriale s) { C::LedTesta(s, false, u"Xs"_s); },
         aUnoAUno({19, 38, 0})},
        {u"LedTesta_Minuscolo"_s, [](Seriale s) { C::LedTesta(s, true, u"vs"_s); },
         aUnoAUno({19, 37, 0})},
        {u"LedTestaTutti_Acceso"_s, [](Seriale s) { C::LedTestaTutti(s, true); }, tuttiILed(37)},
        {u"LedTestaTutti_Spento"_s, [](Seriale s) { C::LedTestaTutti(s, false); }, tuttiILed(38)},
        {u"Tool_DestroAcceso"_s, [](Seriale s) { C::Tool(s, 1, true); }, {b({19}), b({140, 255})}},
        {u"Tool_DestroSpento"_s, [](Seriale s) { C::Tool(s, 1, false); }, {b({19}), b({140, 0})}},
        {u"Tool_SinistroAcceso"_s,
         [](Seriale s) { C::Tool(s, 2, true); },
         {b({19}), b({139, 255})}},
        {u"Tool_SinistroSpento"_s, [](Seriale s) { C::Tool(s, 2, false); }, {b({19}), b({139, 0})}},
        {u"Pinza_Apri"_s, [](Seriale s) { C::Pinza(s, true); }, {b({19, 161, 1})}},
        {u"Pinza_Chiudi"_s, [](Seriale s) { C::Pinza(s, false); }, {b({19, 161, 2})}},
        {u"BaseAvanti_Piano"_s, [](Seriale s) { C::BaseAvanti(s, 1); }, aUnoAUno({19, 65, 1})},
        {u"BaseAvanti_Veloce"_s, [](Seriale s) { C::BaseAvanti(s, 2); }, aUnoAUno({19, 65, 2})},
        {u"BaseIndietro"_s, [](Seriale s) { C::BaseIndietro(s, 2); }, aUnoAUno({19, 66, 2})},
        {u"BaseDestra_MezzoGiro"_s, [](Seriale s) { C::BaseDestra(s, 1); }, aUnoAUno({19, 67, 18})},
        {u"BaseDestra_UnQuarto"_s, [](Seriale s) { C::BaseDestra(s, 2); }, aUnoAUno({19, 67, 17})},
        {u"BaseDestra_SenzaFine"_s, [](Seriale s) { C::BaseDestra(s, 3); }, aUnoAUno({19, 67, 16})},
        {u"BaseSinistra_MezzoGiro"_s, [](Seriale s) { C::BaseSinistra(s, 1); },
         aUnoAUno({19, 68, 18})},
        {u"BaseSinistra_SenzaFine"_s, [](Seriale s) { C::BaseSinistra(s, 3); },
         aUnoAUno({19, 68, 16})},
        {u"BaseStop"_s, [](Seriale s) { C::BaseStop(s); }, aUnoAUno({19, 65, 0})},
        {u"Braccio_SinistroSu"_s, [](Seriale s) { C::Braccio(s, 0, 2); }, aUnoAUno({19, 129, 2})},
        {u"Braccio_DestroGiu"_s, [](Seriale s) { C::Braccio(s, 1, 4); }, aUnoAUno({19, 130, 4})},
        {u"Braccio_DestroFermo"_s, [](Seriale s) { C::Braccio(s, 1, 0); }, aUnoAUno({19, 130, 0})},
        {u"Bacino_Su"_s, [](Seriale s) { C::Bacino(s, 1); }, {b({19, 73, 4})}},
        {u"Bacino_Giu"_s, [](Seriale s) { C::Bacino(s, 2); }, {b({19, 73, 8})}},
        {u"LedPosizione_Acceso"_s, [](Seriale s) { C::LedPosizione(s, -1); },
         aUnoAUno({19, 131, 255})},
        {u"LedPosizione_Spento"_s, [](Seriale s) { C::LedPosizione(s, 0); },
         aUnoAUno({19, 131, 0})},
        {u"ScattaFoto"_s, [](Seriale s) { C::ScattaFoto(s); }, {b({19, 3, 1})}},
        {u"Riproduci_PrimaFrase"_s, [](Seriale s) { C::Riproduci(s, 67); }, aUnoAUno({19, 97, 67})},
        {u"Riproduci_UltimoSuono"_s, [](Seriale s) { C::Riproduci(s, 222); },
         aUnoAUno({19, 97, 222})},
        {u"MexPlay"_s, [](Seriale s) { C::MexPlay(s, 3); }, aUnoAUno({19, 99, 131, 19, 99, 131})},
        {u"MexRegistra"_s, [](Seriale s) { C::MexRegistra(s, 10); },
         aUnoAUno({19, 99, 74, 19, 99, 74})},
        {u"MexCancella"_s, [](Seriale s) { C::MexCancella(s, 1); }, aUnoAUno({19, 99, 33})},
        {u"MexStop"_s, [](Seriale s) { C::MexStop(s); }, aUnoAUno({19, 99, 0})},
        {u"ProgInterno_0"_s, [](Seriale s) { C::ProgInterno(s, 0); }, {b({19, 2}), b({0})}},
        {u"ProgInterno_1"_s, [](Seriale s) { C::ProgInterno(s, 1); }, {b({19, 2}), b({1})}},
        {u"ProgInterno_2"_s, [](Seriale s) { C::ProgInterno(s, 2); }, {b({19, 2}), b({5})}},
        {u"ProgInterno_3"_s, [](Seriale s) { C::ProgInterno(s, 3); }, {b({19, 2}), b({9})}},
        {u"RichiediSensori"_s, [](Seriale s) { C::RichiediSensori(s); }, {b({27, 70})}},
        {u"RichiediStatoA"_s, [](Seriale s) { C::RichiediStatoA(s); }, {b({29, 132})}},
        {u"RichiediStatoB"_s, [](Seriale s) { C::RichiediStatoB(s); }, {b({28, 103})}},
        {u"ApriPercorso_Cartella"_s,
         [](Seriale s) { C::ApriPercorso(s, 16, "\\foto\\x"); },
         {b({40, 16, 7}) + "\\foto\\x"}},
        {u"ApriPercorso_File"_s,
         [](Seriale s) { C::ApriPercorso(s, 1, "\xE0.jpg"); },
         {b({40, 1, 5}) + "\xE0.jpg"}},
        {u"ApriPercorso_Vuoto"_s, [](Seriale s) { C::ApriPercorso(s, 16, {}); }, {b({40, 16, 0})}},
        {u"ApriPercorso_Lungo"_s,
         [](Seriale s) { C::ApriPercorso(s, 1, QByteArray(255, 'a')); },
         {b({40, 1, 255}) + QByteArray(255, 'a')}},
        {u"ChiudiCanale"_s, [](Seriale s) { C::ChiudiCanale(s, 9); }, {b({41, 9})}},
        {u"LeggiBlocco"_s,
         [](Seriale s) { C::LeggiBlocco(s, 2, 255, 255); },
         {b({44, 2, 255, 255})}},
        {u"LeggiElenco"_s, [](Seriale s) { C::LeggiElenco(s, 7); }, {b({46, 7})}},
    };
    const QList<std::pair<QString, int>> led = {{u"Vs"_s, 8},  {u"Vd"_s, 128}, {u"Rs"_s, 4},
                                                {u"Rd"_s, 64}, {u"Gs"_s, 2},   {u"Gd"_s, 32},
                                                {u"Bs"_s, 1},  {u"Bd"_s, 16}};
    for (const auto &[nome, maschera] : led) {
        for (const bool acceso : {true, false})
            righe.push_back({u"LedTesta_"_s + nome + (acceso ? u"Acceso"_s : u"Spento"_s),
                             [nome, acceso](Seriale s) { C::LedTesta(s, acceso, nome); },
                             aUnoAUno({19, acceso ? 37 : 38, maschera})});
    }
    return righe;
}
