#include "tests/filebrowser/BancoEsploraFile.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

QByteArray jpeg(QSize misura, const QColor &colore)
{
    QImage immagine(misura, QImage::Format_RGB32);
    immagine.fill(colore);
    QByteArray byte;
    QBuffer uscita(&byte);
    EXPECT_TRUE(immagine.save(&uscita, "JPG"));
    return byte;
}

QByteArray stato(int k, int x)
{
    return b({42, k, x});
}

QByteArray voce(int k, int x, const QByteArray &nome)
{
    return b({47, k, x, static_cast<int>(nome.size())}) + nome + '\0';
}

QByteArray blocco(int k, const QByteArray &contenuto)
{
    const auto n = static_cast<int>(contenuto.size());
    return b({45, k, n & 255, n >> 8}) + contenuto + '\0';
}

static void mouse(QWidget &sopra, QEvent::Type tipo, QPoint dove)
{
    const Qt::MouseButtons premuti =
        tipo == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent evento(tipo, dove, sopra.mapToGlobal(dove), Qt::LeftButton, premuti,
                       Qt::NoModifier);
    QApplication::sendEvent(&sopra, &evento);
}

void doppioClick(Elenco &lista, int riga)
{
    QListWidgetItem *voce = lista.item(riga);
    ASSERT_NE(voce, nullptr);
    lista.scrollToItem(voce);
    const QPoint dove = lista.visualItemRect(voce).center();
    QWidget &sopra = *lista.viewport();
    mouse(sopra, QEvent::MouseButtonPress, dove);
    mouse(sopra, QEvent::MouseButtonRelease, dove);
    mouse(sopra, QEvent::MouseButtonDblClick, dove);
    mouse(sopra, QEvent::MouseButtonRelease, dove);
}

int rigaDi(const Elenco &lista, const QString &nome)
{
    return static_cast<int>(voci(lista).indexOf(nome));
}

QStringList voci(const Elenco &lista)
{
    QStringList testi;
    for (int i = 0; i < lista.ListCount(); ++i)
        testi << lista.List(i);
    return testi;
}

Banco::Banco()
{
    console.motore.ascoltaFile(&esplora.prelievo);
    console.COM.setPortOpen(true);
    console.tmrElabInput.setEnabled(true);
}

void Banco::robot(const QByteArray &byte)
{
    porta.arriva(byte);
    ASSERT_TRUE(aspetta([&] { return porta.inArrivo() == 0; }));
}

void Banco::robotFinito(const QByteArray &byte)
{
    robot(byte);
    ASSERT_TRUE(aspetta([&] { return console.tmrElabInput.accumulatore.vuoto(); }));
}

QByteArray Banco::scritti()
{
    const QByteArray byte = porta.scritti();
    porta.scritture.clear();
    return byte;
}

void Banco::apri(const QList<QByteArray> &cartelle, const QList<QByteArray> &file)
{
    esplora.Mostra();
    QByteArray elenco = stato(1, 0);
    for (const QByteArray &nome : cartelle)
        elenco += voce(1, 2, nome);
    for (const QByteArray &nome : file)
        elenco += voce(1, 1, nome);
    robotFinito(elenco + stato(1, 255));
    ASSERT_EQ(esplora.Tag(), QString());
    scritti();
}

void Banco::chiedi(const QString &nome, int k)
{
    doppioClick(esplora.lstFile, rigaDi(esplora.lstFile, nome));
    ASSERT_EQ(esplora.Tag(), u"File"_s);
    robotFinito(stato(k, 0));
    scritti();
}
