// The window itself: opening it, showing what changed, and the quiet wait.
//
// The window's surface keeps its pixels between presents, so only the part
// of the picture that changed is copied there and sent to the display. When
// the window is larger than the canvas the picture comes from the sharp
// picture at the window's scale; otherwise from the canvas itself.
#include <SDL.h>
#include <sys/epoll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>

#include "screen/sdl/sdl_plattform.h"
#include "state/text.h"

namespace {

constexpr int MIN_B = 512, MIN_H = 384;
constexpr long long BILD_ABSTAND_MS = 16;   // at most about 60 pictures a second
constexpr long long SAMMELN_SPAETESTENS_MS = 250;  // signals and SDL's own events come without X traffic

// Pixels of our own as an SDL surface, for copying.
SDL_Surface* Huelle(const uint32_t* pix, int b, int h, Uint32 format) {
    SDL_Surface* f = SDL_CreateRGBSurfaceWithFormatFrom(const_cast<uint32_t*>(pix), b, h, 32, b * 4, format);
    if (f) SDL_SetSurfaceBlendMode(f, SDL_BLENDMODE_NONE);
    return f;
}

// The canvas pixels are 0xFFRRGGBB: they are also the window's usual XRGB.
bool GleicheAnordnung(Uint32 format) {
    return format == SDL_PIXELFORMAT_ARGB8888 || format == SDL_PIXELFORMAT_RGB888;
}

}  // namespace

bool SdlPlattform::starten(std::string& fehler) {
    if (fenster_) return true;
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
        fehler = std::string("Das Spielfenster kann nicht geöffnet werden: keine Anzeige gefunden (") +
                 SDL_GetError() + "). Quorvant braucht eine grafische Oberfläche (X11 oder Wayland).";
        return false;
    }
    videoAn_ = true;
    // Without a display SDL falls back to drawing into nothing; only when asked for.
    const std::string treiber = SDL_GetCurrentVideoDriver() ? SDL_GetCurrentVideoDriver() : "";
    const char* gewuenscht = SDL_getenv("SDL_VIDEODRIVER");
    if ((treiber == "offscreen" || treiber == "dummy") && !(gewuenscht && treiber == gewuenscht)) {
        fehler = "Das Spielfenster kann nicht geöffnet werden: keine Anzeige gefunden (DISPLAY bzw. "
                 "WAYLAND_DISPLAY ist nicht gesetzt). Quorvant braucht eine grafische Oberfläche "
                 "(X11 oder Wayland).";
        return false;
    }
    std::string schriftFehler;
    if (!leinwand_.schriftLaden(schriftFehler) || !hoch_.schriftLaden(schriftFehler)) {
        fehler = schriftFehler;
        return false;
    }
    // On X11 the window's pixels stay in shared memory and only changed parts
    // go to the display; a GPU texture would send and draw the whole window
    // each time. Elsewhere (Wayland) SDL's texture is the only way.
    if (treiber == "x11") SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    fenster_ = SDL_CreateWindow(Utf8(titel_).c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                Leinwand::BREITE, Leinwand::HOEHE, SDL_WINDOW_RESIZABLE);
    if (fenster_) flaecheHolen();
    if (!flaeche_) {
        fehler = std::string("Das Spielfenster kann nicht geöffnet werden (") + SDL_GetError() + ").";
        return false;
    }
    SDL_SetWindowMinimumSize(fenster_, MIN_B, MIN_H);
    // An epoll set keeps the connection registered between sleeps: each of
    // the two hundred sleeps a second costs less than a poll() would.
    if (const int x = X11Verbindung(fenster_); x >= 0) {
        xVerbindung_ = epoll_create1(EPOLL_CLOEXEC);
        epoll_event e{};
        e.events = EPOLLIN;
        e.data.fd = x;
        if (xVerbindung_ >= 0 && epoll_ctl(xVerbindung_, EPOLL_CTL_ADD, x, &e) != 0) {
            close(xVerbindung_);
            xVerbindung_ = -1;
        }
    }
    SDL_StartTextInput();
    geaendert_ = true;
    zeigen(true);
    return true;
}

// --- showing ---------------------------------------------------------------------

void SdlPlattform::flaecheHolen() {
    flaeche_ = SDL_GetWindowSurface(fenster_);
    xUngelesen_ = true;
    if (!flaeche_) return;
    const int b = flaeche_->w, h = flaeche_->h;
    // Letterboxed: the largest 4:3 picture the window holds.
    const double s = std::min(b / static_cast<double>(Leinwand::BREITE), h / static_cast<double>(Leinwand::HOEHE));
    zielB_ = std::clamp(static_cast<int>(std::lround(Leinwand::BREITE * s)), 1, b);
    zielH_ = std::clamp(static_cast<int>(std::lround(Leinwand::HOEHE * s)), 1, h);
    zielX_ = (b - zielB_) / 2;
    zielY_ = (h - zielH_) / 2;
    hoch_.massstabSetzen(s > 1.0 ? s : 0.0, zielB_, zielH_);
    zeigenErzwingen_ = true;
}

