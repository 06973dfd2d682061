// Builds the windows, ties them together, starts.
#include "base/Cartella.h"
#include "conditional/Orologio.h"
#include "conditional/frmProcessor.h"
#include "console/frmPrincipale.h"
#include "controls/Applicazione.h"
#include "controls/Comandi.h"
#include "filebrowser/frmEsploraFile.h"
#include "movelists/frmEditor.h"
#include "serial/PortaAsio.h"
#include "vision/frmCamera.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

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

    frmEditor editor(principale, principale.COM, cartella);
    editor.corsa.Messaggio.collega(
        [&](const QString &testo) { principale.BarraStato.setPanels(3, testo); });
    editor.corsa.Inviato.collega([&](const QString &testo) { principale.MostraInvio(testo); });
    editor.corsa.CameraChiesta.collega([&] { passaErrori([&] { camera.Mostra(); }); });

    CollegamentoVigilio collegamento(principale);
    const OrologioVero orologio;
    frmProcessor processor(collegamento, editor, orologio, cartella);
    principale.motore.ascoltaTelemetria(&processor);

    FinestreConsole finestre;
    finestre.frmCamera = &camera;
    finestre.frmEditor = &editor;
    finestre.opzInsComandi = &editor.opzInsComandi;
    finestre.documento = &editor.documento;
    finestre.frmProcessor = &processor;
    finestre.Stoppa = [&] { processor.Stoppa(); };
    finestre.frmEsploraFile = &esploraFile;
    finestre.frmImmaginiAcquisite = &immaginiAcquisite;
    principale.impostaFinestre(finestre);

    eseguiGestore([&] { principale.Mostra(); });
    return QApplication::exec();
}
