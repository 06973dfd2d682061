// The drawings, by name and by their numbers in the lists of the windows (art/README.md).
#pragma once

#include <QIcon>
#include <QStringView>
#include <vector>

namespace Disegni {

// A drawing in all its scales, or the icon of a program in all its sizes. Returns a null icon if
// there is no drawing with this name. Needs the application object.
QIcon icona(QStringView nome);

// The lists of pictures of the windows. Picture n of a list is element n - 1.
std::vector<QIcon> listaImg();           // 12: arrows at rest, arrows pressed, option icons
std::vector<QIcon> imgPulsantiConsole(); // 8: the toolbar
std::vector<QIcon> imgPulsantiEditor();  // 12: six buttons, the same with the pointer over them
std::vector<QIcon> lstImgVigilio();      // 3: off, waiting, running
std::vector<QIcon> attesaIniziale();     // 6: the splash waits
std::vector<QIcon> lstImgAttesa();       // 8: the file browser waits
std::vector<QIcon> imgCaselle();         // 2: empty, ticked

} // namespace Disegni
