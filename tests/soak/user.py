"""The user of the soak: finds controls, clicks, waits, and answers each message box, expected or
not."""

import subprocess
import time

import pyatspi

from screen import CONSOLE, Schermo, area_di, mostrato, raccogli, xdotool

PAZIENZA = 90.0
DOPPIO_CLIC = 0.6  # seconds after which two clicks are no double click; the desktop's are 0.4


class Guaio(Exception):
    """Something did not happen, or happened wrongly."""


class Utente(Schermo):
    def __init__(self, cartella_foto, dettagli):
        super().__init__("Lumbra", None, cartella_foto)
        self.dettagli = dettagli  # a function that writes a line into the log
        self.processo = None
        self.ascolto = None
        self.avvisi_ammessi = ()
        self.avvisi = []
        self.strani = []
        self.posti = {}
        self.azioni = 0
        self.ultimo_clic = None, 0.0

    # Waiting. During every wait the program must run, and its boxes are answered.

    def prova(self, condizione):
        try:
            return condizione()
        except (RuntimeError, LookupError, NotImplementedError, AttributeError, TypeError):
            return None  # a window that is just closing
        except subprocess.CalledProcessError:
            return None
        except Exception as errore:  # GLib's error of the accessibility bus
            if "atspi_error" in repr(errore) or "GError" in type(errore).__name__:
                return None
            raise

    def entro(self, secondi, condizione, pausa=0.05):
        fine = time.monotonic() + secondi
        guardato = time.monotonic()
        while True:
            if self.processo and self.processo.poll() is not None:
                raise Guaio(f"the program has ended: {self.processo.returncode}")
            if self.ascolto:
                self.ascolto.aggiorna()
            esito = self.prova(condizione)
            if esito or time.monotonic() > fine:
                return esito
            if time.monotonic() - guardato > 1:
                self.rispondi_agli_avvisi()
                guardato = time.monotonic()
            time.sleep(pausa)

    def attendi(self, cosa, condizione, secondi=PAZIENZA):
        esito = self.entro(secondi, condizione)
        if not esito:
            raise Guaio(f"waited in vain: {cosa}")
        return esito

    # Message boxes.

    def riquadro(self):
        for finestra in self.applicazione() or []:
            if finestra.getRoleName() == "alert" and mostrato(finestra):
                return finestra
        return None

    @staticmethod
    def testo_riquadro(riquadro):
        trovati = []
        raccogli(riquadro, "label", None, trovati)
        return " ".join(t.name for t in trovati if t.name)

    def premi_nel_riquadro(self, riquadro, nomi):
        """Presses the first of these buttons that the box has, and returns its name."""
        trovati = []
        raccogli(riquadro, "push button", None, trovati)
        per_nome = {p.name.replace("&", ""): p for p in trovati}
        for nome in nomi:
            if nome in per_nome:
                self.clic(per_nome[nome])
                return nome
        raise Guaio(f"a box without {nomi}: {sorted(per_nome)}")

    def rispondi_agli_avvisi(self):
        """Records and answers the box that is open, if there is one."""
        riquadro = self.prova(self.riquadro)
        if not riquadro:
            return False
        testo = self.prova(lambda: self.testo_riquadro(riquadro))
        if not testo:
            return False
        premuto = self.premi_nel_riquadro(riquadro, ("OK", "No"))
        ammesso = any(t in testo for t in self.avvisi_ammessi)
        self.avvisi.append(testo)
        self.dettagli(f"  box {'' if ammesso else 'NOT EXPECTED '}[{testo}] -> {premuto}")
        if not ammesso:
            self.strani.append(testo)
        self.entro_senza_avvisi(10, lambda: not self.stesso_riquadro(testo))
        return True

    def stesso_riquadro(self, testo):
        r = self.riquadro()
        return r is not None and testo in self.testo_riquadro(r)

    def entro_senza_avvisi(self, secondi, condizione):
        fine = time.monotonic() + secondi
        while time.monotonic() < fine:
            if self.prova(condizione):
                return True
            time.sleep(0.05)
        return False

    def domanda(self, testo, *risposte):
        """Waits for the box with this text, and presses one of these buttons."""
        fine = time.monotonic() + PAZIENZA
        while time.monotonic() < fine:
            riquadro = self.prova(self.riquadro)
            if riquadro and testo in (self.prova(lambda: self.testo_riquadro(riquadro)) or ""):
                premuto = self.premi_nel_riquadro(riquadro, risposte)
                self.avvisi.append(testo)
                self.dettagli(f"  box [{testo}] -> {premuto}")
                # A click may miss a box that the window manager is just placing.
                while not self.entro_senza_avvisi(5, lambda: not self.stesso_riquadro(testo)):
                    if time.monotonic() > fine:
                        raise Guaio(f"the box stays: {testo}")
                    self.prova(lambda: self.premi_nel_riquadro(self.riquadro(), risposte))
                return
            if self.processo.poll() is not None:
                raise Guaio(f"the program has ended: {self.processo.returncode}")
            if riquadro:
                self.rispondi_agli_avvisi()
            time.sleep(0.05)
        raise Guaio(f"no box: {testo}")

    # Windows and controls.

    def controllo(self, titolo, ruolo, nome=None, quale=0):
        def cerca():
            trovati = []
            raccogli(self.finestra(titolo), ruolo, nome, trovati)
            return trovati[quale] if len(trovati) > quale else None

        return self.attendi(f"{ruolo} {nome!r} in {titolo!r}", cerca)

    def in_primo_piano(self, titolo):
        self.attendi(f"{titolo!r} in front", lambda: xdotool(
            "getactivewindow", "getwindowname").startswith(titolo))

    def numero_finestra(self, titolo):
        """The X server's number of a window."""
        numeri = self.prova(lambda: xdotool("search", "--onlyvisible", "--name", f"^{titolo}"))
        return numeri.splitlines()[-1] if numeri else None

    def davanti(self, titolo):
        def fatto():
            if xdotool("getactivewindow", "getwindowname").startswith(titolo):
                return True
            xdotool("windowactivate", self.numero_finestra(titolo))
            return None

        self.entro(5, fatto, 0.1)
        self.in_primo_piano(titolo)

    def mappa(self, titolo):
        """The places of a window's named controls, from its upper left corner; asked for once."""
        if titolo not in self.posti:
            trovati = []
            finestra = self.attendi(titolo, lambda: self.finestra(titolo))
            raccogli(finestra, None, None, trovati)
            origine = finestra.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            posti = {}
            for oggetto in trovati:
                area = oggetto.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
                if oggetto.name:
                    posti.setdefault(oggetto.name, (area.x + area.width // 2 - origine.x,
                                                    area.y + area.height // 2 - origine.y))
            self.posti[titolo] = posti
        return self.posti[titolo]

    def clic_console(self, nome, bottone=1):
        """A click on a control of the console, whose controls keep their places."""
        posti = self.mappa(CONSOLE)
        if nome not in posti:
            raise Guaio(f"the console has no {nome!r}")
        self.davanti(CONSOLE)
        x, y = posti[nome]
        xdotool("mousemove", "--window", self.numero_finestra(CONSOLE), x, y)
        self.attendi_il_prossimo((nome, bottone))
        xdotool("click", bottone)

    def clic(self, controllo, dx=0.5, dy=0.5, volte=1):
        self.attendi_il_prossimo(area_di(controllo))
        super().clic(controllo, dx, dy, volte)

    def attendi_il_prossimo(self, dove):
        """Two clicks at one place must not become a double click: its second half does nothing on
        most pictures."""
        ultimo, quando = self.ultimo_clic
        if ultimo == dove:
            time.sleep(max(0.0, quando + DOPPIO_CLIC - time.monotonic()))
        self.ultimo_clic = dove, time.monotonic()

    def apri(self, strumento, titolo):
        self.clic_console(strumento)
        self.attendi(f"window {titolo!r}", lambda: self.finestra(titolo))
        self.in_primo_piano(titolo)
        self.azioni += 1

    def chiudi(self, titolo, domanda=None, risposta="No"):
        self.davanti(titolo)
        self.tasti("alt+F4")
        if domanda:
            self.domanda(domanda, risposta)
        self.attendi(f"{titolo!r} gone", lambda: not self.finestra(titolo))

    def chiusura(self, titolo, domande):
        """Closes a window that may ask one of these questions first."""
        self.davanti(titolo)
        self.tasti("alt+F4")
        prima = self.avvisi_ammessi
        self.avvisi_ammessi = (*prima, *domande)
        self.attendi(f"{titolo!r} gone", lambda: not self.finestra(titolo))
        self.avvisi_ammessi = prima

    def doppio_clic(self, controllo, dx, cosa, fatto):
        """Double clicks until it works: on a busy machine the two clicks may be too far apart."""
        for _ in range(4):
            self.clic(controllo(), dx=dx, volte=2)
            if self.entro(25, fatto):
                return
        raise Guaio(f"a double click did nothing: {cosa}")

    def file(self, titolo, nome):
        self.attendi(f"dialog {titolo!r}", lambda: self.finestra(titolo))
        self.in_primo_piano(titolo)
        self.tasti("ctrl+a")
        self.scrivi(nome)
        self.tasti("Return")
        self.attendi(f"dialog {titolo!r} gone", lambda: not self.finestra(titolo))

    def menu(self, titolo, *voci):
        self.davanti(titolo)
        super().menu(titolo, *voci)

    def etichette(self, titolo):
        trovate = []
        raccogli(self.finestra(titolo), "label", None, trovate)
        return [e.name for e in trovate]

    def stato(self):
        """The state of the connection that the console shows."""
        for testo in self.etichette(CONSOLE):
            if testo in ("Connesso", "Non connesso", "Ricerca..."):
                return testo
        return ""

    def collegato(self):
        """Whether the console offers to disconnect."""
        trovati = []
        raccogli(self.finestra(CONSOLE), None, "Disconnetti", trovati)
        return bool(trovati)

    # The robot's side, from the recording of the line.

    def sincronizza(self):
        """Waits until the recording holds all that was written so far: it holds a later poll."""
        gia = self.ascolto.quanti(27)
        self.attendi("the sensor poll", lambda: self.ascolto.quanti(27) >= gia + 2)
