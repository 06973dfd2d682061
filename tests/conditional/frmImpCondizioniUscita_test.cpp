// How the condition dialog is left: what OK stores, what stays as it was.
#include "tests/conditional/BancoImpCondizioni.h"

#include "tests/support/Attesa.h"

#include <QDir>

using testing::ElementsAre;
using testing::IsEmpty;

class FrmImpCondizioniUscita : public BancoImpCondizioni
{
protected:
    // As a dialog; the function does what a user does.
    void comeDialogo(const std::function<void()> &agisci)
    {
        bool fatto = false;
        const ConModale utente(u"frmImpCondizioni"_s, [&] {
            if (std::exchange(fatto, true))
                return;
            EXPECT_TRUE(aspetta([this] { return dialogo.isActiveWindow(); }));
            agisci();
        });
        preparaSotto();
        dialogo.MostraModale();
        EXPECT_TRUE(fatto);
    }
    void unaLista(const QString &condizione)
    {
        lstFile.AddItem(NomeLista(u"ballo.sqm"_s));
        lstCondizioni.AddItem(condizione);
        lstFile.setListIndex(0);
    }
};

TEST_F(FrmImpCondizioniUscita, OkWritesTheActivePanelsAndNoForTheOthers)
{
    const QStringList campi = {u"07:05:59"_s, u"011"_s, u"8"_s, u"0"_s, u"4"_s};
    for (int quali = 1; quali < 32; ++quali) {
        apri(campi.join(u','));
        QStringList attesi = campi;
        for (int i = 1; i <= 5; ++i) {
            if (quali & (1 << (i - 1)))
                continue;
            clicca(dialogo.imgCasella(i));
            attesi[i - 1] = u"no"_s;
        }
        clicca(dialogo.pulOK);
        EXPECT_EQ(condizione(), attesi.join(u','));
        EXPECT_EQ(dialogo.Tag(), u"OK"_s);
        EXPECT_FALSE(dialogo.Visible());
        EXPECT_TRUE(dialogo.Caricata()) << "who has shown it unloads it";
        dialogo.Scarica();
    }
    EXPECT_THAT(cartella.elenco(), IsEmpty());
}

TEST_F(FrmImpCondizioniUscita, OkChangesTheCurrentRowOnly)
{
    for (const QString &nome : {u"a.sqm"_s, u"b.sqm"_s, u"c.sqm"_s}) {
        lstFile.AddItem(nome);
        lstCondizioni.AddItem(u"no,no,25,no,no"_s);
    }
    lstFile.setListIndex(1);
    mostra();
    dialogo.cbTemperatura.setListIndex(26);
    clicca(dialogo.pulOK);
    EXPECT_EQ(lstCondizioni.List(0), u"no,no,25,no,no"_s);
    EXPECT_EQ(lstCondizioni.List(1), u"no,no,26,no,no"_s);
    EXPECT_EQ(lstCondizioni.List(2), u"no,no,25,no,no"_s);
    EXPECT_EQ(lstFile.List(1), u"b.sqm"_s) << "the line itself is the runner's business";
    EXPECT_FALSE(lstFile.Selected(1));
}

TEST_F(FrmImpCondizioniUscita, AsADialogItEndsItsCallWithOk)
{
    unaLista(u"no,no,25,no,no"_s);
    comeDialogo([&] { clicca(dialogo.pulOK); });
    EXPECT_EQ(dialogo.Tag(), u"OK"_s);
    EXPECT_EQ(condizione(), u"no,no,25,no,no"_s);
}

TEST_F(FrmImpCondizioniUscita, WithoutAnActivePanelOkCannotBePressed)
{
    apri(u"no,no,no,no,no"_s);
    clicca(dialogo.pulOK);
    tasto(Qt::Key_Return);
    EXPECT_TRUE(dialogo.Visible());
    EXPECT_EQ(dialogo.Tag(), QString());
}

TEST_F(FrmImpCondizioniUscita, CancelLeavesTheConditionAsItWas)
{
    const QList<std::function<void()>> modi = {[&] { clicca(dialogo.pulAnnulla); },
                                               [&] { tasto(Qt::Key_Escape); },
                                               [&] { dialogo.close(); }};
    unaLista(u"12:12:12,no,25,no,no"_s);
    for (const auto &esci : modi) {
        for (const QString &modo : {QString(), u"OK"_s, u"Predefinita"_s}) {
            dialogo.setTag(modo);
            comeDialogo([&] {
                scrivi(dialogo.txtOre, u"30"_s);
                dialogo.cbTemperatura.setListIndex(3);
                esci();
            });
            EXPECT_EQ(dialogo.Tag(), QString());
            EXPECT_EQ(condizione(), u"12:12:12,no,25,no,no"_s);
            EXPECT_TRUE(dialogo.Caricata()) << "who has shown it unloads it";
            dialogo.Scarica();
        }
    }
    EXPECT_THAT(cartella.elenco(), IsEmpty());
    EXPECT_THAT(messaggi.visti(), IsEmpty());
}

