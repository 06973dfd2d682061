"""Tests of the soak's judges: each must be able to complain."""

import os
import signal
import subprocess
import tempfile
import time
import unittest

import judges
from judges import Perdita
from line import (Ascolto, ByteSbagliato, comandi_della_lista, comandi_della_riga,
                   durata_della_lista, lunghezza)
from movelist import Lista
from memory import attesa_del_processore, discendente, pendenza


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
        for byte in ((19, 65, 3), (19, 33, 0), (19, 35, 13), (19, 37, 3), (19, 67, 20), (19, 73, 1),
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


class Sanitizzatori(unittest.TestCase):
    def test_what_they_report_is_heard(self):
        for testo in ("==7==ERROR: AddressSanitizer: heap-use-after-free on address",
                      "Mossa.cpp:12:3: runtime error: signed integer overflow",
                      "==7==ERROR: LeakSanitizer: detected memory leaks"):
            self.assertIn(testo[-20:], judges.rapporto("x\n" + testo + "\n"))

    def test_their_own_fall_is_no_silence(self):
        for testo in ("Tracer caught signal 11: addr=0x0 pc=0x7f sp=0x7f",
                      "==7==LeakSanitizer has encountered a fatal error.",
                      "AddressSanitizer:DEADLYSIGNAL", "AddressSanitizer: CHECK failed: asan.cpp:1"):
            self.assertTrue(judges.rapporto(testo), testo)

    def test_a_page_of_memory_is_no_report(self):
        self.assertIsNone(judges.rapporto(""))
        self.assertIsNone(judges.rapporto("Live Heap Allocations: 7 bytes in 1 chunks\n"))

    def test_a_leak_check_that_was_not_made_is_no_success(self):
        self.assertIsNone(judges.perdite(["begun", "ended"]))
        self.assertIn("not begun", judges.perdite([]))
        self.assertIn("its end", judges.perdite(["begun"]))


class Perdite(unittest.TestCase):
    """The leak check of a program of three lines that ends without end handlers."""

    PROGRAMMA = """
        #include <stdlib.h>
        int main(int quanti, char **parole) {
            void *volatile preso = malloc(77);
            if (quanti > 1) preso = NULL; else free(preso);
            _Exit(0);
        }"""

    def esito(self, *parole):
        qui = os.path.dirname(os.path.abspath(__file__))
        with tempfile.TemporaryDirectory() as cartella:
            programma = os.path.join(cartella, "programma")
            testimone = os.path.join(cartella, "witness.so")
            subprocess.run(["gcc", "-x", "c", "-fsanitize=address", "-o", programma, "-"],
                           input=self.PROGRAMMA, text=True, check=True)
            subprocess.run(["gcc", "-shared", "-fPIC", "-o", testimone,
                            os.path.join(qui, "witness.c"), "-lpthread"], check=True)
            segni = os.path.join(cartella, "segni")
            fatto = subprocess.run(
                [programma, *parole], stderr=subprocess.PIPE, text=True, check=False,
                env=dict(os.environ, LD_PRELOAD=testimone, SOAK_SEGNI=segni,
                         ASAN_OPTIONS="exitcode=99:verify_asan_link_order=0:detect_leaks=1"))
            with open(segni, encoding="ascii") as file:
                return fatto.returncode, fatto.stderr, file.read().split()

    def test_a_leak_is_found(self):
        stato, testo, _ = self.esito("perdi")
        self.assertEqual(stato, 99)
        self.assertIn("77 byte(s)", testo)
        self.assertTrue(judges.rapporto(testo))

    def test_no_leak_is_no_complaint(self):
        stato, testo, segni = self.esito()
        self.assertEqual((stato, judges.rapporto(testo), judges.perdite(segni)), (0, None, None))


class Riquadri(unittest.TestCase):
    def test_a_box_stands_above_a_window_of_the_program(self):
        self.assertIsNone(judges.senza_padre(0x20, 0x8, {0x20, 0x21}))

    def test_a_box_without_a_parent_is_seen(self):
        for sopra in (0, 0x8, 0x99):
            self.assertTrue(judges.senza_padre(sopra, 0x8, {0x20, 0x21}), sopra)


class Fine(unittest.TestCase):
    APERTA = [(3, 1, 1), (27, 70)]
    CHIUSA = [(3, 1, 1), (19, 65, 0), (4,)]

    def test_an_end_that_was_asked_for(self):
        for comandi in (self.CHIUSA, [], None):
            self.assertIsNone(judges.fine(0, True, "", comandi, False))

    def test_an_end_that_was_not(self):
        self.assertIn("unasked", judges.fine(0, False, "", self.CHIUSA, False))
        self.assertIn("status 139", judges.fine(139, True, "", self.CHIUSA, False))
        self.assertIn("byte 4", judges.fine(0, True, "", self.APERTA, False))

    def test_an_error_ends_the_program_only_from_a_list_of_the_runner(self):
        testo = "Impossibile trovare il file (53)\n\n" + judges.FATALE
        self.assertIsNone(judges.fine(1, False, testo, self.CHIUSA, True))
        self.assertIn("nobody handled", judges.fine(1, False, testo, self.CHIUSA, False))
        self.assertIn("nobody handled", judges.fine(
            1, True, "File già aperto (55)\n\n" + judges.FATALE, self.CHIUSA, True))
        self.assertIn("status 0", judges.fine(0, False, testo, self.CHIUSA, True))
        self.assertIn("byte 4", judges.fine(1, False, testo, self.APERTA, True))

    def test_the_last_session_is_closed(self):
        self.assertTrue(judges.sessione_chiusa([]))
        self.assertTrue(judges.sessione_chiusa(self.CHIUSA))
        self.assertFalse(judges.sessione_chiusa(self.APERTA))
        self.assertFalse(judges.sessione_chiusa([*self.CHIUSA, *self.APERTA]))
        # The end of an earlier one may have been lost with the line.
        self.assertTrue(judges.sessione_chiusa([*self.APERTA, *self.CHIUSA]))
        self.assertFalse(judges.sessione_chiusa([*self.CHIUSA, *self.APERTA, (1,)]))


class PortaChiusa(unittest.TestCase):
    DIARIO = ("    54874                    Porta aperta dal programma\n"
              "    74933  19 65 0           BaseStop\n"
              "    82909                    Porta chiusa dal programma\n")

    def test_an_attempt_that_failed_has_closed_the_port_before_the_end(self):
        self.assertTrue(judges.porta_chiusa_prima(self.DIARIO, 90000))

    def test_a_port_that_closes_with_the_program_or_was_opened_again_was_open(self):
        self.assertFalse(judges.porta_chiusa_prima(self.DIARIO, 82000))
        ancora = self.DIARIO + "    85000                    Porta aperta dal programma\n"
        self.assertFalse(judges.porta_chiusa_prima(ancora, 90000))
        self.assertFalse(judges.porta_chiusa_prima("", 90000))


class LineaPersa(unittest.TestCase):
    def test_it_may_swallow_what_was_sent_in_its_time(self):
        perdita = Perdita(20000, 20000)
        for prima, dopo in ((25000, 26000), (15000, 21000), (39000, 45000), (10000, 60000)):
            self.assertTrue(perdita.inghiotte(prima, dopo), (prima, dopo))

    def test_it_may_swallow_nothing_else(self):
        perdita = Perdita(20000, 20000)
        for prima, dopo in ((1000, 2000), (45000, 46000)):
            self.assertFalse(perdita.inghiotte(prima, dopo), (prima, dopo))


class FileDiLista(unittest.TestCase):
    def test_a_whole_list(self):
        for byte in (b" 1 \r\nStop\r\nDestra \xbd\r\n", b" 0 \r\nDestra \r\n", b"-1 \r\n"):
            self.assertIsNone(judges.lista(byte), byte)

    def test_a_list_that_is_not_whole(self):
        for byte in (b"", b" 1 \r\n", b" 1 \r\nStop\r\n", b" 1 \r\nStop\r\nDes",
                     b" 0 \r\nStop\r\nFoto\r\n", b"Stop\r\n", b" 1"):
            self.assertTrue(judges.lista(byte), byte)


class Aspetto(unittest.TestCase):
    RIPOSO, PREMUTA = bytes([10] * 60), bytes([10] * 30 + [90] * 30)

    def test_the_pressed_look_is_told_from_rest(self):
        self.assertIs(judges.premuto(self.PREMUTA, self.RIPOSO, self.PREMUTA), True)
        self.assertIs(judges.premuto(self.RIPOSO, self.RIPOSO, self.PREMUTA), False)
        quasi = bytes([12] * 30 + [88] * 30)
        self.assertIs(judges.premuto(quasi, self.RIPOSO, self.PREMUTA), True)

    def test_what_is_neither_is_not_judged(self):
        for vista in (None, b"", bytes([200] * 60), bytes([10] * 30 + [50] * 30)):
            self.assertIsNone(judges.premuto(vista, self.RIPOSO, self.PREMUTA))


class Ferma(unittest.TestCase):
    STOP = (19, 65, 0)

    def test_a_stop_in_time(self):
        self.assertIsNone(judges.stop([(27, 70), self.STOP], 1, 0.4, 0))
        # The time by which the machine itself was late does not count.
        self.assertIsNone(judges.stop([self.STOP], 0, 3.0, 2.4))

    def test_a_stop_that_fails(self):
        self.assertIn("no STOP", judges.stop([self.STOP, (27, 70)], 1, 1.0, 0))
        self.assertIn("no STOP", judges.stop([(19, 65, 1)], 0, 1.0, 0))
        self.assertIn("after 1.7", judges.stop([self.STOP], 0, 1.7, 0.2))


class Macchina(unittest.TestCase):
    def test_a_process_is_found_below_the_one_that_was_started(self):
        with subprocess.Popen(["sh", "-c", "sleep 60; true"]) as processo:
            try:
                fine = time.monotonic() + 20
                while not (trovato := discendente(processo.pid, "sleep")):
                    self.assertLess(time.monotonic(), fine)
                self.assertNotEqual(trovato, processo.pid)
                self.assertIsNone(discendente(processo.pid, "lumbra"))
                self.assertGreaterEqual(attesa_del_processore(trovato), 0)
            finally:
                os.kill(discendente(processo.pid, "sleep"), signal.SIGKILL)


if __name__ == "__main__":
    unittest.main()
