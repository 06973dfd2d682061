"""Rules of the whole source that no single test program can check: what ends the program, who makes
boxes, that no failure of a handler crosses Qt's dispatch, that no include runs upward or in a
circle.
test_rules.py ROOT: the folder of the sources."""

import pathlib
import re
import sys
import unittest

RADICE = pathlib.Path(sys.argv.pop() if len(sys.argv) > 1 else ".")
CARTELLE = ["base", "controls", "controls/look", "serial", "shell", "link", "movelists",
            "conditional", "filebrowser", "vision", "console"]

# The floors: what each folder may include, the drawings aside. The simulated robot and the program
# share the look and the drawings, and nothing of the line.
BASE = {"base"}
CONTROLS = BASE | {"controls", "controls/look"}
SERIAL = CONTROLS | {"serial"}
SHELL = SERIAL | {"shell"}
LINK = SHELL | {"link"}
MOVELISTS = LINK | {"movelists"}
CONSOLE = LINK | {"movelists", "console"}
FLOORS = {
    "art": set(),
    "base": BASE,
    "controls/look": {"controls/look"},
    "controls": CONTROLS,
    "serial": SERIAL,
    "shell": SHELL,
    "link": LINK,
    "vision": LINK | {"vision"},
    "filebrowser": LINK | {"filebrowser"},
    "movelists": MOVELISTS,
    "conditional": MOVELISTS | {"conditional"},
    "console": CONSOLE,
    "simulator/line": {"simulator/line"},
    "simulator/robot": {"simulator/line", "simulator/robot"},
    "simulator": {"simulator/line", "simulator/robot", "simulator", "simulator/window",
                  "controls/look"},
    "simulator/window": {"simulator/line", "simulator/robot", "simulator", "simulator/window",
                         "controls/look"},
}
INCLUSO = re.compile(r'^#include "([^"]+)/([^/"]+)"', re.M)

# Functions that run handlers and deal with what fails in them.
RIPARI = ["eseguiGestore", "passaErrori", "provaPassata"]
# Functions that Qt calls, besides slots.
ENTRATE = re.compile(r"^(\w*Event|event|eventFilter|doAction|sizeHint|displayText|validate|"
                     r"rowsInserted|rowsAboutToBeRemoved|reset|moveCursor|selectionCommand)$")
# Calls that a person has checked: a function of that name in another class can fail, or this call
# cannot fail at this place.
VISTE = {
    ("Accessibile.cpp", "doAction", "azione"),
    ("Controllo.h", "mousePressEvent", "premuto"),
    ("Cornice.cpp", "paintEvent", "titolo"),
    ("Elenco.cpp", "mousePressEvent", "premuto"),
    ("Finestra.cpp", "event", "attiva"),
    ("Pulsanti.cpp", "eventFilter", "passo"),  # it checks the limits first
    ("Pulsanti.cpp", "connect", "passo"),
    ("TastoTenuto.cpp", "eventFilter", "finito"),
    ("TastoTenuto.cpp", "eventFilter", "premuto"),
}


def sorgenti():
    for cartella in CARTELLE:
        yield from sorted((RADICE / cartella).glob("*.cpp"))
        yield from sorted((RADICE / cartella).glob("*.h"))
    yield RADICE / "main.cpp"


def nudo(testo):
    """The code without comments and with empty strings."""
    testo = re.sub(r"//[^\n]*", "", testo)
    testo = re.sub(r"/\*.*?\*/", "", testo, flags=re.S)
    testo = re.sub(r"'(\\.|[^'\\])'", "' '", testo)
    return re.sub(r'"(\\.|[^"\\])*"', '""', testo)


def chiusa(testo, inizio):
    """The place after the bracket that closes the one at `inizio`."""
    apre = testo[inizio]
    chiude = {"(": ")", "{": "}", "[": "]"}[apre]
    aperte = 0
    for i in range(inizio, len(testo)):
        if testo[i] == apre:
            aperte += 1
        elif testo[i] == chiude:
            aperte -= 1
            if aperte == 0:
                return i + 1
    raise ValueError("an open bracket")


