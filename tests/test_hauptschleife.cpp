// The turn loop, its menu and dispatch, the time limit and the ways out.

#include "hilfe.h"

namespace {

// Runs the turn loop of a prepared game until the script is used up or the
// program ends; the trace is kept.
struct Runde : TestSpiel {
    explicit Runde(const std::string& skript, int spieler = 1) : TestSpiel(skript) {
        p->spurAufzeichnen(true);
        s->AnzahlSpieler = static_cast<Integer>(spieler);
        for (int i = 1; i <= spieler; ++i) {
            s->SpielerName(i) = "Spieler" + std::to_string(i);
            s->Rang(i) = 1;
        }
        s->DatenVerzeichnis = TempOrdner("runde");
    }
    void spielen() {
        laufen([](Spiel& sp) {
            HAUPTBILDSCHIRM(sp, true);
            SPIELSCHLEIFE(sp);
        });
    }
    bool gedruckt(const std::string& text) const { return p->spur().find(Utf8(text)) != std::string::npos; }
};

}  // namespace

TEST(Hauptschleife, MenueFolgtDemSpielerUndKehrtZurueck) {
    // With two players the first line offers the next player; the year waits for the last.
    Runde zwei("key ENTER", 2);
    zwei.spielen();
    EXPECT_TRUE(zwei.gedruckt(T("Weiter zum nächsten Spieler")));
    EXPECT_TRUE(zwei.s->AktSpieler == 2 && zwei.s->Jahr == 2000);
    EXPECT_EQ(zwei.textBei(50, 600), "Weiter zum nächsten Jahr   ");
    EXPECT_EQ(zwei.textBei(30, 28), "Spieler  Spieler2          ");
    // A: skip 3 years; the cursor stays on the item; W ends the turn, 4 years run.
    Runde r("key A\nkey ENTER\nkey 3\nkey ENTER\nkey ENTER\nkey ESC\nkey W\nkey ENTER");
    r.spielen();
    EXPECT_TRUE(r.s->Jahr == 2004 && r.s->AussetzenJahre == 0 && r.s->AktSpieler == 1 && r.gedruckt("Wie oft?"));
    EXPECT_EQ(r.textBei(30, 50), "RUNDE   2004") << "the year line of the year processing stays";
    EXPECT_EQ(r.textBei(50, 600), "Weiter zum nächsten Jahr   ") << "the loop waits on the first item again";
    // Dialogs that end at once leave the cursor on their item; Esc leaves the status, then the menu.
    Runde k("key R\nkey ENTER\nkey D\nkey ENTER\nkey ESC\nkey V\nkey ENTER\nkey U\nkey ENTER");
    k.spielen();
    EXPECT_EQ(k.textBei(50, 600), "Schiff verkaufen           ");
    Runde esc("key S\nkey ENTER\nkey ESC\nkey ESC");
    esc.spielen();
    EXPECT_EQ(esc.textBei(50, 600), "Weiter zum nächsten Jahr   ");
    EXPECT_EQ(esc.s->Jahr, 2000);
}

TEST(Hauptschleife, ZeitlimitBeendetDenZugErstNachDemMenue) {
    Runde r("wait 100500\nkey ESC", 2);
    r.s->Zeitlimit = -1, r.s->Rang(2) = 3;
    r.spielen();
    EXPECT_TRUE(r.gedruckt("Zeit ist abgelaufen!") && r.s->AktSpieler == 2 && r.s->tmrZeitAn);
    EXPECT_EQ(r.s->ZeitRest, 80) << "110 - 10 x rank of the next player";
    EXPECT_EQ(r.textBei(370, 50), "  80");

    Runde aus("wait 200000\nkey ESC");
    aus.spielen();
    EXPECT_FALSE(aus.gedruckt("Zeit"));
    EXPECT_EQ(aus.s->Jahr, 2000);
}

