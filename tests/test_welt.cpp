// The world of a new game: the generator, the rule tables, the star list,
// the galaxy and the measure of distance.

#include "hilfe.h"

namespace {

const float GROESSTER_ZUG = std::nextafter(1.0f, 0.0f);  // 1 - 2^-24

std::unique_ptr<Spiel> NeuesSpiel(int planeten = 0) {
    auto s = std::make_unique<Spiel>();
    s->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD, s->AnzahlPlaneten = static_cast<Integer>(planeten);
    return s;
}

// Names as the sorted star list compares them: without case, umlauts as their plain letters.
std::string OhneGross(const std::string& cp1252) {
    std::string r;
    for (unsigned char c : cp1252) {
        if (c >= 'A' && c <= 'Z') c = static_cast<unsigned char>(c + 32);
        r += c == 0xC4 || c == 0xE4 ? "a" : c == 0xD6 || c == 0xF6 ? "o" : c == 0xDC || c == 0xFC ? "u"
           : c == 0xDF ? "ss" : std::string(1, static_cast<char>(c));
    }
    while (!r.empty() && r.back() == ' ') r.pop_back();
    return r;
}

}  // namespace

TEST(Zufall, SaatFolgeUndGrenzen) {
    // the same seed, the same draws; fed draws come first, then the generator goes on where it stood
    auto s = NeuesSpiel(), t = NeuesSpiel();
    Randomize(*s, 77);
    Randomize(*t, 77);
    RndFolge(*s, {0.5f, GROESSTER_ZUG, 0.0f, GROESSTER_ZUG});
    EXPECT_EQ(Rnd(*s), 0.5f);
    EXPECT_EQ(ZufallGanz(*s, 1, 6), 6) << "the largest draw gives b, never b + 1";
    EXPECT_EQ(ZufallGanz(*s, -2, 2), -2);
    EXPECT_EQ(ZufallGanz(*s, 600000, 1399999), 1399999);
    for (int i = 0; i < 100; ++i) ASSERT_EQ(Rnd(*s), Rnd(*t));
    RndFolge(*s, {0.75f});
    Randomize(*s, 77), Randomize(*t, 77);
    EXPECT_EQ(Rnd(*s), Rnd(*t)) << "a new seed drops what was fed";
    // draws lie in [0, 1) on a grid of 2^-24, and every seventh of the range comes evenly
    int zahl[7] = {};
    for (int i = 0; i < 70000; ++i) {
        const float r = Rnd(*s);
        ASSERT_TRUE(r >= 0.0f && r < 1.0f && r * 16777216.0f == std::floor(r * 16777216.0f)) << r;
        ++zahl[static_cast<int>(r * 7)];
    }
    for (int z : zahl) EXPECT_NEAR(z, 10000, 600);
}

TEST(Regeln, TexteMitIhrenBlanksUndZiehungen) {
    auto s = NeuesSpiel();
    s->AnzahlSpieler = 1, s->MausSchiff = 4, s->Jahr = 2044;
    // port fee, meteor storm, storage fire, strike, then inventions 1 to 11
    RndFolge(*s, {0.5f, 0.25f, 0.75f, GROESSTER_ZUG, 0.0f, 0.5f, 0.125f, 0, 0, 0, 0, 0, 0, 0, GROESSTER_ZUG});
    VORBELEGUNG_VARIABLEN(*s);
    EXPECT_TRUE(s->zufall.folge.empty()) << "fifteen draws, no more";
    // 19; Int(0.5 x 7) + 17; Int(0.25 x 12) + 5; Int(0.75 x 16) + 5; the largest draw of 5..15
    EXPECT_EQ(s->EreignisJahre.w, (std::array<Integer, 5>{19, 20, 8, 17, 15}));
    EXPECT_EQ(s->ForschungsKosten(2), 23000);  // Int(0.5 x 30000) + 8000
    EXPECT_EQ(s->ForschungsKosten(3), 16250);  // Int(0.125 x 50000) + 10000
    EXPECT_EQ(s->ForschungsKosten(11), 1399999);
    EXPECT_EQ(s->ForschungsKosten(12), 0);
    EXPECT_EQ(s->ForschungsRest(1), 8000) << "the cheapest of the first five";
    EXPECT_EQ(s->ForschungsRest(2), 0) << "only players in the game";
    EXPECT_TRUE(s->Jahr == 2000 && s->MausSchiff == -1 && s->SpielerName(7) == "Piraten");
    EXPECT_EQ(s->MeldungText(1), "    -- keine aktuellen Meldungen --    ");
}

