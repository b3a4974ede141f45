// The world of a new game: the generator, the rule tables, the star map
// and the measure of distance.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "hilfe.h"
#include "state/regeln.h"
#include "state/spiel.h"
#include "state/sterne.h"
#include "state/text.h"
#include "state/zufall.h"

namespace {

constexpr float ZWEI_HOCH_24 = 16777216.0f;
const float GROESSTER_ZUG = std::nextafter(1.0f, 0.0f);  // 1 - 2^-24

std::unique_ptr<Spiel> NeuesSpiel() {
    auto s = std::make_unique<Spiel>();
    s->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    return s;
}

// One entry of the star list as the file holds it.
std::string Eintrag(const std::string& name, int abstand) {
    std::string text = name;
    text.resize(15, ' ');
    text += ' ';
    const std::string zahl = std::to_string(abstand);
    text += std::string(3 - zahl.size(), ' ') + zahl;
    return text;
}

void ListeSchreiben(const std::string& pfad, const std::vector<std::string>& eintraege) {
    std::ofstream aus(pfad, std::ios::binary);
    for (const std::string& e : eintraege) {
        aus.put(static_cast<char>(e.size() & 0xFF));
        aus.put(static_cast<char>(e.size() >> 8));
        aus << e;
    }
}

// Names compared as the sorted star list does: without case, umlauts as
// their plain letters.
std::string OhneGross(const std::string& cp1252) {
    std::string r;
    for (unsigned char c : cp1252) {
        if (c >= 'A' && c <= 'Z') c = static_cast<unsigned char>(c + 32);
        switch (c) {
            case 0xC4: case 0xE4: r += 'a'; break;  // Ä ä
            case 0xD6: case 0xF6: r += 'o'; break;  // Ö ö
            case 0xDC: case 0xFC: r += 'u'; break;  // Ü ü
            case 0xDF: r += "ss"; break;             // ß
            default: r += static_cast<char>(c);
        }
    }
    return r;
}

std::string OhneBlanks(std::string t) {
    while (!t.empty() && t.back() == ' ') t.pop_back();
    return t;
}

// The distances from Sol in the project's star list, by name.
std::map<std::string, int> Listenabstaende() {
    std::vector<std::string> eintraege;
    std::string fehler;
    EXPECT_TRUE(PLANETENLISTE_LESEN(std::string(QUORVANT_DATEN_STANDARD) + "/Planetenliste.bin", eintraege, fehler))
        << fehler;
    std::map<std::string, int> r;
    for (const std::string& e : eintraege) r[OhneBlanks(e.substr(0, 15))] = std::stoi(e.substr(16, 3));
    return r;
}

}  // namespace

// --- the generator ------------------------------------------------------------

TEST(Zufall, SaatUndErsteZuege) {
    auto s = NeuesSpiel();
    Randomize(*s, 0x12345678u);
    EXPECT_EQ(s->zufall.zustand, (0x345678u ^ 0x123456u)) << "low 24 bits mixed with the seed shifted by 8";

    Randomize(*s, 1);
    EXPECT_EQ(s->zufall.zustand, 1u);
    EXPECT_EQ(Rnd(*s), 12640960 / ZWEI_HOCH_24);
    EXPECT_EQ(Rnd(*s), 8124035 / ZWEI_HOCH_24);
    EXPECT_EQ(Rnd(*s), 4294458 / ZWEI_HOCH_24);
    EXPECT_EQ(Rnd(*s), 3961109 / ZWEI_HOCH_24);
    EXPECT_EQ(s->zufall.zustand, 3961109u);

    // the same seed, the same game; another seed, another
    auto a = NeuesSpiel(), b = NeuesSpiel(), c = NeuesSpiel();
    Randomize(*a, 77);
    Randomize(*b, 77);
    Randomize(*c, 78);
    bool andere = false;
    for (int i = 0; i < 100; ++i) {
        const float x = Rnd(*a);
        EXPECT_EQ(x, Rnd(*b));
        andere = andere || x != Rnd(*c);
    }
    EXPECT_TRUE(andere);
}

TEST(Zufall, ZuegeLiegenInNullBisUnterEins) {
    auto s = NeuesSpiel();
    Randomize(*s, 2024);
    float kleinster = 1, groesster = 0;
    for (int i = 0; i < 200000; ++i) {
        const float r = Rnd(*s);
        ASSERT_GE(r, 0.0f);
        ASSERT_LT(r, 1.0f);
        ASSERT_EQ(r * ZWEI_HOCH_24, std::floor(r * ZWEI_HOCH_24)) << "a whole multiple of 2^-24";
        kleinster = std::min(kleinster, r);
        groesster = std::max(groesster, r);
    }
    EXPECT_LT(kleinster, 0.001f);
    EXPECT_GT(groesster, 0.999f);
}

