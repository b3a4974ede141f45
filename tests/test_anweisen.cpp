// Choosing a ship, the order menu, the travel orders and the star map.

#include "hilfe.h"

namespace {

// A small galaxy by hand: systems 1..5 in a row to the right of Sol.
struct Galaxie : TestSpiel {
    explicit Galaxie(const std::string& skript = "") : TestSpiel(skript) {
        s->AnzahlPlaneten = 50, s->HoechstesSchiff = 10;
        const char* namen[] = {"Atair ", "Beteigeuze ", "Capella ", "Deneb ", "Wega "};
        for (int sys = 1; sys <= 5; ++sys)
            for (int k = 1; k <= 10; ++k) {
                Planet& p = s->Dokument(10 * sys + k);
                p.Name = namen[sys - 1], p.X = static_cast<Integer>(20 * sys);
                p.Y = static_cast<Integer>(sys == 3 ? -30 : 0), p.Ware = static_cast<Integer>(sys);
            }
        s->Dokument(3).Name = "Sol ";
    }
    Schiff& schiff(int nr, const char* typ, int planet = 3, int besitzer = 1) {
        Schiff& sch = SchiffSetzen(*s, nr, typ, besitzer, planet);
        sch.Treibstoff = 30, sch.Laderaum = std::string(typ) == "SST " ? 10 : 0;
        return sch;
    }
    std::vector<std::string> menue(int nr) {
        std::vector<std::string> r;
        for (const auto& t : ANWEISUNGEN(*s, nr))
            if (!t.empty()) r.push_back(Utf8(Trim(t)));
        return r;
    }
};

using Menue = std::vector<std::string>;

// What a trip keeps in the record.
std::string Reise(const Schiff& f) {
    return "Zustand " + std::to_string(f.Zustand) + " Planet " + std::to_string(f.Planet) + " Start " +
           std::to_string(f.StartPlanet) + " Dauer " + std::to_string(f.Dauer);
}

}  // namespace

TEST(Anweisungen, FrachterNachOrtUndLage) {
    Galaxie g;
    Schiff& f = g.schiff(1, "SST ");
    EXPECT_EQ(g.menue(1), (Menue{"Start"})) << "full tank on Sol III, no invention";
    f.Treibstoff = 12;
    EXPECT_EQ(g.menue(1), (Menue{"Start", "Betanken"}));
    f.Planet = 23;
    g.s->Dokument(23).Bestand = 150;
    EXPECT_EQ(g.menue(1), (Menue{"Start", "Beladen"}));
    g.s->Schiffe(PIRATEN_HQ).Planet = 23;
    EXPECT_EQ(g.menue(1), (Menue{"Start"})) << "nobody loads at the pirates' headquarters";
    g.s->Schiffe(PIRATEN_HQ).Planet = 0;
    f.Partner = 5;
    EXPECT_EQ(g.menue(1), (Menue{"Start"})) << "a freighter with a station does not load";
    f.Partner = 0, f.Ladung = 10;
    EXPECT_EQ(g.menue(1), (Menue{"Start"})) << "a full hold";
    g.s->Dokument(23).Portal = -1;
    g.s->Schiffe(HAENDLER_ERSTES + 2).Planet = 23;
    EXPECT_EQ(g.menue(1), (Menue{"Start", "Teleportieren", "Handeln"}));
    f.Zustand = 1, f.StartPlanet = 3;
    EXPECT_EQ(g.menue(1), (Menue{"Notruf"}));
    f.StartPlanet = -3;
    EXPECT_TRUE(g.menue(1).empty()) << "a teleport cannot be called back";
    f.Zustand = 0, f.Fracht(22) = 1, f.Schaden = 10, f.Fracht(24) = 2;
    EXPECT_EQ(g.menue(1), (Menue{"Start", "Teleportieren", "Handeln", "Reparatur", "Gerät ausliefern"}));
}

