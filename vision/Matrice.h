// A table of numbers by column and row: the form in which the vision windows keep pictures.
#pragma once

#include "base/Errore.h"

#include <vector>

// 32-bit numbers, all 0 at first. Columns and rows count from 1.
class Matrice
{
public:
    static constexpr int FuoriIntervallo = 9;

    Matrice(int colonne, int righe)
        : m_colonne(colonne),
          m_righe(righe),
          m_valori(static_cast<size_t>(colonne) * static_cast<size_t>(righe))
    {
    }

    int colonne() const { return m_colonne; }
    int righe() const { return m_righe; }

    // Throws an Errore with the number FuoriIntervallo if the place is outside the table.
    qint32 operator()(int colonna, int riga) const { return m_valori[posto(colonna, riga)]; }
    qint32 &operator()(int colonna, int riga) { return m_valori[posto(colonna, riga)]; }

private:
    size_t posto(int colonna, int riga) const
    {
        if (colonna < 1 || colonna > m_colonne || riga < 1 || riga > m_righe)
            fallisci();
        return static_cast<size_t>(riga - 1) * static_cast<size_t>(m_colonne) +
               static_cast<size_t>(colonna - 1);
    }
    [[noreturn]] static void fallisci()
    {
        throw Errore(FuoriIntervallo, QStringLiteral("Indice fuori dall'intervallo"));
    }

    int m_colonne;
    int m_righe;
    std::vector<qint32> m_valori;
};
