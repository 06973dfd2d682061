// Builds the windows, ties them together, starts.
#include "controls/Applicazione.h"
#include "base/Cartella.h"
#include "controls/Comandi.h"
#include "serial/PortaAsio.h"
#include "conditional/VigilioVicino.h"
#include "vision/frmCamera.h"
#include "movelists/frmEditor.h"
#include "filebrowser/frmEsploraFile.h"
#include "console/frmPrincipale.h"
#include "conditional/frmProcessor.h"

#include <QApplication>

namespace {

// The console, as the editor sees it.
class ConsoleVicina : public ConsoleEditor
{
public:
    explicit ConsoleVicina(frmPrincipale &principale) : m_principale(principale) {}

    ControlloSeriale &COM() override { return m_principale.COM; }
    Posto posto() const override
    {
        return {m_principale.Left(), m_principale.Top(), m_principale.Width()};
    }
    void mostraMessaggio(const QString &testo) override
    {
        m_principale.BarraStato.setPanels(3, testo);
    }
    void MostraInvio(const QString &testo) override { m_principale.MostraInvio(testo); }
    void AggiungiMossa(const QString &riga) override { m_principale.AggiungiMossa(riga); }

private:
    frmPrincipale &m_principale;
};

// The console, as the runner sees it.
class CollegamentoVigilio : public ConsoleVigilio
{
public:
    explicit CollegamentoVigilio(frmPrincipale &principale) : m_principale(principale) {}

    bool PortOpen() override { return m_principale.COM.PortOpen(); }
    bool collegato() override { return m_principale.collegato(); }
    bool staTentando() override { return m_principale.staTentando(); }
    void Collega() override { m_principale.Collega(); }

private:
    frmPrincipale &m_principale;
};

// The video window, as the line "Camera" of a list sees it.
class CameraVicina : public CameraEditor
{
public:
    explicit CameraVicina(frmCamera &camera) : m_camera(camera) {}
    void mostra() override { m_camera.Mostra(); }

private:
    frmCamera &m_camera;
};

class OrologioVero : public Orologio
{
public:
    QTime adesso() const override { return QTime::currentTime(); }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"Lumbra"_s);
    preparaApplicazione(app);
    const QString cartella = trovaCartellaProgramma();

    frmPrincipale principale(
        {std::make_unique<PortaAsio>(), cartella, [] { terminaProgramma(0); }});

    frmImmaginiAcquisite immaginiAcquisite(principale.lstImgCamera);
    frmNomeImmagine nomeImmagine(immaginiAcquisite);
    frmCamera camera({principale.COM, principale.BarraPulsanti, principale.BarraStato,
                      principale.tmrElabInput, principale.lstImgCamera, principale.esitoVideo()},
                     nomeImmagine);
    frmEsploraFile esploraFile(principale.COM, principale.BarraStato, cartella);
    principale.motore.ascoltaVideo(&camera);
    principale.motore.ascoltaFile(&esploraFile.prelievo);

    ConsoleVicina console(principale);
    CameraVicina cameraVicina(camera);
    const OrologioVero orologio;
    frmEditor editor(console, orologio, cartella);
    editor.impostaCamera(&cameraVicina);

    CollegamentoVigilio collegamento(principale);
    frmProcessor processor(collegamento, editor, orologio, cartella);
    VigilioVicino vigilio(processor);
    editor.impostaVigilio(&vigilio);
    principale.motore.ascoltaTelemetria(&processor);

    FinestreConsole finestre;
    finestre.frmCamera = &camera;
    finestre.frmEditor = &editor;
    finestre.opzInsComandi = &editor.opzInsComandi;
    finestre.lstMosse = &editor.lstMosse;
    finestre.frmProcessor = &processor;
    finestre.Stoppa = [&] { processor.Stoppa(); };
    finestre.frmEsploraFile = &esploraFile;
    finestre.frmImmaginiAcquisite = &immaginiAcquisite;
    principale.impostaFinestre(finestre);

    eseguiGestore([&] { principale.Mostra(); });
    return QApplication::exec();
}
