// The property Tag of controls and windows: a text that is read and written from outside.
#pragma once

#include <QString>
#include <functional>

// A Tag is a plain text, or it shows the state that an owner class holds: then it is read from the
// owner, and a write goes to the owner, which ignores a text that it does not know.
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
    // Connects the Tag to an owner. Two empty functions disconnect it: it is a plain text again.
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
