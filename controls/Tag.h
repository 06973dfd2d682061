// The text that a control or a window carries for whoever looks at it from outside.
#pragma once

#include <QString>
#include <functional>

// By itself it keeps what was written. If it shows the state of an owner, it is read from the
// owner, and a write goes to the owner, which takes from it what it understands.
class TestoTag
{
public:
    using Lettura = std::function<QString()>;
    using Scrittura = std::function<void(const QString &)>;

    QString testo() const { return m_lettura ? m_lettura() : m_testo; }
    void imposta(const QString &testo)
    {
        if (m_scrittura)
            m_scrittura(testo);
        else
            m_testo = testo;
    }
    // Both, or neither: an owner that goes gives the text back.
    void mostra(Lettura lettura, Scrittura scrittura)
    {
        m_lettura = std::move(lettura);
        m_scrittura = std::move(scrittura);
    }

private:
    QString m_testo;
    Lettura m_lettura;
    Scrittura m_scrittura;
};
