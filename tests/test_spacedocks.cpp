// The spacedocks: each type built through the driver until the docks are
// full, four jobs with the news of the year each ends, what the inventions
// open, the money checks, the Flopse slow-down and the one-player counters.

#include "hilfe.h"

namespace {

const std::string DOCKS = "key D\nkey ENTER\n", JAHR = "key W\nkey ENTER\n";
bool Hat(const std::string& text, const std::string& teil) { return text.find(teil) != std::string::npos; }

// A finished ship of Anna's at rest on Sol III.
Schiff& Heim(Spiel& s, int n, const char* typ) { return SchiffSetzen(s, n, typ, 1, SOL_III); }

// Anna's new game, prepared for the driver: money, and no event due soon.
Spiel Vorbereitet(Long bargeld) {
    Spiel s = RuhigesSpiel(1, 50);
    s.SpielerName(1) = "Anna", s.Bargeld(1) = bargeld;
    return s;
}

// One radio call on the headless platform, set up by vorher, fed the keys.
TestSpiel Ruf(const std::string& tasten, const std::function<void(Spiel&)>& vorher) {
    TestSpiel t(tasten);
    t.p->spurAufzeichnen(true);
    vorher(*t.s);
    t.laufen([](Spiel& s) { SPACEDOCKS(s); });
    return t;
}

}  // namespace

TEST(Spacedocks, JederTypWirdGebautBisDieDocksAusgelastetSind) {
    Spiel s = Vorbereitet(20000);
    s.Forschung(ERF_GROSSFRACHTER, 1) = s.Forschung(ERF_DOCKS, 1) = -1;
    std::string k;
    for (int typ = 1; typ <= 7; ++typ) k += DOCKS + "key ENTER\n" + Mal("key UP\n", (typ - 1) % 6) + "key ENTER\nkey ENTER\n";
    const TreiberLauf lauf = GeladenSpielen(s, k + DOCKS, "bau");
    const Spiel g = ZustandAus(lauf);
    // The last call: all seven jobs in a frame for seven, then the refusal, no menu.
    const std::string letzte = lauf.trace.substr(lauf.trace.rfind("frame 510 260 990 490 65535"));
    const int jahre[] = {10, 10, 16, 16, 19, 25, 10};
    for (int i = 1; i <= 7; ++i) {
        const int n = s.HoechstesSchiff + i;  // behind the pirates
        EXPECT_EQ(g.Schiffe(n).Typ, TypCode((i - 1) % 6 + 1));
        EXPECT_EQ(g.Schiffe(n).Zustand, ZUSTAND_WERFT_BAU);
        EXPECT_EQ(g.DockSchiffe(i, 1), n);
        EXPECT_TRUE(Hat(letzte, "print 520 " + std::to_string(245 + 30 * i) + " 15 65535 " + g.Schiffe(n).Typ +
                                    std::to_string(n) + ": " + std::to_string(jahre[i - 1]) + " Runden,  in Bau"))
            << letzte;
    }
    const long preise = 1000 + 900 + 750 + 400 + 2000 + 10000 + 1000;
    EXPECT_EQ(g.Bargeld(1), 20000 - preise);
    EXPECT_EQ(g.Statistik(EST_DOCK_BAU, 2) - s.Statistik(EST_DOCK_BAU, 2), preise);
    EXPECT_TRUE(Hat(letzte, "print 50 630 15 16777215 Spacedocks sind ausgelastet!"));
    EXPECT_FALSE(Hat(letzte, "Bauen"));
}

