// The canvas: character cells, shapes, colours and pictures, clipped at its
// edges. The screenshot is read back by the golden tests.
#include <gtest/gtest.h>
#include <png.h>

#include "hilfe.h"

namespace {

struct LeinwandTest : ::testing::Test {
    std::unique_ptr<Leinwand> l = std::make_unique<Leinwand>();
    void SetUp() override {
        std::string fehler;
        ASSERT_TRUE(l->schriftLaden(fehler)) << fehler;
    }
    bool an(int x, int y) const { return l->pixelAn(x, y) != 0xFF000000u; }
    // Every lit pixel lies inside x1..x2, y1..y2; returns how many there are.
    int leuchtendeNurIn(int x1, int y1, int x2, int y2) const {
        int n = 0;
        for (int y = 0; y < Leinwand::HOEHE; ++y)
            for (int x = 0; x < Leinwand::BREITE; ++x)
                if (an(x, y)) {
                    EXPECT_TRUE(x >= x1 && x <= x2 && y >= y1 && y <= y2) << "Bildpunkt " << x << "," << y;
                    ++n;
                }
        return n;
    }
};

}  // namespace

TEST_F(LeinwandTest, ZellenUndFormen) {
    int b = 0, h = 0;
    l->textMessen("Sol III", 20, b, h);
    EXPECT_EQ(b, 7 * 16);
    l->textMessen("Sol III", 15, b, h);
    EXPECT_EQ(b * 100 + h, 7 * 12 * 100 + 23);
    // A character stays in its cell, wide and deep glyphs are cut there; off the edge: clipped.
    l->text(T(" _gÄ"), 15, 300, 100, 16777215);
    EXPECT_GT(leuchtendeNurIn(312, 100, 347, 122), 20);
    l->text("WWWW", 20, 1010, 755, 255);
    l->text("WWWW", 20, -30, -10, 255);
    // Colours come as blue-green-red; corners in any order; clipped to the canvas.
    l->leeren();
    l->box(9, 9, 0, 0, 255);
    l->box(10, 0, 19, 9, 65280);
    l->box(20, 0, 29, 9, 16711680);
    EXPECT_TRUE(l->pixelAn(5, 5) == 0xFFFF0000u && l->pixelAn(15, 5) == 0xFF00FF00u && l->pixelAn(25, 5) == 0xFF0000FFu);
    EXPECT_EQ(leuchtendeNurIn(0, 0, 29, 9), 300);
    l->box(-50, -50, 5000, 5000, 255);
    EXPECT_EQ(l->pixelAn(1023, 767), 0xFFFF0000u);

    l->leeren();
    l->rahmen(150, 120, 100, 100, 16777215, 2);
    EXPECT_TRUE(an(100, 100) && an(101, 101) && an(149, 119) && !an(102, 102));
    l->leeren();
    l->rahmen(100, 100, 150, 120, 16777215, 1);
    EXPECT_EQ(leuchtendeNurIn(100, 100, 150, 120), 2 * 51 + 2 * 19);
    l->leeren();
    l->linie(10, 10, 20, 20, 16777215, 1);
    EXPECT_TRUE(an(10, 10) && an(15, 15) && an(20, 20));
    EXPECT_EQ(leuchtendeNurIn(10, 10, 20, 20), 11);
    l->leeren();
    l->linie(10, 50, 60, 50, 16777215, 2);  // two rows
    EXPECT_EQ(leuchtendeNurIn(10, 50, 61, 51), 2 * 52);
    l->linie(-500, -300, 2000, 1500, 255, 2);
    l->kreis(1020, 5, 40, 255, true, 1);
    l->kreis(5, 760, 40, 255, false, 2);
}

TEST_F(LeinwandTest, BilderUndPlatzhalter) {
    const std::string ordner = TempOrdner("leinwand-bilder");
    std::filesystem::create_directories(ordner + "/bilder");
    auto png = [&](const std::string& name, int seite, uint8_t r, uint8_t b) {
        std::vector<uint8_t> rgb;
        for (int i = 0; i < seite * seite; ++i) rgb.insert(rgb.end(), {r, 0, b});
        png_image bild{};
        bild.version = PNG_IMAGE_VERSION, bild.width = bild.height = static_cast<png_uint_32>(seite);
        bild.format = PNG_FORMAT_RGB;
        ASSERT_TRUE(png_image_write_to_file(&bild, (ordner + "/bilder/" + name).c_str(), 0, rgb.data(), 0, nullptr));
    };
    png("Sound.png", 17, 0, 255);
    png("Grossfrachter.png", 10, 255, 0);  // the wrong size: a placeholder
    EXPECT_EQ(l->bilderLaden(ordner), 1);

    int b = 0, h = 0;
    ASSERT_TRUE(l->bildGroesse(T("Großfrachter"), b, h));
    EXPECT_EQ(b * 1000 + h, 68068);
    EXPECT_TRUE(l->bild(T("Großfrachter"), 100, 100));
    EXPECT_EQ(leuchtendeNurIn(100, 100, 167, 167), 68 * 68);
    EXPECT_NE(l->pixelAn(100, 100), l->pixelAn(130, 130)) << "a frame round a grey face";
    l->leeren();
    EXPECT_TRUE(l->bild("Sound", 10, 20) && l->pixelAn(26, 36) == 0xFF0000FFu);
    EXPECT_EQ(leuchtendeNurIn(10, 20, 26, 36), 17 * 17);
    EXPECT_FALSE(l->bild("Gibt es nicht", 0, 0));
    EXPECT_TRUE(l->bild("Portal", 900, 700) && l->bild("Portal", -100, -100));  // clipped
    std::filesystem::remove_all(ordner);
}
