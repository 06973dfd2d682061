"""What the user of the soak does by hand and with a list; every act is judged at once."""

import os

import pyatspi
from line import comandi_della_lista, comandi_della_riga, durata_della_lista
from movelist import Lista
from screen import CONSOLE, SEQUOR, raccogli, xdotool
from user import PAZIENZA, Guaio, Utente

SALVARE_LISTA = ("Vuoi salvare la lista?", "Vuoi salvare le ultime modifiche?")
NON_COLLEGATO = "Non sono collegato al robot"

# A control of the console, the mouse button, the list line that says the same.
CONSOLE_CLIC = [
    ("Pronuncia frase", 1, "Frase 1"),
    ("Esegui suono", 1, "Suono 1"),
    ("Scatta una foto", 1, "Foto"),
    ("Apri la pinza", 1, "Pinza Apri"),
    ("Chiudi la pinza", 1, "Pinza Chiudi"),
    ("Alza il bacino", 1, "Bacino Alza"),
    ("Abbassa il bacino", 1, "Bacino Abbassa"),
    ("Play", 1, "Mex 1 play"),
    ("Stop", 1, "Mex stop"),
    ("Accendi tutti", 1, "Testa LED tutti on"),
    ("Spegni tutti", 1, "Testa LED tutti off"),
    ("LED di posizione. Click sinistro: accendi. Click destro: spegni", 1, "LED Posizione ON"),
    ("LED di posizione. Click sinistro: accendi. Click destro: spegni", 3, "LED Posizione OFF"),
    ("Fai partire il programma memorizzato nel ROBOT", 1, "Prog interno 1"),
    ("Stoppa il programma memorizzato nel ROBOT", 1, "Prog interno Stop"),
    ("Stoppa il robot", 1, "Stop"),
]
TASTI = {
    "Controlla la base": [("Up", "Avanti piano"), ("Down", "Indietro piano"),
                          ("Left", "Sinistra ½"), ("Right", "Destra ½"), ("space", "Stop")],
    "Controlla la testa": [("Up", "Testa su 2"), ("Down", "Testa giu 2"),
                           ("Left", "Testa sinistra 2"), ("Right", "Testa destra 2")],
}
MENU = [
    (("Testa", "Destra (2 st)"), "Testa destra 2"),
    (("Testa", "Sinistra (2 st)"), "Testa sinistra 2"),
    (("Testa", "Su (2 st)"), "Testa su 2"),
    (("Testa", "Giu (2 st)"), "Testa giu 2"),
    (("Base", "Avanti veloce"), "Avanti veloce"),
    (("Base", "Indietro veloce"), "Indietro veloce"),
    (("Base", "Destra"), "Destra"),
    (("Base", "Sinistra"), "Sinistra"),
    (("Base", "Stop"), "Stop"),
]
VALORI = [
    ("Pausa", "Inserisci la durata della pausa", lambda caso: caso.randint(20, 900)),
    ("Frase", "Inserisci il numero della frase desiderata", lambda caso: caso.randint(1, 140)),
    ("Suono", "Inserisci il numero del suono desiderato", lambda caso: caso.randint(1, 16)),
]
RIPETI = "Indica quante volte si devono ripetere i comandi"
RIGHE_MASSIME = 12
PAZIENZA_COMANDO = 60


