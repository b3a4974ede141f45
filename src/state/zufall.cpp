// The game's one generator: a 24-bit linear congruential generator.
//
//   x := (x * 0x43FD43FD + 0xC39EC3) mod 2^24,   Rnd = x / 2^24
//
// Every x / 2^24 is exactly a single-precision number, so a draw lies in
// 0 <= Rnd <= 1 - 2^-24 < 1 without any rounding.
#include "state/zufall.h"

#include <cmath>
#include <utility>

#include "state/spiel.h"

namespace {

constexpr uint32_t MASKE = 0xFFFFFFu;
constexpr uint32_t FAKTOR = 0x43FD43FDu;
constexpr uint32_t SUMMAND = 0xC39EC3u;

}  // namespace

// The seed's 32 bits folded into 24: the low 24 bits, with the high byte
// (and the middle ones) mixed in by the shifted copy, so that two seeds that
// differ only in their top byte still start apart.
//   x = ((saat & 0xFFFFFF) ^ (saat >> 8)) & 0xFFFFFF
void Randomize(Spiel& s, uint32_t saat) {
    s.zufall.zustand = ((saat & MASKE) ^ (saat >> 8)) & MASKE;
    s.zufall.folge.clear();
    s.zufall.folgePos = 0;
}

float Rnd(Spiel& s) {
    Zufall& z = s.zufall;
    if (z.folgePos < z.folge.size()) {
        const float r = z.folge[z.folgePos++];
        if (z.folgePos == z.folge.size()) {
            z.folge.clear();
            z.folgePos = 0;
        }
        return r;
    }
    // The product wraps modulo 2^32; masking then leaves it modulo 2^24.
    z.zustand = (z.zustand * FAKTOR + SUMMAND) & MASKE;
    return static_cast<float>(z.zustand) / 16777216.0f;
}

// Int(Rnd x n) + a with n = b - a + 1, in single precision as the game
// counts. The largest draw is 1 - 2^-24, and (1 - 2^-24) x F falls short of
// F by half a step of single precision or more, so it rounds to the number
// one step below F (or is exact when F is a power of two). For n up to 2^24,
// F = n and Int gives at most n - 1, so b comes but b + 1 never does. Wider
// ranges round n itself, by at most half a step, and stay below n too; the
// last line only guards that reasoning, and a reversed range gives a.
long ZufallGanz(Spiel& s, long a, long b) {
    const float r = Rnd(s);
    if (b < a) return a;
    const long n = b - a + 1;
    const long k = static_cast<long>(std::floor(r * static_cast<float>(n)));
    const long z = k + a;
    return z > b ? b : z;
}

void RndFolge(Spiel& s, std::vector<float> folge) {
    s.zufall.folge = std::move(folge);
    s.zufall.folgePos = 0;
}
