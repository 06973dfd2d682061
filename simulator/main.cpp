// tessaro-sim: the simulated robot, with a window or without.
#include "art/Disegni.h"
#include "controls/look/Aspetto.h"
#include "simulator/Opzioni.h"
#include "simulator/Segnali.h"
#include "simulator/Simulatore.h"
#include "simulator/window/FinestraSimulatore.h"
#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTextStream>
#include <QTranslator>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {
void scrivi(FILE *dove, const QString &testo)
{
    QTextStream flusso(dove);
    flusso << testo << Qt::endl;
}

// The diary's lines go to the file, or to standard output, as they come.
bool seguiDiario(Simulatore &sim, QFile &file, const QString &nome)
{
    if (nome.isEmpty()) {
        QObject::connect(&sim.diario(), &Diario::aggiunta, &sim,
                         [](const VoceDiario &voce) { scrivi(stdout, voce.riga()); });
        return true;
    }
    file.setFileName(nome);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return false;
    QObject::connect(&sim.diario(), &Diario::aggiunta, &sim, [&file](const VoceDiario &voce) {
        file.write(voce.riga().toUtf8() + '\n');
        file.flush();
    });
    return true;
}
} // namespace

int main(int argc, char **argv)
{
    QStringList argomenti;
    for (int i = 0; i < argc; ++i)
        argomenti << QString::fromLocal8Bit(argv[i]);
    Opzioni opzioni;
    const QString lamento = opzioni.leggi(argomenti);
    if (!lamento.isEmpty()) {
        scrivi(stderr, lamento + u"\nProva: tessaro-sim --aiuto"_s);
        return 2;
    }
    if (opzioni.aiuto) {
        scrivi(stdout, Opzioni::testoAiuto().trimmed());
        return 0;
    }

    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QTranslator italiano;
    std::unique_ptr<QCoreApplication> app;
    if (opzioni.senzaFinestra) {
        app = std::make_unique<QCoreApplication>(argc, argv);
    } else {
        app = std::make_unique<QApplication>(argc, argv);
        impostaAspetto();
        QApplication::setWindowIcon(Disegni::icona(u"tessaro-sim"));
        // Qt's own dialogs speak Italian where its translations are installed.
        if (italiano.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&italiano);
    }
    QCoreApplication::setApplicationName(u"tessaro-sim"_s);
    // Before the link is there, which would otherwise outlive an early end.
    ascoltaChiusura([] { QCoreApplication::quit(); });

    QFile log;
    Simulatore sim;
    if (opzioni.log && !seguiDiario(sim, log, opzioni.fileLog)) {
        scrivi(stderr, u"%1: %2"_s.arg(opzioni.fileLog, log.errorString()));
        return 1;
    }
    if (const QString errore = opzioni.applica(sim); !errore.isEmpty()) {
        scrivi(stderr, errore);
        return 1;
    }
    scrivi(stdout, sim.percorso());

    std::unique_ptr<FinestraSimulatore> finestra;
    if (!opzioni.senzaFinestra) {
        finestra = std::make_unique<FinestraSimulatore>(sim);
        finestra->show();
    }
    return QCoreApplication::exec();
}
