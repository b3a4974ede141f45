#!/usr/bin/env bash
# Builds the Debian package in the given build folder and checks what it
# holds: the program, its data, the desktop entry, icons, man page and
# metainfo, and that the Debian and freedesktop checkers accept them.
# Needs no display and no sound card.
set -euo pipefail
BAU="${1:?Aufruf: paket_pruefen.sh BAUORDNER}"
fehler=0
pruefe() {  # pruefe BESCHREIBUNG BEFEHL...
  local was="$1"; shift
  if "$@"; then echo "ok:     $was"; else echo "FEHLER: $was"; fehler=1; fi
}

{ cmake --build "$BAU" --target quorvant quorvant_handbuch && cmake --build "$BAU" --target package; } >"$BAU/paket_bau.log" 2>&1 || { cat "$BAU/paket_bau.log"; exit 1; }
version=$(sed -n 's/^set(CPACK_PACKAGE_VERSION "\(.*\)")$/\1/p' "$BAU/CPackConfig.cmake")
deb="$BAU/quorvant_${version}_amd64.deb"
pruefe "Paket $deb gebaut" test -s "$deb"

liste=$(dpkg-deb -c "$deb" | awk '{print $6}' | sed 's|^\./|/|')
enthaelt() { grep -qx "$1" <<<"$liste"; }
anzahl() { grep -c "$1" <<<"$liste" || true; }
pruefe "Programm /usr/games/quorvant" enthaelt /usr/games/quorvant
pruefe "Sternliste" enthaelt /usr/share/games/quorvant/Planetenliste.bin
pruefe "44 Bilder" test "$(anzahl '^/usr/share/games/quorvant/bilder/.*\.png$')" -eq 44
pruefe "7 Musikstücke" test "$(anzahl '^/usr/share/games/quorvant/Musik/.*\.mid$')" -eq 7
pruefe "Desktop-Eintrag" enthaelt /usr/share/applications/de.quorvant.Quorvant.desktop
pruefe "Metainfo" enthaelt /usr/share/metainfo/de.quorvant.Quorvant.metainfo.xml
pruefe "Handbuchseite" enthaelt /usr/share/man/man6/quorvant.6.gz
for n in 32 48 64 128 256; do
  pruefe "Symbol ${n}x${n}" enthaelt "/usr/share/icons/hicolor/${n}x${n}/apps/quorvant.png"
done
pruefe "keine Spielstände im Paket" test "$(anzahl '\.qvt$')" -eq 0

steuer=$(dpkg-deb -f "$deb")
echo "$steuer" | grep -E '^(Package|Version|Architecture|Section|Depends):'
abhaengig=$(dpkg-deb -f "$deb" Depends)
for p in libsdl2-2.0-0 libsdl2-mixer-2.0-0 libfreetype6 libfontconfig1 libpng16-16 libc6 timgm6mb-soundfont fonts-liberation2; do
  pruefe "hängt ab von $p" grep -q "\\b$p\\b" <<<"$abhaengig"
done
pruefe "Architektur amd64" test "$(dpkg-deb -f "$deb" Architecture)" = amd64

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
dpkg-deb -x "$deb" "$tmp"
pruefe "desktop-file-validate" desktop-file-validate "$tmp/usr/share/applications/de.quorvant.Quorvant.desktop"
pruefe "appstreamcli validate" appstreamcli validate --no-net "$tmp/usr/share/metainfo/de.quorvant.Quorvant.metainfo.xml"
pruefe "Handbuchseite ohne Warnungen" bash -c "zcat '$tmp/usr/share/man/man6/quorvant.6.gz' | LC_ALL=C.UTF-8 groff -k -man -Tutf8 -ww -z 2>&1 | (! grep .)"
for n in 32 48 64 128 256; do
  pruefe "Symbol ${n}x${n} ist ein PNG dieser Größe" \
    bash -c "file '$tmp/usr/share/icons/hicolor/${n}x${n}/apps/quorvant.png' | grep -q 'PNG image data, $n x $n'"
done
pruefe "Programm ist gestrippt" bash -c "file '$tmp/usr/games/quorvant' | grep -q 'stripped' && ! file '$tmp/usr/games/quorvant' | grep -q 'not stripped'"
# The unpacked game, started without options, finds its pictures and music.
ausgabe=$(cd /; SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy HOME="$tmp" XDG_DATA_HOME="$tmp/xdg" \
          timeout -s KILL 4 "$tmp/usr/games/quorvant" 2>&1 || true)
pruefe "das Spiel findet seine Bilder und Musik" bash -c "! grep -E 'Bildern|Musik|Planetenliste' <<<'$ausgabe'"
[ -z "$ausgabe" ] || echo "$ausgabe"
exit $fehler