TEST(Anweisungen, AndereTypen) {
    Galaxie g;
    Schiff& k = g.schiff(2, "FSS ", 33);
    EXPECT_EQ(g.menue(2), (Menue{"Start"})) << "a cruiser with no enemy";
    g.schiff(4, "SST ", 33, 2);
    EXPECT_EQ(g.menue(2), (Menue{"Start", "Angriff"}));
    EXPECT_EQ(ANWEISUNGEN(*g.s, 2)[12], "Angriff            ");
    k.Zustand = 2;
    EXPECT_EQ(g.menue(2), (Menue{"Angriff beenden"}));

    Schiff& st = g.schiff(5, "TSR ", 3);
    st.Laderaum = 90;
    EXPECT_TRUE(g.menue(5).empty()) << "a station never starts";
    g.schiff(6, "XXL ", 3);
    EXPECT_TRUE(g.menue(5).empty()) << "only a Frachter can take a station in tow";
    g.schiff(7, "SST ", 3);
    EXPECT_EQ(g.menue(5), (Menue{"Ankoppeln"}));
    g.s->Forschung(3, 1) = -1;  // repair sets on sale
    EXPECT_EQ(g.menue(5), (Menue{"Beladen", "Ankoppeln"}));

    Schiff& t = g.schiff(8, "TST ", 3);
    t.Laderaum = 10;
    g.s->Forschung(3, 1) = 0;
    EXPECT_EQ(g.menue(8), (Menue{"Start", "Beladen"}));
    t.Planet = 41;
    EXPECT_EQ(g.menue(8), (Menue{"Start"}));
    Schiff& fern = g.schiff(9, "TSR ", 41, 3);
    fern.Fracht(21) = 5;
    t.Treibstoff = 3;
    EXPECT_EQ(g.menue(8), (Menue{"Start", "Beladen", "Betanken"})) << "a station with fuel, of any owner";

    Schiff& x = g.schiff(10, " XS ", 3);
    x.Zustand = -2;
    EXPECT_TRUE(g.menue(10).empty());
}

TEST(Reisen, StartMitBuchstabenUndPfeilenDannNotruf) {
    // D finds Deneb, two steps up its planets, Enter.
    Galaxie g("key D\nkey UP\nkey UP\nkey ENTER");
    Schiff& f = g.schiff(1, "SST ");
    g.laufen([](Spiel& s) { ORDER_START(s, 1); });
    EXPECT_EQ(Reise(f), "Zustand 1 Planet 43 Start 3 Dauer " + std::to_string(ENTFERNUNG(*g.s, 3, 43)));
    EXPECT_EQ(g.textBei(50, 690), "Entfernung: " + Space(4 - static_cast<int>(Str(f.Dauer).size())) + std::to_string(f.Dauer));

    g.laufen([](Spiel& s) { ORDER_NOTRUF(s, 1); });
    EXPECT_TRUE(f.Zustand == 0 && f.Planet == 3 && f.Dauer == 0) << "called back before it moved";

    f.Zustand = 1, f.StartPlanet = 3, f.Planet = 43, f.Dauer = 6;  // 4 of 10 units flown
    const int ganz = ENTFERNUNG(*g.s, 3, 43);
    g.laufen([](Spiel& s) { ORDER_NOTRUF(s, 1); });
    EXPECT_EQ(Reise(f), "Zustand 1 Planet 3 Start 43 Dauer " + std::to_string(ganz - 6));
}

