#!/usr/bin/env python3
"""Writes data/Planetenliste.bin from sterne.txt.

sterne.txt holds one star a line, "Name;distance", distance from Sol in map
units. The game reads 400 entries, each a 2-byte little-endian length and
that text in Windows-1252: the name padded to 15 characters, a blank, the
distance right-aligned in 3 characters. A game of N systems uses the first
N stars of the list, so every prefix the game can choose must make a good
galaxy on its own; the checks below refuse a list that would not.

    python3 tools/planeten/planeten_erzeugen.py [--quelle sterne.txt] [--aus data/Planetenliste.bin]
"""
import argparse
import math
import os
import random
import struct
import sys
import unicodedata

ANZAHL = 400
NAME_BREITE = 15
SPIELGROESSEN = (50, 80, 100, 120, 150, 200, 300, 400)
GROESSTER_ABSTAND = 157      # the star map shows 200 units around Sol; stars stay well inside
NAH = 7                      # below: good 1 only; every game needs such a star
FERN = 150                   # from here: the dearest goods
KOMPONENTEN_UNTER = 71       # the story components hide below this distance
HAENDLER_AB = 40             # the merchants stand from this distance on
HQ_UEBER = 89                # the pirates' headquarters lies beyond
HOECHSTENS_NAH = 3           # stars under NAH in the whole list
MINDESTABSTAND2 = 7          # squared distance that two stars keep at least

HIER = os.path.dirname(os.path.abspath(__file__))


def fehler(text):
    sys.exit("planeten_erzeugen: " + text)


def vergleichsform(name):
    """How the game's sorted list tells names apart: no case, no marks."""
    zerlegt = unicodedata.normalize("NFD", name.casefold())
    return "".join(z for z in zerlegt if not unicodedata.combining(z))


def lesen(pfad):
    sterne = []
    gesehen = {}
    with open(pfad, encoding="utf-8") as datei:
        for nr, zeile in enumerate(datei, 1):
            zeile = zeile.rstrip("\n")
            if not zeile.strip() or zeile.startswith("#"):
                continue
            teile = zeile.split(";")
            if len(teile) != 2:
                fehler(f"{pfad}:{nr}: erwartet 'Name;Abstand': {zeile!r}")
            name, abstand = teile[0].strip(), teile[1].strip()
            if not name:
                fehler(f"{pfad}:{nr}: leerer Name")
            try:
                bytes_ = name.encode("cp1252")
            except UnicodeEncodeError:
                fehler(f"{pfad}:{nr}: {name!r} passt nicht in Windows-1252")
            if len(bytes_) > NAME_BREITE:
                fehler(f"{pfad}:{nr}: {name!r} ist länger als {NAME_BREITE} Zeichen")
            if not abstand.isdigit() or not 1 <= int(abstand) <= GROESSTER_ABSTAND:
                fehler(f"{pfad}:{nr}: Abstand {abstand!r} nicht zwischen 1 und {GROESSTER_ABSTAND}")
            schluessel = vergleichsform(name)
            if schluessel in gesehen:
                fehler(f"{pfad}:{nr}: {name!r} gleicht {gesehen[schluessel]!r}")
            gesehen[schluessel] = name
            sterne.append((name, int(abstand)))
    if len(sterne) != ANZAHL:
        fehler(f"{pfad}: {len(sterne)} Sterne statt {ANZAHL}")
    return sterne


def ringe_pruefen(abstaende, n):
    """Room on every ring: the stars within one unit of a distance e fill an
    annulus of area 6 pi e; a star needs about 6 (hexagonal packing at
    sqrt(7)). A quarter of that is the most allowed, so retries stay rare."""
    for e in range(1, GROESSTER_ABSTAND + 1):
        zahl = sum(1 for a in abstaende if abs(a - e) <= 1)
        platz = 6 * math.pi * e / (math.sqrt(3) / 2 * MINDESTABSTAND2)
        if zahl > max(1, 0.25 * platz):
            fehler(f"N={n}: {zahl} Sterne bei Abstand {e}, Platz für etwa {platz:.0f}")


def platzieren(abstaende, zufall):
    """The game's placement: a random angle, the position rounded down, a new
    angle while an earlier star is closer than sqrt(7). Returns the most
    retries one star needed and the retries in all."""
    orte = []
    meiste = gesamt = 0
    for e in abstaende:
        versuche = 0
        while True:
            a = zufall.random() * 10000.0
            x, y = math.floor(e * math.cos(a)), math.floor(e * math.sin(a))
            if all((y - v) ** 2 + (x - u) ** 2 >= MINDESTABSTAND2 for u, v in orte):
                break
            versuche += 1
            if versuche > 10000:
                fehler(f"ein Stern bei Abstand {e} findet keinen Platz")
        orte.append((x, y))
        meiste = max(meiste, versuche)
        gesamt += versuche
    return meiste, gesamt


def pruefen(sterne):
    alle = [a for _, a in sterne]
    if sum(1 for a in alle if a < NAH) > HOECHSTENS_NAH:
        fehler(f"mehr als {HOECHSTENS_NAH} Sterne unter {NAH}")
    for n in SPIELGROESSEN:
        abstaende = alle[:n]
        if min(abstaende) >= NAH:
            fehler(f"die ersten {n} Sterne haben keinen unter {NAH}")
        if max(abstaende) <= FERN:
            fehler(f"die ersten {n} Sterne reichen nicht über {FERN}")
        if not any(a < KOMPONENTEN_UNTER for a in abstaende):
            fehler(f"die ersten {n} Sterne haben keinen unter {KOMPONENTEN_UNTER} (Komponenten)")
        if not any(a >= HAENDLER_AB for a in abstaende):
            fehler(f"die ersten {n} Sterne haben keinen ab {HAENDLER_AB} (Händler)")
        if not any(a > HQ_UEBER for a in abstaende):
            fehler(f"die ersten {n} Sterne haben keinen über {HQ_UEBER} (Piratenbasis)")
        ringe_pruefen(abstaende, n)
        for saat in range(10):
            meiste, gesamt = platzieren(abstaende, random.Random(1000 * n + saat))
            if meiste > 30 or gesamt > n / 2:
                fehler(f"N={n}, Versuch {saat}: bis zu {meiste} neue Winkel für einen Stern, "
                       f"{gesamt} in allen")


def schreiben(sterne, pfad):
    daten = bytearray()
    for name, abstand in sterne:
        text = (name.ljust(NAME_BREITE) + " " + str(abstand).rjust(3)).encode("cp1252")
        daten += struct.pack("<H", len(text)) + text
    vorlaeufig = pfad + ".neu"
    with open(vorlaeufig, "wb") as datei:
        datei.write(daten)
    os.replace(vorlaeufig, pfad)


def main():
    teiler = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    teiler.add_argument("--quelle", default=os.path.join(HIER, "sterne.txt"))
    teiler.add_argument("--aus", default=os.path.join(HIER, "..", "..", "data", "Planetenliste.bin"))
    argumente = teiler.parse_args()
    sterne = lesen(argumente.quelle)
    pruefen(sterne)
    os.makedirs(os.path.dirname(os.path.abspath(argumente.aus)), exist_ok=True)
    schreiben(sterne, argumente.aus)
    print(f"{os.path.normpath(argumente.aus)}: {len(sterne)} Sterne")


if __name__ == "__main__":
    main()
