#pragma once
#include "simulator/robot/Diario.h"
#include <QAbstractTableModel>

inline namespace tessaro_sim {
// The diary as the rows of a table: seconds, bytes, text with its remark.
class ModelloDiario : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Colonna { Tempo, Byte, Testo, Colonne };

    explicit ModelloDiario(Diario &diario, QObject *parent = nullptr);

    // True: the periodic polls are left out.
    void nascondiRichieste(bool nascoste);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

private:
    bool mostrata(const VoceDiario &voce) const;
    void aggiungi(const VoceDiario &voce);
    void ricarica();

    Diario &m_diario;
    QList<VoceDiario> m_voci;
    bool m_senzaRichieste = true;
};
} // namespace tessaro_sim
