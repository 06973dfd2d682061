#pragma once
#include <QGroupBox>

class QComboBox;
class QLabel;
class QPushButton;

inline namespace tessaro_sim {
class Simulatore;

// The line: who listens, its speed, and its faults.
class PannelloLinea : public QGroupBox
{
    Q_OBJECT
public:
    explicit PannelloLinea(Simulatore &simulatore, QWidget *parent = nullptr);

private:
    void mostra();
    void disturba(bool attivo);
    void aggancia(bool staccata);

    Simulatore &m_sim;
    QLabel *m_stato = nullptr;
    QComboBox *m_velocita = nullptr;
    QPushButton *m_silenzio = nullptr;
    QPushButton *m_disturbi = nullptr;
    QPushButton *m_stacca = nullptr;
};
} // namespace tessaro_sim
