#include "vergleich.h"

#include <sstream>

#include "state/text.h"

namespace {

struct Vergleich {
    std::string erster;
    template <class T>
    void feld(const std::string& name, const T& ist, const T& soll) {
        if (!erster.empty() || ist == soll) return;
        std::ostringstream o;
        if constexpr (std::is_same_v<T, std::string>) o << name << ": \"" << Utf8(ist) << "\" statt \"" << Utf8(soll) << "\"";
        else o << name << ": " << +ist << " statt " << +soll;
        erster = o.str();
    }
    template <class F>
    void tabelle(const std::string& name, const F& ist, const F& soll) {
        for (int i = F::von; i <= F::bis; ++i) feld(name + "(" + std::to_string(i) + ")", ist(i), soll(i));
    }
    template <class F>
    void tabelle2(const std::string& name, const F& ist, const F& soll) {
        for (int j = 1; j <= F::n2; ++j)
            for (int i = 1; i <= F::n1; ++i)
                feld(name + "(" + std::to_string(i) + ", " + std::to_string(j) + ")", ist(i, j), soll(i, j));
    }
};

}  // namespace

// Each saved field by its name: F for a value, T for a table, T2 for a table of two indices.
#define F(x) v.feld(n + #x, a.x, b.x)
#define T1(x) v.tabelle(n + #x, a.x, b.x)
#define T2(x) v.tabelle2(n + #x, a.x, b.x)

std::string ERSTER_UNTERSCHIED(const Spiel& ist, const Spiel& soll) {
    Vergleich v;
    {
        const Spiel &a = ist, &b = soll;
        const std::string n;
        F(Jahr), F(AnzahlSpieler), F(AnzahlPlaneten), F(HoechstesSchiff), F(Nachfrage), F(Zeitlimit), F(Komponenten);
        T1(SpielerName), T1(Bargeld), T1(Kredit), T1(Rang), T1(Medaille), T1(ForschungsRest);
        T2(Forschung), T2(Statistik), T2(Lager), T2(DockSchiffe);
        T1(Preis), T1(AltPreis), T1(Bedarf), T1(KomponentenPlanet), T1(EreignisJahre), T1(ForschungsKosten);
    }
    for (int i = 1; i <= MAX_SCHIFFE && v.erster.empty(); ++i) {
        const Schiff &a = ist.Schiffe(i), &b = soll.Schiffe(i);
        const std::string n = "Schiffe(" + std::to_string(i) + ").";
        F(Typ), F(Name), F(Besitzer), F(Zustand), F(Planet), F(StartPlanet), F(Dauer), F(Partner), F(Bewaffnung);
        F(Treibstoff), F(Tankgroesse), F(Schaden), F(Ladung), F(Laderaum), F(Supersprit), T1(Fracht);
    }
    for (int i = 1; i <= MAX_PLANETEN && v.erster.empty(); ++i) {
        const Planet &a = ist.Dokument(i), &b = soll.Dokument(i);
        const std::string n = "Dokument(" + std::to_string(i) + ").";
        F(Name), F(Abstand), F(X), F(Y), F(Bestand), F(Produktion), F(Ware), F(Preis), F(Portal);
    }
    v.feld("Zufallswert", ist.Zufallswert, soll.Zufallswert);
    return v.erster;
}
