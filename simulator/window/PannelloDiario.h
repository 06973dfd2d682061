#pragma once
#include <QGroupBox>

class QTableView;

inline namespace tessaro_sim {
class Diario;
class ModelloDiario;

// The diary as it grows; it follows its end unless one has scrolled up.
class PannelloDiario : public QGroupBox
{
    Q_OBJECT
public:
    explicit PannelloDiario(Diario &diario, QWidget *parent = nullptr);

private:
    void copia();

    Diario &m_diario;
    ModelloDiario *m_modello = nullptr;
    QTableView *m_elenco = nullptr;
};
} // namespace tessaro_sim
