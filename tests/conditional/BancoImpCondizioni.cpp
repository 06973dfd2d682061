#include "tests/conditional/BancoImpCondizioni.h"

#include "tests/support/Attesa.h"

#include <QApplication>
#include <QClipboard>
#include <QToolButton>
#include <QWindow>

void BancoImpCondizioni::apri(const QString &condizione, const QString &nome)
{
    lstFile.AddItem(NomeLista(nome) + DescriviCondizione(condizione));
    lstCondizioni.AddItem(condizione);
    lstFile.setListIndex(lstFile.ListCount() - 1);
    mostra();
}

void BancoImpCondizioni::apriPredefinita()
{
    dialogo.setTag(u"Predefinita"_s);
    mostra();
}

void BancoImpCondizioni::preparaSotto()
{
    sotto.show();
    sotto.activateWindow();
    ASSERT_TRUE(aspetta([this] { return QApplication::activeWindow() == &sotto; }));
}

void BancoImpCondizioni::mostra()
{
    preparaSotto();
    dialogo.Mostra();
    dialogo.activateWindow();
    ASSERT_TRUE(aspetta([this] { return QApplication::activeWindow() == &dialogo; }));
}

void BancoImpCondizioni::clicca(QWidget &controllo, std::optional<QPoint> dove)
{
    const QPoint punto = controllo.mapTo(&dialogo, dove.value_or(controllo.rect().center()));
    QTest::mouseClick(dialogo.windowHandle(), Qt::LeftButton, {}, punto);
}

void BancoImpCondizioni::clicca(CasellaSpunta &casella)
{
    clicca(casella, QPoint(8, casella.height() / 2));
}

void BancoImpCondizioni::freccia(const SuGiu &barra, const QString &quale, int volte)
{
    auto *pulsante = barra.findChild<QToolButton *>(barra.objectName() + quale);
    ASSERT_TRUE(pulsante);
    for (int i = 0; i < volte; ++i)
        clicca(*pulsante);
}

void BancoImpCondizioni::scrivi(CasellaTesto &casella, const QString &testo)
{
    clicca(casella);
    tasto(Qt::Key_A, Qt::ControlModifier);
    tasto(Qt::Key_Backspace);
    QTest::keyClicks(dialogo.focusWidget(), testo);
}

void BancoImpCondizioni::incolla(CasellaTesto &casella, const QString &testo)
{
    clicca(casella);
    tasto(Qt::Key_A, Qt::ControlModifier);
    QApplication::clipboard()->setText(testo);
    tasto(Qt::Key_V, Qt::ControlModifier);
}

void BancoImpCondizioni::tasto(Qt::Key quale, Qt::KeyboardModifiers con)
{
    QWidget *dove = dialogo.focusWidget();
    QTest::keyClick(dove ? dove : &dialogo, quale, con);
}

QList<int> BancoImpCondizioni::attivi()
{
    QList<int> numeri;
    for (int i = 1; i <= 5; ++i) {
        if (dialogo.frame(i).Tag() == u"-1")
            numeri += i;
        else
            EXPECT_EQ(dialogo.frame(i).Tag(), u"0"_s);
        // The picture and the colour always say the same as the Tag.
        const bool acceso = numeri.contains(i);
        EXPECT_EQ(dialogo.imgCasella(i).Picture(), acceso ? 2 : 1) << i;
        EXPECT_EQ(dialogo.frame(i).ForeColor().rgb(), acceso ? 0xFF0000C0U : 0xFF8080FFU) << i;
    }
    EXPECT_EQ(dialogo.pulOK.Enabled(), !numeri.isEmpty());
    return numeri;
}

QString BancoImpCondizioni::orario() const
{
    return dialogo.txtOre.Text() + u':' + dialogo.txtMinuti.Text() + u':' +
           dialogo.txtSecondi.Text();
}

QString BancoImpCondizioni::sensori()
{
    QString cifre;
    for (int k = 1; k <= 3; ++k)
        cifre += QString::number(dialogo.opzSens(k).Value());
    return cifre;
}
