#pragma once
// The picture of the window when it is larger than 1024 x 768: every print,
// line, frame and circle is drawn again at the window's scale, so text stays
// sharp when maximised or in fullscreen. The game keeps its 1024 x 768
// coordinates; this only repeats what it drew, at a finer grain.
//
// What is still visible is kept as a list of drawing steps, so that a new
// window size can make the whole picture anew. A step whose every canvas
// pixel has since been painted over by a box, a picture or a clear is
// forgotten.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "screen/leinwand.h"
#include "screen/sdl/hochschrift.h"

class Hochbild {
public:
    // Canvas pixels, inclusive corners; empty when x2 < x1.
    struct Rechteck {
        int x1 = 0, y1 = 0, x2 = -1, y2 = -1;
        bool leer() const { return x2 < x1 || y2 < y1; }
        void vereinen(const Rechteck& r);
    };

    explicit Hochbild(const Leinwand& leinwand) : leinwand_(leinwand) {}
    bool schriftLaden(std::string& fehler) { return schrift_.laden(fehler); }

    // Scale 0 (or up to 1): only the list is kept, nothing is drawn. Above 1
    // the picture is breite x hoehe pixels and is made anew from the list.
    void massstabSetzen(double s, int breite, int hoehe);
    bool aktiv() const { return s_ > 1.0; }
    double massstab() const { return s_; }
    int breite() const { return b_; }
    int hoehe() const { return h_; }
    const uint32_t* pixel() const { return pix_.data(); }  // 0xAARRGGBB
    // The window pixels that a canvas rectangle touches.
    void fensterRechteck(const Rechteck& r, int& x, int& y, int& b, int& h) const;

    // The steps, given after the canvas has drawn them. Each returns the
    // canvas rectangle it touched (empty when all of it lay outside).
    Rechteck leeren();
    Rechteck text(const std::string& cp1252, int groesse, int x, int y, Farbe f);
    Rechteck linie(int x1, int y1, int x2, int y2, Farbe f, int breite);
    Rechteck rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite);
    Rechteck box(int x1, int y1, int x2, int y2, Farbe f);
    Rechteck kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite);
    Rechteck bild(const std::string& schluessel, int x, int y);

    // For a box laid over the picture for a while.
    struct Stand;
    std::shared_ptr<Stand> sichern() const;
    void zurueckholen(const std::shared_ptr<Stand>& stand);

    size_t schritte() const { return liste_.size(); }  // for tests: the list stays short

private:
    enum class Art { Text, Linie, Box, Kreis, Bild };
    struct Pixelbild {
        int b = 0, h = 0;
        std::vector<uint32_t> pix;
    };
    struct Schritt {
        Art art = Art::Box;
        uint32_t nummer = 0;
        Rechteck bereich;  // canvas pixels it may touch
        uint32_t farbe = 0;
        int a = 0, b = 0, c = 0, d = 0;  // line ends, box corners, circle centre and radius, picture corner
        int breite = 1, groesse = 0;
        bool gefuellt = false;
        std::string text;
        std::shared_ptr<const Pixelbild> bild;
    };

    Rechteck aufnehmen(Schritt s, bool deckend);
    void zeichnen(const Schritt& s);
    void allesZeichnen();
    void aufraeumen();  // forgets the steps nobody can see any more

    // Rasterising at the scale, clipped to the window rectangle of a step.
    int wx(double x) const;  // canvas x edge -> window x edge
    int wy(double y) const;
    void fuellen(const Rechteck& r, uint32_t c);
    void mischen(int x, int y, uint32_t c, double deckung);
    void textZeichnen(const Schritt& s);
    void linieZeichnen(const Schritt& s);
    void kreisZeichnen(const Schritt& s);
    void bildZeichnen(const Schritt& s);

    const Leinwand& leinwand_;
    Hochschrift schrift_;
    double s_ = 0.0;
    int b_ = 0, h_ = 0;
    std::vector<uint32_t> pix_;
    Rechteck klipp_;  // the window rectangle of the step being drawn, as canvas rectangle

    std::vector<Schritt> liste_;
    std::vector<uint32_t> deckung_;  // per canvas pixel: number of the last step that covered it
    uint32_t naechste_ = 1;
    size_t grenze_ = 2048;
    std::vector<std::pair<std::string, std::shared_ptr<const Pixelbild>>> bilder_;  // by key, as drawn
};