PAROLE = {"if", "for", "while", "switch", "return", "catch", "sizeof", "else", "new", "throw", "do"}
DEFINIZIONE = re.compile(r"(?<![\w.>])((?:\w+::)*~?\w+)\s*\(")


def funzioni(testo):
    """Name and body of each function that the text defines."""
    for trovata in DEFINIZIONE.finditer(testo):
        nome = trovata.group(1).split("::")[-1]
        if nome in PAROLE:
            continue
        try:
            dopo = chiusa(testo, trovata.end() - 1)
        except ValueError:
            continue
        coda = re.match(r"\s*(const|noexcept|override|final|\s)*(:[^;{}]*)?(?=\{)", testo[dopo:])
        if not coda:
            continue
        corpo = dopo + coda.end()
        yield nome, testo[corpo:chiusa(testo, corpo)]


def senza_ripari(corpo):
    """What remains of a body without everything that runs inside try or a function of RIPARI."""
    while True:
        riparo = re.search(r"\b(" + "|".join(RIPARI) + r")\s*\(", corpo)
        if not riparo:
            break
        corpo = corpo[:riparo.start()] + corpo[chiusa(corpo, riparo.end() - 1):]
    while True:
        riparo = re.search(r"\btry\s*\{", corpo)
        if not riparo:
            return corpo
        fine = chiusa(corpo, riparo.end() - 1)
        corpo = corpo[:riparo.start()] + corpo[fine:]


def chiamate(corpo):
    return {nome for nome in re.findall(r"\b(\w+)\s*\(", corpo) if nome not in PAROLE}


