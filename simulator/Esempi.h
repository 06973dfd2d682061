#pragma once
#include <QString>

/// Fills a folder with what a robot's storage may hold: texts, pictures, a sound. False where
/// something could not be written.
bool creaEsempi(const QString &cartella);
