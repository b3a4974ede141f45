"""Die großen Bilder als Zeichenbefehle: sieben Schiffe (groß und klein),
DTW-Filter und Portal (groß und klein).

Schiffe sind von der Seite gesehen, Bug nach rechts, Triebwerke links.
Alle Maße der Schiffe sind in einem Raster von 68 Einheiten angegeben; die
kleinen Fassungen zeichnen dieselben Formen mit kleinerem Maßstab neu und
lassen Feinheiten weg oder vergröbern sie (Parameter "klein"), statt ein
fertiges Bild zu verkleinern.
"""
import math
import random

from leinwand import (Leinwand, hell, mischen, zylinder, senkrecht, kugel)

# Triebwerksfarben
BLAU_KERN, BLAU_SCHEIN = (235, 250, 255), (60, 150, 255)
ROT_KERN, ROT_SCHEIN = (255, 240, 200), (255, 70, 20)
GOLD_KERN, GOLD_SCHEIN = (255, 255, 220), (255, 190, 60)

FENSTER = (150, 235, 255)
LICHT_ROT, LICHT_GRUEN = (255, 60, 60), (80, 255, 100)


class Massstab:
    """Zeichnet in 68er-Einheiten auf eine Leinwand beliebiger Größe."""

    def __init__(self, leinwand, einheiten=68.0, dx=0.0, dy=0.0):
        self.b = leinwand
        self.s = leinwand.h / einheiten
        self.dx, self.dy = dx, dy

    def p(self, x, y):
        return ((x + self.dx) * self.s, (y + self.dy) * self.s)

    def py(self, y):
        return (y + self.dy) * self.s

    def px(self, x):
        return (x + self.dx) * self.s

    def vieleck(self, punkte, farbe):
        self.b.polygon([self.p(x, y) for x, y in punkte], farbe)

    def rechteck(self, x0, y0, x1, y1, farbe):
        a, b = self.p(x0, y0), self.p(x1, y1)
        self.b.rechteck(a[0], a[1], b[0], b[1], farbe)

    def ellipse(self, cx, cy, rx, ry, farbe, irx=0.0, iry=0.0, von=None, bis=None):
        c = self.p(cx, cy)
        self.b.ellipse(c[0], c[1], rx * self.s, ry * self.s, farbe,
                       irx * self.s, iry * self.s, von, bis)

    def balken(self, x0, y0, x1, y1, dicke, farbe, mindestens=1.0):
        a, b = self.p(x0, y0), self.p(x1, y1)
        self.b.balken(a[0], a[1], b[0], b[1], max(mindestens, dicke * self.s), farbe)

    def linie(self, x0, y0, x1, y1, farbe):
        a, b = self.p(x0, y0), self.p(x1, y1)
        self.b.linie(math.floor(a[0]), math.floor(a[1]), math.floor(b[0]), math.floor(b[1]), farbe)

    def punkt(self, x, y, farbe):
        a = self.p(x, y)
        self.b.setze(math.floor(a[0]), math.floor(a[1]), farbe)

    def muster(self, x, y, zeilen, palette):
        """Kleines Pixelmuster (Liste von Zeichenketten) mit der linken oberen
        Ecke an (x, y); ein Zeichen ist ein Pixel, ' ' bleibt frei."""
        a = self.p(x, y)
        x0, y0 = math.floor(a[0]), math.floor(a[1])
        for j, zeile in enumerate(zeilen):
            for i, z in enumerate(zeile):
                if z != " ":
                    self.b.setze(x0 + i, y0 + j, palette[z])

    def zyl(self, basis, y0, y1, **k):
        return zylinder(basis, self.py(y0), self.py(y1), **k)

    def senk(self, basis, x0, x1, **k):
        return senkrecht(basis, self.px(x0), self.px(x1), **k)

    def kug(self, basis, cx, cy, r, **k):
        c = self.p(cx, cy)
        return kugel(basis, c[0], c[1], r * self.s, **k)

    def flamme(self, x, cy, laenge, hoehe, kern, schein):
        c = self.p(x, cy)
        # im kleinen Bild nicht unter 5 x 1,8 Pixel, sonst verschwindet der Strahl
        self.b.flamme(c[0], c[1], max(5.0, laenge * self.s), max(1.8, hoehe * self.s), kern, schein)

    def leuchten(self, cx, cy, rx, ry, farbe, staerke=1.0, exponent=2.0):
        c = self.p(cx, cy)
        self.b.leuchten(c[0], c[1], rx * self.s, ry * self.s, farbe, staerke, exponent)