TEST(Spacedocks, VierAuftraegeUndIhreMeldungenImJahrIhresEndes) {
    Spiel s = Vorbereitet(5000);
    s.Komponenten = 5;
    const int k = s.HoechstesSchiff + 1;  // Kreuzer k, Tanker k + 1, Scout k + 2
    Heim(s, k, TYP_KREUZER).Bewaffnung = 4;
    Heim(s, k + 1, TYP_TANKER).Schaden = 10;
    Heim(s, k + 2, TYP_SCOUT).Schaden = 3;
    const Spiel b = ZustandAus(GeladenSpielen(s, "", "basis"));
    // Frachter 1 +5 t, Kreuzer +1 level, the Scout repaired (Up, Down, Up
    // leaf past the Tanker), the Tanker given the filter.
    const std::string zug = DOCKS + "key L\nkey ENTER\nkey ENTER\ntype 5\nkey ENTER\n" + DOCKS +
                            "key B\nkey ENTER\nkey ENTER\ntype 1\nkey ENTER\n" + DOCKS +
                            "key R\nkey ENTER\nkey UP\nkey DOWN\nkey UP\nkey ENTER\nkey ENTER\n" + DOCKS +
                            "key D\nkey ENTER\nkey ENTER\nkey ENTER\n";
    const Spiel g = ZustandAus(GeladenSpielen(s, zug, "auftraege"));
    EXPECT_EQ(g.Bargeld(1), b.Bargeld(1) - 345);
    EXPECT_EQ(g.Schiffe(1).Laderaum, 15);
    EXPECT_EQ(g.Schiffe(k).Bewaffnung, 5);
    EXPECT_EQ(g.Schiffe(k + 2).Schaden, 0);
    EXPECT_EQ(g.Schiffe(k + 1).Tankgroesse, 40);
    EXPECT_EQ(g.Schiffe(k + 1).Treibstoff, 40.0f);
    const int schiff[] = {1, k, k + 1, k + 2}, zustand[] = {-2, -3, -5, -4}, dauer[] = {1, 2, 3, 1}, preis[] = {50, 85, 10, 200};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(g.DockSchiffe(i + 1, 1), schiff[i]);
        EXPECT_EQ(g.Schiffe(schiff[i]).Zustand, zustand[i]);
        EXPECT_EQ(g.Schiffe(schiff[i]).Dauer, dauer[i]);
        EXPECT_EQ(g.Statistik(EST_DOCK_LADERAUM + i, 2) - b.Statistik(EST_DOCK_LADERAUM + i, 2), preis[i]);
    }
    EXPECT_EQ(g.Statistik(EST_DOCK_ZAHLUNGEN, 2) - b.Statistik(EST_DOCK_ZAHLUNGEN, 2), 345);
    // Each job ends with its own line in the year its countdown runs out.
    const std::string K = std::to_string(k), TK = std::to_string(k + 1), S = std::to_string(k + 2);
    const std::string j1 = GeladenSpielen(s, zug + JAHR, "jahr1").screen;
    EXPECT_TRUE(Hat(j1, "SST 1 (Anna) hat neuen Laderaum!")) << j1;
    EXPECT_TRUE(Hat(j1, " XS " + S + " (Anna) wurde repariert!"));
    EXPECT_FALSE(Hat(j1, "FSS " + K));
    const std::string j2 = GeladenSpielen(s, zug + JAHR + JAHR, "jahr2").screen;
    EXPECT_TRUE(Hat(j2, "FSS " + K + " (Anna) hat neue Bewaffnung!")) << j2;
    EXPECT_FALSE(Hat(j2, "TST " + TK));
    const TreiberLauf j3 = GeladenSpielen(s, zug + JAHR + JAHR + JAHR + DOCKS, "jahr3");
    EXPECT_TRUE(Hat(j3.trace.substr(j3.trace.rfind("RUNDE")), "TST " + TK + " (Anna) hat den DTW-Filter!"));
    EXPECT_TRUE(Hat(j3.screen, "text\t550\t275\t15\t65535\tSpacedocks sind unbeschäftigt"));
    // Place-years: five offered a year; busy 4 + 2 + 1, by job.
    const Spiel g3 = ZustandAus(j3);
    const int spalte[] = {EST_DOCK_ANGEBOTEN, EST_DOCK_BELEGT, EST_BELEGT_LADERAUM, EST_BELEGT_BEWAFFNUNG,
                          EST_BELEGT_REPARATUR, EST_BELEGT_DTW}, mehr[] = {15, 7, 1, 2, 1, 3};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(g3.Statistik(spalte[i], 2) - b.Statistik(spalte[i], 2), mehr[i]) << spalte[i];
}

