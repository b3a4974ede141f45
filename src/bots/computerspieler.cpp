// The machinery of the computer players: the plan of keys for one action,
// handed to the headless platform line by line, and the watch behind every
// year (invariants, the report, the save read back).
#include "bots/computerspieler.h"

#include <chrono>
#include <cstdlib>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <unistd.h>

#include "flow/programm.h"
#include "flow/spielstand.h"
#include "state/codes.h"
#include "state/text.h"
#include "year/jahr.h"

namespace fs = std::filesystem;

namespace {

constexpr int SYSTEM_GROESSEN[] = {50, 80, 100, 120, 150, 200, 300, 400};
constexpr long EINGABEN_JE_JAHR = 200000;  // more, and the game is stuck in a dialog

Computerspieler* aktiverSpieler = nullptr;  // for the year's hook, which takes no context

}  // namespace

bool SYSTEME_ERLAUBT(int systeme) {
    for (int g : SYSTEM_GROESSEN)
        if (g == systeme) return true;
    return false;
}

Computerspieler::Computerspieler(Spiel& s, ComputerPlattform& p, const BotAuftrag& a)
    : s_(s), p_(p), a_(a), zufall_(0x9E3779B97F4A7C15ULL ^ a.saat), spur_(std::getenv("QUORVANT_BOTS_SPUR") != nullptr) {
    if (!a_.bericht.empty()) {
        bericht_.open(a_.bericht, std::ios::binary);
        bericht_ << BERICHT_KOPF(a_.spieler);
    }
}

uint32_t Computerspieler::wuerfel(uint32_t n) {
    zufall_ = zufall_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return n == 0 ? 0 : static_cast<uint32_t>((zufall_ >> 33) % n);
}

std::string Computerspieler::startSkript() const {
    // The scroller takes a key in each of its steps: a pause lets it finish.
    // A saved game: "nein" at "Neues Spiel?", and the one file of the run's folder.
    if (!a_.laden.empty()) return "key SPACE\nwait 200\nkey N\nkey ENTER\nkey ENTER\n";
    std::string k = "key SPACE\nwait 200\nkey ENTER\n";
    k += "key " + std::to_string(a_.spieler) + "\nkey ENTER\n";
    int index = 1;
    for (int i = 0; i < static_cast<int>(std::size(SYSTEM_GROESSEN)); ++i)
        if (SYSTEM_GROESSEN[i] == a_.systeme) index = i + 1;
    for (int i = 3; i < index; ++i) k += "key UP\n";  // the dialog starts on 100
    for (int i = index; i < 3; ++i) k += "key DOWN\n";
    k += "key ENTER\n";
    k += "key ENTER\nkey ENTER\n";  // low demand, no time limit
    k += "type " + std::to_string(a_.kapital) + "\nkey ENTER\n";
    for (int i = 1; i <= a_.spieler; ++i) k += "type Computer" + std::to_string(i) + "\nkey ENTER\n";
    return k;
}

// --- the plan ------------------------------------------------------------------

void Computerspieler::menue(const char* taste) {
    ++aktionenGezaehlt_[std::string("Menü ") + taste];
    plan_.push_back({std::string("key ") + taste, true, "", 0, 0, 0});
    plan_.push_back({"key ENTER", true, "", 0, 0, 0});
}

void Computerspieler::taste(const std::string& name) { plan_.push_back({"key " + name, false, "", 0, 0, 0}); }

void Computerspieler::tippen(const std::string& text) { plan_.push_back({"type " + text, false, "", 0, 0, 0}); }

void Computerspieler::tasteBis(const std::string& name, int x, int y, const std::string& text, int max) {
    plan_.push_back({"key " + name, false, text, x, y, max});
}

// AUSWAHL from entry `von` to entry `nach`: Up and Down pass over empty entries.
void Computerspieler::auswahlGehen(const std::vector<std::string>& liste, int von, int nach) {
    for (int i = von + 1; i <= nach; ++i)
        if (!liste[static_cast<size_t>(i)].empty()) taste("UP");
    for (int i = nach; i < von; ++i)
        if (!liste[static_cast<size_t>(i)].empty()) taste("DOWN");
}

// The ship picker of "Raumschiffe anweisen": Blank, the number, Enter, Enter.
void Computerspieler::schiffWaehlen(int nr) {
    taste("SPACE");
    tippen(std::to_string(nr));
    taste("ENTER");
    taste("ENTER");
}

