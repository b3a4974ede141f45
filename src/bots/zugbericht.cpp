#include "bots/zugbericht.h"

#include <algorithm>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "state/codes.h"
#include "state/text.h"
#include "year/meldung.h"

namespace {

constexpr int ZEILEN_JE_SEITE = 22;
constexpr int BOX_X1 = 60, BOX_Y1 = 70, BOX_X2 = 964;

bool Eigenes(const Schiff& sch, int spieler) { return !IstFrei(sch) && sch.Besitzer == spieler; }

std::string Tonnen(long t, int ware, const Spiel& s) {
    return std::to_string(t) + " t " + Trim(s.WarenName(ware));
}

// What changed at one ship of the house during the turn.
void SchiffZeilen(const Spiel& s, int nr, const Schiff& v, const Schiff& n, std::vector<std::string>& r) {
    const std::string name = "  " + Trim(LABEL(s, nr)) + ": ";
    if (n.Zustand != v.Zustand || n.Planet != v.Planet) {
        if (n.Zustand == ZUSTAND_FLIEGT)
            r.push_back(name + T("fliegt nach ") + PlanetenName(s, n.Planet) + " (" + std::to_string(n.Dauer) + " Jahre)");
        else if (n.Zustand == ZUSTAND_ANGRIFF && n.Partner >= 1 && n.Partner <= MAX_SCHIFFE)
            r.push_back(name + T("greift ") + Trim(LABEL(s, n.Partner)) + " an");
        else if (n.Zustand == ZUSTAND_GEKOPPELT)
            r.push_back(name + T("angekoppelt"));
        else if (n.Zustand <= ZUSTAND_WERFT_BAU && n.Zustand >= ZUSTAND_WERFT_DTW)
            r.push_back(name + T("in den Spacedocks: ") + Trim(s.DockAuftrag(-n.Zustand)));
        else if (v.Zustand == ZUSTAND_GEKOPPELT)
            r.push_back(name + T("getrennt"));
        else if (n.Planet != v.Planet)
            r.push_back(name + T("springt nach ") + PlanetenName(s, n.Planet));
        else if (v.Zustand == ZUSTAND_ANGRIFF)
            r.push_back(name + T("beendet den Angriff"));
    }
    std::string ladung;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        const long d = static_cast<long>(n.Fracht(g)) - v.Fracht(g);
        if (d == 0) continue;
        ladung += (ladung.empty() ? "" : ", ") + std::string(d > 0 ? "+" : "") + Tonnen(d, g, s);
    }
    if (!ladung.empty()) r.push_back(name + T("Ladung ") + ladung);
    if (n.Fracht(FRACHT_GERAETE) != v.Fracht(FRACHT_GERAETE))
        r.push_back(name + T("Produktionsgeräte ") + std::to_string(v.Fracht(FRACHT_GERAETE)) + " -> " +
                    std::to_string(n.Fracht(FRACHT_GERAETE)));
    if (n.Fracht(FRACHT_SPRIT) != v.Fracht(FRACHT_SPRIT))
        r.push_back(name + T("Tankeinheiten an Bord ") + std::to_string(v.Fracht(FRACHT_SPRIT)) + " -> " +
                    std::to_string(n.Fracht(FRACHT_SPRIT)));
    if (n.Fracht(FRACHT_PORTAL) > v.Fracht(FRACHT_PORTAL)) r.push_back(name + T("lädt ein Portal"));
    if (n.Fracht(FRACHT_PORTAL) < v.Fracht(FRACHT_PORTAL)) r.push_back(name + T("baut ein Portal auf"));
    if (n.Treibstoff > v.Treibstoff + 0.05f)
        r.push_back(name + T("getankt, jetzt ") + std::to_string(static_cast<long>(n.Treibstoff + 0.5f)) + " Einheiten");
    if (n.Schaden < v.Schaden) r.push_back(name + T("repariert"));
}

}  // namespace

HausStand HAUS_STAND(const Spiel& s, int spieler) {
    HausStand h;
    h.bargeld = s.Bargeld(spieler);
    h.kredit = s.Kredit(spieler);
    h.forschung = s.ForschungsRest(spieler);
    for (int g = 1; g <= ANZAHL_WAREN; ++g) h.lager.push_back(s.Lager(g, spieler));
    for (int i = 1; i <= s.HoechstesSchiff; ++i)
        if (Eigenes(s.Schiffe(i), spieler)) h.schiffe.emplace(i, s.Schiffe(i));
    return h;
}

