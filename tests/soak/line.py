"""What the console writes to the line, by the table of commands alone: cuts recorded bytes into
commands, and says which commands a line of a list asks for. Shares nothing with the simulated
robot's recogniser, so that each checks the other."""

LED = {"Vs": 8, "Vd": 128, "Rs": 4, "Rd": 64, "Gs": 2, "Gd": 32, "Bs": 1, "Bd": 16}

# By the second byte of the family 19: the values that the console can send.
ATTUATORI = {
    2: {0, *range(1, 38, 4)},
    3: {1},
    33: set(range(1, 5)),
    34: set(range(1, 5)),
    35: set(range(1, 13)),
    36: set(range(1, 13)),
    37: set(LED.values()),
    38: set(LED.values()),
    65: {0, 1, 2},
    66: {1, 2},
    67: {16, 17, 18, 19},  # 19: a typed text that is no entry of the combo box
    68: {16, 17, 18, 19},
    73: {4, 8},
    97: set(range(67, 223)),
    99: {0, *range(129, 139), *range(65, 75), *range(33, 43)},
    129: {0, 2, 4},
    130: {0, 2, 4},
    131: {0, 255},
    139: {0, 255},
    140: {0, 255},
    161: {1, 2},
}

# None is any value.
FISSI = {
    1: (1,),
    3: (3, 1, 1),
    4: (4,),
    10: (10, 10, 128, 0),
    11: (11, 160, 0),
    12: (12,),
    27: (27, 70),
    28: (28, 103),
    29: (29, 132),
    41: (41, None),
    44: (44, None, 255, 255),
    46: (46, None),
}

RICHIESTE = {27, 28, 29}
SESSIONE = {1, 3, 4}
REAZIONI = {41, 44, 46}  # what the program sends because the robot said something


class ByteSbagliato(Exception):
    """Bytes that are no command of the table, or a command with a value that it cannot have."""


def lunghezza(byte):
    """The length of the command at the beginning; 0 as long as it is not complete."""
    primo = byte[0]
    if primo in FISSI:
        schema = FISSI[primo]
        for atteso, vero in zip(schema, byte):
            if atteso is not None and atteso != vero:
                raise ByteSbagliato(list(byte[:12]))
        return len(schema) if len(byte) >= len(schema) else 0
    if primo == 19:
        if len(byte) > 1 and byte[1] not in ATTUATORI:
            raise ByteSbagliato(list(byte[:12]))
        if len(byte) < 3:
            return 0
        if byte[2] not in ATTUATORI[byte[1]]:
            raise ByteSbagliato(list(byte[:12]))
        return 3
    if primo == 40:
        if len(byte) > 1 and byte[1] not in (1, 16):
            raise ByteSbagliato(list(byte[:12]))
        return 3 + byte[2] if len(byte) >= 3 and len(byte) >= 3 + byte[2] else 0
    raise ByteSbagliato(list(byte[:12]))


class Ascolto:
    """Follows the recording of the line: the commands to the robot, as they arrive."""

    def __init__(self, file):
        self.file = file
        self.letto = 0
        self.coda = b""
        self.comandi = []
        self.byte = 0
        self.ultimo = None
        self.silenzio = 0  # the longest time without a byte from the program, in ms

    def aggiorna(self):
        try:
            with open(self.file, "rb") as file:
                file.seek(self.letto)
                nuovo = file.read()
        except FileNotFoundError:
            return
        nuovo = nuovo[:nuovo.rfind(b"\n") + 1]
        self.letto += len(nuovo)
        for riga in nuovo.splitlines():
            parti = riga.split()
            if len(parti) > 2 and parti[1] == b">":
                ora = int(parti[0])
                self.silenzio = max(self.silenzio, ora - (ora if self.ultimo is None
                                                          else self.ultimo))
                self.ultimo = ora
                self.coda += bytes(map(int, parti[2:]))
                self.byte += len(parti) - 2
        while self.coda:
            quanti = lunghezza(self.coda)
            if not quanti:
                break
            self.comandi.append(tuple(self.coda[:quanti]))
            self.coda = self.coda[quanti:]

    def scelti(self, *esclusi):
        return [c for c in self.comandi if not any(c[0] in gruppo for gruppo in esclusi)]

    def azioni(self):
        """What the user asked for, by hand or by a list."""
        return self.scelti(RICHIESTE, SESSIONE, REAZIONI)

    def quanti(self, primo):
        return sum(c[0] == primo for c in self.comandi)


