#!/usr/bin/env bash
# Installs what the game needs from Debian, once; quiet when all is there.
set -euo pipefail
PAKETE=(build-essential cmake pkg-config libsdl2-dev libsdl2-mixer-dev libfreetype-dev
        libfontconfig-dev libpng-dev fonts-liberation2 timgm6mb-soundfont
        libgtest-dev libbenchmark-dev clang-14 libclang-rt-14-dev
        dpkg-dev fakeroot file desktop-file-utils appstream groff-base gzip)
fehlend=()
for p in "${PAKETE[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || fehlend+=("$p")
done
if [ ${#fehlend[@]} -gt 0 ]; then
  echo "Installiere: ${fehlend[*]}"
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y --no-install-recommends "${fehlend[@]}"
fi
