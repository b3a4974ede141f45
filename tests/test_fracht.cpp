// The cargo orders: loading from stations, equipment and fuel on Sol III,
// filling tanks, unloading into stations, coupling and uncoupling.
#include "hilfe.h"
#include "orders/fracht.h"
#include "state/codes.h"
#include "state/text.h"

namespace {

// A game of one player with 5000 SD; every print is traced.
struct Lade : TestSpiel {
    explicit Lade(const std::string& skript = "") : TestSpiel(skript) {
        s->HoechstesSchiff = 9;
        p->spurAufzeichnen(true);
    }
    Schiff& schiff(int nr, const char* typ, int planet = SOL_III, int laderaum = 10, int besitzer = 1) {
        Schiff& sch = s->Schiffe(nr);
        sch.Typ = typ;
        sch.Name = "x";
        sch.Planet = static_cast<Integer>(planet);
        sch.Laderaum = static_cast<Integer>(laderaum);
        sch.Besitzer = static_cast<Integer>(besitzer);
        sch.Tankgroesse = 30;
        sch.Treibstoff = 10;
        return sch;
    }
    Ausgang los(Ausgang (*befehl)(Spiel&, int), int nr) {
        Ausgang a = Ausgang::Ende;
        EXPECT_TRUE(laufen([&](Spiel& sp) { a = befehl(sp, nr); })) << "the dialog ends before the script does";
        return a;
    }
    bool gedruckt(int x, int y, const std::string& text) const {
        return p->spur().find("print " + std::to_string(x) + " " + std::to_string(y) + " 15 16777215 " + Utf8(text)) !=
               std::string::npos;
    }
    void erfinde(std::initializer_list<int> k) {
        for (int e : k) s->Forschung(e, 1) = -1;
    }
};

}  // namespace

TEST(BeladenVonStation, AlleWarenGeraeteUndEineWare) {
    auto aufbau = [](const std::string& skript) {
        auto t = std::make_unique<Lade>(skript);
        Schiff& f = t->schiff(1, TYP_FRACHTER, 23);
        f.Fracht(1) = 2, f.Ladung = 2;
        Schiff& st = t->schiff(2, TYP_STATION, 23, 90, 2);  // another player's station serves too
        st.Fracht(5) = 4, st.Fracht(20) = 3, st.Fracht(FRACHT_GERAETE) = 2, st.Ladung = 11;
        t->schiff(3, TYP_STATION, 23, 90);  // empty: not in the list
        return t;
    };
    // Alle Waren, 5 t: the dearest good goes first.
    auto a = aufbau("key ENTER\nkey UP\nkey ENTER\nkey 5\nkey ENTER");
    a->los(BELADEN_VON_STATION, 1);
    const Schiff &f = a->s->Schiffe(1), &st = a->s->Schiffe(2);
    EXPECT_TRUE(a->gedruckt(50, 660, "Beladen von TSR    :"));
    EXPECT_EQ(a->textBei(50, 690), "   5");
    EXPECT_EQ(f.Fracht(20), 3);
    EXPECT_EQ(f.Fracht(5), 2);
    EXPECT_EQ(f.Ladung, 7);
    EXPECT_EQ(st.Fracht(20), 0);
    EXPECT_EQ(st.Fracht(5), 2);
    EXPECT_EQ(st.Ladung, 6);
    EXPECT_EQ(a->s->Bargeld(1), 5000) << "nothing is paid";

    // Geräte with 3 t free: one fits, and Enter takes the proposal.
    auto g = aufbau("key ENTER\nkey ENTER\nkey ENTER");
    g->s->Schiffe(1).Ladung = 7;
    g->los(BELADEN_VON_STATION, 1);
    EXPECT_EQ(g->s->Schiffe(1).Fracht(FRACHT_GERAETE), 1);
    EXPECT_EQ(g->s->Schiffe(1).Ladung, 9);
    EXPECT_EQ(g->s->Schiffe(2).Fracht(FRACHT_GERAETE), 1);
    EXPECT_EQ(g->s->Schiffe(2).Ladung, 9);

    // The goods stand in reverse order behind the two first places: good 20, then good 5.
    auto e = aufbau("key ENTER\nkey UP\nkey UP\nkey UP\nkey ENTER\nkey ENTER");
    e->los(BELADEN_VON_STATION, 1);
    EXPECT_EQ(e->s->Schiffe(1).Fracht(5), 4);
    EXPECT_EQ(e->s->Schiffe(2).Fracht(5), 0);
    EXPECT_EQ(e->s->Schiffe(1).Fracht(20), 0);

    auto esc = aufbau("key ENTER\nkey UP\nkey ENTER\nkey ESC");
    esc->los(BELADEN_VON_STATION, 1);
    EXPECT_EQ(esc->s->Schiffe(2).Ladung, 11) << "Esc at the amount changes nothing";
    EXPECT_EQ(esc->s->Schiffe(1).Ladung, 2);
}

