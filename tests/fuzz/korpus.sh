#!/usr/bin/env bash
# Seed corpus for the saved-game fuzzer: games the headless driver plays, a
# new one and some years on, with one to six players. Each file holds the
# state bytes as a saved game holds them.
# Usage: korpus.sh QUORVANT-HEADLESS ORDNER
set -euo pipefail
treiber="$1"
ordner="$2"
mkdir -p "$ordner"
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=0}"

# The inputs of a new game: intro, "Neues Spiel?" ja, players, 100 systems,
# low demand, no time limit, capital, names.
neues_spiel() {
  local spieler="$1" kapital="$2"
  printf 'key SPACE\nwait 200\nkey ENTER\nkey %s\nkey ENTER\nkey ENTER\nkey ENTER\nkey ENTER\n' "$spieler"
  printf 'type %s\nkey ENTER\n' "$kapital"
  for ((i = 1; i <= spieler; i++)); do printf 'type Spieler%s\nkey ENTER\n' "$i"; done
}

# A turn with orders: a cruiser, a tanker and a scout from the docks, and
# the freighter off to the nearest star to the right of Sol.
befehle() {
  local typ
  for typ in K T S; do printf 'key D\nkey ENTER\nkey ENTER\nkey %s\nkey ENTER\nkey ENTER\nkey ESC\nkey ESC\n' "$typ"; done
  printf 'key R\nkey ENTER\nkey ENTER\nkey ENTER\nkey SPACE\nkey RIGHT\nkey ENTER\nkey ESC\nkey ESC\n'
}

# Every player gives his orders (or none); player 1 lets the years run.
jahre() {
  local spieler="$1" anzahl="$2" mitBefehlen="$3"
  [ "$mitBefehlen" = ja ] && befehle
  [ "$anzahl" -gt 0 ] || return 0
  printf 'key A\nkey ENTER\ntype %s\nkey ENTER\n' "$anzahl"
  printf 'key W\nkey ENTER\n'
  for ((i = 2; i <= spieler; i++)); do
    [ "$mitBefehlen" = ja ] && befehle
    printf 'key W\nkey ENTER\n'
  done
  # Story screens and news pages of the years wait for a key.
  for ((i = 1; i <= 40; i++)); do printf 'key ESC\n'; done
}

spiel() {
  local name="$1" spieler="$2" kapital="$3" anzahl="$4" saat="$5" mitBefehlen="${6:-nein}"
  { neues_spiel "$spieler" "$kapital"; jahre "$spieler" "$anzahl" "$mitBefehlen"; } >"$ordner/$name.skript"
  "$treiber" --seed "$saat" --script "$ordner/$name.skript" --state "$ordner/$name.qvt" >/dev/null 2>&1 || true
  rm -f "$ordner/$name.skript"
  [ -s "$ordner/$name.qvt" ] || { echo "korpus.sh: $name nicht erzeugt" >&2; exit 1; }
}

spiel neu-1 1 5000 0 7
spiel neu-6 6 2000 0 11
spiel jahre-1-10 1 5000 10 3
spiel jahre-3-5 3 8000 5 5
spiel jahre-2-40 2 20000 40 9
spiel befehle-1-0 1 50000 0 3 ja
spiel befehle-1-12 1 50000 12 4 ja
spiel befehle-3-25 3 50000 25 6 ja
