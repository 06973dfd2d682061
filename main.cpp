// Builds the windows, ties them together, starts.
#include "Cartella.h"
#include "Comandi.h"
#include "Italiano.h"
#include "PortaAsio.h"
#include "frmPrincipale.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    installaItaliano(app);
    QApplication::setApplicationName(u"Lumbra"_s);
    QApplication::setStyle(u"Fusion"_s);
    QApplication::setWindowIcon(Disegni::icona(u"lumbra"));

    frmPrincipale principale(
        {std::make_unique<PortaAsio>(), trovaCartellaProgramma(), [] { terminaProgramma(0); }});
    eseguiGestore([&] { principale.Mostra(); });
    return QApplication::exec();
}