class Lavori(Utente):
    def __init__(self, caso, casa, foto, dettagli):
        super().__init__(foto, dettagli)
        self.caso = caso
        self.disco = os.path.join(casa, "disco")
        self.memoria = os.path.join(casa, "memoria")
        self.lista = Lista()
        self.su_disco = {}  # what each list file must hold
        self.attese = []  # the commands that the robot must have been sent, in order
        self.sporca = False  # bytes from the robot arrive damaged in this phase

    def dice(self, testo):
        self.azioni += 1
        self.dettagli(f"  {testo}")

    # The commands.

    def attendi_comandi(self, cosa, secondi=PAZIENZA_COMANDO):
        self.attendi(f"{cosa}: {len(self.attese)} commands at the robot, "
                     f"last {self.attese[-1:]}",
                     lambda: len(self.ascolto.azioni()) >= len(self.attese), secondi)
        self.giudica_comandi()

    def giudica_comandi(self, interrotta=False):
        """What has arrived must be what was asked for, in value and order."""
        self.ascolto.aggiorna()
        venute = [self.giudicabile(c) for c in self.ascolto.azioni()]
        if venute != self.attese[:len(venute)]:
            primo = next((i for i, (a, b) in enumerate(zip(venute, self.attese)) if a != b),
                         min(len(venute), len(self.attese)))
            raise Guaio(f"wrong bytes: command {primo} is {venute[primo:primo + 3]}, asked for "
                        f"{self.attese[primo:primo + 3]}")
        if not interrotta and len(venute) != len(self.attese):
            raise Guaio(f"{len(self.attese) - len(venute)} commands were not sent: "
                        f"{self.attese[len(venute):][:3]}")

    def giudicabile(self, comando):
        """The same for all names of files: a name that arrived damaged is sent damaged."""
        return (40, 1) if self.sporca and comando[:2] == (40, 1) else comando

    def dimentica_il_resto(self):
        """After an interruption, no longer waits for what the robot did not get."""
        self.giudica_comandi(interrotta=True)
        del self.attese[len(self.ascolto.azioni()):]

    # By hand.

    def guida(self, volte):
        """Clicks and held keys that go to the robot at once."""
        modo = self.caso.choice(list(TASTI))
        self.clic_console(modo)
        for _ in range(volte):
            if self.caso.random() < 0.5:
                nome, bottone, riga = self.caso.choice(
                    [c for c in CONSOLE_CLIC if c[2] != "Stop" or modo == "Controlla la base"])
                self.dice(f"console: {riga}")
                self.attese += comandi_della_riga(riga)
                self.clic_console(nome, bottone)
                self.attendi_comandi(riga)
            else:
                self.tasto(*self.caso.choice(TASTI[modo]))
        self.clic_console("Controlla la base")

    def tasto(self, tasto, riga):
        """Holds a key until the robot has its command. A release that comes while the console waits
        for the robot leaves the key latched: then the next press only frees it."""
        self.dice(f"key {tasto}: {riga}")
        self.attese += comandi_della_riga(riga)
        self.davanti(CONSOLE)
        for _ in range(4):
            xdotool("keydown", tasto)
            venuto = self.entro(6, lambda: len(self.ascolto.azioni()) >= len(self.attese))
            xdotool("keyup", tasto)
            if venuto:
                return self.giudica_comandi()
        raise Guaio(f"key {tasto} did nothing")

    def guida_scollegata(self):
        """Without a robot each command brings one box, and nothing is sent."""
        for nome, bottone, riga in self.caso.sample(CONSOLE_CLIC[:9], 2):
            self.dice(f"console, not connected: {riga}")
            prima = self.avvisi.count(NON_COLLEGATO)
            self.clic_console(nome, bottone)
            self.domanda(NON_COLLEGATO, "OK")
            if self.avvisi.count(NON_COLLEGATO) != prima + 1:
                raise Guaio("more than one box for one command")

    # The list.

    def righe(self):
        trovate = []
        raccogli(self.finestra(SEQUOR), "list", None, trovate)
        elenco = trovate[0]
        elenco.clear_cache()
        return [elenco.getChildAtIndex(i).name for i in range(elenco.childCount)]

    def giudica_lista(self, dopo):
        """The editor's rows must be the model's."""
        if not self.entro(PAZIENZA, lambda: self.righe() == self.lista.righe):
            raise Guaio(f"list after {dopo}: {self.prova(self.righe)}, must be {self.lista.righe}")

    def apri_sequor(self):
        if not self.prova(lambda: self.finestra(SEQUOR)):
            self.apri("Accedi all'editor delle mosse Sequor", SEQUOR)
            self.lista.nuova()
            self.giudica_lista("opening")
        self.davanti(SEQUOR)

    def chiudi_sequor(self):
        self.chiusura(SEQUOR, () if self.lista.salvata or not self.lista.righe else SALVARE_LISTA)

    def inserimento(self, attivo):
        """Ticks or unticks the box that turns the console's commands into lines."""
        testo = "Inserisci comandi nella lista "
        voluto = testo + ("(Attivato)" if attivo else "(Disattivato)")
        trovati = []
        raccogli(self.finestra(SEQUOR), "check box", voluto, trovati)
        if not trovati:
            self.davanti(SEQUOR)
            self.clic(self.controllo(SEQUOR, "check box"), dx=0.1)
            self.controllo(SEQUOR, "check box", voluto)

    def modifica(self):
        """One change of the list."""
        if len(self.lista.righe) >= RIGHE_MASSIME:
            scelte = [self.scegli, self.togli, self.sposta]
        else:
            scelte = [self.dalla_console] * 3 + [self.dal_menu] * 2 + [self.dal_numero] * 2
            if self.lista.righe:
                scelte += [self.scegli, self.togli, self.sposta, self.dal_tasto]
        self.caso.choice(scelte)()
        self.giudica_lista("that")

    def almeno_una_riga(self):
        if not self.lista.righe:
            self.dal_menu()
            self.giudica_lista("a line")

    def dalla_console(self):
        nome, bottone, riga = self.caso.choice(CONSOLE_CLIC)
        self.dice(f"line by a command: {riga}")
        self.lista.aggiungi(riga)
        self.clic_console(nome, bottone)

    def dal_tasto(self):
        tasto, riga = self.caso.choice(TASTI["Controlla la base"])
        self.dice(f"line by key {tasto}: {riga}")
        self.lista.aggiungi(riga)
        self.davanti(CONSOLE)
        # The latch may still be closed by the last key that was sent: another key frees it.
        xdotool("key", "F9")
        self.tasti(tasto)

    def dal_menu(self):
        voci, riga = self.caso.choice(MENU)
        self.dice(f"line by menu: {riga}")
        self.lista.aggiungi(riga)
        self.menu(SEQUOR, "Inserisci", *voci)

    def dal_numero(self):
        voce, titolo, numero = self.caso.choice(VALORI)
        self.numero(voce, titolo, numero(self.caso), voce)

    def ripeti(self):
        self.numero("Ripeti comandi...", RIPETI, 1, "Ripeti", "1 volta")

    def numero(self, voce, titolo, numero, parola, testo=None):
        riga = f"{parola} {testo or numero}"
        self.dice(f"line by number: {riga}")
        self.menu(SEQUOR, "Inserisci", voce)
        self.attendi(titolo, lambda: self.finestra(titolo))
        self.in_primo_piano(titolo)
        self.tasti("ctrl+a")
        self.scrivi(str(numero))
        self.tasti("Return")
        self.lista.aggiungi(riga)
        self.attendi(f"{titolo} gone", lambda: not self.finestra(titolo))

    def scegli(self):
        self.scegli_riga(self.caso.randrange(len(self.lista.righe)))

    def scegli_riga(self, quale):
        self.dice(f"choose line {quale}")
        self.davanti(SEQUOR)
        elenco = self.controllo(SEQUOR, "list")
        self.clic(elenco.getChildAtIndex(quale), dx=0.3)
        self.lista.scelta = quale

    def togli(self):
        if self.lista.scelta < 0:
            self.scegli()
        self.dice(f"delete line {self.lista.scelta}")
        self.davanti(SEQUOR)
        self.premi(SEQUOR, "Cancella il comando selezionato")
        self.lista.togli()

    def sposta(self):
        if self.lista.scelta < 0:
            self.scegli()
        self.davanti(SEQUOR)
        if self.caso.random() < 0.5:
            self.dice(f"move line {self.lista.scelta} up")
            self.premi(SEQUOR, "Sposta in su il comando selezionato")
            self.lista.su()
        else:
            self.dice(f"move line {self.lista.scelta} down")
            self.premi(SEQUOR, "Sposta in giu il comando selezionato")
            self.lista.giu()

    # Its file.

    def percorso(self, nome):
        return os.path.join(self.disco, nome)

    def salva(self, nome=None, riesce=True):
        """Saves, under a new name if one is given. If the disk has no room, the program says
        nothing, keeps the lines and leaves the file as it was."""
        self.dice(f"save {nome or self.lista.file}{'' if riesce else ', disk full'}")
        if nome:
            self.menu(SEQUOR, "File", "Salva con nome")
            self.file("Salva con nome", self.percorso(nome))
            self.lista.file = nome
        else:
            self.menu(SEQUOR, "File", "Salva")
        nome = self.lista.file
        self.attendi(f"the name {nome}", lambda: nome in self.etichette(SEQUOR))
        if riesce:
            self.su_disco[nome] = self.lista.byte()
            self.attendi(f"{nome} as the model says", lambda: self.contenuto(nome) ==
                         self.su_disco[nome], 20)
        self.lista.salvata = True
        self.giudica_file()
        self.giudica_lista("saving")

    def contenuto(self, nome):
        try:
            with open(self.percorso(nome), "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None

    def giudica_file(self):
        """Each list file must hold what was last saved into it, and there must be no other file."""
        for nome, byte in self.su_disco.items():
            if self.contenuto(nome) != byte:
                raise Guaio(f"{nome} holds {self.contenuto(nome)!r}, must be {byte!r}")
        presenti = {n for n in os.listdir(self.disco) if ".sqm" in n}
        if presenti != set(self.su_disco):
            raise Guaio(f"list files {presenti}, must be {set(self.su_disco)}")

    def apri_file(self, nome):
        self.dice(f"open {nome}")
        domanda = not self.lista.salvata and self.lista.righe
        self.menu(SEQUOR, "File", "Apri")
        if domanda:
            self.domanda("Vuoi salvare", "No")
        self.file("Apri", self.percorso(nome))
        righe = self.su_disco[nome].decode("cp1252").split("\r\n")[1:-1]
        self.lista.caricata(nome, righe)
        self.giudica_lista("opening a file")

    def nuova_lista(self):
        self.dice("new list")
        domanda = not self.lista.salvata and self.lista.righe
        self.menu(SEQUOR, "File", "Nuovo")
        if domanda:
            self.domanda("Vuoi salvare", "No")
        self.lista.nuova()
        self.giudica_lista("new")

    # Its run.

    def esegui(self, ferma=False):
        """Runs the list to its end, or stops it on the way."""
        self.dice(f"run {len(self.lista.righe)} lines{', stopped on the way' if ferma else ''}")
        prima = len(self.attese)
        self.attese += comandi_della_lista(self.lista.righe)
        self.davanti(SEQUOR)
        self.premi(SEQUOR, "ESEGUI")
        # A short run may be over before its button is seen: then the robot has got commands.
        self.attendi("the run", lambda: self.bottone(SEQUOR, "STOP")
                     or len(self.ascolto.azioni()) > prima)
        if ferma:
            self.entro(10, lambda: len(self.ascolto.azioni()) > prima + 2)
            if self.bottone(SEQUOR, "STOP"):
                self.premi(SEQUOR, "STOP")
        tempo = PAZIENZA_COMANDO + 3 * durata_della_lista(self.lista.righe)
        self.attendi("the run's end", lambda: self.bottone(SEQUOR, "ESEGUI"), tempo)
        self.sincronizza()
        if ferma:
            self.dimentica_il_resto()
            scelta = self.prova(self.scelta_vera)
            self.lista.scelta = -1 if scelta is None else scelta
        else:
            self.giudica_comandi()
            self.lista.scelta = len(self.lista.righe) - 1
        self.giudica_lista("the run")

    def bottone(self, titolo, nome):
        trovati = []
        raccogli(self.finestra(titolo), "push button", nome, trovati)
        return bool(trovati)

    def scelta_vera(self):
        elenco = self.controllo(SEQUOR, "list")
        for i in range(elenco.childCount):
            riga = elenco.getChildAtIndex(i)
            riga.clear_cache()
            if riga.getState().contains(pyatspi.STATE_SELECTED):
                return i
        return -1
