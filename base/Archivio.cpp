#include "base/Archivio.h"

#include "base/Errore.h"
#include "base/Numeri.h"
#include "base/Scrittura.h"

#include <QDir>
#include <QFileInfo>
#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct FileAperto
{
    // For reading: the whole contents, and how many bytes of them were read.
    QByteArray contenuto;
    qsizetype letti = 0;
    // For writing; null if the file is open for reading.
    std::unique_ptr<Scrittura> uscita;
};

std::map<int, FileAperto> aperti;

FileAperto &file(int numero)
{
    const auto trovato = aperti.find(numero);
    if (trovato == aperti.end())
        throw Errore(Errore::FileNonAperto);
    return trovato->second;
}

// The name that the file has on disk, which may differ in case.
QString stessoFile(const QString &nome)
{
    if (QFileInfo::exists(nome) || nome.contains(u'/') || nome.contains(u'\\'))
        return nome;
    const QStringList presenti = QDir().entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &presente : presenti) {
        if (presente.compare(nome, Qt::CaseInsensitive) == 0)
            return presente;
    }
    return nome;
}

FileAperto perLettura(const QString &nome)
{
    const QFileInfo info(nome);
    if (info.isDir())
        throw Errore(Errore::AccessoNegato);
    if (!info.exists())
        throw Errore(info.dir().exists() ? Errore::FileNonTrovato : Errore::PercorsoNonTrovato);
    QFile ingresso(nome);
    if (!ingresso.open(QIODevice::ReadOnly))
        throw Errore(Errore::AccessoNegato);
    FileAperto aperto;
    aperto.contenuto = ingresso.readAll();
    return aperto;
}

FileAperto perScrittura(const QString &nome)
{
    if (!QFileInfo(nome).dir().exists())
        throw Errore(Errore::PercorsoNonTrovato);
    FileAperto aperto;
    aperto.uscita = std::make_unique<Scrittura>(nome);
    return aperto;
}

bool bianco(char c)
{
    return c == ' ' || c == '\t';
}

bool fineRiga(char c)
{
    return c == '\r' || c == '\n';
}

char corrente(const FileAperto &f)
{
    return f.contenuto.at(f.letti);
}

bool finito(const FileAperto &f)
{
    return f.letti >= f.contenuto.size();
}

void saltaBianchi(FileAperto &f)
{
    while (!finito(f) && bianco(corrente(f)))
        ++f.letti;
}

void saltaFineRiga(FileAperto &f)
{
    if (!finito(f) && corrente(f) == '\r')
        ++f.letti;
    if (!finito(f) && corrente(f) == '\n')
        ++f.letti;
}

// Skips what follows a field: blanks, then one comma or one line end.
void saltaSeparatore(FileAperto &f)
{
    saltaBianchi(f);
    if (!finito(f) && corrente(f) == ',')
        ++f.letti;
    else
        saltaFineRiga(f);
}

} // namespace

namespace Archivio {

void apri(int numero, const QString &nome, Modo modo)
{
    if (aperti.contains(numero))
        throw Errore(Errore::FileGiaAperto);
    const QString vero = stessoFile(nome);
    aperti.emplace(numero, modo == Modo::Lettura ? perLettura(vero) : perScrittura(vero));
}

void chiudi()
{
    int errore = 0;
    for (auto &[numero, file] : aperti) {
        try {
            if (file.uscita)
                file.uscita->conferma();
        } catch (const Errore &proprio) {
            errore = proprio.numero();
        }
    }
    aperti.clear();
    if (errore != 0)
        throw Errore(errore);
}

void abbandona()
{
    aperti.clear();
}

bool fine(int numero)
{
    return finito(file(numero));
}

qsizetype lunghezza(int numero)
{
    return file(numero).contenuto.size();
}

QByteArray leggiCampo(int numero)
{
    FileAperto &f = file(numero);
    saltaBianchi(f);
    if (finito(f))
        throw Errore(Errore::FineDelFile);
    QByteArray campo;
    if (corrente(f) == '"') {
        const qsizetype inizio = f.letti + 1;
        const qsizetype chiuso = f.contenuto.indexOf('"', inizio);
        const qsizetype dopo = chiuso < 0 ? f.contenuto.size() : chiuso;
        campo = f.contenuto.sliced(inizio, dopo - inizio);
        f.letti = chiuso < 0 ? dopo : dopo + 1;
    } else {
        const qsizetype inizio = f.letti;
        while (!finito(f) && corrente(f) != ',' && !fineRiga(corrente(f)))
            ++f.letti;
        campo = f.contenuto.sliced(inizio, f.letti - inizio);
    }
    saltaSeparatore(f);
    return campo;
}

double leggiNumero(int numero)
{
    FileAperto &f = file(numero);
    while (!finito(f) && (bianco(corrente(f)) || fineRiga(corrente(f))))
        ++f.letti;
    if (finito(f))
        throw Errore(Errore::FineDelFile);
    const qsizetype inizio = f.letti;
    while (!finito(f) && corrente(f) != ',' && !bianco(corrente(f)) && !fineRiga(corrente(f)))
        ++f.letti;
    const QByteArray testo = f.contenuto.sliced(inizio, f.letti - inizio);
    saltaSeparatore(f);
    return Numeri::Valore(testo);
}

QByteArray leggiRiga(int numero)
{
    FileAperto &f = file(numero);
    if (finito(f))
        throw Errore(Errore::FineDelFile);
    const qsizetype inizio = f.letti;
    while (!finito(f) && !fineRiga(corrente(f)))
        ++f.letti;
    QByteArray riga = f.contenuto.sliced(inizio, f.letti - inizio);
    saltaFineRiga(f);
    return riga;
}

QByteArray leggi(int numero, qsizetype quanti)
{
    FileAperto &f = file(numero);
    if (quanti > f.contenuto.size() - f.letti)
        throw Errore(Errore::FineDelFile);
    QByteArray letti = f.contenuto.sliced(f.letti, quanti);
    f.letti += quanti;
    return letti;
}

void stampa(int numero, const QByteArray &byte)
{
    FileAperto &f = file(numero);
    if (!f.uscita)
        throw Errore(Errore::FileNonAperto);
    f.uscita->aggiungi(byte);
}

} // namespace Archivio
