// The headless driver: its script, its delivery rule and what it writes.
#include "hilfe.h"

TEST(Treiber, LieferungNurNachKurzemSchlafUndVirtuelleZeit) {
    HeadlessPlattform p;
    std::string fehler;
    ASSERT_TRUE(p.skriptLaden("key A\nwait 30\nclick 10 20\n", fehler));
    Ereignis e;
    p.schlafen(1000), p.pumpen();
    EXPECT_FALSE(p.ereignisHolen(e)) << "never after a long pause";
    p.schlafen(5), p.box(0, 0, 1, 1, 0), p.pumpen();
    EXPECT_FALSE(p.ereignisHolen(e)) << "never by the pump inside a print";
    p.schlafen(5), p.pumpen();
    ASSERT_TRUE(p.ereignisHolen(e) && e.art == EreignisArt::KeyDown && e.code == 'A');
    ASSERT_TRUE(p.ereignisHolen(e) && e.art == EreignisArt::KeyPress && e.code == 'a');
    EXPECT_FALSE(p.ereignisHolen(e)) << "one input at a time";
    int polls = 0;
    for (; !p.ereignisHolen(e); ++polls) p.schlafen(5), p.pumpen();
    EXPECT_EQ(polls, 6) << "30 ms after the key, at the poll that reaches it";
    EXPECT_TRUE(e.art == EreignisArt::MouseUp && e.x == 10 && e.y == 20);
    p.schlafen(5);
    EXPECT_THROW(p.pumpen(), ProgrammEnde) << "the script is used up and the game polls again";
}

TEST(Treiber, UnbekannteSkriptzeileNenntDieZeile) {
    TreiberLauf lauf = Treiber("key ENTER\n# fine\nhop 3\n");
    EXPECT_EQ(lauf.status, 2);
    EXPECT_NE(lauf.fehler.find("hop 3"), std::string::npos);
    EXPECT_EQ(Treiber("key SHIFT\n").status + Treiber("click 3\n").status, 4);
}

TEST(Treiber, ZustandsdateiWirdGelesenUndGleichGeschrieben) {
    TreiberLauf lauf = Treiber(NeuesSpielSkript(1, 100) + "close\nanswer no\nkey ESC\n");
    ASSERT_EQ(lauf.status, 0) << lauf.fehler;
    EXPECT_NE(lauf.trace.find("msgbox question Quorvant beenden | Soll der Spielstand gespeichert werden? -> no"),
              std::string::npos) << "closing without a save ends at once";
    const Spiel s = ZustandAus(lauf);
    EXPECT_EQ(SPIELSTAND_BYTES(s), lauf.state) << "reading and writing go through the same items";
}