TEST(BeladenAusruestung, ReparatursetGeraeteUndPortal) {
    Lade x("key ENTER\nkey ENTER");
    x.erfinde({ERF_REPARATURSET});
    x.schiff(1, TYP_GROSSFRACHTER, SOL_III, 200);
    x.s->Bargeld(1) = 2000;
    EXPECT_EQ(x.los(BELADEN_AUSRUESTUNG, 1), Ausgang::ZumMenue);
    EXPECT_TRUE(x.gedruckt(50, 690, "Kosten: 6000 SD     OK?"));
    EXPECT_TRUE(x.gedruckt(50, 690, "Nicht genug Geld vorhanden!")) << "refused after the question";
    EXPECT_EQ(x.s->Bargeld(1), 2000);
    EXPECT_EQ(x.s->Schiffe(1).Fracht(FRACHT_REPARATURSET), 0);

    Lade r("key ENTER\nkey ENTER");
    r.erfinde({ERF_REPARATURSET});
    Schiff& f = r.schiff(1, TYP_FRACHTER);
    r.los(BELADEN_AUSRUESTUNG, 1);
    EXPECT_EQ(f.Fracht(FRACHT_REPARATURSET), 1);
    EXPECT_EQ(f.Ladung, 0) << "a repair set takes no room";
    EXPECT_EQ(r.s->Bargeld(1), 4000);
    EXPECT_EQ(r.textBei(422, 570), " 4000") << "the cash, its last digit at x 470";

    // Devices: 3 tonnes-pairs of room but cash for two; typing 3 is refused.
    Lade g("key ENTER\nkey ENTER"), g3("key ENTER\nkey 3\nkey ENTER");
    for (Lade* t : {&g, &g3}) {
        t->erfinde({ERF_GERAETE});
        t->schiff(1, TYP_FRACHTER).Ladung = 3;
        t->s->Bargeld(1) = 120;
        t->los(BELADEN_AUSRUESTUNG, 1);
    }
    EXPECT_TRUE(g.gedruckt(300, 660, "Kosten: 50SD"));
    EXPECT_EQ(g.s->Schiffe(1).Fracht(FRACHT_GERAETE), 2);
    EXPECT_EQ(g.s->Schiffe(1).Ladung, 7);
    EXPECT_EQ(g.s->Bargeld(1), 20);
    EXPECT_EQ(g3.s->Schiffe(1).Fracht(FRACHT_GERAETE), 0);
    EXPECT_TRUE(g3.gedruckt(50, 690, "Nicht genug Geld vorhanden!"));

    Lade voll("");
    voll.erfinde({ERF_GERAETE});
    voll.schiff(1, TYP_FRACHTER).Ladung = 9;
    voll.los(BELADEN_AUSRUESTUNG, 1);
    EXPECT_EQ(voll.p->spur().find(Utf8(T("Produktionsgeräte"))), std::string::npos) << "1 t free: no device offered";

    // The portal: refused before the question without 100000 SD; fills the hold.
    Lade arm("key ENTER"), reich("key ENTER\nkey ENTER");
    for (Lade* t : {&arm, &reich}) {
        t->erfinde({ERF_PORTAL});
        t->schiff(1, TYP_GROSSFRACHTER, SOL_III, 200);
    }
    reich.s->Bargeld(1) = 150000;
    EXPECT_EQ(arm.los(BELADEN_AUSRUESTUNG, 1), Ausgang::ZumMenue);
    EXPECT_FALSE(arm.gedruckt(50, 690, "Kosten: 100000SD"));
    reich.los(BELADEN_AUSRUESTUNG, 1);
    EXPECT_EQ(reich.s->Schiffe(1).Fracht(FRACHT_PORTAL), 1);
    EXPECT_EQ(reich.s->Schiffe(1).Ladung, 200);
    EXPECT_EQ(reich.s->Bargeld(1), 50000);
}

