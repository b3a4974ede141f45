"""Kleine Zeichenfläche für die Bildererzeugung (nur Standardbibliothek).

Koordinaten sind Gleitkommazahlen; eine Fläche füllt jedes Pixel, dessen
Mittelpunkt (x + 0.5, y + 0.5) in ihr liegt. So entstehen harte Pixelkanten
ohne Weichzeichnung. Eine Farbe ist ein Tupel (r, g, b) oder eine Funktion
(x, y) -> (r, g, b), die für jedes gefüllte Pixel gefragt wird (Schattierung).
"""
import math

SCHWARZ = (0, 0, 0)


def klemmen(v):
    return 0 if v < 0 else 255 if v > 255 else int(round(v))


def hell(farbe, f):
    """Farbe mit dem Faktor f aufgehellt (f > 1) oder abgedunkelt (f < 1)."""
    return tuple(klemmen(c * f) for c in farbe)


def mischen(a, b, t):
    """t = 0 -> a, t = 1 -> b."""
    return tuple(klemmen(a[i] + (b[i] - a[i]) * t) for i in range(3))


def hex_farbe(text):
    text = text.lstrip("#")
    return (int(text[0:2], 16), int(text[2:4], 16), int(text[4:6], 16))


def stufe(f, stufen):
    """Helligkeitsfaktor auf wenige Stufen runden (Pixel-Kunst-Bänder)."""
    if not stufen:
        return f
    return round(f * stufen) / stufen


def zylinder(basis, y0, y1, stufen=6, oben=1.0, licht=1.35, unten=0.45):
    """Schattierung eines liegenden Zylinders von y0 bis y1: Glanz im oberen
    Drittel, unten dunkel."""
    def farbe(x, y):
        t = 0.0 if y1 <= y0 else min(1.0, max(0.0, (y - y0) / (y1 - y0)))
        if t < 0.3:
            f = oben + (licht - oben) * t / 0.3
        else:
            f = licht + (unten - licht) * (t - 0.3) / 0.7
        return hell(basis, stufe(f, stufen))
    return farbe


def senkrecht(basis, x0, x1, stufen=6, links=0.55, licht=1.35, rechts=0.45):
    """Schattierung eines stehenden Zylinders von x0 bis x1 (Licht links)."""
    def farbe(x, y):
        t = 0.0 if x1 <= x0 else min(1.0, max(0.0, (x - x0) / (x1 - x0)))
        if t < 0.3:
            f = links + (licht - links) * t / 0.3
        else:
            f = licht + (rechts - licht) * (t - 0.3) / 0.7
        return hell(basis, stufe(f, stufen))
    return farbe


def kugel(basis, cx, cy, r, stufen=6):
    """Schattierung einer Kugel, Licht von links oben."""
    def farbe(x, y):
        lx, ly = cx - 0.4 * r, cy - 0.45 * r
        d = math.hypot(x - lx, y - ly) / (1.5 * r)
        f = 1.45 - 1.05 * min(1.0, d)
        return hell(basis, stufe(f, stufen))
    return farbe