def tutti_i_led(acceso):
    return [(19, 37 if acceso else 38, LED[nome])
            for nome in ("Vs", "Vd", "Rs", "Rd", "Gs", "Gd", "Bs", "Bd")]


INTERE = {
    "Stop": [(19, 65, 0)],
    "Foto": [(19, 3, 1)],
    "Braccia Stop": [(19, 129, 0), (19, 130, 0)],
    "Pinza Apri": [(19, 161, 1)],
    "Pinza Chiudi": [(19, 161, 2)],
    "Bacino Alza": [(19, 73, 4)],
    "Bacino Abbassa": [(19, 73, 8)],
    "Avanti piano": [(19, 65, 1)],
    "Avanti veloce": [(19, 65, 2)],
    "Indietro piano": [(19, 66, 1)],
    "Indietro veloce": [(19, 66, 2)],
    "Destra": [(19, 67, 16)],
    "Sinistra": [(19, 68, 16)],
    "Destra ½": [(19, 67, 18)],
    "Sinistra ½": [(19, 68, 18)],
    "LED Posizione ON": [(19, 131, 255)],
    "LED Posizione OFF": [(19, 131, 0)],
    "Testa LED tutti on": tutti_i_led(True),
    "Testa LED tutti off": tutti_i_led(False),
    "Braccio Sx Alza": [(19, 129, 2)],
    "Braccio Dx Alza": [(19, 130, 2)],
    "Braccio Sx Abbassa": [(19, 129, 4)],
    "Braccio Dx Abbassa": [(19, 130, 4)],
    "Mex stop": [(19, 99, 0)],
    "Prog interno Stop": [(19, 2, 0)],
}
TESTA = {"su": 33, "giu": 34, "destra": 35, "sinistra": 36}


def comandi_della_riga(riga):
    """The commands that a line asks for, none for a pause."""
    if riga in INTERE:
        return INTERE[riga]
    parti = riga.split()
    if parti[0] == "Pausa":
        return []
    if parti[0] == "Testa" and parti[1] in TESTA:
        return [(19, TESTA[parti[1]], int(parti[2]))]
    if parti[0] == "Frase":
        return [(19, 97, int(parti[1]) + 66)]
    if parti[0] == "Suono":
        return [(19, 97, int(parti[1]) + 206)]
    if parti[0] == "Mex" and parti[2] == "play":
        return [(19, 99, 128 + int(parti[1]))] * 2
    if parti[:2] == ["Prog", "interno"]:
        return [(19, 2, 4 * int(parti[2]) - 3)]
    raise ValueError(riga)


def comandi_della_lista(righe):
    """All commands of a run. A "Ripeti" repeats the lines since the "Ripeti" before it."""
    fatti, blocco = [], []
    for riga in righe:
        if riga.startswith("Ripeti"):
            volte = int(riga.split()[1])
            fatti += blocco * (volte + 1)
            blocco = []
        else:
            blocco += comandi_della_riga(riga)
    return fatti + blocco


def durata_della_lista(righe):
    """Upper bound of a run's length, in seconds, without the robot's delays."""
    totale, blocco = 0, 0
    for riga in righe:
        if riga.startswith("Ripeti"):
            totale += (blocco + 200) * (int(riga.split()[1]) + 1)
            blocco = 0
        elif riga.startswith("Pausa"):
            blocco += int(riga.split()[1])
        elif riga.startswith("Testa ") and riga.split()[1] in TESTA:
            blocco += max(1600, 800 * int(riga.split()[2]))
        else:
            blocco += 1600
    return (totale + blocco) / 1000
