// The three bars of the console: toolbar, status bar, progress bar.
#pragma once

#include "controls/Grafica.h"

#include <QProgressBar>
#include <QToolButton>
#include <vector>

// One button of the toolbar, or a separator (Image 0). Image is a number in the bar's list of
// pictures.
class PulsanteBarra : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(int Image READ Image WRITE setImage)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)

public:
    PulsanteBarra(const QString &nome, QWidget *dentro, const ListaImmagini *lista);

    int Image() const { return m_immagine; }
    // Throws Errore::ProprietaNonValida if the list has no such picture.
    void setImage(int numero);
    bool Enabled() const { return isEnabled(); }
    // Sets the tool tip and the accessible name.
    void setToolTipText(const QString &testo);

protected:
    // Enter works like the space bar: the button is down while the key is held, and clicked when it
    // is released. The window may use the space bar for something else.
    void keyPressEvent(QKeyEvent *evento) override;
    void keyReleaseEvent(QKeyEvent *evento) override;

private:
    const ListaImmagini *m_lista;
    int m_immagine = 0;
};

class BarraDiPulsanti : public Controllo<QWidget>
{
    Q_OBJECT
    CONTROLLO

public:
    BarraDiPulsanti(const QString &nome, QWidget *dentro, const ListaImmagini *lista);

    // Adds a button at the right end.
    void aggiungi(int immagine, const QString &suggerimento);
    // Adds a separator; it counts as a button in Buttons().
    void aggiungiSeparatore();
    // Counted from 1. Throws Errore::ProprietaNonValida if there is no such button.
    PulsanteBarra &Buttons(int numero);

    Evento<PulsanteBarra &> ButtonClick;

private:
    PulsanteBarra *nuovo();

    const ListaImmagini *m_lista;
    std::vector<PulsanteBarra *> m_pulsanti;
};

class BarraDiStato : public Controllo<QWidget>
{
    Q_OBJECT
    CONTROLLO

public:
    // One width for each panel, in logical pixels; a panel of width 0 takes the remaining room.
    BarraDiStato(const QString &nome, QWidget *dentro, const std::vector<int> &larghezze);

    // Text of a panel, counted from 1. Both throw Errore::ProprietaNonValida if there is no such
    // panel.
    QString Panels(int numero) const { return pannello(numero).text(); }
    void setPanels(int numero, const QString &testo) { pannello(numero).setText(testo); }

private:
    QLabel &pannello(int numero) const;

    std::vector<QLabel *> m_pannelli;
};

class BarraDiCaricamento : public Controllo<QProgressBar>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(int Value READ Value WRITE setValore)
    Q_PROPERTY(int Min READ Min)
    Q_PROPERTY(int Max READ Max)

public:
    BarraDiCaricamento(const QString &nome, QWidget *dentro, int minimo, int massimo);

    int Min() const { return minimum(); }
    int Max() const { return maximum(); }
    int Value() const { return value(); }
    // Throws Errore::ProprietaNonValida outside Min and Max.
    void setValore(int valore);
};