// The focus leaves the box as the window goes, which switches the panel on, and there is no button
// any more that could take it.
TEST_F(FrmImpCondizioniUscita, LeavingWithATimeJustTypedDoesNoHarm)
{
    apri(u"no,no,no,no,no"_s);
    scrivi(dialogo.txtMinuti, u"99"_s);
    tasto(Qt::Key_Escape);
    EXPECT_FALSE(dialogo.Visible());
    dialogo.Scarica();
    apri(u"no,no,no,no,no"_s);
    EXPECT_THAT(attivi(), IsEmpty());
    EXPECT_EQ(orario(), u"9:5:7"_s);
    EXPECT_THAT(messaggi.visti(), IsEmpty());
}

TEST_F(FrmImpCondizioniUscita, TheProgramUnloadsItWithoutQuestions)
{
    apri(u"no,no,25,no,no"_s);
    dialogo.Scarica();
    EXPECT_FALSE(dialogo.Visible());
    EXPECT_FALSE(dialogo.Caricata());
}

TEST_F(FrmImpCondizioniUscita, TheDefaultConditionGoesToTheFileAndKeepsTheOtherField)
{
    unaLista(u"no,no,25,no,no"_s);
    const std::initializer_list<std::pair<QByteArray, QByteArray>> file = {
        {"0;00:00:00,no,no,no,no", "0;no,no,25,no,no"},
        {"1;", "1;no,no,25,no,no"},
        {";no,no,no,no,1", "1;no,no,25,no,no"},
        {"", "1;no,no,25,no,no"},
        {"0;a;b;c", "0;no,no,25,no,no"},
        {QByteArray("\x80\xE8;", 3), QByteArray("\x80\xE8;no,no,25,no,no", 17)}};
    for (const auto &[prima, dopo] : file) {
        cartella.scrivi(u"Prog.dat"_s, prima);
        dialogo.setTag(u"Predefinita"_s);
        comeDialogo([&] { clicca(dialogo.pulOK); });
        EXPECT_EQ(cartella.leggi(u"Prog.dat"_s), dopo);
        EXPECT_EQ(dialogo.Tag(), u"OK"_s);
        dialogo.Scarica();
    }
    EXPECT_EQ(condizione(), u"no,no,25,no,no"_s);
    EXPECT_THAT(cartella.elenco(), ElementsAre(u"Prog.dat"_s));
}

TEST_F(FrmImpCondizioniUscita, TheDefaultConditionDoesNotTouchTheRow)
{
    unaLista(u"no,no,25,no,no"_s);
    cartella.scrivi(u"prog.dat"_s, "0;no,no,no,no,no");
    dialogo.setTag(u"Predefinita"_s);
    comeDialogo([&] {
        dialogo.cbBattMotori.setListIndex(0);
        clicca(dialogo.pulOK);
    });
    EXPECT_EQ(condizione(), u"no,no,25,no,no"_s);
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;no,no,25,no,0");
}

TEST_F(FrmImpCondizioniUscita, AFileThatCannotBeReadLeavesTheDialogOpenWithAllThatWasSet)
{
    lstFile.AddItem(u"ballo.sqm"_s);
    lstCondizioni.AddItem(u"no,no,25,no,no"_s);
    lstFile.setListIndex(0);
    apriPredefinita();
    dialogo.cbTemperatura.setListIndex(31);
    clicca(dialogo.pulOK);
    EXPECT_TRUE(dialogo.Visible());
    EXPECT_EQ(dialogo.Tag(), u"Predefinita"_s);
    EXPECT_EQ(dialogo.cbTemperatura.Text(), u"31"_s);
    EXPECT_THAT(attivi(), ElementsAre(3));
    EXPECT_THAT(cartella.elenco(), IsEmpty());
    EXPECT_THAT(messaggi.visti(), IsEmpty());
    // The file is there now, and what was set goes into it.
    cartella.scrivi(u"Prog.dat"_s, "0;");
    clicca(dialogo.pulOK);
    EXPECT_FALSE(dialogo.Visible());
    EXPECT_EQ(cartella.leggi(u"Prog.dat"_s), "0;no,no,31,no,no");
}

TEST_F(FrmImpCondizioniUscita, AFileThatCannotBeWrittenStaysAsItWas)
{
    QDir().mkdir(u"Prog.dat"_s);
    lstFile.AddItem(u"ballo.sqm"_s);
    lstCondizioni.AddItem(u"no,no,25,no,no"_s);
    lstFile.setListIndex(0);
    apriPredefinita();
    clicca(dialogo.pulOK);
    EXPECT_TRUE(dialogo.Visible());
    EXPECT_EQ(dialogo.Tag(), u"Predefinita"_s);
    EXPECT_THAT(messaggi.visti(), IsEmpty());
}

TEST_F(FrmImpCondizioniUscita, ARowThatHasGoneLeavesTheDialogOpen)
{
    apri(u"no,no,25,no,no"_s);
    lstCondizioni.Clear();
    clicca(dialogo.pulOK);
    EXPECT_TRUE(dialogo.Visible());
    EXPECT_EQ(dialogo.Tag(), QString());
    EXPECT_THAT(messaggi.visti(), IsEmpty());
}
