#include "views/hilfe.h"

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "state/text.h"

namespace {

constexpr int X1 = 30, Y1 = 20, X2 = 994, Y2 = 738;

void SeiteZeigen(Spiel& s, size_t nr) {
    const auto& seiten = HILFE_SEITEN();
    const HilfeSeite& seite = seiten[nr];
    UEBERLAGERUNG_RAHMEN(s, X1, Y1, X2, Y2, T(seite.titel), CYAN);
    for (size_t i = 0; i < seite.zeilen.size() && i < static_cast<size_t>(HILFE_ZEILEN); ++i)
        TEXT_AUSGEBEN(s, T(seite.zeilen[i]), 15, X1 + 20, Y1 + 45 + 24 * static_cast<int>(i), WEISS);
    TEXT_AUSGEBEN(s,
                  "Seite " + std::to_string(nr + 1) + "/" + std::to_string(seiten.size()) +
                      T("  ·  Bild ab: weiter  ·  Bild auf: zurück  ·  Esc: schließen"),
                  15, X1 + 20, Y2 - 32, GELB);
}

}  // namespace

void HILFE(Spiel& s) {
    Ueberlagerung ueber(s);
    const size_t anzahl = HILFE_SEITEN().size();
    size_t seite = 0;
    for (;;) {
        SeiteZeigen(s, seite);
        const int t = ueber.taste();
        if (t == Taste::BildAb || t == Taste::Runter || t == Taste::Rechts) seite = (seite + 1) % anzahl;
        else if (t == Taste::BildAuf || t == Taste::Hoch || t == Taste::Links) seite = (seite + anzahl - 1) % anzahl;
        else break;
    }
}
