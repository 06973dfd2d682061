"""A user's day with the program, through the real window system: drive, build a list by doing, save
it, run it, let a condition start it, watch the camera, acquire two pictures, find one of them,
fetch a photo, close with unsaved work. The robot's diary is the judge.

day.py PROGRAM FOLDER DIARY PICTURES: the program's file, its folder, the robot's diary, the folder for
pictures."""

import hashlib
import os
import subprocess
import sys

from screen import (CAMERA, CONDIZIONE, CONSOLE, OPZIONI, RISORSE, SEQUOR, SPLASH, VIGILIO,
                     Schermo, attendi, entro, raccogli, xdotool)

NOME = "Dai un nome all'immagine"

programma, cartella, diario, foto = sys.argv[1:]
s = Schermo("Lumbra", diario, foto)


def avvia():
    processo = subprocess.Popen([programma], cwd=cartella)
    attendi("the splash", lambda: s.finestra(SPLASH))
    s.foto("avvio", SPLASH)
    attendi("the console", lambda: s.finestra(CONSOLE))
    attendi("the session", lambda: s.testo(CONSOLE, "label", "Connesso"))
    davanti(CONSOLE)
    return processo


def davanti(titolo):
    numero = xdotool("search", "--onlyvisible", "--name", f"^{titolo}").splitlines()[-1]
    xdotool("windowactivate", "--sync", numero)
    s.in_primo_piano(titolo)


def apri(strumento, titolo):
    """Opens a window by the console's toolbar."""
    davanti(CONSOLE)
    s.premi(CONSOLE, strumento)
    attendi(titolo, lambda: s.finestra(titolo))
    s.in_primo_piano(titolo)


def righe():
    trovate = []
    raccogli(s.finestra(SEQUOR), "list item", None, trovate)
    return [riga.name for riga in trovate]


def aggiunta(riga):
    attendi(f"line {riga!r}", lambda: riga in righe())


def guida():
    """Drives by hand: a key held until the robot moves, and the space bar."""
    s.tieni("Up", lambda: s.fatto("BaseAvanti v=1"), lambda: s.foto("guida", CONSOLE))
    s.tieni("space", lambda: s.fatto("BaseStop"))


def imposta():
    """Stores the options once; their file holds the runner's default condition, too."""
    davanti(CONSOLE)
    s.premi(CONSOLE, "Accedi alle opzioni")
    attendi(OPZIONI, lambda: s.finestra(OPZIONI))
    s.in_primo_piano(OPZIONI)
    s.foto("opzioni", OPZIONI)
    s.premi(OPZIONI, "OK")
    attendi("the options gone", lambda: not s.finestra(OPZIONI))
    assert os.path.exists(os.path.join(cartella, "prog.dat"))


def numero(voce, titolo, cosa):
    """Enters a number into the value dialog."""
    s.menu(SEQUOR, "Inserisci", voce)
    attendi(titolo, lambda: s.finestra(titolo))
    s.in_primo_piano(titolo)
    s.tasti("ctrl+a")
    s.scrivi(cosa)
    s.foto("valore", titolo)
    s.tasti("Return")
    aggiunta(f"{voce} {cosa}")


def costruisci():
    """Builds a list by doing: what is done on the console becomes lines."""
    apri("Accedi all'editor delle mosse Sequor", SEQUOR)
    davanti(CONSOLE)
    s.premi(CONSOLE, "Pronuncia frase")
    aggiunta("Frase 1")
    s.premi(CONSOLE, "Scatta una foto")
    aggiunta("Foto")
    s.premi(CONSOLE, "Controlla la testa")
    s.tieni("Left", lambda: "Testa sinistra 2" in righe())

    davanti(SEQUOR)
    numero("Pausa", "Inserisci la durata della pausa", "700")
    numero("Frase", "Inserisci il numero della frase desiderata", "12")
    s.menu(SEQUOR, "Inserisci", "Testa", "Destra (2 st)")
    aggiunta("Testa destra 2")
    assert righe() == ["Frase 1", "Foto", "Testa sinistra 2", "Pausa 700", "Frase 12",
                       "Testa destra 2"], righe()

    s.menu(SEQUOR, "File", "Salva")
    s.file("Salva con nome", os.path.join(cartella, "giornata.sqm"))
    attendi("the file's name", lambda: s.testo(SEQUOR, "label", "giornata.sqm"))
    s.foto("sequor", SEQUOR, CONSOLE)
    with open(os.path.join(cartella, "giornata.sqm"), "rb") as file:
        assert file.read() == (b" 5 \r\nFrase 1\r\nFoto\r\nTesta sinistra 2\r\nPausa 700\r\n"
                               b"Frase 12\r\nTesta destra 2\r\n")


