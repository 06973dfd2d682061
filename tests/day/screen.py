"""The screen as its user meets it: windows and controls are found as a screen reader finds them
(AT-SPI), keys and clicks come from the X server (xdotool), pictures from import."""

import os
import subprocess
import time

import pyatspi

SCALA = float(os.environ.get("SCALE", "1"))
# The titles of the program's windows.
SPLASH = "Lumbra"
CONSOLE = "Lumbra Tessaro"
OPZIONI = "Opzioni"
SEQUOR = "Sequor"
VIGILIO = "Vigilio"
CONDIZIONE = "Imposta condizione di avvio"
CAMERA = "Videocamera"
RISORSE = "Esplora Risorse"

BARRA_TITOLO, CORNICE = 19, 1  # pixels around a window, for its picture
PAZIENZA = 60.0  # seconds that a condition may take before the day fails


def attendi(cosa, condizione):
    """Waits until the condition returns something true, and returns that."""
    esito = entro(PAZIENZA, condizione)
    if not esito:
        raise TimeoutError(f"Waited in vain: {cosa}")
    return esito


def entro(secondi, condizione):
    """The same, for so many seconds at most; returns the last result."""
    fine = time.monotonic() + secondi
    esito = None
    while time.monotonic() < fine:
        try:
            esito = condizione()
        except (RuntimeError, LookupError, NotImplementedError):  # a window that is just closing
            esito = None
        except Exception as errore:  # GLib's error of the accessibility bus
            if "atspi_error" not in repr(errore) and "GError" not in type(errore).__name__:
                raise
            esito = None
        if esito:
            return esito
        time.sleep(0.05)
    return esito


def xdotool(*argomenti):
    return subprocess.run(["xdotool", *map(str, argomenti)], check=True, text=True,
                          stdout=subprocess.PIPE).stdout.strip()


def area_di(oggetto):
    """The place of an object on the screen: left, top, width, height in pixels."""
    area = oggetto.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    # The program counts in its own, magnified pixels.
    return [round(lato * SCALA) for lato in (area.x, area.y, area.width, area.height)]


