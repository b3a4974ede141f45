// Inventions: when paid research becomes one, which one, its story screen,
// and what each of today's inventions opens in the game. The components of
// the drive filter found by arriving ships.
#include <algorithm>
#include <memory>

#include "economy/forschung.h"
#include "economy/markt.h"
#include "hilfe.h"
#include "orders/anweisen.h"
#include "orders/fracht.h"
#include "orders/reisen.h"
#include "state/codes.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/erfindungen.h"
#include "year/jahr.h"

namespace {

// Costs in the order 2, 3, 1, 4, ... with 2 and 3 equal.
void Kosten(Spiel& s) {
    const Long k[] = {12000, 9000, 9000, 20000, 30000, 80000, 90000, 100000, 110000, 300000, 700000};
    for (int i = 1; i <= 11; ++i) s.ForschungsKosten(i) = k[i - 1];
}

bool Gespielt(const TestSpiel& t, const std::string& stueck) {
    const auto& m = t.p->musikGespielt;
    return std::any_of(m.begin(), m.end(), [&](const std::string& p) { return p.ends_with("/" + stueck); });
}

std::vector<std::string> Menue(const Spiel& s, int nr) {
    std::vector<std::string> r;
    for (const auto& t : ANWEISUNGEN(s, nr))
        if (!t.empty()) r.push_back(Utf8(Trim(t)));
    return r;
}

Schiff& NeuesSchiff(Spiel& s, int nr, const char* typ, int planet, int besitzer = 1) {
    Schiff& sch = s.Schiffe(nr);
    sch.Typ = typ;
    sch.Name = "Schiff";
    sch.Planet = static_cast<Integer>(planet);
    sch.Besitzer = static_cast<Integer>(besitzer);
    sch.Tankgroesse = 30;
    sch.Treibstoff = 30;
    sch.Laderaum = 100;
    return sch;
}

// A dialog run on a copy of the game, fed by its own script.
std::unique_ptr<TestSpiel> Kopie(const Spiel& s, const std::string& skript) {
    auto d = std::make_unique<TestSpiel>(skript);
    Plattform* p = d->s->plattform;
    *d->s = s;
    d->s->plattform = p;
    return d;
}

}  // namespace