TEST(BeladenTanker, TankeinheitenReparatursetUndSupersprit) {
    Lade n("key ENTER");
    Schiff& t = n.schiff(1, TYP_TANKER);
    n.los(BELADEN_TANKER, 1);
    EXPECT_TRUE(n.gedruckt(50, 660, "Wie viele Tankeinheiten? "));
    EXPECT_TRUE(n.gedruckt(50, 690, "1 TE kostet 30"));
    EXPECT_EQ(t.Fracht(FRACHT_SPRIT), 10);
    EXPECT_EQ(t.Ladung, 10);
    EXPECT_EQ(n.s->Bargeld(1), 4700);
    EXPECT_EQ(n.s->Statistik(EST_TANKEINHEITEN, 2), 10);

    Lade arm("key 5\nkey ENTER");
    arm.schiff(1, TYP_TANKER);
    arm.s->Bargeld(1) = 100;
    EXPECT_EQ(arm.los(BELADEN_TANKER, 1), Ausgang::ZumMenue);
    EXPECT_TRUE(arm.gedruckt(340, 660, "   3"));
    EXPECT_TRUE(arm.gedruckt(340, 660, "   5")) << "more than the proposal may be typed";
    EXPECT_TRUE(arm.gedruckt(50, 690, "Nicht genug Geld vorhanden!"));
    EXPECT_EQ(arm.s->Schiffe(1).Fracht(FRACHT_SPRIT), 0);
    EXPECT_EQ(arm.s->Bargeld(1), 100);

    Lade rep("key UP\nkey ENTER");
    rep.erfinde({ERF_REPARATURSET});
    rep.schiff(1, TYP_TANKER);
    rep.los(BELADEN_TANKER, 1);
    EXPECT_EQ(rep.s->Schiffe(1).Fracht(FRACHT_REPARATURSET), 1);
    EXPECT_EQ(rep.s->Bargeld(1), 4000) << "no question asked";

    // Supersprit: 10 t Mirellen and 60 TE free propose 50; 51 needs 11 t.
    auto super = [](const std::string& skript, int mirellen) {
        auto l = std::make_unique<Lade>(skript);
        l->erfinde({ERF_SUPERSPRIT});
        l->schiff(1, TYP_TANKER, SOL_III, 60);
        l->s->Lager(WARE_MIRELLEN, 1) = static_cast<Integer>(mirellen);
        l->los(BELADEN_TANKER, 1);
        return l;
    };
    auto s50 = super("key ENTER\nkey ENTER", 10);
    EXPECT_EQ(s50->s->Schiffe(1).Fracht(FRACHT_SUPERSPRIT), 50);
    EXPECT_EQ(s50->s->Lager(WARE_MIRELLEN, 1), 0);
    EXPECT_EQ(s50->s->Bargeld(1), 5000 - 1500);
    auto s51 = super("key ENTER\nkey 5\nkey 1\nkey ENTER", 10);
    EXPECT_TRUE(s51->gedruckt(50, 690, "Nicht genug Mirellen vorhanden!"));
    EXPECT_EQ(s51->s->Schiffe(1).Fracht(FRACHT_SUPERSPRIT), 0);
    auto s6 = super("key ENTER\nkey 6\nkey ENTER", 2);
    EXPECT_EQ(s6->s->Lager(WARE_MIRELLEN, 1), 0) << "6 units cost 2 t";
    auto ohne = super("key ENTER", 0);
    EXPECT_TRUE(ohne->gedruckt(50, 690, "Keine Mirellen aus Lager!"));
    auto normal = super("key DOWN\nkey ENTER\nkey 7\nkey ENTER", 0);
    EXPECT_TRUE(normal->gedruckt(50, 690, "Wie viele Tankeinheiten? "));
    EXPECT_EQ(normal->s->Schiffe(1).Fracht(FRACHT_SPRIT), 7);
}