class Leinwand:
    def __init__(self, w, h, grund=SCHWARZ):
        self.w, self.h = w, h
        self.pix = [list(grund) for _ in range(w * h)]

    def spiegeln(self):
        """Mirrors the picture left to right."""
        self.pix = [self.pix[y * self.w + (self.w - 1 - x)] for y in range(self.h) for x in range(self.w)]

    # ------------------------------------------------------------ Pixel
    def drin(self, x, y):
        return 0 <= x < self.w and 0 <= y < self.h

    def holen(self, x, y):
        p = self.pix[y * self.w + x]
        return (klemmen(p[0]), klemmen(p[1]), klemmen(p[2]))

    def setze(self, x, y, farbe):
        x, y = int(x), int(y)
        if self.drin(x, y):
            self.pix[y * self.w + x] = [klemmen(c) for c in farbe]

    def addiere(self, x, y, farbe, staerke=1.0):
        """Licht dazugeben (für Glühen und Flammen)."""
        x, y = int(x), int(y)
        if self.drin(x, y):
            p = self.pix[y * self.w + x]
            for i in range(3):
                p[i] = min(255, p[i] + farbe[i] * staerke)

    def leer(self, x, y):
        return not self.drin(x, y) or self.holen(x, y) == SCHWARZ

    def _farbe(self, farbe, x, y):
        return farbe(x + 0.5, y + 0.5) if callable(farbe) else farbe

    # ------------------------------------------------------------ Flächen
    def rechteck(self, x0, y0, x1, y1, farbe):
        for y in range(max(0, math.ceil(y0 - 0.5)), min(self.h, math.ceil(y1 - 0.5))):
            for x in range(max(0, math.ceil(x0 - 0.5)), min(self.w, math.ceil(x1 - 0.5))):
                self.setze(x, y, self._farbe(farbe, x, y))

    def polygon(self, punkte, farbe):
        """Gefülltes Vieleck (gerade-ungerade Regel), Pixelmitten entscheiden."""
        ys = [p[1] for p in punkte]
        n = len(punkte)
        for y in range(max(0, math.floor(min(ys))), min(self.h, math.ceil(max(ys)) + 1)):
            my = y + 0.5
            schnitte = []
            for i in range(n):
                (ax, ay), (bx, by) = punkte[i], punkte[(i + 1) % n]
                if (ay <= my < by) or (by <= my < ay):
                    schnitte.append(ax + (my - ay) * (bx - ax) / (by - ay))
            schnitte.sort()
            for a, b in zip(schnitte[0::2], schnitte[1::2]):
                for x in range(max(0, math.ceil(a - 0.5)), min(self.w, math.ceil(b - 0.5))):
                    self.setze(x, y, self._farbe(farbe, x, y))

    def ellipse(self, cx, cy, rx, ry, farbe, innen_rx=0.0, innen_ry=0.0,
                winkel_von=None, winkel_bis=None):
        """Gefüllte Ellipse; mit innen_rx/innen_ry ein Ring; mit Winkeln (Grad,
        0 = rechts, 90 = unten) nur ein Ausschnitt."""
        for y in range(max(0, math.floor(cy - ry)), min(self.h, math.ceil(cy + ry) + 1)):
            for x in range(max(0, math.floor(cx - rx)), min(self.w, math.ceil(cx + rx) + 1)):
                dx, dy = x + 0.5 - cx, y + 0.5 - cy
                if (dx / rx) ** 2 + (dy / ry) ** 2 > 1.0:
                    continue
                if innen_rx > 0 and (dx / innen_rx) ** 2 + (dy / innen_ry) ** 2 < 1.0:
                    continue
                if winkel_von is not None:
                    w = math.degrees(math.atan2(dy, dx)) % 360
                    if not (winkel_von <= w <= winkel_bis or winkel_von <= w + 360 <= winkel_bis):
                        continue
                self.setze(x, y, self._farbe(farbe, x, y))

    def balken(self, x0, y0, x1, y1, dicke, farbe):
        """Dicke Strecke: alle Pixel, deren Mitte höchstens dicke/2 entfernt ist."""
        r = dicke / 2.0
        for y in range(max(0, math.floor(min(y0, y1) - r)), min(self.h, math.ceil(max(y0, y1) + r) + 1)):
            for x in range(max(0, math.floor(min(x0, x1) - r)), min(self.w, math.ceil(max(x0, x1) + r) + 1)):
                if abstand_strecke(x + 0.5, y + 0.5, x0, y0, x1, y1) <= r:
                    self.setze(x, y, self._farbe(farbe, x, y))

    def linie(self, x0, y0, x1, y1, farbe):
        """Ein Pixel dünne Linie (Bresenham) zwischen Pixeln."""
        x0, y0, x1, y1 = int(round(x0)), int(round(y0)), int(round(x1)), int(round(y1))
        dx, dy = abs(x1 - x0), -abs(y1 - y0)
        sx, sy = (1 if x0 < x1 else -1), (1 if y0 < y1 else -1)
        err = dx + dy
        while True:
            self.setze(x0, y0, self._farbe(farbe, x0, y0))
            if x0 == x1 and y0 == y1:
                break
            e2 = 2 * err
            if e2 >= dy:
                err += dy
                x0 += sx
            if e2 <= dx:
                err += dx
                y0 += sy

    # ------------------------------------------------------------ Licht
    def leuchten(self, cx, cy, rx, ry, farbe, staerke=1.0, exponent=2.0):
        """Weiches Licht, additiv: in der Mitte volle Stärke, nach außen 0."""
        for y in range(max(0, math.floor(cy - ry)), min(self.h, math.ceil(cy + ry) + 1)):
            for x in range(max(0, math.floor(cx - rx)), min(self.w, math.ceil(cx + rx) + 1)):
                d = math.hypot((x + 0.5 - cx) / rx, (y + 0.5 - cy) / ry)
                if d < 1.0:
                    self.addiere(x, y, farbe, staerke * (1.0 - d) ** exponent)

    def flamme(self, x, cy, laenge, hoehe, kern=(255, 255, 255), aussen=(80, 160, 255)):
        """Triebwerksstrahl nach links ab x: weißer Kern, farbiger Schein."""
        self.leuchten(x, cy, laenge, hoehe, aussen, 1.0, 1.2)
        self.leuchten(x, cy, laenge * 0.55, hoehe * 0.5, kern, 1.0, 1.0)

    def kanten(self, licht=1.3, schatten=0.6):
        """Pixel-Kunst-Kanten: Pixel am Rand einer Fläche werden oben/links
        heller und unten/rechts dunkler (Licht von links oben)."""
        alt = [self.holen(x, y) for y in range(self.h) for x in range(self.w)]

        def leer(x, y):
            return not self.drin(x, y) or alt[y * self.w + x] == SCHWARZ

        for y in range(self.h):
            for x in range(self.w):
                f = alt[y * self.w + x]
                if f == SCHWARZ:
                    continue
                if leer(x, y - 1) or leer(x - 1, y):
                    self.setze(x, y, hell(f, licht))
                elif leer(x, y + 1) or leer(x + 1, y):
                    self.setze(x, y, hell(f, schatten))


def abstand_strecke(px, py, ax, ay, bx, by):
    vx, vy = bx - ax, by - ay
    l2 = vx * vx + vy * vy
    t = 0.0 if l2 == 0 else max(0.0, min(1.0, ((px - ax) * vx + (py - ay) * vy) / l2))
    return math.hypot(px - (ax + t * vx), py - (ay + t * vy))
