// The three prompts and the input rules, driven by scripted keys.
#include "hilfe.h"

namespace {

std::vector<std::string> Liste(std::initializer_list<const char*> t) {
    std::vector<std::string> v(1);
    for (const char* x : t) v.push_back(T(x));
    return v;
}

Long Auswahl(const std::string& skript, Long vorgabe, const std::vector<std::string>& tasten = Liste({"*"})) {
    TestSpiel t(skript);
    const auto texte = Liste({"Anton", "Berta", "", "Bruno", "Cäsar"});
    EXPECT_TRUE(t.laufen([&](Spiel& s) { AUSWAHL(s, texte, 1, 5, 50, 600, 15, WEISS, vorgabe, tasten); }));
    return t.s->Eingabe;
}

// ZAHL_EINGEBEN at (150, 630) in 5 places; with a stock, ship 8 stands on planet 57 (10 SD a tonne,
// 100 t hold) for the key M.
Long Zahl(const std::string& skript, long long min, long long max, int vorgabe = 0, Long bestand = 0,
          Integer ladung = 0, Long bargeld = 100000) {
    TestSpiel t(skript);
    Spiel& s = *t.s;
    s.Bargeld(1) = bargeld;
    s.Schiffe(8).Planet = 57, s.Schiffe(8).Laderaum = 100, s.Schiffe(8).Ladung = ladung;
    s.Dokument(57).Bestand = bestand, s.Dokument(57).Preis = 10;
    EXPECT_TRUE(t.laufen([&](Spiel& sp) { ZAHL_EINGEBEN(sp, min, max, 150, 630, 15, WEISS, 5, vorgabe, bestand ? 8 : 0); }));
    EXPECT_TRUE(s.Eingabe < 0 || t.textBei(150, 630) == Rechtsbuendig(s.Eingabe, 5)) << "the value as it stands";
    return s.Eingabe;
}

}  // namespace

TEST(JaNein, TastenUndErgebnis) {
    struct Fall { const char* skript; Integer wert; Long eingabe; Integer wertDanach; };
    const Fall faelle[] = {
        {"key ENTER", 0, 2, 0},                  // "nein" confirmed at once
        {"key ENTER", -1, 1, -1},
        {"key J\nkey ENTER", 0, 1, -1},
        {"key N\nkey ENTER", -1, 2, 0},
        {"key UP\nkey ENTER", -1, 2, 0},
        {"key DOWN\nkey DOWN\nkey ENTER", 0, 2, 0},
        {"key X\nkey 5\nkey ENTER", -1, 1, -1},  // other keys do nothing
        {"key N\nkey ESC", -1, -1, 0},           // Esc keeps the value as it stands
    };
    for (const Fall& f : faelle) {
        TestSpiel t(f.skript);
        Integer wert = f.wert;
        ASSERT_TRUE(t.laufen([&](Spiel& s) { JA_NEIN(s, wert, 320, 600, 15, WEISS); })) << f.skript;
        EXPECT_EQ(t.s->Eingabe, f.eingabe) << f.skript;
        EXPECT_EQ(wert, f.wertDanach) << f.skript;
        EXPECT_EQ(t.s->TasteDa, -1) << "Enter and Esc leave the key noted";
        EXPECT_EQ(t.textBei(320, 600), f.wertDanach == -1 ? "  ja" : "nein");
    }
}

TEST(Auswahl, BlaetternUndAnfangsbuchstaben) {
    const auto eigene = Liste({"X", "Y", "", "Z", "W"});
    struct Fall { const char* skript; Long vorgabe; bool eigeneTasten; Long eingabe; };
    const Fall faelle[] = {
        {"key UP\nkey ENTER", 5, false, 5},   {"key DOWN\nkey ENTER", 1, false, 1},  // held at the ends
        {"key DOWN\nkey ENTER", 4, false, 2}, {"key UP\nkey ENTER", 2, false, 4},    // empty entries skipped
        {"key ENTER", 3, false, 4},            {"key ESC", 2, false, -1},
        {"key B\nkey ENTER", 1, false, 2},    {"key B\nkey B\nkey ENTER", 1, false, 4},
        {"key B\nkey B\nkey B\nkey ENTER", 1, false, 2},  // the search wraps
        {"key A\nkey ENTER", 1, false, 1},    {"key Q\nkey ENTER", 2, false, 2},
        {"key Z\nkey ENTER", 1, true, 4},     {"key Q\nkey ENTER", 1, true, 1},
        {"key W\nkey UP\nkey ENTER", 1, true, 5},
    };
    for (const Fall& f : faelle)
        EXPECT_EQ(Auswahl(f.skript, f.vorgabe, f.eigeneTasten ? eigene : Liste({"*"})), f.eingabe) << f.skript << " from " << f.vorgabe;
}

TEST(Auswahl, KlickAufEinSchiffNurDesSpielersAmZug) {
    // A news row names a ship: the other player's is passed over, his own chooses and confirms item 5.
    TestSpiel t("click 600 260\nclick 600 285");
    Spiel& s = *t.s;
    s.Bildschirm = "HAUPT";
    s.Schiffe(4).Planet = 3, s.Schiffe(4).Besitzer = 2;
    s.Schiffe(5).Planet = 3, s.Schiffe(5).Besitzer = 1;
    s.KlickFelder(1) = KlickFeld{510, 255, 990, 275, 4, -1};
    s.KlickFelder(2) = KlickFeld{510, 280, 990, 300, 5, -1};
    std::vector<std::string> texte(1), tasten(1);
    for (int i = 1; i <= 12; ++i) texte.push_back(s.MenueText(i)), tasten.push_back(s.MenueTasten(i));
    Long vorgabe = 1;
    ASSERT_TRUE(t.laufen([&](Spiel& sp) { AUSWAHL(sp, texte, 1, 12, 50, 600, 15, WEISS, vorgabe, tasten); }));
    EXPECT_TRUE(s.Eingabe == 2 && vorgabe == 2 && s.MausSchiff == 5);
}

