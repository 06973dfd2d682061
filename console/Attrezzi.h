// The robot's small switches: position LED, tools, gripper, photo.
#pragma once

#include "console/Azione.h"

namespace Attrezzi {

enum class Lato { Sinistro, Destro };

Azione ledPosizione(bool acceso);
Azione tool(Lato lato, bool acceso);
// What panel 3 shows while the mouse is over a tool.
QString nomeTool(Lato lato);
// No text is shown after it, so nothing waits for the robot.
Azione pinza(bool apri);
Azione foto();

} // namespace Attrezzi
