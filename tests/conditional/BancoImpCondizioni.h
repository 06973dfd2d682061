// The condition dialog over lists of its own, with a clock that stands still.
#pragma once

#include "conditional/frmImpCondizioni.h"

#include "tests/support/CartellaDiProva.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QTest>
#include <gmock/gmock.h>

class OraFerma : public Orologio
{
public:
    QTime adesso() const override { return ora; }
    QTime ora{9, 5, 7};
};

class BancoImpCondizioni : public testing::Test
{
protected:
    // Shows the dialog, active, for a list with that condition, or for the default one.
    void apri(const QString &condizione, const QString &nome = u"ballo.sqm"_s);
    void apriPredefinita();
    // Where the lists' current row is already, and the Tag set.
    void mostra();
    // Brings the window that the dialog comes from to the front.
    void preparaSotto();

    // With the mouse, through the window.
    void clicca(QWidget &controllo, std::optional<QPoint> dove = {});
    void clicca(CasellaSpunta &casella);
    void freccia(const SuGiu &barra, const QString &quale, int volte = 1);
    // What a user types in place of what a box holds.
    void scrivi(CasellaTesto &casella, const QString &testo);
    void incolla(CasellaTesto &casella, const QString &testo);
    void tasto(Qt::Key quale, Qt::KeyboardModifiers con = {});

    QList<int> attivi();
    QString orario() const;
    QString sensori();
    // Of the current row.
    QString condizione() const { return lstCondizioni.List(lstFile.ListIndex()); }

    CartellaDiProva cartella;
    RispondiMessaggi messaggi;
    OraFerma orologio;
    QWidget sotto;
    Elenco lstFile{u"lstFile"_s, nullptr, Elenco::Stile::ConSpunte};
    Elenco lstCondizioni{u"lstCondizioni"_s, nullptr};
    frmImpCondizioni dialogo{lstFile, lstCondizioni, orologio};
};
