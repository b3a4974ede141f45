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
    for (int p = 1; p <= spieler; ++p)
        for (const char* name : {"bargeld", "bewertung", "kredit", "rang", "erfindungen", "piraten_besiegt"})
            k.append(",").append(name).append(std::to_string(p));
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) k.append(",schiffe_").append(Kuerzel(t));
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) k.append(",gebaut_").append(Kuerzel(t));
    k += ",piraten,piraten_wartend,hq_planet,hq_schaden,komponenten,stationen_draussen,handel,geraete,portale,erstlandungen";
    for (int g = 1; g <= ANZAHL_WAREN; ++g) k.append(",preis").append(std::to_string(g));
    return k + "\n";
}

std::string BERICHT_ZEILE(const Spiel& s, const std::vector<long>& gebaut, const std::map<std::string, long>& aktionen) {
    std::string z = std::to_string(s.Jahr);
    const auto feld = [&z](long wert) { z.append(",").append(std::to_string(wert)); };
    for (int p = 1; p <= s.AnzahlSpieler; ++p) {
        int erf = 0;
        for (int k = 1; k <= ANZAHL_ERFINDUNGEN; ++k) erf += Erfunden(s, k, p) ? 1 : 0;
        for (long w : {static_cast<long>(s.Bargeld(p)), static_cast<long>(BEWERTUNG(s, p)), static_cast<long>(s.Kredit(p)),
                       static_cast<long>(s.Rang(p)), static_cast<long>(erf), static_cast<long>(s.Statistik(STAT_PIRATEN_BESIEGT, p))})
            feld(w);
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
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) feld(typen[t]);
    for (int t = 1; t <= ANZAHL_SCHIFFSTYPEN; ++t) feld(gebaut[static_cast<size_t>(t)]);
    const Schiff& hq = s.Schiffe(PIRATEN_HQ);
    long draussen = 0, portale = 0, entdeckt = 0;
    for (int i = 1; i <= s.HoechstesSchiff; ++i)
        draussen += IstStation(s.Schiffe(i)) && IstSpielerBesitz(s.Schiffe(i)) && s.Schiffe(i).Planet > SOL_III;
    for (int t = 11; t <= s.AnzahlPlaneten + 10; ++t) {
        portale += s.Dokument(t).Portal != 0;
        entdeckt += s.Dokument(t).Produktion != 0;
    }
    const auto gezaehlt = [&aktionen](const char* name) {
        const auto it = aktionen.find(name);
        return it == aktionen.end() ? 0L : it->second;
    };
    for (long w : {piraten, wartend, static_cast<long>(hq.Planet), static_cast<long>(hq.Schaden), static_cast<long>(s.Komponenten), draussen,
                   gezaehlt("Handeln"), gezaehlt("Gerät ausliefern"), portale, entdeckt})
        feld(w);
    for (int g = 1; g <= ANZAHL_WAREN; ++g) feld(s.Preis(g));
    return z + "\n";
}
