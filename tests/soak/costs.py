"""What one act costs in memory: each act is done some hundred times, and the memory in use is asked
for after each block."""

import time

import pyatspi

from memory import pendenza
from screen import CONSOLE, SEQUOR, VIGILIO, raccogli
from xserver import ServitoreX
from user import Guaio

BLOCCHI, VOLTE = 6, 40


class Misure:
    def __init__(self, prova):
        self.p, self.u = prova, prova.u
        self.x = None
        self.righe = []

    def svolgi(self):
        self.x = ServitoreX()
        self.p.prepara_collegamenti()
        self.p.avvia_programma()
        self.u.avvisi_ammessi = ("",)
        atti = [("message box", lambda: self.riquadro("Scatta una foto")),
                ("options", lambda: self.finestra("Accedi alle opzioni", "Opzioni")),
                ("Sequor", lambda: self.finestra("Accedi all'editor delle mosse Sequor", SEQUOR)),
                ("Vigilio", lambda: self.finestra("Accedi al Vigilio", VIGILIO))]
        for nome, atto in atti:
            self.misura(nome, atto)
        self.u.apri("Accedi all'editor delle mosse Sequor", SEQUOR)
        sequor = self.mostrata(SEQUOR)
        self.misura("value dialog", lambda: self.dal_menu(sequor, "Inserisci", "Pausa"))
        self.misura("file dialog", lambda: self.dal_menu(sequor, "File", "Apri"))
        self.p.finisci()

    def misura(self, nome, atto):
        try:
            atto()  # makes what is made only once
            valori = [self.in_uso()]
            for _ in range(BLOCCHI):
                for _ in range(VOLTE):
                    atto()
                valori.append(self.in_uso())
        except Guaio as errore:
            self.p.guaio(f"measuring {nome}: {errore}", errore)
            return
        self.righe.append(f"{nome:16} {pendenza(valori) / VOLTE / 1024:8.2f} kB an act; in use, kB: " +
                          " ".join(f"{v / 1024:.0f}" for v in valori))
        self.p.dettagli(self.righe[-1])

    def in_uso(self):
        time.sleep(1)  # what is deleted later is gone by then
        return self.p.testimone.in_uso()

    # With keys and clicks only: a screen reader's questions cost memory too.

    def posto(self, titolo, nome, ruolo=None):
        """The place of a control in its window, in pixels; asked for once."""
        chiave = titolo, nome
        if chiave not in self.u.posti:
            def cerca():
                trovati = []
                raccogli(self.u.finestra(titolo), ruolo, nome, trovati)
                return trovati and trovati[0].queryComponent().getExtents(pyatspi.DESKTOP_COORDS)

            area = self.u.attendi(f"{nome} of {titolo}", cerca)
            sinistra, alto, _, _ = self.mostrata(titolo).area
            self.u.posti[chiave] = (area.x + area.width // 2 - sinistra,
                                    area.y + area.height // 2 - alto)
        return self.u.posti[chiave]

    def cerca(self, titolo):
        return next((f for f in self.x.finestre() if f.titolo.startswith(titolo)), None)

    def mostrata(self, titolo):
        return self.aspetta(f"{titolo} shown", lambda: self.cerca(titolo))

    def aspetta(self, cosa, condizione):
        fine = time.monotonic() + 60
        while not (esito := condizione()):
            if time.monotonic() > fine:
                raise Guaio(f"waited in vain: {cosa}")
            time.sleep(0.01)
        return esito

    def clic(self, titolo, nome):
        finestra = self.mostrata(titolo)
        dx, dy = self.posto(titolo, nome)
        self.x.vai(finestra.area[0] + dx, finestra.area[1] + dy)
        self.x.clic(1, 0.02)

    def dialogo(self, apri, chiudi):
        apri()
        dialogo = self.aspetta("the dialog", lambda: next(
            (f for f in self.x.finestre() if f.dialogo and self.x.attiva() == f.numero), None))
        chiudi(dialogo)
        self.aspetta("the dialog gone", lambda: not any(
            f.numero == dialogo.numero for f in self.x.finestre()))

    def riquadro(self, nome):
        self.dialogo(lambda: self.clic(CONSOLE, nome), lambda _: self.x.tocca("Return"))

    def finestra(self, strumento, titolo):
        self.clic(CONSOLE, strumento)
        finestra = self.mostrata(titolo)
        self.x.chiudi(finestra.numero)
        self.aspetta(f"{titolo} gone", lambda: not self.cerca(titolo))

    def dal_menu(self, sequor, menu, voce):
        def apri():
            self.clic(SEQUOR, menu)
            lista = self.aspetta("the menu", lambda: next(
                (f for f in self.x.finestre() if f.scavalca and "TOOLTIP" not in f.tipo), None))
            if (SEQUOR, voce) not in self.u.posti:
                area = self.u.attendi(voce, lambda: self.voce(voce))
                self.u.posti[SEQUOR, voce] = (area.x + area.width // 2 - lista.area[0],
                                              area.y + area.height // 2 - lista.area[1])
            dx, dy = self.u.posti[SEQUOR, voce]
            self.x.vai(lista.area[0] + dx, lista.area[1] + dy)
            self.x.clic(1, 0.02)

        self.dialogo(apri, lambda dialogo: self.x.chiudi(dialogo.numero))

    def voce(self, nome):
        trovati = []
        raccogli(self.u.finestra(SEQUOR), "menu item", nome, trovati)
        return trovati[0].queryComponent().getExtents(pyatspi.DESKTOP_COORDS) if trovati else None

    def racconta(self):
        return [f"acts in a block: {VOLTE}", *self.righe]