std::string Computerspieler::eingabe() {
    const bool haupt = s_.Bildschirm == "HAUPT";
    if (++eingabenImJahr_ > EINGABEN_JE_JAHR && a_.nebenMenschen) {
        // Stuck beside persons: leave the dialog and end the turn; the game goes on.
        plan_.clear();
        return haupt ? "key W\nkey ENTER\n" : "key ESC\n";
    }
    if (eingabenImJahr_ > EINGABEN_JE_JAHR)
        abbrechen("Jahr " + std::to_string(s_.Jahr) + ": das Spiel kommt nicht weiter (Bildschirm " + s_.Bildschirm + ")");
    for (int runde = 0; runde < 2; ++runde) {
        while (!plan_.empty()) {
            Schritt& st = plan_.front();
            if (st.haupt != haupt) {  // the dialog ended early, or is still open: plan anew
                plan_.clear();
                break;
            }
            if (!st.bis.empty()) {
                if (p_.textBei(st.x, st.y).find(st.bis) != std::string::npos) {
                    plan_.pop_front();
                    continue;
                }
                if (st.max-- <= 0) {
                    plan_.clear();
                    break;
                }
                return st.zeile + "\n";
            }
            const std::string z = st.zeile;
            plan_.pop_front();
            if (spur_) std::fprintf(stderr, "%ld/%d %s: %s\n", static_cast<long>(s_.Jahr), s_.AktSpieler, s_.Bildschirm.c_str(), z.c_str());
            return z + "\n";
        }
        if (!haupt) break;
        zugPlanen();
    }
    if (sichernBestellt_ && p_.textBei(50, 630) == "Dateiname: ") {
        // The save ordered from the menu: the state as it goes into the file.
        sichernBestellt_ = false;
        gesichert_ = SPIELSTAND_BYTES(s_);
        return "type bots\nkey ENTER\n";
    }
    if (p_.textBei(50, 690) == T("Überschreiben?")) return "key ENTER\n";
    if (spur_) std::fprintf(stderr, "%ld/%d %s: ESC\n", static_cast<long>(s_.Jahr), s_.AktSpieler, s_.Bildschirm.c_str());
    return "key ESC\n";
}

// --- behind every year ------------------------------------------------------------

void Computerspieler::abbrechen(const std::string& text) {
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
    fehler_ = true;
    throw ProgrammEnde{1};
}

void Computerspieler::sichernPruefen() {
    const std::string pfad = DATEN_ORDNER(s_) + "/bots.qvt";
    std::ifstream ein(pfad, std::ios::binary);
    const std::vector<uint8_t> datei((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
    ein.close();
    std::error_code ec;
    fs::remove(pfad, ec);
    const std::string jahr = "Jahr " + std::to_string(s_.Jahr) + ": Spielstand ";
    if (datei != gesichert_) abbrechen(jahr + "in der Datei weicht vom Spiel ab (" + std::to_string(datei.size()) + " Bytes)");
    auto frisch = std::make_unique<Spiel>();
    std::string fehler;
    if (!SPIELSTAND_LESEN(*frisch, datei, fehler)) abbrechen(jahr + "nicht lesbar: " + fehler);
    if (SPIELSTAND_BYTES(*frisch) != datei) abbrechen(jahr + "gelesen und wieder geschrieben nicht gleich");
    gesichert_.clear();
    ++sicherungen_;
}

void Computerspieler::jahrBeendet() {
    ++jahreGespielt_;
    eingabenImJahr_ = 0;
    if (!gesichert_.empty()) sichernPruefen();
    if (a_.pruefen) {
        const std::string f = INVARIANTEN_PRUEFEN(s_);
        if (!f.empty()) abbrechen("Jahr " + std::to_string(s_.Jahr) + ": " + f);
    }
    if (bericht_.is_open()) bericht_ << BERICHT_ZEILE(s_, gebaut_, aktionenGezaehlt_);
    if (spur_) {
        for (int m = 1; m <= s_.MeldungAnzahl; ++m) std::fprintf(stderr, "  | %s\n", s_.MeldungText(m).c_str());
        std::fprintf(stderr, "== %ld: Bargeld %d Kredit %d Lager", static_cast<long>(s_.Jahr), s_.Bargeld(1), s_.Kredit(1));
        for (int g = 1; g <= 20; ++g) std::fprintf(stderr, " %d", s_.Lager(g, 1));
        std::fprintf(stderr, "\n");
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& sch = s_.Schiffe(i);
            if (sch.Besitzer != 1 || sch.Typ.empty()) continue;
            std::fprintf(stderr, "   %d %s Z%d P%d->%d D%d L%d/%d T%.1f S%d W%d\n", i, sch.Typ.c_str(), sch.Zustand, sch.StartPlanet, sch.Planet,
                         sch.Dauer, sch.Ladung, sch.Laderaum, static_cast<double>(sch.Treibstoff), sch.Schaden, sch.Bewaffnung);
        }
    }
    if (!a_.nebenMenschen && jahreGespielt_ % 100 == 0) {
        std::printf("%ld Jahre gespielt (Jahr %ld)\n", jahreGespielt_, static_cast<long>(s_.Jahr));
        std::fflush(stdout);
    }
    if (jahreGespielt_ >= a_.jahre) throw ProgrammEnde{0};
}

// --- the run -------------------------------------------------------------------------

int BOTS_SPIELSTAND_PRUEFEN(const std::string& pfad, std::string& fehler) {
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein) {
        fehler = "Spielstand '" + pfad + "' nicht gefunden.";
        return 0;
    }
    const std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
    auto s = std::make_unique<Spiel>();
    if (!SPIELSTAND_LESEN(*s, bytes, fehler)) {
        fehler = pfad + ": " + Utf8(fehler);
        return 0;
    }
    return s->AnzahlSpieler;
}

