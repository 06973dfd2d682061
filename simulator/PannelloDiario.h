#pragma once
#include <QGroupBox>

class QTableView;

inline namespace tessaro_sim {
class Diario;
class ModelloDiario;

/// The diary as it grows; it follows its end unless one has scrolled up.
class PannelloDiario : public QGroupBox
{
    Q_OBJECT
public:
    explicit PannelloDiario(Diario &diario, QWidget *parent = nullptr);

private:
    void copia();

    Diario &diario_;
    ModelloDiario *modello_ = nullptr;
    QTableView *elenco_ = nullptr;
};
} // namespace tessaro_sim
