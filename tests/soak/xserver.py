"""The X server as the monkey meets it: the windows as the window manager knows them, real keys and
buttons, and pictures of a window even while another one covers it."""

import time

from Xlib import X, XK, Xatom, Xutil
from Xlib import error as errore_x
from Xlib.display import Display
from Xlib.ext import composite, xtest
from Xlib.protocol import event

NOSTRO = "lumbra"
ALTRO = "altro"


class Finestra:
    """A window of the program at one moment."""

    def __init__(self, x, numero, titolo, tipo, sopra, capo, area, scavalca):
        self.x, self.numero, self.titolo, self.tipo = x, numero, titolo, tipo
        self.sopra, self.capo = sopra, capo  # the parent that it names, and its client's leader
        self.area = area  # left, top, width, height on the screen
        self.scavalca = scavalca  # not under the window manager: a menu, a pop-up list, a tool tip

    @property
    def dialogo(self):
        return self.tipo == "_NET_WM_WINDOW_TYPE_DIALOG" and not self.scavalca

    def contiene(self, x, y):
        sinistra, alto, larghezza, altezza = self.area
        return sinistra <= x < sinistra + larghezza and alto <= y < alto + altezza


class ServitoreX:
    def __init__(self):
        self.d = Display()
        # A window that has just gone is no error.
        self.d.set_error_handler(lambda *_: None)
        self.radice = self.d.screen().root
        self.radice.composite_redirect_subwindows(composite.RedirectAutomatic)
        self.tenuti = set()  # keys and buttons that are down

    def atomo(self, nome):
        return self.d.intern_atom(nome)

    # Windows.

    def proprieta(self, finestra, nome, tipo=X.AnyPropertyType):
        try:
            valore = finestra.get_full_property(self.atomo(nome), tipo)
        except errore_x.XError:
            return None
        return valore.value if valore is not None else None

    def testo(self, finestra, nome):
        valore = self.proprieta(finestra, nome)
        if valore is None:
            return ""
        return valore.decode("utf-8", "replace") if isinstance(valore, bytes) else str(valore)

    def numero(self, finestra, nome):
        valore = self.proprieta(finestra, nome)
        return valore[0] if valore is not None and len(valore) else 0

    def classe(self, finestra):
        try:
            return (finestra.get_wm_class() or ("", ""))[0]
        except errore_x.XError:
            return ""

    def descrivi(self, finestra, scavalca):
        try:
            misura = finestra.get_geometry()
            posto = self.radice.translate_coords(finestra, 0, 0)
        except errore_x.XError:
            return None
        tipi = self.proprieta(finestra, "_NET_WM_WINDOW_TYPE", Xatom.ATOM)
        tipo = self.d.get_atom_name(tipi[0]) if tipi is not None and len(tipi) else ""
        return Finestra(self, finestra.id, self.testo(finestra, "_NET_WM_NAME"), tipo,
                        self.numero(finestra, "WM_TRANSIENT_FOR"),
                        self.numero(finestra, "WM_CLIENT_LEADER"),
                        (posto.x, posto.y, misura.width, misura.height), scavalca)

    def gestite(self):
        """The windows that the window manager knows, minimised ones too, the topmost last."""
        numeri = self.proprieta(self.radice, "_NET_CLIENT_LIST_STACKING")
        return [self.d.create_resource_object("window", n)
                for n in (numeri if numeri is not None else [])]

    def finestre(self):
        """The program's shown windows, menus and pop-up lists among them, the topmost last."""
        trovate = []
        for finestra in self.gestite():
            if self.classe(finestra) == NOSTRO and self.mostrata(finestra):
                trovate.append(self.descrivi(finestra, False))
        try:
            figli = self.radice.query_tree().children
        except errore_x.XError:
            figli = []
        for finestra in figli:
            try:
                stato = finestra.get_attributes()
            except errore_x.XError:
                continue
            if (stato.override_redirect and stato.map_state == X.IsViewable and
                    self.classe(finestra) == NOSTRO):
                trovate.append(self.descrivi(finestra, True))
        return [f for f in trovate if f]

    def del_programma(self):
        """The numbers of all windows of the program that the window manager knows."""
        return {f.id for f in self.gestite() if self.classe(f) == NOSTRO}

    def nostra(self, numero):
        """Whether a window of that number is the program's, shown or hidden."""
        try:
            return self.classe(self.d.create_resource_object("window", numero)) == NOSTRO
        except errore_x.XError:
            return False

    def mostrata(self, finestra):
        try:
            return finestra.get_attributes().map_state == X.IsViewable
        except errore_x.XError:
            return False

    def minimizzate(self):
        return [f for f in self.gestite()
                if self.classe(f) == NOSTRO and not self.mostrata(f)]

    def altra(self):
        for finestra in self.gestite():
            if self.classe(finestra) == ALTRO:
                return finestra
        return None

    def attiva(self):
        return self.numero(self.radice, "_NET_ACTIVE_WINDOW")

    def sotto_il_puntatore(self, x, y):
        """The program's window that a click there would reach; None for a frame or the desktop."""
        oggetto = self.radice
        try:
            while True:
                figlio = oggetto.translate_coords(self.radice, x, y).child
                if not figlio:
                    break
                oggetto = figlio
                if self.classe(oggetto) == NOSTRO:
                    return oggetto.id
        except (errore_x.XError, AttributeError):
            pass
        return None

    # Requests to the window manager.

    def manda(self, finestra, nome, *dati):
        messaggio = event.ClientMessage(window=finestra, client_type=self.atomo(nome),
                                        data=(32, [*dati, *[0] * (5 - len(dati))]))
        self.radice.send_event(
            messaggio, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self.d.sync()

    def oggetto(self, numero):
        return self.d.create_resource_object("window", numero)

    def attiva_finestra(self, numero):
        self.manda(self.oggetto(numero), "_NET_ACTIVE_WINDOW", 2, X.CurrentTime, 0)

    def chiudi(self, numero):
        self.manda(self.oggetto(numero), "_NET_CLOSE_WINDOW", X.CurrentTime, 2)

    def minimizza(self, numero):
        self.manda(self.oggetto(numero), "WM_CHANGE_STATE", Xutil.IconicState)

    def sposta(self, numero, x, y):
        # Flags: x and y are given, by a user.
        self.manda(self.oggetto(numero), "_NET_MOVERESIZE_WINDOW", 1 | 1 << 8 | 1 << 9 | 2 << 12,
                   x, y)

    # Keys and buttons.

    def codice(self, tasto):
        return self.d.keysym_to_keycode(XK.string_to_keysym(tasto))

    def premi(self, tasto):
        self.tenuti.add(("tasto", tasto))
        xtest.fake_input(self.d, X.KeyPress, self.codice(tasto))
        self.d.sync()

    def lascia(self, tasto):
        self.tenuti.discard(("tasto", tasto))
        xtest.fake_input(self.d, X.KeyRelease, self.codice(tasto))
        self.d.sync()

    def tocca(self, *tasti, tempo=0.03):
        """Presses the keys in this order and releases them in the other."""
        for tasto in tasti:
            self.premi(tasto)
        time.sleep(tempo)
        for tasto in reversed(tasti):
            self.lascia(tasto)

    def vai(self, x, y):
        xtest.fake_input(self.d, X.MotionNotify, x=x, y=y)
        self.d.sync()

    def giu(self, bottone):
        self.tenuti.add(("bottone", bottone))
        xtest.fake_input(self.d, X.ButtonPress, bottone)
        self.d.sync()

    def su(self, bottone):
        self.tenuti.discard(("bottone", bottone))
        xtest.fake_input(self.d, X.ButtonRelease, bottone)
        self.d.sync()

    def clic(self, bottone, tempo=0.03):
        self.giu(bottone)
        time.sleep(tempo)
        self.su(bottone)

    def lascia_tutto(self):
        for specie, quale in list(self.tenuti):
            (self.lascia if specie == "tasto" else self.su)(quale)

    def ripetizione(self, attiva):
        self.d.change_keyboard_control(
            auto_repeat_mode=X.AutoRepeatModeOn if attiva else X.AutoRepeatModeOff)
        self.d.sync()

    # Pictures.

    def immagine(self, numero, x, y, larghezza, altezza):
        """The picture of a part of a window, four bytes a pixel; None if it is not shown."""
        try:
            return self.oggetto(numero).get_image(x, y, larghezza, altezza, X.ZPixmap,
                                                  0xFFFFFFFF).data
        except (errore_x.XError, AttributeError):
            return None
