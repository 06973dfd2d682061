#include "simulator/Opzioni.h"
#include "simulator/Simulatore.h"
#include "simulator/robot/Memoria.h"
#include "simulator/robot/Telecamera.h"
#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
struct Scelta
{
    const char16_t *nome;
    const char16_t *valore; // empty: a switch
    const char16_t *aiuto;
};

const std::initializer_list<Scelta> scelte{
    {u"aiuto", u"", u"mostra questo aiuto"},
    {u"headless", u"", u"senza finestra"},
    {u"cartella", u"DIR", u"crea in DIR il collegamento COMn alla linea"},
    {u"porta", u"N", u"numero n del collegamento, da 1 a 99 (1)"},
    {u"baud", u"N", u"velocità della linea, 0 senza limite (9600)"},
    {u"log", u"[FILE]", u"scrive il diario su FILE, senza FILE sull'uscita standard"},
    {u"memoria", u"DIR", u"memoria del robot: DIR con dentro disk, mmc, usb"},
    {u"immagini", u"DIR", u"la telecamera manda le immagini di DIR"},
    {u"registra", u"FILE", u"registra su FILE i byte della linea"},
    {u"riproduci", u"FILE", u"manda i byte del robot registrati in FILE"},
    {u"subito", u"", u"riproduce senza i tempi originali"},
    {u"temperatura", u"N", u"gradi, da 0 a 255"},
    {u"batterie", u"L,M", u"batteria logica e batteria motori, da 0 a 255"},
    {u"ultrasuoni", u"D,C,S", u"sensori destro, centrale, sinistro, da 0 a 255"},
    {u"dalla-stanza", u"", u"i sensori a ultrasuoni seguono la stanza"},
    {u"silenzio", u"", u"guasto: il robot non risponde mai"},
    {u"un-byte", u"", u"guasto: all'apertura risponde con un solo byte"},
    {u"dopo-sollecito", u"", u"guasto: all'apertura risponde solo dopo il byte 1"},
    {u"alluvione", u"", u"guasto: telegrammi senza fine"},
    {u"ritardo", u"MS", u"guasto: risponde con questo ritardo"},
    {u"persi", u"P", u"guasto: probabilità che un byte si perda, da 0 a 1"},
    {u"doppi", u"P", u"guasto: probabilità che un byte arrivi due volte"},
    {u"sporchi", u"P", u"guasto: probabilità che un byte arrivi sbagliato"},
    {u"troncati", u"P", u"guasto: probabilità che un telegramma sia troncato"},
    {u"anche-in-arrivo", u"", u"i guasti ai byte valgono nei due sensi"},
    {u"seme", u"N", u"seme dei guasti casuali (1)"},
    {u"perdi-linea", u"MS,MS", u"guasto: dopo il primo tempo la linea perde tutto per il secondo"},
    {u"delta-lunghezza", u"N", u"guasto: si aggiunge alla lunghezza dei blocchi della memoria"},
    {u"stato-apertura", u"N", u"guasto: la memoria rifiuta di aprire con lo stato N"},
    {u"stato-elenco", u"N", u"guasto: gli elenchi finiscono con lo stato N"},
    {u"stato-lettura", u"N", u"guasto: le letture danno lo stato N"},
    {u"memoria-piena", u"", u"guasto: le foto non vengono salvate"},
};

// "--log" alone is allowed; the parser wants a value for each option that can have one.
QStringList conLogIntero(const QStringList &argomenti)
{
    QStringList esito;
    for (qsizetype i = 0; i < argomenti.size(); ++i) {
        const QString dopo = argomenti.value(i + 1);
        const bool conFile = !dopo.isEmpty() && (dopo == u"-" || !dopo.startsWith(u'-'));
        const bool solo = argomenti.at(i) == u"--log" && !conFile;
        esito << (solo ? u"--log=-"_s : argomenti.at(i));
    }
    return esito;
}

// Reads values from the parser; the first that is wrong is kept as the complaint.
class Lettore
{
public:
    explicit Lettore(const QCommandLineParser &parser) : m_parser(parser) {}
    QString lamento;

    void testo(const QString &nome, QString &dove) const
    {
        if (m_parser.isSet(nome))
            dove = m_parser.value(nome);
    }
    void numeri(const QString &nome, std::initializer_list<int *> dove, int da, int a)
    {
        if (!m_parser.isSet(nome))
            return;
        const QStringList parti = m_parser.value(nome).split(u',');
        bool bene = parti.size() == static_cast<qsizetype>(dove.size());
        qsizetype i = 0;
        for (int *meta : dove) {
            bool numero = false;
            const int v = bene ? parti.at(i++).toInt(&numero) : 0;
            bene = bene && numero && v >= da && v <= a;
            if (bene)
                *meta = v;
        }
        if (!bene)
            lamenta(nome);
    }
    void probabilita(const QString &nome, double &dove)
    {
        if (!m_parser.isSet(nome))
            return;
        bool bene = false;
        const double v = m_parser.value(nome).toDouble(&bene);
        if (bene && v >= 0.0 && v <= 1.0)
            dove = v;
        else
            lamenta(nome);
    }

private:
    void lamenta(const QString &nome)
    {
        if (lamento.isEmpty())
            lamento = u"Valore non valido per --%1: %2"_s.arg(nome, m_parser.value(nome));
    }
    const QCommandLineParser &m_parser;
};
} // namespace

