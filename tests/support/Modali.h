// Answers message boxes and dialogs in a test, as a user would.
#pragma once

#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <functional>

// What a message box showed.
struct MessaggioVisto
{
    QString testo;
    QString titolo;
    QMessageBox::Icon icona;
    QMessageBox::StandardButtons pulsanti;
};

// While an object of this class exists, records each message box once and presses one of its
// buttons.
class RispondiMessaggi : public QObject
{
    Q_OBJECT

public:
    // premi: the button to press; a box without it is closed.
    explicit RispondiMessaggi(QMessageBox::StandardButton premi = QMessageBox::Ok);
    // Closes a box that is still open, so that the test does not hang.
    ~RispondiMessaggi() override;

    const QList<MessaggioVisto> &visti() const { return m_visti; }
    QStringList testi() const;

    // Sets the button to press from now on.
    void premi(QMessageBox::StandardButton pulsante) { m_premi = pulsante; }
    // While it is true, boxes are recorded and stay open.
    void trattieni(bool trattenuti) { m_trattieni = trattenuti; }
    // Called once for each box, when it is open and before the button is pressed.
    std::function<void(QMessageBox &)> mentreAperto;

private:
    void guarda();

    QTimer m_timer;
    QList<MessaggioVisto> m_visti;
    QPointer<QMessageBox> m_ultimo;
    QMessageBox::StandardButton m_premi;
    bool m_trattieni = false;
};

// While an object of this class exists, calls a function about every millisecond while the modal
// window with this object name is open. The function acts as a user, and must itself remember what
// it has done already.
class ConModale : public QObject
{
    Q_OBJECT

public:
    ConModale(const QString &nome, std::function<void()> agisci);

private:
    QTimer m_timer;
    bool m_dentro = false;
};
