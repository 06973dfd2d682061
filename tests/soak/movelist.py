"""The list as it must be: a model to compare the editor's rows and the file with."""


class Lista:
    def __init__(self):
        self.nuova()

    def nuova(self):
        self.righe = []
        self.scelta = -1
        self.salvata = True
        self.file = None

    def aggiungi(self, riga):
        self.scelta += 1
        self.righe.insert(self.scelta, riga)
        self.salvata = False

    def togli(self):
        if self.scelta >= 0:
            del self.righe[self.scelta]
            if self.scelta >= len(self.righe):
                self.scelta = -1
        self.salvata = False

    def su(self):
        self.scambia(-1, self.scelta > 0)

    def giu(self):
        self.scambia(1, 0 <= self.scelta < len(self.righe) - 1)

    def scambia(self, passo, possibile):
        if possibile:
            i, j = self.scelta, self.scelta + passo
            self.righe[i], self.righe[j] = self.righe[j], self.righe[i]
            self.scelta = j

    def caricata(self, file, righe):
        self.righe = list(righe)
        self.scelta = -1
        self.salvata = True
        self.file = file

    def byte(self):
        testo = f" {len(self.righe) - 1} \r\n" + "".join(riga + "\r\n" for riga in self.righe)
        return testo.encode("cp1252")
