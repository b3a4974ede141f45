// The bank and the research money: the dialogs of the main menu and the
// yearly booking of a debt.
#include "economy/forschung.h"
#include "economy/kredit.h"
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

TEST(Kredit, GrenzeUndAblehnungen) {
    {  // At the limit the prompt takes no digit but 0, and nothing is booked.
        TestSpiel t("key ENTER\nkey 5\nkey ENTER\n");
        t.s->Kredit(1) = 10000;
        EXPECT_TRUE(t.laufen([](Spiel& s) { KREDIT(s); }));
        EXPECT_EQ(t.s->Kredit(1), 10000);
        EXPECT_EQ(t.s->Bargeld(1), 5000);
        EXPECT_EQ(t.textBei(50, 690), "Aktueller Kredit: 10000");
    }
    {  // Paying back no more than the cash: 301 is cut at its last digit.
        TestSpiel t("key UP\nkey ENTER\ntype 301\nkey ENTER\n");
        t.s->Kredit(1) = 500;
        t.s->Bargeld(1) = 300;
        EXPECT_TRUE(t.laufen([](Spiel& s) { KREDIT(s); }));
        EXPECT_EQ(t.s->Kredit(1), 470);
        EXPECT_EQ(t.s->Bargeld(1), 270);
        EXPECT_EQ(t.textBei(50, 630), "Kredit abbezahlen");
        EXPECT_EQ(t.textBei(50, 690), "Kredit wurde abbezahlt!");
    }
    struct Fall {
        Integer kredit;
        Long bargeld;
        const char* text;
    };
    for (const Fall f : {Fall{0, 5000, "Kein Kredit vorhanden!"}, Fall{100, 0, "Sie haben kein Geld!"}}) {
        TestSpiel t("key DOWN\nkey ENTER\n");
        t.s->Kredit(1) = f.kredit;
        t.s->Bargeld(1) = f.bargeld;
        EXPECT_TRUE(t.laufen([](Spiel& s) { KREDIT(s); }));
        EXPECT_EQ(t.textBei(50, 660), f.text);
        EXPECT_EQ(t.s->Kredit(1), f.kredit);
        EXPECT_EQ(t.s->Bargeld(1), f.bargeld);
    }
    {  // Esc leaves the choice with nothing done.
        TestSpiel t("key DOWN\nkey ESC\n");
        EXPECT_TRUE(t.laufen([](Spiel& s) { KREDIT(s); }));
        EXPECT_EQ(t.textBei(50, 660), "");
    }
}

TEST(Forschung, NichtsZuZahlen) {
    {  // With debts in the cash the prompt stays at 0.
        TestSpiel t("key 5\nkey UP\nkey ENTER\n");
        t.s->Bargeld(1) = -40;
        const Long rest = t.s->ForschungsRest(1);
        EXPECT_TRUE(t.laufen([](Spiel& s) { FORSCHUNG_FINANZIEREN(s); }));
        EXPECT_EQ(t.s->Bargeld(1), -40);
        EXPECT_EQ(t.s->ForschungsRest(1), rest);
    }
    {  // Everything invented.
        TestSpiel t;
        for (int k = 1; k <= 11; ++k) t.s->Forschung(k, 1) = -1;
        EXPECT_TRUE(t.laufen([](Spiel& s) { FORSCHUNG_FINANZIEREN(s); }));
        EXPECT_EQ(t.textBei(50, 630), "Keine Erfindung mehr möglich!");
        EXPECT_EQ(t.s->Bargeld(1), 5000);
    }
}