def duese(z, x, cy, h, laenge=3.0):
    """Triebwerksdüse: dunkles Metall, heller Ring innen."""
    z.rechteck(x, cy - h / 2, x + laenge, cy + h / 2, z.zyl((110, 110, 120), cy - h / 2, cy + h / 2))
    z.rechteck(x, cy - h / 2 + 0.8, x + 0.9, cy + h / 2 - 0.8, (200, 230, 255))


def rippe(z, x, y0, y1, farbe):
    """Eine Pixel breite senkrechte Linie in 68er-Einheiten."""
    a = z.p(x, y0)
    b = z.p(x, y1)
    for y in range(math.floor(a[1]), math.ceil(b[1])):
        z.b.setze(math.floor(a[0]), y, farbe)


def behaelter(z, x0, y0, x1, y1, farbe, rippen):
    z.rechteck(x0, y0, x1, y1, z.zyl(farbe, y0, y1, licht=1.25, unten=0.6, stufen=4))
    x = x0 + rippen
    while x < x1 - 1.0:
        rippe(z, x, y0 + 1, y1 - 1, hell(farbe, 0.6))
        x += rippen


# ---------------------------------------------------------------- Frachter

def frachter(b, klein):
    z = Massstab(b)
    rumpf = (118, 134, 160)
    # Triebwerke hinten
    duese(z, 5, 34, 5)
    duese(z, 5, 42, 5)
    # Rumpf
    z.vieleck([(8, 29), (54, 29), (63, 34), (63, 42), (54, 47), (8, 47)], z.zyl(rumpf, 29, 47))
    z.rechteck(8, 38, 54, 39.5, hell(rumpf, 0.55))                       # Naht
    # Container oben und unten
    rip = 4.0 if klein else 2.0
    behaelter(z, 11, 18, 23, 29, (70, 110, 185), rip)
    behaelter(z, 24, 18, 36, 29, (150, 155, 165), rip)
    behaelter(z, 37, 18, 48, 29, (70, 110, 185), rip)
    behaelter(z, 15, 47, 29, 54, (150, 155, 165), rip)
    behaelter(z, 30, 47, 44, 54, (70, 110, 185), rip)
    # Brücke vorn
    z.vieleck([(48, 29), (48, 21), (56, 21), (61, 29)], z.zyl((170, 180, 195), 21, 29))
    z.rechteck(52, 23, 58.5 if not klein else 59, 25.5, FENSTER)
    z.balken(51, 21, 51, 14, 0.8, (180, 180, 190))                    # Antenne
    b.kanten()
    z.punkt(51, 14, LICHT_ROT)
    z.punkt(62, 40, LICHT_GRUEN)
    z.flamme(5, 34, 9, 3.2, BLAU_KERN, BLAU_SCHEIN)
    z.flamme(5, 42, 9, 3.2, BLAU_KERN, BLAU_SCHEIN)
    return b


# ---------------------------------------------------------------- Kreuzer

