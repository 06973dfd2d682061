// What the tests of base, controls and serial share: waiting for a condition, typing, a window that
// records its events, and a helper that acts on message boxes.
#pragma once

#include "controls/Finestra.h"
#include "tests/support/ErroreDi.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <cstdlib>
#include <functional>
#include <gmock/gmock.h>
#include <ostream>

inline void PrintTo(const QString &testo, std::ostream *dove)
{
    *dove << '"' << testo.toStdString() << '"';
}
inline void PrintTo(const QByteArray &byte, std::ostream *dove)
{
    *dove << byte.toPercentEncoding().toStdString();
}

// Runs the event loop until the condition is true; false after 20 seconds.
inline bool attendi(const std::function<bool()> &condizione)
{
    return QTest::qWaitFor(condizione, 20000);
}

// Types any characters; QTest types ASCII only.
inline void batti(QWidget &dove, const QString &testo)
{
    for (const QChar c : testo) {
        for (const QEvent::Type tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent evento(tipo, c.toUpper().unicode(), Qt::NoModifier, c);
            QApplication::sendEvent(&dove, &evento);
        }
    }
}

// Another program in front: a window that is not a Finestra.
struct AltroProgramma
{
    AltroProgramma()
    {
        finestra.resize(100, 100);
        finestra.show();
        finestra.requestActivate();
        if (!QTest::qWaitForWindowActive(&finestra))
            qFatal("no window came to the front");
    }
    QWindow finestra;
};

// While an object of this class exists, calls a function every 5 ms with the modal box of this type
// that is open, and counts the calls.
template <class Riquadro>
class Mano
{
public:
    explicit Mano(std::function<void(Riquadro &)> gesto)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, gesto = std::move(gesto)] {
            auto *riquadro = qobject_cast<Riquadro *>(QApplication::activeModalWidget());
            if (!riquadro || !riquadro->isVisible())
                return;
            ++visti;
            gesto(*riquadro);
        });
        m_timer.start(5);
    }

    int visti = 0;

private:
    QTimer m_timer;
};
using ManoSuiMessaggi = Mano<QMessageBox>;

inline void premiOK(QMessageBox &box)
{
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
}

// A window that records what happens to it.
class FinestraDiProva : public Finestra
{
public:
    explicit FinestraDiProva(const QString &nome = QStringLiteral("frmProva"))
        : Finestra(nome, QStringLiteral("Prova"))
    {
        resize(400, 300);
    }

    QStringList diario;
    // How often it was raised.
    int alzate = 0;
    std::function<void()> inLoad;
    std::function<void()> inKeyDown;
    bool rifiutaQuery = false;
    bool rifiutaUnload = false;

    using Finestra::setAnnulla;
    using Finestra::setKeyPreview;
    using Finestra::setPredefinito;

    void mostraAttiva()
    {
        Mostra();
        activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }
    qsizetype volte(const QString &riga) const { return diario.count(riga); }

protected:
    bool event(QEvent *evento) override
    {
        if (evento->type() == QEvent::ZOrderChange)
            ++alzate;
        return Finestra::event(evento);
    }
    void Initialize() override { diario += QStringLiteral("Initialize"); }
    void Load() override
    {
        diario += QStringLiteral("Load");
        if (inLoad)
            inLoad();
    }
    void Activate() override { diario += QStringLiteral("Activate"); }
    void Disegno() override { diario += QStringLiteral("Disegno"); }
    void QueryUnload(bool &Cancel, Chiusura UnloadMode) override
    {
        diario += QStringLiteral("QueryUnload %1").arg(static_cast<int>(UnloadMode));
        Cancel = rifiutaQuery;
    }
    void Unload(bool &Cancel) override
    {
        diario += QStringLiteral("Unload");
        Cancel = rifiutaUnload;
    }
    void KeyDown(int KeyCode, int Shift) override
    {
        diario += QStringLiteral("KeyDown %1 %2").arg(KeyCode).arg(Shift);
        if (inKeyDown)
            inKeyDown();
    }
    void KeyUp(int KeyCode, int Shift) override
    {
        diario += QStringLiteral("KeyUp %1 %2").arg(KeyCode).arg(Shift);
    }
};
