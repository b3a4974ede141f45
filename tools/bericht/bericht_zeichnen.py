#!/usr/bin/env python3
"""Zeichnet den Jahresbericht der Computerspieler (quorvant-headless --report) als PNG.

Nur Python-Standardbibliothek. Vier Felder übereinander, die Jahre von links
nach rechts:
  1. Bewertung je Spieler (Linie je Spieler, Nulllinie grau)
  2. Schiffe der Spieler je Typ
  3. Piraten im Spiel, neue Piraten über HoechstesSchiff (wartend), besiegte
     Piraten (Summe), Erfindungen (Summe); ein roter Strich
     im Jahr, in dem das Hauptquartier fällt
  4. Marktpreise der zwanzig Waren

Aufruf:
  python3 tools/bericht/bericht_zeichnen.py BERICHT.csv BILD.png
"""
import csv
import struct
import sys
import zlib

BREITE, FELD_H, RAND = 1000, 180, 40
FARBEN = [(230, 60, 60), (60, 200, 60), (70, 110, 250), (240, 200, 40), (220, 70, 220), (40, 210, 220),
          (250, 140, 40), (160, 160, 160)]

# Ziffern und Buchstaben 3x5 für Beschriftungen.
SCHRIFT = {
    "0": "111101101101111", "1": "010110010010111", "2": "111001111100111", "3": "111001111001111",
    "4": "101101111001001", "5": "111100111001111", "6": "111100111101111", "7": "111001001001001",
    "8": "111101111101111", "9": "111101111001111", "-": "000000111000000", " ": "000000000000000",
    "A": "010101111101101", "B": "110101110101110", "C": "111100100100111", "D": "110101101101110",
    "E": "111100110100111", "F": "111100110100100", "G": "111100101101111", "H": "101101111101101",
    "I": "111010010010111", "K": "101101110101101", "L": "100100100100111", "M": "101111111101101",
    "N": "111101101101101", "O": "111101101101111", "P": "111101111100100", "R": "111101110101101",
    "S": "111100111001111", "T": "111010010010010", "U": "101101101101111", "W": "101101111111101",
    "Z": "111001010100111", "X": "101101010101101", "V": "101101101101010", "J": "001001001101111", "Y": "101101010010010", "/": "001001010100100",
}


