// Walks the folders of the robot's storage, fetches a file, shows a fetched photo.
#pragma once

#include "Ascoltatori.h"
#include "Barre.h"
#include "ControlloSeriale.h"
#include "Disegni.h"
#include "ElencoCrescente.h"
#include "EtichettaAbbreviata.h"
#include "Finestra.h"
#include "Nomi.h"

using namespace Qt::StringLiterals;

// Tag tells what the robot's answers are for: "Elenco", "File", or nothing.
class frmEsploraFile : public Finestra, public AscoltatoreFile
{
    Q_OBJECT

public:
    // The line to the robot, and the status bar whose panel 3 tells of a fetch.
    frmEsploraFile(ControlloSeriale &COM, BarraDiStato &BarraStato);

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

    // AscoltatoreFile.
    bool visibile() const override { return Visible(); }
    Attesa attesa() const override;
    void finisciAttesa() override;
    void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) override;
    void ImmagineAttesa(bool attiva) override;
    QString nomeFile() const override { return lstFile.Text(); }
    void caricaFoto(const QString &percorso) override;
    void togliFoto() override { imgFoto.setPicture(0); }
    void intitolaFoto(const QString &nome) override;
    void riabilita() override;

protected:
    void Disegno() override;
    // A telegram that came while the window was closed has left nothing in it.
    void Load() override { Disegno(); }
    void Activate() override;
    void Resize() override;

private:
    // How the window looks.
    void disponi();

    void pulHome_Click();
    void lstCartelle_DblClick();
    void lstFile_DblClick();
    // The key that does what a double click does.
    void lstCartelle_KeyDown(int &KeyCode, int Shift);
    void lstFile_KeyDown(int &KeyCode, int Shift);

    ControlloSeriale &COM;
    BarraDiStato &BarraStato;
    quint8 m_fotogramma = 0;
};
