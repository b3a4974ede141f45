#pragma once
// The game's one generator. Single precision draws 0 <= Rnd < 1.
#include <cstdint>
#include <vector>

struct Spiel;

void Randomize(Spiel& s, uint32_t saat);
float Rnd(Spiel& s);
// A whole number drawn evenly from a to b: Int(Rnd x (b - a + 1)) + a.
long ZufallGanz(Spiel& s, long a, long b);
// Hands the generator a fixed list of draws, used before its own.
void RndFolge(Spiel& s, std::vector<float> folge);
