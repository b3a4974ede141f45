// The one market of Sol III: the yearly price step, the sale, the board.
#include "economy/markt.h"

#include <array>

#include "economy/markt.h"
#include "screen/ausgabe.h"
#include "screen/eingabe.h"
#include "state/text.h"
#include "state/zufall.h"
#include "state/codes.h"

namespace {

struct MarktRegel {
    Integer tiefst;     // lowest Preis
    Integer hoechst;    // highest Preis
    Integer bedarfJeT;  // Bedarf lost per tonne sold
};

// Bounds of the yearly step and the weight of a sale, by good.
constexpr std::array<MarktRegel, 20> MARKT = {{
    //  low  high  per t       good
    {     0,  30,  10},   //  1 Getreide
    {     5,  35,  10},   //  2 Seidenstoffe
    {     8,  38,  13},   //  3 G-Stahl
    {    12,  52,  13},   //  4 Gewürze
    {    18,  68,  15},   //  5 Fluritid
    {    23,  80,  15},   //  6 Alkarkotica
    {    28,  85,  15},   //  7 Damast
    {    35, 110,  15},   //  8 Silizium
    {    40, 115,  18},   //  9 Platinholz
    {    45, 130,  18},   // 10 Mirellen
    {    50, 135,  18},   // 11 Fossilien
    {    55, 140,  18},   // 12 Griflinge
    {    60, 155,  18},   // 13 Sen-Wurzel
    {    70, 165,  20},   // 14 Antimaterie
    {    80, 190,  20},   // 15 Zimol-Lampen
    {    85, 195,  20},   // 16 Flopse
    {    90, 210,  20},   // 17 Histarin
    {    95, 225,  20},   // 18 Stellariten
    {   100, 230,  20},   // 19 Diamitrin
    {   100, 245,  20},   // 20 Golgo-Pelze
}};
static_assert(MARKT.size() == 20, "twenty goods");

const MarktRegel& Regel(int g) { return MARKT[static_cast<size_t>(g - 1)]; }

std::string Drei(long n) { return Space(3 - static_cast<int>(std::to_string(n).size())) + std::to_string(n); }

}  // namespace

void MARKT_FORTSCHREIBEN(Spiel& s) {
    for (int g = 1; g <= 20; ++g) {
        if (s.AltPreis(g) <= -1) continue;
        const float r = Rnd(s);
        if (r < 0.9f && s.Bedarf(g) < 450) s.Bedarf(g) = static_cast<Integer>(s.Bedarf(g) + 10 * s.Nachfrage);
        if (s.Bedarf(g) < -200) s.Bedarf(g) = -200;
        s.AltPreis(g) = s.Preis(g);
        const float r2 = Rnd(s);
        // Int rounds down, also for a negative demand.
        const int bedarf = s.Bedarf(g);
        const int stufe = bedarf >= 0 ? bedarf / 100 : -((-bedarf + 99) / 100);
        s.Preis(g) = static_cast<Integer>(stufe + s.Preis(g) - 2 + static_cast<int>(r2 * 5));
    }
    for (int g = 1; g <= 20; ++g) {
        if (s.Preis(g) < Regel(g).tiefst) s.Preis(g) = Regel(g).tiefst;
        if (s.Preis(g) > Regel(g).hoechst) s.Preis(g) = Regel(g).hoechst;
    }
}

void MARKT_ZEILE(Spiel& s, int g, bool mitName) {
    const int c = g / 11;
    const int y = 20 + 18 * g - 180 * c;
    if (mitName) {
        BILD(s, s.WarenName(g), 505 + 247 * c, y);
        TEXT_AUSGEBEN(s, s.WarenName(g), 12, 515 + 247 * c, y, GELB);
    }
    TEXT_AUSGEBEN(s, Drei(s.Preis(g)) + " (<-" + Drei(s.AltPreis(g)) + ")", 12, 640 + 247 * c, y, GELB);
}

void MARKT_ANZEIGEN(Spiel& s) {
    BOX(s, 502, 30, 998, 228, SCHWARZ);
    for (int g = 1; g <= 20; ++g)
        if (s.AltPreis(g) > -1) MARKT_ZEILE(s, g, true);
}

void WAREN_VERKAUFEN(Spiel& s) {
    const int p = s.AktSpieler;
    std::vector<std::string> liste(21);
    int erste = 0, letzte = 0;
    for (int g = 1; g <= 20; ++g) {
        if (s.Lager(g, p) <= 0) continue;
        liste[static_cast<size_t>(g)] = s.WarenName(g);
        if (!erste) erste = g;
        letzte = g;
    }
    if (!erste) {
        TEXT_AUSGEBEN(s, "Keine Waren auf Lager!", 15, 50, 630, WEISS);
        Warten(s, 1000);
        return;
    }
    TEXT_AUSGEBEN(s, "Ware: ", 15, 50, 630, WEISS);
    Long vorgabe = erste;
    if (s.AuswahlTasten.size() < 2) s.AuswahlTasten = {"", "*"};
    AUSWAHL(s, liste, erste, letzte, 120, 630, 15, WEISS, vorgabe, s.AuswahlTasten);
    if (s.Eingabe == -1) return;
    const int g = static_cast<int>(s.Eingabe);
    TEXT_AUSGEBEN(s, "Menge: ", 15, 50, 660, WEISS);
    ZAHL_EINGEBEN(s, 0, s.Lager(g, p), 200, 660, 15, WEISS, 5, s.Lager(g, p), 0);
    const long m = s.Eingabe;
    if (m < 1) return;
    if (s.AltPreis(g) == -1) {
        s.AltPreis(g) = s.Preis(g);
        MARKT_ZEILE(s, g, true);
    }
    s.Lager(g, p) = static_cast<Integer>(s.Lager(g, p) - m);
    s.Statistik(g, p) += m;
    if (m >= 67) {
        s.Bedarf(g) = -200;
    } else {
        s.Bedarf(g) = static_cast<Integer>(s.Bedarf(g) - m * Regel(g).bedarfJeT);
        if (s.Bedarf(g) < -200) s.Bedarf(g) = -200;
    }
    long erloes;
    if (Erfunden(s, ERF_WERBUNG, p)) erloes = m * (s.Preis(g) + 5 + ZufallGanz(s, 0, 5));  // the promotion agency
    else erloes = m * s.Preis(g);
    s.Bargeld(p) += erloes;
    EINSTATISTIK(s, EST_VERKAUFSERLOES, erloes);
    MARKT_ZEILE(s, g, false);
    DoEvents(s);
}