def kreuzer(b, klein):
    z = Massstab(b)
    grau = (92, 96, 108)
    rot = (200, 30, 35)
    # Heckflossen oben und unten, nach hinten gepfeilt
    z.vieleck([(12, 30), (4, 15), (10, 15), (26, 29)], z.zyl(grau, 15, 30))
    z.vieleck([(12, 42), (4, 57), (10, 57), (26, 43)], z.zyl(grau, 42, 57))
    z.vieleck([(5.5, 16), (9, 16), (11, 20), (7.5, 20)], rot)
    z.vieleck([(5.5, 56), (9, 56), (11, 52), (7.5, 52)], rot)
    # Rumpf: langer Keil
    z.vieleck([(8, 29), (30, 27), (52, 31), (67, 36), (52, 41), (30, 45), (8, 43)], z.zyl(grau, 27, 45))
    # Aufbau mit Brücke
    z.vieleck([(22, 28), (30, 21), (44, 21), (50, 30)], z.zyl((120, 124, 136), 21, 30))
    z.rechteck(38, 23, 45, 25, FENSTER)
    # rote Streifen längs
    z.vieleck([(10, 34), (56, 34), (64, 36), (56, 36.6), (10, 36.6)], rot)
    if not klein:
        z.vieleck([(10, 39), (50, 39), (56, 38.2), (56, 39.6), (50, 40.2), (10, 40.2)], hell(rot, 0.8))
    # Geschütze: Zwillingsturm oben, Turm unten, Kanone am Bug
    z.ellipse(33, 21, 4, 2.6, z.kug((140, 140, 150), 33, 21, 4))
    z.balken(35, 19.2, 48, 19.2, 1.0, (170, 170, 180))
    if not klein:
        z.balken(35, 21.2, 48, 21.2, 1.0, (150, 150, 160))
    z.ellipse(40, 45, 3.5, 2.4, z.kug((140, 140, 150), 40, 45, 3.5))
    z.balken(42, 46.0, 53, 46.0, 1.0, (170, 170, 180))
    b.kanten()
    z.punkt(44, 19.2 if not klein else 19, (255, 120, 80))
    for y in (32, 36, 40):
        duese(z, 5, y, 3.4)
        z.flamme(5, y, 8, 2.2, BLAU_KERN, BLAU_SCHEIN)
    return b


# ---------------------------------------------------------------- Scout

def scout(b, klein):
    z = Massstab(b)
    weiss = (200, 206, 218)
    blau = (50, 110, 220)
    # Flügel, stark gepfeilt
    z.vieleck([(28, 33), (20, 22), (25, 22), (40, 33)], z.zyl(blau, 22, 33))
    z.vieleck([(28, 39), (20, 50), (25, 50), (40, 39)], z.zyl(blau, 39, 50))
    # schlanker Rumpf mit spitzer Nase
    z.vieleck([(22, 32), (44, 31), (58, 34), (66, 36), (58, 38), (44, 41), (22, 40)], z.zyl(weiss, 31, 41))
    z.rechteck(26, 37.5, 56, 38.6, blau)
    # Kanzel
    z.ellipse(47, 33, 7, 3, z.zyl(FENSTER, 30, 35, licht=1.5, unten=0.6), von=180, bis=360)
    # großes Triebwerk
    z.vieleck([(13, 29), (26, 30), (26, 42), (13, 43)], z.zyl((120, 126, 140), 29, 43))
    z.rechteck(23, 29.5, 24.5, 42.5, hell(blau, 1.1))
    b.kanten()
    z.rechteck(11, 30, 13, 42, (230, 245, 255))
    z.flamme(12, 36, 13, 8, BLAU_KERN, BLAU_SCHEIN)
    z.flamme(12, 36, 6, 4.5, BLAU_KERN, (120, 200, 255))
    return b


# ---------------------------------------------------------------- Raumstation

