// The frame with a caption, around the controls that lie in it.
#pragma once

#include "Grafica.h"

#include <QGroupBox>

class Cornice : public Cliccabile<QGroupBox>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor)

public:
    Cornice(const QString &nome, QWidget *dentro, const QString &testo = {});

    QString Caption() const { return title(); }
    void setCaption(const QString &testo) { setTitle(testo); }
    // Of the caption alone; the window's text colour where none was set.
    QColor ForeColor() const;
    void setForeColor(const QColor &colore);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QColor m_colore;
};
