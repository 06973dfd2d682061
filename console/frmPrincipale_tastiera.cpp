// The console by keyboard alone. Its keys belong to the robot, whatever has the focus: what has no
// key stands in a menu, in which the keys are the menu's.
#include "console/LedTesta.h"
#include "console/frmPrincipale.h"
#include "controls/Tasti.h"

#include <QApplication>
#include <algorithm>
#include <utility>

namespace {

constexpr int tastoMaiuscole = 1;
constexpr QPoint postoMenu{14, 60};

} // namespace

// The menu comes when the key is let go: the window sees the release, so that no key counts as
// held. The other key of the two may be let go first.
void frmPrincipale::mnuTastiera_KeyDown(int KeyCode, int Shift)
{
    if (KeyCode == Tasti::Menu || KeyCode == Tasti::F10)
        m_menuChiesto = KeyCode == Tasti::Menu || Shift == tastoMaiuscole;
}

void frmPrincipale::mnuTastiera_KeyUp(int KeyCode)
{
    const bool suo = KeyCode == Tasti::Menu || KeyCode == Tasti::F10;
    if (suo && std::exchange(m_menuChiesto, false) && !QApplication::activePopupWidget())
        mnuTastiera.popup(mapToGlobal(postoMenu));
}

void frmPrincipale::componiMenu()
{
    mnuTastiera.setObjectName(u"mnuTastiera"_s);
    mnuTastiera.setAccessibleName(u"Comandi della console"_s);
    connect(&mnuTastiera, &QMenu::aboutToShow, this,
            [this] { eseguiGestore([this] { aggiornaMenu(&mnuTastiera); }); });
    componiMenuMovimenti();
    componiMenuTesta();
    componiMenuVoce();
    mnuTastiera.addSeparator();
    componiMenuFinestre();
}

VoceMenu &frmPrincipale::voce(QMenu *menu, const QString &testo, QWidget &controllo,
                              std::function<void()> azione)
{
    auto *nuova = new VoceMenu({}, menu, testo);
    nuova->setData(QVariant::fromValue(&controllo));
    nuova->Click.collega(std::move(azione));
    return *nuova;
}

void frmPrincipale::voceLista(QMenu *menu, const QString &testo, Combo &combo)
{
    voce(menu, testo, combo, [&combo] {
        combo.SetFocus();
        combo.showPopup();
    });
}

// What cannot be clicked now cannot be chosen either.
void frmPrincipale::aggiornaMenu(QMenu *menu)
{
    for (QAction *azione : menu->actions()) {
        if (QMenu *sotto = azione->menu()) {
            aggiornaMenu(sotto);
            const QList<QAction *> voci = sotto->actions();
            azione->setEnabled(std::ranges::any_of(voci, &QAction::isEnabled));
        } else if (const auto *controllo = azione->data().value<QWidget *>()) {
            azione->setEnabled(controllo->isVisible() && controllo->isEnabled());
        }
    }
}

void frmPrincipale::componiMenuMovimenti()
{
    voce(&mnuTastiera, u"&STOP"_s, lblStop, [this] { lblStop.Click(); });

    QMenu *modo = BarraMenu::aggiungi(&mnuTastiera, u"mnuModo"_s, u"&Modo"_s);
    QList<std::pair<VoceMenu *, CasellaOpzione *>> modi;
    for (const auto &[testo, opzione] : {std::pair{u"Controlla la &base"_s, &opzBase},
                                         {u"Controlla le b&raccia"_s, &opzBraccia},
                                         {u"Controlla la &testa"_s, &opzTesta}}) {
        CasellaOpzione *quale = opzione;
        modi.append({&voce(modo, testo, *quale, [quale] { quale->setValue(true); }), quale});
    }
    connect(modo, &QMenu::aboutToShow, this, [modi] {
        eseguiGestore([&modi] {
            for (const auto &[scelta, opzione] : modi)
                scelta->setChecked(opzione->Value());
        });
    });
    modo->addSeparator();
    voceLista(modo, u"&Velocità..."_s, cbVelocità);
    voceLista(modo, u"Tipo di r&otazione..."_s, cbModGiro);
    voceLista(modo, u"STEP v&erticali..."_s, cbStepV);
    voceLista(modo, u"STEP or&izzontali..."_s, cbStepO);

    const auto freccia = [this](QMenu *menu, const QString &testo, int Index) {
        voce(menu, testo, imgFreccia(Index), [this, Index] { imgFreccia(Index).aziona(); });
    };
    QMenu *bacino = BarraMenu::aggiungi(&mnuTastiera, u"mnuBacino"_s, u"&Bacino"_s);
    freccia(bacino, u"&Alza il bacino"_s, 5);
    freccia(bacino, u"A&bbassa il bacino"_s, 6);
    QMenu *braccia = BarraMenu::aggiungi(&mnuTastiera, u"mnuBraccia"_s, u"B&raccia"_s);
    freccia(braccia, u"Alza il braccio &sinistro"_s, 7);
    freccia(braccia, u"Alza il braccio &destro"_s, 8);
    freccia(braccia, u"Abbassa il braccio s&inistro"_s, 9);
    freccia(braccia, u"Abbassa il braccio d&estro"_s, 10);
}

