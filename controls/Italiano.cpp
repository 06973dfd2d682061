#include "controls/Italiano.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

// The linker drops the resources of a static library if no code names them.
static void prendiRisorse()
{
    Q_INIT_RESOURCE(italiano);
}

void installaItaliano(QCoreApplication &app)
{
    prendiRisorse();
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto *traduttore = new QTranslator(&app);
    if (traduttore->load(u":/i18n/qtbase_it.qm"_s))
        QCoreApplication::installTranslator(traduttore);
}
