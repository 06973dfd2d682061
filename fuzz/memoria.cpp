// Any bytes as the answers of the robot's storage, while the user double-clicks their entries:
// nothing is written outside the program's folder, nor over the program's own files.
#include "filebrowser/frmEsploraFile.h"
#include "fuzz/SenzaSchermo.h"
#include "link/MotoreRicezione.h"
#include "tests/support/PortaFinta.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const QByteArray intatto = "3\r\n";

// The parts of the console that the file browser needs.
struct Banco
{
    QTemporaryDir fuori;
    QString cartella = fuori.filePath(u"programma"_s);
    SerialeFinto seriale{cartella};
    ControlloSeriale &COM = seriale.COM;
    QWidget console;
    BarraDiStato BarraStato{u"BarraStato"_s, &console, {10, 10, 0}};
    Etichetta testo{u"testo"_s, &console};
    Forma forma{u"forma"_s, &console};
    frmEsploraFile esplora{COM, BarraStato, cartella};

    Banco()
    {
        QDir().mkpath(cartella);
        COM.setPortOpen(true);
        for (const QString &nome : {u"Porta COM"_s, u"prog.dat"_s}) {
            QFile file(cartella + u'/' + nome);
            if (!file.open(QIODevice::WriteOnly) || file.write(intatto) != intatto.size())
                std::abort();
        }
    }
    void controlla()
    {
        if (QDir(fuori.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot) !=
            QStringList{u"programma"_s})
            std::abort();
        for (const QString &nome : {u"Porta COM"_s, u"prog.dat"_s}) {
            QFile file(cartella + u'/' + nome);
            if (!file.open(QIODevice::ReadOnly) || file.readAll() != intatto)
                std::abort();
        }
    }
};

// The robot sends, and the receive timer ticks until the engine has read all bytes.
void invia(Banco &banco, TemporizzatoreIngresso &timer, const QByteArray &byte)
{
    PortaFinta &porta = banco.seriale.porta;
    porta.arriva(byte);
    for (int giri = 0; porta.inArrivo() > 0 || giri < 2; ++giri) {
        // A tick that waits for a byte is resumed by the notice of the port, otherwise the timer
        // ticks.
        if (porta.sorvegliata())
            porta.arrivo();
        else
            timer.Timer();
    }
}

void doppioClick(Elenco &lista, quint8 quale)
{
    if (lista.ListCount() == 0)
        return;
    lista.setListIndex(quale % lista.ListCount());
    lista.DblClick();
}

} // namespace

// The memory that fontconfig keeps is no leak of the program. Only a sanitizer calls this function.
extern "C" const char *__lsan_default_suppressions();
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig";
}

// First byte: bit 0 shows the window; bit 1 chooses the list of the double click, files or folders.
// Second byte: where the double click cuts the answers. Third byte: its row.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *dati, size_t quanti)
{
    conApplicazione();
    // Never destroyed: it would have to go before the application, and the order at the end is not
    // known.
    static Banco &banco = *new Banco;
    if (quanti < 3)
        return 0;

    TemporizzatoreIngresso timer(u"tmrElabInput"_s, nullptr);
    MotoreRicezione motore(banco.COM, timer,
                           {banco.BarraStato, banco.testo, banco.testo, banco.testo, banco.forma,
                            banco.forma, banco.forma, banco.forma, banco.forma});
    motore.ascoltaFile(&banco.esplora.prelievo);
    // The engine of the previous run may have been waiting for a byte.
    banco.COM.avvisa(false);
    if (dati[0] & 1)
        banco.esplora.Mostra();
    const QByteArray byte(reinterpret_cast<const char *>(dati + 3),
                          static_cast<qsizetype>(quanti - 3));
    const qsizetype taglio = byte.size() * dati[1] / 256;
    invia(banco, timer, byte.first(taglio));
    doppioClick(dati[0] & 2 ? static_cast<Elenco &>(banco.esplora.lstFile)
                            : banco.esplora.lstCartelle,
                dati[2]);
    invia(banco, timer, byte.sliced(taglio));
    banco.esplora.Scarica();
    banco.seriale.porta.scritture.clear();
    banco.seriale.porta.leggi(banco.seriale.porta.inArrivo());
    banco.controlla();
    return 0;
}