TEST(ZahlEingeben, ZiffernPfeileUndTasteM) {
    EXPECT_EQ(Zahl("key 7\nkey 9\nkey ENTER", 1, 50), 7) << "79 is above Max and refused";
    EXPECT_EQ(Zahl("key 0\nkey 3\nkey ENTER", 1, 50), 3) << "a refused first digit keeps the flag";
    EXPECT_EQ(Zahl("key 4\nkey 2\nkey ENTER", 1, 50), 42);
    EXPECT_EQ(Zahl("key ENTER", 1, 50), 1) << "starts at Min";
    EXPECT_EQ(Zahl("key ENTER", 1, 50, 20), 20) << "or at the proposal";
    EXPECT_EQ(Zahl("key 2\nkey 5\nkey UP\nkey 3\nkey ENTER", 0, 1000), 3) << "Up sets the first-digit flag";
    EXPECT_EQ(Zahl("key UP\nkey UP\nkey ENTER", 0, 1, 1), 1);
    EXPECT_EQ(Zahl("key SPACE\nkey ENTER", 5, 9), 0) << "Blank ignores Min";
    EXPECT_EQ(Zahl("key BACKSPACE\nkey ENTER", 0, 1000, 345), 34);
    EXPECT_EQ(Zahl("key 3\nkey ESC", 0, 9), -1);
    EXPECT_EQ(Zahl("key M\nkey ENTER", 0, 9, 4), 4) << "M is for a ship only";
    EXPECT_EQ(Zahl("key M\nkey ENTER", 0, 9, 0, 4599), 45) << "the stock, in whole tonnes";
    EXPECT_EQ(Zahl("key M\nkey ENTER", 0, 9, 0, 12345, 30), 70) << "the free hold";
    EXPECT_EQ(Zahl("key M\nkey ENTER", 0, 9, 0, 12345, 30, 505), 50) << "the cash";
    // Up holds at Max and Down at Min, also where M, Blank or Backspace left the value outside.
    EXPECT_EQ(Zahl("key M\nkey UP\nkey ENTER", 0, 9, 0, 4599), 9);
    EXPECT_EQ(Zahl("key M\nkey DOWN\nkey ENTER", 0, 9, 0, 4599), 44);
    EXPECT_EQ(Zahl("key SPACE\nkey DOWN\nkey ENTER", 5, 9), 5);
    EXPECT_EQ(Zahl("key SPACE\nkey UP\nkey ENTER", 5, 9), 1) << "Up only knows Max";
    EXPECT_EQ(Zahl("key BACKSPACE\nkey DOWN\nkey ENTER", 50, 90, 60), 50);
    EXPECT_EQ(Zahl("key BACKSPACE\nkey UP\nkey ENTER", 50, 90, 60), 7);
}

TEST(Ereignisse, FunktionstastenErreichenDieEingabeNicht) {
    TestSpiel t("key F5\nkey F4\nkey F3\nkey ENTER");
    Spiel& s = *t.s;
    s.Dokument(11).Ware = 0;  // no map yet: F3 is a plain key
    Integer wert = -1;
    ASSERT_TRUE(t.laufen([&](Spiel& sp) { JA_NEIN(sp, wert, 320, 600, 15, WEISS); }));
    EXPECT_TRUE(s.SoundAn == 0 && s.ProduktionAn == 0);
    EXPECT_EQ(s.Eingabe, 1) << "F3 before the map is ignored by the prompt, Enter confirms";

    TestSpiel u("key F5\nkey F5\nkey F4\nkey ENTER");
    u.s->Dokument(11).Ware = 3;
    wert = -1;
    u.p->spurAufzeichnen(true);
    ASSERT_TRUE(u.laufen([&](Spiel& sp) { JA_NEIN(sp, wert, 320, 600, 15, WEISS); }));
    EXPECT_TRUE(u.s->SoundAn == -1 && u.s->ProduktionAn == 0);
    for (const char* z : {"music stop", "picture 472 22 Sound", "box 472 22 488 40 0"})
        EXPECT_NE(u.p->spur().find(z), std::string::npos) << z;
    EXPECT_NE(u.bildschirm().find("picture\t454\t22\tProduktion"), std::string::npos);
}

TEST(Ausgabe, TextLoeschtSeinRechteckUndZaehltZeichen) {
    TestSpiel t;
    Spiel& s = *t.s;
    t.laufen([&](Spiel& sp) {
        TEXT_AUSGEBEN(sp, T("Größe"), 15, 100, 100, GRUEN);
        TEXT_AUSGEBEN(sp, "     ", 15, 100, 100, WEISS);
        TEXT_AUSGEBEN(sp, "Zahl" + Rechtsbuendig(42, 6), 15, 100, 200, WEISS);
    });
    EXPECT_EQ(t.textBei(100, 100), "") << "blanks of the same length erase a text";
    EXPECT_EQ(t.textBei(100, 200), "Zahl    42");
    int w = 0, h = 0;
    s.plattform->textMessen(T("Größe"), 15, w, h);
    EXPECT_EQ(w, 60) << "ö and ß are one character each";
    EXPECT_EQ(Rechtsbuendig(-5, 4), "  -5");
    EXPECT_EQ(Rechtsbuendig(123456, 3), " 123456") << "a number wider than its field is printed in full";
}
