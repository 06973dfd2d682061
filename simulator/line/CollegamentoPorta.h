#pragma once
#include <QString>

inline namespace tessaro_sim {
// The link COMn in a folder, through which the program finds the line; removed at the end.
class CollegamentoPorta
{
public:
    CollegamentoPorta() = default;
    ~CollegamentoPorta();
    CollegamentoPorta(const CollegamentoPorta &) = delete;
    CollegamentoPorta &operator=(const CollegamentoPorta &) = delete;

    // Makes the link to `meta` (later, if that is empty). A link of that name is replaced, a file
    // is not. n is 1 to 99.
    bool crea(const QString &cartella, int n, const QString &meta, QString &errore);
    // Points the link at a new device; true also where no link was asked for.
    bool aggiorna(const QString &meta, QString &errore);
    void rimuovi();

private:
    QString m_nome;
    QString m_meta;
};
} // namespace tessaro_sim
