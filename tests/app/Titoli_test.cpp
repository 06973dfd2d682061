// The title bars: a window that cannot be resized cannot be maximised, a dialog cannot be minimised
// either.
#include "tests/app/TutteLeFinestre.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Titoli, HaveTheButtonsThatFitTheirWindows)
{
    const QSet<QString> dialoghi = {u"frmOpzioni"_s, u"frmImpostaPorta"_s, u"frmValore"_s,
                                    u"frmImpCondizioni"_s, u"frmNomeImmagine"_s};
    QSet<QString> visti;
    TutteLeFinestre finestre;
    finestre.perOgnuna([&](Finestra &finestra, const QString &) {
        const QString nome = finestra.objectName();
        visti += nome;
        const bool dialogo = dialoghi.contains(nome);
        const bool fissa = finestra.minimumSize() == finestra.maximumSize();
        const Qt::WindowFlags come = finestra.windowFlags();
        EXPECT_EQ(finestra.windowType(), dialogo ? Qt::Dialog : Qt::Window) << nome.toStdString();
        EXPECT_TRUE(come.testFlag(Qt::WindowCloseButtonHint)) << nome.toStdString();
        EXPECT_EQ(come.testFlag(Qt::WindowMinimizeButtonHint), !dialogo) << nome.toStdString();
        EXPECT_EQ(come.testFlag(Qt::WindowMaximizeButtonHint), !dialogo && !fissa)
            << nome.toStdString();
    });
    EXPECT_TRUE(visti.contains(dialoghi));
    EXPECT_TRUE(visti.contains(u"frmPrincipale"_s));
}