TEST(Reisen, ZielWaehlenTasten) {
    auto ziel = [](const std::string& skript, int start = 3) {
        Galaxie g(skript + "\nkey ENTER");
        g.schiff(1, "SST ", start);
        g.laufen([](Spiel& s) { ZIEL_WAEHLEN(s, 1); });
        return g.s->Eingabe;
    };
    // Down from 11 passes 10 to Sol III; the last star is reached neither by Tab nor by a letter, and no
    // star begins with Q. After the blank the arrows look for the nearest star that way: Capella lies
    // above the row, and more to the side than above Sol; nothing below keeps the cursor; Sol counts too.
    struct Fall { const char* tasten; int start; Long ziel; };
    const Fall faelle[] = {
        {"key UP", 3, 11}, {"key UP\nkey DOWN", 3, 3}, {"key UP\nkey DOWN\nkey DOWN", 3, 60}, {"key DOWN", 3, 60},
        {"key TAB", 3, 11}, {"key TAB", 47, 11}, {"key TAB", 35, 41}, {"key PERIOD", 35, 3}, {"key C", 3, 31},
        {"key Q", 3, 3}, {"key W", 3, 3}, {"key SPACE\nkey RIGHT", 3, 11}, {"key SPACE\nkey RIGHT\nkey RIGHT\nkey RIGHT", 3, 41},
        {"key SPACE\nkey UP", 3, 3}, {"key SPACE\nkey UP", 22, 31}, {"key SPACE\nkey DOWN", 3, 3},
        {"key SPACE\nkey LEFT", 22, 11}, {"key SPACE\nkey LEFT", 12, 3}, {"key ESC", 3, -1}};
    for (const Fall& f : faelle) EXPECT_EQ(ziel(f.tasten, f.start), f.ziel) << f.tasten << " from " << f.start;
}

TEST(Reisen, TeleportierenZwischenPortalen) {
    Galaxie g("key UP\nkey ENTER");
    g.s->Dokument(3).Portal = -1;
    g.s->Dokument(44).Portal = -1;
    Schiff& f = g.schiff(1, "SST ", 3);
    f.Partner = 5;
    g.schiff(5, "TSR ", 3).Zustand = 10;
    g.laufen([](Spiel& s) { ORDER_TELEPORTIEREN(s, 1); });
    EXPECT_EQ(Reise(f), "Zustand 1 Planet 44 Start -3 Dauer 1") << "Up keeps the cursor on the only other portal";
    EXPECT_TRUE(g.s->Schiffe(5).Planet == 44 && g.s->Schiffe(5).Zustand == 10) << "the station goes along";

    Galaxie h;
    h.schiff(1, "SST ", 3);
    h.s->Dokument(3).Portal = -1;
    h.p->spurAufzeichnen(true);
    h.laufen([](Spiel& s) { ORDER_TELEPORTIEREN(s, 1); });
    EXPECT_NE(h.p->spur().find("Kein weiteres Portal vorhanden!"), std::string::npos);
}

TEST(Anweisen, SchiffWaehlenMitTastenUndNummer) {
    auto gewaehlt = [](const std::string& skript, int letztes = 0) {
        Galaxie g(skript + "\nkey ESC");
        for (int i : {2, 5, 9}) g.schiff(i, "SST ");
        g.schiff(4, "SST ", 3, 2);
        g.s->HoechstesSchiff = 12, g.s->LetztesSchiff = static_cast<Integer>(letztes);
        g.laufen([](Spiel& s) { SCHIFFE_ANWEISEN(s); });
        return g.s->LetztesSchiff;
    };
    EXPECT_EQ(gewaehlt("key ENTER"), 2) << "the lowest ship first";
    EXPECT_EQ(gewaehlt("key UP\nkey ENTER"), 5);
    EXPECT_EQ(gewaehlt("key DOWN\nkey ENTER"), 9) << "round to the highest";
    EXPECT_EQ(gewaehlt("key UP\nkey ENTER", 9), 2);
    EXPECT_EQ(gewaehlt("key PGUP\nkey ENTER", 5), 2) << "16 is above 12: from slot 1";
    EXPECT_EQ(gewaehlt("key SPACE\nkey 6\nkey ENTER\nkey ENTER"), 9);
    EXPECT_EQ(gewaehlt("key SPACE\nkey 0\nkey ENTER\nkey ENTER", 9), 2);
    EXPECT_EQ(gewaehlt("key ESC", 5), 5) << "Esc gives no order";
    // No ships: no prompt; the only ship in the yard: refused.
    for (int werft : {0, 1}) {
        Galaxie g("key ENTER");
        if (werft) g.schiff(3, "SST ").Zustand = -1;
        g.p->spurAufzeichnen(true);
        g.laufen([](Spiel& s) { SCHIFFE_ANWEISEN(s); });
        EXPECT_EQ(g.p->spur().find(werft ? "Raumschiff ist in der Werft!" : "Bitte Raumschiff") != std::string::npos, werft == 1);
    }
}

