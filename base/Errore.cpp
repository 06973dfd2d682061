#include "base/Errore.h"

using namespace Qt::StringLiterals;

static QString descrizionePredefinita(int numero)
{
    switch (numero) {
    case Errore::ChiamataNonValida:
        return u"Chiamata di routine o argomento non validi"_s;
    case Errore::Overflow:
        return u"Numero troppo grande o troppo piccolo"_s;
    case Errore::DivisionePerZero:
        return u"Divisione per zero"_s;
    case Errore::TipoNonCorrispondente:
        return u"Tipo non corrispondente"_s;
    case Errore::FileNonAperto:
        return u"Nome o numero di file non valido"_s;
    case Errore::FileNonTrovato:
        return u"Impossibile trovare il file"_s;
    case Errore::FileGiaAperto:
        return u"Il file è già aperto"_s;
    case Errore::DiscoPieno:
        return u"Il disco è pieno"_s;
    case Errore::FineDelFile:
        return u"Il file finisce prima del previsto"_s;
    case Errore::AccessoNegato:
        return u"Accesso al file negato"_s;
    case Errore::PercorsoNonTrovato:
        return u"Impossibile trovare la cartella"_s;
    case Errore::ProprietaNonValida:
        return u"Valore non valido per questa proprietà"_s;
    case Errore::ImmagineNonValida:
        return u"Immagine non valida"_s;
    case Errore::PortaInesistente:
        return u"La porta non esiste o non è una porta seriale"_s;
    case Errore::PortaInUso:
        return u"La porta è già usata da un altro programma"_s;
    case Errore::PORT_NOT_OPEN:
        return u"La porta non è aperta"_s;
    case Errore::LineaPersa:
        return u"La linea non accetta dati"_s;
    case Errore::Annullato:
        return u"Operazione annullata"_s;
    default:
        return u"Errore imprevisto"_s;
    }
}

Errore::Errore(int numero, QString descrizione)
    : m_numero(numero),
      m_descrizione(descrizione.isEmpty() ? descrizionePredefinita(numero)
                                          : std::move(descrizione)),
      m_what(m_descrizione.toUtf8() + " (" + QByteArray::number(numero) + ')')
{
}
