#!/usr/bin/env python3
"""Erzeugt die Musikstücke des Spiels als Standard-MIDI-Dateien in data/Musik/.

Nur Python-Standardbibliothek. Die Stücke stehen als lesbare Notenlisten in
tools/musik/stuecke/*.txt (Format: tools/musik/README.md). Jede Notenliste
wird zu einer MIDI-Datei im Format 1: Spur 0 trägt Titel, Taktart und Tempo,
jede weitere Spur einen Kanal mit eigenem Instrument (Kanal 10 = Schlagzeug).

Aufruf:
  python3 tools/musik/musik_erzeugen.py                 # alle Stücke schreiben
  python3 tools/musik/musik_erzeugen.py Orden.txt ...   # nur diese Stücke
  python3 tools/musik/musik_erzeugen.py --ziel DIR      # anderes Zielverzeichnis
  python3 tools/musik/musik_erzeugen.py --pruefen [DATEI.mid ...]
      liest die MIDI-Dateien (ohne Angabe: alle in data/Musik/) zurück, prüft
      ihren Aufbau, nennt Spuren, Kanäle, Instrumente, Notenzahl und Dauer in
      Sekunden und vergleicht sie mit einer frischen Übersetzung der
      Notenlisten. Rückgabewert 1 bei einem Fehler.

Die Ausgabe hängt nur von den Notenlisten ab: gleiche Eingabe, gleiche Bytes.
"""
import os
import re
import struct
import sys
from fractions import Fraction

sys.dont_write_bytecode = True
HIER = os.path.dirname(os.path.abspath(__file__))
WURZEL = os.path.normpath(os.path.join(HIER, "..", ".."))
STUECKE = os.path.join(HIER, "stuecke")
ZIEL = os.path.join(WURZEL, "data", "Musik")


class NotenFehler(Exception):
    pass


# ------------------------------------------------------------- Namen, Tabellen

# Englische Namen: B ist das deutsche H (H geht auch), B-Dur-B heißt Bb.
NOTEN = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11, "H": 11}

# Schlagzeug auf Kanal 10 (General-MIDI-Belegung).
TROMMELN = {
    "bd": 36, "bd2": 35, "rim": 37, "sn": 38, "klatsch": 39, "sn2": 40,
    "tom6": 41, "hh": 42, "tom5": 43, "hhp": 44, "tom4": 45, "hho": 46,
    "tom3": 47, "tom2": 48, "becken": 49, "tom1": 50, "ride": 51,
    "china": 52, "glocke": 53, "tamb": 54, "splash": 55, "kuhglocke": 56,
    "becken2": 57, "vibraslap": 58, "ride2": 59, "claves": 75,
    "holz_hoch": 76, "holz_tief": 77, "triangel_zu": 80, "triangel": 81,
    "shaker": 82, "schellen": 83,
}

KOPF_SCHLUESSEL = {"titel", "datei", "tempo", "takt", "aufloesung", "motiv",
                   "spur", "kanal", "programm", "lautstaerke", "panorama",
                   "hall", "chorus", "bendbereich"}

EINSTELLUNGEN = {"v", "tr", "gate", "vol", "expr", "pan", "bend", "tempo",
                 "prog"}
RAMPEN = {"v", "vol", "expr", "pan", "bend", "tempo"}