TEST(Sternkarte, FarbenLinienUndTeleport) {
    // Stars 11..51 lie at x 775, 800, 850, 875 on the row of Sol (750, 490); Capella above.
    Galaxie g;
    g.s->AktSpieler = 2;
    auto reise = [&](int nr, int besitzer, int von, int nach) {
        Schiff& sch = g.schiff(nr, "SST ", nach, besitzer);
        sch.Zustand = 1, sch.StartPlanet = static_cast<Integer>(von);
    };
    reise(1, 2, 11, 41);   // own: cyan line back to the start
    reise(2, 2, -11, 21);  // own teleport: no line
    reise(3, 1, 3, 51);    // another player's: blue
    reise(4, 1, -21, 41);  // another player's teleport: no line
    reise(5, 7, 21, 11);   // pirates: grey
    g.schiff(6, "SST ", 3, 2);   // at Sol: no dot
    g.schiff(7, "TSR ", 21, 2);  // at rest: a dot
    g.p->spurAufzeichnen(true);
    g.laufen([](Spiel& s) { STERNKARTE(s); });
    std::string linien, punkte;
    std::istringstream spur(g.p->spur());
    for (std::string z; std::getline(spur, z);) {
        if (z.rfind("line ", 0) == 0) linien += z + "\n";
        if (z.rfind("circle ", 0) == 0 && z.find(" 65535 ") == std::string::npos) punkte += z + "\n";
    }
    EXPECT_EQ(linien,
              "line 850 490 775 490 16776960 1\n"
              "line 875 490 750 490 16711680 1\n"
              "line 775 490 800 490 7895160 1\n");
    EXPECT_EQ(punkte,
              "circle 750 490 2 16777215 filled\n"
              "circle 850 490 1 16776960 filled\n"
              "circle 800 490 1 16776960 filled\n"
              "circle 875 490 1 16711680 filled\n"
              "circle 850 490 1 16711680 filled\n"
              "circle 775 490 1 7895160 filled\n"
              "circle 800 490 1 16776960 filled\n");
    EXPECT_NE(g.p->spur().find("circle 775 490 1 65535 filled"), std::string::npos) << "a yellow star";
    EXPECT_NE(g.p->spur().find("box 502 245 998 738 0"), std::string::npos) << "the news are covered";
}

TEST(Meldung, KlickAufEineZeileOeffnetDasSchiff) {
    // A news line names the player's ship; a click on it in the main menu opens the order dialog on it.
    Galaxie g("click 600 260\nkey ESC\nkey ESC");
    g.schiff(2, "SST ");
    g.schiff(6, "SST ", 21).Treibstoff = 10;
    g.s->MeldungAnzahl = 2, g.s->MeldungText(1) = "SST 6 landet auf Atair I", g.s->MeldungFarbe(1) = CYAN;
    g.s->MeldungText(2) = "Atair II produziert", g.s->MeldungPlanet(2) = 12;
    g.p->spurAufzeichnen(true);
    g.laufen([](Spiel& s) {
        HAUPTBILDSCHIRM(s, true);
        SPIELSCHLEIFE(s);
    });
    EXPECT_EQ(g.s->LetztesSchiff, 6);
    EXPECT_NE(g.p->spur().find("print 30 110 15 16711935 Schiff   SST  6"), std::string::npos);
    EXPECT_NE(g.p->spur().find("Anweisung:"), std::string::npos);
}
