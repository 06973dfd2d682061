"""What the user of the soak does with the other windows: the runner, the options, the camera, the
robot's storage."""

import hashlib
import os

from tasks import PAZIENZA_COMANDO, Lavori
from line import RICHIESTE, SESSIONE, comandi_della_lista, durata_della_lista
from screen import CAMERA, CONDIZIONE, CONSOLE, OPZIONI, RISORSE, SEQUOR, VIGILIO, raccogli
from user import Guaio

SALVARE_PROGETTO = "Vuoi salvare le impostazioni delle liste?"
FOTO = "salotto.jpg"


class Finestre(Lavori):
    # The runner.

    def vigila(self, nome, gradi, vera):
        """Sets a condition on the temperature for a saved list, which starts by itself if and only
        if the robot has that temperature."""
        self.apri("Accedi al Vigilio", VIGILIO)
        self.dice(f"runner: {nome} at {gradi} degrees, {'starts' if vera else 'waits'}")
        self.menu(VIGILIO, "Opzioni", "Deseleziona le liste una volta eseguite")
        self.attendi("the list's row", lambda: self.riga_vigilio(nome))
        self.doppio_clic(lambda: self.riga_vigilio(nome), 0.3, CONDIZIONE,
                         lambda: self.finestra(CONDIZIONE))
        self.in_primo_piano(CONDIZIONE)
        self.scegli_gradi(gradi)
        self.premi(CONDIZIONE, "OK")
        self.attendi("the dialog gone", lambda: not self.finestra(CONDIZIONE))
        righe = self.su_disco[nome].decode("cp1252").split("\r\n")[1:-1]
        if vera:
            self.attese += comandi_della_lista(righe)
        self.davanti(VIGILIO)
        self.premi(VIGILIO, "AVVIA")
        if vera:
            self.attendi_comandi("the list that starts by itself",
                                 PAZIENZA_COMANDO + 3 * durata_della_lista(righe))
            # The last line has a wait, too.
            self.attendi("the run's end", lambda: self.bottone(SEQUOR, "ESEGUI"))
            self.attendi("nothing left to wait for", lambda: self.bottone(VIGILIO, "AVVIA"))
            self.lista.caricata(nome, righe)
            self.lista.scelta = len(righe) - 1
            self.giudica_lista("the runner's run")
        else:
            self.controllo(VIGILIO, "push button", "STOP")
            self.sincronizza()
            self.davanti(VIGILIO)
            self.premi(VIGILIO, "STOP")
            self.controllo(VIGILIO, "push button", "AVVIA")
        self.giudica_comandi()
        self.chiudi(VIGILIO, SALVARE_PROGETTO)

    def riga_vigilio(self, nome):
        trovate = []
        for ruolo in ("list item", "check box"):
            raccogli(self.finestra(VIGILIO), ruolo, None, trovate)
        return next((r for r in trovate if r.name.startswith(nome)), None)

    # The other windows.

    def opzioni(self):
        self.apri("Accedi alle opzioni", OPZIONI)
        bottone = self.caso.choice(["OK", "Annulla"])
        self.dice(f"options: {bottone}")
        self.premi(OPZIONI, bottone)
        self.attendi("the options gone", lambda: not self.finestra(OPZIONI))
        with open(self.percorso("Porta COM"), "rb") as file:
            if file.read() != b"1\r\n":
                raise Guaio("the port's file is damaged")

    def camera(self):
        self.dice("camera")
        self.attese += [(10, 10, 128, 0), (11, 160, 0)]
        self.apri("Accedi alla visione della Videocamera di Tessaro", CAMERA)
        self.attendi_comandi("video")
        self.sincronizza()
        self.attese.append((12,))
        self.chiudi(CAMERA)
        self.attendi_comandi("video off")
        self.sincronizza()

    def sfoglia(self, preleva, riesce=True):
        """Lists the robot's storage, and fetches a photo, which fails on a full disk."""
        self.dice(f"storage{', fetch' if preleva else ''}")
        gia = len(self.ascolto.scelti(RICHIESTE, SESSIONE))
        self.attese.append((40, 16, 0))
        self.apri("Esplora i file all'interno di Tessaro", RISORSE)
        self.attendi_comandi("the listing")
        presa = self.percorso(FOTO)

        def voce():
            trovati = []
            raccogli(self.finestra(RISORSE), "list item", FOTO, trovati)
            return trovati[0] if trovati else None

        riga = self.entro(20 if not self.sporca else 4, voce)
        if not riga and not self.sporca:
            raise Guaio("the listing did not come")
        if not self.sporca:
            # A double click does nothing while the listing runs.
            self.attendi("the listing's end", lambda: (41,) in [
                c[:1] for c in self.ascolto.scelti(RICHIESTE, SESSIONE)[gia:]])
        if riga and preleva:
            self.scorda_la_foto()
            self.attese.append(self.giudicabile((40, 1, len(FOTO), *FOTO.encode())))
            self.doppio_clic(lambda: riga, 0.05, "the fetch", lambda: len(
                self.ascolto.azioni()) >= len(self.attese))
            self.attendi_comandi("the fetch")
            if self.sporca:
                self.entro(5, lambda: os.path.exists(presa))
            elif riesce:
                vera = impronta(os.path.join(self.memoria, "disk", FOTO))
                self.attendi("the photo, byte for byte",
                             lambda: os.path.exists(presa) and impronta(presa) == vera)
            else:
                self.attendi("the failure is shown", lambda: "Errore nella lettura dei file!" in
                             self.etichette(CONSOLE))
                if os.path.exists(presa):
                    raise Guaio("half a photo")
        if not self.sporca:
            self.sincronizza()
            self.giudica_memoria(self.ascolto.scelti(RICHIESTE, SESSIONE)[gia:], preleva)
        self.davanti(RISORSE)
        self.tasti("alt+F4")
        self.attendi("the file window gone", lambda: not self.finestra(RISORSE))

    def scorda_la_foto(self):
        if os.path.exists(self.percorso(FOTO)):
            os.remove(self.percorso(FOTO))

    @staticmethod
    def giudica_memoria(comandi, preleva):
        """One channel for the listing, read to its end and closed, and one for the photo."""
        voci = sum(c[0] == 46 for c in comandi)
        canale = comandi[1][1]
        attesi = [(40, 16, 0), *[(46, canale)] * max(voci, 1), (41, canale)]
        if preleva:
            canale = comandi[-1][1]
            attesi += [(40, 1, len(FOTO), *FOTO.encode()), (44, canale, 255, 255), (41, canale)]
        if comandi != attesi:
            raise Guaio(f"wrong bytes: {comandi}, must be {attesi}")


def impronta(percorso):
    with open(percorso, "rb") as file:
        return hashlib.sha256(file.read()).hexdigest()
