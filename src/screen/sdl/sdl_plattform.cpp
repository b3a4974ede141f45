#include "screen/sdl/sdl_plattform.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <unistd.h>
#include <vector>

#include "state/text.h"

namespace {

constexpr const char* KLANGSCHRIFT = "/usr/share/sounds/sf2/TimGM6mb.sf2";

// The Windows key code of a key, 0 for keys the game does not know.
int TastenCode(SDL_Keycode k) {
    if (k >= SDLK_a && k <= SDLK_z) return 'A' + (k - SDLK_a);
    if (k >= SDLK_0 && k <= SDLK_9) return k;
    if (k >= SDLK_F1 && k <= SDLK_F12) return 112 + (k - SDLK_F1);
    if (k >= SDLK_KP_1 && k <= SDLK_KP_9) return 97 + (k - SDLK_KP_1);
    switch (k) {
        case SDLK_BACKSPACE: return 8;
        case SDLK_TAB: return 9;
        case SDLK_RETURN: case SDLK_KP_ENTER: return 13;
        case SDLK_ESCAPE: return 27;
        case SDLK_SPACE: return 32;
        case SDLK_PAGEUP: return 33;
        case SDLK_PAGEDOWN: return 34;
        case SDLK_END: return 35;
        case SDLK_HOME: return 36;
        case SDLK_LEFT: return 37;
        case SDLK_UP: return 38;
        case SDLK_RIGHT: return 39;
        case SDLK_DOWN: return 40;
        case SDLK_INSERT: return 45;
        case SDLK_DELETE: return 46;
        case SDLK_KP_0: return 96;
        case SDLK_KP_MULTIPLY: return 106;
        case SDLK_KP_PLUS: return 107;
        case SDLK_KP_MINUS: return 109;
        case SDLK_KP_PERIOD: case SDLK_KP_COMMA: return 110;
        case SDLK_KP_DIVIDE: return 111;
        case SDLK_PLUS: return 187;
        case SDLK_COMMA: return 188;
        case SDLK_MINUS: return 189;
        case SDLK_PERIOD: return 190;
        case SDLK_HASH: case SDLK_SLASH: return 191;
        case SDLK_CARET: case SDLK_BACKSLASH: return 220;
        case SDLK_LESS: return 226;
        case SDLK_SEMICOLON: return 186;
        case SDLK_EQUALS: return 187;
        case SDLK_BACKQUOTE: return 192;
        case SDLK_LEFTBRACKET: return 219;
        case SDLK_RIGHTBRACKET: return 221;
        case SDLK_QUOTE: return 222;
        case 0xFC: return 186;  // ü
        case 0xF6: return 192;  // ö
        case 0xDF: return 219;  // ß
        case 0xE4: return 222;  // ä
        case 0xB4: return 221;  // ´
        default: return 0;
    }
}

// A key that types a control character also sends that character.
int SteuerZeichen(SDL_Keycode k) {
    switch (k) {
        case SDLK_RETURN: case SDLK_KP_ENTER: return 13;
        case SDLK_ESCAPE: return 27;
        case SDLK_BACKSPACE: return 8;
        case SDLK_TAB: return 9;
        default: return -1;
    }
}

// Unicode code points of a UTF-8 string.
std::vector<unsigned int> Codepunkte(const char* u) {
    std::vector<unsigned int> r;
    for (size_t i = 0; u[i];) {
        const unsigned char c = static_cast<unsigned char>(u[i]);
        unsigned int cp;
        int n;
        if (c < 0x80) { cp = c; n = 1; }
        else if ((c & 0xE0) == 0xC0) { cp = c & 0x1F; n = 2; }
        else if ((c & 0xF0) == 0xE0) { cp = c & 0x0F; n = 3; }
        else if ((c & 0xF8) == 0xF0) { cp = c & 0x07; n = 4; }
        else { ++i; continue; }
        bool gut = true;
        for (int k = 1; k < n; ++k) {
            const unsigned char d = static_cast<unsigned char>(u[i + k]);
            if ((d & 0xC0) != 0x80) { gut = false; break; }
            cp = (cp << 6) | (d & 0x3F);
        }
        if (!gut) { ++i; continue; }
        i += n;
        r.push_back(cp);
    }
    return r;
}

}  // namespace

SdlPlattform::SdlPlattform() = default;

SdlPlattform::~SdlPlattform() {
    if (tonAn_) {
        Mix_HaltMusic();
        if (musik_) Mix_FreeMusic(musik_);
        musik_ = nullptr;
        Mix_CloseAudio();
        Mix_Quit();
    }
    if (xVerbindung_ >= 0) close(xVerbindung_);
    if (fenster_) SDL_DestroyWindow(fenster_);
    SDL_Quit();
}

// --- events ----------------------------------------------------------------------

