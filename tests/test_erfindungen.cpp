// Inventions: when paid research becomes one, which one, its story screen,
// and what today's inventions open in the game. The components of the drive
// filter found by arriving ships.

#include "hilfe.h"

namespace {

// Costs in the order 2, 3, 1, 4, ..., with 2 and 3 equal.
void Kosten(Spiel& s) {
    const Long k[] = {12000, 9000, 9000, 20000, 30000, 80000, 90000, 100000, 110000, 300000, 700000};
    for (int i = 1; i <= 11; ++i) s.ForschungsKosten(i) = k[i - 1];
}

// A run on a copy of the game, fed by its own script.
std::unique_ptr<TestSpiel> Kopie(const Spiel& s, const std::string& skript) {
    auto d = std::make_unique<TestSpiel>(skript);
    Plattform* p = d->s->plattform;
    *d->s = s;
    d->s->plattform = p;
    return d;
}

std::string Menue(const Spiel& s, int nr) {
    std::string r;
    for (const auto& t : ANWEISUNGEN(s, nr))
        if (!t.empty()) r += Utf8(Trim(t)) + "/";
    return r;
}

}  // namespace

TEST(Erfindungen, ZwanzigProzentNurMitBezahltemRest) {
    TestSpiel t("key ENTER\n");
    Spiel& s = *t.s;
    s.AnzahlSpieler = 2;
    Kosten(s);
    s.ForschungsRest(1) = 0;  // paid exactly: not enough, yet a draw is made for him
    s.ForschungsRest(2) = -1;
    for (const float r : {0.5f, 0.2f, 0.19999f}) {
        RndFolge(s, {0.1f, r});
        EXPECT_TRUE(t.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
        EXPECT_EQ(s.Forschung(2, 1), 0);
        EXPECT_EQ(s.Forschung(2, 2), r < 0.2f ? -1 : 0) << r;
    }
    EXPECT_EQ(s.ForschungsRest(2), -1 + 9000) << "the next, invention 3, is charged onto the rest";
}

TEST(Erfindungen, BilligsteZuerstMitGeschichte) {
    TestSpiel t;  // no key: the story waits
    Kosten(*t.s);
    t.s->ForschungsRest(1) = -700;
    RndFolge(*t.s, {0.0f});
    EXPECT_FALSE(t.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(t.s->Forschung(2, 1), -1) << "of 2 and 3 at equal cost the lower number";
    EXPECT_EQ(t.textBei(510, 280), "Die besten Ingenieure von Anna");
    EXPECT_EQ(t.textBei(510, 400), "über 60% aller Lagerbrände.");
    EXPECT_NE(t.bildschirm().find("text\t510\t700\t15\t65535\tWeiter mit einer beliebigen Taste."), std::string::npos);
    EXPECT_TRUE(t.p->musikGespielt.back().ends_with("/ForschungQuorvant.mid"));
    // The last one: nothing is left, the rest stays at 1; no music with the sound off.
    TestSpiel u("key ENTER\n");
    Kosten(*u.s);
    u.s->SoundAn = 0;
    for (int k = 1; k <= 10; ++k) u.s->Forschung(k, 1) = -1;
    u.s->ForschungsRest(1) = -5;
    RndFolge(*u.s, {0.1f});
    EXPECT_TRUE(u.laufen([](Spiel& s) { ERFINDUNG_PRUEFEN(s); }));
    EXPECT_EQ(u.s->Forschung(ERF_PORTAL, 1), -1);
    EXPECT_EQ(u.s->ForschungsRest(1), 1);
    EXPECT_TRUE(u.p->musikGespielt.empty());
}

TEST(Erfindungen, WirkungenImSpiel) {
    // What each invention opens; loading, filling and flying with them are the cargo and flight tests' part.
    TestSpiel t;
    Spiel& s = *t.s;
    s.AnzahlPlaneten = 50;
    Schiff& f = SchiffSetzen(s, 1, TYP_FRACHTER, 1, SOL_III);
    f.Laderaum = 100, f.Treibstoff = 10;
    EXPECT_EQ(Menue(s, 1), "Start/Betanken/") << "no invention yet";
    // 3 repair sets and 8 production devices: equipment to load on Sol III.
    s.Forschung(ERF_REPARATURSET, 1) = s.Forschung(ERF_GERAETE, 1) = -1;
    EXPECT_EQ(Menue(s, 1), "Start/Beladen/Betanken/");
    // 6 Supersprit: a choice of fuel on Sol III.
    s.Forschung(ERF_SUPERSPRIT, 1) = -1, s.Lager(WARE_MIRELLEN, 1) = 2;
    auto d = Kopie(s, "key UP\nkey ENTER\nkey ENTER\n");
    d->laufen([](Spiel& s) { BETANKEN_SOL(s, 1); });
    EXPECT_TRUE(d->s->Schiffe(1).Supersprit == -1 && d->s->Lager(WARE_MIRELLEN, 1) == 1);
    // 9 promotion: 5 + b above the market price, one b for the whole sale.
    s.Forschung(ERF_WERBUNG, 1) = -1, s.Lager(1, 1) = 10;
    d = Kopie(s, "key ENTER\nkey ENTER\n");
    RndFolge(*d->s, {0.5f});
    d->laufen([](Spiel& s) { WAREN_VERKAUFEN(s); });
    EXPECT_EQ(d->s->Bargeld(1), 5000 + 10 * (s.Preis(1) + 5 + 3));
    // 11 portal: one on Sol III for everybody, from where a ship may teleport.
    d = Kopie(s, "key ENTER\n");
    d->laufen([](Spiel& s) { ERFINDUNG_ZEIGEN(s, ERF_PORTAL, 2); });
    EXPECT_EQ(d->s->Dokument(SOL_III).Portal, -1);
    EXPECT_EQ(Menue(*d->s, 1), "Start/Teleportieren/Beladen/Betanken/");
}

TEST(Komponenten, FuenfGefundenVonAnkommendenSchiffen) {
    TestSpiel t("key ENTER\nkey ENTER\nkey ENTER\n");
    Spiel& s = *t.s;
    s.AnzahlSpieler = 2, s.Bargeld(2) = 0;
    const Integer orte[] = {23, 35, 23, 47, 14};  // two on planet 23; the fifth is found first
    for (int i = 1; i <= 5; ++i) s.KomponentenPlanet(i) = orte[i - 1];
    struct Flug { const char* typ; Integer planet, dauer, besitzer; };
    const Flug fluege[] = {{TYP_FRACHTER, 14, 1, 1},
                           {TYP_SCOUT, 23, 2, 2},                   // a scout lands from 2 units
                           {TYP_FRACHTER, 35, 2, 1},                // not this year
                           {TYP_KREUZER, 35, 1, BESITZER_PIRATEN},  // pirates find nothing
                           {TYP_SCOUT, 47, 3, 1}};                  // Supersprit's larger step
    for (int i = 1; i <= 5; ++i) {
        const Flug& f = fluege[i - 1];
        Schiff& sch = SchiffSetzen(s, i, f.typ, f.besitzer, f.planet);
        sch.Zustand = ZUSTAND_FLIEGT, sch.Dauer = f.dauer;
    }
    EXPECT_TRUE(t.laufen([](Spiel& s) { KOMPONENTEN_PRUEFEN(s); }));
    EXPECT_EQ(s.Komponenten, 3);
    EXPECT_EQ(s.Bargeld(1), 5000 + 500);
    EXPECT_EQ(s.Bargeld(2), 500 + 600) << "one ship, two components, two prizes";
    EXPECT_EQ(s.KomponentenPlanet(2), 35);
    EXPECT_EQ(t.textBei(510, 280), "Auf dem Planeten, den Sie neu entdeckt ") << "the third story, by the count";
    EXPECT_TRUE(t.p->musikGespielt.back().ends_with("/DTWQuorvant.mid"));
    // Next year the freighter and the scout arrive by one step.
    s.Schiffe(3).Dauer = 1;
    s.Schiffe(5).Dauer = 2;
    const auto u = Kopie(s, "key ENTER\n");
    EXPECT_FALSE(u->laufen([](Spiel& s) { KOMPONENTEN_PRUEFEN(s); })) << "the fifth story waits for its key";
    EXPECT_EQ(u->s->Komponenten, 5);
    EXPECT_EQ(u->s->Bargeld(1), 5000 + 500 + 700 + 1000);
    EXPECT_EQ(u->textBei(510, 280), "Ein Triebwerkskonstukteur hat in");
    EXPECT_EQ(u->textBei(510, 400), "Sie erhalten für die Weitermeldung 1000");
}
