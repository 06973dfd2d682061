"""The soak: the real program under the sanitizers, for hours if need be, with a robot that falls
silent, drops, doubles and garbles bytes, loses the line, goes away and comes back, and with a disk
that is full. What must hold all along: no crash, no report of the sanitizers, no memory that grows,
no list line that gets lost, no byte to the robot that nobody asked for.

soak.py HOME OUT MINUTES [--seed N] [--rounds KIND]: the folder that the script soak makes, the
folder for what is kept, how long."""

import argparse
import filecmp
import glob
import os
import random
import shutil
import signal
import subprocess
import sys
import time
import traceback

import judges
import memory
from windows import Finestre
from rounds import FASI, Giri
from line import ByteSbagliato
from costs import Misure
from screen import CONSOLE, mostrato
from monkey import Scimmia
from user import Guaio

# Limits of growth, in bytes a round: the median of the slopes over the second half. In use: boxes
# and the accessibility bus hold some ten kB more or less from round to round. Resident: judged only
# without the sanitizers, which keep the origin of each block for ever, so that it grows while the
# memory in use does not.
CRESCITA_IN_USO = 16 * 1024
CRESCITA_RESIDENTE = 256 * 1024


class Prova(Giri):
    def __init__(self, casa, out, seme, pagina=0, fasi=""):
        self.pagina = pagina
        self.fasi = [f for f in FASI if not fasi or f[0] in fasi.split(",")]
        self.seme = seme
        self.registro = open(os.path.join(out, "registro.txt"), "w", encoding="utf-8", buffering=1)
        self.inizio = time.monotonic()
        caso = random.Random(seme)
        super().__init__(casa, out, caso, Finestre(caso, casa, out, self.dettagli), self.dettagli)
        self.guai = []
        self.misure = []
        self.fasi_fatte = []
        self.crescite = [0.0, 0.0]
        self.originale = os.path.join(casa, "lumbra")
        self.scimmia = self.misuratore = None
        self.controllato = True  # whether it runs under the sanitizers
        self.pid = 0  # of the program
        self.rapporti_letti = set()

    def adesso(self):
        return time.monotonic() - self.inizio

    def dettagli(self, testo):
        self.registro.write(f"{self.adesso():8.1f} {testo}\n")

    def guaio(self, testo, errore=None):
        """Records a failure with its evidence."""
        self.guai.append(testo)
        if errore:
            self.dettagli("".join(traceback.format_exception(errore)))
        self.dettagli(f"FAILURE {testo}")
        print(f"FAILURE: {testo}", file=sys.stderr, flush=True)
        subprocess.run(["import", "-window", "root",
                        os.path.join(self.out, f"guaio-{len(self.guai):02}.png")], check=False)

    # The program and the robot.

    def avvia_programma(self):
        self.testimone = memory.Testimone(self.casa)
        # The user of an earlier run may have changed or replaced it.
        programma = os.path.join(self.u.disco, "lumbra")
        if not filecmp.cmp(self.originale, programma):
            os.remove(programma)
            shutil.copy2(self.originale, programma)
        self.file_segni = os.path.join(self.out, "segni.txt")
        if os.path.exists(self.file_segni):
            os.remove(self.file_segni)
        comune = "exitcode=99:log_path=" + os.path.join(self.out, "sanitizer")
        ambiente = dict(
            self.testimone.ambiente(),
            SOAK_SEGNI=self.file_segni,
            LD_PRELOAD=os.path.join(self.casa, "witness.so"),
            # With a small quarantine freed memory is used again, so that growth is the program's.
            ASAN_OPTIONS=f"{comune}:verify_asan_link_order=0:detect_leaks=1:quarantine_size_mb=1:"
                         "thread_local_quarantine_size_kb=64:malloc_context_size=15:"
                         "detect_stack_use_after_return=1" +
                         (":fast_unwind_on_malloc=0:malloc_context_size=25" if self.pagina else ""),
            LSAN_OPTIONS="suppressions=" + os.path.join(os.path.dirname(__file__), "suppressions.txt"),
            UBSAN_OPTIONS=f"{comune}:print_stacktrace=1:halt_on_error=1")
        with open(os.path.join(self.out, "programma.txt"), "ab") as uscita:
            self.u.processo = subprocess.Popen(
                [os.path.join(os.path.dirname(__file__), "fence"), self.casa, self.out, "--",
                 "env", *(f"{nome}={valore}" for nome, valore in ambiente.items()), programma],
                cwd=self.u.disco, stdout=uscita, stderr=subprocess.STDOUT)
        self.u.attendi("the console", lambda: self.u.finestra(CONSOLE))
        self.u.mappa(CONSOLE)
        self.pid = memory.discendente(self.u.processo.pid, "lumbra")
        with open(f"/proc/{self.pid}/maps", encoding="utf-8") as file:
            self.controllato = "libasan" in file.read()

    # The whole.

    def misura(self, numero, nome):
        self.misure.append((numero, nome, memory.residente(self.pid), self.testimone.in_uso()))
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
            except Guaio:  # another window is in front: the next pass closes that one
                u.tasti("Escape")
            time.sleep(1)
        u.lista.nuova()
        self.da_svuotare = True
        u.entro(200, lambda: u.stato() == "Non connesso", 1)
        if u.stato() != "Non connesso":
            raise Guaio("the program does not come back to rest")
        u.su_disco = {n: u.contenuto(n) for n in os.listdir(u.disco) if n.endswith(".sqm")}

    def svolgi(self, minuti):
        """The rounds of work, with one and the same process."""
        self.prepara_collegamenti()
        self.avvia_programma()
        fine = time.monotonic() + 60 * minuti
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
                self.guaio(f"round {numero} ({fase[0]}): {type(errore).__name__} {errore}", errore)
                self.rimetti()
            self.fasi_fatte.append(fase[0])
            self.misura(numero, fase[0])
            if self.pagina and numero % self.pagina == 0:
                self.testimone.pagina()
            if strani := self.u.strani[:]:
                self.u.strani.clear()
                self.guaio(f"round {numero} ({fase[0]}): boxes not expected: {strani}")

    def finisci(self):
        """The user ends the program; judges its exit status and its leak check."""
        u = self.u
        u.ascolto = None
        u.davanti(CONSOLE)
        u.tasti("alt+F4")
        esito = u.processo.wait(timeout=300)
        u.processo = None
        if esito != 0:
            self.guaio(f"exit status {esito}")
        if self.controllato and (lamento := judges.perdite(self.segni())):
            self.guaio(lamento)

    def segni(self):
        """The marks that the leak check left at the end of the program."""
        try:
            with open(self.file_segni, encoding="ascii") as file:
                return file.read().split()
        except FileNotFoundError:
            return []

    def termina_programma(self):
        if self.u.processo and self.u.processo.poll() is None:
            self.u.processo.kill()
            self.u.processo.wait()
        self.u.processo = None

    def giudica(self):
        rapporti = glob.glob(os.path.join(self.out, "sanitizer.*"))
        for rapporto in rapporti:
            with open(rapporto, encoding="utf-8", errors="replace") as file:
                lamento = judges.rapporto(file.read())
            if lamento and rapporto not in self.rapporti_letti:
                self.guaio(f"report of the sanitizers, {os.path.basename(rapporto)}: {lamento}")
        seconda = self.misure[len(self.misure) // 2:]
        self.crescite = [memory.pendenza([m[colonna] for m in seconda]) for colonna in (2, 3)]
        if len(seconda) >= 8:
            if self.crescite[0] > CRESCITA_RESIDENTE and not self.controllato:
                self.guaio(f"resident memory grows by {self.crescite[0] / 1024:.1f} kB a round")
            if self.crescite[1] > CRESCITA_IN_USO:
                self.guaio(f"memory in use grows by {self.crescite[1] / 1024:.1f} kB a round")

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
                  f"phases                    {len(set(self.fasi_fatte) - {'monkey'})} of {len(self.fasi)}",
                  f"the user's acts           {self.u.azioni}",
                  f"commands, bytes to robot  {self.comandi}, {self.byte}",
                  f"message boxes             {sum(avvisi.values())}",
                  *[f"  {quanti:4}  {testo}" for testo, quanti in avvisi.items()],
                  f"resident, first and last  {prima[2] / 1e6:.1f}, {ultima[2] / 1e6:.1f} MB",
                  f"in use, first and last    {prima[3] / 1e6:.3f}, {ultima[3] / 1e6:.3f} MB",
                  f"growth a round, 2nd half  resident {self.crescite[0] / 1024:.1f} kB, "
                  f"in use {self.crescite[1] / 1024:.2f} kB",
                  *(self.scimmia.racconta() if self.scimmia else []),
                  *(self.misuratore.racconta() if self.misuratore else []),
                  f"failures                  {len(self.guai)}",
                  *[f"  {g}" for g in self.guai]]
        self.tabella(righe)


