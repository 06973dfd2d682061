// Walks the folders of the robot's storage, fetches a file, shows a fetched photo.
#pragma once

#include "art/Disegni.h"
#include "filebrowser/ElencoCrescente.h"
#include "controls/EtichettaAbbreviata.h"
#include "controls/Finestra.h"
#include "filebrowser/Nomi.h"
#include "filebrowser/Prelievo.h"

using namespace Qt::StringLiterals;

// Tag tells what the robot's answers are for: "Elenco", "File", or nothing.
class frmEsploraFile : public Finestra
{
    Q_OBJECT

public:
    // The line to the robot, the status bar whose panel 3 tells of a fetch, and the folder where
    // fetched files go.
    frmEsploraFile(ControlloSeriale &COM, BarraDiStato &BarraStato, const QString &cartella);

    // A text written from outside says what is awaited.
    void setTag(const QString &tag) override;

    ListaImmagini lstImgAttesa{Disegni::lstImgAttesa()};

    Etichetta Label1{u"Label1"_s, this, u"Cartelle"_s};
    Etichetta Label2{u"Label2"_s, this, u"File"_s};
    // lstCartelle.Tag is what stands before the names of the files.
    ElencoCrescente lstCartelle{u"lstCartelle"_s, this};
    ElencoCrescente lstFile{u"lstFile"_s, this};
    Immagine imgAttesa{u"imgAttesa"_s, this, &lstImgAttesa};
    Pulsante pulHome{u"pulHome"_s, this, {}};
    EtichettaAbbreviata lblNomeFoto{u"lblNomeFoto"_s, this};
    Immagine imgFoto{u"imgFoto"_s, this};

    Prelievo prelievo;

    // What the conversation shows.
    void mostraAttesa(const QString &tag) { Finestra::setTag(tag); }
    void finisciAttesa();
    void svuotaElenchi();
    // x: 2 for a folder, anything else for a file.
    void aggiungi(quint8 x, const QString &nome);
    // Steps the wait animation, or hides it.
    void ImmagineAttesa(bool attiva);
    // Errore::ImmagineNonValida where the file is no photo.
    void caricaFoto(const QString &percorso);
    void togliFoto() { imgFoto.setPicture(0); }
    void intitolaFoto(const QString &nome);
    // The fetch is over: the window may be used again.
    void riabilita();

protected:
    void Disegno() override;
    // A telegram that came while the window was closed has left nothing in it.
    void Load() override { Disegno(); }
    void Activate() override;
    void Resize() override;
    void Unload(bool &Cancel) override;

private:
    // How the window looks.
    void disponi();

    void pulHome_Click();
    void lstCartelle_DblClick();
    void lstFile_DblClick();
    // The key that does what a double click does.
    void lstCartelle_KeyDown(int &KeyCode, int Shift);
    void lstFile_KeyDown(int &KeyCode, int Shift);

    BarraDiStato &BarraStato;
    quint8 m_fotogramma = 0;
};