def raumstation(b, klein):
    z = Massstab(b)
    metall = (160, 165, 178)
    paneel = (45, 80, 170)
    gitter = (120, 160, 235)
    # Träger quer durch die Station
    z.rechteck(2, 32.8, 66, 35.2, z.zyl((130, 130, 140), 32.8, 35.2))
    # Sonnensegel links und rechts, über und unter dem Träger
    for x0 in (2, 54):
        for y0, y1 in ((21, 32), (36, 47)):
            z.rechteck(x0, y0, x0 + 12, y1, z.zyl(paneel, y0, y1, licht=1.4, stufen=4))
            schritt = 4.0 if not klein else 6.0
            x = x0 + schritt
            while x < x0 + 11.5:
                rippe(z, x, y0, y1, gitter)
                x += schritt
            if not klein:
                z.rechteck(x0, (y0 + y1) / 2 - 0.5, x0 + 12, (y0 + y1) / 2 + 0.5, gitter)
    # Mast oben und unten mit Modulen
    z.rechteck(32.5, 4, 35.5, 64, z.senk((140, 140, 150), 32.5, 35.5))
    z.rechteck(29, 6, 39, 13, z.senk((190, 175, 140), 29, 39))
    z.rechteck(29, 55, 39, 62, z.senk((190, 175, 140), 29, 39))
    # Ring mit Fenstern
    z.ellipse(34, 34, 20, 20, z.kug(metall, 34, 34, 20), 15.5, 15.5)
    for i in range(12):
        w = math.radians(i * 30 + 15)
        z.punkt(34 + 17.8 * math.cos(w), 34 + 17.8 * math.sin(w), (255, 230, 120))
    # Speichen
    for w in (45, 135, 225, 315):
        r = math.radians(w)
        z.balken(34 + 6 * math.cos(r), 34 + 6 * math.sin(r),
                 34 + 16 * math.cos(r), 34 + 16 * math.sin(r), 2.2, (130, 134, 146))
    # Nabe
    z.ellipse(34, 34, 7, 7, z.kug((200, 200, 210), 34, 34, 7))
    z.ellipse(34, 34, 2.4, 2.4, (90, 200, 255))
    b.kanten()
    z.punkt(34, 4, LICHT_ROT)
    z.punkt(34, 63.5, LICHT_GRUEN)
    z.leuchten(34, 34, 4, 4, (80, 200, 255), 0.8)
    return b


# ---------------------------------------------------------------- Großfrachter

def grossfrachter(b, klein):
    z = Massstab(b)
    rumpf = (132, 122, 112)
    farben = [(200, 100, 40), (60, 110, 185), (150, 150, 160), (70, 140, 80), (190, 160, 60)]
    # Rumpf, sehr lang
    z.vieleck([(6, 31), (58, 31), (67, 35), (67, 42), (58, 46), (6, 46)], z.zyl(rumpf, 31, 46))
    z.vieleck([(6, 43), (61.5, 43), (58, 46), (6, 46)], z.zyl((150, 50, 40), 43, 46))   # Kiel
    z.rechteck(6, 38, 62, 39.2, hell(rumpf, 0.55))
    if not klein:
        for x in range(14, 60, 8):
            rippe(z, x, 31.5, 38, hell(rumpf, 0.7))
        for x in range(18, 58, 8):
            z.punkt(x, 35, (200, 220, 240))
    # zwei Lagen Container oben, eine unten
    breite = 7.0
    rip = 3.5 if not klein else 7.0
    n = 0
    for lage, (y0, y1) in enumerate(((24, 31), (17, 24))):
        x = 16.0 + (3.5 if lage else 0.0)
        while x + breite <= 60.5 - (7 if lage else 0):
            behaelter(z, x, y0, x + breite - 0.6, y1 - 0.4, farben[n % len(farben)], rip)
            n += 2 if n % 3 else 1
            x += breite
    x, n = 16.0, 3
    while x + breite <= 57:
        behaelter(z, x, 46, x + breite - 0.6, 52, farben[n % len(farben)], rip)
        n += 2
        x += breite
    # Brückenturm hinten
    z.rechteck(7, 13, 15, 31, z.senk((190, 190, 200), 7, 15))
    z.rechteck(6, 13, 16, 17, z.zyl((205, 205, 215), 13, 17))
    z.rechteck(7.5, 14.5, 15, 16, FENSTER)
    z.balken(11, 13, 11, 8, 0.8, (180, 180, 190))
    b.kanten()
    z.punkt(11, 8, LICHT_ROT)
    z.punkt(66, 38, LICHT_GRUEN)
    for y in (34.5, 42.5):
        duese(z, 3, y, 5)
        z.flamme(3, y, 6, 3, BLAU_KERN, BLAU_SCHEIN)
    return b


