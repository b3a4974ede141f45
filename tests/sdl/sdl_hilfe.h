#pragma once
// What the window's tests share: a folder of their own and keys pushed into SDL.
#include <SDL.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <string>

inline std::string SdlTestOrdner(const std::string& name) {
    namespace fs = std::filesystem;
    const fs::path p = fs::temp_directory_path() / ("quorvant-sdl-" + std::to_string(::getpid()) + "-" + name);
    fs::remove_all(p);
    fs::create_directories(p);
    return p.string();
}

// An SDL event: a key with the text it types, a click (k 0), the close (k -1).
inline void Druecken(SDL_Keycode k, const char* text = nullptr) {
    SDL_Event ev{};
    ev.type = k == -1 ? SDL_QUIT : k == 0 ? SDL_MOUSEBUTTONUP : SDL_KEYDOWN;
    ev.key.keysym.sym = k;
    if (k == 0) ev.button = SDL_MouseButtonEvent{SDL_MOUSEBUTTONUP, 0, 0, 0, SDL_BUTTON_LEFT, 0, 1, 0, 600, 300};
    SDL_PushEvent(&ev);
    if (!text) return;
    ev = SDL_Event{};
    ev.type = SDL_TEXTINPUT;
    std::strncpy(ev.text.text, text, sizeof ev.text.text - 1);
    SDL_PushEvent(&ev);
}
