#!/usr/bin/env python3
"""Erzeugt die 44 Bilder des Spiels als PNG-Dateien in data/bilder/.

Nur Python-Standardbibliothek. Quellen:
  * tools/bilder/quellen/<Name>.txt  - Pixelraster als ASCII-Kunst mit Palette
    (ein Zeichen pro Pixel), für alle kleinen Symbole;
  * tools/bilder/zeichnen.py         - Zeichenbefehle für Schiffe, Station,
    DTW-Filter und Portal.

Aufruf:
  python3 tools/bilder/bilder_erzeugen.py [--ziel DIR] [--kontaktbogen DATEI.png]

Jede Bildgröße wird gegen die Liste in src/screen/bildliste.h geprüft; bei
einer Abweichung bricht das Skript mit einer Meldung ab.
"""
import argparse
import os
import re
import struct
import sys
import zlib

sys.dont_write_bytecode = True  # kein __pycache__ im Quellbaum
HIER = os.path.dirname(os.path.abspath(__file__))
WURZEL = os.path.normpath(os.path.join(HIER, "..", ".."))
sys.path.insert(0, HIER)

import zeichnen  # noqa: E402
from leinwand import Leinwand  # noqa: E402

QUELLEN = os.path.join(HIER, "quellen")
LISTE = os.path.join(WURZEL, "src", "screen", "bildliste.h")


def fehler(text):
    sys.stderr.write("bilder_erzeugen: FEHLER: " + text + "\n")
    sys.exit(1)


# ---------------------------------------------------------------- Bildliste

def dateiname(schluessel):
    """'Großfrachter' -> 'Grossfrachter' (ohne Endung)."""
    for alt, neu in (("ß", "ss"), ("ä", "ae"), ("ö", "oe"), ("ü", "ue"),
                     ("Ä", "Ae"), ("Ö", "Oe"), ("Ü", "Ue")):
        schluessel = schluessel.replace(alt, neu)
    return schluessel


def bildliste_lesen():
    """[(schluessel, breite, hoehe)] in der Reihenfolge der Kopfdatei."""
    try:
        with open(LISTE, encoding="utf-8") as f:
            text = f.read()
    except OSError as e:
        fehler("kann %s nicht lesen: %s" % (LISTE, e))
    eintraege = [(m.group(1), int(m.group(2)), int(m.group(3)))
                 for m in re.finditer(r'\{\s*"([^"]+)"\s*,\s*(\d+)\s*,\s*(\d+)\s*\}', text)]
    anzahl = re.search(r"std::array<BildEintrag,\s*(\d+)>", text)
    if not eintraege or (anzahl and int(anzahl.group(1)) != len(eintraege)):
        fehler("Bildliste in %s nicht lesbar (%d Einträge gefunden)" % (LISTE, len(eintraege)))
    return eintraege


# ---------------------------------------------------------------- ASCII-Raster

PALETTENZEILE = re.compile(r"^(\S)\s*=\s*#?([0-9a-fA-F]{6})\s*(#.*)?$")


def raster_lesen(pfad):
    """Liest eine Rasterdatei: '#'-Kommentare, Palettenzeilen 'x = RRGGBB',
    danach die Bildzeilen. '.' ist immer Schwarz, falls nicht umdefiniert."""
    palette = {".": (0, 0, 0)}
    zeilen = []
    with open(pfad, encoding="utf-8") as f:
        for nr, zeile in enumerate(f, 1):
            zeile = zeile.rstrip("\n").rstrip()
            if not zeile or zeile.startswith("#"):
                continue
            m = PALETTENZEILE.match(zeile)
            if m and not zeilen:
                h = m.group(2)
                palette[m.group(1)] = (int(h[0:2], 16), int(h[2:4], 16), int(h[4:6], 16))
                continue
            zeilen.append((nr, zeile.strip()))
    if not zeilen:
        fehler("%s: keine Bildzeilen" % pfad)
    breite = len(zeilen[0][1])
    bild = Leinwand(breite, len(zeilen))
    for y, (nr, zeile) in enumerate(zeilen):
        if len(zeile) != breite:
            fehler("%s:%d: Zeile ist %d statt %d Zeichen breit" % (pfad, nr, len(zeile), breite))
        for x, z in enumerate(zeile):
            if z not in palette:
                fehler("%s:%d: Zeichen '%s' fehlt in der Palette" % (pfad, nr, z))
            bild.setze(x, y, palette[z])
    return bild


# ---------------------------------------------------------------- PNG

