#include "hilfe.h"

#include <png.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "flow/programm.h"
#include "flow/spielstand.h"
#include "state/codes.h"
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
    s->DatenVerzeichnis = TempOrdner("spiel-daten");  // the year's autosave goes here, not into the source tree
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
    // The program's files, without saved games a game of the source tree may have left.
    for (const auto& e : fs::directory_iterator(QUORVANT_DATEN_STANDARD))
        if (e.path().filename() != "Daten")
            fs::copy(e.path(), ziel + "/" + e.path().filename().string(),
                     fs::copy_options::recursive | fs::copy_options::overwrite_existing);
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

std::string Klick(int x, int y) { return "click " + std::to_string(x) + " " + std::to_string(y) + "\n"; }

std::string Mal(const std::string& zeile, int n) {
    std::string r;
    for (int i = 0; i < n; ++i) r += zeile;
    return r;
}

const Spiel& Tafeln() {
    static const Spiel s = [] {
        Spiel t;
        VORBELEGUNG_VARIABLEN(t);
        return t;
    }();
    return s;
}

Spiel KleineWelt(int spieler) {
    Spiel s;
    s.AnzahlSpieler = static_cast<Integer>(spieler);
    VORBELEGUNG_VARIABLEN(s);
    s.AnzahlPlaneten = 50, s.HoechstesSchiff = 20, s.MeldungAnzahl = 0;
    for (int p = 1; p <= spieler; ++p) s.SpielerName(p) = static_cast<char>('A' + p - 1) + std::string("nna"), s.Bargeld(p) = 1000;
    s.Dokument(3).Name = "Sol ";
    for (int n = 11; n <= 60; ++n) {
        Planet& p = s.Dokument(n);
        p.Name = "Wega ", p.X = static_cast<Integer>(10 * ((n - 1) / 10)), p.Ware = 4;
    }
    s.Schiffe(PIRATEN_HQ).Planet = 0;
    return s;
}

Schiff& SchiffSetzen(Spiel& s, int nr, const char* typ, int besitzer, int planet, int waffen) {
    Schiff& sch = s.Schiffe(nr) = Schiff{};
    sch.Typ = typ, sch.Name = besitzer == BESITZER_PIRATEN ? PIRAT_NAME : "Schiff";
    sch.Besitzer = static_cast<Integer>(besitzer), sch.Planet = static_cast<Integer>(planet);
    sch.Bewaffnung = static_cast<Integer>(waffen), sch.Tankgroesse = 30;
    sch.Treibstoff = besitzer == BESITZER_PIRATEN ? 0 : 30;
    if (nr > s.HoechstesSchiff && nr < SCHIFF_GRENZE) s.HoechstesSchiff = static_cast<Integer>(nr);
    return sch;
}

std::vector<std::string> Meldungen(const Spiel& s) {
    std::vector<std::string> r;
    for (int i = 1; i <= s.MeldungAnzahl; ++i) r.push_back(Utf8(s.MeldungText(i)));
    return r;
}

std::vector<std::string> Gedruckt(const std::string& spur, int x, int y) {
    std::vector<std::string> r;
    std::istringstream ein(spur);
    const std::string kopf = "print " + std::to_string(x) + " " + std::to_string(y) + " ";
    for (std::string z; std::getline(ein, z);)
        if (z.rfind(kopf, 0) == 0) r.push_back(z.substr(z.find(' ', kopf.size()) + 1));
    return r;
}

long FarbeVon(const TreiberLauf& lauf, const std::string& text) {
    const size_t pos = lauf.screen.find(Utf8(T(text)));
    long farbe = -1;
    if (pos != std::string::npos)
        std::sscanf(lauf.screen.c_str() + lauf.screen.rfind('\n', pos) + 1, "text\t%*d\t%*d\t%*d\t%ld", &farbe);
    return farbe;
}

void WieGolden(const std::string& png, const std::string& name) {
    const std::string golden = std::string(QUORVANT_TESTDATEN) + "/golden/" + name + ".png";
    if (std::getenv("QUORVANT_GOLDEN_SCHREIBEN")) fs::copy_file(png, golden, fs::copy_options::overwrite_existing);
    std::vector<uint8_t> pix[2];
    for (int i = 0; i < 2; ++i) {
        png_image b{};
        b.version = PNG_IMAGE_VERSION;
        ASSERT_TRUE(png_image_begin_read_from_file(&b, (i ? golden : png).c_str())) << (i ? golden : png);
        ASSERT_TRUE(b.width == 1024 && b.height == 768) << name;
        b.format = PNG_FORMAT_RGB;
        pix[i].resize(PNG_IMAGE_SIZE(b));
        ASSERT_TRUE(png_image_finish_read(&b, nullptr, pix[i].data(), 0, nullptr));
    }
    int anders = 0, erster = -1;  // pixels with a clear difference in a colour
    for (size_t i = 0; i < pix[0].size(); i += 3) {
        bool d = false;
        for (size_t k = i; k < i + 3; ++k) d = d || std::abs(pix[0][k] - pix[1][k]) > 64;
        if (d && !anders++) erster = static_cast<int>(i / 3);
    }
    EXPECT_LE(anders, 400) << name << ": " << anders << " pixels differ, the first at (" << erster % 1024 << ", "
                           << erster / 1024 << ")";
}

Spiel RuhigesSpiel(int spieler, int ereignisJahre) {
    static std::map<int, Spiel> neu;
    if (!neu.count(spieler)) neu.emplace(spieler, NeuesSpielZustand(spieler, 5000));
    Spiel s = neu.at(spieler);
    for (int e = EREIGNIS_STEUER; e <= EREIGNIS_STREIK; ++e) s.EreignisJahre(e) = static_cast<Integer>(ereignisJahre);
    return s;
}
