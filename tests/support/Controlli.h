// What the tests of this folder share: waits on conditions, windows that keep a
// journal, and a hand that answers message boxes.
#pragma once

#include "tests/support/ErroreDi.h"
#include "controls/Finestra.h"

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

using namespace Qt::StringLiterals;

inline void PrintTo(const QString &testo, std::ostream *dove)
{
    *dove << '"' << testo.toStdString() << '"';
}
inline void PrintTo(const QByteArray &byte, std::ostream *dove)
{
    *dove << byte.toPercentEncoding().toStdString();
}

inline bool attendi(const std::function<bool()> &condizione)
{
    return QTest::qWaitFor(condizione, 20000);
}

// Types any characters; QTest knows ASCII only.
inline void batti(QWidget &dove, const QString &testo)
{
    for (const QChar c : testo) {
        for (const QEvent::Type tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent evento(tipo, c.toUpper().unicode(), Qt::NoModifier, c);
            QApplication::sendEvent(&dove, &evento);
        }
    }
}

// Another program at the front: a window that is none of ours.
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

// Waits in the background until a box of that kind is shown, and then does something with it.
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

// A window that writes down what happens to it.
class FinestraDiProva : public Finestra
{
public:
    explicit FinestraDiProva(const QString &nome = u"frmProva"_s) : Finestra(nome, u"Prova"_s)
    {
        resize(400, 300);
    }

    QStringList diario;
    // How many times it was brought before the others.
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
    void Initialize() override { diario += u"Initialize"_s; }
    void Load() override
    {
        diario += u"Load"_s;
        if (inLoad)
            inLoad();
    }
    void Activate() override { diario += u"Activate"_s; }
    void Disegno() override { diario += u"Disegno"_s; }
    void QueryUnload(bool &Cancel, Chiusura UnloadMode) override
    {
        diario += u"QueryUnload %1"_s.arg(static_cast<int>(UnloadMode));
        Cancel = rifiutaQuery;
    }
    void Unload(bool &Cancel) override
    {
        diario += u"Unload"_s;
        Cancel = rifiutaUnload;
    }
    void KeyDown(int KeyCode, int Shift) override
    {
        diario += u"KeyDown %1 %2"_s.arg(KeyCode).arg(Shift);
        if (inKeyDown)
            inKeyDown();
    }
    void KeyUp(int KeyCode, int Shift) override
    {
        diario += u"KeyUp %1 %2"_s.arg(KeyCode).arg(Shift);
    }
};
