// The paths of the ports on Windows.
#include "serial/Porta.h"

#include "serial/PortaAsio.h"
#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

TEST(PercorsoPorta, IsTheSystemsNameOfThePortWhateverTheFolderContains)
{
    EXPECT_EQ(percorsoPorta(1, u"C:/cartella"_s), u"\\\\.\\COM1"_s);
    EXPECT_EQ(percorsoPorta(3, u"C:/cartella"_s), u"\\\\.\\COM3"_s);
    EXPECT_EQ(percorsoPorta(99, {}), u"\\\\.\\COM99"_s);
}

TEST(PortaAsio, WhatIsNotASerialLineCannotBeOpened)
{
    PortaAsio porta;
    for (const QString &percorso : {u"\\\\.\\COM254"_s, u""_s, u"\\\\.\\NUL"_s}) {
        EXPECT_EQ(erroreDi([&] { porta.apri(percorso); }), Errore::PortaInesistente)
            << percorso.toStdString();
        EXPECT_FALSE(porta.aperta());
    }
}
