#pragma once
// The one font of the game, found the same way by the canvas and by the
// window's sharp layer.
#include <ft2build.h>
#include FT_FREETYPE_H

#include <string>

// Courier New or its metric twin Liberation Mono, opened in `bib` with the
// Unicode map chosen: as fontconfig names it, else from Debian's known places,
// else whatever fontconfig gave, with a warning. nullptr and a German message
// in `fehler` when there is none.
FT_Face COURIER_OEFFNEN(FT_Library bib, std::string& fehler);

// FreeType started and the font opened into `bib` and `face`; false with a
// German message in `fehler`, and whatever was started left for the caller
// to free.
bool SCHRIFT_STARTEN(FT_Library& bib, FT_Face& face, std::string& fehler);
