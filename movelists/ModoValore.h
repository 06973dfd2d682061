// The four modes of the value dialog.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

struct ModoValore
{
    QString titolo;
    int limite = 0;
    QString etichetta;
    QStringList voci;
};

namespace Modi {

// "Pausa", "Frase", "Suono" or "Ripeti", compared exactly; nothing for another name.
std::optional<ModoValore> cerca(const QString &nome);

// The line that a mode's answer becomes: what stands in the number's box, and the row and the text
// that are selected in the list of words.
QString riga(const QString &nome, const QString &valore, int voce, const QString &testoVoce);

} // namespace Modi