void SdlPlattform::verarbeiten(const SDL_Event& ev) {
    switch (ev.type) {
        case SDL_QUIT:
            warteschlange_.push_back({EreignisArt::Schliessen});
            break;
        case SDL_WINDOWEVENT:
            fensterEreignis(ev);
            break;
        case SDL_KEYDOWN: {
            const SDL_Keycode k = ev.key.keysym.sym;
            const bool alt = (ev.key.keysym.mod & KMOD_ALT) != 0;
            // The window's own keys never reach the game.
            if (k == SDLK_F11 || (alt && (k == SDLK_RETURN || k == SDLK_KP_ENTER))) {
                if (ev.key.repeat == 0) vollbildUmschalten();
                break;
            }
            const int code = TastenCode(k);
            const bool druckbar = k > 0 && k < 0x10000 && k >= 32 && k != SDLK_DELETE;
            if (code == 0 && !druckbar) break;  // Shift, Ctrl, Alt and the like
            warteschlange_.push_back({EreignisArt::KeyDown, code});
            const int z = SteuerZeichen(k);
            if (z >= 0) warteschlange_.push_back({EreignisArt::KeyPress, z});
            break;
        }
        case SDL_TEXTINPUT:
            for (unsigned int cp : Codepunkte(ev.text.text)) {
                const int b = CodepunktZuCp1252(cp);
                if (b >= 32) warteschlange_.push_back({EreignisArt::KeyPress, b});
            }
            break;
        case SDL_MOUSEBUTTONUP: {
            int knopf = 0;
            if (ev.button.button == SDL_BUTTON_LEFT) knopf = 1;
            else if (ev.button.button == SDL_BUTTON_RIGHT) knopf = 2;
            else if (ev.button.button == SDL_BUTTON_MIDDLE) knopf = 4;
            int x = 0, y = 0;
            if (neueGroesse_) {  // the click belongs to the window's new size
                neueGroesse_ = false;
                flaecheHolen();
            }
            // Clicks on the black bars beside the picture miss the game.
            if (knopf && klickAufLeinwand(ev.button.x, ev.button.y, x, y))
                warteschlange_.push_back({EreignisArt::MouseUp, 0, knopf, x, y});
            break;
        }
        default:
            break;
    }
}

bool SdlPlattform::ereignisHolen(Ereignis& e) {
    if (warteschlange_.empty()) return false;
    e = warteschlange_.front();
    warteschlange_.pop_front();
    // Recorded as the game takes it: a key and the character it typed are one line.
    const bool teil = zeichenAufgenommen_ && e.art == EreignisArt::KeyPress;
    zeichenAufgenommen_ = false;
    if (teil) return true;
    if (e.art == EreignisArt::KeyDown && !warteschlange_.empty() && warteschlange_.front().art == EreignisArt::KeyPress) {
        aufnahme_.taste(e.code, warteschlange_.front().code, uhrMs());
        zeichenAufgenommen_ = true;
    } else {
        aufnahme_.eingabe(e, uhrMs());
    }
    return true;
}

long long SdlPlattform::uhrMs() { return static_cast<long long>(SDL_GetTicks64()); }

uint32_t SdlPlattform::saat() {
    const uint32_t wert = static_cast<uint32_t>(std::time(nullptr)) + static_cast<uint32_t>(SDL_GetTicks64());
    aufnahme_.saat(wert);
    return wert;
}

// --- boxes -------------------------------------------------------------------------

int SdlPlattform::sdlBox(const std::string& titel, const std::string& text, BoxArt art, bool istFrage) {
    if (!sdlBoxGeht_) return -1;
    const std::string t = Utf8(titel), m = Utf8(text);
    SDL_MessageBoxButtonData knoepfe[2];
    int anzahl = 0;
    if (istFrage) {
        knoepfe[0] = {SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT, 1, "Ja"};
        knoepfe[1] = {SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT, 0, "Nein"};
        anzahl = 2;
    } else {
        knoepfe[0] = {SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT | SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT, 1, "OK"};
        anzahl = 1;
    }
    Uint32 flags = SDL_MESSAGEBOX_INFORMATION;
    if (art == BoxArt::Warnung) flags = SDL_MESSAGEBOX_WARNING;
    else if (art == BoxArt::Fehler) flags = SDL_MESSAGEBOX_ERROR;
    flags |= SDL_MESSAGEBOX_BUTTONS_LEFT_TO_RIGHT;
    SDL_MessageBoxData daten{flags, fenster_, t.c_str(), m.c_str(), anzahl, knoepfe, nullptr};
    int antwort = -1;
    if (SDL_ShowMessageBox(&daten, &antwort) != 0) {
        sdlBoxGeht_ = false;  // no box here (e.g. no window system); ours from now on
        return -1;
    }
    zeigenErzwingen_ = true;
    xUngelesen_ = true;
    return antwort == 1 ? 1 : 0;  // closed without a button: no
}

