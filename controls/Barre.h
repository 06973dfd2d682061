// The three bars of the console: toolbar, status bar, progress bar.
#pragma once

#include "controls/Grafica.h"

#include <QProgressBar>
#include <QToolButton>
#include <vector>

// One button of the toolbar, or a separator (image 0). Image is the number in the bar's list.
class PulsanteBarra : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(int Image READ Image WRITE setImage)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)

public:
    PulsanteBarra(const QString &nome, QWidget *dentro, const ListaImmagini *lista);

    int Image() const { return m_immagine; }
    void setImage(int numero);
    bool Enabled() const { return isEnabled(); }
    void setToolTipText(const QString &testo);

protected:
    // Enter presses it as the space bar does, which may have a meaning of its own in the window: it
    // is pressed while the key is, and clicked when the key is let go.
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

    void aggiungi(int immagine, const QString &suggerimento);
    void aggiungiSeparatore();
    // From 1; a button that is not there is Errore::ProprietaNonValida.
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
    // The panels' widths in logical pixels; 0 takes what is left.
    BarraDiStato(const QString &nome, QWidget *dentro, const std::vector<int> &larghezze);

    // From 1; a panel that is not there is Errore::ProprietaNonValida.
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
    // Errore::ProprietaNonValida outside the limits.
    void setValore(int valore);
};
