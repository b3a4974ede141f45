#!/usr/bin/env bash
# CPU use of the real window, in percent of one core, at two moments:
#   Lauftext  while the intro's scroller runs (a text step every 150 ms, the
#             pirate moving every 50 ms; goal: under 5 %)
#   Eingabe   while "Neues Spiel?" waits for a key (goal: under 0.5 %)
# Runs the game under Xvfb and reads its CPU time from /proc over a while.
#   bench/leerlauf_cpu.sh [SEKUNDEN]
#   GROESSE=2048x1536 bench/leerlauf_cpu.sh    # the window enlarged to that size
#   TON=an bench/leerlauf_cpu.sh               # with the music (synthesised in software)
#   PROGRAMM=/pfad/quorvant bench/leerlauf_cpu.sh
# Needs: apt-get install xvfb xauth xdotool
set -euo pipefail
cd "$(dirname "$0")/.."
SEKUNDEN="${1:-15}"
GROESSE="${GROESSE:-1024x768}"
PROGRAMM="${PROGRAMM:-./build/quorvant}"
if [ "${TON:-aus}" = an ]; then export SDL_AUDIODRIVER=dummy; else export SDL_AUDIODRIVER=keiner; fi
export XDG_DATA_HOME="$(mktemp -d)"
trap 'rm -rf "$XDG_DATA_HOME"' EXIT
xvfb-run -a -s "-screen 0 ${GROESSE}x24" bash -c '
  "'"$PROGRAMM"'" 2>/dev/null & pid=$!
  # Run time in ns of all threads, as the scheduler counts it: exact, unlike
  # the tick-sampled times of /proc/PID/stat that a 5 ms poll aliases with.
  laufzeit() { cat /proc/$pid/task/*/schedstat 2>/dev/null | awk "{s+=\$1} END{printf \"%.0f\", s}"; }
  messen() {  # messen NAME: CPU share of the game over the next seconds
    local t0 t1 a b
    t0=$(laufzeit); a=$(date +%s%N)
    sleep '"$SEKUNDEN"'
    t1=$(laufzeit); b=$(date +%s%N)
    awk -v n="$1" -v t0="$t0" -v t1="$t1" -v a="$a" -v b="$b" \
        "BEGIN{printf \"%-9s %5.2f %% eines Kerns\n\", n, 100*(t1-t0)/(b-a)}"
  }
  fenster=$(xdotool search --sync --pid $pid | head -1)
  if [ "'"$GROESSE"'" != 1024x768 ]; then
    b=${GROESSE%x*}; h=${GROESSE#*x}
    xdotool windowmove $fenster 0 0 windowsize $fenster "${b}" "${h}"
  fi
  sleep 4                      # the banner takes about three seconds; then the scroller runs
  messen Lauftext
  xdotool key space            # ends the scroller: the prompt waits
  sleep 2
  messen Eingabe
  kill $pid
' 2>&1 | grep -v "X connection"
