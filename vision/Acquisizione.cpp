#include "vision/Acquisizione.h"

void Acquisizione::inizia(const Matrice &pixel, quint8 left, quint8 top, quint8 width,
                          quint8 height)
{
    m_pixel = pixel;
    m_colonna = 1;
    m_riga = 1;
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    m_finita = false;
}

bool Acquisizione::prosegui(const std::function<void(int, int, qint32)> &copiato)
{
    for (int righe = 0; !m_finita && righe < 2; ++righe) {
        do {
            const qint32 colore = m_pixel(m_colonna + m_left, m_riga + m_top);
            copiato(m_colonna, m_riga, colore);
            ++m_colonna;
        } while (m_colonna <= m_width);
        m_colonna = 1;
        ++m_riga;
        m_finita = m_riga > m_height;
    }
    return m_finita;
}
