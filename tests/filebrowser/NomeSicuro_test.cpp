// Which names a fetched file can have.
#include "filebrowser/NomeSicuro.h"
#include "tests/support/Scritte.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void rifiutati(const QStringList &nomi)
{
    for (const QString &nome : nomi)
        EXPECT_FALSE(nomeSicuro(nome)) << nome.toStdString();
}

} // namespace

TEST(NomeSicuro, OrdinaryNamesAreAccepted)
{
    for (const QString &nome :
         {u"foto001.jpg"_s, u"LEGGIMI"_s, u"perché.txt"_s, u".nascosto"_s, u"a b.c"_s,
          u"FOTOGR~1.JPG"_s, u"a..b"_s, u"€"_s, QString(255, u'x')})
        EXPECT_TRUE(nomeSicuro(nome)) << nome.toStdString();
}

TEST(NomeSicuro, ListsAndProjectsAreAccepted)
{
    for (const QString &nome : {u"lista.sqm"_s, u"ronda.vgp"_s, u".sqm"_s})
        EXPECT_TRUE(nomeSicuro(nome)) << nome.toStdString();
}

TEST(NomeSicuro, NamesThatLeadElsewhereAreRefused)
{
    rifiutati({QString(), u"."_s, u".."_s, u"../fuori"_s, u"/etc/passwd"_s, u"a/b"_s, u"..\\a"_s,
               u"C:\\a"_s, u"C:a"_s, u"a:flusso"_s});
}

TEST(NomeSicuro, NamesThatASystemWouldChangeAreRefused)
{
    rifiutati({u"a."_s, u"a "_s, u"..."_s, u" "_s, u"a\nb"_s, u"a\tb"_s, QString(QChar(0)),
               u"a\x7f"_s, u"a*"_s, u"a?"_s, u"a|b"_s, u"a<b"_s, u"a>b"_s, u"a\"b"_s});
}

TEST(NomeSicuro, ControlCharactersAreRefused)
{
    for (char16_t c = 0; c < 0x20; ++c)
        rifiutati({u"a"_s + QChar(c) + u"b"_s, QString(QChar(c))});
    for (char16_t c = 0x7F; c < 0xA0; ++c)
        rifiutati({u"a"_s + QChar(c) + u"b"_s});
    for (char16_t c = 0xA0; c < 0x100; ++c)
        EXPECT_TRUE(nomeSicuro(u"a"_s + QChar(c) + u"b"_s)) << int{c};
}

TEST(NomeSicuro, NamesOfDevicesAreRefused)
{
    rifiutati({u"CON"_s, u"nul"_s, u"Aux.txt"_s, u"prn .a"_s, u"COM1"_s, u"com1.txt"_s, u"LPT9"_s,
               u"CONIN$"_s});
    EXPECT_TRUE(nomeSicuro(u"console"_s));
    EXPECT_TRUE(nomeSicuro(u"LPT10"_s));
    EXPECT_TRUE(nomeSicuro(u"comando1"_s));
}

TEST(NomeSicuro, TheLinksToThePortsAreRefusedWhateverTheirNumber)
{
    rifiutati({u"COM3"_s, u"com12"_s, u"COM99"_s});
}

TEST(NomeSicuro, TheProgramsOwnFilesAreRefusedInCapitalsAndSmallLetters)
{
    const QString programma = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    rifiutati({u"Porta COM"_s, u"PORTA com"_s, u"prog.dat"_s, u"Prog.dat"_s, u"Immagini.dat"_s,
               u"immagini.DAT"_s, programma, programma.toUpper()});
    EXPECT_TRUE(nomeSicuro(u"x"_s + programma));
    // The simulated robot is a program in the same folder.
    rifiutati({u"tessaro-sim"_s, u"Tessaro-Sim.exe"_s});
}

TEST(NomeSicuro, FilesThatTheProgramWouldLoadAtItsNextStartAreRefused)
{
    rifiutati({u"Qt6Core.dll"_s, u"version.DLL"_s, u"qt.conf"_s, u"QT.CONF"_s, u"qt6.conf"_s});
    rifiutati({u"libQt6Core.so"_s, u"libQt6Core.so.6"_s, u"libc.SO.6.2.1"_s});
    EXPECT_TRUE(nomeSicuro(u"so"_s));
    EXPECT_TRUE(nomeSicuro(u"a.so.txt"_s));
    EXPECT_TRUE(nomeSicuro(u"a.sole"_s));
    EXPECT_TRUE(nomeSicuro(u"dll"_s));
    EXPECT_TRUE(nomeSicuro(u"a.dll.txt"_s));
}