def principale():
    lettore = argparse.ArgumentParser()
    lettore.add_argument("home")
    lettore.add_argument("out")
    lettore.add_argument("minutes", type=float)
    lettore.add_argument("--seed", type=int, default=random.SystemRandom().randrange(10 ** 6))
    # For the search of a growth that was found; the page itself costs memory.
    lettore.add_argument("--page", type=int, default=0, help="each so many rounds the sanitizers' "
                         "log gets a page that says who holds the memory")
    lettore.add_argument("--rounds", choices=("all", "work", "monkey", "costs"), default="all",
                         help="work and, for the last quarter, the monkey; one of the two; or what "
                         "each act costs in memory")
    lettore.add_argument("--phases", default="", help="only these phases, with commas")
    o = lettore.parse_args()
    prova = Prova(o.home, o.out, o.seed, o.page, o.phases)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped from outside"))
    prova.dettagli(f"seed {o.seed}")
    print(f"seed {o.seed}", flush=True)
    try:
        if o.rounds in ("all", "work"):
            prova.svolgi(o.minutes * (1 if o.rounds == "work" else 0.75))
            prova.finisci()
        if o.rounds in ("all", "monkey"):
            prova.scimmia = Scimmia(prova, o.minutes * (1 if o.rounds == "monkey" else 0.25))
            prova.scimmia.svolgi()
        if o.rounds == "costs":
            prova.misuratore = Misure(prova)
            prova.misuratore.svolgi()
    except (Exception, SystemExit) as errore:  # whatever it is, the table is printed
        prova.guaio(f"{type(errore).__name__} {errore}", errore)
        prova.termina_programma()
    prova.ferma_robot()
    prova.giudica()
    prova.racconta()
    return 1 if prova.guai else 0


sys.exit(principale())
