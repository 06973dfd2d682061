"""The monkey: random but real input to whatever window of the program is open, for a whole round.
Clicks, double clicks, right clicks and drags at random points, keys held and repeated, the wheel,
Alt+Tab to another program and back, windows minimised, moved and closed, the robot silent now and
then, the cable out. judges.py says what must hold meanwhile.

A round's choices follow from its seed; --rounds monkey --seed N repeats the round of seed N."""

import glob
import os
import random
import shutil
import signal
import subprocess
import sys
import time

import pyatspi

import judges
import memory
from judges import Perdita
from line import SESSIONE, ByteSbagliato
from movelist import Lista
from screen import CONSOLE, SEQUOR, VIGILIO, raccogli
from xserver import ServitoreX
from user import Guaio

NOME_IMMAGINE = "Dai un nome all'immagine"
FILE = ("Apri", "Salva con nome")  # the titles of the file dialogs
VISTE = ("Vista a elenco", "Vista dettagliata")  # in them Qt holds the chosen one down
FRECCE = {
    "Controlla la base": ("Su", "Sinistra", "Destra", "Giù", "Alza il bacino", "Abbassa il bacino"),
    "Controlla le braccia": ("Alza il braccio sinistro", "Alza il braccio destro",
                             "Abbassa il braccio sinistro", "Abbassa il braccio destro"),
}
STOP = "Stoppa il robot"
TARGHE = (STOP, "Scatta una foto", "Accendi tutti", "Spegni tutti")
STRUMENTI = ("Connetti ad Tessaro", "Disconnetti", "Accedi alle opzioni",
             "Accedi alla visione della Videocamera di Tessaro",
             "Accedi all'editor delle mosse Sequor", "Accedi al Vigilio",
             "Esplora i file all'interno di Tessaro")
INSERISCI = "Inserisci comandi nella lista "

TASTI = ["Up", "Down", "Left", "Right", "space"] * 4 + [
    "Return", "Return", "Escape", "Escape", "Tab", "Tab", "BackSpace", "Home", "End", "Prior",
    "Next", "F4", "F5", "F9", "Insert", *"0123456789qz"]
# In a file dialog these would rename or delete files.
PERICOLOSI = ["Delete", "F2", "F10", "Menu"]
TESTI = ("1", "5", "12", "150", "0", "7qz", "qz", "99", "3", "200", "qqzz9", "60000")

# Options of the simulated robot: its fault in a round.
MALI = [[], [], [], ["--ritardo", "400"], ["--persi", "0.02"], ["--sporchi", "0.02"],
        ["--troncati", "0.05"], ["--baud", "9600"], ["--perdi-linea"], ["--silenzio"]]

DURATA = (100, 200)  # seconds that a round lasts
PAZIENZA_RISPOSTA = 60.0  # seconds that the program may take to answer a screen reader
PAZIENZA_FINE = 240.0
PAZIENZA_RILASCIO = 6.0
ATTESA_LUNGA = 30.0  # seconds; no wait for the robot lasts longer


