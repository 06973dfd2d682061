#pragma once
#include <QByteArray>
#include <random>

inline namespace tessaro_sim {
// The faults that can be ordered; as it stands at first, none.
struct Guasti
{
    bool silenzio = false;          // the robot works but says nothing
    bool unSoloByte = false;        // the opening is answered with a single byte
    bool soloDopoSollecito = false; // the opening is answered only after the byte 1
    bool alluvione = false;         // telegrams without end, as fast as the line takes them
    int ritardo = 0;                // ms before an answer goes out

    double persi = 0.0;         // probability that a byte is dropped, 0 to 1
    double doppi = 0.0;         // probability that a byte comes twice
    double sporchi = 0.0;       // probability that a byte is changed
    double troncati = 0.0;      // probability that a telegram is cut short
    bool ancheInArrivo = false; // bytes from the console are dropped, doubled, garbled too

    int deltaLunghezza = 0; // added to the length field of storage blocks (45, 47)

    int statoApertura = -1;    // status with which folders and files refuse to open; -1 none
    int statoElenco = -1;      // status in place of a folder's next entry; -1 none
    int statoLettura = -1;     // status in place of a file's block; -1 none
    bool memoriaPiena = false; // a photo is not stored
};

// Applies the faults of the wire to bytes; the same seed gives the same faults.
class FiltroGuasti
{
public:
    explicit FiltroGuasti(quint32 seme = 1) : m_caso(seme) {}
    void semina(quint32 seme) { m_caso.seed(seme); }

    // One telegram on its way to the console: cut, then byte by byte dropped, doubled, garbled.
    QByteArray telegramma(const QByteArray &intero, const Guasti &guasti);
    // Bytes of the line alone, without cutting.
    QByteArray linea(const QByteArray &byte, const Guasti &guasti);

private:
    bool capita(double probabilita);
    std::mt19937 m_caso;
};
} // namespace tessaro_sim
