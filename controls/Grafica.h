// Controls that show something: labels, pictures, shapes, and surfaces drawn by code.
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

// Pictures by number, counted from 1.
class ListaImmagini
{
public:
    ListaImmagini() = default;
    explicit ListaImmagini(std::vector<QIcon> immagini) : m_immagini(std::move(immagini)) {}

    int ListCount() const { return static_cast<int>(m_immagini.size()); }
    // Throws Errore::ProprietaNonValida if there is no picture with this number.
    QIcon immagine(int numero) const;

private:
    std::vector<QIcon> m_immagini;
};

// A picture or a label that acts as a button if its window has connected a handler.
class Azionabile
{
public:
    Azionabile() = default;
    virtual ~Azionabile() = default;
    Azionabile(const Azionabile &) = delete;
    Azionabile &operator=(const Azionabile &) = delete;

    // True if a mouse click has an effect.
    virtual bool prendeClick() const = 0;
    // Does what a click of the left button in the middle of the control does.
    virtual void aziona() = 0;
    // The state of its check mark; no value if it has none.
    virtual std::optional<bool> spunta() const { return {}; }
};

// Adds a Click when the left button is released inside the control, after MouseUp. The second press
// of a double click raises MouseDown but no second Click: a user who double-clicks means one click.
template <class Base>
class Cliccabile : public Controllo<Base>, public Azionabile
{
public:
    explicit Cliccabile(const QString &nome, QWidget *dentro) : Controllo<Base>(nome, dentro)
    {
        dichiaraAzionabili();
    }
    Evento<> Click;

    // From now on the second press of a double click also raises Click.
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
        // Pressing another button meanwhile does not cancel the click.
        if (evento->button() == Qt::LeftButton) {
            m_premuto = m_conDoppio || !secondaPressione(*evento);
            m_quando = evento->timestamp();
            // Kept because the handler of MouseDown may move the control.
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
    // True for the second press of a double click whose first press was here too, not on a message
    // box or a list that has closed since.
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

    // setCaption has changed the text.
    Evento<> Change;
};

// A picture, given directly or by its number in a list, scaled to the size of the control.
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
    // Shows the picture with this number in the list, or none if it is 0. Throws
    // Errore::ProprietaNonValida if the list has no such picture.
    void setPicture(int numero);
    // Shows a picture that is not in the list; Picture becomes 0.
    void setDisegno(const QIcon &disegno);

    // 0 no border, 1 a line. Throws Errore::ProprietaNonValida for any other value.
    int BorderStyle() const { return m_bordo; }
    void setBorderStyle(int bordo);

    // From now on the Tab key reaches the picture, it shows the focus, and the space bar clicks it.
    // Enter clicks it as well, unless it is a check box.
    void conTastiera();
    // Makes the picture a check box, ticked while Picture is this number.
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

// A coloured rectangle. The mouse passes through it to what lies below.
class Forma : public Controllo<QWidget>
{
    Q_OBJECT
    CONTROLLO

public:
    Forma(const QString &nome, QWidget *dentro);
    // Radius of the corners and width of the border in logical pixels; no border if it is 0.
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

    // Background picture, scaled to the size of the control.
    void setSfondo(const QIcon &disegno);

    // The drawing functions take logical pixels, whatever the surface's unit for the mouse is.
    void Riempi(const QRect &rettangolo, const QColor &colore);
    // Draws a picture with its upper left corner at this point; its transparent pixels erase what
    // was there.
    void Dipingi(QPoint angolo, const QImage &immagine);
    // Writes a text at the upper left corner.
    void Stampa(const QString &testo);
    // Clears everything that was drawn; the background stays.
    void Pulisci();
    // What was drawn, in pixels of the screen. It may be larger than the surface: it never shrinks.
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
