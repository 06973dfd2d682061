// Enables, disables, shows or hides several controls with one call.
#pragma once

// The controls may be of different types: timers, buttons, images.
template <class... Controlli>
void ImpostaAbilitati(bool valore, Controlli &...controlli)
{
    (controlli.setEnabled(valore), ...);
}

template <class... Controlli>
void ImpostaVisibili(bool valore, Controlli &...controlli)
{
    (controlli.setVisible(valore), ...);
}