QString Opzioni::testoAiuto()
{
    QString testo = u"Uso: tessaro-sim [opzioni]\n\n"
                    "Il robot Tessaro simulato: apre una linea seriale e ne scrive il percorso.\n\n"
                    "Opzioni:\n"_s;
    for (const Scelta &scelta : scelte) {
        const QString valore = QString::fromUtf16(scelta.valore);
        const QString nome = u"  --"_s + QString::fromUtf16(scelta.nome) +
                             (valore.isEmpty() ? QString() : u' ' + valore);
        testo += nome.leftJustified(26) + QString::fromUtf16(scelta.aiuto) + u'\n';
    }
    return testo;
}

QString Opzioni::leggi(const QStringList &argomenti)
{
    QCommandLineParser parser;
    for (const Scelta &scelta : scelte) {
        parser.addOption(QCommandLineOption(QString::fromUtf16(scelta.nome),
                                            QString::fromUtf16(scelta.aiuto),
                                            QString::fromUtf16(scelta.valore)));
    }
    if (!parser.parse(conLogIntero(argomenti))) {
        const QStringList ignote = parser.unknownOptionNames();
        return ignote.isEmpty() ? u"A un'opzione manca il suo valore, o ne ha uno di troppo"_s
                                : u"Opzione sconosciuta: %1"_s.arg(ignote.constFirst());
    }
    if (!parser.positionalArguments().isEmpty())
        return u"Argomento non previsto: %1"_s.arg(parser.positionalArguments().constFirst());

    const auto si = [&](const QString &nome) { return parser.isSet(nome); };
    aiuto = si(u"aiuto"_s);
    senzaFinestra = si(u"headless"_s);
    log = si(u"log"_s);
    tempiOriginali = !si(u"subito"_s);
    dallaStanza = si(u"dalla-stanza"_s);
    guasti.silenzio = si(u"silenzio"_s);
    guasti.unSoloByte = si(u"un-byte"_s);
    guasti.soloDopoSollecito = si(u"dopo-sollecito"_s);
    guasti.alluvione = si(u"alluvione"_s);
    guasti.ancheInArrivo = si(u"anche-in-arrivo"_s);
    guasti.memoriaPiena = si(u"memoria-piena"_s);

    Lettore lettore(parser);
    lettore.testo(u"cartella"_s, cartella);
    lettore.testo(u"log"_s, fileLog);
    lettore.testo(u"memoria"_s, memoria);
    lettore.testo(u"immagini"_s, immagini);
    lettore.testo(u"registra"_s, registra);
    lettore.testo(u"riproduci"_s, riproduci);
    if (fileLog == u"-")
        fileLog.clear();
    constexpr int moltissimo = 1000000000;
    int semeLetto = static_cast<int>(seme);
    lettore.numeri(u"porta"_s, {&porta}, 1, 99);
    lettore.numeri(u"baud"_s, {&baud}, 0, moltissimo);
    lettore.numeri(u"seme"_s, {&semeLetto}, 0, moltissimo);
    lettore.numeri(u"temperatura"_s, {&temperatura}, 0, 255);
    lettore.numeri(u"batterie"_s, {&batterie[0], &batterie[1]}, 0, 255);
    lettore.numeri(u"ultrasuoni"_s, {&ultrasuoni[0], &ultrasuoni[1], &ultrasuoni[2]}, 0, 255);
    lettore.numeri(u"ritardo"_s, {&guasti.ritardo}, 0, moltissimo);
    lettore.numeri(u"perdi-linea"_s, {&perdiDopo, &perdiPer}, 0, moltissimo);
    lettore.numeri(u"delta-lunghezza"_s, {&guasti.deltaLunghezza}, -65535, 65535);
    lettore.numeri(u"stato-apertura"_s, {&guasti.statoApertura}, 0, 255);
    lettore.numeri(u"stato-elenco"_s, {&guasti.statoElenco}, 0, 255);
    lettore.numeri(u"stato-lettura"_s, {&guasti.statoLettura}, 0, 255);
    lettore.probabilita(u"persi"_s, guasti.persi);
    lettore.probabilita(u"doppi"_s, guasti.doppi);
    lettore.probabilita(u"sporchi"_s, guasti.sporchi);
    lettore.probabilita(u"troncati"_s, guasti.troncati);
    seme = static_cast<quint32>(semeLetto);
    return lettore.lamento;
}

QString Opzioni::applica(Simulatore &simulatore) const
{
    Robot &robot = simulatore.robot();
    simulatore.impostaBaud(baud);
    simulatore.impostaSeme(seme);
    simulatore.guasti() = guasti;
    if (temperatura >= 0)
        robot.impostaTemperatura(temperatura);
    if (batterie[0] >= 0)
        robot.impostaBatterie(batterie[0], batterie[1]);
    robot.impostaUltrasuoni(ultrasuoni[0], ultrasuoni[1], ultrasuoni[2]);
    robot.impostaUltrasuoniDallaStanza(dallaStanza);
    if (!memoria.isEmpty()) {
        if (!QFileInfo(memoria).isDir())
            return u"%1: la cartella non esiste"_s.arg(memoria);
        robot.memoria().impostaRadice(memoria);
    }
    if (!immagini.isEmpty() && !robot.telecamera().impostaCartella(immagini))
        return u"%1: nessuna immagine leggibile"_s.arg(immagini);
    if ((!registra.isEmpty() && !simulatore.registra(registra)) ||
        (!riproduci.isEmpty() && !simulatore.riproduci(riproduci, tempiOriginali)) ||
        !simulatore.apri() || (!cartella.isEmpty() && !simulatore.collegaPorta(cartella, porta)))
        return simulatore.errore();
    if (perdiPer > 0) {
        QTimer::singleShot(perdiDopo, &simulatore,
                           [&simulatore, per = perdiPer] { simulatore.perdiLinea(per); });
    }
    return {};
}
} // namespace tessaro_sim