def lista_fatta(volte):
    """Waits until the robot has done the list's lines this many times, in their order."""
    fatte = ["Riproduci n=67", "ScattaFoto", "TestaSinistra n=2", "Riproduci n=78",
             "TestaDestra n=2"]
    for cosa in fatte:
        s.attendi_robot(cosa, volte)
    ordine = [riga for riga in s.diario()
              if any(cosa in riga for cosa in ("Riproduci", "ScattaFoto", "TestaS", "TestaD"))]
    attese = fatte * volte
    assert len(ordine) == len(attese), ordine
    assert all(cosa in riga for cosa, riga in zip(attese, ordine)), ordine


def esegui():
    davanti(SEQUOR)
    s.premi(SEQUOR, "ESEGUI")
    s.controllo(SEQUOR, "push button", "STOP")
    s.attendi_robot("ScattaFoto")
    s.foto("corsa", SEQUOR)
    lista_fatta(1)
    s.controllo(SEQUOR, "push button", "ESEGUI")


def vigila():
    """Sets a condition on the robot's temperature: the list starts by itself."""
    apri("Accedi al Vigilio", VIGILIO)
    s.menu(VIGILIO, "Opzioni", "Deseleziona le liste una volta eseguite")
    trovate = []
    raccogli(s.finestra(VIGILIO), "list item", None, trovate)
    raccogli(s.finestra(VIGILIO), "check box", None, trovate)
    riga = next(riga for riga in trovate if riga.name.startswith("giornata.sqm"))
    s.clic(riga, dx=0.3, volte=2)
    attendi(CONDIZIONE, lambda: s.finestra(CONDIZIONE))
    s.in_primo_piano(CONDIZIONE)
    s.scegli_gradi(24)
    s.foto("condizione", CONDIZIONE)
    s.premi(CONDIZIONE, "OK")
    attendi("the dialog gone", lambda: not s.finestra(CONDIZIONE))
    s.foto("vigilio", VIGILIO)
    s.menu(VIGILIO, "File", "Salva con nome")
    s.file("Salva con nome", os.path.join(cartella, "giornata.vgp"))
    with open(os.path.join(cartella, "giornata.vgp"), encoding="cp1252") as file:
        assert '"giornata.sqm",#TRUE#,"no,no,24,no,no"\n' in file.read()

    s.premi(VIGILIO, "AVVIA")
    s.attendi_robot("Riproduci n=67", 2)
    s.foto("avviata")
    lista_fatta(2)
    s.controllo(VIGILIO, "push button", "AVVIA")  # nothing is left to wait for
    s.premi(VIGILIO, "Salva")
    davanti(VIGILIO)
    s.tasti("alt+F4")
    attendi("the runner gone", lambda: not s.finestra(VIGILIO))


