// What the tests of this folder share: waits on conditions, error numbers, windows that keep a
// journal, pseudo-terminals, and a hand that answers message boxes.
#pragma once

#include "Errore.h"
#include "Finestra.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <gmock/gmock.h>
#include <ostream>
#include <unistd.h>

using namespace Qt::StringLiterals;

inline void PrintTo(const QString &testo, std::ostream *dove)
{
    *dove << '"' << testo.toStdString() << '"';
}
inline void PrintTo(const QByteArray &byte, std::ostream *dove)
{
    *dove << byte.toPercentEncoding().toStdString();
}

// The number of the error that the statement fails with, 0 where it does not fail.
inline int erroreDi(const std::function<void()> &istruzione)
{
    try {
        istruzione();
        return 0;
    } catch (const Errore &errore) {
        return errore.numero();
    }
}

inline bool attendi(const std::function<bool()> &condizione)
{
    return QTest::qWaitFor(condizione, 20000);
}

// Another program comes to the front.
inline void altroProgramma()
{
    QApplication::setActiveWindow(nullptr);
}

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

// The far end of a serial line.
class PseudoTerminale
{
public:
    PseudoTerminale() : m_capo(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        if (::grantpt(m_capo) != 0 || ::unlockpt(m_capo) != 0)
            qFatal("no pseudo-terminal");
        m_percorso = QString::fromLocal8Bit(::ptsname(m_capo));
    }
    ~PseudoTerminale() { chiudi(); }
    Q_DISABLE_COPY_MOVE(PseudoTerminale)

    const QString &percorso() const { return m_percorso; }
    void chiudi()
    {
        if (m_capo >= 0)
            ::close(m_capo);
        m_capo = -1;
    }
    void scrivi(const QByteArray &byte)
    {
        ASSERT_EQ(::write(m_capo, byte.constData(), static_cast<size_t>(byte.size())), byte.size());
    }
    // What has come up to now.
    QByteArray leggi()
    {
        QByteArray letti(65536, Qt::Uninitialized);
        const ssize_t quanti = ::read(m_capo, letti.data(), static_cast<size_t>(letti.size()));
        letti.truncate(quanti > 0 ? quanti : 0);
        return letti;
    }
    // Waits until at least so many bytes have come.
    QByteArray leggiAlmeno(qsizetype quanti)
    {
        QByteArray letti;
        attendi([&] {
            letti += leggi();
            return letti.size() >= quanti;
        });
        return letti;
    }

private:
    int m_capo;
    QString m_percorso;
};
