"""How much memory the program holds, and whether that grows."""

import os
import select


class Testimone:
    """Asks the library witness.c, which is loaded before the program."""

    def __init__(self, cartella):
        self.nomi = [os.path.join(cartella, nome) for nome in ("domande", "risposte")]
        for nome in self.nomi:
            if not os.path.exists(nome):
                os.mkfifo(nome)
        self.domande, self.risposte = (os.open(nome, os.O_RDWR) for nome in self.nomi)

    def ambiente(self):
        return dict(zip(("SOAK_DOMANDE", "SOAK_RISPOSTE"), self.nomi))

    def chiedi(self, cosa):
        os.write(self.domande, cosa)
        if not select.select([self.risposte], [], [], 120)[0]:
            raise TimeoutError("The program does not say how much memory it holds")
        return int(os.read(self.risposte, 64).split()[-1])

    def in_uso(self):
        return self.chiedi(b"m")

    def pagina(self):
        """Writes into the sanitizers' log who holds the memory."""
        return self.chiedi(b"p")


def discendente(pid, nome):
    """The process of that name among the descendants of this one; None if there is none yet."""
    try:
        with open(f"/proc/{pid}/comm", encoding="utf-8") as file:
            if file.read().strip() == nome:
                return pid
        with open(f"/proc/{pid}/task/{pid}/children", encoding="ascii") as file:
            figli = list(map(int, file.read().split()))
    except (FileNotFoundError, ProcessLookupError):
        return None
    for figlio in figli:
        if trovato := discendente(figlio, nome):
            return trovato
    return None


def attesa_del_processore(*processi):
    """How many seconds the first threads of these processes were ready to run and did not."""
    somma = 0
    for pid in processi:
        try:
            with open(f"/proc/{pid}/schedstat", encoding="ascii") as file:
                somma += int(file.read().split()[1])
        except (FileNotFoundError, ProcessLookupError):
            pass
    return somma / 1e9


def residente(pid):
    """Resident memory in bytes."""
    with open(f"/proc/{pid}/status", encoding="ascii") as file:
        for riga in file:
            if riga.startswith("VmRSS:"):
                return int(riga.split()[1]) * 1024
    return 0


def pendenza(valori):
    """Growth a round: the median of the slopes between all pairs, which single rounds that happen
    to hold more or less do not change."""
    pendenze = sorted((b - a) / (j - i)
                      for i, a in enumerate(valori) for j, b in enumerate(valori) if j > i)
    if not pendenze:
        return 0.0
    meta = len(pendenze) // 2
    return pendenze[meta] if len(pendenze) % 2 else (pendenze[meta - 1] + pendenze[meta]) / 2
