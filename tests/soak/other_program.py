"""A small window of another program, so that the monkey can leave the program and come back."""

from Xlib import X
from Xlib.display import Display

schermo = Display()
finestra = schermo.screen().root.create_window(
    20, 900, 220, 120, 0, X.CopyFromParent, background_pixel=0xE8E0C8,
    event_mask=X.KeyPressMask | X.ButtonPressMask)
finestra.set_wm_name("Altro programma")
finestra.set_wm_class("altro", "Altro")
finestra.map()
while True:
    schermo.next_event()
