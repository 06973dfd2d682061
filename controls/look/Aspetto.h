// The program's style and colours, the same on every desktop.
#pragma once

// Fusion, in light colours of our own: some colours of controls are fixed by the design and made
// for light windows, so a desktop's dark colours must not come between them. Text stands out from
// its ground by at least 4.5 : 1. After the application was made, before its first window; what a
// desktop changes later does not come in either.
void impostaAspetto();
