// How a statement fails: one exception with a number, and the helpers that pass over it.
#pragma once

#include <QString>
#include <exception>
#include <utility>

// A failed statement: its number, and its description in Italian as the user reads it.
class Errore : public std::exception
{
public:
    enum Numero {
        ChiamataNonValida = 5,
        Overflow = 6,
        DivisionePerZero = 11,
        TipoNonCorrispondente = 13,
        FileNonAperto = 52,
        FileNonTrovato = 53,
        FileGiaAperto = 55,
        DiscoPieno = 61,
        FineDelFile = 62,
        AccessoNegato = 75,
        PercorsoNonTrovato = 76,
        ProprietaNonValida = 380,
        ImmagineNonValida = 481,
        PortaInesistente = 8002,
        PortaInUso = 8005,
        PORT_NOT_OPEN = 8018,
        LineaPersa = 8020,
        Annullato = 32755,
    };

    explicit Errore(int numero, QString descrizione = {});

    int numero() const { return m_numero; }
    QString descrizione() const { return m_descrizione; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    int m_numero;
    QString m_descrizione;
    QByteArray m_what;
};

// Runs one statement and passes over its failure; true when it did not fail.
template <class Istruzione>
bool passaErrori(Istruzione &&istruzione)
{
    try {
        std::forward<Istruzione>(istruzione)();
        return true;
    } catch (const Errore &) {
        return false;
    }
}

// A test in a routine that passes over errors: when the test itself fails, the work goes on with
// the statement behind it, as if it had been passed.
template <class Prova>
bool provaPassata(Prova &&prova)
{
    bool esito = true;
    passaErrori([&] { esito = std::forward<Prova>(prova)(); });
    return esito;
}
