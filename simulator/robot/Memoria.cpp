#include "simulator/robot/Memoria.h"
#include "simulator/line/Guasti.h"
#include "simulator/robot/Esempi.h"
#include "simulator/robot/Telegrammi.h"
#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
bool eVolume(const QByteArray &nome)
{
    return nome == "disk" || nome == "mmc" || nome == "usb";
}

// On the wire a name is one byte a character; what the code page lacks becomes "?".
QByteArray sulFilo(const QString &nome)
{
    return nome.toLatin1();
}
} // namespace

Memoria::Memoria() = default;
Memoria::~Memoria() = default;

void Memoria::impostaRadice(const QString &cartella)
{
    chiudiTutti();
    m_temporanea.reset();
    m_radice = QDir(cartella).absolutePath();
}

QString Memoria::radice()
{
    if (m_radice.isEmpty()) {
        m_temporanea = std::make_unique<QTemporaryDir>();
        if (m_temporanea->isValid() && creaEsempi(m_temporanea->path()))
            m_radice = m_temporanea->path();
    }
    return m_radice;
}

// The host folder of disk, mmc or usb; empty where there is none.
QString Memoria::volume(const QByteArray &nome)
{
    const QDir dir(radice());
    if (m_radice.isEmpty())
        return {};
    if (dir.exists(u"disk"_s)) {
        const QString dentro = dir.filePath(QString::fromLatin1(nome));
        return QFileInfo(dentro).isDir() ? dentro : QString();
    }
    if (nome == "disk")
        return dir.path();
    const QString accanto = QDir::cleanPath(dir.filePath(u"../"_s + QString::fromLatin1(nome)));
    return dir.dirName() == u"disk" && QFileInfo(accanto).isDir() ? accanto : QString();
}

// Follows names downward, comparing them as they stand on the wire.
QString Memoria::scendi(const QString &da, const QList<QByteArray> &nomi) const
{
    QString qui = da;
    for (const QByteArray &nome : nomi) {
        const QDir dir(qui);
        QString trovato;
        const QStringList entrate = dir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QString &entrata : entrate) {
            if (sulFilo(entrata) == nome)
                trovato = dir.filePath(entrata);
        }
        if (trovato.isEmpty())
            return {};
        qui = trovato;
    }
    // A link of the host must not lead out of the storage.
    const QString vero = QFileInfo(qui).canonicalFilePath();
    const QString base = QFileInfo(da).canonicalFilePath();
    return vero == base || vero.startsWith(base + u'/') ? qui : QString();
}

QString Memoria::trova(const QByteArray &percorso)
{
    QList<QByteArray> nomi{"disk"};
    for (const QByteArray &nome : percorso.split('/')) {
        if (nome.isEmpty() || nome == ".")
            continue;
        if (nome != "..") {
            nomi << nome;
            continue;
        }
        if (nomi.isEmpty())
            return {};
        nomi.removeLast();
    }
    if (nomi.isEmpty() || !eVolume(nomi.constFirst()))
        return {};
    const QByteArray primo = nomi.takeFirst();
    const QString base = volume(primo);
    if (base.isEmpty())
        return {};
    QString diretto = scendi(base, nomi);
    if (!diretto.isEmpty() || primo != "disk" || nomi.isEmpty() || !eVolume(nomi.constFirst()))
        return diretto;
    const QString altra = volume(nomi.takeFirst());
    return altra.isEmpty() ? QString() : scendi(altra, nomi);
}