void frmPrincipale::componiMenuTesta()
{
    QMenu *led = BarraMenu::aggiungi(&mnuTastiera, u"mnuLED"_s, u"&LED"_s);
    const auto colori = [this, led](const QString &testo, const QString &lato, bool acceso) {
        QMenu *menu = BarraMenu::aggiungi(led, {}, testo);
        int riga = 0;
        for (const QString &colore : {u"&Verde"_s, u"&Giallo"_s, u"&Rosso"_s, u"&Blu"_s}) {
            voce(menu, colore, ImgTesta, [this, riga, lato, acceso] {
                mandaOInserisci(LedTesta::azione(riga, lato, acceso));
            });
            ++riga;
        }
    };
    colori(u"Accendi a &destra"_s, u"destro"_s, true);
    colori(u"Accendi a &sinistra"_s, u"sinistro"_s, true);
    colori(u"Spegni a d&estra"_s, u"destro"_s, false);
    colori(u"Spegni a s&inistra"_s, u"sinistro"_s, false);
    voce(led, u"&Accendi tutti"_s, lblAccLED, [this] { lblAccLED.Click(); });
    voce(led, u"S&pegni tutti"_s, lblSpLED, [this] { lblSpLED.Click(); });
    led->addSeparator();

    const auto pulsanti = [this](QMenu *menu, Immagine &immagine, const QString &acceso,
                                 const QString &spento) {
        voce(menu, acceso, immagine, [&immagine] { immagine.MouseDown(1, 0, 0, 0); });
        voce(menu, spento, immagine, [&immagine] { immagine.MouseDown(2, 0, 0, 0); });
    };
    pulsanti(led, imgLEDPos, u"A&ccendi il LED di posizione"_s, u"Spe&gni il LED di posizione"_s);

    QMenu *tool = BarraMenu::aggiungi(&mnuTastiera, u"mnuTool"_s, u"&Tool"_s);
    pulsanti(tool, imgToolSx, u"Accendi il tool &sinistro"_s, u"Spegni il tool s&inistro"_s);
    pulsanti(tool, imgToolDx, u"Accendi il tool &destro"_s, u"Spegni il tool d&estro"_s);
    QMenu *pinza = BarraMenu::aggiungi(&mnuTastiera, u"mnuPinza"_s, u"&Pinza"_s);
    voce(pinza, u"&Apri la pinza"_s, imgPinzaAperta, [this] { imgPinzaAperta.Click(); });
    voce(pinza, u"&Chiudi la pinza"_s, imgPinzaChiusa, [this] { imgPinzaChiusa.Click(); });
    voce(&mnuTastiera, u"Scatta una &foto"_s, lblScattaFoto, [this] { lblScattaFoto.Click(); });
}

void frmPrincipale::componiMenuVoce()
{
    QMenu *parla = BarraMenu::aggiungi(&mnuTastiera, u"mnuVoce"_s, u"&Voce"_s);
    const auto numero = [this, parla](const QString &testo, CasellaTesto &casella) {
        voce(parla, testo, casella, [&casella] {
            casella.SetFocus();
            casella.selectAll();
            casella.Click();
        });
    };
    numero(u"&Numero della frase"_s, txtValFrase);
    voce(parla, u"Pronuncia &frase"_s, pulFrase, [this] { pulFrase.click(); });
    numero(u"N&umero del suono"_s, txtValSuono);
    voce(parla, u"Esegui &suono"_s, pulSuono, [this] { pulSuono.click(); });

    QMenu *mex = BarraMenu::aggiungi(&mnuTastiera, u"mnuMex"_s, u"M&essaggi"_s);
    voceLista(mex, u"&Numero del messaggio..."_s, cbMex);
    voce(mex, u"&Play"_s, pulPlayMex, [this] { pulPlayMex.Click(); });
    voce(mex, u"&Registra"_s, pulRegistraMex, [this] { pulRegistraMex.Click(); });
    voce(mex, u"&Stop"_s, pulStopMex, [this] { pulStopMex.Click(); });
    voce(mex, u"&Cancella"_s, pulCancMex, [this] { pulCancMex.Click(); });

    QMenu *programmi =
        BarraMenu::aggiungi(&mnuTastiera, u"mnuProgrammi"_s, u"Pro&grammi interni"_s);
    voceLista(programmi, u"&Numero del programma..."_s, cbProgrammi);
    voce(programmi, u"&Fai partire il programma"_s, imgPlayProg, [this] { imgPlayProg.Click(); });
    voce(programmi, u"&Stoppa il programma"_s, imgStopProg, [this] { imgStopProg.Click(); });
}

void frmPrincipale::componiMenuFinestre()
{
    const auto pulsante = [this](const QString &testo, int numero) {
        PulsanteBarra &quale = BarraPulsanti.Buttons(numero);
        return &voce(&mnuTastiera, testo, quale, [&quale] { quale.click(); });
    };
    VoceMenu *collegamento = pulsante({}, 1);
    connect(&mnuTastiera, &QMenu::aboutToShow, this, [this, collegamento] {
        eseguiGestore([this, collegamento] {
            const bool collegata = BarraPulsanti.Buttons(1).Image() != 1;
            collegamento->setCaption(collegata ? u"Disco&nnetti"_s : u"&Connetti ad Tessaro"_s);
        });
    });
    pulsante(u"&Opzioni"_s, 2);
    pulsante(u"Videoc&amera"_s, 4);
    pulsante(u"Se&quor"_s, 5);
    pulsante(u"Vig&ilio"_s, 6);
    pulsante(u"File &del robot"_s, 7);
}
