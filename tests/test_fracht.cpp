// The cargo orders: loading from stations, equipment and fuel on Sol III,
// filling tanks, unloading into stations, coupling and uncoupling.

#include "hilfe.h"

namespace {

// A game of one player with 5000 SD; every print is traced.
struct Lade : TestSpiel {
    Ausgang ausgang = Ausgang::Ende;
    explicit Lade(const std::string& skript) : TestSpiel(skript) {
        s->HoechstesSchiff = 9;
        p->spurAufzeichnen(true);
    }
    Schiff& schiff(int nr, const char* typ, int planet = SOL_III, int laderaum = 10, int besitzer = 1) {
        Schiff& sch = SchiffSetzen(*s, nr, typ, besitzer, planet);
        sch.Laderaum = static_cast<Integer>(laderaum), sch.Treibstoff = 10;
        return sch;
    }
    Schiff& operator[](int nr) { return s->Schiffe(nr); }
    // Ship 1's cargo and the cash.
    std::string eins() const;
    std::string kasse() const {
        return std::to_string(s->Bargeld(1)) + " SD, " + std::to_string(s->Lager(WARE_MIRELLEN, 1)) + " t Mirellen";
    }
    bool gedruckt(int x, int y, const std::string& text) const {
        return p->spur().find("print " + std::to_string(x) + " " + std::to_string(y) + " 15 16777215 " + Utf8(text)) !=
               std::string::npos;
    }
};

// The cargo of a ship: "slot:amount" for each slot in use, then "L" and Ladung.
std::string Ladeliste(const Schiff& sch) {
    std::string r;
    for (int i = 1; i <= 25; ++i)
        if (sch.Fracht(i)) r += std::to_string(i) + ":" + std::to_string(sch.Fracht(i)) + " ";
    return r + "L" + std::to_string(sch.Ladung);
}
// The tank and its kind; the state of a station.
std::string Tank(const Schiff& sch) { return std::to_string(static_cast<int>(sch.Treibstoff)) + (sch.Supersprit ? " Super" : " normal"); }
std::string Lage(const Schiff& sch) {
    return "Zustand " + std::to_string(sch.Zustand) + " Partner " + std::to_string(sch.Partner) + " Planet " + std::to_string(sch.Planet);
}

std::string Lade::eins() const { return Ladeliste(s->Schiffe(1)) + " / " + std::to_string(s->Bargeld(1)) + " SD"; }

// Builds the game, runs the order for ship nr with the keys, and hands the game back.
std::unique_ptr<Lade> Befehl(Ausgang (*befehl)(Spiel&, int), int nr, const std::string& skript,
                             const std::function<void(Lade&)>& aufbau, std::initializer_list<int> erfunden = {}) {
    auto l = std::make_unique<Lade>(skript);
    for (int e : erfunden) l->s->Forschung(e, 1) = -1;
    aufbau(*l);
    EXPECT_TRUE(l->laufen([&](Spiel& sp) { l->ausgang = befehl(sp, nr); })) << "the dialog ends before the script does";
    return l;
}

}  // namespace

