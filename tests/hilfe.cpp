#include "hilfe.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "flow/programm.h"
#include "flow/spielstand.h"
#include "state/regeln.h"
#include "state/text.h"

namespace fs = std::filesystem;

TestSpiel::TestSpiel(const std::string& skript) {
    std::string fehler;
    EXPECT_TRUE(p->skriptLaden(skript, fehler)) << fehler;
    EXPECT_TRUE(p->schriftBereit(fehler)) << fehler;
    p->leinwand().bilderLaden(QUORVANT_DATEN_STANDARD);
    s->plattform = p.get();
    HAKEN_SETZEN(*s);
    s->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    s->AnzahlSpieler = 1;
    VORBELEGUNG_VARIABLEN(*s);
    s->SpielerName(1) = "Anna";
    s->Rang(1) = 1;
    s->Bargeld(1) = 5000;
    s->HoechstesSchiff = 6;
}

std::string TestSpiel::textBei(int x, int y) const {
    std::istringstream ein(p->bildschirm());
    std::string zeile;
    const std::string kopf = "text\t" + std::to_string(x) + "\t" + std::to_string(y) + "\t";
    std::string gefunden;
    while (std::getline(ein, zeile))
        if (zeile.rfind(kopf, 0) == 0) gefunden = zeile.substr(zeile.find('\t', zeile.find('\t', kopf.size()) + 1) + 1);
    return gefunden;
}

std::string NeuesSpielSkript(int spieler, int kapital, const std::vector<std::string>& namen, bool zeitlimit) {
    // The scroller takes input in each of its three steps: a pause lets it finish.
    std::string k = "key SPACE\nwait 200\nkey ENTER\n";
    k += "key " + std::to_string(spieler) + "\nkey ENTER\nkey ENTER\nkey ENTER\n";
    k += zeitlimit ? "key J\nkey ENTER\n" : "key ENTER\n";
    k += "type " + std::to_string(kapital) + "\nkey ENTER\n";
    for (int i = 0; i < spieler; ++i) {
        const std::string name = i < static_cast<int>(namen.size()) ? namen[static_cast<size_t>(i)] : "Spieler" + std::to_string(i + 1);
        if (!name.empty()) k += "type " + name + "\n";
        k += "key ENTER\n";
    }
    return k;
}

std::string TempOrdner(const std::string& name) {
    const fs::path p = fs::temp_directory_path() / ("quorvant-test-" + std::to_string(::getpid()) + "-" + name);
    fs::remove_all(p);
    fs::create_directories(p);
    return p.string();
}

std::string DatenKopie(const std::string& name) {
    const std::string ziel = TempOrdner(name);
    fs::copy(QUORVANT_DATEN_STANDARD, ziel, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    return ziel;
}

namespace {
std::string Lesen(const std::string& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    std::stringstream ss;
    ss << ein.rdbuf();
    return ss.str();
}
}  // namespace

TreiberLauf Treiber(const std::string& skript, const std::string& optionen, const std::string& datenOrdner) {
    static int zaehler = 0;
    const std::string ordner = TempOrdner("treiber" + std::to_string(++zaehler));
    const std::string skriptDatei = ordner + "/skript.txt";
    std::ofstream(skriptDatei, std::ios::binary) << skript;
    std::string befehl = std::string(QUORVANT_HEADLESS_PROGRAMM) + " " + optionen + " --script " + skriptDatei +
                         " --screen " + ordner + "/screen.txt --state " + ordner + "/state.bin --trace " + ordner +
                         "/trace.txt";
    if (!datenOrdner.empty()) befehl += " --data " + datenOrdner;
    befehl += " 2>" + ordner + "/stderr.txt";
    const int rc = std::system(befehl.c_str());
    TreiberLauf lauf;
    lauf.status = WIFEXITED(rc) ? WEXITSTATUS(rc) : -1;
    lauf.screen = Lesen(ordner + "/screen.txt");
    lauf.trace = Lesen(ordner + "/trace.txt");
    const std::string st = Lesen(ordner + "/state.bin");
    lauf.state.assign(st.begin(), st.end());
    lauf.fehler = Lesen(ordner + "/stderr.txt");
    return lauf;
}

Spiel ZustandAus(const TreiberLauf& lauf) {
    Spiel s;
    std::string fehler;
    EXPECT_TRUE(SPIELSTAND_LESEN(s, lauf.state, fehler)) << fehler << lauf.fehler;
    return s;
}

Spiel NeuesSpielZustand(int spieler, int kapital, const std::string& optionen) {
    return ZustandAus(Treiber(NeuesSpielSkript(spieler, kapital), optionen));
}

TreiberLauf GeladenSpielen(const Spiel& s, const std::string& weiter, const std::string& name,
                           const std::string& optionen) {
    const std::string daten = DatenKopie(name);
    std::filesystem::create_directories(daten + "/Daten");
    std::string fehler;
    EXPECT_TRUE(SPIELSTAND_DATEI_SCHREIBEN(s, daten + "/Daten/" + name + ".qvt", fehler)) << fehler;
    return Treiber(LadeSkript() + weiter, optionen, daten);
}

// The banner takes about three seconds; a key in the scroller ends it.
std::string LadeSkript() { return "wait 3000\nkey SPACE\nwait 300\nkey N\nkey ENTER\nkey ENTER\n"; }
