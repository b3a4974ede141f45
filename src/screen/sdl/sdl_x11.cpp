// Apart from the rest: Xlib's headers define names (KeyPress, None) that the game uses.
#include <SDL.h>
#include <SDL_syswm.h>

struct SDL_Window;
int X11Verbindung(SDL_Window* fenster);

int X11Verbindung(SDL_Window* fenster) {
#if defined(SDL_VIDEO_DRIVER_X11)
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (fenster && SDL_GetWindowWMInfo(fenster, &info) && info.subsystem == SDL_SYSWM_X11)
        return ConnectionNumber(info.info.x11.display);
#else
    (void)fenster;
#endif
    return -1;
}