TEST(BeladenTanker, VonEinerStationSuperspritZuerst) {
    Lade l("key ENTER\nkey 4\nkey ENTER");
    Schiff& t = l.schiff(1, TYP_TANKER, 23);
    t.Ladung = 4, t.Fracht(FRACHT_SPRIT) = 4;
    Schiff& st = l.schiff(2, TYP_STATION, 23, 90);
    st.Fracht(FRACHT_SPRIT) = 5, st.Fracht(FRACHT_SUPERSPRIT) = 3;
    l.los(BELADEN_TANKER, 1);
    EXPECT_EQ(l.textBei(300, 660), "   4") << "proposal 6 (the free hold) replaced by 4";
    EXPECT_EQ(t.Fracht(FRACHT_SUPERSPRIT), 3);
    EXPECT_EQ(t.Fracht(FRACHT_SPRIT), 5);
    EXPECT_EQ(t.Ladung, 8);
    EXPECT_EQ(st.Fracht(FRACHT_SUPERSPRIT), 0);
    EXPECT_EQ(st.Fracht(FRACHT_SPRIT), 4);
    EXPECT_EQ(st.Ladung, 0) << "fuel in a station is not part of its Ladung";
}

TEST(Betanken, AufSolIII) {
    auto tanken = [](const std::string& skript, const char* typ, float tank, Long geld, bool super = false) {
        auto l = std::make_unique<Lade>(skript);
        if (super) l->erfinde({ERF_SUPERSPRIT});
        Schiff& f = l->schiff(1, typ);
        f.Treibstoff = tank;
        f.Supersprit = -1;
        l->s->Bargeld(1) = geld;
        l->los(BETANKEN_SOL, 1);
        return l;
    };
    auto a = tanken("key ENTER", TYP_FRACHTER, 29, 5000);
    EXPECT_TRUE(a->gedruckt(50, 660, "Kosten: 30       OK?"));
    EXPECT_EQ(a->s->Schiffe(1).Treibstoff, 30.0f);
    EXPECT_EQ(a->s->Schiffe(1).Supersprit, 0) << "the whole tank is normal fuel now";
    EXPECT_EQ(a->s->Bargeld(1), 4970);
    EXPECT_EQ(a->s->Statistik(EST_TANKEINHEITEN, 2), 1);

    EXPECT_EQ(tanken("key ENTER", TYP_GROSSFRACHTER, 20, 5000)->s->Schiffe(1).Treibstoff, 30.0f) << "held at the tank";
    EXPECT_EQ(tanken("key ENTER", TYP_GROSSFRACHTER, 5, 5000)->s->Schiffe(1).Treibstoff, 20.0f) << "half a tank";
    EXPECT_EQ(tanken("key N\nkey ENTER", TYP_FRACHTER, 5, 5000)->s->Bargeld(1), 5000);

    auto arm = tanken("", TYP_FRACHTER, 5, 29);
    EXPECT_TRUE(arm->gedruckt(50, 660, "Nicht genug Geld vorhanden!"));
    EXPECT_EQ(arm->s->Schiffe(1).Treibstoff, 5.0f);

    auto ohne = tanken("key UP\nkey ENTER", TYP_FRACHTER, 5, 5000, true);
    EXPECT_TRUE(ohne->gedruckt(50, 690, "Keine Mirellen aus Lager!"));
    auto sup = std::make_unique<Lade>("key UP\nkey ENTER\nkey ENTER");
    sup->erfinde({ERF_SUPERSPRIT});
    sup->schiff(1, TYP_FRACHTER).Treibstoff = 3;
    sup->s->Lager(WARE_MIRELLEN, 1) = 3;
    sup->los(BETANKEN_SOL, 1);
    EXPECT_TRUE(sup->gedruckt(50, 690, "Kosten: 30 + 1t Mirellen   OK?"));
    EXPECT_EQ(sup->s->Schiffe(1).Supersprit, -1);
    EXPECT_EQ(sup->s->Schiffe(1).Treibstoff, 30.0f);
    EXPECT_EQ(sup->s->Lager(WARE_MIRELLEN, 1), 2);
    EXPECT_EQ(sup->s->Bargeld(1), 4970);
}

