#include "CollegamentoPorta.h"
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
    nome_ = QDir(cartella).absoluteFilePath(u"COM%1"_s.arg(n));
    return meta.isEmpty() || aggiorna(meta, errore);
}

bool CollegamentoPorta::aggiorna(const QString &meta, QString &errore)
{
    if (nome_.isEmpty())
        return true;
    const QFileInfo info(nome_);
    if (info.isSymLink())
        QFile::remove(nome_);
    QFile device(meta);
    if ((!info.isSymLink() && info.exists()) || !device.link(nome_)) {
        errore = u"%1: il collegamento non può essere creato"_s.arg(nome_);
        nome_.clear();
        return false;
    }
    meta_ = meta;
    return true;
}

// Only if it is still ours: another robot may have taken the name.
void CollegamentoPorta::rimuovi()
{
    const QFileInfo info(nome_);
    if (!nome_.isEmpty() && info.isSymLink() && info.symLinkTarget() == meta_)
        QFile::remove(nome_);
    nome_.clear();
}
} // namespace tessaro_sim