TEST(BeladenVonStation, AlleWarenGeraeteUndEineWare) {
    auto aufbau = [](Lade& l) {
        Schiff& f = l.schiff(1, TYP_FRACHTER, 23);
        f.Fracht(1) = 2, f.Ladung = 2;
        Schiff& st = l.schiff(2, TYP_STATION, 23, 90, 2);  // another player's station serves too
        st.Fracht(5) = 4, st.Fracht(20) = 3, st.Fracht(FRACHT_GERAETE) = 2, st.Ladung = 11;
        l.schiff(3, TYP_STATION, 23, 90);  // empty: not in the list
    };
    // Alle Waren, 5 t: the dearest good goes first; nothing is paid.
    auto a = Befehl(BELADEN_VON_STATION, 1, "key ENTER\nkey UP\nkey ENTER\nkey 5\nkey ENTER", aufbau);
    EXPECT_TRUE(a->gedruckt(50, 660, "Beladen von TSR    :"));
    EXPECT_TRUE(a->gedruckt(50, 690, "   7")) << "the proposal: all goods, the devices stay";
    EXPECT_EQ(Ladeliste((*a)[1]) + " | " + Ladeliste((*a)[2]), "1:2 5:2 20:3 L7 | 5:2 24:2 L6");
    EXPECT_EQ(a->s->Bargeld(1), 5000);
    // Geräte with 3 t free: one fits, and Enter takes the proposal.
    auto g = Befehl(BELADEN_VON_STATION, 1, "key ENTER\nkey ENTER\nkey ENTER", [&](Lade& l) {
        aufbau(l);
        l[1].Ladung = 7;
    });
    EXPECT_EQ(Ladeliste((*g)[1]) + " | " + Ladeliste((*g)[2]), "1:2 24:1 L9 | 5:4 20:3 24:1 L9");
    // The goods stand in reverse order behind the first two places: good 20, then good 5.
    auto e = Befehl(BELADEN_VON_STATION, 1, "key ENTER\nkey UP\nkey UP\nkey UP\nkey ENTER\nkey ENTER", aufbau);
    EXPECT_EQ(Ladeliste((*e)[1]), "1:2 5:4 L6");
    auto esc = Befehl(BELADEN_VON_STATION, 1, "key ENTER\nkey UP\nkey ENTER\nkey ESC", aufbau);
    EXPECT_EQ((*esc)[2].Ladung, 11) << "Esc at the amount changes nothing";
}

TEST(BeladenAusruestung, ReparatursetGeraeteUndPortal) {
    auto xxl = Befehl(BELADEN_AUSRUESTUNG, 1, "key ENTER\nkey ENTER", [](Lade& l) {
        l.schiff(1, TYP_GROSSFRACHTER, SOL_III, 200);
        l.s->Bargeld(1) = 2000;
    }, {ERF_REPARATURSET});
    EXPECT_EQ(xxl->ausgang, Ausgang::ZumMenue);
    EXPECT_TRUE(xxl->gedruckt(50, 690, "Kosten: 6000 SD     OK?"));
    EXPECT_TRUE(xxl->gedruckt(50, 690, "Nicht genug Geld vorhanden!")) << "refused after the question";
    EXPECT_EQ(xxl->eins(), "L0 / 2000 SD");

    auto rep = Befehl(BELADEN_AUSRUESTUNG, 1, "key ENTER\nkey ENTER", [](Lade& l) { l.schiff(1, TYP_FRACHTER); },
                      {ERF_REPARATURSET});
    EXPECT_EQ(rep->eins(), "22:1 L0 / 4000 SD") << "a repair set takes no room";
    EXPECT_EQ(rep->textBei(422, 570), " 4000") << "the cash, its last digit at x 470";
    // Devices: room for 3, cash for 2; typing 3 is refused.
    auto geraete = [](const std::string& skript, int ladung) {
        return Befehl(BELADEN_AUSRUESTUNG, 1, skript, [=](Lade& l) {
            l.schiff(1, TYP_FRACHTER).Ladung = static_cast<Integer>(ladung);
            l.s->Bargeld(1) = 120;
        }, {ERF_GERAETE});
    };
    auto g = geraete("key ENTER\nkey ENTER", 3);
    EXPECT_TRUE(g->gedruckt(300, 660, "Kosten: 50SD"));
    EXPECT_EQ(g->eins(), "24:2 L7 / 20 SD");
    auto g3 = geraete("key ENTER\nkey 3\nkey ENTER", 3);
    EXPECT_TRUE(g3->gedruckt(50, 690, "Nicht genug Geld vorhanden!"));
    EXPECT_EQ(Ladeliste((*g3)[1]), "L3");
    EXPECT_FALSE(geraete("", 9)->gedruckt(50, 660, T("Produktionsgeräte"))) << "1 t free: no device offered";
    // The portal: refused before the question without 100000 SD; it fills the hold.
    auto portal = [](const std::string& skript, Long geld) {
        return Befehl(BELADEN_AUSRUESTUNG, 1, skript, [=](Lade& l) {
            l.schiff(1, TYP_GROSSFRACHTER, SOL_III, 200);
            l.s->Bargeld(1) = geld;
        }, {ERF_PORTAL});
    };
    auto arm = portal("key ENTER", 99999);
    EXPECT_EQ(arm->ausgang, Ausgang::ZumMenue);
    EXPECT_FALSE(arm->gedruckt(50, 690, "Kosten: 100000SD     OK?"));
    auto reich = portal("key ENTER\nkey ENTER", 150000);
    EXPECT_TRUE(reich->gedruckt(50, 690, "Kosten: 100000SD     OK?"));
    EXPECT_EQ(reich->eins(), "25:1 L200 / 50000 SD");
}