void SdlPlattform::geaendert(const Hochbild::Rechteck& r) {
    if (r.leer()) return;
    schmutz_.vereinen(r);
    geaendert_ = true;
}

void SdlPlattform::zeigen(bool sofort) {
    if (neueGroesse_ && fenster_) {
        neueGroesse_ = false;
        flaecheHolen();
    }
    if (!flaeche_ || (!geaendert_ && !zeigenErzwingen_)) return;
    const long long jetzt = uhrMs();
    if (!zeigenErzwingen_ && !sofort && jetzt - letztesZeigen_ < BILD_ABSTAND_MS) return;
    Hochbild::Rechteck r = schmutz_;
    if (zeigenErzwingen_) {
        SDL_FillRect(flaeche_, nullptr, SDL_MapRGB(flaeche_->format, 0, 0, 0));
        r = Hochbild::Rechteck{0, 0, Leinwand::BREITE - 1, Leinwand::HOEHE - 1};
    }
    SDL_Rect quelle{0, 0, 0, 0}, ziel{0, 0, 0, 0};
    const Uint32 format = GleicheAnordnung(flaeche_->format->format) ? flaeche_->format->format
                                                                       : Uint32{SDL_PIXELFORMAT_ARGB8888};
    if (!r.leer()) {
        if (hoch_.aktiv()) {
            hoch_.fensterRechteck(r, quelle.x, quelle.y, quelle.w, quelle.h);
            ziel = SDL_Rect{zielX_ + quelle.x, zielY_ + quelle.y, quelle.w, quelle.h};
            if (SDL_Surface* q = Huelle(hoch_.pixel(), hoch_.breite(), hoch_.hoehe(), format)) {
                SDL_BlitSurface(q, &quelle, flaeche_, &ziel);
                SDL_FreeSurface(q);
            }
        } else if (zielB_ == Leinwand::BREITE && zielH_ == Leinwand::HOEHE) {
            quelle = SDL_Rect{r.x1, r.y1, r.x2 - r.x1 + 1, r.y2 - r.y1 + 1};
            ziel = SDL_Rect{zielX_ + quelle.x, zielY_ + quelle.y, quelle.w, quelle.h};
            if (SDL_Surface* q = Huelle(leinwand_.pixel(), Leinwand::BREITE, Leinwand::HOEHE, format)) {
                SDL_BlitSurface(q, &quelle, flaeche_, &ziel);
                SDL_FreeSurface(q);
            }
        } else {
            // A window smaller than the canvas: the whole picture, smoothly reduced.
            ziel = SDL_Rect{zielX_, zielY_, zielB_, zielH_};
            if (SDL_Surface* q = Huelle(leinwand_.pixel(), Leinwand::BREITE, Leinwand::HOEHE, format)) {
                if (format != flaeche_->format->format || SDL_SoftStretchLinear(q, nullptr, flaeche_, &ziel) != 0)
                    SDL_BlitScaled(q, nullptr, flaeche_, &ziel);
                SDL_FreeSurface(q);
            }
        }
    }
    if (zeigenErzwingen_) SDL_UpdateWindowSurface(fenster_);
    else if (ziel.w > 0 && ziel.h > 0) SDL_UpdateWindowSurfaceRects(fenster_, &ziel, 1);
    xUngelesen_ = true;
    schmutz_ = Hochbild::Rechteck{};
    geaendert_ = false;
    zeigenErzwingen_ = false;
    letztesZeigen_ = jetzt;
}

void SdlPlattform::fensterEreignis(const SDL_Event& ev) {
    switch (ev.window.event) {
        case SDL_WINDOWEVENT_SIZE_CHANGED:
        case SDL_WINDOWEVENT_RESIZED:
            neueGroesse_ = true;  // dragging sends many sizes: the picture is made for the last one
            break;
        case SDL_WINDOWEVENT_EXPOSED:
        case SDL_WINDOWEVENT_RESTORED:
            zeigenErzwingen_ = true;
            break;
        default:
            break;
    }
}

bool SdlPlattform::klickAufLeinwand(int fx, int fy, int& x, int& y) const {
    if (zielB_ <= 0 || zielH_ <= 0) return false;
    x = static_cast<int>(std::floor((fx - zielX_) * static_cast<double>(Leinwand::BREITE) / zielB_));
    y = static_cast<int>(std::floor((fy - zielY_) * static_cast<double>(Leinwand::HOEHE) / zielH_));
    return x >= 0 && y >= 0 && x < Leinwand::BREITE && y < Leinwand::HOEHE;
}

