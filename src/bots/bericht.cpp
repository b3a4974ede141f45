// One row of figures per year: what the players own and are worth, the
// fleets by type, the pirates and the market.
#include <string>

#include "bots/computerspieler.h"
#include "state/codes.h"
#include "year/jahresende.h"

namespace {

// The type code without its blanks: SST, TST, FSS, XS, TSR, XXL.
std::string Kuerzel(int typ) {
    std::string k;
    for (const char* c = TypCode(typ); *c; ++c)
        if (*c != ' ') k += *c;
    return k;
}

}  // namespace

std::string BERICHT_KOPF(int spieler) {
    std::string k = "jahr";
    for (int p = 1; p <= spieler; ++p) {
        const std::string n = std::to_string(p);
        k += ",bargeld" + n + ",bewertung" + n + ",kredit" + n + ",rang" + n + ",erfindungen" + n + ",piraten_besiegt" + n;
    }
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) k += ",schiffe_" + Kuerzel(t);
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) k += ",gebaut_" + Kuerzel(t);
    k += ",piraten,piraten_wartend,hq_planet,hq_schaden,komponenten";
    for (int g = 1; g <= ANZAHL_WAREN; ++g) k += ",preis" + std::to_string(g);
    return k + "\n";
}

std::string BERICHT_ZEILE(const Spiel& s, const std::vector<long>& gebaut) {
    std::string z = std::to_string(s.Jahr);
    for (int p = 1; p <= s.AnzahlSpieler; ++p) {
        int erf = 0;
        for (int k = 1; k <= ANZAHL_ERFINDUNGEN; ++k) erf += Erfunden(s, k, p) ? 1 : 0;
        z += "," + std::to_string(s.Bargeld(p)) + "," + std::to_string(BEWERTUNG(s, p)) + "," + std::to_string(s.Kredit(p)) + "," +
             std::to_string(s.Rang(p)) + "," + std::to_string(erf) + "," + std::to_string(s.Statistik(STAT_PIRATEN_BESIEGT, p));
    }
    long typen[ANZAHL_SCHIFFSTYPEN + 1] = {};
    long piraten = 0, wartend = 0;  // new pirates may wait above HoechstesSchiff
    for (int i = 1; i < SCHIFF_GRENZE; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch)) continue;
        if (IstPirat(sch)) {
            ++(i <= s.HoechstesSchiff ? piraten : wartend);
            continue;
        }
        for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t)
            if (sch.Typ == TypCode(t)) ++typen[t];
    }
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) z += "," + std::to_string(typen[t]);
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) z += "," + std::to_string(gebaut[static_cast<size_t>(t)]);
    const Schiff& hq = s.Schiffe(PIRATEN_HQ);
    z += "," + std::to_string(piraten) + "," + std::to_string(wartend) + "," + std::to_string(hq.Planet) + "," + std::to_string(hq.Schaden) + "," +
         std::to_string(s.Komponenten);
    for (int g = 1; g <= ANZAHL_WAREN; ++g) z += "," + std::to_string(s.Preis(g));
    return z + "\n";
}
