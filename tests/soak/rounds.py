"""The rounds of the soak: a robot with a fault, the user's work with it, what is particular to the
fault, and the judgement of the line when the robot has gone."""

import os
import signal
import subprocess
import time

from judges import Perdita, sessione_chiusa
from line import Ascolto, comandi_della_lista
from tasks import NON_COLLEGATO
from screen import CONSOLE, SEQUOR
from user import PAZIENZA, Guaio

NON_RIUSCITO = "Collegamento non riuscito!"
SENZA_PORTA = "La porta non esiste"
GRADI = (22, 23, 24, 26, 27)

# Name, options of the simulated robot, whether what the robot says arrives damaged.
FASI = [
    ("none", [], False),
    ("dropped bytes", ["--persi", "0.03"], True),
    ("silence", ["--silenzio"], False),
    ("garbled bytes", ["--sporchi", "0.03"], True),
    ("full disk", [], False),
    ("unplugged", [], False),
    ("doubled bytes", ["--doppi", "0.03"], True),
    ("unplugged in a run", [], False),
    ("cut telegrams", ["--troncati", "0.1"], True),
    ("late answers", ["--ritardo", "400"], False),
    ("lost line", [], False),
    ("robot's storage full", ["--memoria-piena"], False),
    ("robot's storage fails", ["--stato-apertura", "7"], True),
    ("reading fails", ["--stato-lettura", "9"], True),
    ("wrong lengths", ["--delta-lunghezza", "3"], True),
    ("flood", ["--alluvione", "--baud", "9600"], True),
    ("real speed", ["--baud", "9600"], False),
]