GM_NAMEN = [
    "Acoustic Grand Piano", "Bright Acoustic Piano", "Electric Grand Piano",
    "Honky-tonk Piano", "Electric Piano 1", "Electric Piano 2", "Harpsichord",
    "Clavinet", "Celesta", "Glockenspiel", "Music Box", "Vibraphone",
    "Marimba", "Xylophone", "Tubular Bells", "Dulcimer", "Drawbar Organ",
    "Percussive Organ", "Rock Organ", "Church Organ", "Reed Organ",
    "Accordion", "Harmonica", "Tango Accordion", "Nylon Guitar",
    "Steel Guitar", "Jazz Guitar", "Clean Guitar", "Muted Guitar",
    "Overdriven Guitar", "Distortion Guitar", "Guitar Harmonics",
    "Acoustic Bass", "Finger Bass", "Pick Bass", "Fretless Bass",
    "Slap Bass 1", "Slap Bass 2", "Synth Bass 1", "Synth Bass 2", "Violin",
    "Viola", "Cello", "Contrabass", "Tremolo Strings", "Pizzicato Strings",
    "Orchestral Harp", "Timpani", "String Ensemble 1", "String Ensemble 2",
    "Synth Strings 1", "Synth Strings 2", "Choir Aahs", "Voice Oohs",
    "Synth Voice", "Orchestra Hit", "Trumpet", "Trombone", "Tuba",
    "Muted Trumpet", "French Horn", "Brass Section", "Synth Brass 1",
    "Synth Brass 2", "Soprano Sax", "Alto Sax", "Tenor Sax", "Baritone Sax",
    "Oboe", "English Horn", "Bassoon", "Clarinet", "Piccolo", "Flute",
    "Recorder", "Pan Flute", "Blown Bottle", "Shakuhachi", "Whistle",
    "Ocarina", "Square Lead", "Saw Lead", "Calliope Lead", "Chiff Lead",
    "Charang Lead", "Voice Lead", "Fifths Lead", "Bass+Lead", "New Age Pad",
    "Warm Pad", "Polysynth Pad", "Choir Pad", "Bowed Pad", "Metallic Pad",
    "Halo Pad", "Sweep Pad", "FX Rain", "FX Soundtrack", "FX Crystal",
    "FX Atmosphere", "FX Brightness", "FX Goblins", "FX Echoes", "FX Sci-fi",
    "Sitar", "Banjo", "Shamisen", "Koto", "Kalimba", "Bagpipe", "Fiddle",
    "Shanai", "Tinkle Bell", "Agogo", "Steel Drums", "Woodblock",
    "Taiko Drum", "Melodic Tom", "Synth Drum", "Reverse Cymbal",
    "Guitar Fret Noise", "Breath Noise", "Seashore", "Bird Tweet",
    "Telephone Ring", "Helicopter", "Applause", "Gunshot",
]


def tonhoehe(name):
    """'C4' -> 60, 'F#3' -> 54, 'Bb2' -> 46, 'bd' -> 36, 'n42' -> 42."""
    m = re.fullmatch(r"([A-H])(#|b)?(-?\d)", name)
    if m:
        wert = 12 * (int(m.group(3)) + 1) + NOTEN[m.group(1)]
        wert += {"#": 1, "b": -1, None: 0}[m.group(2)]
    elif re.fullmatch(r"n\d+", name):
        wert = int(name[1:])
    elif name in TROMMELN:
        wert = TROMMELN[name]
    else:
        raise NotenFehler("unbekannte Note '%s'" % name)
    if not 0 <= wert <= 127:
        raise NotenFehler("Note '%s' außerhalb 0..127" % name)
    return wert


def dauer(text):
    """'4' -> 1/4, '4.' -> 3/8, '2+8' -> 5/8, '1*3' -> 3, '12' -> 1/12
    (Bruchteil einer ganzen Note)."""
    summe = Fraction(0)
    for teil in text.split("+"):
        m = re.fullmatch(r"(\d+)(\.*)(?:\*(\d+))?", teil)
        if not m or int(m.group(1)) == 0:
            raise NotenFehler("unlesbare Dauer '/%s'" % text)
        wert = Fraction(1, int(m.group(1)))
        zusatz = wert
        for _ in m.group(2):
            zusatz /= 2
            wert += zusatz
        if m.group(3):
            wert *= int(m.group(3))
        summe += wert
    return summe


def zahl(text, unten, oben, was):
    try:
        wert = float(text) if "." in text else int(text)
    except ValueError:
        raise NotenFehler("%s: '%s' ist keine Zahl" % (was, text))
    if not unten <= wert <= oben:
        raise NotenFehler("%s: %s nicht in %s..%s" % (was, text, unten, oben))
    return wert


# ------------------------------------------------------------ Notenliste lesen

TOKEN = re.compile(r"\[|\](?:\*\d+)?|[^\s\[\]]+")


class Spur:
    def __init__(self, name, zeile):
        self.name = name
        self.zeile = zeile
        self.kanal = None
        self.programm = None
        self.lautstaerke = 100
        self.panorama = 64
        self.hall = 40
        self.chorus = 0
        self.bendbereich = None
        self.tokens = []          # (token, zeilennummer)


