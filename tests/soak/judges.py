"""What must hold at every moment, whatever the user does: each judge takes what was seen and gives
the complaint, or None. None of them looks for itself, so that each can be shown both."""

import re

from line import SESSIONE

FATALE = "Il programma verrà chiuso."
# A list that a condition starts and that cannot be read ends the program: these are its errors.
LISTA_ILLEGGIBILE = ("(53)", "(62)")


def rapporto(testo):
    """A log of the sanitizers: what they found, or that they fell over themselves."""
    trovato = re.search(r"ERROR: |runtime error: |Sanitizer has encountered a fatal error|"
                        r"Tracer caught signal|Sanitizer:DEADLYSIGNAL|CHECK failed", testo)
    return testo[trovato.start():][:400] if trovato else None


def perdite(segni):
    """What the program's end left behind: the leak check was begun and came to its end."""
    if "begun" not in segni:
        return "the leak check was not begun"
    if "ended" not in segni:
        return "the leak check did not come to its end"
    return None


def senza_padre(sopra, capo, finestre):
    """A box or a dialog: the window that it says it stands above, its client's leader (Qt names
    that where there is no parent), the program's windows."""
    if not sopra:
        return "it stands above no window"
    if sopra == capo:
        return "it stands above the program's leader, which is no window"
    if sopra not in finestre:
        return f"it stands above {sopra:#x}, which is no window of the program"
    return None


def sessione_chiusa(comandi):
    """The robot's side: the last session that was opened has been closed. An earlier one may have
    lost its closing on a line that lost all."""
    sessione = [c[0] for c in comandi if c[0] in SESSIONE]
    return 3 not in sessione or sessione[-1] == 4


def porta_chiusa_prima(diario, ora):
    """Whether the program had closed its port before that moment, in ms of the robot's clock, and
    not opened it again: an attempt that fails closes it, and then there is no session to end."""
    vicende = re.findall(r"^ *(\d+) +Porta (aperta|chiusa) dal programma$", diario, re.M)
    return bool(vicende) and vicende[-1][1] == "chiusa" and int(vicende[-1][0]) < ora


class Perdita:
    """When a robot's line loses all: from, to, in ms since the robot's start, as the robot's own
    clock has it. What is sent then may never come."""

    TOLLERANZA = 2000

    def __init__(self, da, per):
        self.da, self.a = da, da + per

    def inghiotte(self, prima, dopo):
        """Whether it may have swallowed what was sent between these two moments."""
        return prima <= self.a + self.TOLLERANZA and dopo >= self.da - self.TOLLERANZA


def fine(esito, chiesta, fatale, comandi, vigilio):
    """The program has ended: its status, whether the user had closed the console, the text of a box
    that told the end, the robot's commands (None where the robot was not there to see), whether the
    runner was ever seen started."""
    if fatale and not (vigilio and any(n in fatale for n in LISTA_ILLEGGIBILE)):
        return f"an error that nobody handled: {fatale}"
    if fatale and esito == 0:
        return "status 0 after an error"
    if not fatale and esito != 0:
        return f"status {esito}"
    if not fatale and not chiesta:
        return "it ended unasked"
    if comandi is not None and not sessione_chiusa(comandi):
        return "byte 4 was not sent"
    return None


def lista(byte):
    """A list file: its count, and so many whole lines."""
    testa = re.match(rb" ?(-?\d+) \r\n", byte)
    if not testa:
        return f"no count: {byte[:20]!r}"
    if not byte.endswith(b"\r\n"):
        return f"a half line at the end: {byte[-20:]!r}"
    righe = byte.count(b"\r\n") - 1
    if righe != int(testa[1]) + 1:
        return f"{righe} lines, the count says {int(testa[1]) + 1}"
    return None


def distanza(una, altra):
    """How much two pictures of one size differ, 0 to 255."""
    return sum(abs(a - b) for a, b in zip(una, altra)) / max(len(una), 1)


def premuto(vista, riposo, premuta):
    """Whether a picture shows the pressed look; None if it is neither of the two."""
    if vista is None or len(vista) != len(riposo):
        return None
    da_riposo, da_premuta = distanza(vista, riposo), distanza(vista, premuta)
    if min(da_riposo, da_premuta) > distanza(riposo, premuta) / 3:
        return None
    return da_premuta < da_riposo


def stop(comandi, prima, secondi, intoppo, limite=1.0):
    """After a click on STOP or a space: the commands that have come, how many there were before,
    how long it took, how long the machine itself had stood still meanwhile."""
    if (19, 65, 0) not in comandi[prima:]:
        return f"no STOP within {secondi:.1f} s"
    if secondi - intoppo > limite:
        return f"STOP after {secondi:.1f} s"
    return None
