// What the robot sent and nobody has cut into telegrams yet.
#pragma once

#include "controls/Temporizzatore.h"

#include <QByteArray>
#include <functional>

// Grows at its end and shrinks from its beginning, both in time that does not depend on what lies
// between.
class Accumulatore
{
public:
    qsizetype lunghezza() const { return m_byte.size() - m_tagliati; }
    bool vuoto() const { return lunghezza() == 0; }
    // From 1 to lunghezza(), as the telegrams count their bytes; not checked.
    quint8 byte(qsizetype posto) const
    {
        return static_cast<quint8>(m_byte.at(m_tagliati + posto - 1));
    }
    // Up to that many bytes from the given one on.
    QByteArray parte(qsizetype posto, qsizetype quanti) const;
    QByteArray tutto() const { return m_byte.sliced(m_tagliati); }

    void aggiungi(const QByteArray &byte);
    // From the beginning; all of it where there are fewer.
    void taglia(qsizetype quanti);
    // Throws away what is here.
    void svuota();
    // Other bytes instead: what they begin with stays, if it is all that was here.
    void sostituisci(const QByteArray &byte);

    // Called after bytes were added.
    std::function<void()> cresciuto;
    // Called after bytes were thrown away uncut.
    std::function<void()> gettato;

private:
    QByteArray m_byte;
    qsizetype m_tagliati = 0;
};

// The receive timer, whose Tag text is the accumulator.
class TemporizzatoreIngresso : public Temporizzatore
{
    Q_OBJECT

public:
    using Temporizzatore::Temporizzatore;

    QString Tag() const override;
    void setTag(const QString &tag) override;

    Accumulatore accumulatore;
};