TEST(BeladenTanker, TankeinheitenReparatursetUndSupersprit) {
    auto tanker = [](const std::string& skript, Long geld, std::initializer_list<int> erfunden = {}, int mirellen = 0) {
        return Befehl(BELADEN_TANKER, 1, skript, [=](Lade& l) {
            l.schiff(1, TYP_TANKER, SOL_III, 60);
            l.s->Bargeld(1) = geld, l.s->Lager(WARE_MIRELLEN, 1) = static_cast<Integer>(mirellen);
        }, erfunden);
    };
    auto n = tanker("key ENTER", 5000);
    EXPECT_TRUE(n->gedruckt(50, 660, "Wie viele Tankeinheiten? "));
    EXPECT_TRUE(n->gedruckt(50, 690, "1 TE kostet 30"));
    EXPECT_EQ(Ladeliste((*n)[1]), "21:60 L60");
    EXPECT_EQ(n->kasse(), "3200 SD, 0 t Mirellen");
    EXPECT_EQ(n->s->Statistik(EST_TANKEINHEITEN, 2), 60);

    auto arm = tanker("key 5\nkey ENTER", 100);
    EXPECT_TRUE(arm->gedruckt(340, 660, "   3"));
    EXPECT_TRUE(arm->gedruckt(50, 690, "Nicht genug Geld vorhanden!")) << "more than the proposal may be typed";
    EXPECT_EQ(arm->ausgang, Ausgang::ZumMenue);
    EXPECT_EQ(Ladeliste((*arm)[1]), "L0");

    auto rep = tanker("key UP\nkey ENTER", 5000, {ERF_REPARATURSET});
    EXPECT_EQ(rep->eins(), "22:1 L0 / 4000 SD") << "no question asked";
    // Supersprit: 10 t Mirellen and 60 TE free propose 50; 51 would need 11 t; 6 units cost 2 t.
    auto s50 = tanker("key ENTER\nkey ENTER", 5000, {ERF_SUPERSPRIT}, 10);
    EXPECT_EQ(Ladeliste((*s50)[1]), "23:50 L50");
    EXPECT_EQ(s50->kasse(), "3500 SD, 0 t Mirellen");
    auto s51 = tanker("key ENTER\nkey 5\nkey 1\nkey ENTER", 5000, {ERF_SUPERSPRIT}, 10);
    EXPECT_TRUE(s51->gedruckt(50, 690, "Nicht genug Mirellen vorhanden!"));
    EXPECT_EQ(Ladeliste((*s51)[1]), "L0");
    EXPECT_EQ(tanker("key ENTER\nkey 6\nkey ENTER", 5000, {ERF_SUPERSPRIT}, 2)->kasse(), "4820 SD, 0 t Mirellen");
    EXPECT_TRUE(tanker("key ENTER", 5000, {ERF_SUPERSPRIT})->gedruckt(50, 690, "Keine Mirellen aus Lager!"));
    auto normal = tanker("key DOWN\nkey ENTER\nkey 7\nkey ENTER", 5000, {ERF_SUPERSPRIT});
    EXPECT_TRUE(normal->gedruckt(50, 690, "Wie viele Tankeinheiten? "));
    EXPECT_EQ(Ladeliste((*normal)[1]), "21:7 L7");
    // Elsewhere from a station: Supersprit first; fuel in a station is not part of its Ladung.
    auto st = Befehl(BELADEN_TANKER, 1, "key ENTER\nkey 4\nkey ENTER", [](Lade& l) {
        Schiff& t = l.schiff(1, TYP_TANKER, 23);
        t.Ladung = 4, t.Fracht(FRACHT_SPRIT) = 4;
        Schiff& s2 = l.schiff(2, TYP_STATION, 23, 90);
        s2.Fracht(FRACHT_SPRIT) = 5, s2.Fracht(FRACHT_SUPERSPRIT) = 3;
    });
    EXPECT_TRUE(st->gedruckt(300, 660, "   6")) << "the free hold";
    EXPECT_EQ(Ladeliste((*st)[1]) + " | " + Ladeliste((*st)[2]), "21:5 23:3 L8 | 21:4 L0");
}

