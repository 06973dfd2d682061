// The drawings, by name and by the numbers that the windows know them by.
#pragma once

#include <QIcon>
#include <QStringView>
#include <vector>

namespace Disegni {

// One drawing with all its scales, or a program's icon with all its sizes; a null icon where there
// is no drawing of that name. Needs the application object.
QIcon icona(QStringView nome);

// The image lists of the windows. Picture number n of a list is its element n - 1.
std::vector<QIcon> listaImg();           // 12: arrows at rest, arrows pressed, option icons
std::vector<QIcon> imgPulsantiConsole(); // 8: the toolbar
std::vector<QIcon> imgPulsantiEditor();  // 12: six buttons, the same with the pointer over them
std::vector<QIcon> lstImgVigilio();      // 3: off, waiting, running
std::vector<QIcon> attesaIniziale();     // 6: the splash waits
std::vector<QIcon> lstImgAttesa();       // 8: the file browser waits
std::vector<QIcon> imgCaselle();         // 2: empty, ticked

} // namespace Disegni
