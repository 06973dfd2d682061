// A frame with a caption around a group of controls, drawn as a card with rounded corners.
#pragma once

#include "controls/Grafica.h"

#include <QGroupBox>

class Cornice : public Cliccabile<QGroupBox>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor)

public:
    // rientro: distance of the caption from the left edge, in logical pixels.
    Cornice(const QString &nome, QWidget *dentro, const QString &testo = {}, int rientro = 12);

    QString Caption() const { return title(); }
    void setCaption(const QString &testo) { setTitle(testo); }
    // Colour of the caption only; the palette's text colour if none was set.
    QColor ForeColor() const;
    void setForeColor(const QColor &colore);

    // The rectangle of the caption, in logical pixels. The controls in the frame must be laid out
    // around it.
    QRect titolo() const;

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *evento) override;
    void changeEvent(QEvent *evento) override;

private:
    QFont carattere() const;

    QColor m_colore;
    int m_rientro;
};
