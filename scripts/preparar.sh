#!/usr/bin/env bash
# Installs, by package name, what building and running Ficha needs on Debian 12. Does nothing when
# everything is there. As root, or with sudo.
set -euo pipefail

pacotes=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev libgl-dev
    firebird-dev libfbclient2 firebird3.0-server-core
    libgtest-dev libgmock-dev libbenchmark-dev libqt6sql6-ibase
    libwmf-dev
    fonts-liberation
)

faltam=()
for pacote in "${pacotes[@]}"; do
    estado=$(dpkg-query -W -f='${Status}' "$pacote" 2>/dev/null || true)
    [ "$estado" = "install ok installed" ] || faltam+=("$pacote")
done
[ ${#faltam[@]} -eq 0 ] && exit 0

comando=(env DEBIAN_FRONTEND=noninteractive)
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
        echo "Faltam pacotes e não há sudo. Como root: apt-get install ${faltam[*]}" >&2
        exit 1
    }
    comando=(sudo env DEBIAN_FRONTEND=noninteractive)
fi
echo "Instalando: ${faltam[*]}"
"${comando[@]}" apt-get update -qq
"${comando[@]}" apt-get install -y -qq --no-install-recommends "${faltam[@]}" >/dev/null