TEST(Erfindungen, ZwanzigProzentNurMitBezahltemRest) {
    TestSpiel t("key ENTER\n");
    Spiel& s = *t.s;
    s.AnzahlSpieler = 2;
    s.SpielerName(2) = "Bert";
    Kosten(s);
    // Player 1 has paid exactly his rest; the draw is made for him all the same.
    s.ForschungsRest(1) = 0;
    s.ForschungsRest(2) = -1;
    RndFolge(s, {0.1f, 0.5f});
    EXPECT_TRUE(t.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(s.Forschung(2, 1) + s.Forschung(2, 2), 0) << "0 is not paid; 0.5 is no chance";
    RndFolge(s, {0.5f, 0.2f});
    EXPECT_TRUE(t.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(s.Forschung(2, 2), 0) << "0.2 is not below 0.2";
    RndFolge(s, {0.5f, 0.19999f});
    EXPECT_TRUE(t.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(s.Forschung(2, 2), -1);
    EXPECT_EQ(s.ForschungsRest(2), -1 + 9000) << "the next, invention 3, is charged onto the rest";
    EXPECT_EQ(s.Forschung(2, 1), 0);
}

TEST(Erfindungen, BilligsteZuerstMitGeschichte) {
    TestSpiel t;  // no key: the story waits
    Spiel& s = *t.s;
    Kosten(s);
    s.ForschungsRest(1) = -700;
    RndFolge(s, {0.0f});
    EXPECT_FALSE(t.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(s.Forschung(2, 1), -1) << "of 2 and 3 at equal cost the lower number";
    EXPECT_EQ(t.textBei(510, 280), "Die besten Ingenieure von Anna");
    EXPECT_EQ(t.textBei(510, 400), "über 60% aller Lagerbrände.");
    EXPECT_EQ(t.textBei(510, 700), "Weiter mit einer beliebigen Taste.");
    EXPECT_NE(t.bildschirm().find("text\t510\t280\t15\t65535\t"), std::string::npos) << "yellow, size 15";
    EXPECT_TRUE(Gespielt(t, "ForschungQuorvant.mid"));

    // The last one: nothing is left, the rest stays at 1, and the research
    // dialog says so.
    TestSpiel u("key ENTER\n");
    Spiel& v = *u.s;
    Kosten(v);
    v.SoundAn = 0;
    for (int k = 1; k <= 10; ++k) v.Forschung(k, 1) = -1;
    v.ForschungsRest(1) = -5;
    RndFolge(v, {0.1f});
    EXPECT_TRUE(u.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(v.Forschung(ERF_PORTAL, 1), -1);
    EXPECT_EQ(v.ForschungsRest(1), 1);
    EXPECT_EQ(v.Dokument(SOL_III).Portal, -1) << "the portal on Sol III comes with the invention";
    EXPECT_TRUE(u.p->musikGespielt.empty()) << "no music with the sound off";
}

TEST(Erfindungen, BezahltImSpielKommtMitGeschichte) {
    // Money paid through the menu; the year's test then brings the cheapest
    // invention of this game.
    Spiel s0 = NeuesSpielZustand(1, 5000);
    s0.Bargeld(1) = 90000;
    const Long rest = s0.ForschungsRest(1);
    const TreiberLauf lauf = GeladenSpielen(s0, "key F\nkey ENTER\ntype " + std::to_string(rest + 1) + "\nkey ENTER\n", "forschung");
    const auto t = Kopie(ZustandAus(lauf), "key SPACE\n");
    Spiel& s = *t->s;
    ASSERT_EQ(s.ForschungsRest(1), -1);
    int billigste = 1;
    for (int k = 2; k <= 11; ++k)
        if (s.ForschungsKosten(k) < s.ForschungsKosten(billigste)) billigste = k;
    RndFolge(s, {0.1f});
    EXPECT_TRUE(t->laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(s.Forschung(billigste, 1), -1);
    EXPECT_EQ(t->textBei(510, 700), "Weiter mit einer beliebigen Taste.");
    EXPECT_NE(t->textBei(510, 280).find(s.SpielerName(1)), std::string::npos);
    EXPECT_GT(s.ForschungsRest(1), 0) << "the next one is charged";
}

TEST(Erfindungen, WirkungenImSpiel) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.AnzahlPlaneten = 50;
    NeuesSchiff(s, 1, TYP_FRACHTER, SOL_III);
    EXPECT_EQ(Menue(s, 1), (std::vector<std::string>{"Start"})) << "no invention yet";

    // 3 repair sets, 8 production devices: equipment to load on Sol III.
    s.Forschung(ERF_REPARATURSET, 1) = -1;
    EXPECT_EQ(Menue(s, 1), (std::vector<std::string>{"Start", "Beladen"}));
    s.Forschung(ERF_GERAETE, 1) = -1;
    auto d = Kopie(s, "key ESC\n");
    d->laufen([](Spiel& s) { BELADEN_AUSRUESTUNG(s, 1); });
    EXPECT_EQ(d->textBei(50, 660), "Reparaturset     ");
    d = Kopie(s, "key UP\nkey ENTER\ntype 3\nkey ENTER\n");
    d->laufen([](Spiel& s) { BELADEN_AUSRUESTUNG(s, 1); });
    EXPECT_EQ(d->s->Schiffe(1).Fracht(FRACHT_GERAETE), 3);
    EXPECT_EQ(d->s->Bargeld(1), 5000 - 150);

    // 6 Supersprit: a choice of fuel on Sol III, and three units in two years.
    s.Forschung(ERF_SUPERSPRIT, 1) = -1;
    s.Lager(WARE_MIRELLEN, 1) = 2;
    s.Schiffe(1).Treibstoff = 10;
    d = Kopie(s, "key UP\nkey ENTER\nkey ENTER\n");
    d->laufen([](Spiel& s) { BETANKEN_SOL(s, 1); });
    Schiff& f = d->s->Schiffe(1);
    EXPECT_EQ(f.Supersprit, -1);
    EXPECT_EQ(f.Treibstoff, 30);
    EXPECT_EQ(d->s->Lager(WARE_MIRELLEN, 1), 1);
    f.Zustand = ZUSTAND_FLIEGT;
    f.Planet = 21;
    f.Dauer = 6;
    d->s->Jahr = 2001;
    SCHIFF_FLUG(*d->s, 1);
    EXPECT_EQ(f.Dauer, 4) << "two units in an odd year";
    d->s->Jahr = 2002;
    SCHIFF_FLUG(*d->s, 1);
    EXPECT_EQ(f.Dauer, 3);

    // 9 promotion: 5 + b above the market price, one b for the whole sale.
    s.Forschung(ERF_WERBUNG, 1) = -1;
    s.Lager(1, 1) = 10;
    d = Kopie(s, "key ENTER\nkey ENTER\n");
    RndFolge(*d->s, {0.5f});
    d->laufen([](Spiel& s) { WAREN_VERKAUFEN(s); });
    EXPECT_EQ(d->s->Bargeld(1), 5000 + 10 * (s.Preis(1) + 5 + 3));

    // 11 portal: Sol III gets one, and ships there may teleport to another.
    d = Kopie(s, "key ENTER\n");
    d->laufen([](Spiel& s) { ERFINDUNG_ZEIGEN(s, ERF_PORTAL, 1); });
    EXPECT_EQ(d->s->Dokument(SOL_III).Portal, -1);
    EXPECT_EQ(Menue(*d->s, 1), (std::vector<std::string>{"Start", "Teleportieren", "Beladen", "Betanken"}));
    s.Dokument(SOL_III).Portal = -1;
    d = Kopie(s, "key ENTER\n");
    d->laufen([](Spiel& s) { ORDER_TELEPORTIEREN(s, 1); });
    EXPECT_EQ(d->textBei(50, 660), "Kein weiteres Portal vorhanden!");
    s.Dokument(34).Portal = -1;
    d = Kopie(s, "key ENTER\n");
    d->laufen([](Spiel& s) { ORDER_TELEPORTIEREN(s, 1); });
    EXPECT_EQ(d->s->Schiffe(1).Planet, 34);
    EXPECT_EQ(d->s->Schiffe(1).StartPlanet, -SOL_III);
    EXPECT_EQ(d->s->Schiffe(1).Dauer, 1);
}

TEST(Komponenten, FuenfGefundenVonAnkommendenSchiffen) {
    TestSpiel t("key ENTER\nkey ENTER\nkey ENTER\n");
    Spiel& s = *t.s;
    s.AnzahlSpieler = 2;
    s.SpielerName(2) = "Bert";
    s.Bargeld(2) = 0;
    // Two components on planet 23; the fifth entry is found first.
    const Integer orte[] = {23, 35, 23, 47, 14};
    for (int i = 1; i <= 5; ++i) s.KomponentenPlanet(i) = orte[i - 1];
    auto fliegt = [&](int nr, const char* typ, int planet, int dauer, int besitzer) {
        Schiff& sch = NeuesSchiff(s, nr, typ, planet, besitzer);
        sch.Zustand = ZUSTAND_FLIEGT;
        sch.Dauer = static_cast<Integer>(dauer);
    };
    fliegt(1, TYP_FRACHTER, 14, 1, 1);
    fliegt(2, TYP_SCOUT, 23, 2, 2);       // a scout lands from 2 units
    fliegt(3, TYP_FRACHTER, 35, 2, 1);    // not this year
    fliegt(4, TYP_KREUZER, 35, 1, BESITZER_PIRATEN);
    fliegt(5, TYP_SCOUT, 47, 3, 1);       // Supersprit's larger step does not count
    EXPECT_TRUE(t.laufen([](Spiel& s) { KOMPONENTEN_PRUEFEN(s); }));
    EXPECT_EQ(s.Komponenten, 3);
    EXPECT_EQ(s.Bargeld(1), 5000 + 500);
    EXPECT_EQ(s.Bargeld(2), 500 + 600) << "one ship, two components, two prizes";
    EXPECT_EQ(s.KomponentenPlanet(5), 0);
    EXPECT_EQ(s.KomponentenPlanet(2), 35) << "pirates find nothing";
    EXPECT_EQ(t.textBei(510, 280), "Auf dem Planeten, den Sie neu entdeckt ");
    EXPECT_EQ(t.textBei(510, 460), "meldung dieser Entdeckung.");
    EXPECT_TRUE(Gespielt(t, "DTWQuorvant.mid"));

    // Next year the freighter and the scout of Supersprit arrive by one step.
    const auto u = Kopie(s, "key ENTER\n");
    Spiel& v = *u->s;
    v.Schiffe(3).Dauer = 1;
    v.Schiffe(5).Dauer = 2;
    EXPECT_FALSE(u->laufen([](Spiel& s) { KOMPONENTEN_PRUEFEN(s); })) << "the fifth screen waits for its key";
    EXPECT_EQ(v.Komponenten, 5);
    EXPECT_EQ(v.Bargeld(1), 5000 + 500 + 700 + 1000);
    EXPECT_EQ(u->textBei(510, 280), "Ein Triebwerkskonstukteur hat in");
    EXPECT_EQ(u->textBei(510, 400), "Sie erhalten für die Weitermeldung 1000");
}