TEST(Betanken, AufSolIII) {
    auto tanken = [](const std::string& skript, const char* typ, float tank, Long geld,
                     std::initializer_list<int> erfunden = {}, int mirellen = 0) {
        return Befehl(BETANKEN_SOL, 1, skript, [=](Lade& l) {
            Schiff& f = l.schiff(1, typ);
            f.Treibstoff = tank, f.Supersprit = -1;
            l.s->Bargeld(1) = geld, l.s->Lager(WARE_MIRELLEN, 1) = static_cast<Integer>(mirellen);
        }, erfunden);
    };
    auto a = tanken("key ENTER", TYP_FRACHTER, 29, 5000);
    EXPECT_TRUE(a->gedruckt(50, 660, "Kosten: 30       OK?"));
    EXPECT_EQ(Tank((*a)[1]), "30 normal") << "the whole tank is normal fuel now";
    EXPECT_EQ(a->s->Bargeld(1), 4970);
    EXPECT_EQ(a->s->Statistik(EST_TANKEINHEITEN, 2), 1);
    EXPECT_EQ((*tanken("key ENTER", TYP_GROSSFRACHTER, 20, 5000))[1].Treibstoff, 30.0f) << "held at the tank";
    EXPECT_EQ((*tanken("key ENTER", TYP_GROSSFRACHTER, 5, 5000))[1].Treibstoff, 20.0f) << "half a tank";
    EXPECT_EQ(tanken("key N\nkey ENTER", TYP_FRACHTER, 5, 5000)->s->Bargeld(1), 5000);
    auto arm = tanken("", TYP_FRACHTER, 5, 29);
    EXPECT_TRUE(arm->gedruckt(50, 660, "Nicht genug Geld vorhanden!"));
    EXPECT_EQ((*arm)[1].Treibstoff, 5.0f);

    EXPECT_TRUE(tanken("key UP\nkey ENTER", TYP_FRACHTER, 5, 5000, {ERF_SUPERSPRIT})
                    ->gedruckt(50, 690, "Keine Mirellen aus Lager!"));
    auto sup = tanken("key UP\nkey ENTER\nkey ENTER", TYP_FRACHTER, 3, 5000, {ERF_SUPERSPRIT}, 3);
    EXPECT_TRUE(sup->gedruckt(50, 690, "Kosten: 30 + 1t Mirellen   OK?"));
    EXPECT_EQ(Tank((*sup)[1]), "30 Super");
    EXPECT_EQ(sup->kasse(), "4970 SD, 2 t Mirellen");
}

TEST(Betanken, VonDerErstenStationMitTreibstoff) {
    auto l = Befehl(BETANKEN_STATION, 1, "key ENTER", [](Lade& x) {
        x.schiff(1, TYP_FRACHTER, 23);
        x.schiff(2, TYP_STATION, 23, 90);  // no fuel
        x.schiff(3, TYP_STATION, 23, 90, 2).Fracht(FRACHT_SPRIT) = 4;
    });
    EXPECT_TRUE(l->gedruckt(50, 660, "Tanken von TSR 3 (Tankeinh.: 4)"));
    EXPECT_EQ(Tank((*l)[1]), "30 normal");
    EXPECT_EQ((*l)[3].Fracht(FRACHT_SPRIT), 3) << "one unit per filling, however much goes in";
    EXPECT_EQ(l->s->Bargeld(1), 5000) << "no money passes";
    // With Supersprit known: a freighter starts on the last kind there, a station on the first.
    auto mit = [](int nr) {
        return Befehl(BETANKEN_STATION, nr, "key ENTER", [](Lade& x) {
            x.schiff(1, TYP_FRACHTER, 23);
            Schiff& st = x.schiff(2, TYP_STATION, 23, 90);
            st.Fracht(FRACHT_SPRIT) = 2, st.Fracht(FRACHT_SUPERSPRIT) = 2;
        }, {ERF_SUPERSPRIT});
    };
    auto f = mit(1);
    EXPECT_TRUE(f->gedruckt(50, 660, "Normal: 2    Super: 2"));
    EXPECT_EQ(Tank((*f)[1]), "30 Super");
    EXPECT_EQ(Ladeliste((*f)[2]), "21:2 23:1 L0");
    auto st = mit(2);
    EXPECT_EQ(Tank((*st)[2]), "30 normal") << "a station fills its own tank";
    EXPECT_EQ(Ladeliste((*st)[2]), "21:1 23:2 L0");
}

