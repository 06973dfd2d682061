// What the editor needs of the windows above it and of the clock.
#pragma once

#include <QString>
#include <QTime>

class ControlloSeriale;

// The console.
class ConsoleEditor
{
public:
    // Layout units on the screen, the frame included.
    struct Posto
    {
        double Left;
        double Top;
        double Width;
    };

    virtual ~ConsoleEditor() = default;
    virtual ControlloSeriale &COM() = 0;
    virtual Posto posto() const = 0;
    // Writes into panel 3 of the status bar, at once.
    virtual void mostraMessaggio(const QString &testo) = 0;
    virtual void MostraInvio(const QString &testo) = 0;
    virtual void AggiungiMossa(const QString &riga) = 0;
};

// The runner: its three lists (File, lstFile, lstCondizioni) are parallel, rows count from 0. A
// row that is not there is Errore::ProprietaNonValida.
class VigilioEditor
{
public:
    virtual ~VigilioEditor() = default;
    // Shows the window in its normal state.
    virtual void mostra() = 0;
    virtual bool avviato() const = 0;
    virtual void Stoppa() = 0;

    virtual int ListCount() const = 0;
    // The file's name, without a folder.
    virtual QString File(int riga) const = 0;
    virtual QString condizione(int riga) const = 0;
    virtual bool Selected(int riga) const = 0;
    virtual void setSelected(int riga, bool valore) = 0;
    virtual void setListIndex(int riga) = 0;
    virtual void lstFile_DblClick() = 0;
    // Whether a list that a condition has started is to lose its check mark.
    virtual bool deselezionaEseguite() const = 0;
};

// The video window.
class CameraEditor
{
public:
    virtual ~CameraEditor() = default;
    virtual void mostra() = 0;
};

class Orologio
{
public:
    virtual ~Orologio() = default;
    virtual QTime adesso() const = 0;
};
