// The file browser with the console's receive engine, on a simulated port.
#pragma once

#include "console/frmPrincipale.h"
#include "filebrowser/frmEsploraFile.h"
#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

#include <gtest/gtest.h>

// A JPEG file of that size, of one colour.
QByteArray jpeg(QSize misura, const QColor &colore = Qt::darkCyan);

// Telegrams of the robot's storage: the status of channel k, an entry, a block of a file.
QByteArray stato(int k, int x);
QByteArray voce(int k, int x, const QByteArray &nome);
QByteArray blocco(int k, const QByteArray &contenuto);

// Double-clicks a row of the list.
void doppioClick(Elenco &lista, int riga);
int rigaDi(const Elenco &lista, const QString &nome);
QStringList voci(const Elenco &lista);

struct Banco : ::testing::Test
{
    Banco();

    // The robot sends; returns when all bytes were read from the port.
    void robot(const QByteArray &byte);
    // The same, but returns when the engine has also processed all of them.
    void robotFinito(const QByteArray &byte);
    // What was written to the robot since the last call.
    QByteArray scritti();
    QString pannello() const { return console.BarraStato.Panels(3); }
    // Shows the window and answers its first listing with these folders and files.
    void apri(const QList<QByteArray> &cartelle, const QList<QByteArray> &file);
    // Double-clicks a file; the robot then reports channel k as open.
    void chiedi(const QString &nome, int k);

    CartellaDiProva cartella;

private:
    std::unique_ptr<PortaFinta> m_nuova = std::make_unique<PortaFinta>();

public:
    PortaFinta &porta = *m_nuova;
    frmPrincipale console{{std::move(m_nuova), cartella.percorso(), [] {}}};
    frmEsploraFile esplora{console.COM, console.BarraStato, cartella.percorso()};
};
