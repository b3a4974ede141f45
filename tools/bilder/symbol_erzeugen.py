#!/usr/bin/env python3
"""Zeichnet das Programmsymbol in den Größen 32, 48, 64, 128 und 256 Pixel
nach packaging/symbole/quorvant-<N>.png (RGBA, außerhalb der runden Scheibe
durchsichtig).

Auf der Scheibe: tiefer Raum mit Sternen, Sol III unten links und ein
Frachter, mit denselben Zeichenbefehlen wie im Spiel, nur größer. Jede Größe
wird neu gezeichnet, nicht verkleinert; 32 und 48 nehmen die kleine Fassung
des Frachters.

Aufruf:
  python3 tools/bilder/symbol_erzeugen.py [--ziel DIR]
"""
import argparse
import math
import os
import random
import struct
import sys
import zlib

sys.dont_write_bytecode = True
HIER = os.path.dirname(os.path.abspath(__file__))
WURZEL = os.path.normpath(os.path.join(HIER, "..", ".."))
sys.path.insert(0, HIER)

import zeichnen  # noqa: E402
from leinwand import Leinwand, kugel, mischen  # noqa: E402

GROESSEN = (32, 48, 64, 128, 256)
RAUM_MITTE, RAUM_RAND = (22, 30, 70), (4, 6, 18)
ERDE = (60, 120, 230)


def scheibe_deckung(n, x, y):
    """Anteil des Pixels (x, y), der in der Scheibe liegt (4x4 Abtastungen)."""
    c, r = n / 2.0, n / 2.0 - max(0.5, n / 64.0)
    innen = 0
    for sy in range(4):
        for sx in range(4):
            if math.hypot(x + (sx + 0.5) / 4 - c, y + (sy + 0.5) / 4 - c) <= r:
                innen += 1
    return innen / 16.0


def symbol(n):
    b = Leinwand(n, n)
    c = n / 2.0
    # Raum: zur Mitte hin heller
    for y in range(n):
        for x in range(n):
            t = min(1.0, math.hypot(x + 0.5 - c, y + 0.5 - c) / c)
            b.setze(x, y, mischen(RAUM_MITTE, RAUM_RAND, t))
    zufall = random.Random(4711)
    for _ in range(max(6, n * n // 300)):
        x, y = zufall.uniform(0, n), zufall.uniform(0, n)
        hel = zufall.choice((120, 170, 230, 255))
        b.addiere(int(x), int(y), (hel, hel, min(255, hel + 30)))
    # Sol III unten links, angeschnitten, mit hellem Saum
    pr, px, py = n * 0.42, n * 0.22, n * 0.88
    b.ellipse(px, py, pr + max(1.0, n / 80.0), pr + max(1.0, n / 80.0), (120, 190, 255))
    b.ellipse(px, py, pr, pr, kugel(ERDE, px, py, pr, stufen=8))
    # der Frachter, Bug nach rechts oben geneigt wäre zu unruhig: waagrecht
    k = int(round(n * 0.86))
    schiff = zeichnen.frachter(Leinwand(k, k), n < 64)
    ox, oy = (n - k) // 2 + int(n * 0.04), (n - k) // 2 - int(n * 0.06)
    for y in range(k):
        for x in range(k):
            p = schiff.holen(x, y)
            if p != (0, 0, 0):
                b.setze(ox + x, oy + y, p)
    return b


def png_rgba(bild, alpha):
    roh = bytearray()
    for y in range(bild.h):
        roh.append(0)
        for x in range(bild.w):
            roh.extend(bild.holen(x, y))
            roh.append(alpha[y * bild.w + x])

    def block(art, daten):
        return (struct.pack(">I", len(daten)) + art + daten
                + struct.pack(">I", zlib.crc32(art + daten) & 0xFFFFFFFF))

    return (b"\x89PNG\r\n\x1a\n"
            + block(b"IHDR", struct.pack(">IIBBBBB", bild.w, bild.h, 8, 6, 0, 0, 0))
            + block(b"IDAT", zlib.compress(bytes(roh), 9))
            + block(b"IEND", b""))


def main():
    p = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    p.add_argument("--ziel", default=os.path.join(WURZEL, "packaging", "symbole"))
    args = p.parse_args()
    os.makedirs(args.ziel, exist_ok=True)
    for n in GROESSEN:
        bild = symbol(n)
        alpha = [int(round(255 * scheibe_deckung(n, x, y))) for y in range(n) for x in range(n)]
        with open(os.path.join(args.ziel, "quorvant-%d.png" % n), "wb") as f:
            f.write(png_rgba(bild, alpha))
    print("%d Symbole nach %s geschrieben" % (len(GROESSEN), os.path.relpath(args.ziel, os.getcwd())))


if __name__ == "__main__":
    main()
