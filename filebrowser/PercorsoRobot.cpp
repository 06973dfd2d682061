#include "filebrowser/PercorsoRobot.h"

using namespace Qt::StringLiterals;

QString percorsoCartella(const QString &nome)
{
    if (nome == u"disk")
        return {};
    if (nome == u"mmc" || nome == u"usb")
        return u"../"_s + nome;
    return nome;
}

QString prefissoCartella(const QString &nome)
{
    if (nome == u"disk" || nome == u".")
        return {};
    return nome + u'/';
}
