#include "simulator/line/Registrazione.h"

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
const QByteArray intestazione = "# tessaro-sim registrazione 1\n";

bool leggiRiga(const QByteArray &riga, Registrazione::Tratto &tratto)
{
    const QList<QByteArray> parti = riga.simplified().split(' ');
    if (parti.size() < 3 || (parti.at(1) != ">" && parti.at(1) != "<"))
        return false;
    bool bene = false;
    tratto.ms = parti.at(0).toLongLong(&bene);
    if (!bene || tratto.ms < 0)
        return false;
    tratto.versoRobot = parti.at(1) == ">";
    tratto.byte.clear();
    for (const QByteArray &parte : parti.mid(2)) {
        const int valore = parte.toInt(&bene);
        if (!bene || valore < 0 || valore > 255)
            return false;
        tratto.byte += static_cast<char>(static_cast<quint8>(valore));
    }
    return true;
}
} // namespace

QByteArray Registrazione::riga(const Tratto &tratto)
{
    QByteArray testo = QByteArray::number(tratto.ms) + (tratto.versoRobot ? " >" : " <");
    for (const char c : tratto.byte)
        testo += ' ' + QByteArray::number(static_cast<quint8>(c));
    return testo + '\n';
}

bool Registrazione::leggi(const QString &file, QList<Tratto> &tratti, QString &errore)
{
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly)) {
        errore = u"%1: %2"_s.arg(file, f.errorString());
        return false;
    }
    tratti.clear();
    int numero = 0;
    while (!f.atEnd()) {
        const QByteArray testo = f.readLine().trimmed();
        ++numero;
        if (testo.isEmpty() || testo.startsWith('#'))
            continue;
        Tratto tratto;
        if (!leggiRiga(testo, tratto)) {
            errore = u"%1: riga %2 non valida"_s.arg(file).arg(numero);
            return false;
        }
        tratti << tratto;
    }
    return true;
}

bool Registratore::apri(const QString &file)
{
    chiudi();
    m_file.setFileName(file);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    m_orologio.invalidate();
    return m_file.write(intestazione) == intestazione.size() && m_file.flush();
}

void Registratore::scrivi(bool versoRobot, const QByteArray &byte)
{
    if (!m_file.isOpen() || byte.isEmpty())
        return;
    if (!m_orologio.isValid())
        m_orologio.start();
    m_file.write(Registrazione::riga({m_orologio.elapsed(), versoRobot, byte}));
    m_file.flush();
}
} // namespace tessaro_sim
