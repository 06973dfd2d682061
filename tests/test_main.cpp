// The main of all test programs: offscreen unless QT_QPA_PLATFORM is set, and prepared like the
// program itself.
#include "controls/Applicazione.h"

#include <QApplication>
#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleMock(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lumbra-prova"));
    preparaApplicazione(app);
    return RUN_ALL_TESTS();
}