# ---------------------------------------------------------------- Piraten

TOTENKOPF_GROSS = [
    " WWWWW ",
    "WWWWWWW",
    "WkkWkkW",
    "WkkWkkW",
    "WWWkWWW",
    " WWWWW ",
    " WkWkW ",
]
TOTENKOPF_KLEIN = [
    " WWW ",
    "WkWkW",
    "WWWWW",
    " WkW ",
]


def piraten(b, klein):
    z = Massstab(b, dx=0.5)
    schwarz = (62, 56, 62)
    rot = (190, 25, 30)
    # gezackter Rumpf mit Rammsporn
    rumpf = [(9, 29), (14, 22), (18, 29), (24, 17), (30, 28), (36, 21), (42, 29),
             (54, 30), (68, 34), (57, 36.5), (68, 40), (54, 43),
             (42, 44), (36, 52), (30, 45), (24, 56), (18, 44), (14, 51), (9, 44)]
    if klein:   # Zacken höher, sonst gehen sie im kleinen Bild unter
        rumpf = [(x, 36.5 + (y - 36.5) * 1.2) for x, y in rumpf]
    z.vieleck(rumpf, z.zyl(schwarz, 15, 58, licht=1.5, unten=0.7))
    # rote Zackenspitzen
    for sx, sy, unten in ((14, 22, 0), (24, 17, 0), (36, 21, 0), (14, 51, 1), (24, 56, 1), (36, 52, 1)):
        d = 1 if unten else -1
        lang = 4.5
        if klein:
            sy, lang = 36.5 + (sy - 36.5) * 1.2, 7.0
        z.vieleck([(sx, sy), (sx - 1.8, sy - d * lang), (sx + 1.8, sy - d * lang)], rot)
    # Aufbau
    z.vieleck([(40, 29), (44, 24), (52, 24), (56, 30)], z.zyl((80, 72, 78), 24, 30))
    z.rechteck(47, 25.5, 53, 27.3, (255, 90, 60))
    # roter Streifen
    z.vieleck([(10, 38), (54, 38), (62, 38.6), (54, 40), (10, 40)], rot)
    b.kanten(licht=1.5, schatten=0.7)
    # Totenkopf
    pal = {"W": (240, 236, 225), "k": (20, 10, 10)}
    if klein:
        z.muster(26.5, 31, TOTENKOPF_KLEIN, pal)
    else:
        z.muster(27, 30, TOTENKOPF_GROSS, pal)
    for y in (33, 40):
        duese(z, 6, y, 3.6)
        z.flamme(6, y, 9, 2.6, ROT_KERN, ROT_SCHEIN)
    # Pirates come from the other side: their nose points left, so that the
    # intro's pirate flies nose first across the screen.
    b.spiegeln()
    return b


# ---------------------------------------------------------------- Händler

MUENZE_H = [
    "H   H",
    "H   H",
    "HHHHH",
    "H   H",
    "H   H",
]
MUENZE_H_KLEIN = [
    "H H",
    "H H",
    "HHH",
    "H H",
    "H H",
]


