// The base of all windows. A window is loaded when it is first shown and unloaded when it is
// closed; shown again, it is loaded again with its design values. The object itself stays.
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
    // Who closes the window: the user with its close button, or the program.
    enum class Chiusura { Utente = 0, Codice = 1 };

    explicit Finestra(const QString &nome, const QString &titolo);
    ~Finestra() override;
    Q_DISABLE_COPY_MOVE(Finestra)

    // A text for outside use; unloading does not clear it.
    QString Tag() const { return m_tag.testo(); }
    virtual void setTag(const QString &tag) { m_tag.imposta(tag); }
    // From now on the Tag is read from and written to the owner of a state (see TestoTag).
    void mostraTag(TestoTag::Lettura lettura, TestoTag::Scrittura scrittura)
    {
        m_tag.mostra(std::move(lettura), std::move(scrittura));
    }
    QString Caption() const { return windowTitle(); }
    void setCaption(const QString &testo) { setWindowTitle(testo); }

    bool Visible() const { return !isHidden(); }
    bool Caricata() const { return m_caricata; }

    // Loads the window if it is not loaded, shows it and calls Activate. If it is visible already,
    // it is only restored, if minimised, and raised.
    void Mostra();
    // Shows it as a modal dialog, without buttons to minimise and maximise, and returns when it is
    // hidden or unloaded. Returns at once if it is visible already.
    void MostraModale();
    // The visible window that is active or was active last; nullptr if none is visible. Needed
    // because a window system makes a window active only some time after a message box or a file
    // dialog has closed, and not while another program is in front.
    static Finestra *Ultima();
    // The parent for a message box or a dialog: the modal window if there is one, else the window
    // that was active last. The splash and a minimised window are taken only if no other is
    // visible, a hidden one only if all are hidden. nullptr only if the program has no window.
    static QWidget *Davanti();
    // Hides the window and keeps its state.
    void Nascondi() { hide(); }
    // Calls QueryUnload and Unload; if neither cancels, hides the window and resets it to its
    // design values.
    void Scarica();

    // 0 normal, 1 minimised, 2 maximised.
    int WindowState() const;
    void setWindowState(int stato);

    // Position and size on the screen, frame included, in layout units (15 to a logical pixel).
    double Left() const { return Unita::unita(frameGeometry().x()); }
    double Top() const { return Unita::unita(frameGeometry().y()); }
    double Width() const { return Unita::unita(frameGeometry().width()); }
    double Height() const { return Unita::unita(frameGeometry().height()); }
    void Move(double left, double top) { move(Unita::pixel(left), Unita::pixel(top)); }

    // Gives the window the title bar of a dialog, even if it is not shown modally.
    void setDialogo() { m_dialogo = true; }
    // Enter clicks the first button, unless another button has the focus; Esc clicks the second.
    void setPredefinito(Pulsante *pulsante);
    void setAnnulla(Pulsante *pulsante) { m_annulla = pulsante; }

protected:
    // Resets the window's controls to their design values; runs at unloading, without events.
    virtual void Disegno() {}

    // Before the first Load, once.
    virtual void Initialize() {}
    virtual void Load() {}
    // After each showing, and when the user comes from another window of the program; not after a
    // message box, a file dialog or another program.
    virtual void Activate() {}
    virtual void Resize() {}
    virtual void QueryUnload(bool &Cancel, Chiusura UnloadMode);
    virtual void Unload(bool &Cancel);
    virtual void MouseMove() {}

    // After setKeyPreview the window gets every key before the control that has the focus. A held
    // key repeats KeyDown; KeyUp comes once, when it is released.
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