TEST(Hauptschleife, SpielBeendenDialog) {
    // ja, then no save: good-bye.
    Runde weg("key E\nkey ENTER\nkey ENTER\nkey N\nkey ENTER");
    weg.spielen();
    EXPECT_TRUE(weg.gedruckt("Auf Wiedersehen!") && weg.s->BeendenNachSichern == -1 && weg.gedruckt("music stop"));
    // Esc at the first question: the game goes on, cursor back on item 1.
    Runde esc("key E\nkey ENTER\nkey ESC");
    esc.s->BeendenNachSichern = -1;
    esc.spielen();
    EXPECT_EQ(esc.s->BeendenNachSichern, 0);
    EXPECT_EQ(esc.textBei(50, 600), "Weiter zum nächsten Jahr   ");
    // Esc at the second: quitting stays wanted, saving not; the game goes on.
    Runde zweite("key E\nkey ENTER\nkey ENTER\nkey ESC");
    zweite.spielen();
    EXPECT_TRUE(zweite.s->BeendenNachSichern == -1 && zweite.s->SichernAmRundenende == 0 && !zweite.gedruckt("Auf Wiedersehen!"));
    // I asks for a save at the end of the round; so does closing the window with "yes".
    Runde i("key I\nkey ENTER");
    i.spielen();
    EXPECT_TRUE(i.s->SichernAmRundenende == -1 && i.gedruckt("Am Ende der Runde wird gespeichert."));
    Runde ja("close\nanswer yes\nkey ESC");
    ja.spielen();
    EXPECT_TRUE(ja.s->SichernAmRundenende == -1 && ja.s->BeendenNachSichern == -1);
    EXPECT_TRUE(ja.gedruckt("msgbox info Quorvant beenden | Der Spielstand wird am Ende der Runde gespeichert."));
}

TEST(Hauptschleife, BeendenMitSichernSpeichertAmRundenende) {
    Runde r("key E\nkey ENTER\nkey ENTER\nkey ENTER\nkey W\nkey ENTER\ntype Spiel1\nkey ENTER");
    r.s->AnzahlPlaneten = 500;  // the loader takes only a game with a galaxy in play
    for (int n = 11; n <= 510; ++n) r.s->Dokument(n).Ware = 1;  // whose planets produce goods
    for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h) r.s->Schiffe(h).Planet = 11;  // and merchants sail
    r.spielen();
    for (const char* t : {"Am Ende der Runde wird gespeichert.", "Spiel erfolgreich gespeichert.", "Auf Wiedersehen!"})
        EXPECT_TRUE(r.gedruckt(t)) << t;
    // The save is the state at the start of the year: still 2000.
    std::ifstream ein(r.s->DatenVerzeichnis + "/Spiel1.qvt", std::ios::binary);
    TreiberLauf datei;
    datei.state.assign(std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>());
    const Spiel geladen = ZustandAus(datei);
    EXPECT_TRUE(geladen.Jahr == 2000 && geladen.SpielerName(1) == "Spieler1");
}

// A save that cannot be written says so in whole words, all of it, and the
// game goes on; the old files stay as they were.
TEST(Hauptschleife, MisslungenesSichernSagtEsGanz) {
    Runde r("key I\nkey ENTER\nkey W\nkey ENTER\ntype voll\nkey ENTER\nwait 5000\nkey ESC");
    std::filesystem::create_directories(r.s->DatenVerzeichnis + "/voll.qvz.neu");  // nothing can be written there
    r.spielen();
    const std::string& spur = r.p->spur();
    const size_t a = spur.find("print 50 630 15 255 Der Spielstand konnte nicht\n");
    const size_t b = spur.find(Utf8(T("print 50 660 15 255 geschrieben werden (Datenträger voll\n")));
    const size_t c = spur.find(Utf8(T("print 50 690 15 255 oder schreibgeschützt?).\n")));
    EXPECT_TRUE(a != std::string::npos && a < b && b < c && c != std::string::npos) << spur.substr(spur.find("voll"));
    EXPECT_FALSE(std::filesystem::exists(r.s->DatenVerzeichnis + "/voll.qvt"));
    EXPECT_EQ(r.s->Jahr, 2001) << "the year ran all the same";
}
