"""What must hold at every moment, whatever the user does. Each judge takes what was observed and
returns a complaint, or None. No judge observes anything itself, so that tests can show it both a
good and a bad case."""

import re

from line import SESSIONE

FATALE = "Il programma verrà chiuso."
# If a list that a condition starts cannot be read, the program ends with one of these errors.
LISTA_ILLEGGIBILE = ("(53)", "(62)")


def rapporto(testo):
    """What a log of the sanitizers says: what they found, or that they failed themselves."""
    trovato = re.search(r"ERROR: |runtime error: |Sanitizer has encountered a fatal error|"
                        r"Tracer caught signal|Sanitizer:DEADLYSIGNAL|CHECK failed", testo)
    return testo[trovato.start():][:400] if trovato else None


def perdite(segni):
    """Judges the marks that the program's end left: the leak check must have begun and ended."""
    if "begun" not in segni:
        return "the leak check was not begun"
    if "ended" not in segni:
        return "the leak check did not come to its end"
    return None


def senza_padre(sopra, capo, finestre):
    """Judges a box or a dialog by the window that it names as its parent, its client's leader
    (which Qt names if there is no parent) and the program's windows."""
    if not sopra:
        return "it has no parent window"
    if sopra == capo:
        return "its parent is the program's leader, which is no window"
    if sopra not in finestre:
        return f"its parent is {sopra:#x}, which is no window of the program"
    return None


def sessione_chiusa(comandi):
    """Whether the robot has seen the end of the last session that was opened. The end of an earlier
    one may have been lost on a line that loses everything."""
    sessione = [c[0] for c in comandi if c[0] in SESSIONE]
    return 3 not in sessione or sessione[-1] == 4


def porta_chiusa_prima(diario, ora):
    """Whether the program had closed its port before that moment (ms of the robot's clock) and not
    opened it again. A failed attempt closes it, and then there is no session to end."""
    vicende = re.findall(r"^ *(\d+) +Porta (aperta|chiusa) dal programma$", diario, re.M)
    return bool(vicende) and vicende[-1][1] == "chiusa" and int(vicende[-1][0]) < ora


class Perdita:
    """The time in which a robot's line loses everything, in ms of the robot's clock, which begins
    with the robot. What is sent then may never arrive."""

    TOLLERANZA = 2000

    def __init__(self, da, per):
        self.da, self.a = da, da + per

    def inghiotte(self, prima, dopo):
        """Whether it may have lost what was sent between these two moments."""
        return prima <= self.a + self.TOLLERANZA and dopo >= self.da - self.TOLLERANZA


def fine(esito, chiesta, fatale, comandi, vigilio):
    """Judges the end of the program: its exit status, whether the user had closed the console, the
    text of the box that announced the end, the commands that the robot got (None if there was no
    robot), whether the runner was ever opened."""
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
    """Judges a list file: a count, and that many whole lines."""
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
    """How much two pictures of the same size differ, 0 to 255."""
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
    """Judges what followed a click on STOP or a space: the commands that have arrived, how many
    there were before, how many seconds it took, for how many of them the machine itself was late."""
    if (19, 65, 0) not in comandi[prima:]:
        return f"no STOP within {secondi:.1f} s"
    if secondi - intoppo > limite:
        return f"STOP after {secondi:.1f} s"
    return None