TEST(Spielstand, FesteBytesAnIhrenStellen) {
    Spiel s;
    s.AnzahlSpieler = 3, s.SpielerName(1) = "Anna", s.SpielerName(7) = "Piraten", s.Lager(3, 2) = 0x0102;
    s.Lager(2, 3) = 0x0304, s.Bargeld(2) = 0x11223344;
    Schiff& f = s.Schiffe(2);
    f.Name = "Frachter   ", f.Typ = "SST ", f.Treibstoff = 2.5f, f.Fracht(1) = 0x0A0B;
    f.Fracht(2) = 0x0C0D, f.Fracht(25) = 0x0E0F, f.Partner = 0x0607, f.Supersprit = -1;
    Planet& p = s.Dokument(2);
    p.Name = "Wega ", p.X = 0x1357, p.Y = 0x2468, p.Bestand = 0x01020304;
    s.DockSchiffe(1, 2) = 17;  // player 2's docks: 17, 4, 9
    s.DockSchiffe(2, 2) = 4, s.DockSchiffe(3, 2) = 9, s.Statistik(21, 1) = 0x0A0B0C0D;
    s.Forschung(15, 2) = 0x0506, s.ForschungsKosten(15) = 0x07080910;
    const std::vector<uint8_t> b = SPIELSTAND_BYTES(s);
    auto i16 = [&](size_t o) { return static_cast<int16_t>(b.at(o) | b.at(o + 1) << 8); };
    auto i32 = [&](size_t o) { return static_cast<int32_t>(b.at(o) | b.at(o + 1) << 8 | b.at(o + 2) << 16 | b.at(o + 3) << 24); };
    // Items 1-5, then the seven names with their lengths: "Anna" and "Piraten".
    const size_t lager = 4 + 4 + 2 + 2 + 2 + 7 * 2 + 4 + 7;
    EXPECT_EQ(i16(14), 4);
    EXPECT_EQ(i16(lager + 2 * (20 + 2)), 0x0102) << "good 3 of player 2: the goods of a player together";
    EXPECT_EQ(i16(lager + 2 * (40 + 1)), 0x0304);
    EXPECT_EQ(i32(lager + 240 + 4), 0x11223344);
    const size_t schiff2 = lager + 240 + 24 + 3 * 12 + 2 + 82;  // slot 1 is free: two empty strings
    EXPECT_EQ(i32(schiff2 + 4), 0x40200000) << "Treibstoff 2.5 as a single";
    EXPECT_EQ(i16(schiff2 + 12), 11);
    EXPECT_EQ(i16(schiff2 + 25), 4);
    EXPECT_EQ(b[schiff2 + 27], 'S');
    const size_t fracht = schiff2 + 12 + 2 + 11 + 2 + 4;
    EXPECT_EQ(i16(fracht), 0x0A0B);
    EXPECT_EQ(i16(fracht + 2), 0x0C0D);
    EXPECT_EQ(i16(fracht + 48), 0x0E0F);
    EXPECT_EQ(i16(fracht + 50 + 4), 0x0607) << "Partner behind Ladung and Laderaum";
    EXPECT_EQ(i16(fracht + 50 + 14), -1) << "Supersprit closes the record";
    const size_t planeten = schiff2 + 82 + 15 + 1009 * 82 + 2;
    const size_t wega = planeten + 20;
    EXPECT_EQ(i16(wega), 5);
    EXPECT_EQ(i16(wega + 7 + 2), 0x1357) << "X before Y";
    EXPECT_EQ(i16(wega + 7 + 4), 0x2468);
    EXPECT_EQ(i32(wega + 7 + 6), 0x01020304);
    const size_t docks = wega + 20 + 5 + 4008 * 20 + 3 * 40;
    EXPECT_EQ(i16(docks + 14), 17) << "player 2's seven places follow player 1's";
    EXPECT_EQ(i16(docks + 16), 4);
    EXPECT_EQ(i16(docks + 18), 9);
    const size_t statistik = docks + 84 + 10 + 2 + 10;
    EXPECT_EQ(i32(statistik + 4 * 20), 0x0A0B0C0D);
    const size_t forschung = statistik + 504 + 24;
    EXPECT_EQ(i16(forschung + 2 * (15 + 14)), 0x0506);
    EXPECT_EQ(i32(forschung + 180 + 56), 0x07080910);
    EXPECT_EQ(b.size(), forschung + 180 + 60);
}

TEST(Spielstand, BeschaedigteDatenWerdenAbgewiesen) {
    const TreiberLauf lauf = Treiber(NeuesSpielSkript(1, 100));
    Spiel s;
    s.Jahr = 1234;
    std::string fehler;
    EXPECT_FALSE(SPIELSTAND_LESEN(s, std::vector<uint8_t>(lauf.state.begin(), lauf.state.end() - 2), fehler));
    EXPECT_EQ(Utf8(fehler), "Der Spielstand ist beschädigt und kann nicht geladen werden.");
    EXPECT_EQ(s.Jahr, 1234) << "a damaged file leaves the game as it was";
    std::vector<uint8_t> kaputt = lauf.state;
    kaputt[12] = 99;  // AnzahlSpieler
    EXPECT_FALSE(SPIELSTAND_LESEN(s, kaputt, fehler));
}

TEST(Treiber, OhneSternlisteUndMusikEineKlareMeldung) {
    const std::string leer = TempOrdner("ohne-daten");
    TreiberLauf lauf = Treiber(NeuesSpielSkript(1, 5000), "--seed 7", leer);
    EXPECT_EQ(lauf.status, 1) << "the program ends instead of playing with garbage";
    EXPECT_NE(lauf.fehler.find("Planetenliste.bin"), std::string::npos) << lauf.fehler;
    EXPECT_NE(lauf.screen.find("Planetenliste.bin"), std::string::npos) << lauf.screen;
    EXPECT_NE(lauf.trace.find("Musik/EinleitungQuorvant.mid' nicht gefunden!"), std::string::npos)
        << "a missing piece costs one message box";
    // A star list cut short is refused the same way.
    const std::string kurz = TempOrdner("kurze-liste");
    std::ofstream(kurz + "/Planetenliste.bin", std::ios::binary) << std::string("\x13\x00Sonne", 7);
    TreiberLauf lauf2 = Treiber(NeuesSpielSkript(1, 5000), "--seed 7", kurz);
    EXPECT_EQ(lauf2.status, 1);
    EXPECT_NE(lauf2.fehler.find("Planetenliste.bin"), std::string::npos) << lauf2.fehler;
}
