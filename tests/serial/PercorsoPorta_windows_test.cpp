// The ports of Windows.
#include "serial/Porta.h"

#include "tests/support/Controlli.h"
#include "serial/PortaAsio.h"

TEST(PercorsoPorta, is_the_systems_name_of_the_port_whatever_lies_in_the_folder)
{
    EXPECT_EQ(percorsoPorta(1, u"C:/cartella"_s), u"\\\\.\\COM1"_s);
    EXPECT_EQ(percorsoPorta(3, u"C:/cartella"_s), u"\\\\.\\COM3"_s);
    EXPECT_EQ(percorsoPorta(99, {}), u"\\\\.\\COM99"_s);
}

TEST(PortaAsio, what_is_no_serial_line_cannot_be_opened)
{
    PortaAsio porta;
    for (const QString &percorso : {u"\\\\.\\COM254"_s, u""_s, u"\\\\.\\NUL"_s}) {
        EXPECT_EQ(erroreDi([&] { porta.apri(percorso); }), Errore::PortaInesistente)
            << percorso.toStdString();
        EXPECT_FALSE(porta.aperta());
    }
}