class Stueck:
    def __init__(self, quelle):
        self.quelle = quelle
        self.titel = os.path.splitext(os.path.basename(quelle))[0]
        self.datei = None
        self.tempo = 120
        self.takt = (4, 4)
        self.aufloesung = 480
        self.motive = {}          # name -> [(token, zeile)]
        self.spuren = []


def notenliste_lesen(pfad):
    stueck = Stueck(pfad)
    spur = None
    with open(pfad, encoding="utf-8") as f:
        zeilen = f.read().splitlines()
    for nr, zeile in enumerate(zeilen, 1):
        # '#' am Zeilenanfang oder nach Leerraum beginnt einen Kommentar;
        # in F#4 ist es ein Kreuz.
        zeile = re.split(r"(?:^|\s)#", zeile, maxsplit=1)[0].strip()
        if not zeile:
            continue
        try:
            wort, _, rest = zeile.partition(" ")
            schluessel = wort.rstrip(":")
            rest = rest.strip()
            if schluessel not in KOPF_SCHLUESSEL:
                if spur is None:
                    raise NotenFehler("Noten vor der ersten 'spur:'")
                spur.tokens += [(t, nr) for t in TOKEN.findall(zeile)]
                continue
            if schluessel == "motiv":
                name, doppelpunkt, noten = rest.partition(":")
                name = name.strip()
                if not doppelpunkt or not re.fullmatch(r"\w+", name):
                    raise NotenFehler("erwartet 'motiv NAME: Noten ...'")
                stueck.motive.setdefault(name, [])
                stueck.motive[name] += [(t, nr) for t in TOKEN.findall(noten)]
            elif schluessel == "spur":
                spur = Spur(rest or "Spur %d" % (len(stueck.spuren) + 1), nr)
                stueck.spuren.append(spur)
            elif schluessel in ("titel", "datei", "tempo", "takt",
                                "aufloesung"):
                if spur is not None:
                    raise NotenFehler("'%s:' gehört vor die erste Spur"
                                      % schluessel)
                if schluessel == "titel":
                    stueck.titel = rest
                elif schluessel == "datei":
                    if not re.fullmatch(r"[\w-]+\.mid", rest):
                        raise NotenFehler("Dateiname '%s'" % rest)
                    stueck.datei = rest
                elif schluessel == "tempo":
                    stueck.tempo = zahl(rest, 10, 400, "tempo")
                elif schluessel == "takt":
                    m = re.fullmatch(r"(\d+)/(1|2|4|8|16)", rest)
                    if not m:
                        raise NotenFehler("Taktart '%s'" % rest)
                    stueck.takt = (int(m.group(1)), int(m.group(2)))
                else:
                    stueck.aufloesung = zahl(rest, 24, 960, "aufloesung")
            else:
                if spur is None:
                    raise NotenFehler("'%s:' ohne Spur" % schluessel)
                grenzen = {"kanal": (1, 16), "programm": (1, 128),
                           "lautstaerke": (0, 127), "panorama": (0, 127),
                           "hall": (0, 127), "chorus": (0, 127),
                           "bendbereich": (1, 24)}[schluessel]
                setattr(spur, schluessel, zahl(rest, grenzen[0], grenzen[1],
                                               schluessel))
        except NotenFehler as e:
            raise NotenFehler("%s:%d: %s" % (pfad, nr, e))
    if stueck.datei is None:
        raise NotenFehler("%s: 'datei:' fehlt" % pfad)
    if not stueck.spuren:
        raise NotenFehler("%s: keine Spur" % pfad)
    for spur in stueck.spuren:
        if spur.kanal is None:
            raise NotenFehler("%s:%d: Spur '%s' ohne 'kanal:'"
                              % (pfad, spur.zeile, spur.name))
        if spur.programm is None and spur.kanal != 10:
            raise NotenFehler("%s:%d: Spur '%s' ohne 'programm:'"
                              % (pfad, spur.zeile, spur.name))
    return stueck


# ------------------------------------------------- Notenliste -> Ereignisse

# Reihenfolge gleichzeitiger Ereignisse: Meta, Einstellungen, Note aus, Note an.
META, REGLER, AUS, AN = 0, 1, 2, 3