TEST(Zufall, GefuetterteFolgeKommtZuerst) {
    auto s = NeuesSpiel();
    Randomize(*s, 1);
    RndFolge(*s, {0.5f, 0.25f, GROESSTER_ZUG});
    EXPECT_EQ(Rnd(*s), 0.5f);
    EXPECT_EQ(Rnd(*s), 0.25f);
    EXPECT_EQ(ZufallGanz(*s, 1, 6), 6);
    EXPECT_EQ(Rnd(*s), 12640960 / ZWEI_HOCH_24) << "then the generator goes on where it stood";

    RndFolge(*s, {0.75f, 0.75f});
    Randomize(*s, 1);
    EXPECT_EQ(Rnd(*s), 12640960 / ZWEI_HOCH_24) << "a new seed drops what was fed";
}

TEST(Zufall, ZufallGanzBleibtInSeinenGrenzen) {
    auto s = NeuesSpiel();
    struct Bereich {
        long a, b;
    };
    const Bereich bereiche[] = {{1, 1},       {1, 6},           {-2, 2},          {17, 23},
                                {11, 4010},   {8000, 27999},    {600000, 1399999}, {0, 16777215},
                                {0, 16777216}, {-5, 40000000}, {1, 2000000000}};
    for (const Bereich& r : bereiche) {
        SCOPED_TRACE(std::to_string(r.a) + ".." + std::to_string(r.b));
        RndFolge(*s, {0.0f, GROESSTER_ZUG, 0.5f});
        EXPECT_EQ(ZufallGanz(*s, r.a, r.b), r.a);
        const long oben = ZufallGanz(*s, r.a, r.b);
        if (r.b - r.a < 16777216) {
            EXPECT_EQ(oben, r.b) << "the largest draw gives b, never b + 1";
        } else {
            // beyond 2^24 values single precision no longer holds every number
            EXPECT_LE(oben, r.b);
            EXPECT_GE(oben, r.b - (r.b - r.a) / 4000000);
        }
        const long mitte = ZufallGanz(*s, r.a, r.b);
        EXPECT_GE(mitte, r.a);
        EXPECT_LE(mitte, r.b);
    }

    // every value of a small range comes, evenly
    Randomize(*s, 99);
    int zahl[7] = {};
    for (int i = 0; i < 70000; ++i) {
        const long w = ZufallGanz(*s, 1, 7);
        ASSERT_GE(w, 1);
        ASSERT_LE(w, 7);
        ++zahl[w - 1];
    }
    for (int z : zahl) EXPECT_NEAR(z, 10000, 600);
}

// --- the rule tables --------------------------------------------------------------

TEST(Regeln, TabellenMitIhrenBlanks) {
    auto s = NeuesSpiel();
    s->AnzahlSpieler = 3;
    Randomize(*s, 5);
    VORBELEGUNG_VARIABLEN(*s);

    EXPECT_EQ(s->MenueText(1), T("Weiter zum nächsten Spieler"));
    for (int i = 1; i <= 12; ++i) EXPECT_EQ(s->MenueText(i).size(), 27u) << "menu entry " << i;
    EXPECT_EQ(s->MenueText(12), "Spiel beenden              ");
    std::string tasten;
    for (int i = 1; i <= 12; ++i) tasten += s->MenueTasten(i);
    EXPECT_EQ(tasten, "WRDVLFKSUAIE");

    EXPECT_EQ(s->SchiffKlasse(1), "Frachter   ");
    EXPECT_EQ(s->SchiffKlasse(1).size(), 11u);
    for (int i = 2; i <= 6; ++i) EXPECT_EQ(s->SchiffKlasse(i).size(), 12u) << "ship type " << i;
    EXPECT_EQ(s->SchiffKlasse(6), T("Großfrachter"));
    EXPECT_EQ(s->SchiffKuerzel(6), "XXL");
    EXPECT_EQ(s->SchiffPreis(6), 10000);

    for (int i = 1; i <= 5; ++i) EXPECT_EQ(s->DockAuftrag(i).size(), 20u) << "dock job " << i;
    EXPECT_EQ(s->DockAuftrag(5), "DTW-Filter-Einbau   ");

    EXPECT_EQ(s->RangName(1), "Spieler");
    EXPECT_EQ(s->RangName(6), T("Großherr"));
    EXPECT_EQ(s->RangName(9), "Gott");
    EXPECT_EQ(s->RangSchwelle(9), 3000000);

    EXPECT_EQ(s->WarenName(1), "Getreide");
    EXPECT_EQ(s->WarenName(4), T("Gewürze"));
    EXPECT_EQ(s->WarenName(4).size(), 7u);
    EXPECT_EQ(s->WarenName(20), "Golgo-Pelze");
    EXPECT_EQ(s->GrundPreis(20), 170);
    for (int g = 1; g <= 20; ++g) {
        EXPECT_EQ(s->Preis(g), s->GrundPreis(g));
        EXPECT_EQ(s->AltPreis(g), -1);
        EXPECT_EQ(s->Bedarf(g), 0);
        if (g > 1) {
            EXPECT_GT(s->GrundPreis(g), s->GrundPreis(g - 1)) << "goods by rising price";
        }
    }

    EXPECT_EQ(s->RoemZahl(0), "X");
    EXPECT_EQ(s->RoemZahl(8), "VIII");
    EXPECT_EQ(s->RoemZahl(9), "IX");
}

