#!/usr/bin/env bash
# Sets everything up, measures everything in one run, prints the table and writes it to
# docs/performance.md. Ends with 1 when a figure is not reached.
#   ./bench.sh                 everything, at full size
#   ./bench.sh --check         small sizes and generous bounds, for the CI; writes no file
#   ./bench.sh leitura telas   only these groups; writes no file
set -euo pipefail
cd "$(dirname "$0")"
./scripts/preparar.sh

export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
export CCACHE_SLOPPINESS=pch_defines,time_macros
export LC_ALL=C.UTF-8
lancador=()
command -v ccache >/dev/null && lancador=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
modo=()
if [ "${1:-}" = --check ]; then
    modo=(--check)
    shift
fi

registro=$(mktemp)
trap 'rm -f "$registro"' EXIT
{ cmake --preset release "${lancador[@]}" -DFICHA_BENCH=ON &&
    cmake --build --preset release --target bancada -- --quiet; } \
    >"$registro" 2>&1 || { cat "$registro"; exit 1; }

programa=build/release/bench/bancada
pasta=build/bench
mkdir -p "$pasta"
grupos=("$@")
[ ${#grupos[@]} -gt 0 ] || mapfile -t grupos < <("$programa" --grupos)
rm -f "$pasta"/*.json
for grupo in "${grupos[@]}"; do
    inicio=$SECONDS
    "$programa" --grupo "$grupo" --pasta "$pasta" "${modo[@]}"
    echo "$grupo: $((SECONDS - inicio)) s" >&2
done
destino=()
[ $# -gt 0 ] || [ ${#modo[@]} -gt 0 ] || destino=(--escrever docs/performance.md)
"$programa" --relatorio --pasta "$pasta" "${modo[@]}" "${destino[@]}" "$@"
