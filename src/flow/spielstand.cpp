#include "flow/spielstand.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

#include "flow/begleitdatei.h"
#include "flow/dateien.h"
#include "state/text.h"

namespace {

// Both directions share one list of items; a Kanal either writes or reads.
struct Schreiber {
    std::vector<uint8_t>& b;
    void roh(const void* p, size_t n) {
        const auto* c = static_cast<const uint8_t*>(p);
        b.insert(b.end(), c, c + n);  // the machine is little-endian, as the file
    }
    void operator()(Integer v) { roh(&v, 2); }
    void operator()(Long v) { roh(&v, 4); }
    void operator()(Single v) { roh(&v, 4); }
    void operator()(const std::string& t) {
        uint16_t n = static_cast<uint16_t>(std::min<size_t>(t.size(), 65535));
        roh(&n, 2);
        roh(t.data(), n);
    }
};

struct Leser {
    const std::vector<uint8_t>& b;
    size_t pos = 0;
    bool gut = true;
    bool roh(void* p, size_t n) {
        if (!gut || pos + n > b.size()) {
            gut = false;
            std::memset(p, 0, n);
            return false;
        }
        std::memcpy(p, b.data() + pos, n);
        pos += n;
        return true;
    }
    void operator()(Integer& v) { roh(&v, 2); }
    void operator()(Long& v) { roh(&v, 4); }
    void operator()(Single& v) { roh(&v, 4); }
    void operator()(std::string& t) {
        uint16_t n = 0;
        if (!roh(&n, 2)) return;
        if (pos + n > b.size()) {
            gut = false;
            return;
        }
        t.assign(reinterpret_cast<const char*>(b.data() + pos), n);
        pos += n;
    }
};

template <class K, class S>
void Posten(K& k, S& s) {
    k(s.Zufallswert);                                            //  1
    k(s.Jahr);                                                   //  2
    k(s.Nachfrage);                                              //  3
    k(s.Zeitlimit);                                              //  4
    k(s.AnzahlSpieler);                                          //  5
    for (int p = 1; p <= 7; ++p) k(s.SpielerName(p));            //  6
    for (auto& v : s.Lager.w) k(v);                              //  7
    for (int p = 1; p <= 6; ++p) k(s.Bargeld(p));                //  8
    for (int p = 1; p <= 6; ++p) k(s.Rang(p));                   //  9
    for (int p = 1; p <= 6; ++p) k(s.Medaille(p));               // 10
    for (int p = 1; p <= 6; ++p) k(s.Kredit(p));                 // 11
    k(s.HoechstesSchiff);                                        // 12
    for (auto& sch : s.Schiffe.w) {                              // 13
        k(sch.Zustand);
        k(sch.Bewaffnung);
        k(sch.Treibstoff);
        k(sch.Tankgroesse);
        k(sch.Schaden);
        k(sch.Name);
        k(sch.Typ);
        for (auto& f : sch.Fracht.w) k(f);
        k(sch.Ladung);
        k(sch.Laderaum);
        k(sch.Partner);
        k(sch.Planet);
        k(sch.StartPlanet);
        k(sch.Dauer);
        k(sch.Besitzer);
        k(sch.Supersprit);
    }
    k(s.AnzahlPlaneten);                                         // 14
    for (auto& pl : s.Dokument.w) {                              // 15
        k(pl.Name);
        k(pl.Abstand);
        k(pl.X);
        k(pl.Y);
        k(pl.Bestand);
        k(pl.Produktion);
        k(pl.Ware);
        k(pl.Preis);
        k(pl.Portal);
    }
    for (auto& v : s.Preis.w) k(v);                              // 16
    for (auto& v : s.AltPreis.w) k(v);                           // 17
    for (auto& v : s.Bedarf.w) k(v);                             // 18
    for (int p = 1; p <= 6; ++p)                                 // 19
        for (int i = 1; i <= 7; ++i) k(s.DockSchiffe(i, p));
    for (auto& v : s.KomponentenPlanet.w) k(v);                  // 20
    k(s.Komponenten);                                            // 21
    for (auto& v : s.EreignisJahre.w) k(v);                      // 22
    for (auto& v : s.Statistik.w) k(v);                          // 23
    for (int p = 1; p <= 6; ++p) k(s.ForschungsRest(p));         // 24
    for (auto& v : s.Forschung.w) k(v);                          // 25
    for (auto& v : s.ForschungsKosten.w) k(v);                   // 26
}

}  // namespace

std::vector<uint8_t> SPIELSTAND_BYTES(const Spiel& s) {
    std::vector<uint8_t> b;
    b.reserve(1011 * 90 + 4010 * 30 + 2000);
    Schreiber w{b};
    Posten(w, s);
    return b;
}

bool SPIELSTAND_LESEN(Spiel& s, const std::vector<uint8_t>& bytes, std::string& fehler) {
    auto neu = std::make_unique<Spiel>(s);
    for (auto& sch : neu->Schiffe.w) sch = Schiff{};  // no string of the old state may remain
    for (auto& pl : neu->Dokument.w) pl = Planet{};
    Leser r{bytes};
    Posten(r, *neu);
    std::string wo = "das Ende der Datei";
    if (!r.gut || !SPIELSTAND_PRUEFEN(*neu, wo)) {
        // The player sees the plain refusal; what was wrong goes to the log.
        std::fprintf(stderr, "Spielstand abgelehnt: %s\n", wo.c_str());
        fehler = T("Der Spielstand ist beschädigt und kann nicht geladen werden.");
        return false;
    }
    s = std::move(*neu);
    return true;
}

std::string DATEN_ORDNER(const Spiel& s) {
    return s.DatenVerzeichnis.empty() ? s.ProgrammVerzeichnis + "/Daten" : s.DatenVerzeichnis;
}

bool SPIELSTAND_DATEI_SCHREIBEN(const Spiel& s, const std::string& pfad, std::string& fehler) {
    // The companion first: should the save be cut off between the two, the
    // old saved game stays, and the new companion, not being its own, is left aside.
    std::vector<uint8_t> b = SPIELSTAND_BYTES(s);
    std::vector<uint8_t> zusatz = BEGLEIT_BYTES(s, b);
    return DATEIEN_SICHER_SCHREIBEN({{BEGLEIT_PFAD(pfad), std::move(zusatz)}, {pfad, std::move(b)}}, fehler);
}
