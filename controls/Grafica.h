// What is looked at: labels, images, shapes, surfaces drawn by code.
#pragma once

#include "controls/Accessibile.h"
#include "controls/Controllo.h"

#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QStyleHints>
#include <optional>
#include <vector>

// Pictures by number, from 1; 0 is no picture.
class ListaImmagini
{
public:
    ListaImmagini() = default;
    explicit ListaImmagini(std::vector<QIcon> immagini) : m_immagini(std::move(immagini)) {}

    int ListCount() const { return static_cast<int>(m_immagini.size()); }
    // Errore::ProprietaNonValida for a number that is not there.
    QIcon immagine(int numero) const;

private:
    std::vector<QIcon> m_immagini;
};

// What becomes a button by its handlers, though it looks like a picture or a label.
class Azionabile
{
public:
    Azionabile() = default;
    virtual ~Azionabile() = default;
    Azionabile(const Azionabile &) = delete;
    Azionabile &operator=(const Azionabile &) = delete;

    // Whether anything happens when the mouse presses it.
    virtual bool prendeClick() const = 0;
    // What a click of the left button does.
    virtual void aziona() = 0;
    // A mark that the click sets and takes away; nothing where it is a plain button.
    virtual std::optional<bool> spunta() const { return {}; }
};

// Adds a Click on the left button's release inside, after MouseUp. The second press of a double
// click raises MouseDown, but no second Click: who clicks twice means it once.
template <class Base>
class Cliccabile : public Controllo<Base>, public Azionabile
{
public:
    explicit Cliccabile(const QString &nome, QWidget *dentro) : Controllo<Base>(nome, dentro)
    {
        dichiaraAzionabili();
    }
    Evento<> Click;

    // From now on the second press of a double click gives a Click of its own.
    void conDoppioClick() { m_conDoppio = true; }

    bool prendeClick() const override
    {
        return Click.collegato() || this->MouseDown.collegato() || this->DblClick.collegato();
    }
    void aziona() override
    {
        const double x = this->width() * this->unitaPerPixel / 2;
        const double y = this->height() * this->unitaPerPixel / 2;
        this->MouseDown(1, 0, x, y);
        this->MouseUp(1, 0, x, y);
        Click();
    }

protected:
    void mousePressEvent(QMouseEvent *evento) override
    {
        // A further button does not take the left one's click away.
        if (evento->button() == Qt::LeftButton) {
            m_premuto = m_conDoppio || !secondaPressione(*evento);
            m_quando = evento->timestamp();
            // Where it was pressed: a handler of the press may move it.
            m_dove = this->geometry();
        }
        Controllo<Base>::mousePressEvent(evento);
    }
    void mouseReleaseEvent(QMouseEvent *evento) override
    {
        const QPoint punto = this->mapToParent(evento->position().toPoint());
        const bool sopra = m_dove.contains(punto) || this->geometry().contains(punto);
        const bool sinistro = evento->button() == Qt::LeftButton;
        const bool click = sinistro && sopra && m_premuto;
        if (sinistro)
            m_premuto = false;
        Controllo<Base>::mouseReleaseEvent(evento);
        if (click)
            Click();
    }

private:
    // Of a double click that began here, not on a box or a list that was in between.
    bool secondaPressione(const QMouseEvent &evento) const
    {
        return evento.type() == QEvent::MouseButtonDblClick &&
               evento.timestamp() - m_quando <=
                   static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    }

    bool m_premuto = false;
    bool m_conDoppio = false;
    quint64 m_quando = 0;
    QRect m_dove;
};

class Etichetta : public Cliccabile<QLabel>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)

public:
    Etichetta(const QString &nome, QWidget *dentro, const QString &testo = {});

    QString Caption() const { return text(); }
    void setCaption(const QString &testo);
    void setForeColor(const QColor &colore);

    Evento<> Change;
};

// A picture, by number from a list or given as such, scaled to the control.
class Immagine : public Cliccabile<QWidget>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(int Picture READ Picture WRITE setPicture)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE setBorderStyle)

public:
    Immagine(const QString &nome, QWidget *dentro, const ListaImmagini *lista = nullptr,
             int numero = 0);
    Immagine(const QString &nome, QWidget *dentro, const QIcon &disegno);

    int Picture() const { return m_numero; }
    // The picture of that number in the list; Errore::ProprietaNonValida where there is none.
    void setPicture(int numero);
    void setDisegno(const QIcon &disegno);

    // 0 no border, 1 a plain one.
    int BorderStyle() const { return m_bordo; }
    void setBorderStyle(int bordo);

    // From now on the Tab key reaches it, it shows the focus, and the space bar clicks it; Enter
    // does, too, unless it has a mark.
    void conTastiera();
    // Its pictures are those of a check box; this one is the ticked one.
    void conSpunta(int spuntata) { m_spuntata = spuntata; }
    std::optional<bool> spunta() const override;

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void paintEvent(QPaintEvent *) override;

private:
    const ListaImmagini *m_lista = nullptr;
    QIcon m_disegno;
    int m_numero = 0;
    int m_bordo = 0;
    int m_spuntata = 0;
    bool m_conTastiera = false;
};

// A rectangle for looks; the mouse goes through it.
class Forma : public Controllo<QWidget>
{
    Q_OBJECT
    CONTROLLO

public:
    Forma(const QString &nome, QWidget *dentro);
    void setColori(const QColor &fondo, const QColor &bordo, int raggio = 0, int spessore = 1);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QColor m_fondo = Qt::transparent;
    QColor m_bordo = Qt::black;
    int m_raggio = 0;
    int m_spessore = 1;
};

// A picture box: what code draws on it stays until it is cleared.
class Superficie : public Cliccabile<QWidget>
{
    Q_OBJECT
    CONTROLLO

public:
    enum class Scala { Unita, Pixel };
    Superficie(const QString &nome, QWidget *dentro, Scala scala = Scala::Unita);

    // Drawn beneath everything, scaled to the control.
    void setSfondo(const QIcon &disegno);

    // Coordinates in logical pixels.
    void Riempi(const QRect &rettangolo, const QColor &colore);
    // A whole picture at once, its upper left corner there, in place of what was there.
    void Dipingi(QPoint angolo, const QImage &immagine);
    void Stampa(const QString &testo);
    void Pulisci();
    // What was drawn, in the pixels of the screen; it may be larger than the surface is now.
    const QImage &disegno() const { return m_disegno; }

    Evento<> Resize;

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;

private:
    void adatta();

    QIcon m_sfondo;
    QImage m_disegno;
};
