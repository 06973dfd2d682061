// The bytes from the robot that were not cut into telegrams yet.
#pragma once

#include "controls/Temporizzatore.h"

#include <QByteArray>
#include <functional>

// Bytes are added at the end and cut off at the beginning. The time for both does not depend on the
// number of bytes held.
class Accumulatore
{
public:
    qsizetype lunghezza() const { return m_byte.size() - m_tagliati; }
    bool vuoto() const { return lunghezza() == 0; }
    // The byte at a position from 1 to lunghezza(); 1 is the telegram's type. Not checked.
    quint8 byte(qsizetype posto) const
    {
        return static_cast<quint8>(m_byte.at(m_tagliati + posto - 1));
    }
    // The bytes from this position on, at most quanti.
    QByteArray parte(qsizetype posto, qsizetype quanti) const;
    QByteArray tutto() const { return m_byte.sliced(m_tagliati); }

    void aggiungi(const QByteArray &byte);
    // Cuts bytes off at the beginning; all of them if there are fewer.
    void taglia(qsizetype quanti);
    // Drops all bytes and calls gettato.
    void svuota();
    // Replaces all bytes. If the new ones begin with the old ones, only the rest is added; else the
    // old ones are dropped as by svuota.
    void sostituisci(const QByteArray &byte);

    // Called after bytes were added.
    std::function<void()> cresciuto;
    // Called after bytes were dropped that were not cut into telegrams.
    std::function<void()> gettato;

private:
    QByteArray m_byte;
    qsizetype m_tagliati = 0;
};

// The receive timer; its Tag shows the accumulator as a text, one character for each byte.
class TemporizzatoreIngresso : public Temporizzatore
{
    Q_OBJECT

public:
    using Temporizzatore::Temporizzatore;

    QString Tag() const override;
    void setTag(const QString &tag) override;

    Accumulatore accumulatore;
};
