// The button that starts and stops the Vigilio. Its caption says what a click does, whoever has
// written it.
#pragma once

#include "controls/Pulsanti.h"

class PulsanteAvvia : public Pulsante
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)

public:
    enum class Azione { Avvia, Ferma };

    PulsanteAvvia(const QString &nome, QWidget *dentro);

    Azione azione() const { return m_azione; }
    // With the caption, the picture and the font that belong to it.
    void setAzione(Azione azione, bool corsivo);
    // Any text but "AVVIA" stops.
    void setCaption(const QString &testo);

private:
    Azione m_azione = Azione::Avvia;
};
