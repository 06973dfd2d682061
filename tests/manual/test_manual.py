#!/usr/bin/env python3
"""Compares the manual with the sources: every message that it explains is one that the program can
show, every message of the program is explained, phrases and sounds are the program's, links and
pictures exist.

test_manual.py FOLDER: the folder of the sources. Prints each fault; then the exit
status is 1.
"""
import re
import sys
from pathlib import Path

FOLDERS = "base controls serial shell link console movelists vision filebrowser conditional".split()
VOCABULARY = "link/FrasiSuoni.cpp"
MESSAGES = "09-i-messaggi.md"
PHRASES = "12-frasi-e-suoni.md"
# The pictures that the day takes for the manual.
PICTURES = set("avvio console guida sequor valore corsa vigilio condizione camera nome ritrovata "
               "risorse domanda opzioni".split())
# A message may be built of several literals; a shorter piece would fit into almost any text.
SHORTEST_PIECE = 4
GAP = "…"

STRING = r'"((?:[^"\\\n]|\\.)*)"'
TOKEN = re.compile(STRING + r"|('(?:[^'\\\n]|\\.)')|//[^\n]*|/\*.*?\*/|^#include[^\n]*",
                   re.S | re.M)
NEIGHBOURS = re.compile(r'(?<!\\)"\s+u?"')
SHOWN = re.compile(r"\b(?:messaggio|setPanels|mostraMessaggio|MostraInvio|rifiuta|Stampa"
                   r"|lblColl\.setCaption)\(\s*(?:\d\s*,\s*)?u?" + STRING)
ALL_SHOWN = {"base/Errore.cpp", "serial/PermessiPorta.cpp"}


def code(path):
    """The file without comments, with neighbouring literals joined."""
    text = TOKEN.sub(lambda m: m[0] if m[1] is not None or m[2] else " ",
                     path.read_text(encoding="utf-8"))
    return NEIGHBOURS.sub("", text)


def pieces(literal):
    """The pieces of a literal between its placeholders and its line ends."""
    plain = re.sub(r"\\(.)", lambda m: "\n" if m[1] == "n" else m[1], literal)
    return [piece for piece in re.split(r"%\d|\n", plain) if piece]


def built(text, literals):
    """Whether a text is a literal, or consists of several."""
    if text in literals:
        return True
    reached = {0}
    for start in range(len(text)):
        if start in reached:
            reached |= {end for end in range(start + SHORTEST_PIECE, len(text) + 1)
                        if text[start:end] in literals}
    return len(text) in reached


def first_column(chapter):
    rows = [line for line in chapter.splitlines() if line.startswith("| `")]
    return [span for row in rows for span in re.findall(r"`([^`]+)`", row.split(" | ")[0])]


def anchors(chapter):
    """The anchors of a page's headings."""
    titles = re.findall(r"^#+ (.+)$", chapter, re.M)
    return {re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-") for title in titles}


def message_faults(root, chapter):
    literals, shown = set(), set()
    sources = [root / "main.cpp"]
    for folder in FOLDERS:
        found = [p for p in (root / folder).rglob("*") if p.suffix in (".cpp", ".h")]
        if not found:
            yield f"no sources in {folder}/"
        sources += found
    for path in sources:
        name = path.relative_to(root).as_posix()
        if name == VOCABULARY:
            continue
        text = code(path)
        strings = [m[1] for m in TOKEN.finditer(text) if m[1] is not None]
        literals |= {m[2][1:-1] for m in TOKEN.finditer(text) if m[2]}
        for literal in strings:
            literals |= set(pieces(literal))
        for literal in SHOWN.findall(text) + (strings if name in ALL_SHOWN else []):
            shown |= {p for p in pieces(literal) if len(p) >= SHORTEST_PIECE}
    explained = first_column(chapter)
    for message in explained:
        if not all(built(part, literals) for part in message.split(GAP) if part):
            yield f"{MESSAGES}: the program does not say: {message}"
    for piece in sorted(shown):
        if not any(piece in message for message in explained):
            yield f"{MESSAGES}: not explained: {piece}"


def vocabulary_faults(root, chapter):
    text = (root / VOCABULARY).read_text(encoding="utf-8")
    phrases = re.findall(r'^    u"(.*)",$', text, re.M)
    sounds = re.findall(r'^    \{u"(.*)", u"(.*)"\},$', text, re.M)
    expected = [[p] for p in phrases] + [list(s) for s in sounds]
    rows = [[cell.strip() for cell in row.strip("|").split("|")]
            for row in re.findall(r"^\| \d+ .*\|$", chapter, re.M)]
    numbers = [str(n) for n in [*range(1, len(phrases) + 1), *range(1, len(sounds) + 1)]]
    if len(phrases) != 140 or len(sounds) != 16:
        yield f"{VOCABULARY}: {len(phrases)} phrases, {len(sounds)} sounds"
    if len(rows) != len(expected):
        yield f"{PHRASES}: {len(rows)} rows for {len(expected)} phrases and sounds"
    for number, texts, row in zip(numbers, expected, rows):
        if row != [number, *texts]:
            yield f"{PHRASES}: {row} is in the program {[number, *texts]}"


def link_faults(manual, chapters):
    used = set()
    for name, text in chapters.items():
        for target in re.findall(r"\]\(([^)]+)\)", text):
            page, _, anchor = target.partition("#")
            picture = re.fullmatch(r"pictures/(\w+)\.png", page)
            if picture:
                used.add(picture[1])
            elif page.startswith("../pictures/"):
                if not (manual / page).is_file():
                    yield f"{name}: no such picture: {target}"
            elif page not in chapters:
                yield f"{name}: leads nowhere: {target}"
            elif anchor and anchor not in anchors(chapters[page]):
                yield f"{name}: no such heading: {target}"
    for picture in sorted(used ^ PICTURES):
        yield f"picture {picture}: " + ("unknown" if picture in used else "not used")


def main():
    root = Path(sys.argv[1])
    manual = root / "docs" / "manual"
    chapters = {p.name: p.read_text(encoding="utf-8") for p in sorted(manual.glob("*.md"))}
    faults = [*message_faults(root, chapters[MESSAGES]),
              *vocabulary_faults(root, chapters[PHRASES]), *link_faults(manual, chapters)]
    for fault in faults:
        print(fault)
    if not faults:
        print(f"{len(first_column(chapters[MESSAGES]))} messages, {len(chapters)} pages: all well")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
