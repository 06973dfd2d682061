// The program's style and colours, the same on every desktop.
#pragma once

// Sets the style Fusion with light colours of our own. Some controls have fixed colours that are
// made for light windows, so the desktop's colours, which may be dark, are not used, not even if
// they change later. Text has a contrast of at least 4.5 : 1. Call it once, after creating the
// application and before its first window.
void impostaAspetto();