class Scimmia:
    def __init__(self, prova, minuti):
        self.p, self.u, self.minuti = prova, prova.u, minuti
        self.x = None
        self.frecce, self.targhe = {}, {}
        self.caso = random.Random()
        self.atti = 0
        self.fini = 0
        self.prove_stop = {"click": 0, "space": 0, "click, robot silent": 0, "space, robot silent": 0}
        self.giudizi = 0
        self.giri = 0
        self.parti = {}
        self.altro = None
        self.letti = set()

    def dice(self, testo):
        self.p.dettagli(f"  {testo}")

    # All rounds.

    def svolgi(self):
        fine = time.monotonic() + 60 * self.minuti
        self.x = ServitoreX()
        self.x.ripetizione(True)
        # A program without Qt: it does not appear on the accessibility bus.
        self.altro = subprocess.Popen([sys.executable, os.path.join(
            os.path.dirname(__file__), "other_program.py")])
        try:
            while (time.monotonic() < fine or self.giri == 0) and len(self.p.guai) < 40:
                self.giri += 1
                seme = self.p.seme + self.giri - 1
                inizio = self.p.adesso()
                try:
                    self.giro(seme, min(fine, time.monotonic() + 3600))
                except Exception as errore:  # a fault of the script itself is a failure too
                    self.p.guaio(f"monkey round, --rounds monkey --seed {seme}, from second "
                                 f"{inizio:.0f} of registro.txt, {self.atti} acts done: "
                                 f"{type(errore).__name__} {errore}", errore)
                    self.abbandona()
                self.p.fasi_fatte.append("monkey")
        finally:
            self.x.lascia_tutto()
            self.x.ripetizione(False)
            self.altro.kill()
            self.altro.wait()

    def abbandona(self):
        """Ends the program after a failure, so that the next round begins with a new one."""
        self.x.lascia_tutto()
        self.p.termina_programma()
        self.riprende()
        self.p.ferma_robot(subito=True)
        self.u.ascolto = None

    def giro(self, seme, fine):
        self.caso = self.p.caso = self.u.caso = random.Random(seme)
        self.p.dettagli(f"monkey round, seed {seme}")
        self.prepara()
        # Learning the looks may have taken all the time there was.
        fine = max(min(fine, time.monotonic() + self.caso.uniform(*DURATA)), time.monotonic() + 30)
        while time.monotonic() < fine:
            self.robot_passo()
            self.vigila()
            self.atto()
            time.sleep(self.caso.choice((0, 0, 0.02, 0.1, 0.3)))
        self.giudica_aspetto()
        self.giudica_file()
        self.termina()
        self.stacca(subito=False, intera=True)

    # The beginning of a round.

    def prepara(self):
        for nome in os.listdir(self.u.disco):
            percorso = os.path.join(self.u.disco, nome)
            if nome != "lumbra" and not os.path.islink(percorso):
                shutil.rmtree(percorso) if os.path.isdir(percorso) else os.remove(percorso)
        lista = Lista()
        for riga in ("Avanti piano", "Pausa 200", "Testa su 2", "Foto", "Ripeti 2 volte", "Stop"):
            lista.aggiungi(riga)
        for nome in ("giro.sqm", "prova.sqm"):
            with open(os.path.join(self.u.disco, nome), "wb") as file:
                file.write(lista.byte())
        self.scrivi_file("prog.dat", "0;")
        self.numero_robot, self.muto_fino, self.staccato_fino = 0, 0, 0
        self.mali = self.caso.choice(MALI)
        self.attacca()
        self.nasci()
        if not self.frecce:
            self.impara()

    def scrivi_file(self, nome, testo):
        with open(os.path.join(self.u.disco, nome), "w", encoding="ascii", newline="") as file:
            file.write(testo)

    def nasci(self):
        """Starts the program."""
        self.u.avvisi_ammessi = ("",)
        self.u.posti.clear()
        self.parti.clear()
        self.p.prepara_collegamenti()
        self.scrivi_file("Porta COM", "1\r\n")
        self.chiesta = 0.0  # when the console was last closed by hand
        self.fatale = ""
        self.vigilio = False
        self.visti = set()
        self.ultimo_rapporto = self.ultima_risposta = time.monotonic()
        self.p.avvia_programma()

    def impara(self):
        """Presses each arrow and label once, to learn how it looks at rest and pressed."""
        if self.mali:
            self.stacca(subito=False, intera=True)
            self.p.avvia_robot("scimmia-impara", [])
        self.p.collega()
        for modo, nomi in FRECCE.items():
            self.u.clic_console(modo)
            time.sleep(1)
            for nome in nomi:
                self.impara_freccia(nome)
        self.u.clic_console("Controlla la base")
        time.sleep(1)
        console = self.console()
        for nome in TARGHE:
            x, y, w, h = self.posto(nome)
            self.premuta_a_mano(console, x, y, w, h)
            self.u.attendi("the label at rest", lambda: self.posto(nome))
            self.targhe[nome] = self.posto(nome)[0]
        self.misura_console = console.area[2:]
        if self.premuti():
            raise Guaio(f"drawn pressed from the start: {self.premuti()}")
        if self.mali:
            self.stacca(subito=False, intera=True)
            self.attacca()

    def posto(self, nome):
        """The place of a control in the console, in pixels; None if it is not shown."""
        console = self.console()
        trovati = []
        raccogli(self.u.finestra(CONSOLE), None, nome, trovati)
        if not trovati or not console:
            return None
        area = trovati[0].queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return area.x - console.area[0], area.y - console.area[1], area.width, area.height

    def premuta_a_mano(self, console, x, y, larghezza, altezza):
        self.x.attiva_finestra(console.numero)
        self.x.vai(console.area[0] + x + larghezza // 2, console.area[1] + y + altezza // 2)
        time.sleep(0.5)
        riposo = self.x.immagine(console.numero, x, y, larghezza, altezza)
        self.x.giu(1)
        time.sleep(1)
        premuta = self.x.immagine(console.numero, x, y, larghezza, altezza)
        self.x.su(1)
        time.sleep(1)
        return riposo, premuta

    def impara_freccia(self, nome):
        console = self.console()
        posto = self.u.attendi(f"arrow {nome}", lambda: self.posto(nome))
        for _ in range(6):
            riposo, premuta = self.premuta_a_mano(console, *posto)
            quanto = judges.distanza(riposo, premuta) if riposo and premuta else 0
            self.dice(f"arrow {nome}: the pressed look differs by {quanto:.2f}")
            if quanto > 1:
                self.frecce[nome] = (posto, riposo, premuta)
                return
        raise Guaio(f"the arrow {nome} does not look pressed when it is")

    # The robot.

    def attacca(self):
        self.numero_robot += 1
        opzioni = list(self.mali)
        self.perdita = None
        if opzioni == ["--perdi-linea"]:
            da = self.caso.randint(5000, 40000)
            opzioni.append(f"{da},20000")
            self.perdita = Perdita(da, 20000)
        self.p.avvia_robot(f"scimmia-{self.giri:03}-{self.numero_robot}", opzioni)
        self.nato = time.monotonic()
        self.dice(f"robot {self.numero_robot}: {' '.join(opzioni) or 'sound'}")

    def stacca(self, subito, intera):
        """Ends the robot, and judges what it was sent."""
        self.riprende()
        if self.p.robot:
            self.p.ferma_robot(subito=subito)
            self.giudica_linea(intera)

    def giudica_linea(self, intera):
        ascolto = self.u.ascolto
        ascolto.aggiorna()
        if ascolto.coda and intera:
            raise Guaio(f"half a command at the end: {list(ascolto.coda)}")
        with open(self.p.base + ".diario", encoding="utf-8") as file:
            if "non capito" in file.read().lower():
                raise Guaio("the robot did not understand a byte")
        self.p.byte += ascolto.byte
        self.p.comandi += len(ascolto.comandi)
        for coda in (".linea", ".diario"):
            os.remove(self.p.base + coda)
        self.u.ascolto = None

    def robot_passo(self):
        """Ends a silence or an interruption of the line when its time is over."""
        adesso = time.monotonic()
        if self.muto_fino and adesso > self.muto_fino:
            self.riprende()
        if self.staccato_fino and adesso > self.staccato_fino:
            self.staccato_fino = 0
            self.attacca()
        if self.u.ascolto:
            self.u.ascolto.aggiorna()

    def riprende(self):
        if self.muto_fino and self.p.robot:
            self.p.robot.send_signal(signal.SIGCONT)
        self.muto_fino = 0

    def ammutolisce(self):
        if self.p.robot and not self.muto_fino:
            secondi = self.caso.uniform(0.5, 15)
            self.dice(f"the robot is silent for {secondi:.1f} s")
            self.p.robot.send_signal(signal.SIGSTOP)
            self.muto_fino = time.monotonic() + secondi

    def cavo(self):
        if self.p.robot:
            secondi = self.caso.uniform(0.5, 25)
            self.dice(f"the cable is out for {secondi:.1f} s")
            self.stacca(subito=self.caso.random() < 0.5, intera=False)
            self.staccato_fino = time.monotonic() + secondi

    # What must hold all the time.

    def vigila(self):
        if self.u.processo.poll() is not None:
            self.giudica_fine()
            self.nasci()
            return
        finestre = self.x.finestre()
        self.giudica_padri(finestre)
        dialoghi = {f.numero for f in finestre if f.dialogo}
        if dialoghi - self.visti:
            self.leggi_avviso()
        self.visti = dialoghi
        adesso = time.monotonic()
        if self.chiesta and adesso > self.chiesta + ATTESA_LUNGA and not dialoghi:
            self.chiesta = 0.0  # the user answered Cancel
        if adesso > self.ultimo_rapporto + 3:
            self.ultimo_rapporto = adesso
            self.giudica_rapporti()
        if adesso > self.ultima_risposta + 20:
            self.giudica_risposta()

    def giudica_padri(self, finestre):
        for dialogo in (f for f in finestre if f.dialogo):
            lamento = judges.senza_padre(dialogo.sopra, dialogo.capo, self.x.del_programma())
            # The dialog that names a picture may outlive the video window that opened it.
            if not lamento or (dialogo.titolo == NOME_IMMAGINE and self.x.nostra(dialogo.sopra)):
                continue
            # It may be closing, or its parent may.
            time.sleep(0.5)
            ancora = [f for f in self.x.finestre() if f.numero == dialogo.numero]
            if ancora and judges.senza_padre(ancora[0].sopra, ancora[0].capo,
                                              self.x.del_programma()):
                raise Guaio(f"box {dialogo.titolo!r} ({self.leggi_avviso()!r}): {lamento}")

    def leggi_avviso(self):
        def leggi():
            riquadro = self.u.riquadro()
            return riquadro and self.u.testo_riquadro(riquadro)

        testo = self.u.prova(leggi) or ""
        if testo:
            self.u.avvisi.append(testo)
            self.dice(f"box [{testo}]")
        if judges.FATALE in testo:
            self.fatale = testo
        return testo

    def giudica_rapporti(self):
        for nome in sorted(glob.glob(os.path.join(self.p.out, "sanitizer.*"))):
            with open(nome, encoding="utf-8", errors="replace") as file:
                lamento = judges.rapporto(file.read())
            if lamento and nome not in self.letti:
                self.letti.add(nome)
                self.p.rapporti_letti.add(nome)
                raise Guaio(f"report of the sanitizers, {os.path.basename(nome)}: {lamento}")

    def giudica_risposta(self):
        """The program's event loop runs: it answers a screen reader."""
        inizio = time.monotonic()

        def vivo():
            app = self.u.applicazione()
            return app is not None and [f.name for f in app]

        while self.u.processo.poll() is None and not self.u.prova(vivo):
            if time.monotonic() > inizio + PAZIENZA_RISPOSTA:
                raise Guaio(f"the program has not answered for {PAZIENZA_RISPOSTA:.0f} s")
            time.sleep(0.5)
        self.ultima_risposta = time.monotonic()

    def giudica_fine(self):
        """Judges the end of the program."""
        self.fini += 1
        self.x.lascia_tutto()
        comandi = None
        if self.p.robot and not self.nella_perdita(20):
            self.riprende()
            # What was written before the end may still arrive.
            fine = time.monotonic() + 10
            while time.monotonic() < fine:
                self.u.ascolto.aggiorna()
                comandi = self.u.ascolto.comandi
                if judges.sessione_chiusa(comandi):
                    break
                time.sleep(0.1)
        if comandi is not None and self.chiesta:
            with open(self.p.base + ".diario", encoding="utf-8") as file:
                if judges.porta_chiusa_prima(file.read(), 1000 * (self.chiesta - self.nato)):
                    comandi = None
        esito = self.u.processo.returncode
        self.dice(f"the program has ended, status {esito}")
        self.giudica_rapporti()
        lamento = judges.fine(esito, bool(self.chiesta), self.fatale, comandi,
                               self.vigilio)
        if not lamento and self.p.controllato:
            lamento = judges.perdite(self.p.segni())
        if lamento:
            raise Guaio(f"the end of the program: {lamento}")

    def nella_perdita(self, secondi):
        """Whether the line may have lost what was sent in these last seconds."""
        ora = 1000 * (time.monotonic() - self.nato)
        return bool(self.perdita and self.perdita.inghiotte(ora - 1000 * secondi, ora))

    def giudica_file(self):
        for nome in glob.glob(os.path.join(self.u.disco, "**", "*.sqm"), recursive=True):
            for tentativo in range(3):
                try:
                    with open(nome, "rb") as file:
                        lamento = judges.lista(file.read())
                except (FileNotFoundError, IsADirectoryError):
                    lamento = None
                if not lamento:
                    break
                time.sleep(0.5)  # it may be being written just now
            if lamento:
                raise Guaio(f"list file {os.path.basename(nome)}: {lamento}")

    # Nothing is drawn pressed when nothing is pressed.

    def premuti(self):
        esito = []
        console = self.console()
        if console and console.area[2:] == self.misura_console:
            for nome, ((x, y, w, h), riposo, premuta) in self.frecce.items():
                vista = self.x.immagine(console.numero, x, y, w, h)
                if judges.premuto(vista, riposo, premuta):
                    esito.append(f"arrow {nome}")
        for finestra in self.u.applicazione() or []:
            trovati = []
            raccogli(finestra, "push button", None, trovati)
            raccogli(finestra, "label", None, trovati)
            for oggetto in trovati:
                if (oggetto.getState().contains(pyatspi.STATE_PRESSED) and
                        not (finestra.name in FILE and oggetto.name in VISTE)):
                    esito.append(f"button {oggetto.name!r} of {finestra.name!r}")
                if console and finestra.name.startswith(CONSOLE) and oggetto.name in self.targhe:
                    area = oggetto.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
                    if area.x - console.area[0] > self.targhe[oggetto.name] + 1:
                        esito.append(f"label {oggetto.name!r}")
        return esito

    def giudica_aspetto(self):
        self.x.lascia_tutto()
        self.giudizi += 1
        fine = time.monotonic() + PAZIENZA_RILASCIO
        premuti = None
        while time.monotonic() < fine and self.u.processo.poll() is None:
            premuti = self.u.prova(self.premuti)
            if premuti == []:
                return
            time.sleep(0.3)
        if premuti and self.u.processo.poll() is None:
            raise Guaio(f"drawn pressed with nothing pressed: {premuti}")

    # STOP.

    def console(self):
        return next((f for f in self.x.finestre()
                     if f.titolo.startswith(CONSOLE) and not f.dialogo and not f.scavalca), None)

    def lista_attiva(self):
        """Whether the editor may be taking the console's commands; a minimised one counts as open.
        It is known by its check box: a minimised window has no name for screen readers."""
        for finestra in self.u.applicazione() or []:
            da_vedere = [finestra]
            while da_vedere:
                oggetto = da_vedere.pop()
                oggetto.clear_cache()
                if oggetto.name == INSERISCI + "(Disattivato)":
                    return False
                if oggetto.name == INSERISCI + "(Attivato)":
                    return any(f.titolo.startswith(SEQUOR) for f in self.x.finestre()) or any(
                        self.x.testo(f, "_NET_WM_NAME").startswith(SEQUOR)
                        for f in self.x.minimizzate())
                da_vedere += list(oggetto)
        return False

    def sessione_aperta(self):
        self.u.ascolto.aggiorna()
        sessione = [c[0] for c in self.u.ascolto.comandi if c[0] in SESSIONE]
        return bool(sessione) and sessione[-1] != 4

    def libera(self):
        """Whether there is no box, no pop-up list and no menu."""
        return not any(f.dialogo or f.scavalca and "TOOLTIP" not in f.tipo
                       for f in self.x.finestre())

    def pronta(self):
        """Brings the console to the front in base mode, with the port open and nothing else that
        takes the input. Returns the console and the place of STOP, or None if that fails."""
        if self.p.robot and not self.muto_fino and self.libera() and not self.sessione_aperta():
            self.collega()
            self.entro(12, self.sessione_aperta)
        if (not self.p.robot or self.muto_fino or self.nella_perdita(30) or not self.libera() or
                not self.sessione_aperta() or self.u.prova(self.lista_attiva) is not False):
            return None
        console = self.console()
        if not console:
            return None
        self.x.attiva_finestra(console.numero)
        if not self.entro(3, lambda: self.x.attiva() == console.numero):
            return None
        stop = self.u.prova(lambda: self.posto(STOP))
        if not stop or not self.u.prova(self.in_base):
            self.clic_nella_console("Controlla la base")
            if not self.entro(3, lambda: self.u.prova(self.in_base)):
                return None
            stop = self.u.prova(lambda: self.posto(STOP))
        return (console, stop) if stop and self.libera() and self.sessione_aperta() else None

    def in_base(self):
        trovati = []
        raccogli(self.u.finestra(CONSOLE), "radio button", "Controlla la base", trovati)
        return bool(trovati) and trovati[0].getState().contains(pyatspi.STATE_CHECKED)

    def entro(self, secondi, condizione):
        fine = time.monotonic() + secondi
        while not condizione():
            if time.monotonic() > fine:
                return False
            time.sleep(0.05)
        return True

    def prova_stop(self):
        self.x.lascia_tutto()
        pronta = self.pronta()
        if not pronta:
            return
        console, (x, y, larghezza, altezza) = pronta
        spazio = self.caso.random() < 0.5
        muto = self.caso.random() < 0.3
        px = console.area[0] + x + self.caso.randrange(larghezza)
        py = console.area[1] + y + self.caso.randrange(altezza)
        if not spazio and self.x.sotto_il_puntatore(px, py) != console.numero:
            return
        come = ("space" if spazio else "click") + (", robot silent" if muto else "")
        # A key that was released while its command waited leaves the latch closed, by design: the
        # next press only frees it, and the one after that acts.
        self.u.ascolto.aggiorna()
        azioni = [c for c in self.u.ascolto.comandi if c[0] == 19]
        if len(azioni) != getattr(self, "azioni_viste", -1):
            self.azioni_viste, self.ultima_azione = len(azioni), time.monotonic()
        tentativi = 2 if spazio and time.monotonic() < self.ultima_azione + ATTESA_LUNGA else 1
        lamento = None
        for _ in range(tentativi):
            lamento = self.premi_stop(spazio, muto, px, py)
            if not lamento:
                self.prove_stop[come] += 1
                return
            # Not judged if something came in between.
            if (self.u.processo.poll() is not None or not self.libera() or
                    self.x.attiva() != console.numero or not self.sessione_aperta() or
                    self.nella_perdita(30)):
                self.dice(f"STOP by {come}: not judged")
                return
        raise Guaio(f"{lamento} by {come} at {px - console.area[0] - x}, "
                    f"{py - console.area[1] - y} of {larghezza} x {altezza}, the console in front "
                    f"in base mode, list inactive, port open")

    def premi_stop(self, spazio, muto, px, py):
        ascolto = self.u.ascolto
        ascolto.aggiorna()
        prima = len(ascolto.comandi)
        if muto:
            self.p.robot.send_signal(signal.SIGSTOP)
            self.muto_fino = time.monotonic() + 3600
        fermi = self.fermi()
        inizio = time.monotonic()
        self.dice(f"STOP by {'space' if spazio else f'click at {px},{py}'}"
                  f"{', robot silent' if muto else ''}")
        if spazio:
            self.x.tocca("F9")
            self.x.tocca("space", tempo=0.06)
        else:
            self.x.vai(px, py)
            self.x.clic(1, 0.06)
        if muto:
            while time.monotonic() - inizio < 1 + self.fermi() - fermi:
                time.sleep(0.02)
            self.riprende()
        limite = 3 if muto else 1
        while True:
            ascolto.aggiorna()
            secondi, intoppo = time.monotonic() - inizio, self.fermi() - fermi
            if (19, 65, 0) in ascolto.comandi[prima:] or secondi - intoppo > limite:
                return judges.stop(ascolto.comandi, prima, secondi, intoppo, limite)
            time.sleep(0.02)

    def fermi(self):
        """How many seconds the program, the robot and this script were ready to run and could not."""
        return memory.attesa_del_processore(self.p.pid, self.p.robot.pid, os.getpid())

    # What the monkey does.

    def atto(self):
        atti = [(30, self.clic), (8, self.doppio), (6, self.destro), (8, self.trascina),
                (4, self.rotella), (16, self.tasto), (8, self.tieni), (5, self.scrivi),
                (5, self.altrove), (3, self.minimizza), (3, self.ripristina), (3, self.sposta),
                (3, self.chiudi), (9, self.strumento), (8, self.collega), (1.5, self.ammutolisce),
                (1, self.cavo), (9, self.prova_stop), (3, self.giudica_aspetto),
                (2, self.giudica_file), (0.4, self.esci), (4, self.titolo)]
        atto = self.caso.choices([a for _, a in atti], [p for p, _ in atti])[0]
        self.atti += 1
        self.u.azioni += 1
        atto()

    def scegli_finestra(self):
        """A window that is shown; more often one that is above the others."""
        finestre = [f for f in self.x.finestre() if "TOOLTIP" not in f.tipo]
        if not finestre:
            return None
        sopra = [f for f in finestre if f.scavalca] or [f for f in finestre if f.dialogo]
        if sopra and self.caso.random() < 0.75:
            return sopra[-1]
        return self.caso.choice(finestre)

    def parti_di(self, finestra):
        """The places of a window's controls, in pixels from its corner."""
        chiave = (finestra.titolo, finestra.area[2:])
        if chiave not in self.parti or self.caso.random() < 0.04:
            def cerca():
                trovati = []
                for f in self.u.applicazione() or []:
                    if f.name == finestra.titolo:
                        raccogli(f, None, None, trovati)
                aree = [o.queryComponent().getExtents(pyatspi.DESKTOP_COORDS) for o in trovati]
                return [(a.x - finestra.area[0], a.y - finestra.area[1], a.width, a.height)
                        for a in aree if 0 < a.width < 0.8 * finestra.area[2]]

            self.parti[chiave] = self.u.prova(cerca) or []
        return self.parti[chiave]

    def punto(self, finestra=None):
        """A window and a point of it; None if a click there would not reach the program."""
        finestra = finestra or self.scegli_finestra()
        if not finestra:
            return None
        x, y, larghezza, altezza = 0, 0, *finestra.area[2:]
        parti = [] if finestra.scavalca else self.parti_di(finestra)
        if parti and self.caso.random() < 0.7:
            x, y, larghezza, altezza = self.caso.choice(parti)
        px = finestra.area[0] + x + self.caso.randrange(max(1, larghezza))
        py = finestra.area[1] + y + self.caso.randrange(max(1, altezza))
        return (finestra, px, py) if self.x.sotto_il_puntatore(px, py) else None

    def dove(self, finestra, px, py):
        return f"{finestra.titolo or finestra.tipo!r} {px - finestra.area[0]},{py - finestra.area[1]}"

    def file_aperto(self):
        return any(f.titolo in FILE for f in self.x.finestre())

    def clic(self, bottone=1, volte=1):
        punto = self.punto()
        if not punto:
            return
        self.dice(f"click {bottone} x{volte}: {self.dove(*punto)}")
        self.x.vai(*punto[1:])
        for _ in range(volte):
            self.x.clic(bottone, self.caso.choice((0.01, 0.03, 0.08, 0.4)) if volte == 1 else 0.02)
            time.sleep(0.03)

    def doppio(self):
        self.clic(volte=self.caso.choice((2, 2, 2, 3)))

    def destro(self):
        if not self.file_aperto():  # the file dialog's menu deletes and renames
            self.clic(self.caso.choice((3, 3, 3, 2)), self.caso.choice((1, 1, 2)))

    def trascina(self):
        punto = self.punto()
        if not punto:
            return
        finestra, px, py = punto
        qx = px + self.caso.randint(-200, 200)
        qy = py + self.caso.randint(-150, 150)
        torna = self.caso.random() < 0.3
        self.dice(f"drag: {self.dove(*punto)} by {qx - px},{qy - py}{' and back' if torna else ''}")
        self.x.vai(px, py)
        self.x.giu(1)
        for passo in range(1, 6):
            time.sleep(0.02)
            self.x.vai(px + (qx - px) * passo // 5, py + (qy - py) * passo // 5)
        if torna:
            time.sleep(0.05)
            self.x.vai(px, py)
        self.x.su(1)

    def rotella(self):
        punto = self.punto()
        if punto:
            self.dice(f"wheel: {self.dove(*punto)}")
            self.x.vai(*punto[1:])
            bottone = self.caso.choice((4, 5))
            for _ in range(self.caso.randint(1, 6)):
                self.x.clic(bottone, 0)

    def un_tasto(self):
        tasti = TASTI if self.file_aperto() else TASTI + PERICOLOSI
        return self.caso.choice(tasti)

    def tasto(self):
        tasto = self.un_tasto()
        prima = self.caso.choice(((), (), (), (), ("Shift_L",), ("Control_L",)))
        self.dice(f"key {' '.join((*prima, tasto))}")
        self.x.tocca(*prima, tasto, tempo=self.caso.choice((0, 0.03, 0.1)))

    def tieni(self):
        tasto = self.un_tasto()
        secondi = self.caso.uniform(0.2, 3)
        self.dice(f"key {tasto} held for {secondi:.1f} s")
        self.x.premi(tasto)
        fine = time.monotonic() + secondi
        while time.monotonic() < fine:
            if self.caso.random() < 0.1:
                self.clic()
            time.sleep(0.1)
        self.x.lascia(tasto)

    def scrivi(self):
        testo = self.caso.choice(TESTI)
        self.dice(f"type {testo}")
        if self.caso.random() < 0.3:
            self.x.tocca("Control_L", "a")
        for segno in testo:
            self.x.tocca(segno, tempo=0)

    def altrove(self):
        """Another program comes to the front for a while; a key may be held meanwhile."""
        altra = self.x.altra()
        tasto = self.caso.choice((None, None, self.un_tasto()))
        if tasto == "F4":  # with Alt it would close the window
            tasto = None
        self.dice(f"to another program and back{', holding ' + tasto if tasto else ''}")
        if tasto:
            self.x.premi(tasto)
            time.sleep(self.caso.uniform(0, 0.6))
        if self.caso.random() < 0.5 or not altra:
            self.x.tocca("Alt_L", "Tab")
        else:
            self.x.attiva_finestra(altra.id)
        time.sleep(self.caso.uniform(0.05, 3))
        if tasto and self.caso.random() < 0.7:
            self.x.lascia(tasto)
        if self.caso.random() < 0.7:
            self.x.tocca("Alt_L", "Tab")
        time.sleep(self.caso.uniform(0, 0.5))
        self.x.lascia_tutto()

    def minimizza(self):
        finestra = self.scegli_finestra()
        if finestra and not finestra.scavalca and not finestra.dialogo:
            self.dice(f"minimise {finestra.titolo!r}")
            self.x.minimizza(finestra.numero)

    def ripristina(self):
        minimizzate = self.x.minimizzate()
        if minimizzate:
            finestra = self.caso.choice(minimizzate)
            self.dice(f"restore {self.x.testo(finestra, '_NET_WM_NAME')!r}")
            self.x.attiva_finestra(finestra.id)

    def sposta(self):
        finestra = self.scegli_finestra()
        if finestra and not finestra.scavalca:
            x, y = self.caso.randint(0, 1300), self.caso.randint(20, 700)
            self.dice(f"move {finestra.titolo!r} to {x},{y}")
            self.x.sposta(finestra.numero, x, y)

    def chiudi(self):
        finestra = self.scegli_finestra()
        if not finestra or finestra.scavalca or finestra.titolo.startswith(CONSOLE):
            return
        self.dice(f"close {finestra.titolo!r}")
        if self.caso.random() < 0.5:
            self.x.chiudi(finestra.numero)
        elif self.x.attiva() == finestra.numero:
            # If it goes before the key arrives, the console is closed instead.
            self.chiesta = time.monotonic()
            self.x.tocca("Alt_L", "F4")

    def esci(self):
        """Closes the console; a box or an unsaved list may keep it open."""
        console = self.console()
        if console:
            self.dice("close the console")
            self.chiesta = time.monotonic()
            self.x.chiudi(console.numero)

    def titolo(self):
        """A press on a title bar, sometimes a drag. The buttons there have acts of their own."""
        finestra = self.scegli_finestra()
        if not finestra or finestra.scavalca:
            return
        x, y, larghezza, _ = finestra.area
        px, py = x + self.caso.randrange(max(1, larghezza // 2)), y - 8
        self.dice(f"title bar of {finestra.titolo!r}")
        self.x.vai(px, max(0, py))
        self.x.giu(1)
        if self.caso.random() < 0.4:
            self.x.vai(px + self.caso.randint(-80, 80), max(0, py + self.caso.randint(-40, 40)))
        self.x.su(1)

    def clic_nella_console(self, nome):
        posto = self.u.prova(lambda: self.posto(nome))
        console = self.console()
        if not posto or not console:
            return False
        self.x.attiva_finestra(console.numero)
        self.entro(1, lambda: self.x.attiva() == console.numero)
        px = console.area[0] + posto[0] + self.caso.randrange(posto[2])
        py = console.area[1] + posto[1] + self.caso.randrange(posto[3])
        if self.x.sotto_il_puntatore(px, py) != console.numero:
            return False
        self.dice(f"console: {nome}")
        self.x.vai(px, py)
        self.x.clic(1)
        return True

    def strumento(self):
        nome = self.caso.choice(STRUMENTI)
        self.vigilio = self.vigilio or nome == "Accedi al Vigilio"
        self.clic_nella_console(nome)

    def collega(self):
        """Connects; mostly restores the port's number before, which the monkey may have changed."""
        if self.caso.random() < 0.8:
            self.scrivi_file("Porta COM", "1\r\n")
        self.clic_nella_console("Connetti ad Tessaro")

    # The end of a round.

    def termina(self):
        """The user closes what is open, and the console."""
        self.dice("the user ends the program")
        self.x.lascia_tutto()
        self.riprende()
        fine = time.monotonic() + PAZIENZA_FINE
        while self.u.processo.poll() is None:
            if time.monotonic() > fine:
                raise Guaio("the console cannot be closed")
            self.vigila_da_fermo()
            finestre = [f for f in self.x.finestre() if "TOOLTIP" not in f.tipo]
            sopra = [f for f in finestre if f.scavalca or f.dialogo]
            if sopra:
                self.u.prova(self.rispondi)
            else:
                self.chiesta = time.monotonic()
                console = self.console()
                if console:
                    self.x.chiudi(console.numero)
                else:
                    self.ripristina()
            self.entro(2, lambda: self.u.processo.poll() is not None)
        self.giudica_fine()

    def vigila_da_fermo(self):
        if self.u.processo.poll() is None:
            self.giudica_padri(self.x.finestre())
            self.leggi_avviso()

    def rispondi(self):
        """Closes what is in front: a menu, a question (Escape would cancel the end), a dialog."""
        finestre = [f for f in self.x.finestre() if "TOOLTIP" not in f.tipo]
        riquadro = self.u.riquadro()
        if any(f.scavalca for f in finestre):
            self.x.tocca("Escape")
        elif riquadro:
            self.u.premi_nel_riquadro(riquadro, ("No", "OK"))
        else:
            dialoghi = [f for f in finestre if f.dialogo]
            if dialoghi:
                self.x.chiudi(dialoghi[-1].numero)

    def racconta(self):
        return [f"monkey: rounds, acts          {self.giri}, {self.atti}",
                f"monkey: ends of the program   {self.fini}",
                f"monkey: checks for a pressed  {self.giudizi}",
                *[f"monkey: STOP by {come}: {quante}" for come, quante in self.prove_stop.items()]]