def aufloesen(tokens, motive, tiefe=0):
    """Wiederholungen [ ... ]*N und Motive $NAME / $NAME^N ausschreiben.
    Liefert (token, zeile, transposition)."""
    if tiefe > 20:
        raise NotenFehler("Motive verweisen zu tief aufeinander")
    aus = []
    stapel = [[]]
    for token, nr in tokens:
        try:
            if token == "[":
                stapel.append([])
            elif token.startswith("]"):
                if len(stapel) == 1:
                    raise NotenFehler("']' ohne '['")
                inhalt = stapel.pop()
                mal = int(token[2:]) if len(token) > 1 else 1
                stapel[-1] += inhalt * mal
            elif token.startswith("$"):
                m = re.fullmatch(r"\$(\w+)(?:\^([+-]?\d+))?", token)
                if not m or m.group(1) not in motive:
                    raise NotenFehler("unbekanntes Motiv '%s'" % token)
                schub = int(m.group(2) or 0)
                for t, n, s in aufloesen(motive[m.group(1)], motive,
                                         tiefe + 1):
                    stapel[-1].append((t, n, s + schub))
            else:
                stapel[-1].append((token, nr, 0))
        except NotenFehler as e:
            raise NotenFehler("Zeile %d: %s" % (nr, e))
    if len(stapel) != 1:
        raise NotenFehler("'[' ohne ']'")
    aus = stapel[0]
    return aus


