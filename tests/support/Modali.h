// Who answers message boxes and dialogs in a test's place of the user.
#pragma once

#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <functional>

// A message box as it was seen.
struct MessaggioVisto
{
    QString testo;
    QString titolo;
    QMessageBox::Icon icona;
    QMessageBox::StandardButtons pulsanti;
};

// While it lives, notes every message box that comes up, once each, and presses a button of it.
class RispondiMessaggi : public QObject
{
    Q_OBJECT

public:
    // The button that is pressed in each box; a box that lacks it is closed.
    explicit RispondiMessaggi(QMessageBox::StandardButton premi = QMessageBox::Ok);
    // A box that is still open is closed, lest the test hangs.
    ~RispondiMessaggi() override;

    const QList<MessaggioVisto> &visti() const { return m_visti; }
    QStringList testi() const;

    // From the next box on.
    void premi(QMessageBox::StandardButton pulsante) { m_premi = pulsante; }
    // While true, boxes are noted and stay open.
    void trattieni(bool trattenuti) { m_trattieni = trattenuti; }
    // Runs once for each box, while it is open, before the button is pressed.
    std::function<void(QMessageBox &)> mentreAperto;

private:
    void guarda();

    QTimer m_timer;
    QList<MessaggioVisto> m_visti;
    QPointer<QMessageBox> m_ultimo;
    QMessageBox::StandardButton m_premi;
    bool m_trattieni = false;
};

// While it lives, calls a function each time that the modal window of that object name is in front
// and idle; the function acts as the user does, and counts for itself what it has done.
class ConModale : public QObject
{
    Q_OBJECT

public:
    ConModale(const QString &nome, std::function<void()> agisci);

private:
    QTimer m_timer;
    bool m_dentro = false;
};
