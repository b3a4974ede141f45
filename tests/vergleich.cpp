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

std::string ERSTER_UNTERSCHIED(const Spiel& a, const Spiel& b) {
    Vergleich v;
    v.feld("Jahr", a.Jahr, b.Jahr);
    v.feld("AnzahlSpieler", a.AnzahlSpieler, b.AnzahlSpieler);
    v.feld("AnzahlPlaneten", a.AnzahlPlaneten, b.AnzahlPlaneten);
    v.feld("HoechstesSchiff", a.HoechstesSchiff, b.HoechstesSchiff);
    v.feld("Nachfrage", a.Nachfrage, b.Nachfrage);
    v.feld("Zeitlimit", a.Zeitlimit, b.Zeitlimit);
    v.feld("Komponenten", a.Komponenten, b.Komponenten);
    v.tabelle("SpielerName", a.SpielerName, b.SpielerName);
    v.tabelle("Bargeld", a.Bargeld, b.Bargeld);
    v.tabelle("Kredit", a.Kredit, b.Kredit);
    v.tabelle("Rang", a.Rang, b.Rang);
    v.tabelle("Medaille", a.Medaille, b.Medaille);
    v.tabelle("ForschungsRest", a.ForschungsRest, b.ForschungsRest);
    v.tabelle2("Forschung", a.Forschung, b.Forschung);
    v.tabelle2("Statistik", a.Statistik, b.Statistik);
    v.tabelle2("Lager", a.Lager, b.Lager);
    v.tabelle2("DockSchiffe", a.DockSchiffe, b.DockSchiffe);
    v.tabelle("Preis", a.Preis, b.Preis);
    v.tabelle("AltPreis", a.AltPreis, b.AltPreis);
    v.tabelle("Bedarf", a.Bedarf, b.Bedarf);
    v.tabelle("KomponentenPlanet", a.KomponentenPlanet, b.KomponentenPlanet);
    v.tabelle("EreignisJahre", a.EreignisJahre, b.EreignisJahre);
    v.tabelle("ForschungsKosten", a.ForschungsKosten, b.ForschungsKosten);
    for (int i = 1; i <= MAX_SCHIFFE && v.erster.empty(); ++i) {
        const Schiff &x = a.Schiffe(i), &y = b.Schiffe(i);
        const std::string n = "Schiffe(" + std::to_string(i) + ").";
        v.feld(n + "Typ", x.Typ, y.Typ);
        v.feld(n + "Name", x.Name, y.Name);
        v.feld(n + "Besitzer", x.Besitzer, y.Besitzer);
        v.feld(n + "Zustand", x.Zustand, y.Zustand);
        v.feld(n + "Planet", x.Planet, y.Planet);
        v.feld(n + "StartPlanet", x.StartPlanet, y.StartPlanet);
        v.feld(n + "Dauer", x.Dauer, y.Dauer);
        v.feld(n + "Partner", x.Partner, y.Partner);
        v.feld(n + "Bewaffnung", x.Bewaffnung, y.Bewaffnung);
        v.feld(n + "Treibstoff", x.Treibstoff, y.Treibstoff);
        v.feld(n + "Tankgroesse", x.Tankgroesse, y.Tankgroesse);
        v.feld(n + "Schaden", x.Schaden, y.Schaden);
        v.feld(n + "Ladung", x.Ladung, y.Ladung);
        v.feld(n + "Laderaum", x.Laderaum, y.Laderaum);
        v.feld(n + "Supersprit", x.Supersprit, y.Supersprit);
        v.tabelle(n + "Fracht", x.Fracht, y.Fracht);
    }
    for (int i = 1; i <= MAX_PLANETEN && v.erster.empty(); ++i) {
        const Planet &x = a.Dokument(i), &y = b.Dokument(i);
        const std::string n = "Dokument(" + std::to_string(i) + ").";
        v.feld(n + "Name", x.Name, y.Name);
        v.feld(n + "Abstand", x.Abstand, y.Abstand);
        v.feld(n + "X", x.X, y.X);
        v.feld(n + "Y", x.Y, y.Y);
        v.feld(n + "Bestand", x.Bestand, y.Bestand);
        v.feld(n + "Produktion", x.Produktion, y.Produktion);
        v.feld(n + "Ware", x.Ware, y.Ware);
        v.feld(n + "Preis", x.Preis, y.Preis);
        v.feld(n + "Portal", x.Portal, y.Portal);
    }
    v.feld("Zufallswert", a.Zufallswert, b.Zufallswert);
    return v.erster;
}