TEST(Entladen, WasNichtPasstBleibtAnBord) {
    auto aufbau = [](Lade& l) {
        Schiff& f = l.schiff(1, TYP_FRACHTER, 23);
        f.Fracht(1) = 5, f.Fracht(3) = 4, f.Fracht(FRACHT_GERAETE) = 3, f.Ladung = 15;
        l.schiff(2, TYP_STATION, 23, 90).Ladung = 87;
    };
    auto alle = Befehl(ENTLADEN, 1, "key ENTER\nkey ENTER", aufbau);
    EXPECT_TRUE(alle->gedruckt(50, 630, "Entladen in TSR    :   "));
    EXPECT_TRUE(alle->gedruckt(50, 660, "Welche Waren? (Lagerplatz: 3t)"));
    EXPECT_EQ(Ladeliste((*alle)[2]) + " | " + Ladeliste((*alle)[1]), "1:3 L90 | 1:2 3:4 24:3 L12") << "good 1 first";
    // Devices: 3 t free take one, the second would need 2 more.
    auto ger = Befehl(ENTLADEN, 1, "key ENTER\nkey UP\nkey UP\nkey UP\nkey ENTER", aufbau);
    EXPECT_EQ(Ladeliste((*ger)[2]) + " | " + Ladeliste((*ger)[1]), "24:1 L89 | 1:5 3:4 24:2 L13");
    EXPECT_EQ(Ladeliste((*Befehl(ENTLADEN, 1, "key ESC", aufbau))[1]), "1:5 3:4 24:3 L15");

    auto t = Befehl(ENTLADEN, 1, "key ENTER\nkey 5\nkey ENTER", [](Lade& l) {
        Schiff& tanker = l.schiff(1, TYP_TANKER, 23);
        tanker.Fracht(FRACHT_SPRIT) = 6, tanker.Fracht(FRACHT_SUPERSPRIT) = 3, tanker.Ladung = 9;
        l.schiff(2, TYP_STATION, 23, 90);
    });
    EXPECT_EQ(Ladeliste((*t)[2]) + " | " + Ladeliste((*t)[1]), "21:2 23:3 L0 | 21:4 L4") << "Supersprit first";
}

TEST(Koppeln, AnkoppelnUndTrennen) {
    auto koppeln = [](const std::string& skript) {
        return Befehl(ANKOPPELN, 5, skript, [](Lade& l) {
            l.schiff(5, TYP_STATION, 23, 90);
            l.schiff(2, TYP_FRACHTER, 23).Ladung = 1;  // loaded
            l.schiff(3, TYP_FRACHTER, 23, 10, 2);      // another player's
            l.schiff(4, TYP_FRACHTER, 23);
            l.schiff(6, TYP_GROSSFRACHTER, 23, 200);   // only a Frachter tows
            l.schiff(7, TYP_FRACHTER, 23);
            l.schiff(8, TYP_FRACHTER, 31);             // elsewhere
        });
    };
    auto a = koppeln("key UP\nkey ENTER");
    EXPECT_TRUE(a->gedruckt(50, 630, T("Bitte Frachter wählen!")));
    EXPECT_EQ(Lage((*a)[5]), "Zustand 10 Partner 7 Planet 23") << "4 is shown first, Up goes to 7";
    EXPECT_EQ(Lage((*a)[7]), "Zustand 0 Partner 5 Planet 23");
    EXPECT_EQ((*koppeln("key UP\nkey UP\nkey ENTER"))[5].Partner, 4) << "round past the highest slot";
    EXPECT_EQ(Lage((*koppeln("key ESC"))[5]), "Zustand 0 Partner 0 Planet 23");
    // Uncoupled where the freighter stands.
    (*a)[7].Planet = 44;
    a->laufen([](Spiel& s) { TRENNEN(s, 5); });
    EXPECT_EQ(Lage((*a)[5]), "Zustand 0 Partner 0 Planet 44");
    EXPECT_EQ((*a)[7].Partner, 0);
}
