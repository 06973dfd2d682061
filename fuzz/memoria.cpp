// Any bytes as the answers of the robot's storage, while the user double-clicks what they list:
// nothing is written outside the program's folder, nor over the program's own files.
#include "fuzz/SenzaSchermo.h"
#include "link/MotoreRicezione.h"
#include "tests/support/PortaFinta.h"
#include "filebrowser/frmEsploraFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

namespace {

const QByteArray intatto = "3\r\n";

// The console's side, as far as the storage reaches.
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

// The robot sends, and the receive timer ticks until the engine has looked at all that came.
void invia(Banco &banco, TemporizzatoreIngresso &timer, const QByteArray &byte)
{
    PortaFinta &porta = banco.seriale.porta;
    porta.arriva(byte);
    for (int giri = 0; porta.inArrivo() > 0 || giri < 2; ++giri) {
        // A tick that waits is taken up by the line's notice, any other one by the timer.
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

// What fontconfig keeps for the whole run is no leak of ours; only a sanitizer calls this.
extern "C" const char *__lsan_default_suppressions();
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig";
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *dati, size_t quanti)
{
    conApplicazione();
    // Never destroyed: windows must not outlive the application, and the program ends at any time.
    static Banco &banco = *new Banco;
    if (quanti < 3)
        return 0;

    TemporizzatoreIngresso timer(u"tmrElabInput"_s, nullptr);
    MotoreRicezione motore(banco.COM, timer,
                           {banco.BarraStato, banco.testo, banco.testo, banco.testo, banco.forma,
                            banco.forma, banco.forma, banco.forma, banco.forma});
    motore.ascoltaFile(&banco.esplora.prelievo);
    // The engine of the run before may have been waiting.
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
