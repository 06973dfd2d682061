// Buttons, check boxes, option boxes and spin bars.
#pragma once

#include "controls/Controllo.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

class Pulsante : public Controllo<QPushButton>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)

public:
    Pulsante(const QString &nome, QWidget *dentro, const QString &testo);

    QString Caption() const { return text(); }
    void setCaption(const QString &testo) { setText(testo); }

    Evento<> Click;

protected:
    void mousePressEvent(QMouseEvent *evento) override;
};

// A check box. Value is 0 or 1.
class CasellaSpunta : public Controllo<QCheckBox>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(int Value READ Value WRITE setValue)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)

public:
    CasellaSpunta(const QString &nome, QWidget *dentro, const QString &testo);

    int Value() const { return isChecked() ? 1 : 0; }
    // Throws Errore::ProprietaNonValida if the value is not 0 or 1.
    void setValue(int valore);
    QString Caption() const { return text(); }
    void setCaption(const QString &testo) { setText(testo); }
    // Colour of text and mark, and of the ground, which is transparent if none is given.
    void setForeColor(const QColor &colore, const QColor &fondo = {});

    // The value has changed, by the user or by code.
    Evento<> Click;
};

// An option box; of those with the same parent only one is chosen.
class CasellaOpzione : public Controllo<QRadioButton>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(bool Value READ Value WRITE setValue)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)

public:
    CasellaOpzione(const QString &nome, QWidget *dentro, const QString &testo);

    bool Value() const { return isChecked(); }
    void setValue(bool valore);
    QColor BackColor() const { return m_fondo; }
    void setBackColor(const QColor &colore);

    // The box was chosen, by the user or by code.
    Evento<> Click;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QColor m_fondo;
};

class CasellaTesto;

// A small vertical spin bar; the upper arrow raises the number.
class SuGiu : public Controllo<QWidget>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(int Value READ Value WRITE setValue)
    Q_PROPERTY(int Min READ Min)
    Q_PROPERTY(int Max READ Max)

public:
    SuGiu(const QString &nome, QWidget *dentro, int minimo, int massimo, int valore);

    int Min() const { return m_minimo; }
    int Max() const { return m_massimo; }
    int Value() const { return m_valore; }
    // Throws Errore::ProprietaNonValida outside Min and Max.
    void setValue(int valore);

    // From now on the keys Up and Down in this text box change the value by 1. Each of them first
    // raises the box's LostFocus, whose handler brings the typed number into the bar.
    void conFrecce(CasellaTesto &casella);

    // The value has changed, by the user or by code.
    Evento<> Change;

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void passo(int di);

    int m_minimo;
    int m_massimo;
    int m_valore;
    CasellaTesto *m_casella = nullptr;
};
