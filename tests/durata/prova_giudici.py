"""The judges of the soak are themselves judged: each must be able to say no."""

import os
import tempfile
import unittest

from linea import (Ascolto, ByteSbagliato, comandi_della_lista, comandi_della_riga,
                   durata_della_lista, lunghezza)
from lista import Lista
from memoria import pendenza


class Linea(unittest.TestCase):
    def test_each_command_has_its_length(self):
        for comando in ((1,), (3, 1, 1), (4,), (10, 10, 128, 0), (11, 160, 0), (12,), (19, 65, 2),
                        (19, 2, 37), (19, 99, 138), (27, 70), (28, 103), (29, 132),
                        (40, 16, 0), (40, 1, 3, 97, 4, 19), (41, 7), (44, 7, 255, 255), (46, 7)):
            self.assertEqual(lunghezza(bytes(comando)), len(comando))
            self.assertEqual(lunghezza(bytes((*comando, 19, 65, 0))), len(comando))
            for n in range(1, len(comando)):
                self.assertEqual(lunghezza(bytes(comando[:n])), 0, comando[:n])

    def test_what_is_no_command_is_wrong(self):
        for byte in ((0,), (2,), (70,), (255,), (3, 2, 1), (27, 71), (29, 103), (10, 10, 127, 0),
                     (44, 1, 0, 255), (40, 2, 0), (19, 1), (19, 200, 0)):
            with self.assertRaises(ByteSbagliato, msg=byte):
                lunghezza(bytes(byte))

    def test_a_value_that_nobody_can_ask_for_is_wrong(self):
        for byte in ((19, 65, 3), (19, 33, 0), (19, 35, 13), (19, 37, 3), (19, 67, 19), (19, 73, 1),
                     (19, 97, 66), (19, 97, 223), (19, 99, 128), (19, 131, 1), (19, 140, 1),
                     (19, 161, 0), (19, 2, 4), (19, 3, 0), (19, 129, 1)):
            with self.assertRaises(ByteSbagliato, msg=byte):
                lunghezza(bytes(byte))

    def ascolta(self, *pezzi):
        with tempfile.TemporaryDirectory() as cartella:
            file = os.path.join(cartella, "linea")
            ascolto = Ascolto(file)
            ascolto.aggiorna()
            for pezzo in pezzi:
                with open(file, "a", encoding="ascii") as uscita:
                    uscita.write(pezzo)
                ascolto.aggiorna()
            return ascolto

    def test_only_what_goes_to_the_robot_is_cut(self):
        ascolto = self.ascolta("# tessaro-sim registrazione 1\n", "0 > 3 1\n", "1 < 31 24\n",
                               "2 > 1 27 70 19\n3 > 65", " 1\n4 > 46 3\n", "5 > 19\n")
        self.assertEqual(ascolto.comandi, [(3, 1, 1), (27, 70), (19, 65, 1), (46, 3)])
        self.assertEqual(ascolto.azioni(), [(19, 65, 1)])
        self.assertEqual(ascolto.coda, b"\x13")
        self.assertEqual(ascolto.byte, 11)

    def test_the_longest_silence_of_the_program_is_known(self):
        ascolto = self.ascolta("5 > 27 70\n20000 < 31 24\n", "305 > 27 70\n", "20700 > 27 70\n")
        self.assertEqual(ascolto.silenzio, 20395)

    def test_a_lost_byte_is_seen(self):
        with self.assertRaises(ByteSbagliato):
            self.ascolta("0 > 19 65 27 70\n")


class Righe(unittest.TestCase):
    def test_lines_and_their_commands(self):
        self.assertEqual(comandi_della_riga("Pausa 300"), [])
        self.assertEqual(comandi_della_riga("Frase 140"), [(19, 97, 206)])
        self.assertEqual(comandi_della_riga("Suono 16"), [(19, 97, 222)])
        self.assertEqual(comandi_della_riga("Testa giu 2"), [(19, 34, 2)])
        self.assertEqual(comandi_della_riga("Mex 1 play"), [(19, 99, 129)] * 2)
        self.assertEqual(comandi_della_riga("Prog interno 2"), [(19, 2, 5)])
        self.assertEqual(comandi_della_riga("Prog interno Stop"), [(19, 2, 0)])
        self.assertEqual(len(comandi_della_riga("Testa LED tutti on")), 8)
        with self.assertRaises(ValueError):
            comandi_della_riga("Ciao")

    def test_a_loop_repeats_what_stands_since_the_one_before(self):
        a, b = (19, 65, 0), (19, 3, 1)
        self.assertEqual(comandi_della_lista(["Stop", "Ripeti 1 volta", "Foto", "Ripeti 2 volte"]),
                         [a, a, b, b, b])
        self.assertEqual(comandi_della_lista(["Ripeti 1 volta", "Stop", "Foto"]), [a, b])

    def test_a_run_takes_its_waits(self):
        self.assertEqual(durata_della_lista(["Pausa 500", "Stop"]), 2.1)
        self.assertGreater(durata_della_lista(["Stop", "Ripeti 1 volta"]), 3.2)


class Modello(unittest.TestCase):
    def test_a_new_line_comes_behind_the_chosen_one(self):
        lista = Lista()
        for riga in ("a", "b", "c"):
            lista.aggiungi(riga)
        lista.scelta = 0
        lista.aggiungi("d")
        self.assertEqual((lista.righe, lista.scelta), (["a", "d", "b", "c"], 1))

    def test_after_deleting_the_last_line_the_next_goes_to_the_top(self):
        lista = Lista()
        for riga in ("a", "b"):
            lista.aggiungi(riga)
        lista.togli()
        lista.aggiungi("c")
        self.assertEqual((lista.righe, lista.scelta), (["c", "a"], 0))

    def test_moving_ends_at_the_ends(self):
        lista = Lista()
        for riga in ("a", "b"):
            lista.aggiungi(riga)
        lista.giu()
        self.assertEqual(lista.righe, ["a", "b"])
        lista.su()
        lista.su()
        self.assertEqual((lista.righe, lista.scelta), (["b", "a"], 0))

    def test_the_file_is_bytes(self):
        lista = Lista()
        lista.caricata("x.sqm", ["Destra ½", "Stop"])
        self.assertEqual(lista.byte(), b" 1 \r\nDestra \xbd\r\nStop\r\n")


class Memoria(unittest.TestCase):
    def test_growth_is_seen_through_what_comes_and_goes(self):
        rumore = [0, 40, -30, 10, 55, -20, 5, 0, -45, 30, 15, -10]
        self.assertGreater(pendenza([1000 + 20 * i + r for i, r in enumerate(rumore)]), 10)
        self.assertLess(abs(pendenza([1000 + r for r in rumore])), 5)

    def test_one_step_is_no_growth(self):
        self.assertEqual(pendenza([100] * 3 + [900] * 9), 0)


if __name__ == "__main__":
    unittest.main()