TEST(Spacedocks, ErfindungenOeffnenDieDocks) {
    // 1, 4, 5: a ship at the old limit is no candidate; with the invention
    // Enter alone orders up to the new limit.
    struct Fall { int e; const char* typ; const char* menue; Integer Schiff::*wert; int alt, neu; };
    for (const Fall f : {Fall{ERF_LADERAUM, TYP_FRACHTER, "key L\n", &Schiff::Laderaum, 90, 120},
                         Fall{ERF_STATIONEN, TYP_STATION, "key L\n", &Schiff::Laderaum, 90, 150},
                         Fall{ERF_WAFFEN, TYP_KREUZER, "key B\n", &Schiff::Bewaffnung, 9, 15}})
        for (Integer erf : {0, -1}) {
            TestSpiel t = Ruf(f.menue + Mal("key ENTER\n", 3), [&](Spiel& s) {
                s.Forschung(f.e, 1) = erf;
                Heim(s, 7, f.typ).*f.wert = static_cast<Integer>(f.alt);
            });
            EXPECT_EQ(t.s->Schiffe(7).*f.wert, erf ? f.neu : f.alt) << f.typ;
            EXPECT_EQ(t.textBei(50, 630), erf ? "Schiff wählen!" : "Kein Schiff auf Sol III!");
        }
    // 7: five jobs in hand fill five places, not seven.
    for (Integer erf : {0, -1}) {
        TestSpiel t = Ruf("", [erf](Spiel& s) {
            s.Forschung(ERF_DOCKS, 1) = erf;
            for (int i = 1; i <= 5; ++i) Heim(s, 6 + i, TYP_SCOUT).Zustand = -1, s.DockSchiffe(i, 1) = static_cast<Integer>(6 + i);
        });
        EXPECT_EQ(t.textBei(50, erf ? 600 : 630), erf ? "Bauen               " : "Spacedocks sind ausgelastet!");
        EXPECT_EQ(Hat(t.p->spur(), "frame 510 260 990 490 65535"), erf != 0);
    }
    // 10: the Großfrachter after the Raumstation; the fifth component: the filter.
    for (Integer erf : {0, -1})
        EXPECT_EQ(Ruf("key ENTER\n" + Mal("key UP\n", 5), [erf](Spiel& s) { s.Forschung(ERF_GROSSFRACHTER, 1) = erf; }).textBei(120, 630),
                  erf ? "Großfrachter" : "Raumstation ");
    for (Integer k : {4, 5})
        EXPECT_EQ(Ruf(Mal("key UP\n", 4), [k](Spiel& s) { s.Komponenten = k; }).textBei(50, 600),
                  k == 5 ? "DTW-Filter-Einbau   " : "Reparatur           ");
}

TEST(Spacedocks, GeldPruefungFlopseUndZweiSpieler) {
    // Bauen asks first and checks after; the repair checks before it asks.
    TestSpiel bau = Ruf("key ENTER\nkey UP\nkey UP\nkey ENTER\nkey ENTER\n", [](Spiel& s) { s.Bargeld(1) = 700; });
    EXPECT_EQ(bau.textBei(50, 660), "Kosten:   750    OK?");
    EXPECT_EQ(bau.textBei(50, 690), "Nicht genug Geld vorhanden!");
    EXPECT_EQ(bau.s->Bargeld(1), 700);
    TestSpiel rep = Ruf("key R\nkey ENTER\nkey ENTER\n", [](Spiel& s) { Heim(s, 7, TYP_SCOUT).Schaden = 3, s.Bargeld(1) = 9; });
    EXPECT_EQ(rep.textBei(50, 660), "Nicht genug Geld vorhanden!") << "Int(3.5 x 3) = 10 SD";
    // Once Flopse are sold the yards take a fifth longer, not for the filter;
    // with two players row 2 of the statistics is not touched.
    auto flopse = [](Spiel& s) {
        s.AnzahlSpieler = 2, s.Komponenten = 5, s.Statistik(WARE_FLOPSE, 1) = 1;
        Heim(s, 7, TYP_TANKER).Schaden = 25;
    };
    TestSpiel r = Ruf("key R\n" + Mal("key ENTER\n", 3), flopse);
    EXPECT_EQ(r.s->Schiffe(7).Dauer, 6);
    EXPECT_EQ(r.s->Bargeld(1), 5000 - 200);
    EXPECT_EQ(r.s->Statistik(EST_DOCK_ZAHLUNGEN, 2), 0);
    EXPECT_EQ(Ruf("key D\n" + Mal("key ENTER\n", 3), flopse).s->Schiffe(7).Dauer, 3);
}