def spur_uebersetzen(stueck, spur, tempo_ereignisse):
    """Liefert (Ereignisliste, Länge in Ticks). Ereignis: (tick, art, folge, bytes)."""
    ganze = 4 * stueck.aufloesung
    taktlaenge = Fraction(stueck.takt[0], stueck.takt[1])
    k = spur.kanal - 1
    schlagzeug = spur.kanal == 10
    ereignisse = []
    folge = [0]

    def neu(tick, art, daten):
        ereignisse.append((tick, art, folge[0], bytes(daten)))
        folge[0] += 1

    def ticks(bruch):
        t = bruch * ganze
        if t.denominator != 1:
            raise NotenFehler("Dauer %s passt nicht ins Raster von %d Ticks je "
                              "Viertel" % (bruch, stueck.aufloesung))
        return int(t)

    zustand = {"v": 90, "tr": 0, "gate": 95}
    v_rampe = None            # (start, ende, von, bis)
    zeit = Fraction(0)
    takte = 0

    def regler_wert(name, wert):
        if name != "bend":
            wert = int(round(wert))
        if name == "vol":
            return [0xB0 | k, 7, wert]
        if name == "expr":
            return [0xB0 | k, 11, wert]
        if name == "pan":
            return [0xB0 | k, 10, wert]
        if name == "bend":
            bereich = spur.bendbereich or 2
            roh = int(round(8192 + wert * 8192 / bereich))
            roh = max(0, min(16383, roh))
            return [0xE0 | k, roh & 0x7F, roh >> 7]
        raise AssertionError(name)

    def einstellen(name, wert, tick):
        if name == "tempo":
            mikro = int(round(60000000 / wert))
            tempo_ereignisse.append((tick, META, len(tempo_ereignisse),
                                     bytes([0xFF, 0x51, 3]) +
                                     mikro.to_bytes(3, "big")))
        else:
            neu(tick, REGLER, regler_wert(name, wert))

    grenzen = {"v": (1, 127), "tr": (-48, 48), "gate": (5, 100),
               "vol": (0, 127), "expr": (0, 127), "pan": (0, 127),
               "bend": (-24, 24), "tempo": (10, 400), "prog": (1, 128)}

    try:
        folge_aufgeloest = aufloesen(spur.tokens, stueck.motive)
    except NotenFehler as e:
        raise NotenFehler("%s: Spur '%s': %s" % (stueck.quelle, spur.name, e))
    for token, nr, schub in folge_aufgeloest:
        try:
            if token == "|":
                if zeit % taktlaenge:
                    raise NotenFehler("Taktstrich mitten im Takt (%s ganze "
                                      "Noten nach Beginn)" % zeit)
                takte += 1
                continue
            if "=" in token:
                name, _, wert = token.partition("=")
                if name not in EINSTELLUNGEN:
                    raise NotenFehler("unbekannte Einstellung '%s'" % name)
                unten, oben = grenzen[name]
                m = re.fullmatch(r"([^>]+)>([^/]+)/(.+)", wert)
                jetzt = ticks(zeit)
                if m:
                    if name not in RAMPEN:
                        raise NotenFehler("'%s' kennt keinen Verlauf" % name)
                    von = zahl(m.group(1), unten, oben, name)
                    bis = zahl(m.group(2), unten, oben, name)
                    laenge = dauer(m.group(3))
                    if name == "v":
                        v_rampe = (zeit, zeit + laenge, von, bis)
                        zustand["v"] = bis
                        continue
                    # ein Schritt je 1/32-Note, höchstens ein Schritt je Wertstufe
                    spanne = ticks(zeit + laenge) - jetzt
                    schritte = max(1, int(laenge * 32))
                    if name in ("vol", "expr", "pan", "v"):
                        schritte = max(1, min(schritte, abs(int(bis - von))))
                    for i in range(schritte + 1):
                        w = von + (bis - von) * i / schritte
                        einstellen(name, w, jetzt + round(spanne * i / schritte))
                    continue
                w = zahl(wert, unten, oben, name)
                if name in ("tr", "prog") and w != int(w):
                    raise NotenFehler("'%s' braucht eine ganze Zahl" % name)
                if name in ("tr", "prog"):
                    w = int(w)
                if name in ("v", "tr", "gate"):
                    zustand[name] = w
                    if name == "v":
                        v_rampe = None
                elif name == "prog":
                    if schlagzeug:
                        raise NotenFehler("Kanal 10 hat kein Programm")
                    neu(jetzt, REGLER, [0xC0 | k, int(w) - 1])
                else:
                    einstellen(name, w, jetzt)
                continue
            hoehen, schraeg, rest = token.partition("/")
            if not schraeg:
                raise NotenFehler("'%s': Dauer fehlt (z. B. C4/4)" % token)
            rest, doppelpunkt, staerke = rest.partition(":")
            laenge = dauer(rest)
            start, ende = ticks(zeit), ticks(zeit + laenge)
            if hoehen != "r":
                if staerke:
                    v = int(zahl(staerke, 1, 127, "Anschlag"))
                elif v_rampe and v_rampe[0] <= zeit < v_rampe[1]:
                    anteil = (zeit - v_rampe[0]) / (v_rampe[1] - v_rampe[0])
                    v = int(round(v_rampe[2] + (v_rampe[3] - v_rampe[2])
                                  * anteil))
                else:
                    v = int(round(zustand["v"]))
                aus = start + max(1, (ende - start) * zustand["gate"] // 100)
                gesehen = set()
                for name in hoehen.split("+"):
                    h = tonhoehe(name)
                    if not schlagzeug:
                        h += zustand["tr"] + schub
                    if not 0 <= h <= 127:
                        raise NotenFehler("'%s' transponiert außerhalb 0..127"
                                          % name)
                    if h in gesehen:
                        continue
                    gesehen.add(h)
                    neu(start, AN, [0x90 | k, h, v])
                    neu(aus, AUS, [0x80 | k, h, 0])
            zeit += laenge
        except NotenFehler as e:
            raise NotenFehler("%s:%d: Spur '%s', Token '%s': %s"
                              % (stueck.quelle, nr, spur.name, token, e))
    return ereignisse, ticks(zeit)


# ------------------------------------------------------------ SMF schreiben

def vlq(wert):
    """Zahl als MIDI-Zahl variabler Länge (7 Bit je Byte, höchstes Bit = weiter)."""
    if wert < 0 or wert > 0x0FFFFFFF:
        raise ValueError(wert)
    aus = [wert & 0x7F]
    wert >>= 7
    while wert:
        aus.append(0x80 | (wert & 0x7F))
        wert >>= 7
    return bytes(reversed(aus))


def meta_text(typ, text):
    daten = text.encode("latin-1", "replace")
    return bytes([0xFF, typ]) + vlq(len(daten)) + daten


def spur_chunk(ereignisse, ende):
    """Ereignisse (tick, art, folge, bytes) -> MTrk-Chunk mit End-of-Track."""
    daten = bytearray()
    jetzt = 0
    for tick, _, _, roh in sorted(ereignisse, key=lambda e: e[:3]):
        daten += vlq(tick - jetzt) + roh
        jetzt = tick
    daten += vlq(max(0, ende - jetzt)) + b"\xFF\x2F\x00"
    return b"MTrk" + struct.pack(">I", len(daten)) + bytes(daten)


def stueck_uebersetzen(stueck):
    """Notenliste -> Bytes der MIDI-Datei (Format 1)."""
    tempo_ereignisse = []
    spuren = []
    ende = 0
    kanaele = {}
    for spur in stueck.spuren:
        if spur.kanal in kanaele:
            raise NotenFehler("%s: Spuren '%s' und '%s' teilen Kanal %d"
                              % (stueck.quelle, kanaele[spur.kanal],
                                 spur.name, spur.kanal))
        kanaele[spur.kanal] = spur.name
        ereignisse, laenge = spur_uebersetzen(stueck, spur, tempo_ereignisse)
        spuren.append((spur, ereignisse, laenge))
        ende = max(ende, laenge)
    for spur, _, laenge in spuren:
        if laenge != ende:
            raise NotenFehler("%s: Spur '%s' ist %s ganze Noten lang, die "
                              "längste %s" % (stueck.quelle, spur.name,
                                              Fraction(laenge, 4 * stueck.aufloesung),
                                              Fraction(ende, 4 * stueck.aufloesung)))
    # Spur 0: Titel, Taktart, Anfangstempo und alle Tempowechsel.
    zaehler, nenner = stueck.takt
    leiter = [
        (0, META, -3, meta_text(0x03, stueck.titel)),
        (0, META, -2, bytes([0xFF, 0x58, 4, zaehler, nenner.bit_length() - 1,
                             24, 8])),
        (0, META, -1, bytes([0xFF, 0x51, 3]) +
         int(round(60000000 / stueck.tempo)).to_bytes(3, "big")),
    ] + tempo_ereignisse
    chunks = [spur_chunk(leiter, ende)]
    for spur, ereignisse, _ in spuren:
        k = spur.kanal - 1
        kopf = [meta_text(0x03, spur.name)]
        if spur.kanal != 10:
            kopf.append(bytes([0xC0 | k, spur.programm - 1]))
        kopf += [bytes([0xB0 | k, 7, spur.lautstaerke]),
                 bytes([0xB0 | k, 11, 127]),
                 bytes([0xB0 | k, 10, spur.panorama]),
                 bytes([0xB0 | k, 91, spur.hall]),
                 bytes([0xB0 | k, 93, spur.chorus])]
        if spur.bendbereich:
            kopf += [bytes([0xB0 | k, 101, 0]), bytes([0xB0 | k, 100, 0]),
                     bytes([0xB0 | k, 6, spur.bendbereich]),
                     bytes([0xB0 | k, 38, 0]),
                     bytes([0xB0 | k, 101, 127]), bytes([0xB0 | k, 100, 127])]
        anfang = [(0, META, i - len(kopf), roh) for i, roh in enumerate(kopf)]
        chunks.append(spur_chunk(anfang + ereignisse, ende))
    kopf = b"MThd" + struct.pack(">IHHH", 6, 1, len(chunks), stueck.aufloesung)
    return kopf + b"".join(chunks)


def alle_stuecke(namen=None):
    pfade = sorted(os.path.join(STUECKE, n) for n in os.listdir(STUECKE)
                   if n.endswith(".txt"))
    if namen:
        gewuenscht = {os.path.basename(n) for n in namen}
        pfade = [p for p in pfade if os.path.basename(p) in gewuenscht]
        fehlend = gewuenscht - {os.path.basename(p) for p in pfade}
        if fehlend:
            raise NotenFehler("keine Notenliste: " + ", ".join(sorted(fehlend)))
    ergebnis = []
    for pfad in pfade:
        stueck = notenliste_lesen(pfad)
        ergebnis.append((stueck, stueck_uebersetzen(stueck)))
    dateien = [s.datei for s, _ in ergebnis]
    if len(set(dateien)) != len(dateien):
        raise NotenFehler("zwei Notenlisten schreiben dieselbe Datei")
    return ergebnis


# ------------------------------------------------------- SMF zurücklesen

def vlq_lesen(daten, pos):
    wert = 0
    for i in range(4):
        if pos >= len(daten):
            raise ValueError("Zahl variabler Länge läuft über das Spurende")
        b = daten[pos]
        pos += 1
        wert = (wert << 7) | (b & 0x7F)
        if not b & 0x80:
            return wert, pos
    raise ValueError("Zahl variabler Länge länger als 4 Bytes")


def midi_lesen(roh):
    """Zerlegt eine Standard-MIDI-Datei. Liefert ein Wörterbuch mit Format,
    Auflösung und je Spur der Liste (tick, status, daten); wirft ValueError."""
    if roh[:4] != b"MThd":
        raise ValueError("kein MThd-Kopf")
    laenge, fmt, anzahl, teilung = struct.unpack(">IHHH", roh[4:14])
    if laenge != 6 or fmt not in (0, 1) or teilung & 0x8000 or teilung == 0:
        raise ValueError("ungewöhnlicher Kopf (Länge %d, Format %d, Teilung %d)"
                         % (laenge, fmt, teilung))
    pos = 14
    spuren = []
    while pos < len(roh):
        if roh[pos:pos + 4] != b"MTrk":
            raise ValueError("Chunk '%r' an Stelle %d statt MTrk"
                             % (roh[pos:pos + 4], pos))
        (n,) = struct.unpack(">I", roh[pos + 4:pos + 8])
        daten = roh[pos + 8:pos + 8 + n]
        if len(daten) != n:
            raise ValueError("Spur %d abgeschnitten" % len(spuren))
        pos += 8 + n
        ereignisse = []
        p = 0
        tick = 0
        laufend = None
        ende_gesehen = False
        while p < len(daten):
            if ende_gesehen:
                raise ValueError("Daten nach End-of-Track in Spur %d"
                                 % len(spuren))
            delta, p = vlq_lesen(daten, p)
            tick += delta
            status = daten[p]
            if status == 0xFF:
                typ = daten[p + 1]
                l, p = vlq_lesen(daten, p + 2)
                ereignisse.append((tick, 0xFF, bytes([typ]) + daten[p:p + l]))
                p += l
                if typ == 0x2F:
                    ende_gesehen = True
                laufend = None
            elif status in (0xF0, 0xF7):
                l, p = vlq_lesen(daten, p + 1)
                ereignisse.append((tick, status, daten[p:p + l]))
                p += l
                laufend = None
            else:
                if status & 0x80:
                    laufend = status
                    p += 1
                elif laufend is None:
                    raise ValueError("Datenbyte ohne Status in Spur %d"
                                     % len(spuren))
                n_daten = 1 if laufend & 0xF0 in (0xC0, 0xD0) else 2
                werte = daten[p:p + n_daten]
                if len(werte) != n_daten or any(w & 0x80 for w in werte):
                    raise ValueError("kaputte Kanalnachricht in Spur %d"
                                     % len(spuren))
                ereignisse.append((tick, laufend, werte))
                p += n_daten
        if not ende_gesehen:
            raise ValueError("Spur %d ohne End-of-Track" % len(spuren))
        spuren.append(ereignisse)
    if len(spuren) != anzahl:
        raise ValueError("Kopf nennt %d Spuren, gefunden %d"
                         % (anzahl, len(spuren)))
    return {"format": fmt, "teilung": teilung, "spuren": spuren}


def sekunden(midi, bis_tick):
    tempi = sorted((t, int.from_bytes(d[1:4], "big"))
                   for spur in midi["spuren"] for t, s, d in spur
                   if s == 0xFF and d[0] == 0x51)
    zeit, tick, mikro = 0.0, 0, 500000
    for t, m in tempi:
        if t >= bis_tick:
            break
        zeit += (t - tick) * mikro / midi["teilung"] / 1e6
        tick, mikro = t, m
    return zeit + (bis_tick - tick) * mikro / midi["teilung"] / 1e6


def pruefen(dateien):
    alle = not dateien
    erwartet = {}
    try:
        for stueck, roh in alle_stuecke():
            erwartet[stueck.datei] = roh
    except NotenFehler as e:
        print("Notenlisten: FEHLER: %s" % e)
        return 1
    if not dateien:
        dateien = sorted(os.path.join(ZIEL, n) for n in erwartet)
        dateien += sorted(os.path.join(ZIEL, n) for n in os.listdir(ZIEL)
                          if n.endswith(".mid") and n not in erwartet) \
            if os.path.isdir(ZIEL) else []
    schlecht = 0
    for pfad in dateien:
        name = os.path.basename(pfad)
        try:
            with open(pfad, "rb") as f:
                roh = f.read()
            midi = midi_lesen(roh)
            offen = {}
            noten = 0
            kanaele = {}
            letzter_ton = 0
            ende = 0
            for spur in midi["spuren"]:
                ende = max(ende, spur[-1][0])
                for tick, status, d in spur:
                    art, kanal = status & 0xF0, (status & 0x0F) + 1
                    if status >= 0xF0:
                        continue
                    kanaele.setdefault(kanal, None)
                    if art == 0xC0:
                        kanaele[kanal] = d[0] + 1
                    elif art == 0x90 and d[1] > 0:
                        schluessel = (kanal, d[0])
                        if offen.get(schluessel):
                            raise ValueError("Note %d auf Kanal %d doppelt an "
                                             "(Tick %d)" % (d[0], kanal, tick))
                        offen[schluessel] = True
                        noten += 1
                    elif art == 0x80 or art == 0x90:
                        if not offen.get((kanal, d[0])):
                            raise ValueError("Note %d auf Kanal %d aus, aber "
                                             "nicht an (Tick %d)"
                                             % (d[0], kanal, tick))
                        offen[(kanal, d[0])] = False
                        letzter_ton = max(letzter_ton, tick)
            haengend = [k for k, an in offen.items() if an]
            if haengend:
                raise ValueError("Noten ohne Ende: %s" % haengend)
            if noten == 0:
                raise ValueError("keine einzige Note")
            instrumente = ", ".join(
                "%d=%s" % (k, "Schlagzeug" if k == 10 else
                           GM_NAMEN[p - 1] if p else "?")
                for k, p in sorted(kanaele.items()))
            stand = ""
            if name in erwartet:
                stand = "aktuell" if erwartet[name] == roh else \
                    "VERALTET (Notenliste geändert, neu erzeugen)"
                if erwartet[name] != roh:
                    schlecht += 1
            else:
                stand = "ohne Notenliste"
            print("%-26s Format %d, %2d Spuren, %4d Noten, %6.2f s "
                  "(letzter Ton endet bei %.2f s) %s"
                  % (name, midi["format"], len(midi["spuren"]), noten,
                     sekunden(midi, ende), sekunden(midi, letzter_ton), stand))
            print("    Kanäle: " + instrumente)
        except (OSError, ValueError, IndexError) as e:
            print("%-26s FEHLER: %s" % (name, e))
            schlecht += 1
    for name in sorted(erwartet):
        if alle and not any(os.path.basename(p) == name for p in dateien):
            print("%-26s FEHLT" % name)
            schlecht += 1
    return 1 if schlecht else 0


# --------------------------------------------------------------------- Start

def main(argv):
    ziel = ZIEL
    if "--ziel" in argv:
        i = argv.index("--ziel")
        if i + 1 >= len(argv):
            sys.stderr.write("--ziel braucht ein Verzeichnis\n")
            return 2
        ziel = argv[i + 1]
        del argv[i:i + 2]
    if argv and argv[0] == "--pruefen":
        return pruefen(argv[1:])
    if any(a.startswith("-") for a in argv):
        sys.stderr.write(__doc__)
        return 2
    try:
        ergebnis = alle_stuecke(argv)
    except NotenFehler as e:
        sys.stderr.write("musik_erzeugen: FEHLER: %s\n" % e)
        return 1
    os.makedirs(ziel, exist_ok=True)
    for stueck, roh in ergebnis:
        pfad = os.path.join(ziel, stueck.datei)
        with open(pfad, "wb") as f:
            f.write(roh)
        print("%-26s %6d Bytes  aus %s" % (stueck.datei, len(roh),
                                           os.path.basename(stueck.quelle)))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
