#include <algorithm>
#include <cmath>

#include "views/lagerbestand.h"
#include "screen/ausgabe.h"
#include "state/text.h"

void LAGERBESTAND(Spiel& s) {
    const int p = s.AktSpieler;
    BOX(s, 22, 92, 488, 548, SCHWARZ);
    TEXT_AUSGEBEN(s, "LAGERBESTAND", 15, 50, 105, CYAN);
    TEXT_AUSGEBEN(s, T("Vermögen:  ") + std::to_string(s.Bargeld(p)), 15, 30, 130, GRUEN);
    if (s.Kredit(p) > 0) TEXT_AUSGEBEN(s, "Kredit:  " + std::to_string(s.Kredit(p)), 15, 300, 130, GRUEN);
    TEXT_AUSGEBEN(s, "Lagerbestand:", 15, 30, 160, GRUEN);
    bool leer = true;
    for (int g = 1; g <= 20; ++g) {
        const int menge = s.Lager(g, p);
        if (menge <= 0) continue;
        leer = false;
        const int y = 165 + 18 * g;
        std::string name = s.WarenName(g);
        name += Space(14 - static_cast<int>(name.size()));
        TEXT_AUSGEBEN(s, name + ":" + Rechtsbuendig(menge, 5), 12, 50, y, GRUEN);
        // The row of icons grows with the square root of the stock.
        const int n = std::min(20, static_cast<int>(std::sqrt(static_cast<double>(menge))));
        for (int k = 1; k <= n; ++k) BILD(s, s.WarenName(g), 260 + 10 * k, y);
    }
    if (leer) TEXT_AUSGEBEN(s, "- Lager ist leer! -", 15, 50, 190, GRUEN);
}
