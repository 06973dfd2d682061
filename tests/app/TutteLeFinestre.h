// All windows of the program, connected as far as is needed to show them.
#pragma once

#include "conditional/frmProcessor.h"
#include "filebrowser/frmEsploraFile.h"
#include "tests/conditional/OrologioFermo.h"
#include "tests/movelists/BancoEditor.h"
#include "tests/vision/BancoVisione.h"

class TutteLeFinestre
{
public:
    // Shows the console and connects it to a robot that answers.
    TutteLeFinestre();

    // Calls fai for each window while it is shown with typical content, once in each of its states.
    // The arguments are the window and the name of the state.
    void perOgnuna(const std::function<void(Finestra &, const QString &)> &fai);
    // The same with the console alone.
    void perLaConsole(const std::function<void(Finestra &, const QString &)> &fai);

    BancoSuPortaFinta visione;
    frmPrincipale &principale = visione.console;
    frmEsploraFile esplora{principale.COM, principale.BarraStato, visione.cartella.percorso()};
    OrologioFermo orologio;
    frmEditor editor{principale, principale.COM, visione.cartella.percorso()};

private:
    class Collegamento : public ConsoleVigilio
    {
    public:
        bool PortOpen() override { return true; }
        bool collegato() override { return true; }
        bool staTentando() override { return false; }
        void Collega() override {}
    };

    Collegamento m_collegamento;

public:
    frmProcessor processor{m_collegamento, editor, orologio, visione.cartella.percorso()};
};