TEST(Entfernung, RundungOffsetsUndUntergrenze) {
    auto s = NeuesSpiel();
    Spiel& sp = *s;
    EXPECT_EQ(ENTFERNUNG(sp, 3, 3), 0);
    EXPECT_EQ(ENTFERNUNG(sp, 57, -57), 1) << "the target of a teleport";
    struct Fall { int x, y, abstand, erwartet; };
    const Fall faelle[] = {
        {2, 1, 0, 2},  {2, 1, 1, 3},  {3, 3, 0, 4},  {2, 4, 0, 4},  {5, -3, 0, 6},  // sqrt 5, 5 + 1, 18, 20, 34
        {6, 3, -2, 5}, {35, 5, -1, 34}, {-111, 111, 2, 159}, {1, 0, -2, 2},  // a star beside Sol: the floor of 2
    };
    for (const Fall& f : faelle) {
        Planet& p = sp.Dokument(41);
        p.X = static_cast<Integer>(f.x), p.Y = static_cast<Integer>(f.y), p.Abstand = static_cast<Integer>(f.abstand);
        EXPECT_EQ(ENTFERNUNG(sp, 3, 41), f.erwartet) << f.x << "," << f.y << " offset " << f.abstand;
        EXPECT_EQ(ENTFERNUNG(sp, 41, 3), f.erwartet);
    }
    // one system: the offsets alone, with 2 as the floor; across systems both offsets count
    for (int k = 51; k <= 60; ++k) sp.Dokument(k).X = 40, sp.Dokument(k).Y = -30;
    sp.Dokument(51).Abstand = -2, sp.Dokument(52).Abstand = -1, sp.Dokument(53).Abstand = 2, sp.Dokument(60).Abstand = 2;
    EXPECT_EQ(ENTFERNUNG(sp, 51, 52), 2) << "not 0, not -3";
    EXPECT_EQ(ENTFERNUNG(sp, 53, 60), 4) << "planet 60 is the tenth of system 5";
    EXPECT_EQ(ENTFERNUNG(sp, 53, 53), 0);
    sp.Dokument(41).X = 2, sp.Dokument(41).Y = 1, sp.Dokument(41).Abstand = 2;
    sp.Dokument(62).X = -1, sp.Dokument(62).Y = 2, sp.Dokument(62).Abstand = -1;
    EXPECT_EQ(ENTFERNUNG(sp, 41, 62), 4);  // sqrt 10 = 3.162 + 2 - 1
}

TEST(Planetenliste, DieMitgelieferteUndKaputteListen) {
    std::vector<std::string> eintraege;
    std::string fehler;
    ASSERT_TRUE(PLANETENLISTE_LESEN(std::string(QUORVANT_DATEN_STANDARD) + "/Planetenliste.bin", eintraege, fehler));
    std::set<std::string> namen;
    for (const std::string& e : eintraege) {
        ASSERT_EQ(e.size(), 19u) << e;
        const int abstand = std::stoi(e.substr(16, 3));
        EXPECT_TRUE(abstand >= 1 && abstand <= 157 && e[15] == ' ' && e[0] != ' ') << e;
        namen.insert(OhneGross(e.substr(0, 15)));
    }
    EXPECT_EQ(namen.size(), 400u) << "400 names, unique case and umlauts aside";
    // A missing list is named; a list cut short or broken is refused through the driver (test_treiber).
    const std::string ordner = TempOrdner("planetenliste");
    EXPECT_FALSE(PLANETENLISTE_LESEN(ordner + "/fehlt.bin", eintraege, fehler));
    EXPECT_EQ(fehler, "Die Datei 'Planetenliste.bin' fehlt: " + ordner + "/fehlt.bin");
    std::ofstream(ordner + "/kurz.bin", std::ios::binary) << std::string("\x04\x00Kurz", 6);
    EXPECT_FALSE(PLANETENLISTE_LESEN(ordner + "/kurz.bin", eintraege, fehler));
    EXPECT_EQ(fehler, T("Die Datei 'Planetenliste.bin' ist beschädigt oder zu kurz."));
}

TEST(SterneNeu, WarenNachAbstandVonSol) {
    struct Fall { int e; float r; int ware; };
    const Fall faelle[] = {{6, 0.99f, 1},   {7, std::nextafter(0.30f, 0.0f), 1}, {7, 0.30f, 2}, {29, GROESSTER_ZUG, 4},
                           {30, 0.0f, 1},   {74, 0.85f, 7},  {75, 0.85f, 9},   {99, GROESSTER_ZUG, 10},
                           {100, 0.0f, 3},  {120, 0.0f, 7},  {149, 0.92f, 17}, {150, 0.45f, 16},
                           {157, GROESSTER_ZUG, 20}, {400, 0.05f, 11}};
    for (const Fall& f : faelle) EXPECT_EQ(WARE_FUER_STERN(f.e, f.r), f.ware) << f.e << " " << f.r;
}

TEST(SterneNeu, SpielgroessenUndSaaten) {
    // The smallest and the largest size, with the extreme seeds.
    for (const auto& [n, saat] : {std::pair(50, 1u), std::pair(400, 4294967295u)}) {
        SCOPED_TRACE("N " + std::to_string(n) + ", seed " + std::to_string(saat));
        auto sp = NeuesSpiel(10 * n);
        Spiel& s = *sp;
        Randomize(s, saat);
        ASSERT_TRUE(STERNE_NEU(s));
        EXPECT_EQ(s.Dokument(3).Name, "Sol ");
        for (int sys = 1; sys <= n; ++sys) {
            const Planet& stern = s.Dokument(10 * sys + 1);
            // one trailing blank, none when the name fills 15 columns; sorted without case
            const bool fuenfzehn = stern.Name.size() == 15 && stern.Name.back() != ' ';
            EXPECT_TRUE(fuenfzehn || (stern.Name.back() == ' ' && stern.Name[stern.Name.size() - 2] != ' ')) << stern.Name;
            EXPECT_LE(OhneGross(s.Dokument(std::max(11, 10 * sys - 9)).Name), OhneGross(stern.Name));
            for (int t = 1; t < sys; ++t) {
                const int dx = stern.X - s.Dokument(10 * t + 1).X, dy = stern.Y - s.Dokument(10 * t + 1).Y;
                ASSERT_GE(dx * dx + dy * dy, 7) << stern.Name;
            }
            for (int k = 2; k <= 10; ++k) {
                const Planet& p = s.Dokument(10 * sys + k);
                EXPECT_TRUE(p.Name == stern.Name && p.X == stern.X && p.Y == stern.Y && p.Ware == stern.Ware &&
                            p.Produktion == 0 && p.Preis == 0 && p.Abstand >= -2 && p.Abstand <= 2);
            }
        }
        EXPECT_GE(s.Schiffe(PIRATEN_HQ).Planet, 11) << "each size holds stars far enough for the pirates";
    }
}
