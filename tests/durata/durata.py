"""The soak: the real program under the sanitizers, for hours if need be, with a robot that falls
silent, drops, doubles and garbles bytes, loses the line, goes away and comes back, and with a disk
that is full. What must hold all along: no crash, no report of the sanitizers, no memory that grows,
no list line that gets lost, no byte to the robot that nobody asked for.

durata.py HOUSE OUT MINUTES [--seme N]: the folder made by the script beside this, the folder for what
is kept, how long."""

import argparse
import glob
import os
import random
import re
import signal
import subprocess
import sys
import time
import traceback

import memoria
from lavori import NON_COLLEGATO, Lavori
from linea import Ascolto, ByteSbagliato
from schermo import mostrato
from utente import CONSOLE, RISORSE, SEQUOR, Guaio

RIUSCITO = "Collegamento non riuscito!"
SENZA_PORTA = "La porta non esiste"
GRADI = (22, 23, 24, 26, 27)

# Name, options of the simulated robot, whether what the robot says comes spoilt.
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

# Growth that is still none: what is in use varies by some rows of a list and by what the
# accessibility bus keeps of the windows that it has met; a leak of one small box each round is more.
CRESCITA_IN_USO = 4 * 1024  # bytes a round, median
CRESCITA_RESIDENTE = 128 * 1024  # bytes a round: the allocator's own pools fill up slowly


