// Golden pictures: the main screen and the ship panel of every type, as a
// player sees them, compared with the pictures kept beside the tests.
// QUORVANT_GOLDEN_SCHREIBEN=1 writes them anew after a wanted change.
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "flow/hauptschleife.h"
#include "hilfe.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"

namespace {

bool PngLesen(const std::string& pfad, std::vector<uint32_t>& pix, int& b, int& h) {
    png_image bild{};
    bild.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&bild, pfad.c_str())) return false;
    bild.format = PNG_FORMAT_BGRA;  // 0xAARRGGBB in memory on this machine
    b = static_cast<int>(bild.width);
    h = static_cast<int>(bild.height);
    pix.assign(static_cast<size_t>(b) * h, 0);
    const bool gut = png_image_finish_read(&bild, nullptr, pix.data(), 0, nullptr) != 0;
    png_image_free(&bild);
    return gut;
}

// Font rendering may differ by a shade at glyph edges: count only clear
// differences, and allow a few of them.
void VergleicheMitGolden(const Leinwand& l, const std::string& name) {
    const std::string pfad = std::string(QUORVANT_TESTDATEN) + "/golden/" + name + ".png";
    if (std::getenv("QUORVANT_GOLDEN_SCHREIBEN")) {
        std::string fehler;
        ASSERT_TRUE(l.pngSchreiben(pfad, fehler)) << fehler;
        return;
    }
    std::vector<uint32_t> soll;
    int b = 0, h = 0;
    ASSERT_TRUE(PngLesen(pfad, soll, b, h)) << "golden picture missing: " << pfad;
    ASSERT_EQ(b, Leinwand::BREITE);
    ASSERT_EQ(h, Leinwand::HOEHE);
    int anders = 0, ersteX = -1, ersteY = -1;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < b; ++x) {
            const uint32_t a = soll[static_cast<size_t>(y) * b + x], c = l.pixelAn(x, y);
            int d = 0;
            for (int k = 0; k < 24; k += 8) d = std::max(d, std::abs(static_cast<int>((a >> k) & 255) - static_cast<int>((c >> k) & 255)));
            if (d > 64) {
                if (!anders) ersteX = x, ersteY = y;
                ++anders;
            }
        }
    EXPECT_LE(anders, 400) << name << ": " << anders << " pixels differ, the first at (" << ersteX << ", " << ersteY << ")";
}

}  // namespace

TEST(Golden, Hauptbildschirm) {
    const std::string ordner = TempOrdner("golden");
    const std::string png = ordner + "/haupt.png";
    const std::string skript = ordner + "/s.txt";
    std::FILE* f = std::fopen(skript.c_str(), "w");
    std::fputs(NeuesSpielSkript(2, 5000, {"Anna", "Björn"}).c_str(), f);
    std::fclose(f);
    const std::string befehl = std::string(QUORVANT_HEADLESS_PROGRAMM) + " --seed 7 --script " + skript + " --png " + png;
    ASSERT_EQ(std::system(befehl.c_str()), 0);
    // Read the driver's picture back onto a canvas for the comparison.
    std::vector<uint32_t> pix;
    int b = 0, h = 0;
    ASSERT_TRUE(PngLesen(png, pix, b, h));
    Leinwand l;
    l.zurueckholen(pix);
    VergleicheMitGolden(l, "hauptbildschirm");
}

TEST(Golden, SchiffstafelJedesTyps) {
    struct Fall { const char* typ; const char* name; int laderaum; int fracht; };
    const Fall faelle[] = {
        {"SST ", "Frachter   ", 10, 4},   {"TST ", "Tanker      ", 10, 0}, {"FSS ", "Kreuzer     ", 0, 0},
        {" XS ", "Scout       ", 0, 0},   {"TSR ", "Raumstation ", 90, 30}, {"XXL ", "Großfrachter", 200, 120},
    };
    int nr = 1;
    for (const Fall& fall : faelle) {
        TestSpiel t;
        Spiel& s = *t.s;
        s.Dokument(3).Name = "Sol ";
        Schiff& sch = s.Schiffe(nr);
        sch.Typ = fall.typ, sch.Name = T(fall.name), sch.Besitzer = 1, sch.Planet = 3;
        sch.Laderaum = static_cast<Integer>(fall.laderaum), sch.Tankgroesse = 30, sch.Treibstoff = 17;
        sch.Bewaffnung = std::string(fall.typ) == "FSS " ? 6 : 0;
        for (int g = 1; g <= fall.fracht; ++g) sch.Fracht(1 + g % 20) += 1;
        sch.Ladung = static_cast<Integer>(fall.fracht);
        if (std::string(fall.typ) == "TST ") sch.Fracht(21) = 6, sch.Fracht(23) = 2, sch.Ladung = 8;
        t.laufen([&](Spiel& sp) {
            HAUPTBILDSCHIRM(sp, true);
            SCHIFF_ANZEIGEN(sp, nr);
        });
        VergleicheMitGolden(t.p->leinwand(), std::string("schiff_") + Trim(fall.typ));
        ++nr;
    }
}