TEST(Regeln, VorgabenEinesSpiels) {
    auto s = NeuesSpiel();
    s->AnzahlSpieler = 2;
    s->MausSchiff = 4;
    s->StatusSpalte = 3;
    s->Komponenten = 2;
    s->Jahr = 2044;
    Randomize(*s, 5);
    VORBELEGUNG_VARIABLEN(*s);

    EXPECT_EQ(s->MausSchiff, -1);
    EXPECT_EQ(s->MausPlanet, -1);
    EXPECT_EQ(s->MausStern, -1);
    EXPECT_EQ(s->StatusSpalte, 10);
    EXPECT_EQ(s->Jahr, 2000);
    EXPECT_EQ(s->SpielerName(7), "Piraten");
    EXPECT_EQ(s->Schiffe(PIRATEN_HQ).Besitzer, 7);
    EXPECT_EQ(s->MeldungText(1), "    -- keine aktuellen Meldungen --    ");
    EXPECT_EQ(s->MeldungAnzahl, 1);
    EXPECT_EQ(s->Komponenten, 0);
    ASSERT_GE(s->AuswahlTasten.size(), 2u);
    EXPECT_EQ(s->AuswahlTasten[1], "*");
}

TEST(Regeln, GezogeneTabellenInIhrenBereichen) {
    const long kosten[11][2] = {{8000, 27999},   {8000, 37999},   {10000, 59999},   {10000, 79999},
                                {15000, 114999}, {70000, 149999}, {70000, 149999},  {70000, 199999},
                                {70000, 139999}, {200000, 599999}, {600000, 1399999}};
    std::set<Long> verschiedene;
    for (uint32_t saat = 1; saat <= 300; ++saat) {
        auto s = NeuesSpiel();
        s->AnzahlSpieler = static_cast<Integer>(saat % 7);  // 0: before a load
        Randomize(*s, saat * 2654435761u);
        VORBELEGUNG_VARIABLEN(*s);

        EXPECT_EQ(s->EreignisJahre(1), 19);
        EXPECT_GE(s->EreignisJahre(2), 17);
        EXPECT_LE(s->EreignisJahre(2), 23);
        EXPECT_GE(s->EreignisJahre(3), 5);
        EXPECT_LE(s->EreignisJahre(3), 16);
        EXPECT_GE(s->EreignisJahre(4), 5);
        EXPECT_LE(s->EreignisJahre(4), 20);
        EXPECT_GE(s->EreignisJahre(5), 5);
        EXPECT_LE(s->EreignisJahre(5), 15);
        for (int k = 1; k <= 11; ++k) {
            EXPECT_GE(s->ForschungsKosten(k), kosten[k - 1][0]) << "invention " << k;
            EXPECT_LE(s->ForschungsKosten(k), kosten[k - 1][1]) << "invention " << k;
        }
        for (int k = 12; k <= 15; ++k) EXPECT_EQ(s->ForschungsKosten(k), 0);
        verschiedene.insert(s->ForschungsKosten(11));

        const Long kleinste = std::min({s->ForschungsKosten(1), s->ForschungsKosten(2), s->ForschungsKosten(3),
                                        s->ForschungsKosten(4), s->ForschungsKosten(5)});
        EXPECT_EQ(s->ForschungsRest(1), kleinste);
        EXPECT_LE(s->ForschungsRest(1), 27999);
        for (int p = 2; p <= 6; ++p)
            EXPECT_EQ(s->ForschungsRest(p), p <= s->AnzahlSpieler ? kleinste : 0) << "player " << p;
    }
    EXPECT_GT(verschiedene.size(), 250u);
}

TEST(Regeln, ZiehungenInIhrerReihenfolge) {
    auto s = NeuesSpiel();
    s->AnzahlSpieler = 1;
    // port fee, meteor storm, storage fire, strike, then inventions 1 to 11
    RndFolge(*s, {0.5f, 0.25f, 0.75f, GROESSTER_ZUG, 0.0f, 0.5f, 0.125f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f,
                  0.0f, GROESSTER_ZUG});
    VORBELEGUNG_VARIABLEN(*s);
    EXPECT_EQ(s->EreignisJahre(2), 20);  // Int(0.5 x 7) + 17
    EXPECT_EQ(s->EreignisJahre(3), 8);   // Int(0.25 x 12) + 5
    EXPECT_EQ(s->EreignisJahre(4), 17);  // Int(0.75 x 16) + 5
    EXPECT_EQ(s->EreignisJahre(5), 15);
    EXPECT_EQ(s->ForschungsKosten(1), 8000);
    EXPECT_EQ(s->ForschungsKosten(2), 23000);  // Int(0.5 x 30000) + 8000
    EXPECT_EQ(s->ForschungsKosten(3), 16250);  // Int(0.125 x 50000) + 10000
    EXPECT_EQ(s->ForschungsKosten(10), 200000);
    EXPECT_EQ(s->ForschungsKosten(11), 1399999);
    EXPECT_EQ(s->ForschungsRest(1), 8000);
    EXPECT_TRUE(s->zufall.folge.empty()) << "fifteen draws, no more";
}