class Regole(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.testi = {file: nudo(file.read_text()) for file in sorgenti()}
        cls.funzioni = [(file, nome, corpo) for file, testo in cls.testi.items()
                        for nome, corpo in funzioni(testo)]

    def test_the_tests_are_set_up_as_the_program_is(self):
        for nome in ["main.cpp", "tests/test_main.cpp"]:
            testo = nudo((RADICE / nome).read_text())
            self.assertEqual(testo.count("preparaApplicazione(app);"), 1, nome)
            for suo in ["setQuitOnLastWindowClosed", "setQuitLockEnabled", "installTranslator",
                        "installaItaliano", "impostaAspetto", "setStyle", "setPalette",
                        "setWindowIcon", "setDesktopFileName", "setDefault"]:
                self.assertNotIn(suo, testo, f"{nome}: belongs into preparaApplicazione")

    def test_the_program_ends_in_one_place(self):
        fine = re.compile(r"\b(_Exit|_exit|exit|quick_exit|abort|quit|terminate)\s*\(|"
                          r"QuitOnClose|QuitOnLastWindowClosed")
        for file, testo in self.testi.items():
            if file.name in ["Comandi.cpp", "Applicazione.cpp"]:
                continue
            self.assertIsNone(fine.search(testo), f"{file}: {fine.search(testo)}")

    def test_boxes_and_file_dialogs_are_made_in_one_place_each_over_a_window(self):
        for file, testo in self.testi.items():
            fatti = re.findall(r"\bnew\s+(?:QMessageBox|QFileDialog|Riquadro)\s*\(([^;]*)\);", testo)
            fatti += re.findall(r"\b(?:QMessageBox|QFileDialog|Riquadro)\s+\w+\s*[({;]", testo)
            fatti += re.findall(r"\bQ(?:MessageBox|FileDialog)::(?:get|about|warning|information|"
                                r"critical|question)\w*\s*\(", testo)
            if file.name in ["Messaggi.cpp", "FinestraFile.cpp"]:
                self.assertEqual(fatti, ["Finestra::Davanti()"], file)
            else:
                self.assertEqual(fatti, [], file)

    def test_no_handler_for_a_failure_closes_files(self):
        # Closing writes what is still in the buffer, and may fail itself; abbandona() cannot.
        for file, testo in self.testi.items():
            for inizio in re.finditer(r"\bcatch\s*\([^)]*\)\s*\{", testo):
                corpo = testo[inizio.end() - 1:chiusa(testo, inizio.end() - 1)]
                self.assertNotIn("Archivio::chiudi", senza_ripari(corpo), file)

    def inclusi(self):
        """Each source of the program and of the simulated robot, with its includes."""
        for cartella in FLOORS:
            for file in sorted([*(RADICE / cartella).glob("*.cpp"), *(RADICE / cartella).glob("*.h")]):
                yield cartella, file, INCLUSO.findall(file.read_text())

    def test_no_include_runs_upward(self):
        quanti, saliti = 0, []
        for cartella, file, inclusi in self.inclusi():
            for sotto, nome in inclusi:
                quanti += 1
                if sotto not in FLOORS[cartella] | {"art"}:
                    saliti.append(f"{file.relative_to(RADICE)} includes {sotto}/{nome}")
        self.assertGreater(quanti, 500)
        self.assertEqual(saliti, [])

    def test_an_include_says_its_folder(self):
        for _, file, _ in self.inclusi():
            self.assertEqual(re.findall(r'^#include "[^"/]+"', file.read_text(), re.M), [], file)

    def test_no_headers_include_each_other_in_a_circle(self):
        sotto = {str(file.relative_to(RADICE)): [f"{c}/{n}" for c, n in inclusi]
                 for _, file, inclusi in self.inclusi()}
        finiti, aperti = set(), []

        def scendi(nome):
            self.assertNotIn(nome, aperti, f"a circle: {' > '.join([*aperti, nome])}")
            if nome in finiti or nome not in sotto:
                return
            aperti.append(nome)
            for altro in sotto[nome]:
                scendi(altro)
            finiti.add(aperti.pop())

        for nome in sotto:
            scendi(nome)

    def test_no_two_headers_have_one_name(self):
        nomi = {}
        for radice in [*FLOORS, "tests", "fuzz", "benchmarks"]:
            figli = (RADICE / radice).rglob("*.h") if radice == "tests" else (RADICE / radice).glob("*.h")
            for file in figli:
                self.assertNotIn(file.name, nomi, f"{file} and {nomi.get(file.name)}")
                nomi[file.name] = file

    def fallibili(self):
        """Names of functions that can throw, by what they throw and what they call."""
        nomi = {nome for _, nome, corpo in self.funzioni
                if re.search(r"\bthrow\b", senza_ripari(corpo))}
        while True:
            altri = {nome for _, nome, corpo in self.funzioni
                     if nome not in nomi and not ENTRATE.match(nome)
                     and chiamate(senza_ripari(corpo)) & nomi}
            if not altri:
                return nomi
            nomi |= altri

    def test_no_failure_of_a_handler_crosses_qts_dispatch(self):
        fallibili = {nome for nome in self.fallibili() if nome not in self.eventi()}
        self.assertIn("setListIndex", fallibili)
        scoperte = []
        for file, nome, corpo in self.funzioni:
            if ENTRATE.match(nome):
                for chiamata in sorted(chiamate(senza_ripari(corpo)) & fallibili):
                    if (file.name, nome, chiamata) not in VISTE:
                        scoperte.append(f"{file.relative_to(RADICE)}: {nome} calls {chiamata}")
        for file, testo in self.testi.items():
            for inizio in re.finditer(r"(?<!dis)\bconnect\s*\(", testo):
                collegato = testo[inizio.end() - 1:chiusa(testo, inizio.end() - 1)]
                for chiamata in sorted(chiamate(senza_ripari(collegato)) & fallibili):
                    if (file.name, "connect", chiamata) not in VISTE:
                        scoperte.append(f"{file.relative_to(RADICE)}: connect calls {chiamata}")
        self.assertEqual(scoperte, [], "run it in eseguiGestore, or raise an Evento")

    def eventi(self):
        """Names of events, which run their handlers in eseguiGestore themselves."""
        return {nome for testo in self.testi.values()
                for nome in re.findall(r"\bEvento<[^;{}]*>\s+(\w+)\s*;", testo)}


if __name__ == "__main__":
    unittest.main()
