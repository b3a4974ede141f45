// The fleet list of the status screens: one line a ship, filter tabs for the
// ship types and headings that sort by a click.
#include <algorithm>
#include <string>
#include <vector>

#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/text.h"
#include "views/status.h"

namespace {

constexpr Farbe GRAU_HINTERGRUND = 72 + 72 * 256 + 72 * 65536;
constexpr int ZEILEN_JE_SEITE = 18;
constexpr int ERSTE_SPALTE = 10;  // rows of StatusFelder from here on are the headings
const char* const UEBERSCHRIFT = "Schiff  Ziel         Ent Ldg Ldr Bew Sch";

struct Zeile {
    int Schiff = 0;
    std::string Typ;
};

int Breite(Spiel& s, const std::string& text, int groesse) {
    int b = 0, h = 0;
    s.plattform->textMessen(text, groesse, b, h);
    return b;
}

// Where the ship is, or where it is bound to.
std::string Ort(const Spiel& s, const Schiff& sch) {
    if (InWerft(sch)) return "in der Werft";
    return PlanetNummerGueltig(sch.Planet) ? PlanetenName(s, sch.Planet) : std::string();
}

// Years or distance left: the ship's own, or its carrier's while it is towed.
long Rest(const Spiel& s, const Schiff& sch) {
    if (sch.Zustand == ZUSTAND_GEKOPPELT)
        return SchiffNummerGueltig(sch.Partner) ? s.Schiffe(sch.Partner).Dauer : 0;
    return sch.Dauer;
}

Farbe TypFarbe(const std::string& typ, bool& bekannt) {
    bekannt = true;
    if (typ == TYP_FRACHTER) return CYAN;
    if (typ == TYP_TANKER) return BLAU;
    if (typ == TYP_STATION) return WEISS;
    if (typ == TYP_KREUZER) return ROT;
    if (typ == TYP_SCOUT) return GELB;
    if (typ == TYP_GROSSFRACHTER) return GRUEN;
    bekannt = false;
    return SCHWARZ;
}

std::string ListenZeile(const Spiel& s, int n) {
    const Schiff& sch = s.Schiffe(n);
    std::string ort = Ort(s, sch).substr(0, 13);
    ort += Space(13 - static_cast<int>(ort.size()));
    const long d = Rest(s, sch);
    const bool ohne = sch.Zustand == ZUSTAND_GEKOPPELT ? d <= 0 : d == 0;
    return sch.Typ.substr(0, 3) + Rechtsbuendig(n, 4) + " " + ort + (ohne ? "---" : Rechtsbuendig(d, 3)) +
           Rechtsbuendig(sch.Ladung, 4) + Rechtsbuendig(sch.Laderaum, 4) + Rechtsbuendig(sch.Bewaffnung, 4) +
           Rechtsbuendig(sch.Schaden, 4);
}

// -1, 0, 1 by the value of the column; 0 where the column does not decide.
int Vergleich(const Spiel& s, long spalte, long folge, long seite, const Zeile& a, const Zeile& b) {
    const Schiff& x = s.Schiffe(a.Schiff);
    const Schiff& y = s.Schiffe(b.Schiff);
    auto zahl = [](long u, long v) { return u < v ? -1 : (u > v ? 1 : 0); };
    auto text = [](const std::string& u, const std::string& v) {
        const int c = u.compare(v);
        return c < 0 ? -1 : (c > 0 ? 1 : 0);
    };
    const int richtung = folge == 1 ? 1 : -1;
    switch (spalte) {
        case 11: return richtung * text(Ort(s, x), Ort(s, y));
        case 12: return richtung * zahl(std::max(0L, Rest(s, x)), std::max(0L, Rest(s, y)));
        case 13: return richtung * zahl(x.Ladung, y.Ladung);
        case 14: return richtung * zahl(x.Laderaum, y.Laderaum);
        case 15: return richtung * zahl(x.Bewaffnung, y.Bewaffnung);
        case 16: return richtung * zahl(x.Schaden, y.Schaden);
        default:
            if (folge == 1) return text(Trim(a.Typ), Trim(b.Typ));
            if (folge == 2 && seite == 1) return -text(Trim(a.Typ), Trim(b.Typ));
            if (folge == 2) return -zahl(a.Schiff, b.Schiff);
            return 0;
    }
}

// Insertion sort of rows 0..c-1; ties go by the lower slot.
void Sortieren(const Spiel& s, std::vector<Zeile>& r, int c) {
    auto vor = [&](const Zeile& a, const Zeile& b) {
        const int v = Vergleich(s, s.StatusSpalte, s.StatusFolge, s.StatusSeite, a, b);
        return v != 0 ? v < 0 : a.Schiff < b.Schiff;
    };
    for (int i = 1; i < c; ++i) {
        Zeile z = r[static_cast<size_t>(i)];
        int j = i - 1;
        while (j >= 0 && vor(z, r[static_cast<size_t>(j)])) {
            r[static_cast<size_t>(j + 1)] = r[static_cast<size_t>(j)];
            --j;
        }
        r[static_cast<size_t>(j + 1)] = z;
    }
}

// The tabs and the headings as mouse fields; returns the tab line.
std::string FelderSetzen(Spiel& s, const std::vector<std::string>& tabs) {
    std::string zeile = " Filter: ";
    int x = 649;
    const int blank = Breite(s, " ", 12);
    for (int i = 1; i < ERSTE_SPALTE; ++i) {
        StatusFeld& f = s.StatusFelder(i);
        if (i > static_cast<int>(tabs.size())) {
            // A tab of an earlier call that is gone now: no field to click.
            f = StatusFeld{};
            continue;
        }
        const std::string& t = tabs[static_cast<size_t>(i - 1)];
        const int b = Breite(s, t, 12);
        f = StatusFeld{static_cast<Single>(x), 232, static_cast<Single>(x + b), 247, t};
        x += b + blank;
        zeile += t + " ";
    }
    const std::string kopf = UEBERSCHRIFT;
    size_t pos = 0;
    for (int i = ERSTE_SPALTE; i <= KLICK_ZEILEN; ++i) {
        StatusFeld& f = s.StatusFelder(i);
        f = StatusFeld{};
        const size_t a = kopf.find_first_not_of(' ', pos);
        if (a == std::string::npos) continue;
        size_t e = kopf.find(' ', a);
        if (e == std::string::npos) e = kopf.size();
        const std::string wort = kopf.substr(a, e - a);
        const int x1 = 510 + Breite(s, kopf.substr(0, a), 15);
        f = StatusFeld{static_cast<Single>(x1), 260, static_cast<Single>(x1 + Breite(s, wort, 15)), 280, wort};
        pos = e;
    }
    return zeile;
}

}  // namespace

