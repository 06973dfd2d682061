// The program's one exception type, and helpers that ignore it.
#pragma once

#include <QString>
#include <exception>
#include <utility>

// An error with a number and a description in Italian, as the user reads it. If the description is
// empty, the default text of the number is used.
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

// Runs one statement and ignores an Errore that it throws. Returns true if it threw none.
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

// A condition in a routine that ignores errors: if evaluating it throws an Errore, the result is
// true, so that the routine goes on with the next statement.
template <class Prova>
bool provaPassata(Prova &&prova)
{
    bool esito = true;
    passaErrori([&] { esito = std::forward<Prova>(prova)(); });
    return esito;
}
