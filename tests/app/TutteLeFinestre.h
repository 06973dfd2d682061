// All windows of the program, tied together as far as they need it to be shown.
#pragma once

#include "tests/movelists/BancoEditor.h"
#include "tests/vision/BancoVisione.h"
#include "filebrowser/frmEsploraFile.h"
#include "conditional/frmProcessor.h"
#include "tests/conditional/OrologioFermo.h"

class TutteLeFinestre
{
public:
    // The console is on the screen, connected to a robot that answers.
    TutteLeFinestre();

    // Does something with each window while it is shown with what it can show, once in each of its
    // states: window, and the state's name.
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
