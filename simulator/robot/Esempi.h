#pragma once
#include <QString>

inline namespace tessaro_sim {
// Fills a folder with what a robot's storage may hold: texts, pictures, a sound. False where
// something could not be written.
bool creaEsempi(const QString &cartella);
} // namespace tessaro_sim