class Giri:
    """The steps of a round."""

    def __init__(self, casa, out, caso, utente, dettagli):
        self.casa, self.out, self.caso, self.u, self.dettagli = casa, out, caso, utente, dettagli
        self.robot = None
        self.base = ""
        self.nato = 0.0  # when the robot was started
        self.perdita = None  # the time in which its line loses everything
        self.temperatura = 0
        self.da_svuotare = False
        self.byte = 0
        self.comandi = 0

    # The robot.

    def avvia_robot(self, nome, opzioni):
        base = os.path.join(self.out, nome)
        self.temperatura = self.caso.choice(GRADI)
        batterie = f"{self.caso.choice((60, 120, 210))},{self.caso.choice((60, 120, 210))}"
        if "--baud" not in opzioni:
            opzioni = ["--baud", "0", *opzioni]
        for fine in (".diario", ".linea"):
            if os.path.exists(base + fine):
                os.remove(base + fine)
        self.robot = subprocess.Popen(
            [os.path.join(self.casa, "tessaro-sim"), "--headless", "--cartella", self.u.disco,
             "--porta", "1", "--log", base + ".diario", "--registra", base + ".linea", "--memoria",
             self.u.memoria, "--seme", str(self.caso.randrange(10 ** 6)), "--temperatura",
             str(self.temperatura), "--batterie", batterie, "--ultrasuoni", "0,1,0", *opzioni],
            stdout=subprocess.DEVNULL, env=dict(os.environ, LD_PRELOAD=""))
        self.base = base
        self.nato = time.monotonic()
        self.perdita = None
        self.u.ascolto = Ascolto(base + ".linea")
        self.u.attese = []
        # Not with the user's wait, which fails if there is no program.
        fine = time.monotonic() + PAZIENZA
        while not (os.path.exists(os.path.join(self.u.disco, "COM1")) and
                   os.path.exists(base + ".diario")):
            if time.monotonic() > fine:
                raise Guaio("waited in vain: the robot's port")
            time.sleep(0.05)

    def prepara_collegamenti(self):
        """Makes a link for each port number, which leads nowhere as long as there is no robot. So
        no real port of the machine is ever opened, whatever number the monkey types."""
        for numero in range(1, 100):
            if not os.path.islink(os.path.join(self.u.disco, f"COM{numero}")):
                self.scollega_porta(numero)

    def scollega_porta(self, numero):
        nome = os.path.join(self.u.disco, f"COM{numero}")
        nuovo = nome + ".nuovo"
        if os.path.islink(nuovo):
            os.remove(nuovo)
        os.symlink(os.path.join(self.casa, "senza-robot"), nuovo)
        os.replace(nuovo, nome)

    def ferma_robot(self, subito=False):
        if self.robot:
            # Before the robot ends: the number always has a link, and never one to a foreign line.
            self.scollega_porta(1)
            self.robot.send_signal(signal.SIGKILL if subito else signal.SIGTERM)
            self.robot.wait(timeout=60)
            self.robot = None

    def giudica_linea(self, intera=True):
        """Judges the recording of a robot that has ended: it must consist of whole commands, those
        that were asked for, and the robot's diary must have understood all of them."""
        self.u.ascolto.aggiorna()
        self.u.giudica_comandi(interrotta=not intera)
        if self.u.ascolto.coda and intera:
            raise Guaio(f"half a command at the end: {list(self.u.ascolto.coda)}")
        with open(self.base + ".diario", encoding="utf-8") as file:
            diario = file.read()
        if "non capito" in diario.lower():
            raise Guaio("the robot did not understand a byte")
        self.byte += self.u.ascolto.byte
        self.comandi += len(self.u.ascolto.comandi)
        for fine in (".linea", ".diario"):
            os.remove(self.base + fine)
        self.u.ascolto = None

    # Connecting.

    def collega(self):
        self.u.dice("connect")
        for _ in range(4):
            self.u.clic_console("Connetti ad Tessaro")
            # The attempt ends connected, or with the button enabled again after the box.
            quanti = len(self.u.avvisi)
            if self.u.attendi("the attempt's end", lambda: self.u.collegato() or
                              NON_RIUSCITO in self.u.avvisi[quanti:]) and self.u.collegato():
                break
        else:
            raise Guaio("four attempts to connect failed")
        self.u.posti.pop(CONSOLE, None)
        self.u.attendi("Connesso", lambda: self.u.stato() == "Connesso")

    def collega_invano(self, testo):
        self.u.dice(f"connect in vain: {testo}")
        self.u.clic_console("Connetti ad Tessaro")
        self.u.domanda(testo, "OK")

    def scollega(self):
        self.u.dice("disconnect")
        self.u.posti.pop(CONSOLE, None)
        prima = self.ora_del_robot()
        self.u.clic_console("Disconnetti")
        self.u.attendi("disconnected", lambda: self.u.stato() == "Non connesso")
        quando = prima, self.ora_del_robot()
        self.u.posti.pop(CONSOLE, None)
        # An earlier session may have been given up while the line lost everything, byte 4 too.
        if not self.u.entro(PAZIENZA, lambda: sessione_chiusa(self.u.ascolto.comandi)):
            if not (self.perdita and self.perdita.inghiotte(*quando)):
                raise Guaio("waited in vain: byte 4")
            self.dettagli("  byte 4 was lost on the line")

    def ora_del_robot(self):
        return 1000 * (time.monotonic() - self.nato)

    def aspetta_la_rinuncia(self):
        """Waits until the program notices that the robot is gone."""
        self.u.dice("the program gives the connection up")
        self.u.attendi("given up", lambda: self.u.stato() == "Non connesso", 240)
        self.u.posti.pop(CONSOLE, None)

    # A round.

    def giro(self, numero, fase):
        nome, opzioni, sporca = fase
        u = self.u
        self.dettagli(f"round {numero}: {nome}")
        u.sporca = sporca
        u.avvisi_ammessi = (NON_RIUSCITO,) if sporca or nome in (
            "lost line", "late answers") else ()
        if nome == "lost line":
            da = self.caso.randint(15000, 30000)
            opzioni = ["--perdi-linea", f"{da},20000"]
        self.avvia_robot(f"giro-{numero:03}", opzioni)
        if nome == "lost line":
            self.perdita = Perdita(da, 20000)
        if nome == "silence":
            self.giro_muto()
            return
        self.collega()
        if self.da_svuotare:
            # The rest of a damaged telegram is waited for even after disconnecting; the camera's
            # window discards it.
            u.camera()
        self.da_svuotare = sporca or nome == "lost line"
        if not sporca:
            u.attendi("the temperature", lambda: f"Temperatura {self.temperatura}°" in
                      u.etichette(CONSOLE))
        u.guida(self.caso.randint(2, 5))
        if self.caso.random() < 0.4:
            u.opzioni()
        u.apri_sequor()
        if u.su_disco and self.caso.random() < 0.6:
            u.apri_file(self.caso.choice(sorted(u.su_disco)))
        for _ in range(self.caso.randint(5, 9)):
            u.modifica()
        u.almeno_una_riga()
        if self.caso.random() < 0.5:
            u.ripeti()
            u.giudica_lista("Ripeti")
        if nome == "full disk":
            self.disco_pieno()
        else:
            u.salva(self.nome_lista())
        if nome == "unplugged in a run":
            self.stacco_in_corsa(numero)
        elif nome == "unplugged":
            self.stacco(numero)
        elif nome == "lost line":
            self.linea_persa()
        else:
            u.esegui(ferma=self.caso.random() < 0.3)
        u.inserimento(False)
        u.guida(2)
        u.inserimento(True)
        if not sporca and nome != "lost line":
            salvate = [n for n in sorted(u.su_disco) if n == u.lista.file]
            if salvate and self.caso.random() < 0.7:
                vera = self.caso.random() < 0.6
                gradi = self.temperatura if vera else self.caso.choice(
                    [g for g in GRADI if g != self.temperatura])
                u.vigila(salvate[0], gradi, vera)
        if self.caso.random() < 0.7:
            u.camera()
        if self.caso.random() < 0.7:
            u.sfoglia(self.caso.random() < 0.8)
        if self.caso.random() < 0.5:
            u.modifica()
        u.chiudi_sequor()
        u.giudica_file()
        self.scollega()
        self.ferma_robot()
        self.giudica_linea()

    def nome_lista(self):
        return f"lista{self.caso.randint(1, 4)}.sqm"

    def giro_muto(self):
        """With a robot that says nothing there is no connection, and everything else works."""
        u = self.u
        self.collega_invano(NON_RIUSCITO)
        u.attendi("the button enabled", lambda: not u.collegato() and u.stato() == "Non connesso")
        self.ferma_robot()
        self.giudica_linea()
        u.guida_scollegata()
        u.apri_sequor()
        for _ in range(5):
            u.modifica()
        u.almeno_una_riga()
        u.salva(self.nome_lista())
        u.premi(SEQUOR, "ESEGUI")
        u.domanda("Il robot non è collegato", "OK")
        u.giudica_lista("a run without a robot")
        u.chiudi_sequor()
        u.clic_console("Esplora i file all'interno di Tessaro")
        u.domanda("I file del ROBOT si possono vedere solo se si è collegati ad Tessaro", "OK")
        u.giudica_file()

    def disco_pieno(self):
        """Saves over an old file without room on the disk, then again with room."""
        u = self.u
        nome = self.nome_lista()
        if nome not in u.su_disco:
            u.salva(nome)
            u.modifica()
            u.almeno_una_riga()
        u.scorda_la_foto()
        zavorra = os.path.join(u.disco, "zavorra")
        u.dice("the disk fills up")
        with open(zavorra, "wb", buffering=0) as file:
            try:
                while True:
                    file.write(b"\0" * 4096)
            except OSError:
                pass
        try:
            u.salva(nome, riesce=False)
            u.modifica()
            u.almeno_una_riga()
            u.salva(riesce=False)
            u.sfoglia(True, riesce=False)
            u.esegui()
            u.opzioni()
        finally:
            os.remove(zavorra)
            u.dice("the disk has room again")
        u.salva()

    def riattacca(self, numero):
        self.da_svuotare = True
        self.avvia_robot(f"giro-{numero:03}b", [])
        self.collega()
        self.u.camera()

    def stacco(self, numero):
        """The cable is out while nothing runs; the program notices, or the user disconnects first."""
        u = self.u
        u.dice("unplugged")
        self.ferma_robot(subito=self.caso.random() < 0.5)
        self.giudica_linea(intera=False)
        u.modifica()
        if self.caso.random() < 0.5:
            self.aspetta_la_rinuncia()
        else:
            u.posti.pop(CONSOLE, None)
            u.clic_console("Disconnetti")
            u.attendi("disconnected", lambda: u.stato() == "Non connesso")
            u.posti.pop(CONSOLE, None)
        if self.caso.random() < 0.5:
            # Without a port the program says so, shows that it is connected, and then gives up. Its
            # polls report that there is no robot, too.
            u.avvisi_ammessi = (NON_COLLEGATO,)
            self.collega_invano(SENZA_PORTA)
            u.attendi("given up", lambda: "Disconnesso" in u.etichette(CONSOLE) and
                      not u.riquadro() and u.stato() == "Non connesso", 240)
            u.posti.pop(CONSOLE, None)
            u.avvisi_ammessi = ()
        u.giudica_lista("the return of the port")
        self.riattacca(numero)

    def stacco_in_corsa(self, numero):
        """The cable is pulled out while a list runs."""
        u = self.u
        u.dice("unplugged in a run")
        u.attese += comandi_della_lista(u.lista.righe)
        u.davanti(SEQUOR)
        u.premi(SEQUOR, "ESEGUI")
        u.controllo(SEQUOR, "push button", "STOP")
        u.entro(6, lambda: len(u.ascolto.azioni()) >= 2)
        self.ferma_robot(subito=True)
        self.giudica_linea(intera=False)
        self.aspetta_la_rinuncia()
        u.attendi("the run's end", lambda: u.bottone(SEQUOR, "ESEGUI"), 240)
        u.lista.scelta = u.prova(u.scelta_vera)
        u.giudica_lista("a run that was cut off")
        self.riattacca(numero)

    def linea_persa(self):
        """No byte arrives on either side for a while; the program searches for the robot."""
        u = self.u
        u.dice("the line loses everything")

        def tace():
            gia = u.ascolto.quanti(27)
            return not u.entro(1.5, lambda: u.ascolto.quanti(27) > gia)

        # On a busy machine it may be over before anybody looks.
        u.attendi("the silence", lambda: u.ascolto.silenzio > 10000 or tace())
        u.modifica()
        # Meanwhile the keep-alive may give up or find the robot again.
        torna = u.ascolto.quanti(27)
        u.attendi("the line's return", lambda: u.ascolto.quanti(27) > torna + 2 or
                  not u.collegato(), 240)
        if not u.collegato():
            # Byte 4 was lost on the line: the robot still believes in its session.
            u.posti.pop(CONSOLE, None)
            u.avvisi_ammessi = (NON_RIUSCITO,)
            self.collega()
        u.attendi("Connesso", lambda: u.stato() == "Connesso")
        u.sincronizza()
        u.giudica_lista("a lost line")
