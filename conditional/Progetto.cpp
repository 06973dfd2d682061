#include "conditional/Progetto.h"

#include "base/Codifica.h"
#include "base/Errore.h"
#include "base/Numeri.h"

namespace {

const QByteArray aCapoScritto = "\r\n";

bool bianco(char c)
{
    return c == ' ' || c == '\t';
}

bool aCapo(char c)
{
    return c == '\r' || c == '\n';
}

// Walks through the file once, from field to field.
class Lettore
{
public:
    explicit Lettore(const QByteArray &file) : m_file(file) {}

    double conteggio()
    {
        saltaVuoti();
        return Numeri::Valore(fino([](char c) { return bianco(c) || aCapo(c) || c == ','; }));
    }

    Progetto::Lista lista()
    {
        saltaVuoti();
        Progetto::Lista lista;
        lista.nome = Codifica::daByte(campo(false));
        virgola();
        QByteArray segno = campo(false);
        virgola();
        lista.condizione = Codifica::daByte(campo(true));
        segno.replace('#', "");
        lista.selezionata = Numeri::Logico(QString::fromLatin1(segno));
        return lista;
    }

private:
    bool finito() const { return m_posto >= m_file.size(); }
    char corrente() const { return m_file.at(m_posto); }
    void saltaBianchi()
    {
        while (!finito() && bianco(corrente()))
            ++m_posto;
    }
    // Blanks and line ends; behind them something has to come.
    void saltaVuoti()
    {
        while (!finito() && (bianco(corrente()) || aCapo(corrente())))
            ++m_posto;
        if (finito())
            throw Errore(Errore::FineDelFile);
    }
    template <class Fine>
    QByteArray fino(Fine fine)
    {
        const qsizetype inizio = m_posto;
        while (!finito() && !fine(corrente()))
            ++m_posto;
        return m_file.sliced(inizio, m_posto - inizio);
    }
    void virgola()
    {
        saltaBianchi();
        if (finito())
            throw Errore(Errore::FineDelFile);
        if (corrente() != ',')
            throw Errore(Errore::TipoNonCorrispondente);
        ++m_posto;
        saltaBianchi();
    }
    // A text in quotes ends at the quote behind which the field ends, as quotes inside are not
    // marked; one without quotes ends at the comma, the last one of the record with its line.
    QByteArray campo(bool ultimo)
    {
        if (finito())
            throw Errore(Errore::FineDelFile);
        if (corrente() != '"')
            return fino([ultimo](char c) { return aCapo(c) || (!ultimo && c == ','); });
        const qsizetype inizio = m_posto + 1;
        qsizetype chiuso = -1;
        if (ultimo) {
            chiuso = chiusura(m_file.size(), [this] { return finito() || aCapo(corrente()); });
        } else {
            // A name may hold a quote with a comma behind it: the flag of its line tells more.
            chiuso = chiusura(fineRiga(), [this] { return prossimi(",#"); });
            if (chiuso < 0)
                chiuso = chiusura(m_file.size(), [this] { return prossimi(","); });
        }
        if (chiuso < 0)
            throw Errore(Errore::FineDelFile);
        m_posto = chiuso + 1;
        saltaBianchi();
        return m_file.sliced(inizio, chiuso - inizio);
    }
    qsizetype fineRiga() const
    {
        qsizetype fine = m_posto;
        while (fine < m_file.size() && !aCapo(m_file.at(fine)))
            ++fine;
        return fine;
    }
    // The place of the first quote, behind the one at hand and before an end, after which this
    // holds; -1 where there is none.
    template <class Dopo>
    qsizetype chiusura(qsizetype fine, Dopo dopo)
    {
        const qsizetype prima = m_posto;
        qsizetype trovata = -1;
        for (qsizetype q = m_file.indexOf('"', prima + 1); q >= 0 && q < fine && trovata < 0;
             q = m_file.indexOf('"', q + 1)) {
            m_posto = q + 1;
            saltaBianchi();
            if (dopo())
                trovata = q;
        }
        m_posto = prima;
        return trovata;
    }
    // Whether these characters come next, blanks between them left out.
    bool prossimi(QByteArrayView quali)
    {
        for (const char c : quali) {
            saltaBianchi();
            if (finito() || corrente() != c)
                return false;
            ++m_posto;
        }
        return true;
    }

    const QByteArray &m_file;
    qsizetype m_posto = 0;
};

QByteArray traVirgolette(const QString &testo)
{
    return '"' + Codifica::inByte(testo) + '"';
}

} // namespace

namespace Progetto {

QByteArray scritto(const QList<Lista> &liste)
{
    QByteArray byte = ' ' + QByteArray::number(liste.size()) + ' ' + aCapoScritto;
    for (const Lista &lista : liste)
        byte += traVirgolette(lista.nome) + ',' + (lista.selezionata ? "#TRUE#" : "#FALSE#") + ',' +
                traVirgolette(lista.condizione) + aCapoScritto;
    return byte;
}

void leggi(const QByteArray &file, const std::function<void(const Lista &)> &aggiungi)
{
    Lettore lettore(file);
    const qint32 quante = Numeri::Lungo(lettore.conteggio());
    for (qint32 i = 0; i < quante; ++i)
        aggiungi(lettore.lista());
}

} // namespace Progetto