TEST(Betanken, VonDerErstenStationMitTreibstoff) {
    Lade l("key ENTER");
    Schiff& f = l.schiff(1, TYP_FRACHTER, 23);
    l.schiff(2, TYP_STATION, 23, 90);  // no fuel
    l.schiff(3, TYP_STATION, 23, 90, 2).Fracht(FRACHT_SPRIT) = 4;
    l.los(BETANKEN_STATION, 1);
    EXPECT_TRUE(l.gedruckt(50, 660, "Tanken von TSR 3 (Tankeinh.: 4)"));
    EXPECT_EQ(f.Treibstoff, 30.0f);
    EXPECT_EQ(l.s->Schiffe(3).Fracht(FRACHT_SPRIT), 3) << "one unit per filling, however much goes in";
    EXPECT_EQ(l.s->Bargeld(1), 5000);

    // With Supersprit known: a freighter starts on the last kind there, a station on the first.
    Lade m("key ENTER"), st("key ENTER");
    for (Lade* t : {&m, &st}) {
        t->erfinde({ERF_SUPERSPRIT});
        Schiff& s2 = t->schiff(2, TYP_STATION, 23, 90);
        s2.Fracht(FRACHT_SPRIT) = 2, s2.Fracht(FRACHT_SUPERSPRIT) = 2;
    }
    m.schiff(1, TYP_FRACHTER, 23);
    m.los(BETANKEN_STATION, 1);
    EXPECT_TRUE(m.gedruckt(50, 660, "Normal: 2    Super: 2"));
    EXPECT_EQ(m.s->Schiffe(1).Supersprit, -1);
    EXPECT_EQ(m.s->Schiffe(2).Fracht(FRACHT_SUPERSPRIT), 1);
    st.los(BETANKEN_STATION, 2);
    EXPECT_EQ(st.s->Schiffe(2).Treibstoff, 30.0f) << "a station fills its own tank";
    EXPECT_EQ(st.s->Schiffe(2).Fracht(FRACHT_SPRIT), 1);
}