// --- the measure of distance ---------------------------------------------------

TEST(Entfernung, SonderfaelleUndUntergrenze) {
    auto s = NeuesSpiel();
    Spiel& sp = *s;
    sp.Dokument(3).Abstand = 0;
    sp.Dokument(3).X = 0;
    sp.Dokument(3).Y = 0;
    EXPECT_EQ(ENTFERNUNG(sp, 3, 3), 0);
    EXPECT_EQ(ENTFERNUNG(sp, 3, -5), 1) << "the target of a teleport";
    EXPECT_EQ(ENTFERNUNG(sp, 57, -57), 1);

    // one system: offsets add, with 2 as the floor
    auto system = [&](int n, int x, int y) {
        for (int k = 1; k <= 10; ++k) {
            sp.Dokument(10 * n + k).X = static_cast<Integer>(x);
            sp.Dokument(10 * n + k).Y = static_cast<Integer>(y);
        }
    };
    system(5, 40, -30);
    sp.Dokument(51).Abstand = -2;
    sp.Dokument(52).Abstand = -1;
    sp.Dokument(53).Abstand = 2;
    sp.Dokument(60).Abstand = 2;
    EXPECT_EQ(ENTFERNUNG(sp, 51, 52), 2) << "not 0, not -3";
    EXPECT_EQ(ENTFERNUNG(sp, 51, 53), 2);
    EXPECT_EQ(ENTFERNUNG(sp, 52, 60), 2);
    EXPECT_EQ(ENTFERNUNG(sp, 53, 60), 4) << "planet 60 is the tenth of system 5";
    EXPECT_EQ(ENTFERNUNG(sp, 53, 53), 0) << "the same planet, whatever its offset";

    // across systems: the map distance and both offsets
    EXPECT_EQ(ENTFERNUNG(sp, 3, 51), 48);  // 50 - 2
    EXPECT_EQ(ENTFERNUNG(sp, 53, 3), 52);
    EXPECT_EQ(ENTFERNUNG(sp, 3, 51), ENTFERNUNG(sp, 51, 3));

    // a star beside Sol: 1 unit on the map and an offset of -2 is lifted to 2
    system(1, 1, 0);
    sp.Dokument(11).Abstand = -2;
    sp.Dokument(12).Abstand = 1;
    EXPECT_EQ(ENTFERNUNG(sp, 3, 11), 2);
    EXPECT_EQ(ENTFERNUNG(sp, 3, 12), 2);
    EXPECT_EQ(ENTFERNUNG(sp, 11, 51), ENTFERNUNG(sp, 51, 11));
}

TEST(Entfernung, RundetZurNaechstenGanzenZahl) {
    // Map positions and offsets are whole numbers, so a square root is
    // either whole or clear of a half; the cases lie close to the turn.
    auto s = NeuesSpiel();
    Spiel& sp = *s;
    sp.Dokument(3) = Planet{};
    struct Fall {
        int x, y, abstand, erwartet;
    };
    const Fall faelle[] = {
        {2, 1, 0, 2},    // sqrt 5 = 2.236
        {2, 1, 1, 3},    // 3.236
        {3, 3, 0, 4},    // sqrt 18 = 4.243
        {2, 4, 0, 4},    // sqrt 20 = 4.472
        {-4, 2, 1, 5},   // 5.472
        {5, 2, 0, 5},    // sqrt 29 = 5.385
        {5, -3, 0, 6},   // sqrt 34 = 5.831
        {6, 3, 0, 7},    // sqrt 45 = 6.708
        {6, 3, -2, 5},   // 4.708
        {35, 5, -1, 34}, // sqrt 1250 = 35.355 - 1
        {-111, 111, 2, 159},  // sqrt 24642 = 156.98 + 2
    };
    for (const Fall& f : faelle) {
        Planet& p = sp.Dokument(41);
        p.X = static_cast<Integer>(f.x);
        p.Y = static_cast<Integer>(f.y);
        p.Abstand = static_cast<Integer>(f.abstand);
        EXPECT_EQ(ENTFERNUNG(sp, 3, 41), f.erwartet) << f.x << "," << f.y << " offset " << f.abstand;
        EXPECT_EQ(ENTFERNUNG(sp, 41, 3), f.erwartet);
    }

    // between two stars, both offsets count
    sp.Dokument(41).X = 2;
    sp.Dokument(41).Y = 1;
    sp.Dokument(41).Abstand = 2;
    sp.Dokument(52).X = -1;
    sp.Dokument(52).Y = 2;
    sp.Dokument(52).Abstand = -1;
    EXPECT_EQ(ENTFERNUNG(sp, 41, 52), 4);  // sqrt 10 = 3.162 + 2 - 1
}