class Schermo:
    def __init__(self, programma, diario, cartella_foto):
        self.programma = programma
        self.file_diario = diario
        self.cartella_foto = cartella_foto
        self.stazione = 0

    # What is on the screen.

    def applicazione(self):
        # Asked for anew each time: what is cached is wrong as soon as windows come and go.
        for app in pyatspi.Registry.getDesktop(0):
            if app is not None and app.name == self.programma:
                app.clear_cache()
                return app
        return None

    def finestra(self, titolo):
        """The shown window whose title begins with this."""
        for finestra in self.applicazione() or []:
            if finestra.name.startswith(titolo) and mostrato(finestra):
                return finestra
        return None

    def controllo(self, titolo, ruolo, nome=None, quale=0):
        """Waits for a shown control of a window, by its role and its name; None is any."""

        def cerca():
            trovati = []
            raccogli(self.finestra(titolo), ruolo, nome, trovati)
            return trovati[quale] if len(trovati) > quale else None

        return attendi(f"{ruolo} {nome!r} in {titolo!r}", cerca)

    def testo(self, titolo, ruolo, nome=None, quale=0):
        return self.controllo(titolo, ruolo, nome, quale).name

    def in_primo_piano(self, titolo):
        def davanti():
            attiva = xdotool("getactivewindow", "getwindowname")
            return attiva.startswith(titolo)

        attendi(f"{titolo!r} in front", davanti)

    # What the user does.

    def vai(self, controllo, dx=0.5, dy=0.5):
        """Moves the pointer over a control, to these fractions of its width and height."""
        x, y, larghezza, altezza = area_di(controllo)
        xdotool("mousemove", x + int(larghezza * dx), y + int(altezza * dy))

    def clic(self, controllo, dx=0.5, dy=0.5, volte=1):
        self.vai(controllo, dx, dy)
        xdotool("click", "--repeat", volte, "--delay", 60, 1)

    def premi(self, titolo, nome):
        """Clicks what has this name: a button, a box, an option, a picture, a label."""
        self.clic(self.controllo(titolo, None, nome))

    def menu(self, titolo, *voci):
        """Chooses an entry of a menu, through its submenus."""
        for passo, voce in enumerate(voci):
            if passo:
                self.foto("menu")
            self.clic(self.controllo(titolo, "menu item", voce))

    def tieni(self, tasto, fatto, intanto=None):
        """Holds a key until something has happened. A release while the console waits for the robot
        leaves the key latched, and the next press only frees it: then it is pressed again."""
        for _ in range(10):
            xdotool("keydown", tasto)
            esito = entro(2, fatto)
            if esito and intanto:
                intanto()
            xdotool("keyup", tasto)
            if esito:
                return
        raise TimeoutError(f"Key {tasto} did nothing")

    def tasti(self, *tasti):
        xdotool("key", *tasti)

    def scrivi(self, testo):
        xdotool("type", "--delay", 15, testo)

    def file(self, titolo, nome):
        """Answers a file dialog with a name."""
        attendi(f"dialog {titolo!r}", lambda: self.finestra(titolo))
        self.in_primo_piano(titolo)
        self.foto("dialogo")
        self.tasti("ctrl+a")
        self.scrivi(nome)
        self.tasti("Return")
        attendi(f"dialog {titolo!r} gone", lambda: not self.finestra(titolo))

    def scegli_gradi(self, quanti):
        """Chooses a temperature in the condition dialog, in the combo box that shows 25."""
        trovate = []
        raccogli(self.finestra(CONDIZIONE), "combo box", None, trovate)
        self.clic(next(casella for casella in trovate if casella.name == "25"))
        self.controllo(CONDIZIONE, "list item", str(quanti))
        self.scrivi(str(quanti))
        self.tasti("Return")

    def foto(self, nome, *finestre):
        """Takes a picture of the screen and, for the manual, one of these windows (or titles) with
        their frames."""
        self.stazione += 1
        intera = f"{self.cartella_foto}/{self.stazione:02}-{nome}.png"
        subprocess.run(["import", "-window", "root", intera], check=True)
        if finestre:
            self.ritaglia(intera, nome,
                          [self.finestra(f) if isinstance(f, str) else f for f in finestre])

    def ritaglia(self, intera, nome, finestre):
        aree = [area_di(f) for f in finestre]
        senza_cornice = finestre[0].name == self.programma
        lato, sopra = (0, 0) if senza_cornice else (CORNICE, BARRA_TITOLO)
        sinistra = min(x for x, _, _, _ in aree) - lato
        alto = min(y for _, y, _, _ in aree) - sopra
        larghezza = max(x + w for x, _, w, _ in aree) + lato - sinistra
        altezza = max(y + h for _, y, _, h in aree) + lato - alto
        subprocess.run(["convert", intera, "-crop", f"{larghezza}x{altezza}+{sinistra}+{alto}",
                        "+repage", f"{self.cartella_foto}/manual/{nome}.png"], check=True)

    # What the robot did.

    def diario(self):
        with open(self.file_diario, encoding="utf-8") as file:
            return file.read().splitlines()

    def fatto(self, cosa):
        """How many times the robot's diary says so."""
        return sum(cosa in riga for riga in self.diario())

    def attendi_robot(self, cosa, volte=1):
        attendi(f"the robot: {cosa} ({volte})", lambda: self.fatto(cosa) >= volte)


def mostrato(oggetto):
    return oggetto.getState().contains(pyatspi.STATE_SHOWING)


def raccogli(oggetto, ruolo, nome, trovati):
    if oggetto is None:
        return
    oggetto.clear_cache()
    if ruolo in (None, oggetto.getRoleName()) and nome in (None, oggetto.name):
        area = oggetto.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        if mostrato(oggetto) and area.width > 0:
            trovati.append(oggetto)
    for figlio in oggetto:
        raccogli(figlio, ruolo, nome, trovati)