QList<Memoria::Voce> Memoria::elenca(const QString &cartella)
{
    constexpr int tipoCartella = 2;
    QList<Voce> voci;
    const auto eRadice = [&](const QByteArray &nome) {
        const QString base = volume(nome);
        return !base.isEmpty() && QFileInfo(base) == QFileInfo(cartella);
    };
    // From the disk's root one can go to the cards, from anywhere else back to the root.
    if (eRadice("disk")) {
        for (const QByteArray nome : {"disk", "mmc", "usb"}) {
            if (!volume(nome).isEmpty())
                voci << Voce{tipoCartella, nome};
        }
    } else {
        voci << Voce{tipoCartella, "."};
    }
    const QDir dir(cartella);
    for (const QDir::Filter filtro : {QDir::Dirs, QDir::Files}) {
        const QStringList nomi = dir.entryList(filtro | QDir::NoDotAndDotDot, QDir::Name);
        for (const QString &nome : nomi)
            voci << Voce{filtro == QDir::Dirs ? tipoCartella : 1, sulFilo(nome).left(255)};
    }
    return voci;
}

int Memoria::canaleLibero() const
{
    for (int k = 1; k <= canali; ++k) {
        if (!m_aperti.contains(k))
            return k;
    }
    return 0;
}

QByteArray Memoria::apri(int modo, const QByteArray &percorso, const Guasti &guasti)
{
    if (guasti.statoApertura >= 0)
        return Telegrammi::statoMemoria(0, guasti.statoApertura);
    const int k = canaleLibero();
    if (k == 0)
        return Telegrammi::statoMemoria(0, TroppiCanali);
    const QFileInfo info(trova(percorso));
    Canale canale;
    if (modo == modoCartella && info.isDir()) {
        canale.elenco = elenca(info.filePath());
    } else if (modo == modoFile && info.isFile()) {
        canale.file = std::make_unique<QFile>(info.filePath());
        if (!canale.file->open(QIODevice::ReadOnly))
            return Telegrammi::statoMemoria(0, Guasto);
    } else {
        return Telegrammi::statoMemoria(0, NonTrovato);
    }
    m_aperti[k] = std::move(canale);
    return Telegrammi::statoMemoria(k, Bene);
}

QByteArray Memoria::leggiElenco(int canale, const Guasti &guasti)
{
    const auto posto = m_aperti.find(canale);
    if (posto == m_aperti.end() || posto->second.file)
        return Telegrammi::statoMemoria(canale, CanaleErrato);
    if (guasti.statoElenco >= 0)
        return Telegrammi::statoMemoria(canale, guasti.statoElenco);
    QList<Voce> &elenco = posto->second.elenco;
    if (elenco.isEmpty())
        return Telegrammi::statoMemoria(canale, Fine);
    const Voce voce = elenco.takeFirst();
    return Telegrammi::voceElenco(canale, voce.tipo, voce.nome, guasti.deltaLunghezza);
}

QByteArray Memoria::leggiBlocco(int canale, int quanti, const Guasti &guasti)
{
    const auto posto = m_aperti.find(canale);
    if (posto == m_aperti.end() || !posto->second.file)
        return Telegrammi::statoMemoria(canale, CanaleErrato);
    if (guasti.statoLettura >= 0)
        return Telegrammi::statoMemoria(canale, guasti.statoLettura);
    QFile &file = *posto->second.file;
    // An empty file still gives its one block, of length 0.
    if (file.pos() > 0 && file.atEnd())
        return Telegrammi::statoMemoria(canale, Fine);
    return Telegrammi::bloccoFile(canale, file.read(quanti), guasti.deltaLunghezza);
}

void Memoria::chiudi(int canale)
{
    m_aperti.erase(canale);
}

void Memoria::chiudiTutti()
{
    m_aperti.clear();
}

QString Memoria::salvaFoto(const QImage &foto)
{
    const QString disco = volume("disk");
    if (disco.isEmpty() || !QDir(disco).mkpath(u"foto"_s))
        return {};
    const QDir dir(disco + u"/foto"_s);
    for (int n = 1; n <= 999; ++n) {
        const QString nome = u"foto%1.jpg"_s.arg(n, 3, 10, QChar(u'0'));
        if (!dir.exists(nome))
            return foto.save(dir.filePath(nome), "JPG", 88) ? nome : QString();
    }
    return {};
}
} // namespace tessaro_sim