def haendler(b, klein):
    z = Massstab(b)
    gruen = (60, 150, 85)
    gold = (225, 180, 60)
    # Heckflosse und Triebwerksgondeln
    z.vieleck([(12, 30), (10, 18), (16, 18), (26, 28)], z.zyl(gruen, 18, 30))
    z.ellipse(15, 47, 7, 3.6, z.zyl(gold, 43.4, 50.6))
    # runder Rumpf
    z.ellipse(36, 36, 26, 13, z.zyl(gruen, 23, 49, licht=1.4))
    # goldenes Band
    z.vieleck([(11, 40), (61, 40), (60.2, 42.2), (11.8, 42.2)], z.zyl(gold, 40, 42.2))
    # Kanzel vorn
    z.ellipse(52, 31, 7, 4.5, z.zyl(FENSTER, 26.5, 35.5, licht=1.5, unten=0.55), von=180, bis=360)
    z.rechteck(45, 30.6, 59, 31.6, z.zyl(FENSTER, 26.5, 35.5, licht=1.5, unten=0.55))
    # Münze mit H
    r = 6.5 if not klein else 8.0
    z.ellipse(33, 33, r, r, z.kug(gold, 33, 33, r))
    if not klein:
        z.ellipse(33, 33, r, r, hell(gold, 0.6), r - 1.2, r - 1.2)
    b.kanten()
    pal = {"H": (110, 70, 10)}
    if klein:
        z.muster(30.5, 29, MUENZE_H_KLEIN, pal)
    else:
        z.muster(30.5, 30.5, MUENZE_H, pal)
    z.punkt(61, 37, LICHT_GRUEN)
    duese(z, 7, 47, 4)
    z.flamme(7, 47, 8, 3, GOLD_KERN, GOLD_SCHEIN)
    duese(z, 9, 36, 5)
    z.flamme(9, 36, 9, 3.4, GOLD_KERN, GOLD_SCHEIN)
    return b


# ---------------------------------------------------------------- DTW-Filter

def dtw_filter():
    b = Leinwand(34, 34)
    z = Massstab(b, einheiten=34)
    metall = (150, 160, 170)
    # Anschlussstutzen
    z.rechteck(14, 0, 20, 5, z.senk((120, 125, 135), 14, 20))
    z.rechteck(14, 29, 20, 34, z.senk((120, 125, 135), 14, 20))
    # Zylinderkörper
    z.rechteck(8, 4, 26, 30, z.senk(metall, 8, 26))
    # Kühlrippen
    for y in (6, 9, 24, 27):
        z.rechteck(5, y, 29, y + 1.6, z.senk((175, 180, 190), 5, 29))
    # Sichtfenster mit Gitter und grünem Leuchten
    z.rechteck(11, 12, 23, 22, (20, 90, 30))
    b.leuchten(17, 17, 6.5, 5.5, (90, 255, 110), 1.0, 1.2)
    for x in range(11, 23, 3):
        b.rechteck(x, 12, x + 1, 22, (60, 80, 70))
    for y in range(12, 22, 3):
        b.rechteck(11, y, 23, y + 1, (60, 80, 70))
    z.rechteck(10, 11, 24, 12, (90, 95, 105))
    z.rechteck(10, 22, 24, 23, (200, 205, 215))
    b.kanten()
    b.leuchten(17, 17, 12, 10, (40, 200, 60), 0.35, 2.0)
    return b


# ---------------------------------------------------------------- Portal

