// Enables or shows several controls with one call.
#pragma once

// Timers, buttons and images may stand in one list.
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
