// The turn loop, its menu and dispatch, the time limit and the ways out.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "flow/hauptschleife.h"
#include "flow/spielstand.h"
#include "hilfe.h"
#include "screen/ausgabe.h"
#include "state/text.h"

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

TEST(Hauptschleife, ErsteZeileDesMenuesFolgtDemSpieler) {
    Runde ein("");
    ein.spielen();
    EXPECT_EQ(ein.textBei(50, 600), "Weiter zum nächsten Jahr   ");

    Runde zwei("key ENTER", 2);
    zwei.spielen();
    EXPECT_TRUE(zwei.gedruckt(T("Weiter zum nächsten Spieler")));
    EXPECT_EQ(zwei.s->AktSpieler, 2);
    EXPECT_EQ(zwei.s->Jahr, 2000) << "the year waits for the last player";
    EXPECT_EQ(zwei.textBei(50, 600), "Weiter zum nächsten Jahr   ");
    EXPECT_EQ(zwei.textBei(30, 28), "Spieler  Spieler2          ");
}

TEST(Hauptschleife, MenueRundgangMitAussetzen) {
    // A: skip 3 years; the cursor stays on the item; W ends the turn, 4 years run.
    Runde r("key A\nkey ENTER\nkey 3\nkey ENTER\nkey ENTER\nkey ESC\nkey W\nkey ENTER");
    r.spielen();
    EXPECT_EQ(r.s->Jahr, 2004);
    EXPECT_EQ(r.s->AussetzenJahre, 0);
    EXPECT_EQ(r.s->AktSpieler, 1);
    EXPECT_TRUE(r.gedruckt("Wie oft?"));
    EXPECT_EQ(r.textBei(30, 50), "RUNDE   2004") << "the year line of the year processing stays";
    EXPECT_EQ(r.textBei(50, 600), "Weiter zum nächsten Jahr   ") << "the loop waits on the first item again";
}

TEST(Hauptschleife, EscUndUnfertigeMenuepunkteKehrenZurueck) {
    // Each item whose dialog is not there yet returns at once; the cursor stays.
    Runde r("key R\nkey ENTER\nkey D\nkey ENTER\nkey ESC\nkey V\nkey ENTER\nkey U\nkey ENTER");
    r.spielen();
    EXPECT_EQ(r.textBei(50, 600), "Schiff verkaufen           ");
    Runde esc("key S\nkey ENTER\nkey ESC\nkey ESC");  // Esc leaves the status, then the menu
    esc.spielen();
    EXPECT_EQ(esc.textBei(50, 600), "Weiter zum nächsten Jahr   ");
    EXPECT_EQ(esc.s->Jahr, 2000);
}

TEST(Hauptschleife, ZeitlimitBeendetDenZugErstNachDemMenue) {
    Runde r("wait 100500\nkey ESC", 2);
    r.s->Zeitlimit = -1;
    r.s->Rang(2) = 3;
    r.spielen();
    EXPECT_TRUE(r.gedruckt("Zeit ist abgelaufen!"));
    EXPECT_EQ(r.s->AktSpieler, 2);
    EXPECT_EQ(r.s->ZeitRest, 80) << "110 - 10 x rank of the next player";
    EXPECT_EQ(r.textBei(370, 50), "  80");
    EXPECT_TRUE(r.s->tmrZeitAn);

    Runde aus("wait 200000\nkey ESC");
    aus.spielen();
    EXPECT_FALSE(aus.gedruckt("Zeit"));
    EXPECT_EQ(aus.s->Jahr, 2000);
}

TEST(Hauptschleife, SpielBeendenDialog) {
    // ja, then no save: good-bye.
    Runde weg("key E\nkey ENTER\nkey ENTER\nkey N\nkey ENTER");
    weg.spielen();
    EXPECT_TRUE(weg.gedruckt("Auf Wiedersehen!"));
    EXPECT_EQ(weg.s->BeendenNachSichern, -1);
    EXPECT_NE(weg.p->spur().find("music stop"), std::string::npos);

    // Esc at the first question: the game goes on, cursor back on item 1.
    Runde esc("key E\nkey ENTER\nkey ESC");
    esc.s->BeendenNachSichern = -1;
    esc.spielen();
    EXPECT_EQ(esc.s->BeendenNachSichern, 0);
    EXPECT_FALSE(esc.gedruckt("Auf Wiedersehen!"));
    EXPECT_EQ(esc.textBei(50, 600), "Weiter zum nächsten Jahr   ");

    // Esc at the second: quitting stays wanted, saving not; the game goes on.
    Runde zweite("key E\nkey ENTER\nkey ENTER\nkey ESC");
    zweite.spielen();
    EXPECT_EQ(zweite.s->BeendenNachSichern, -1);
    EXPECT_EQ(zweite.s->SichernAmRundenende, 0);
    EXPECT_FALSE(zweite.gedruckt("Auf Wiedersehen!"));
}

TEST(Hauptschleife, BeendenMitSichernSpeichertAmRundenende) {
    Runde r("key E\nkey ENTER\nkey ENTER\nkey ENTER\nkey W\nkey ENTER\ntype Spiel1\nkey ENTER");
    r.s->AnzahlPlaneten = 500;  // the loader takes only a game with a galaxy in play
    for (int n = 11; n <= 510; ++n) r.s->Dokument(n).Ware = 1;  // whose planets produce goods
    for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h) r.s->Schiffe(h).Planet = 11;  // and merchants sail
    r.spielen();
    EXPECT_TRUE(r.gedruckt("Am Ende der Runde wird gespeichert."));
    EXPECT_TRUE(r.gedruckt("Spiel erfolgreich gespeichert."));
    EXPECT_TRUE(r.gedruckt("Auf Wiedersehen!"));
    const std::string datei = r.s->DatenVerzeichnis + "/Spiel1.qvt";
    ASSERT_TRUE(std::filesystem::exists(datei));
    // The save is the state at the start of the year: still 2000.
    Spiel geladen;
    std::ifstream ein(datei, std::ios::binary);
    std::vector<uint8_t> b((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
    std::string fehler;
    ASSERT_TRUE(SPIELSTAND_LESEN(geladen, b, fehler)) << fehler;
    EXPECT_EQ(geladen.Jahr, 2000);
    EXPECT_EQ(geladen.SpielerName(1), "Spieler1");
}

TEST(Hauptschleife, SicherungsauftragUndFensterSchliessen) {
    Runde r("key I\nkey ENTER");
    r.spielen();
    EXPECT_EQ(r.s->SichernAmRundenende, -1);
    EXPECT_TRUE(r.gedruckt("Am Ende der Runde wird gespeichert."));

    Runde ja("close\nanswer yes\nkey ESC");
    ja.spielen();
    EXPECT_EQ(ja.s->SichernAmRundenende, -1);
    EXPECT_EQ(ja.s->BeendenNachSichern, -1);
    EXPECT_NE(ja.p->spur().find("msgbox info Quorvant beenden | Der Spielstand wird am Ende der Runde gespeichert."),
              std::string::npos);

    Runde nein("close\nanswer no\nkey ESC\nkey ESC");
    nein.spielen();
    EXPECT_NE(nein.p->spur().find("-> no"), std::string::npos);
    EXPECT_FALSE(nein.p->skriptAufgebraucht()) << "the program ended at once, the rest of the script unread";
}