std::vector<std::string> ZUG_BERICHT(const Spiel& s, int spieler, const HausStand& vorher) {
    std::vector<std::string> r;
    r.push_back(Trim(s.SpielerName(spieler)) + " (" + Trim(s.RangName(s.Rang(spieler))) + "), Bargeld " +
                std::to_string(vorher.bargeld) + " -> " + std::to_string(s.Bargeld(spieler)) + " SD");
    if (s.Kredit(spieler) != vorher.kredit)
        r.push_back("  Kredit " + std::to_string(vorher.kredit) + " -> " + std::to_string(s.Kredit(spieler)) + " SD");
    if (s.ForschungsRest(spieler) < vorher.forschung)
        r.push_back(T("  Forschung finanziert: ") + std::to_string(vorher.forschung - s.ForschungsRest(spieler)) + " SD");
    std::string verkauft;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        const long d = static_cast<long>(vorher.lager[static_cast<size_t>(g - 1)]) - s.Lager(g, spieler);
        if (d > 0) verkauft += (verkauft.empty() ? "" : ", ") + Tonnen(d, g, s);
    }
    if (!verkauft.empty()) r.push_back("  Verkauft: " + verkauft);
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        const Schiff& n = s.Schiffe(i);
        const auto alt = vorher.schiffe.find(i);
        const bool war = alt != vorher.schiffe.end();
        const bool ist = Eigenes(n, spieler);
        if (ist && !war) r.push_back("  " + Trim(LABEL(s, i)) + T(": bei den Spacedocks bestellt"));
        else if (ist) SchiffZeilen(s, i, alt->second, n, r);
    }
    for (const auto& [nr, alt] : vorher.schiffe)
        if (!Eigenes(s.Schiffe(nr), spieler) || s.Schiffe(nr).Typ != alt.Typ)
            r.push_back("  " + Trim(alt.Typ) + " " + std::to_string(nr) + ": verkauft");
    return r;
}

void ZUEGE_ZEIGEN(Spiel& s, const std::vector<std::string>& zeilen) {
    if (zeilen.empty()) return;
    Ueberlagerung ueber(s);
    const int seiten = (static_cast<int>(zeilen.size()) + ZEILEN_JE_SEITE - 1) / ZEILEN_JE_SEITE;
    // As high as the longest page needs, and no higher.
    const int zeilenHoch = std::min<int>(ZEILEN_JE_SEITE, static_cast<int>(zeilen.size()));
    const int BOX_Y2 = BOX_Y1 + 45 + 24 * zeilenHoch + 50;
    int seite = 0;
    for (;;) {
        UEBERLAGERUNG_RAHMEN(s, BOX_X1, BOX_Y1, BOX_X2, BOX_Y2, T("Die Züge der Computerspieler"), CYAN);
        for (int i = 0; i < ZEILEN_JE_SEITE; ++i) {
            const size_t z = static_cast<size_t>(seite * ZEILEN_JE_SEITE + i);
            if (z >= zeilen.size()) break;
            const bool kopf = zeilen[z].rfind("  ", 0) != 0;
            TEXT_AUSGEBEN(s, zeilen[z].substr(0, 72), 15, BOX_X1 + 20, BOX_Y1 + 45 + 24 * i, kopf ? WEISS : CYAN);
        }
        std::string fuss = T("Weiter mit einer Taste");
        if (seiten > 1)
            fuss = "Seite " + std::to_string(seite + 1) + "/" + std::to_string(seiten) +
                   T(" - Bild auf/ab blättert, jede andere Taste schließt");
        TEXT_AUSGEBEN(s, fuss, 15, BOX_X1 + 20, BOX_Y2 - 30, GELB);
        const int taste = ueber.taste();
        if (seiten > 1 && (taste == Taste::BildAb || taste == Taste::Runter)) seite = (seite + 1) % seiten;
        else if (seiten > 1 && (taste == Taste::BildAuf || taste == Taste::Hoch)) seite = (seite + seiten - 1) % seiten;
        else break;
    }
}
