// The main of every test program: offscreen unless told otherwise, and the same locale everywhere.
#include "Aspetto.h"

#include <QApplication>
#include <QLocale>
#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    ::testing::InitGoogleMock(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lumbra-prova"));
    QApplication::setQuitOnLastWindowClosed(false);
    impostaAspetto();
    return RUN_ALL_TESTS();
}