// --- the star list --------------------------------------------------------------

TEST(Planetenliste, DieMitgelieferteListe) {
    std::vector<std::string> eintraege;
    std::string fehler;
    ASSERT_TRUE(PLANETENLISTE_LESEN(std::string(QUORVANT_DATEN_STANDARD) + "/Planetenliste.bin", eintraege, fehler))
        << fehler;
    ASSERT_EQ(eintraege.size(), 400u);
    std::set<std::string> namen;
    bool voll = false;
    for (const std::string& e : eintraege) {
        ASSERT_EQ(e.size(), 19u) << e;
        EXPECT_EQ(e[15], ' ');
        const int abstand = std::stoi(e.substr(16, 3));
        EXPECT_GE(abstand, 1);
        EXPECT_LE(abstand, 157);
        EXPECT_NE(e[0], ' ');
        namen.insert(OhneGross(OhneBlanks(e.substr(0, 15))));
        voll = voll || e[14] != ' ';
    }
    EXPECT_EQ(namen.size(), 400u) << "names unique, case and umlauts aside";
    EXPECT_TRUE(voll) << "one name fills all 15 columns";
}

TEST(Planetenliste, FehlendeUndKaputteDateienWerdenAbgelehnt) {
    const std::string ordner = TempOrdner("planetenliste");
    std::vector<std::string> eintraege;
    std::string fehler;

    const std::string fehlt = ordner + "/gibt-es-nicht.bin";
    EXPECT_FALSE(PLANETENLISTE_LESEN(fehlt, eintraege, fehler));
    EXPECT_EQ(fehler, "Die Datei 'Planetenliste.bin' fehlt: " + fehlt);

    const std::string kaputt = T("Die Datei 'Planetenliste.bin' ist beschädigt oder zu kurz.");
    std::vector<std::string> liste;
    for (int i = 0; i < 400; ++i) liste.push_back(Eintrag("Stern" + std::to_string(i), 10 + i % 140));

    std::vector<std::string> zuWenig(liste.begin(), liste.begin() + 399);
    ListeSchreiben(ordner + "/399.bin", zuWenig);
    EXPECT_FALSE(PLANETENLISTE_LESEN(ordner + "/399.bin", eintraege, fehler));
    EXPECT_EQ(fehler, kaputt);
    EXPECT_TRUE(eintraege.empty());

    ListeSchreiben(ordner + "/leer.bin", {});
    EXPECT_FALSE(PLANETENLISTE_LESEN(ordner + "/leer.bin", eintraege, fehler));
    EXPECT_EQ(fehler, kaputt);

    ListeSchreiben(ordner + "/400.bin", liste);
    {
        std::ifstream ein(ordner + "/400.bin", std::ios::binary);
        std::string alles((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
        std::ofstream(ordner + "/abgeschnitten.bin", std::ios::binary) << alles.substr(0, alles.size() - 5);
        std::ofstream(ordner + "/halbe-laenge.bin", std::ios::binary) << alles.substr(0, alles.size() - 20);
    }
    EXPECT_FALSE(PLANETENLISTE_LESEN(ordner + "/abgeschnitten.bin", eintraege, fehler));
    EXPECT_EQ(fehler, kaputt);
    EXPECT_FALSE(PLANETENLISTE_LESEN(ordner + "/halbe-laenge.bin", eintraege, fehler));
    EXPECT_EQ(fehler, kaputt);

    liste[123] = "Kurz";
    ListeSchreiben(ordner + "/kurzer-eintrag.bin", liste);
    EXPECT_FALSE(PLANETENLISTE_LESEN(ordner + "/kurzer-eintrag.bin", eintraege, fehler));
    EXPECT_EQ(fehler, kaputt);

    liste[123] = Eintrag("Wieder gut", 50);
    ListeSchreiben(ordner + "/400.bin", liste);
    EXPECT_TRUE(PLANETENLISTE_LESEN(ordner + "/400.bin", eintraege, fehler)) << fehler;
    EXPECT_EQ(eintraege.size(), 400u);
    EXPECT_EQ(eintraege[123], Eintrag("Wieder gut", 50));
}

TEST(Planetenliste, OhneListeBeginntKeinSpiel) {
    // The map says why; the program start shows it (see the driver's test).
    auto s = NeuesSpiel();
    s->ProgrammVerzeichnis = TempOrdner("ohne-liste");
    s->AnzahlPlaneten = 500;
    std::string fehler;
    EXPECT_FALSE(STERNE_NEU(*s, fehler));
    EXPECT_EQ(fehler, "Die Datei 'Planetenliste.bin' fehlt: " + s->ProgrammVerzeichnis + "/Planetenliste.bin");

    s->ProgrammVerzeichnis = TempOrdner("kurze-liste");
    ListeSchreiben(s->ProgrammVerzeichnis + "/Planetenliste.bin", {Eintrag("Wega", 20)});
    EXPECT_FALSE(STERNE_NEU(*s, fehler));
    EXPECT_EQ(fehler, T("Die Datei 'Planetenliste.bin' ist beschädigt oder zu kurz."));
}

// --- a new galaxy --------------------------------------------------------------------

TEST(SterneNeu, WarenNachAbstandVonSol) {
    const float knapp = std::nextafter(0.30f, 0.0f);
    EXPECT_EQ(WARE_FUER_STERN(0, 0.99f), 1);
    EXPECT_EQ(WARE_FUER_STERN(6, 0.99f), 1) << "below 7 only the first good";
    EXPECT_EQ(WARE_FUER_STERN(7, knapp), 1);
    EXPECT_EQ(WARE_FUER_STERN(7, 0.30f), 2) << "strictly below the bound";
    EXPECT_EQ(WARE_FUER_STERN(7, 0.65f), 4);
    EXPECT_EQ(WARE_FUER_STERN(29, GROESSTER_ZUG), 4);
    EXPECT_EQ(WARE_FUER_STERN(30, GROESSTER_ZUG), 7);
    EXPECT_EQ(WARE_FUER_STERN(30, 0.0f), 1);
    EXPECT_EQ(WARE_FUER_STERN(50, 0.5f), 5);
    EXPECT_EQ(WARE_FUER_STERN(74, 0.85f), 7);
    EXPECT_EQ(WARE_FUER_STERN(75, 0.85f), 9);
    EXPECT_EQ(WARE_FUER_STERN(99, GROESSTER_ZUG), 10);
    EXPECT_EQ(WARE_FUER_STERN(100, 0.0f), 3);
    EXPECT_EQ(WARE_FUER_STERN(119, GROESSTER_ZUG), 13);
    EXPECT_EQ(WARE_FUER_STERN(120, 0.0f), 7);
    EXPECT_EQ(WARE_FUER_STERN(149, 0.92f), 17);
    EXPECT_EQ(WARE_FUER_STERN(150, 0.0f), 10);
    EXPECT_EQ(WARE_FUER_STERN(150, 0.45f), 16);
    EXPECT_EQ(WARE_FUER_STERN(157, GROESSTER_ZUG), 20);
    EXPECT_EQ(WARE_FUER_STERN(400, 0.05f), 11);
}

TEST(SterneNeu, JedeSpielgroesseMitVielenSaaten) {
    const std::map<std::string, int> abstand = Listenabstaende();
    std::vector<std::string> datei;
    std::string fehler;
    ASSERT_TRUE(PLANETENLISTE_LESEN(std::string(QUORVANT_DATEN_STANDARD) + "/Planetenliste.bin", datei, fehler));
    auto vonSol = [&](const Spiel& s, int planet) {
        const auto it = abstand.find(OhneBlanks(s.Dokument(planet).Name));
        EXPECT_NE(it, abstand.end()) << s.Dokument(planet).Name;
        return it == abstand.end() ? -1 : it->second;
    };

    int ohneHq = 0, spiele = 0;
    for (int n : {50, 80, 100, 120, 150, 200, 300, 400}) {
        for (uint32_t saat : {1u, 2u, 3u, 42u, 1000u, 65535u, 123456789u, 4294967295u}) {
            SCOPED_TRACE("N " + std::to_string(n) + ", seed " + std::to_string(saat));
            auto sp = NeuesSpiel();
            Spiel& s = *sp;
            s.AnzahlPlaneten = static_cast<Integer>(10 * n);
            Randomize(s, saat);
            ASSERT_TRUE(STERNE_NEU(s));
            ++spiele;

            EXPECT_EQ(s.Dokument(3).Name, "Sol ");
            EXPECT_EQ(s.Dokument(3).X, 0);
            EXPECT_EQ(s.Dokument(3).Y, 0);
            EXPECT_GE(s.Zufallswert, 0.0f);
            EXPECT_LT(s.Zufallswert, 1.0f);

            // the first n stars of the list, in the order of their names
            std::multiset<std::string> erwartet, gefunden;
            for (int i = 0; i < n; ++i) erwartet.insert(OhneBlanks(datei[static_cast<size_t>(i)].substr(0, 15)));
            for (int sys = 1; sys <= n; ++sys) {
                const Planet& stern = s.Dokument(10 * sys + 1);
                gefunden.insert(OhneBlanks(stern.Name));
                const bool fuenfzehn = stern.Name.size() == 15 && stern.Name.back() != ' ';
                const bool einBlank = stern.Name.size() >= 2 && stern.Name.back() == ' ' &&
                                      stern.Name[stern.Name.size() - 2] != ' ';
                EXPECT_TRUE(fuenfzehn || einBlank) << "'" << stern.Name << "'";
                if (sys > 1) {
                    EXPECT_LE(OhneGross(s.Dokument(10 * sys - 9).Name), OhneGross(stern.Name)) << stern.Name;
                }
            }
            EXPECT_EQ(gefunden, erwartet);

            for (int sys = 1; sys <= n; ++sys) {
                const Planet& stern = s.Dokument(10 * sys + 1);
                const int e = vonSol(s, 10 * sys + 1);
                // on its ring, rounded down, and inside the map
                const double r = std::hypot(stern.X, stern.Y);
                EXPECT_LE(std::abs(r - e), 1.42) << stern.Name;
                EXPECT_LE(std::abs(stern.X), 158);
                EXPECT_LE(std::abs(stern.Y), 158);
                EXPECT_LE(r, 157 + 1.42);
                for (int t = 1; t < sys; ++t) {
                    const Planet& alt = s.Dokument(10 * t + 1);
                    const int dx = stern.X - alt.X, dy = stern.Y - alt.Y;
                    ASSERT_GE(dx * dx + dy * dy, 7) << stern.Name << " and " << alt.Name;
                }
                // the good by the distance from Sol
                const int bis[][3] = {{7, 1, 1},     {30, 1, 4},    {75, 1, 7},   {100, 1, 10},
                                      {120, 3, 13}, {150, 7, 17}, {1000, 10, 20}};
                for (const auto& zeile : bis)
                    if (e < zeile[0]) {
                        EXPECT_GE(stern.Ware, zeile[1]) << stern.Name << e;
                        EXPECT_LE(stern.Ware, zeile[2]) << stern.Name << e;
                        break;
                    }
                // ten planets, one star
                for (int k = 2; k <= 10; ++k) {
                    const Planet& p = s.Dokument(10 * sys + k);
                    EXPECT_EQ(p.Name, stern.Name);
                    EXPECT_EQ(p.X, stern.X);
                    EXPECT_EQ(p.Y, stern.Y);
                    EXPECT_EQ(p.Ware, stern.Ware);
                    EXPECT_EQ(p.Produktion, 0);
                    EXPECT_EQ(p.Preis, 0);
                }
            }
            for (int p = 11; p <= s.AnzahlPlaneten + 10; ++p) {
                EXPECT_GE(s.Dokument(p).Abstand, -2);
                EXPECT_LE(s.Dokument(p).Abstand, 2);
            }
            if (s.AnzahlPlaneten + 11 <= MAX_PLANETEN) {
                EXPECT_TRUE(s.Dokument(s.AnzahlPlaneten + 11).Name.empty()) << "no planet beyond the game";
            }

            for (int i = 1; i <= 5; ++i) {
                const int p = s.KomponentenPlanet(i);
                ASSERT_GE(p, 11);
                ASSERT_LE(p, s.AnzahlPlaneten + 10);
                EXPECT_LT(vonSol(s, p), 71);
            }
            for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h) {
                const int p = s.Schiffe(h).Planet;
                ASSERT_GE(p, 11);
                ASSERT_LE(p, s.AnzahlPlaneten + 10);
                EXPECT_GE(vonSol(s, p), 40);
            }
            const int hq = s.Schiffe(PIRATEN_HQ).Planet;
            if (hq == 0) {
                ++ohneHq;
            } else {
                ASSERT_GE(hq, 11);
                ASSERT_LE(hq, s.AnzahlPlaneten + 10);
                EXPECT_GT(vonSol(s, hq), 89);
            }
        }
    }
    EXPECT_EQ(ohneHq, 0) << "each size holds stars beyond 89, so the search finds one";
    EXPECT_EQ(spiele, 64);
}

TEST(SterneNeu, GleicheSaatGleicheGalaxie) {
    auto a = NeuesSpiel(), b = NeuesSpiel(), c = NeuesSpiel();
    for (Spiel* s : {a.get(), b.get(), c.get()}) s->AnzahlPlaneten = 1000;
    Randomize(*a, 31337);
    Randomize(*b, 31337);
    Randomize(*c, 31338);
    ASSERT_TRUE(STERNE_NEU(*a));
    ASSERT_TRUE(STERNE_NEU(*b));
    ASSERT_TRUE(STERNE_NEU(*c));
    EXPECT_TRUE(a->Dokument == b->Dokument);
    EXPECT_TRUE(a->KomponentenPlanet == b->KomponentenPlanet);
    EXPECT_EQ(a->Schiffe(PIRATEN_HQ).Planet, b->Schiffe(PIRATEN_HQ).Planet);
    EXPECT_FALSE(a->Dokument == c->Dokument);
    EXPECT_EQ(Rnd(*a), Rnd(*b)) << "both drew alike";

    // a 400-system game uses every entry; a 15-character name keeps no blank
    auto v = NeuesSpiel();
    v->AnzahlPlaneten = 4000;
    Randomize(*v, 8);
    VORBELEGUNG_VARIABLEN(*v);
    ASSERT_TRUE(STERNE_NEU(*v));
    int volle = 0;
    for (int sys = 1; sys <= 400; ++sys) {
        const std::string& name = v->Dokument(10 * sys + 1).Name;
        if (name.size() == 15 && name.back() != ' ') {
            ++volle;
            EXPECT_EQ(PlanetenName(*v, 10 * sys + 3), name + "III");
        }
    }
    EXPECT_GE(volle, 1);
    EXPECT_EQ(PlanetenName(*v, 3), "Sol III");
}

// A small galaxy of ten stars on rings six units apart, so that every angle
// fits and the draws can be counted one by one.
TEST(SterneNeu, ZiehungenInIhrerReihenfolge) {
    const std::string ordner = TempOrdner("zehn-sterne");
    const int abstaende[10] = {40, 46, 52, 58, 64, 70, 76, 82, 88, 100};
    std::vector<std::string> liste;
    for (int i = 0; i < 10; ++i) liste.push_back(Eintrag(std::string("Stern ") + static_cast<char>('A' + i), abstaende[i]));
    for (int i = 10; i < 400; ++i) liste.push_back(Eintrag("Rest " + std::to_string(i), 50));

    auto galaxie = [&](int hqZug, float hqWert) {
        auto sp = NeuesSpiel();
        Spiel& s = *sp;
        s.ProgrammVerzeichnis = ordner;
        s.AnzahlPlaneten = 100;
        std::vector<float> z;
        z.push_back(0.5f);                                          // Zufallswert
        for (int i = 0; i < 10; ++i) z.push_back(i / 16.0f);        // angles
        for (int i = 0; i < 10; ++i) z.push_back(GROESSTER_ZUG);    // goods: the last column
        z.push_back(0.9f);                                          // component 1: planet 101 is too far...
        z.push_back(0.5f);                                          // ...then planet 61
        for (int i = 0; i < 4; ++i) z.push_back(0.0f);              // components 2-5: planet 11
        for (int i = 0; i < 6; ++i) z.push_back(0.25f);             // merchants: planet 36
        // the headquarters: draws up to the one that finds it, at most 1000
        const int hqZuege = hqZug >= 1 && hqZug <= 1000 ? hqZug : 1000;
        for (int i = 1; i <= hqZuege; ++i) z.push_back(i == hqZug ? hqWert : 0.0f);
        for (int p = 0; p < 100; ++p) z.push_back(static_cast<float>(p % 5) / 5.0f);  // offsets -2..2
        RndFolge(s, z);
        EXPECT_TRUE(STERNE_NEU(s));
        return sp;
    };

    ListeSchreiben(ordner + "/Planetenliste.bin", liste);
    auto s = galaxie(999, 0.95f);
    EXPECT_EQ(s->Zufallswert, 0.5f);
    for (int sys = 1; sys <= 10; ++sys) {
        const Planet& p = s->Dokument(10 * sys + 1);
        const float a = static_cast<float>(sys - 1) / 16.0f * 10000.0f;
        EXPECT_EQ(p.X, static_cast<int>(std::floor(static_cast<float>(abstaende[sys - 1]) * std::cos(a))));
        EXPECT_EQ(p.Y, static_cast<int>(std::floor(static_cast<float>(abstaende[sys - 1]) * std::sin(a))));
        EXPECT_EQ(p.Ware, WARE_FUER_STERN(abstaende[sys - 1], GROESSTER_ZUG));
    }
    EXPECT_EQ(s->KomponentenPlanet(1), 61);
    EXPECT_EQ(s->KomponentenPlanet(5), 11);
    EXPECT_EQ(s->Schiffe(HAENDLER_ERSTES).Planet, 36);
    EXPECT_EQ(s->Schiffe(HAENDLER_LETZTES).Planet, 36);
    EXPECT_EQ(s->Schiffe(PIRATEN_HQ).Planet, 106) << "found at the 999th draw";
    for (int p = 11; p <= 110; ++p) EXPECT_EQ(s->Dokument(p).Abstand, (p - 11) % 5 - 2) << p;
    EXPECT_TRUE(s->zufall.folge.empty()) << "every fed draw taken";

    s = galaxie(1000, 0.95f);
    EXPECT_EQ(s->Schiffe(PIRATEN_HQ).Planet, 0) << "the 1000th draw ends the search, whatever it gave";
    for (int p = 11; p <= 110; ++p) EXPECT_EQ(s->Dokument(p).Abstand, (p - 11) % 5 - 2) << p;

    EXPECT_TRUE(s->zufall.folge.empty());
}
