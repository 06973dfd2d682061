// The window of the design: loaded at its first showing, unloaded by closing, loaded anew with its
// design values by the next showing.
#pragma once

#include "controls/Controllo.h"
#include "controls/Pulsanti.h"

#include <QWidget>

class Finestra : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Visible READ Visible)
    Q_PROPERTY(int WindowState READ WindowState WRITE setWindowState)

public:
    // Who closes: the user with the window's own close control, or a statement of the program.
    enum class Chiusura { Utente = 0, Codice = 1 };

    explicit Finestra(const QString &nome, const QString &titolo);
    ~Finestra() override;
    Q_DISABLE_COPY_MOVE(Finestra)

    // The window's own text; it outlives unloading.
    QString Tag() const { return m_tag.testo(); }
    virtual void setTag(const QString &tag) { m_tag.imposta(tag); }
    // From now on the Tag shows what an owner holds.
    void mostraTag(TestoTag::Lettura lettura, TestoTag::Scrittura scrittura)
    {
        m_tag.mostra(std::move(lettura), std::move(scrittura));
    }
    QString Caption() const { return windowTitle(); }
    void setCaption(const QString &testo) { setWindowTitle(testo); }

    bool Visible() const { return !isHidden(); }
    bool Caricata() const { return m_caricata; }

    // Loads the window if it is not loaded, and shows it. If it is open already, it is restored if
    // minimised, and raised: nothing else.
    void Mostra();
    // The same as a dialog, without the buttons that minimise and maximise: returns when the window
    // is hidden or unloaded; at once if it is open already.
    void MostraModale();
    // The window of the program that is or was active last, of those that are visible: a window
    // system gives the activity back only some time after a message box or a file dialog has
    // closed, and not at all while another program is in front. nullptr if none is visible.
    static Finestra *Ultima();
    // What a message box or a dialog stands over: the modal window in front, else the window that
    // was active last, not a minimised one if there is another; one that is hidden only if all are.
    // nullptr only if the program has no window at all.
    static QWidget *Davanti();
    // Keeps the window's state.
    void Nascondi() { hide(); }
    // Asks QueryUnload and Unload; where neither refuses, hides the window and puts its design
    // values back.
    void Scarica();

    // 0 normal, 1 minimised, 2 maximised.
    int WindowState() const;
    void setWindowState(int stato);

    // The frame's place on the screen, in layout units.
    double Left() const { return Unita::unita(frameGeometry().x()); }
    double Top() const { return Unita::unita(frameGeometry().y()); }
    double Width() const { return Unita::unita(frameGeometry().width()); }
    double Height() const { return Unita::unita(frameGeometry().height()); }
    void Move(double left, double top) { move(Unita::pixel(left), Unita::pixel(top)); }

    // A dialog, also if it is not shown modally.
    void setDialogo() { m_dialogo = true; }
    // Enter clicks this button unless another button has the focus, Esc clicks the other one.
    void setPredefinito(Pulsante *pulsante);
    void setAnnulla(Pulsante *pulsante) { m_annulla = pulsante; }

protected:
    // Puts the design values of the window's controls back.
    virtual void Disegno() {}

    virtual void Initialize() {}
    virtual void Load() {}
    // At each showing, and when the user comes here from another window of the program.
    virtual void Activate() {}
    virtual void Resize() {}
    virtual void QueryUnload(bool &Cancel, Chiusura UnloadMode);
    virtual void Unload(bool &Cancel);
    virtual void MouseMove() {}

    // Every key before the control that has the focus, once setKeyPreview was called. A held key
    // repeats KeyDown and gives one KeyUp, at its end.
    virtual void KeyDown(int KeyCode, int Shift);
    virtual void KeyUp(int KeyCode, int Shift);
    void setKeyPreview();

    bool event(QEvent *evento) override;
    bool eventFilter(QObject *oggetto, QEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;
    void changeEvent(QEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    bool carica();
    void scarica(Chiusura come);
    void attiva();
    void riportaDavanti();
    void impostaPulsanti();

    TestoTag m_tag;
    QString m_titolo;
    QSize m_misura;
    Pulsante *m_predefinito = nullptr;
    Pulsante *m_annulla = nullptr;
    bool m_inizializzata = false;
    bool m_caricata = false;
    bool m_dialogo = false;
};