def png_bytes(bild):
    """8-Bit-RGB (Farbtyp 2), ohne Filter, zlib-komprimiert."""
    roh = bytearray()
    for y in range(bild.h):
        roh.append(0)
        for x in range(bild.w):
            roh.extend(bild.holen(x, y))

    def block(art, daten):
        return (struct.pack(">I", len(daten)) + art + daten
                + struct.pack(">I", zlib.crc32(art + daten) & 0xFFFFFFFF))

    return (b"\x89PNG\r\n\x1a\n"
            + block(b"IHDR", struct.pack(">IIBBBBB", bild.w, bild.h, 8, 2, 0, 0, 0))
            + block(b"IDAT", zlib.compress(bytes(roh), 9))
            + block(b"IEND", b""))


def png_schreiben(pfad, bild):
    daten = png_bytes(bild)
    alt = None
    if os.path.exists(pfad):
        with open(pfad, "rb") as f:
            alt = f.read()
    if alt != daten:
        with open(pfad, "wb") as f:
            f.write(daten)


# ---------------------------------------------------------------- Kontaktbogen

def kontaktbogen(bilder, pfad):
    """Alle Bilder auf einem Bogen: kleine (bis 40 px) 4-fach, mittlere
    2-fach, das große Portal 1-fach; graues Gitter als Abstand."""
    def faktor(b):
        if max(b.w, b.h) <= 40:
            return 4
        if max(b.w, b.h) <= 100:
            return 2
        return 1

    rand = 6
    reihen, reihe, breite_reihe = [], [], 0
    for name, b in bilder:
        f = faktor(b)
        w = b.w * f + rand
        if reihe and breite_reihe + w > 1000:
            reihen.append(reihe)
            reihe, breite_reihe = [], 0
        reihe.append((name, b, f))
        breite_reihe += w
    if reihe:
        reihen.append(reihe)
    gesamt_b = max(sum(b.w * f + rand for _, b, f in r) for r in reihen) + rand
    gesamt_h = sum(max(b.h * f for _, b, f in r) + rand for r in reihen) + rand
    bogen = Leinwand(gesamt_b, gesamt_h, (60, 60, 70))
    y = rand
    for r in reihen:
        x = rand
        for _, b, f in r:
            for yy in range(b.h * f):
                for xx in range(b.w * f):
                    bogen.setze(x + xx, y + yy, b.holen(xx // f, yy // f))
            x += b.w * f + rand
        y += max(b.h * f for _, b, f in r) + rand
    png_schreiben(pfad, bogen)


# ---------------------------------------------------------------- Hauptteil

def main():
    p = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    p.add_argument("--ziel", default=os.path.join(WURZEL, "data", "bilder"))
    p.add_argument("--kontaktbogen", metavar="DATEI.png")
    args = p.parse_args()

    liste = bildliste_lesen()
    os.makedirs(args.ziel, exist_ok=True)
    code_bilder = zeichnen.BILDER
    bekannt = {dateiname(k) for k, _, _ in liste}
    for name in code_bilder:
        if name not in bekannt:
            fehler("zeichnen.py liefert '%s', das nicht in der Bildliste steht" % name)

    fertig = []
    for schluessel, breite, hoehe in liste:
        name = dateiname(schluessel)
        quelle = os.path.join(QUELLEN, name + ".txt")
        hat_raster = os.path.exists(quelle)
        if hat_raster and name in code_bilder:
            fehler("'%s' hat sowohl ein Raster als auch Zeichencode" % name)
        if hat_raster:
            bild = raster_lesen(quelle)
        elif name in code_bilder:
            bild = code_bilder[name]()
        else:
            fehler("für '%s' gibt es weder %s noch Zeichencode" % (schluessel, quelle))
        if (bild.w, bild.h) != (breite, hoehe):
            fehler("'%s' ist %dx%d, die Bildliste verlangt %dx%d"
                   % (schluessel, bild.w, bild.h, breite, hoehe))
        png_schreiben(os.path.join(args.ziel, name + ".png"), bild)
        fertig.append((name, bild))

    for datei in os.listdir(QUELLEN):
        if datei.endswith(".txt") and datei[:-4] not in bekannt:
            fehler("Rasterdatei %s gehört zu keinem Bild der Liste" % datei)

    print("%d Bilder nach %s geschrieben" % (len(fertig), os.path.relpath(args.ziel, os.getcwd())))
    if args.kontaktbogen:
        kontaktbogen(fertig, args.kontaktbogen)
        print("Kontaktbogen: %s" % args.kontaktbogen)


if __name__ == "__main__":
    main()
