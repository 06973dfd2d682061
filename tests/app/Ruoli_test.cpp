// What a screen reader reports for pictures and labels that can be clicked.
#include "tests/app/TutteLeFinestre.h"

#include <QAccessible>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface &interfaccia(QWidget &controllo)
{
    return *QAccessible::queryAccessibleInterface(&controllo);
}

} // namespace

TEST(RuoliFinestre, APictureOrALabelThatIsClickedIsANamedButton)
{
    TutteLeFinestre tutte;
    QSet<QString> pulsanti;
    tutte.perOgnuna([&](Finestra &finestra, const QString &) {
        for (QWidget *controllo : finestra.findChildren<QWidget *>()) {
            const auto *azionabile = dynamic_cast<Azionabile *>(controllo);
            const bool disegno = qobject_cast<Immagine *>(controllo);
            if (!azionabile || !controllo->isVisible() ||
                (!disegno && !qobject_cast<Etichetta *>(controllo)))
                continue;
            const std::string nome = controllo->objectName().toStdString();
            const QAccessible::Role ruolo = interfaccia(*controllo).role();
            if (azionabile->prendeClick()) {
                pulsanti << controllo->objectName();
                EXPECT_EQ(ruolo,
                          azionabile->spunta() ? QAccessible::CheckBox : QAccessible::PushButton)
                    << nome;
                EXPECT_NE(interfaccia(*controllo).text(QAccessible::Name), QString()) << nome;
            } else {
                EXPECT_EQ(ruolo, disegno ? QAccessible::Graphic : QAccessible::StaticText) << nome;
            }
        }
    });
    for (const char *nome : {"pulSu", "pulGiu", "pulCanc", "pulPausa", "pulFrase", "pulSuono",
                             "imgVigilio", "lblStop", "lblAccLED", "lblScattaFoto", "imgToolSx",
                             "imgFreccia(7)", "pulCancMex", "imgCasella(3)"})
        EXPECT_TRUE(pulsanti.contains(QString::fromLatin1(nome))) << nome;
}

TEST(RuoliFinestre, AScreenReaderPressesWhatTheMousePresses)
{
    TutteLeFinestre tutte;
    tutte.editor.Mostra();
    for (const QString &riga : {u"Avanti piano"_s, u"Stop"_s})
        tutte.editor.lstMosse.AddItem(riga);
    tutte.editor.lstMosse.setListIndex(1);
    QAccessibleActionInterface *azioni = interfaccia(tutte.editor.pulSu).actionInterface();
    ASSERT_TRUE(azioni->actionNames().contains(QAccessibleActionInterface::pressAction()));
    azioni->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(tutte.editor.lstMosse.List(0), u"Stop"_s);

    tutte.visione.comandi();
    interfaccia(tutte.principale.imgToolSx)
        .actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_NE(tutte.visione.comandi(), QByteArray());
}

TEST(RuoliFinestre, ACheckBoxReportsItsMark)
{
    TutteLeFinestre tutte;
    frmImpCondizioni &dialogo = tutte.processor.impCondizioni;
    dialogo.setTag(u"Predefinita"_s);
    dialogo.Mostra();
    const bool prima = dialogo.imgCasella(2).Picture() == 2;
    QAccessibleInterface &casella = interfaccia(dialogo.imgCasella(2));
    EXPECT_TRUE(casella.state().checkable);
    EXPECT_EQ(casella.state().checked, prima);
    casella.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_NE(casella.state().checked, prima);
    EXPECT_EQ(dialogo.frame(2).Tag(), prima ? u"0"_s : u"-1"_s);
    EXPECT_EQ(casella.text(QAccessible::Name), u"Sensori a ultrasuoni"_s);
}
