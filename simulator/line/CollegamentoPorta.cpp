#include "simulator/line/CollegamentoPorta.h"
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
CollegamentoPorta::~CollegamentoPorta()
{
    rimuovi();
}

bool CollegamentoPorta::crea(const QString &cartella, int n, const QString &meta, QString &errore)
{
    if (n < 1 || n > 99) {
        errore = u"Il numero di porta %1 non è tra 1 e 99"_s.arg(n);
        return false;
    }
    if (!QDir().mkpath(cartella)) {
        errore = u"%1: la cartella non può essere creata"_s.arg(cartella);
        return false;
    }
    rimuovi();
    m_nome = QDir(cartella).absoluteFilePath(u"COM%1"_s.arg(n));
    return meta.isEmpty() || aggiorna(meta, errore);
}

bool CollegamentoPorta::aggiorna(const QString &meta, QString &errore)
{
    if (m_nome.isEmpty())
        return true;
    const QFileInfo info(m_nome);
    if (info.isSymLink())
        QFile::remove(m_nome);
    QFile device(meta);
    if ((!info.isSymLink() && info.exists()) || !device.link(m_nome)) {
        errore = u"%1: il collegamento non può essere creato"_s.arg(m_nome);
        m_nome.clear();
        return false;
    }
    m_meta = meta;
    return true;
}

// Only if it is still ours: another robot may have taken the name.
void CollegamentoPorta::rimuovi()
{
    const QFileInfo info(m_nome);
    if (!m_nome.isEmpty() && info.isSymLink() && info.symLinkTarget() == m_meta)
        QFile::remove(m_nome);
    m_nome.clear();
}
} // namespace tessaro_sim