bool FLOTTENLISTE(Spiel& s, long& anzahl) {
    const int p = s.AktSpieler;
    std::vector<Zeile> r;
    std::vector<std::string> tabs{"Alle"};
    for (int n = 1; n <= s.HoechstesSchiff && n < SCHIFF_GRENZE; ++n) {
        const Schiff& sch = s.Schiffe(n);
        if (IstFrei(sch) || sch.Besitzer != p) continue;
        r.push_back({n, sch.Typ});
        const std::string t = Trim(sch.Typ);
        if (std::find(tabs.begin(), tabs.end(), t) == tabs.end() && tabs.size() < ERSTE_SPALTE - 1) tabs.push_back(t);
    }
    std::sort(tabs.begin(), tabs.end());
    const std::string tabZeile = FelderSetzen(s, tabs);
    if (s.StatusSpalte < ERSTE_SPALTE || s.StatusSpalte > 16) s.StatusSpalte = ERSTE_SPALTE;
    if (s.StatusSpalte == ERSTE_SPALTE) s.StatusFolge = 0;
    s.StatusSeite = 1;
    const int n = static_cast<int>(r.size());
    int c = n, o = 0;
    // The list takes the whole news box: nothing of the news or of the
    // evaluation page may shine through between its parts.
    BOX(s, 502, 245, 998, 738, SCHWARZ);
    TEXT_AUSGEBEN(s, T("Zurückblättern mit PageUp"), 15, 50, 630, WEISS);
    TEXT_AUSGEBEN(s, "Weiter mit beliebiger Taste", 15, 50, 660, WEISS);
    s.Bildschirm = "STATUS";

    long seiteGezeigt = -1, spalteGezeigt = -1, folgeGezeigt = -1;
    bool esc = false;
    for (;;) {
        if (s.StatusSeite != seiteGezeigt) {
            BOX(s, 502, 232, 998, 249, SCHWARZ);
            LINIE(s, 500, 240, 1000, 240, MAGENTA);
            TEXT_AUSGEBEN(s, tabZeile, 12, 560, 232, MAGENTA);
            const StatusFeld& tab = s.StatusFelder(static_cast<int>(s.StatusSeite));
            TEXT_MIT_HINTERGRUND(s, tab.Text, 12, static_cast<int>(tab.X1), static_cast<int>(tab.Y1),
                                 GRAU_HINTERGRUND, MAGENTA);
            if (s.StatusSeite == 1) {
                c = n;
            } else {
                const auto mitte = std::stable_partition(r.begin(), r.end(),
                                                         [&](const Zeile& z) { return Trim(z.Typ) == tab.Text; });
                c = static_cast<int>(mitte - r.begin());
            }
            o = 0;
            Sortieren(s, r, c);
            seiteGezeigt = s.StatusSeite;
        }
        if (s.StatusSpalte != spalteGezeigt || s.StatusFolge != folgeGezeigt) {
            BOX(s, 508, 252, 998, 283, SCHWARZ);
            TEXT_AUSGEBEN(s, UEBERSCHRIFT, 15, 510, 260, ROT);
            const StatusFeld& kopf = s.StatusFelder(static_cast<int>(s.StatusSpalte));
            TEXT_MIT_HINTERGRUND(s, kopf.Text, 15, static_cast<int>(kopf.X1), static_cast<int>(kopf.Y1),
                                 GRAU_HINTERGRUND, ROT);
            Sortieren(s, r, c);
            o = 0;
            spalteGezeigt = s.StatusSpalte;
            folgeGezeigt = s.StatusFolge;
        }
        BOX(s, 505, 285, 998, 738, SCHWARZ);
        int i = 1;
        for (; i <= ZEILEN_JE_SEITE && i + o <= c; ++i) {
            const int nr = r[static_cast<size_t>(i + o - 1)].Schiff;
            const int y = 260 + 25 * i;
            bool bekannt = false;
            const Farbe f = TypFarbe(s.Schiffe(nr).Typ, bekannt);
            if (bekannt) TEXT_AUSGEBEN(s, ListenZeile(s, nr), 15, 510, y, f);
            s.KlickFelder(i) = KlickFeld{510, static_cast<Single>(y), 990, static_cast<Single>(y + 20), nr, -1};
        }
        for (; i <= KLICK_ZEILEN; ++i) s.KlickFelder(i) = KlickFeld{0, 0, 0, 0, -1, -1};

        // Wait for a key, or for a click that changes the tab or the order
        // (also one that came while the list was drawn).
        s.TasteDa = 0;
        while (s.TasteDa == 0 && s.StatusSeite == seiteGezeigt && s.StatusSpalte == spalteGezeigt &&
               s.StatusFolge == folgeGezeigt) {
            s.plattform->schlafen(5);
            DoEvents(s);
        }
        if (s.TasteDa == 0) continue;
        const int taste = s.TastenCode;
        if (taste == Taste::Esc) {
            esc = true;
            break;
        }
        if (taste == Taste::BildAuf) {
            o = std::max(0, o - ZEILEN_JE_SEITE);
            continue;
        }
        o += ZEILEN_JE_SEITE;
        if (o > c) break;
    }
    // The news heading comes back over the tabs.
    BOX(s, 502, 232, 998, 738, SCHWARZ);
    LINIE(s, 500, 240, 1000, 240, MAGENTA);
    TEXT_AUSGEBEN(s, "* * * * * * * * * * * * * * *", 15, 570, 232, MAGENTA);
    s.Bildschirm = "UNKNOWN";
    anzahl = c;
    return !esc;
}
