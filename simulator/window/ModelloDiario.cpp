#include "simulator/window/ModelloDiario.h"
#include <QColor>
#include <QLocale>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
constexpr int righeMassime = 4000;

QString inNumeri(const QByteArray &byte)
{
    constexpr qsizetype mostrati = 10;
    QStringList parti;
    for (const char c : byte.left(mostrati))
        parti << QString::number(static_cast<quint8>(c));
    if (byte.size() > mostrati)
        parti << u"…"_s;
    return parti.join(u' ');
}

QColor colore(VoceDiario::Tipo tipo)
{
    switch (tipo) {
    case VoceDiario::Tipo::NonCapito:
        return QColor(0xb4, 0x23, 0x18);
    case VoceDiario::Tipo::Sessione:
        return QColor(0x17, 0x5c, 0xb5);
    case VoceDiario::Tipo::Nota:
        return QColor(0x5b, 0x66, 0x74);
    default:
        return QColor(0x1c, 0x24, 0x2e);
    }
}
} // namespace

ModelloDiario::ModelloDiario(Diario &diario, QObject *parent)
    : QAbstractTableModel(parent), m_diario(diario)
{
    connect(&m_diario, &Diario::aggiunta, this, &ModelloDiario::aggiungi);
    connect(&m_diario, &Diario::svuotato, this, &ModelloDiario::ricarica);
    ricarica();
}

void ModelloDiario::nascondiRichieste(bool nascoste)
{
    m_senzaRichieste = nascoste;
    ricarica();
}

bool ModelloDiario::mostrata(const VoceDiario &voce) const
{
    return !m_senzaRichieste || !voce.testo.startsWith(u"Richiedi"_s);
}

void ModelloDiario::aggiungi(const VoceDiario &voce)
{
    if (!mostrata(voce))
        return;
    if (m_voci.size() >= righeMassime) {
        const int via = righeMassime / 10;
        beginRemoveRows({}, 0, via - 1);
        m_voci.remove(0, via);
        endRemoveRows();
    }
    const int riga = static_cast<int>(m_voci.size());
    beginInsertRows({}, riga, riga);
    m_voci.append(voce);
    endInsertRows();
}

void ModelloDiario::ricarica()
{
    beginResetModel();
    m_voci.clear();
    for (const VoceDiario &voce : m_diario.voci()) {
        if (mostrata(voce))
            m_voci.append(voce);
    }
    if (m_voci.size() > righeMassime)
        m_voci.remove(0, m_voci.size() - righeMassime);
    endResetModel();
}

int ModelloDiario::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_voci.size());
}

int ModelloDiario::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : Colonne;
}

QVariant ModelloDiario::data(const QModelIndex &indice, int ruolo) const
{
    if (!indice.isValid())
        return {};
    const VoceDiario &voce = m_voci.at(indice.row());
    if (ruolo == Qt::ForegroundRole)
        return colore(voce.tipo);
    if (ruolo == Qt::TextAlignmentRole && indice.column() == Tempo)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (ruolo == Qt::ToolTipRole)
        return voce.riga().simplified();
    if (ruolo != Qt::DisplayRole)
        return {};
    switch (indice.column()) {
    case Tempo:
        return QLocale().toString(static_cast<double>(voce.ms) / 1000.0, 'f', 2);
    case Byte:
        return inNumeri(voce.byte);
    default:
        return voce.nota.isEmpty() ? voce.testo : u"%1  (%2)"_s.arg(voce.testo, voce.nota);
    }
}

QVariant ModelloDiario::headerData(int sezione, Qt::Orientation verso, int ruolo) const
{
    if (verso != Qt::Horizontal)
        return {};
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant((sezione == Tempo ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (ruolo != Qt::DisplayRole)
        return {};
    return sezione == Tempo ? u"Secondi"_s : sezione == Byte ? u"Byte"_s : u"Voce"_s;
}
} // namespace tessaro_sim