TEST(Entladen, WasNichtPasstBleibtAnBord) {
    auto aufbau = [](const std::string& skript) {
        auto l = std::make_unique<Lade>(skript);
        Schiff& f = l->schiff(1, TYP_FRACHTER, 23);
        f.Fracht(1) = 5, f.Fracht(3) = 4, f.Fracht(FRACHT_GERAETE) = 3, f.Ladung = 15;
        l->schiff(2, TYP_STATION, 23, 90).Ladung = 87;
        return l;
    };
    auto alle = aufbau("key ENTER\nkey ENTER");
    alle->los(ENTLADEN, 1);
    const Schiff &f = alle->s->Schiffe(1), &st = alle->s->Schiffe(2);
    EXPECT_TRUE(alle->gedruckt(50, 630, "Entladen in TSR    :   "));
    EXPECT_TRUE(alle->gedruckt(50, 660, "Welche Waren? (Lagerplatz: 3t)"));
    EXPECT_EQ(st.Fracht(1), 3) << "good 1 first";
    EXPECT_EQ(st.Ladung, 90);
    EXPECT_EQ(f.Fracht(1), 2);
    EXPECT_EQ(f.Fracht(3), 4);
    EXPECT_EQ(f.Ladung, 12);

    // Devices: 3 t free take one, the second would need 2 more.
    auto ger = aufbau("key ENTER\nkey UP\nkey UP\nkey UP\nkey ENTER");
    ger->los(ENTLADEN, 1);
    EXPECT_EQ(ger->s->Schiffe(2).Fracht(FRACHT_GERAETE), 1);
    EXPECT_EQ(ger->s->Schiffe(1).Fracht(FRACHT_GERAETE), 2);
    EXPECT_EQ(ger->s->Schiffe(1).Fracht(1), 5);

    Lade t("key ENTER\nkey 5\nkey ENTER");
    Schiff& tanker = t.schiff(1, TYP_TANKER, 23);
    tanker.Fracht(FRACHT_SPRIT) = 6, tanker.Fracht(FRACHT_SUPERSPRIT) = 3, tanker.Ladung = 9;
    t.schiff(2, TYP_STATION, 23, 90);
    t.los(ENTLADEN, 1);
    EXPECT_EQ(t.s->Schiffe(2).Fracht(FRACHT_SUPERSPRIT), 3) << "Supersprit first";
    EXPECT_EQ(t.s->Schiffe(2).Fracht(FRACHT_SPRIT), 2);
    EXPECT_EQ(tanker.Fracht(FRACHT_SPRIT), 4);
    EXPECT_EQ(tanker.Fracht(FRACHT_SUPERSPRIT), 0);
    EXPECT_EQ(tanker.Ladung, 4);
    EXPECT_EQ(t.s->Schiffe(2).Ladung, 0);

    auto esc = aufbau("key ESC");
    esc->los(ENTLADEN, 1);
    EXPECT_EQ(esc->s->Schiffe(1).Ladung, 15);
}

TEST(Koppeln, AnkoppelnUndTrennen) {
    auto aufbau = [](const std::string& skript) {
        auto l = std::make_unique<Lade>(skript);
        l->schiff(5, TYP_STATION, 23, 90);
        l->schiff(2, TYP_FRACHTER, 23).Ladung = 1;        // loaded
        l->schiff(3, TYP_FRACHTER, 23, 10, 2);            // another player's
        l->schiff(4, TYP_FRACHTER, 23);
        l->schiff(6, TYP_GROSSFRACHTER, 23, 200);         // only a Frachter tows
        l->schiff(7, TYP_FRACHTER, 23);
        l->schiff(8, TYP_FRACHTER, 31);                   // elsewhere
        return l;
    };
    auto a = aufbau("key UP\nkey ENTER");
    a->los(ANKOPPELN, 5);
    EXPECT_TRUE(a->gedruckt(50, 630, T("Bitte Frachter wählen!")));
    const Schiff& st = a->s->Schiffe(5);
    EXPECT_EQ(st.Partner, 7) << "4 is shown first, Up goes to 7";
    EXPECT_EQ(st.Zustand, ZUSTAND_GEKOPPELT);
    EXPECT_EQ(a->s->Schiffe(7).Partner, 5);
    EXPECT_EQ(a->s->Schiffe(7).Zustand, ZUSTAND_RUHT);

    auto r = aufbau("key UP\nkey UP\nkey ENTER");
    r->los(ANKOPPELN, 5);
    EXPECT_EQ(r->s->Schiffe(5).Partner, 4) << "round past the highest slot";
    auto esc = aufbau("key ESC");
    esc->los(ANKOPPELN, 5);
    EXPECT_EQ(esc->s->Schiffe(5).Partner, 0);
    EXPECT_EQ(esc->s->Schiffe(5).Zustand, ZUSTAND_RUHT);

    // Uncoupled where the freighter stands.
    a->s->Schiffe(7).Planet = 44;
    a->los(TRENNEN, 5);
    EXPECT_EQ(st.Planet, 44);
    EXPECT_EQ(st.Partner, 0);
    EXPECT_EQ(st.Zustand, ZUSTAND_RUHT);
    EXPECT_EQ(a->s->Schiffe(7).Partner, 0);
}