def guarda():
    """Opens the camera, and cuts two pictures out of what it shows."""
    apri("Accedi alla visione della Videocamera di Tessaro", CAMERA)
    s.attendi_robot("AvviaVideo partenza")
    for nome, da, a in (("quadro", (0.24, 0.05), (0.5, 0.3)), ("palla", (0.5, 0.72), (0.74, 0.96))):
        schermo = s.controllo(CAMERA, "filler", "Immagine della videocamera")
        davanti(CAMERA)
        s.vai(schermo, *da)
        xdotool("mousedown", 1)
        s.vai(schermo, *((x + y) / 2 for x, y in zip(da, a)))
        s.vai(schermo, *a)
        s.foto("camera", CAMERA)
        xdotool("mouseup", 1)
        attendi(NOME, lambda: s.finestra(NOME))
        s.in_primo_piano(NOME)
        s.scrivi(nome)
        s.foto("nome", NOME)
        s.premi(NOME, "OK")
        attendi("the dialog gone", lambda: not s.finestra(NOME))
    with open(os.path.join(cartella, "Immagini.dat"), "rb") as file:
        immagini = file.read().split(b"\r")
    assert [riga.split(b",")[0] for riga in immagini] == [b'"Quadro"', b'"Palla"'], immagini
    davanti(CAMERA)
    s.tasti("alt+F4")
    attendi("the camera gone", lambda: not s.finestra(CAMERA))
    s.attendi_robot("FermaVideo")


def ritrova():
    """From the next start on the second picture is searched for, and found."""
    apri("Accedi alla visione della Videocamera di Tessaro", CAMERA)
    attendi("the picture found", lambda: s.testo(CAMERA, "label", "Palla"))
    s.foto("ritrovata", CAMERA)
    davanti(CAMERA)
    s.tasti("alt+F4")
    attendi("the camera gone", lambda: not s.finestra(CAMERA))


def preleva():
    """Fetches a photo from the robot's storage, which must be the same byte for byte."""
    apri("Esplora i file all'interno di Tessaro", RISORSE)
    presa = os.path.join(cartella, "salotto.jpg")

    def fatto():
        # A double click does nothing while the listing runs.
        s.clic(s.controllo(RISORSE, "list item", "salotto.jpg"), dx=0.05, volte=2)
        return entro(5, lambda: os.path.exists(presa))

    attendi("the photo", fatto)
    attendi("the photo's window", lambda: s.finestra("salotto.jpg") or s.finestra(RISORSE))
    s.foto("risorse", RISORSE)
    assert impronta(presa) == impronta(os.path.join(cartella, "memoria", "disk", "salotto.jpg"))
    davanti(RISORSE)
    s.tasti("alt+F4")
    attendi("the file window gone", lambda: not s.finestra(RISORSE))


def impronta(percorso):
    with open(percorso, "rb") as file:
        return hashlib.sha256(file.read()).hexdigest()


def chiudi(processo):
    """Closes with unsaved work: the program asks, Cancel keeps everything, No discards the work."""
    apri("Accedi all'editor delle mosse Sequor", SEQUOR)
    s.menu(SEQUOR, "Inserisci", "Base", "Stop")
    aggiunta("Stop")
    for risposta in ("Annulla", "No"):
        davanti(CONSOLE)
        s.tasti("alt+F4")
        domanda = attendi("the question", lambda: s.finestra(SEQUOR) and dialogo_sequor())
        s.foto("domanda", domanda)
        premi_dialogo(domanda, risposta)
        if risposta == "Annulla":
            attendi("the question gone", lambda: not dialogo_sequor())
            assert righe() == ["Stop"], righe()
    processo.wait(timeout=60)
    assert processo.returncode == 0, processo.returncode


def dialogo_sequor():
    for finestra in s.applicazione():
        if finestra.getRoleName() in ("alert", "dialog") and finestra.name == SEQUOR:
            return finestra
    return None


def premi_dialogo(dialogo, risposta):
    trovati = []
    raccogli(dialogo, "push button", None, trovati)
    s.clic(next(p for p in trovati if p.name.replace("&", "") == risposta))


processo = avvia()
s.foto("console", CONSOLE)
guida()
imposta()
costruisci()
esegui()
vigila()
guarda()
davanti(CONSOLE)
s.tasti("alt+F4")
processo.wait(timeout=60)
s.attendi_robot("ChiudiSessione", 1)

processo = avvia()
ritrova()
preleva()
chiudi(processo)
s.attendi_robot("ChiudiSessione", 2)
