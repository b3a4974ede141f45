#pragma once
// Fixed tables numbered the way the game numbers them: from 1 (or from a
// chosen lower bound), with the first index running fastest in two-index
// tables so that a player's entries stay together in memory and in files.
#include <array>
#include <cassert>
#include <cstdint>
#include <string>

using Integer = int16_t;
using Long = int32_t;
using Single = float;

template <class T, int Von, int Bis>
struct Feld {
    static constexpr int von = Von;
    static constexpr int bis = Bis;
    static constexpr int anzahl = Bis - Von + 1;
    std::array<T, anzahl> w{};
    T& operator()(int i) {
        assert(i >= Von && i <= Bis);
        return w[static_cast<size_t>(i - Von)];
    }
    const T& operator()(int i) const {
        assert(i >= Von && i <= Bis);
        return w[static_cast<size_t>(i - Von)];
    }
    bool operator==(const Feld&) const = default;
};

// Two indices, both from 1; (i, j) with i running fastest.
template <class T, int N1, int N2>
struct Feld2 {
    static constexpr int n1 = N1;
    static constexpr int n2 = N2;
    std::array<T, N1 * N2> w{};
    T& operator()(int i, int j) {
        assert(i >= 1 && i <= N1 && j >= 1 && j <= N2);
        return w[static_cast<size_t>((i - 1) + (j - 1) * N1)];
    }
    const T& operator()(int i, int j) const {
        assert(i >= 1 && i <= N1 && j >= 1 && j <= N2);
        return w[static_cast<size_t>((i - 1) + (j - 1) * N1)];
    }
    bool operator==(const Feld2&) const = default;
};
