// The editor and the value dialog have room for their texts with every desktop's font.
#include "movelists/ModoValore.h"
#include "tests/movelists/BancoEditor.h"
#include "tests/support/Ritaglio.h"

#include <gmock/gmock.h>

using testing::IsEmpty;

TEST(Spazio, TheEditorHasItEmptyFullAndRunning)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        Banco b;
        b.mostra();
        EXPECT_THAT(guarda(b.editor, u"sequor-vuoto"_s), IsEmpty()) << punti;
        b.editor.opzInsComandi.setValue(0);
        EXPECT_THAT(guarda(b.editor, u"sequor-disattivato"_s), IsEmpty()) << punti;
        for (int i = 0; i < 30; ++i)
            b.riempi({u"Testa sinistra 2"_s, u"Pausa 700"_s,
                      u"Programma C:\\Programmi\\Un programma dal nome molto lungo\\avvio.exe"_s});
        b.lista.setListIndex(1);
        b.editor.lblFile.setCaption(u"una lista dal nome assai lungo, e ancora di piu.sqm"_s);
        b.editor.pulEsegui.setCaption(u"STOP"_s);
        QStringList male = guarda(b.editor, u"sequor-pieno"_s);
        // It is cut by rights: its tool tip has it whole.
        male.removeIf([](const QString &cosa) { return cosa.startsWith(u"lblFile"); });
        EXPECT_THAT(male, IsEmpty()) << punti;
    }
}

TEST(Spazio, TheValueDialogHasItInAllItsModes)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        for (const QString &modo : {u"Pausa"_s, u"Frase"_s, u"Suono"_s, u"Ripeti"_s}) {
            frmValore dialogo;
            dialogo.setTag(modo);
            dialogo.Mostra();
            EXPECT_THAT(guarda(dialogo, u"valore-"_s + modo.toLower()), IsEmpty())
                << punti << ' ' << modo.toStdString();
        }
    }
}
