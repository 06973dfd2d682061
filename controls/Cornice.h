// The frame with a caption, around the controls that lie in it: a card like the console's.
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
    // The caption begins that many logical pixels from the left edge.
    Cornice(const QString &nome, QWidget *dentro, const QString &testo = {}, int rientro = 12);

    QString Caption() const { return title(); }
    void setCaption(const QString &testo) { setTitle(testo); }
    // Of the caption alone; the window's text colour where none was set.
    QColor ForeColor() const;
    void setForeColor(const QColor &colore);

    // Where the caption stands; what lies in the frame keeps clear of it by its own layout.
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