bool SdlPlattform::gemalteBox(const std::string& titel, const std::string& text, bool istFrage) {
    if (!fenster_) return !istFrage;  // no window: nobody could answer
    const std::shared_ptr<Bildstand> vorher = bildSichern();
    std::vector<std::string> zeilen = Umbrechen(text, 70);
    size_t laengste = std::max<size_t>(titel.size(), 20);
    for (const auto& z : zeilen) laengste = std::max(laengste, z.size());
    int zb = 12, zh = 23;
    leinwand_.textMessen(" ", 15, zb, zh);
    const int b = static_cast<int>(laengste) * zb + 40;
    const int h = (static_cast<int>(zeilen.size()) + 3) * zh + 40;
    const int x = (Leinwand::BREITE - b) / 2, y = (Leinwand::HOEHE - h) / 2;
    box(x, y, x + b - 1, y + h - 1, 0x301818);
    rahmen(x, y, x + b - 1, y + h - 1, 16777215, 2);
    this->text(titel, 15, x + 20, y + 12, 65535);
    for (size_t i = 0; i < zeilen.size(); ++i)
        this->text(zeilen[i], 15, x + 20, y + 12 + zh * static_cast<int>(i + 2), 16777215);
    const std::string knopf = istFrage ? "Ja (J) / Nein (N)" : "OK (Enter)";
    this->text(knopf, 15, x + (b - static_cast<int>(knopf.size()) * zb) / 2, y + h - 12 - zh, 16776960);
    zeigen(true);

    int antwort = -1;
    while (antwort < 0) {
        SDL_Event ev;
        if (!SDL_WaitEventTimeout(&ev, 50)) continue;
        switch (ev.type) {
            case SDL_QUIT:
                warteschlange_.push_back({EreignisArt::Schliessen});
                antwort = 0;
                break;
            case SDL_KEYDOWN: {
                const SDL_Keycode k = ev.key.keysym.sym;
                if (k == SDLK_F11 && ev.key.repeat == 0) {
                    vollbildUmschalten();
                } else if (k == SDLK_RETURN || k == SDLK_KP_ENTER || (istFrage && (k == SDLK_j || k == SDLK_y))) {
                    antwort = 1;
                } else if (k == SDLK_ESCAPE || (istFrage && k == SDLK_n)) {
                    antwort = 0;
                } else if (!istFrage && k == SDLK_SPACE) {
                    antwort = 1;
                }
                break;
            }
            case SDL_WINDOWEVENT:
                fensterEreignis(ev);
                break;
            default:
                break;  // typing and clicks belong to the box
        }
        zeigen(false);
    }
    // The characters of the answering key must not reach the game.
    SDL_PumpEvents();
    SDL_FlushEvents(SDL_TEXTEDITING, SDL_TEXTINPUT);
    xUngelesen_ = true;
    bildZurueck(vorher);
    zeigen(true);
    return antwort == 1;
}

bool SdlPlattform::frage(const std::string& titel, const std::string& text) {
    zeigen(true);
    const int r = sdlBox(titel, text, BoxArt::Frage, true);
    const bool ja = r >= 0 ? r == 1 : gemalteBox(titel, text, true);
    aufnahme_.antwort(ja, uhrMs());
    return ja;
}

void SdlPlattform::meldung(const std::string& titel, const std::string& text, BoxArt art) {
    zeigen(true);
    if (sdlBox(titel, text, art, false) >= 0) return;
    gemalteBox(titel, text, false);
}

// --- music -------------------------------------------------------------------------

bool SdlPlattform::tonBereit() {
    if (tonVersucht_) return tonAn_;
    tonVersucht_ = true;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        std::fprintf(stderr, "Keine Tonausgabe (%s), das Spiel bleibt stumm.\n", SDL_GetError());
        return false;
    }
    Mix_Init(MIX_INIT_MID);
    std::error_code fc;
    if (std::filesystem::is_regular_file(KLANGSCHRIFT, fc)) Mix_SetSoundFonts(KLANGSCHRIFT);
    if (Mix_OpenAudio(44100, MIX_DEFAULT_FORMAT, 2, 2048) != 0) {
        std::fprintf(stderr, "Keine Tonausgabe (%s), das Spiel bleibt stumm.\n", Mix_GetError());
        Mix_Quit();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    tonAn_ = true;
    return true;
}

bool SdlPlattform::musikSpielen(const std::string& pfad) {
    if (!tonBereit()) return false;
    musikStoppen();
    musik_ = Mix_LoadMUS(pfad.c_str());
    if (!musik_) {
        std::fprintf(stderr, "Musik '%s' nicht abspielbar: %s\n", pfad.c_str(), Mix_GetError());
        return false;
    }
    if (Mix_PlayMusic(musik_, 0) != 0) {
        std::fprintf(stderr, "Musik '%s' nicht abspielbar: %s\n", pfad.c_str(), Mix_GetError());
        Mix_FreeMusic(musik_);
        musik_ = nullptr;
        return false;
    }
    return true;
}

void SdlPlattform::musikStoppen() {
    if (!tonAn_) return;
    Mix_HaltMusic();
    if (musik_) Mix_FreeMusic(musik_);
    musik_ = nullptr;
}