class Prova:
    def __init__(self, casa, out, minuti, seme, pagina=0, fasi=""):
        self.pagina = pagina
        self.fasi = [f for f in FASI if not fasi or f[0] in fasi.split(",")]
        self.casa, self.out, self.minuti, self.seme = casa, out, minuti, seme
        self.registro = open(os.path.join(out, "registro.txt"), "w", encoding="utf-8", buffering=1)
        self.inizio = time.monotonic()
        self.caso = random.Random(seme)
        self.u = Lavori(self.caso, casa, out, self.dettagli)
        self.robot = None
        self.guai = []
        self.misure = []
        self.fasi_fatte = []
        self.temperatura = 24
        self.da_svuotare = False
        self.byte = 0
        self.comandi = 0

    def dettagli(self, testo):
        self.registro.write(f"{time.monotonic() - self.inizio:8.1f} {testo}\n")

    def guaio(self, testo):
        """Records a failure with its evidence."""
        self.guai.append(testo)
        self.dettagli(f"FAILURE {testo}")
        print(f"FAILURE: {testo}", file=sys.stderr, flush=True)
        subprocess.run(["import", "-window", "root",
                        os.path.join(self.out, f"guaio-{len(self.guai):02}.png")], check=False)

    # The program and the robot.

    def avvia_programma(self):
        self.testimone = memoria.Testimone(self.casa)
        comune = "exitcode=99:log_path=" + os.path.join(self.out, "sanitizer")
        ambiente = dict(
            os.environ, **self.testimone.ambiente(),
            LD_PRELOAD=os.path.join(self.casa, "testimone.so"),
            # A small quarantine: freed memory comes back, so that growth is the program's own.
            ASAN_OPTIONS=f"{comune}:verify_asan_link_order=0:detect_leaks=1:quarantine_size_mb=1:"
                         "thread_local_quarantine_size_kb=64:malloc_context_size=15:"
                         "detect_stack_use_after_return=1" +
                         (":fast_unwind_on_malloc=0:malloc_context_size=25" if self.pagina else ""),
            LSAN_OPTIONS="suppressions=" + os.path.join(os.path.dirname(__file__), "altrui.txt"),
            UBSAN_OPTIONS=f"{comune}:print_stacktrace=1:halt_on_error=1")
        self.u.processo = subprocess.Popen(
            [os.path.join(self.u.disco, "lumbra")], cwd=self.u.disco, env=ambiente,
            stdout=open(os.path.join(self.out, "programma.txt"), "wb"), stderr=subprocess.STDOUT)
        self.u.attendi("the console", lambda: self.u.finestra(CONSOLE))
        self.u.mappa(CONSOLE)

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
        self.u.ascolto = Ascolto(base + ".linea")
        self.u.attese = []
        self.u.attendi("the robot's port", lambda: os.path.exists(os.path.join(
            self.u.disco, "COM1")) and os.path.exists(base + ".diario"))

    def ferma_robot(self, subito=False):
        if self.robot:
            self.robot.send_signal(signal.SIGKILL if subito else signal.SIGTERM)
            self.robot.wait(timeout=60)
            self.robot = None

    def giudica_linea(self, intera=True):
        """The recording of a robot that has gone: wholly commands, and those that were asked for;
        the robot's own diary has understood all."""
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
            # The end of the attempt: connected, or the button on offer again after the box.
            quanti = len(self.u.avvisi)
            if self.u.attendi("the attempt's end", lambda: self.u.collegato() or
                              RIUSCITO in self.u.avvisi[quanti:]) and self.u.collegato():
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
        self.u.clic_console("Disconnetti")
        self.u.attendi("disconnected", lambda: self.u.stato() == "Non connesso")
        self.u.posti.pop(CONSOLE, None)
        self.u.attendi("byte 4", lambda: self.u.ascolto.quanti(4) == self.u.ascolto.quanti(3))

    def aspetta_la_rinuncia(self):
        """The robot is gone: the program finds out by itself."""
        self.u.dice("the program gives the connection up")
        self.u.attendi("given up", lambda: self.u.stato() == "Non connesso", 240)
        self.u.posti.pop(CONSOLE, None)

    # A round.

    def giro(self, numero, fase):
        nome, opzioni, sporca = fase
        u = self.u
        self.dettagli(f"round {numero}: {nome}")
        u.sporca = sporca
        u.avvisi_ammessi = (RIUSCITO,) if sporca or nome in (
            "lost line", "late answers") else ()
        if nome == "lost line":
            opzioni = ["--perdi-linea", f"{self.caso.randint(15000, 30000)},20000"]
        self.avvia_robot(f"giro-{numero:03}", opzioni)
        if nome == "silence":
            self.giro_muto()
            return
        self.collega()
        if self.da_svuotare:
            # What is left of a spoilt telegram is waited for beyond the disconnection; the camera's
            # window empties it.
            u.camera()
        self.da_svuotare = sporca or nome == "lost line"
        u.guida(self.caso.randint(2, 5))
        if self.caso.random() < 0.4:
            u.opzioni()
        u.apri_sequor()
        if u.su_disco and self.caso.random() < 0.6:
            u.apri_file(self.caso.choice(sorted(u.su_disco)))
        for _ in range(self.caso.randint(5, 9)):
            u.modifica()
        if not u.lista.righe:
            u.dal_menu()
            u.giudica_lista("a line")
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
        """A robot that says nothing: no connection comes about, and all else works."""
        u = self.u
        self.collega_invano(RIUSCITO)
        u.attendi("the button on offer", lambda: not u.collegato() and u.stato() == "Non connesso")
        self.ferma_robot()
        self.giudica_linea()
        u.guida_scollegata()
        u.apri_sequor()
        for _ in range(5):
            u.modifica()
        if not u.lista.righe:
            u.dal_menu()
        u.salva(self.nome_lista())
        u.premi(SEQUOR, "ESEGUI")
        u.domanda("Il robot non è collegato", "OK")
        u.giudica_lista("a run without a robot")
        u.chiudi_sequor()
        u.clic_console("Esplora i file all'interno di Tessaro")
        u.domanda("I file del ROBOT si possono vedere solo se si è collegati ad Tessaro", "OK")
        u.giudica_file()

    def disco_pieno(self):
        """Saves that the disk has no room for, over an old file; then again with room."""
        u = self.u
        nome = self.nome_lista()
        if nome not in u.su_disco:
            u.salva(nome)
            u.modifica()
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
            u.salva(riesce=False)
            if u.sfoglia(False) is None:
                raise Guaio("no listing")
            u.esegui()
            u.opzioni()
        finally:
            os.remove(zavorra)
            u.dice("the disk has room again")
        if not u.lista.righe:
            u.dal_menu()
        u.salva()

    def riattacca(self, numero):
        self.da_svuotare = True
        self.avvia_robot(f"giro-{numero:03}b", [])
        self.collega()
        self.u.camera()

    def stacco(self, numero):
        """The cable goes while nothing is done; the program finds out, or the user is faster."""
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
            # The port is not there: the program says so, says it is connected, then gives up.
            # Its polls, too, say that there is no robot.
            u.avvisi_ammessi = (NON_COLLEGATO,)
            self.collega_invano(SENZA_PORTA)
            u.attendi("given up", lambda: "Disconnesso" in u.etichette(CONSOLE) and
                      not u.riquadro() and u.stato() == "Non connesso", 240)
            u.posti.pop(CONSOLE, None)
            u.avvisi_ammessi = ()
        u.giudica_lista("the return of the port")
        self.riattacca(numero)

    def stacco_in_corsa(self, numero):
        """The cable goes while a list runs."""
        u = self.u
        u.dice("unplugged in a run")
        u.attese += [c for r in [u.lista.righe] for c in attese_della(r)]
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
        """For a while nothing gets through, either way; a search for the robot, its return."""
        u = self.u
        u.dice("the line loses all")
        gia = u.ascolto.quanti(27)
        tace = lambda: not u.entro(1.5, lambda: u.ascolto.quanti(27) > quanti[0])
        quanti = [gia]

        def silenzio():
            quanti[0] = u.ascolto.quanti(27)
            return tace()

        u.attendi("the silence", silenzio)
        u.modifica()
        # The keep-alive may give up in this time or find the robot again.
        torna = u.ascolto.quanti(27)
        u.attendi("the line's return", lambda: u.ascolto.quanti(27) > torna + 2 or
                  not u.collegato(), 240)
        if not u.collegato():
            # Byte 4 got lost on the line: the robot does not know.
            u.posti.pop(CONSOLE, None)
            u.avvisi_ammessi = (RIUSCITO,)
            self.collega()
        u.attendi("Connesso", lambda: u.stato() == "Connesso")
        u.sincronizza()
        u.giudica_lista("a lost line")

    # The whole.

    def misura(self, numero, nome):
        processo = self.u.processo.pid
        self.misure.append((numero, nome, memoria.residente(processo), self.testimone.in_uso()))
        _, _, rss, uso = self.misure[-1]
        self.dettagli(f"resident {rss / 1e6:.1f} MB, in use {uso / 1e6:.3f} MB")

    def rimetti(self):
        """After a failure: closes what is open, so that the next round starts like any other."""
        u = self.u
        if u.processo.poll() is not None:
            raise Guaio(f"the program has ended: {u.processo.returncode}")
        self.ferma_robot()
        u.ascolto = None
        zavorra = os.path.join(u.disco, "zavorra")
        if os.path.exists(zavorra):
            os.remove(zavorra)
        u.posti.clear()
        u.avvisi_ammessi = ("",)
        for _ in range(60):
            u.rispondi_agli_avvisi()
            aperte = u.prova(lambda: [f.name for f in u.applicazione() if mostrato(f) and f.name and
                                      not f.name.startswith("Lumbra")])
            if not aperte:
                break
            try:
                u.davanti(aperte[-1])
                u.tasti("alt+F4")
            except Guaio:  # something stands before it: the next round takes that
                u.tasti("Escape")
            time.sleep(1)
        u.lista.nuova()
        self.da_svuotare = True
        u.entro(200, lambda: u.stato() == "Non connesso", 1)
        if u.stato() != "Non connesso":
            raise Guaio("the program does not come back")
        u.su_disco = {n: u.contenuto(n) for n in os.listdir(u.disco) if n.endswith(".sqm")}

    def svolgi(self):
        self.avvia_programma()
        fine = self.inizio + 60 * self.minuti
        numero, mazzo = 0, []
        self.misura(0, "start")
        while time.monotonic() < fine or numero == 0:
            numero += 1
            if not mazzo:
                mazzo = self.fasi[1:]
                self.caso.shuffle(mazzo)
                mazzo.insert(0, self.fasi[0])
            fase = mazzo.pop(0)
            try:
                self.giro(numero, fase)
            except (Guaio, ByteSbagliato, StopIteration, subprocess.SubprocessError) as errore:
                self.guaio(f"round {numero} ({fase[0]}): {type(errore).__name__} {errore}")
                self.dettagli(traceback.format_exc())
                self.rimetti()
            self.fasi_fatte.append(fase[0])
            self.misura(numero, fase[0])
            if self.pagina and numero % self.pagina == 0:
                self.testimone.pagina()
            if strani := self.u.strani[:]:
                self.u.strani.clear()
                self.guaio(f"round {numero} ({fase[0]}): boxes not expected: {strani}")

    def finisci(self):
        """The user ends the program; its exit status and the sanitizers' word."""
        u = self.u
        u.ascolto = None
        u.davanti(CONSOLE)
        u.tasti("alt+F4")
        esito = u.processo.wait(timeout=300)
        if esito != 0:
            self.guaio(f"exit status {esito}")

    def giudica(self):
        rapporti = glob.glob(os.path.join(self.out, "sanitizer.*"))
        for rapporto in rapporti:
            with open(rapporto, encoding="utf-8", errors="replace") as file:
                testo = file.read()
            if trovato := re.search(r"ERROR: |runtime error: ", testo):
                self.guaio(f"report of the sanitizers, {os.path.basename(rapporto)}: "
                           f"{testo[trovato.start():][:400]}")
        seconda = self.misure[len(self.misure) // 2:]
        self.crescite = [memoria.pendenza([m[colonna] for m in seconda]) for colonna in (2, 3)]
        if len(seconda) >= 8:
            for crescita, limite, cosa in zip(self.crescite, (CRESCITA_RESIDENTE, CRESCITA_IN_USO),
                                              ("resident memory", "memory in use")):
                if crescita > limite:
                    self.guaio(f"{cosa} grows by {crescita / 1024:.1f} kB a round")

    def tabella(self, testo):
        for riga in testo:
            print(riga, flush=True)
            self.registro.write(riga + "\n")

    def racconta(self):
        minuti = (time.monotonic() - self.inizio) / 60
        righe = ["", "round  phase                   resident MB   in use MB"]
        righe += [f"{n:5}  {nome:22} {rss / 1e6:11.1f} {uso / 1e6:11.3f}"
                  for n, nome, rss, uso in self.misure]
        avvisi = {t: self.u.avvisi.count(t) for t in sorted(set(self.u.avvisi))}
        prima, ultima = (self.misure or [(0, "", 0, 0)])[0], (self.misure or [(0, "", 0, 0)])[-1]
        righe += ["", f"seed                      {self.seme}",
                  f"duration                  {minuti:.1f} min",
                  f"rounds                    {len(self.fasi_fatte)}",
                  f"phases                    {len(set(self.fasi_fatte))} of {len(self.fasi)}",
                  f"the user's deeds          {self.u.azioni}",
                  f"commands, bytes to robot  {self.comandi}, {self.byte}",
                  f"message boxes             {sum(avvisi.values())}",
                  *[f"  {quanti:4}  {testo}" for testo, quanti in avvisi.items()],
                  f"resident, first and last  {prima[2] / 1e6:.1f}, {ultima[2] / 1e6:.1f} MB",
                  f"in use, first and last    {prima[3] / 1e6:.3f}, {ultima[3] / 1e6:.3f} MB",
                  f"growth a round, 2nd half  resident {self.crescite[0] / 1024:.1f} kB, "
                  f"in use {self.crescite[1] / 1024:.2f} kB",
                  f"failures                  {len(self.guai)}",
                  *[f"  {g}" for g in self.guai]]
        self.tabella(righe)


def attese_della(righe):
    from linea import comandi_della_lista
    return comandi_della_lista(righe)


def principale():
    lettore = argparse.ArgumentParser()
    lettore.add_argument("casa")
    lettore.add_argument("out")
    lettore.add_argument("minuti", type=float)
    lettore.add_argument("--seme", type=int, default=random.SystemRandom().randrange(10 ** 6))
    # The page costs memory itself: for the search of a growth that was found.
    lettore.add_argument("--pagina", type=int, default=0, help="each so many rounds the sanitizers' "
                         "log tells who holds the memory")
    lettore.add_argument("--fasi", default="", help="only these phases, with commas")
    o = lettore.parse_args()
    prova = Prova(o.casa, o.out, o.minuti, o.seme, o.pagina, o.fasi)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped from outside"))
    prova.dettagli(f"seed {o.seme}")
    print(f"seed {o.seme}", flush=True)
    try:
        prova.svolgi()
        prova.finisci()
    except (Exception, SystemExit) as errore:  # whatever it is, the table is told
        prova.guaio(f"{type(errore).__name__} {errore}")
        prova.dettagli(traceback.format_exc())
        if prova.u.processo and prova.u.processo.poll() is None:
            prova.u.processo.kill()
            prova.u.processo.wait()
    prova.ferma_robot()
    prova.giudica()
    prova.racconta()
    return 1 if prova.guai else 0


sys.exit(principale())
