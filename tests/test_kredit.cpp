// The bank and the research money: the dialogs of the main menu and the
// yearly booking of a debt.
#include "hilfe.h"

TEST(Kredit, ImSpielAufnehmenAbzahlenUndJahresbuchung) {
    // Five players: the first borrows in his turn, the others owe 10000, 199,
    // 100 and 1 SD when the loaded year books their debt.
    Spiel s = NeuesSpielZustand(5, 5000);
    const Integer schuld[] = {0, 10000, 199, 100, 1};
    for (int p = 1; p <= 5; ++p) s.Kredit(p) = schuld[p - 1];
    s.Bargeld(5) = 0;
    const TreiberLauf lauf = GeladenSpielen(s,
                                            "key K\nkey ENTER\nkey ENTER\ntype 3000\nkey ENTER\n"    // take 3000
                                            "key K\nkey ENTER\nkey DOWN\nkey ENTER\ntype 1000\nkey ENTER\n"  // pay back 1000
                                            "key F\nkey ENTER\ntype 2500\nkey ENTER\n",              // into research
                                            "kredit");
    const Spiel e = ZustandAus(lauf);
    EXPECT_EQ(e.Kredit(1), 2000);
    EXPECT_EQ(e.Bargeld(1), 5000 + 3000 - 1000 - 2500);
    EXPECT_EQ(e.ForschungsRest(1), s.ForschungsRest(1) - 2500) << "paid into research, without a word";
    // Repayment 0.5 % and interest 1 %, each rounded up.
    EXPECT_EQ(e.Kredit(2), 9950);
    EXPECT_EQ(e.Bargeld(2), 5000 - 50 - 100);
    EXPECT_EQ(e.Kredit(3), 198);
    EXPECT_EQ(e.Bargeld(3), 5000 - 1 - 2);
    EXPECT_EQ(e.Kredit(4), 99);
    EXPECT_EQ(e.Bargeld(4), 5000 - 1 - 1);
    EXPECT_EQ(e.Kredit(5), 0) << "a debt of 1 SD is gone";
    EXPECT_EQ(e.Bargeld(5), -2) << "the bank takes its share from empty pockets";
}

TEST(Kredit, DialogeMitGrenzenUndAblehnungen) {
    struct Fall {
        void (*dialog)(Spiel&);
        const char* skript;
        Integer kredit; Long bargeld; Integer kreditDanach; Long bargeldDanach;
        int y; const char* text; bool allesErfunden = false;
    };
    const Fall faelle[] = {
        // At the limit the prompt takes no digit but 0, and nothing is booked.
        {KREDIT, "key ENTER\nkey 5\nkey ENTER\n", 10000, 5000, 10000, 5000, 690, "Aktueller Kredit: 10000"},
        // No more is paid back than the cash: 301 is cut at its last digit.
        {KREDIT, "key UP\nkey ENTER\ntype 301\nkey ENTER\n", 500, 300, 470, 270, 630, "Kredit abbezahlen"},
        {KREDIT, "key DOWN\nkey ENTER\n", 0, 5000, 0, 5000, 660, "Kein Kredit vorhanden!"},
        {KREDIT, "key DOWN\nkey ENTER\n", 100, 0, 100, 0, 660, "Sie haben kein Geld!"},
        {KREDIT, "key DOWN\nkey ESC\n", 100, 50, 100, 50, 660, ""},
        // With debts in the cash the research prompt stays at 0 and below.
        {FORSCHUNG_FINANZIEREN, "key 5\nkey UP\nkey ENTER\n", 0, -40, 0, -40, 630, "Wie viel?"},
        {FORSCHUNG_FINANZIEREN, "", 0, 5000, 0, 5000, 630, "Keine Erfindung mehr möglich!", true},
    };
    for (const Fall& f : faelle) {
        TestSpiel t(f.skript);
        t.s->Kredit(1) = f.kredit, t.s->Bargeld(1) = f.bargeld;
        for (int k = 1; k <= 11; ++k) t.s->Forschung(k, 1) = f.allesErfunden ? -1 : 0;
        const Long rest = t.s->ForschungsRest(1);
        EXPECT_TRUE(t.laufen(f.dialog)) << f.skript;
        EXPECT_EQ(t.s->Kredit(1), f.kreditDanach) << f.skript;
        EXPECT_EQ(t.s->Bargeld(1), f.bargeldDanach) << f.skript;
        EXPECT_EQ(t.s->ForschungsRest(1), rest) << f.skript;
        EXPECT_EQ(t.textBei(50, f.y), f.text) << f.skript;
    }
}
