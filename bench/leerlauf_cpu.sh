#!/usr/bin/env bash
# CPU use of the real window while a prompt waits for a key (goal: under 2 %
# of one core). Runs the game under Xvfb, ends the intro with a key so that
# "Neues Spiel?" waits, and reads the game's CPU time over a while.
# Needs: apt-get install xvfb xdotool
set -euo pipefail
cd "$(dirname "$0")/.."
SEKUNDEN="${1:-20}"
export SDL_AUDIODRIVER=dummy
xvfb-run -a -s "-screen 0 1024x768x24" bash -c '
  ./build/quorvant & pid=$!
  sleep 4                                  # the banner takes about three seconds
  xdotool key space                        # ends the scroller: the prompt waits
  sleep 2
  t0=$(awk "{print \$14+\$15}" /proc/$pid/stat)
  sleep '"$SEKUNDEN"'
  t1=$(awk "{print \$14+\$15}" /proc/$pid/stat)
  kill $pid
  hz=$(getconf CLK_TCK)
  awk -v a="$t0" -v b="$t1" -v hz="$hz" -v s='"$SEKUNDEN"' \
      "BEGIN{printf \"Leerlauf: %.2f %% eines Kerns\n\", 100*(b-a)/hz/s}"
' 2>&1 | grep -v "X connection"
