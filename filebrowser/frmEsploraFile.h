// The file browser: shows the folders of the robot's storage, fetches files, shows fetched photos.
#pragma once

#include "controls/EtichettaAbbreviata.h"
#include "controls/Finestra.h"
#include "controls/Grafica.h"
#include "filebrowser/ElencoCrescente.h"
#include "filebrowser/Prelievo.h"

// Its Tag shows what is awaited from the robot: "Elenco" for a listing, "File", or nothing.
class frmEsploraFile : public Finestra
{
    Q_OBJECT

public:
    // COM: the line to the robot. BarraStato: its panel 3 shows how a fetch goes. cartella: the
    // folder for the fetched files.
    frmEsploraFile(ControlloSeriale &COM, BarraDiStato &BarraStato, const QString &cartella);

    ListaImmagini lstImgAttesa;

    Etichetta Label1;
    Etichetta Label2;
    // Its Tag is the prefix for the names of the files.
    ElencoCrescente lstCartelle;
    ElencoCrescente lstFile;
    Immagine imgAttesa;
    Pulsante pulHome;
    EtichettaAbbreviata lblNomeFoto;
    Immagine imgFoto;

    Prelievo prelievo;

    // What follows is called by prelievo to show the course of a request.
    void svuotaElenchi();
    // Lays out the rows of both lists.
    void assestaElenchi();
    // Adds an entry to its list. x: 2 for a folder, anything else for a file.
    void aggiungi(quint8 x, const QString &nome);
    // Shows the next picture of the wait animation, or hides it.
    void ImmagineAttesa(bool attiva);
    // Shows a photo. Throws what leggiFoto throws.
    void caricaFoto(const QString &percorso);
    void togliFoto() { imgFoto.setPicture(0); }
    // Shows the name of the photo, and the whole name in its tool tip.
    void intitolaFoto(const QString &nome);
    // Enables the window again after a fetch.
    void riabilita();

protected:
    void Disegno() override;
    // Discards what telegrams have changed while the window was closed.
    void Load() override { Disegno(); }
    void Activate() override;
    void Resize() override;
    void Unload(bool &Cancel) override;

private:
    // Ties the Tag to what prelievo awaits.
    void legaTag();
    // Sets the look of the window.
    void disponi();

    void pulHome_Click();
    void lstCartelle_DblClick();
    void lstFile_DblClick();
    // The Enter key does what a double click does.
    void lstCartelle_KeyDown(int &KeyCode, int Shift);
    void lstFile_KeyDown(int &KeyCode, int Shift);

    BarraDiStato &BarraStato;
    quint8 m_fotogramma = 0;
};
