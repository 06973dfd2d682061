#include "vision/Ricerca.h"

#include "base/Numeri.h"
#include "vision/Fotogramma.h"

bool Ricerca::cerca(const Matrice &Modello, qint32 W, qint32 H)
{
    int c = 1;
    int r = 1;
    // The limits must fit into a byte and are computed when their loop starts. The loop body
    // changes a and b.
    const int ultimaRiga = Numeri::Byte(double{Fotogramma::Righe} - H);
    for (int a = 1; a <= ultimaRiga; ++a) {
        const int ultimaColonna = Numeri::Byte(double{Fotogramma::Colonne} - W);
        for (int b = 1; b <= ultimaColonna; ++b) {
            const qint32 t = Modello(c, r);
            const qint32 p = m_pixel(b, a);
            if (t - Tolleranza > p || p > t + Tolleranza) {
                c = 1;
                r = 1;
                if (m_tentativo) {
                    b = m_colonna;
                    a = m_riga;
                    m_tentativo = false;
                }
                continue;
            }
            if (!m_tentativo) {
                m_riga = a;
                m_colonna = b;
                m_tentativo = true;
            }
            if (c == W) {
                c = 0;
                ++r;
                b = m_colonna - 1;
                ++a;
                if (r > H)
                    return true;
            }
            ++c;
        }
    }
    return false;
}
