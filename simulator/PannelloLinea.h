#pragma once
#include <QGroupBox>

class QComboBox;
class QLabel;
class QPushButton;

inline namespace tessaro_sim {
class Simulatore;

/// The line: who listens, its speed, and its faults.
class PannelloLinea : public QGroupBox
{
    Q_OBJECT
public:
    explicit PannelloLinea(Simulatore &simulatore, QWidget *parent = nullptr);

private:
    void mostra();
    void disturba(bool attivo);
    void aggancia(bool staccata);

    Simulatore &sim_;
    QLabel *stato_ = nullptr;
    QComboBox *velocita_ = nullptr;
    QPushButton *silenzio_ = nullptr;
    QPushButton *disturbi_ = nullptr;
    QPushButton *stacca_ = nullptr;
};
} // namespace tessaro_sim