def portal(w, h):
    """Energietor: leuchtender Ring, innen ein violett-cyaner Strudel, außen
    Sterne. Je Pixel 3x3 Abtastungen, Farben in Stufen (Pixel-Kunst)."""
    b = Leinwand(w, h)
    cx, cy = w / 2.0, h / 2.0
    rx, ry = w * 0.38, h * 0.41
    violett, cyan, tief = (170, 60, 255), (60, 230, 255), (40, 10, 90)

    def farbe(x, y):
        u, v = (x - cx) / rx, (y - cy) / ry
        r = math.hypot(u, v)
        a = math.atan2(v, u)
        ring = math.exp(-((r - 1.0) / 0.07) ** 2)
        schein = math.exp(-abs(r - 1.0) / 0.12) * 0.55
        if r < 1.0:
            wirbel = 0.5 + 0.5 * math.sin(5 * a + 11 * r)
            innen = (0.18 + 0.7 * wirbel ** 3) * (0.35 + 0.65 * r)
            kern = math.exp(-(r / 0.22) ** 2)
            c = mischen(tief, violett, min(1.0, innen * 1.4))
            c = mischen(c, cyan, min(1.0, wirbel ** 4 * r * 0.9))
            c = mischen(c, (255, 255, 255), kern * 0.9)
        else:
            c = (0, 0, 0)
        ringfarbe = mischen(cyan, violett, 0.5 + 0.5 * math.sin(2 * a + 0.6))
        c = tuple(min(255, c[i] + ringfarbe[i] * schein) for i in range(3))
        c = mischen(c, mischen(ringfarbe, (255, 255, 255), 0.55), ring)
        return c

    for py in range(h):
        for px in range(w):
            summe = [0.0, 0.0, 0.0]
            for sy in (0.2, 0.5, 0.8):
                for sx in (0.2, 0.5, 0.8):
                    c = farbe(px + sx, py + sy)
                    for i in range(3):
                        summe[i] += c[i]
            # auf 16er-Stufen runden: flache Farbflächen wie gemalt
            b.setze(px, py, [min(255, round(s / 9 / 16) * 16) for s in summe])

    # Sterne außerhalb des Rings (fester Startwert: immer dieselben)
    zufall = random.Random(4711)
    anzahl = int(w * h / 260)
    for _ in range(anzahl):
        x, y = zufall.uniform(0, w), zufall.uniform(0, h)
        if math.hypot((x - cx) / rx, (y - cy) / ry) < 1.25:
            continue
        hel = zufall.choice((110, 160, 220, 255))
        stern = (hel, hel, min(255, hel + 30))
        b.addiere(int(x), int(y), stern)
        if hel == 255 and w > 100:
            for ddx, ddy in ((1, 0), (-1, 0), (0, 1), (0, -1)):
                b.addiere(int(x) + ddx, int(y) + ddy, (90, 90, 120))
    # ein paar Funken im Strudel
    for _ in range(max(4, int(w * h / 1500))):
        a, r = zufall.uniform(0, 2 * math.pi), zufall.uniform(0.3, 0.85)
        x, y = cx + rx * r * math.cos(a), cy + ry * r * math.sin(a)
        b.addiere(int(x), int(y), (200, 200, 230))
    # Knoten auf dem Ring
    for i in range(8):
        a = math.radians(i * 45 + 22.5)
        x, y = cx + rx * math.cos(a), cy + ry * math.sin(a)
        r = max(1.2, w / 70)
        b.ellipse(x, y, r, r, (255, 255, 255))
        b.leuchten(x, y, r * 3, r * 3, (120, 220, 255), 0.7)
    return b


# ---------------------------------------------------------------- Liste

def schiff(funktion, w, h, klein):
    return lambda: funktion(Leinwand(w, h), klein)


BILDER = {
    "Frachter": schiff(frachter, 68, 68, False),
    "Kreuzer": schiff(kreuzer, 68, 68, False),
    "Scout": schiff(scout, 68, 68, False),
    "Raumstation": schiff(raumstation, 68, 68, False),
    "Grossfrachter": schiff(grossfrachter, 68, 68, False),
    "Piraten": schiff(piraten, 69, 68, False),
    "Haendler": schiff(haendler, 68, 68, False),
    "FrachterKlein": schiff(frachter, 36, 36, True),
    "KreuzerKlein": schiff(kreuzer, 36, 36, True),
    "ScoutKlein": schiff(scout, 36, 36, True),
    "RaumstationKlein": schiff(raumstation, 36, 36, True),
    "GrossfrachterKlein": schiff(grossfrachter, 34, 34, True),
    "PiratenKlein": schiff(piraten, 36, 36, True),
    "HaendlerKlein": schiff(haendler, 36, 36, True),
    "DTW-Filter": dtw_filter,
    "Portal": lambda: portal(202, 147),
    "PortalKlein": lambda: portal(81, 59),
}