int COMPUTERSPIEL(const BotAuftrag& a, const std::string& daten, HeadlessPlattform& p, Spiel& s) {
    // Saves go to a folder of the run's own, never into the data beside the program;
    // a saved game to play on from is copied there, and the original is left alone.
    // In memory where the system offers it: a long run writes an autosave every year.
    std::error_code shm;
    const fs::path basis = fs::is_directory("/dev/shm", shm) && ::access("/dev/shm", W_OK) == 0 ? fs::path("/dev/shm")
                                                                                                   : fs::temp_directory_path();
    const fs::path ordner = basis / ("quorvant-bots-" + std::to_string(::getpid()));
    fs::create_directories(ordner);
    std::error_code kopiert;
    if (!a.laden.empty()) fs::copy_file(a.laden, ordner / "start.qvt", fs::copy_options::overwrite_existing, kopiert);
    if (kopiert) {
        std::printf("Spielstand '%s' nicht kopiert: %s\n", a.laden.c_str(), kopiert.message().c_str());
        fs::remove_all(ordner, kopiert);
        return 1;
    }
    s.ProgrammVerzeichnis = daten;
    s.DatenVerzeichnis = ordner.string();

    // The start script (intro, new game or the choice of the file) comes from
    // the headless platform; from then on the houses answer every prompt.
    ComputerPlattform computer(p);
    Computerspieler bot(s, computer, a);
    aktiverSpieler = &bot;
    computer.computerSetzen([&bot] { return bot.eingabe(); }, [&p] { return p.skriptAufgebraucht(); });
    s.haken.NachDemJahr = [](Spiel&) { aktiverSpieler->jahrBeendet(); };
    std::string fehler;
    p.skriptLaden(bot.startSkript(), fehler);
    p.saatFestlegen(a.saat);
    p.maxMsFestlegen(4000000000000000000LL);

    const auto start = std::chrono::steady_clock::now();
    int status = PROGRAMM_AUSFUEHREN(s, computer);
    const double sek = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    s.haken.NachDemJahr = nullptr;
    aktiverSpieler = nullptr;
    std::error_code ec;
    fs::remove_all(ordner, ec);

    if (!bot.fehlgeschlagen() && bot.gespielteJahre() < a.jahre) {
        std::printf("Das Spiel endete nach %ld Jahren.\n", bot.gespielteJahre());
        status = 1;
    }
    std::fprintf(stderr, "%ld Jahre in %.1f s (%.0f Jahre/s), %ld Spielstände gesichert, gelesen und verglichen\n",
                 bot.gespielteJahre(), sek, sek > 0 ? static_cast<double>(bot.gespielteJahre()) / sek : 0.0, bot.sicherungen());
    std::string aktionen;
    for (const auto& [name, n] : bot.aktionenGezaehlt()) aktionen += (aktionen.empty() ? "" : ", ") + name + " " + std::to_string(n);
    std::fprintf(stderr, "Aktionen: %s\n", aktionen.c_str());
    if (status == 0 && !a.behalten.empty() && !SPIELSTAND_DATEI_SCHREIBEN(s, a.behalten, fehler)) {
        std::printf("%s: %s\n", a.behalten.c_str(), Utf8(fehler).c_str());
        status = 1;
    }
    if (status == 0) std::printf("%ld Jahre, %d Spieler: in Ordnung\n", a.jahre, a.spieler);
    return status;
}