void SdlPlattform::vollbildUmschalten() {
    if (!fenster_) return;
    const bool voll = (SDL_GetWindowFlags(fenster_) & SDL_WINDOW_FULLSCREEN) != 0;
    SDL_SetWindowFullscreen(fenster_, voll ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
    neueGroesse_ = true;
}

// --- drawing: the canvas, and the same step for the sharp picture ------------------

void SdlPlattform::leeren() {
    leinwand_.leeren();
    geaendert(hoch_.leeren());
}

void SdlPlattform::titelSetzen(const std::string& t) {
    titel_ = t;
    if (fenster_) SDL_SetWindowTitle(fenster_, Utf8(t).c_str());
    xUngelesen_ = true;
}

void SdlPlattform::text(const std::string& t, int groesse, int x, int y, Farbe f) {
    leinwand_.text(t, groesse, x, y, f);
    geaendert(hoch_.text(t, groesse, x, y, f));
}

void SdlPlattform::textMessen(const std::string& t, int groesse, int& breite, int& hoehe) {
    leinwand_.textMessen(t, groesse, breite, hoehe);
}

void SdlPlattform::linie(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    leinwand_.linie(x1, y1, x2, y2, f, breite);
    geaendert(hoch_.linie(x1, y1, x2, y2, f, breite));
}

void SdlPlattform::rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    leinwand_.rahmen(x1, y1, x2, y2, f, breite);
    geaendert(hoch_.rahmen(x1, y1, x2, y2, f, breite));
}

void SdlPlattform::box(int x1, int y1, int x2, int y2, Farbe f) {
    leinwand_.box(x1, y1, x2, y2, f);
    geaendert(hoch_.box(x1, y1, x2, y2, f));
}

void SdlPlattform::kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) {
    leinwand_.kreis(cx, cy, r, f, gefuellt, breite);
    geaendert(hoch_.kreis(cx, cy, r, f, gefuellt, breite));
}

void SdlPlattform::bild(const std::string& schluessel, int x, int y) {
    if (leinwand_.bild(schluessel, x, y)) geaendert(hoch_.bild(schluessel, x, y));
}

namespace {
struct SdlStand : Plattform::Bildstand {
    std::vector<uint32_t> pixel;
    std::shared_ptr<Hochbild::Stand> hoch;
};
}  // namespace

std::shared_ptr<Plattform::Bildstand> SdlPlattform::bildSichern() {
    auto st = std::make_shared<SdlStand>();
    st->pixel = leinwand_.kopie();
    st->hoch = hoch_.sichern();
    return st;
}

void SdlPlattform::bildZurueck(const std::shared_ptr<Bildstand>& stand) {
    const auto* st = dynamic_cast<const SdlStand*>(stand.get());
    if (!st) return;
    leinwand_.zurueckholen(st->pixel);
    hoch_.zurueckholen(st->hoch);
    geaendert(Hochbild::Rechteck{0, 0, Leinwand::BREITE - 1, Leinwand::HOEHE - 1});
}

// --- the wait ----------------------------------------------------------------------

bool SdlPlattform::sammeln() {
    const size_t vorher = warteschlange_.size();
    SDL_Event ev;
    bool etwas = false;
    while (SDL_PollEvent(&ev)) {
        verarbeiten(ev);
        etwas = true;
    }
    xUngelesen_ = false;
    letztesSammeln_ = uhrMs();
    return etwas || warteschlange_.size() != vorher;
}

bool SdlPlattform::warten(int ms) {
    if (xVerbindung_ < 0) {
        // Other window systems: SDL sleeps on its queue itself.
        SDL_Event ev;
        if (!SDL_WaitEventTimeout(&ev, ms)) return false;
        verarbeiten(ev);
        sammeln();
        return true;
    }
    // SDL may already hold what X sent while we drew; then nothing would wake the poll.
    if (xUngelesen_ || uhrMs() - letztesSammeln_ >= SAMMELN_SPAETESTENS_MS) {
        if (sammeln()) return true;
    }
    epoll_event e{};
    const int r = epoll_wait(xVerbindung_, &e, 1, std::max(ms, 0));
    if (r > 0 || (r < 0 && errno == EINTR)) return sammeln();
    xStill_ = true;  // the connection was just quiet: the pump that follows need not ask again
    return false;
}

void SdlPlattform::pumpen() {
    if (xVerbindung_ < 0) {
        sammeln();
    } else {
        // A waiting prompt pumps two hundred times a second, right after its
        // sleep found the connection quiet: ask X only when it may have something.
        epoll_event e{};
        if (xUngelesen_ || uhrMs() - letztesSammeln_ >= SAMMELN_SPAETESTENS_MS ||
            (!xStill_ && epoll_wait(xVerbindung_, &e, 1, 0) > 0))
            sammeln();
        xStill_ = false;
    }
    zeigen(false);
}

void SdlPlattform::schlafen(int ms) {
    const long long ende = uhrMs() + std::max(ms, 0);
    const bool kurz = ms <= 50;  // a poll of a waiting routine: wakes on input
    for (;;) {
        zeigen(false);
        const long long jetzt = uhrMs();
        if (jetzt >= ende) return;
        long long warte = ende - jetzt;
        if (geaendert_) warte = std::clamp(letztesZeigen_ + BILD_ABSTAND_MS - jetzt, 1LL, warte);
        if (warten(static_cast<int>(warte)) && kurz) {
            zeigen(false);
            return;
        }
    }
}
