#include "tests/conditional/BancoVigilio.h"

#include "base/Archivio.h"

#include <gtest/gtest.h>

void CollegamentoFinto::Collega()
{
    ++tentativi;
    m_seriale.apri();
    tenta = true;
    if (intanto)
        intanto();
    tenta = false;
    m_seriale.COM.setPortOpen(riesce);
    if (dopo)
        dopo();
}

BancoVigilio::BancoVigilio()
{
    cartella.scrivi(u"prog.dat"_s, "0;");
    console.accelera = false;
}

BancoVigilio::~BancoVigilio()
{
    Archivio::abbandona();
}

void BancoVigilio::creaListe(const QStringList &nomi) const
{
    for (const QString &nome : nomi)
        cartella.scrivi(nome, " 1 \r\nPausa 60000\r\nStop\r\n");
}

void BancoVigilio::mostraVigilio(const QStringList &nomi)
{
    creaListe(nomi);
    processor.Mostra();
    processor.activateWindow();
    EXPECT_TRUE(aspetta([this] { return processor.isActiveWindow(); }));
}

void BancoVigilio::avvia(const QList<std::pair<QString, QString>> &liste)
{
    QStringList nomi;
    for (const auto &[nome, condizione] : liste)
        nomi += nome;
    mostraVigilio(nomi);
    for (int i = 0; i < liste.size(); ++i)
        imposta(i, liste[i].second);
    seriale.apri();
    processor.pulAvvia.click();
    EXPECT_TRUE(processor.avviato());
    // The editor comes to the front some time after it was shown.
    EXPECT_TRUE(aspetta([this] { return editor.isActiveWindow(); }));
}

void BancoVigilio::imposta(int riga, const QString &condizione, bool selezionata)
{
    processor.lstCondizioni.setList(riga, condizione);
    scegli(riga, selezionata);
}

void BancoVigilio::scegli(int riga, bool selezionata)
{
    processor.lstFile.setSelected(riga, selezionata);
}

void BancoVigilio::cliccaVigilio(QWidget &controllo, std::optional<QPoint> dove)
{
    const QPoint punto = controllo.mapTo(&processor, dove.value_or(controllo.rect().center()));
    QTest::mousePress(processor.windowHandle(), Qt::LeftButton, {}, punto);
    QTest::mouseRelease(processor.windowHandle(), Qt::LeftButton, {}, punto);
}

QStringList BancoVigilio::righeVigilio() const
{
    QStringList righe;
    for (int i = 0; i < processor.lstFile.ListCount(); ++i)
        righe += processor.lstFile.List(i);
    return righe;
}

QStringList BancoVigilio::condizioni() const
{
    QStringList condizioni;
    for (int i = 0; i < processor.lstCondizioni.ListCount(); ++i)
        condizioni += processor.lstCondizioni.List(i);
    return condizioni;
}

QList<bool> BancoVigilio::scelte() const
{
    QList<bool> scelte;
    for (int i = 0; i < processor.lstFile.ListCount(); ++i)
        scelte += processor.lstFile.Selected(i);
    return scelte;
}

QString BancoVigilio::inCorso() const
{
    return editor.tmrEseguiMosse.Enabled() ? editor.lblFile.Caption() : QString();
}