class Bild:
    def __init__(self, w, h):
        self.w, self.h = w, h
        self.p = bytearray(w * h * 3)

    def punkt(self, x, y, f):
        if 0 <= x < self.w and 0 <= y < self.h:
            i = (y * self.w + x) * 3
            self.p[i:i + 3] = bytes(f)

    def linie(self, x0, y0, x1, y1, f):
        dx, dy = abs(x1 - x0), -abs(y1 - y0)
        sx, sy = (1 if x0 < x1 else -1), (1 if y0 < y1 else -1)
        err = dx + dy
        while True:
            self.punkt(x0, y0, f)
            if x0 == x1 and y0 == y1:
                return
            e2 = 2 * err
            if e2 >= dy:
                err += dy
                x0 += sx
            if e2 <= dx:
                err += dx
                y0 += sy

    def text(self, x, y, t, f, g=2):
        for z in t.upper():
            muster = SCHRIFT.get(z, SCHRIFT[" "])
            for i, b in enumerate(muster):
                if b == "1":
                    for a in range(g):
                        for c in range(g):
                            self.punkt(x + (i % 3) * g + a, y + (i // 3) * g + c, f)
            x += 4 * g

    def png(self):
        roh = bytearray()
        for y in range(self.h):
            roh.append(0)
            roh.extend(self.p[y * self.w * 3:(y + 1) * self.w * 3])

        def block(art, daten):
            return struct.pack(">I", len(daten)) + art + daten + struct.pack(">I", zlib.crc32(art + daten) & 0xFFFFFFFF)

        return (b"\x89PNG\r\n\x1a\n" + block(b"IHDR", struct.pack(">IIBBBBB", self.w, self.h, 8, 2, 0, 0, 0))
                + block(b"IDAT", zlib.compress(bytes(roh), 9)) + block(b"IEND", b""))


def feld(bild, nr, titel, jahre, reihen, namen):
    """Ein Feld mit seinen Linien; reihen: Liste von Wertlisten."""
    y0 = RAND + nr * (FELD_H + RAND)
    x0, x1 = 70, BREITE - 20
    werte = [v for r in reihen for v in r] or [0]
    lo, hi = min(werte + [0]), max(werte + [1])
    grau = (90, 90, 90)
    bild.linie(x0, y0, x0, y0 + FELD_H, grau)
    bild.linie(x0, y0 + FELD_H, x1, y0 + FELD_H, grau)
    bild.text(x0, y0 - 16, titel, (255, 255, 255))
    bild.text(4, y0, str(hi), grau)
    bild.text(4, y0 + FELD_H - 10, str(lo), grau)

    def px(i):
        return x0 + (x1 - x0) * i // max(1, len(jahre) - 1)

    def py(v):
        return y0 + FELD_H - int((v - lo) * FELD_H / (hi - lo or 1))

    if lo < 0 < hi:
        bild.linie(x0, py(0), x1, py(0), (60, 60, 60))
    for k, r in enumerate(reihen):
        f = FARBEN[k % len(FARBEN)] if len(reihen) <= len(FARBEN) else (
            80 + (k * 53) % 175, 80 + (k * 97) % 175, 80 + (k * 31) % 175)
        for i in range(1, len(r)):
            bild.linie(px(i - 1), py(r[i - 1]), px(i), py(r[i]), f)
    x = x0 + 10
    for k, n in enumerate(namen):
        f = FARBEN[k % len(FARBEN)]
        bild.text(x, y0 + 4, n, f)
        x += 4 * 2 * (len(n) + 2)
    bild.text(x0, y0 + FELD_H + 6, str(jahre[0]), grau)
    bild.text(x1 - 40, y0 + FELD_H + 6, str(jahre[-1]), grau)
    return px


def main():
    if len(sys.argv) != 3:
        print(__doc__)
        sys.exit(2)
    zeilen = list(csv.DictReader(open(sys.argv[1], newline="")))
    if not zeilen:
        sys.exit("Der Bericht ist leer.")
    spalten = zeilen[0].keys()
    spieler = sum(1 for s in spalten if s.startswith("bewertung"))
    jahre = [int(z["jahr"]) for z in zeilen]

    def reihe(name):
        return [int(z[name]) for z in zeilen]

    bild = Bild(BREITE, 4 * (FELD_H + RAND) + RAND)
    feld(bild, 0, "BEWERTUNG JE SPIELER", jahre, [reihe("bewertung%d" % p) for p in range(1, spieler + 1)],
         ["S%d" % p for p in range(1, spieler + 1)])
    typen = [s for s in spalten if s.startswith("schiffe_")]
    feld(bild, 1, "SCHIFFE DER SPIELER JE TYP", jahre, [reihe(t) for t in typen], [t[8:] for t in typen])
    besiegt = [sum(int(z["piraten_besiegt%d" % p]) for p in range(1, spieler + 1)) for z in zeilen]
    erfunden = [sum(int(z["erfindungen%d" % p]) for p in range(1, spieler + 1)) for z in zeilen]
    px = feld(bild, 2, "PIRATEN  BESIEGT  ERFINDUNGEN", jahre,
              [reihe("piraten"), reihe("piraten_wartend"), besiegt, erfunden],
              ["PIRATEN", "WARTEND", "BESIEGT", "ERFINDUNGEN"])
    hq = reihe("hq_planet")
    for i in range(1, len(hq)):
        if hq[i - 1] > 0 and hq[i] == 0:  # das Hauptquartier ist gefallen
            y0 = RAND + 2 * (FELD_H + RAND)
            bild.linie(px(i), y0, px(i), y0 + FELD_H, (255, 0, 0))
    feld(bild, 3, "MARKTPREISE", jahre, [reihe("preis%d" % g) for g in range(1, 21)], [])
    with open(sys.argv[2], "wb") as f:
        f.write(bild.png())


if __name__ == "__main__":
    main()
