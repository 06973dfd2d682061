// The look for a name among the stored ones.
#pragma once

#include <QByteArray>

// Whether nome, not empty, begins what stands behind one of the quotation marks that the look lands
// on in s: behind the first one, and then always behind the next from the place where the stored
// name would end if it were as long as nome. So a name that begins a stored one counts as there,
// and a name may be missed.
bool nomeDoppio(const QByteArray &s, const QByteArray &nome);
