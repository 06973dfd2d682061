// Whether it is the time of day at which a list is to start.
#pragma once

#include <QStringView>

// condizione begins with "hh:mm:ss", or with something else that is no time; adesso is "hh:mm:ss".
bool oraDiLista(QStringView condizione, QStringView adesso);
