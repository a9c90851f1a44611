#!/usr/bin/env bash
# Checks the tree's clang-format and clang-tidy configurations. Needs clang-format, clang-tidy and a
# release build that ./bench.sh has configured. With file names, clang-tidy looks at those only.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t todos < <(git ls-files '*.h' '*.cpp')
clang-format --dry-run --Werror "${todos[@]}"
echo "clang-format: ${#todos[@]} files"
arquivos=("$@")
if [ ${#arquivos[@]} -eq 0 ]; then
    mapfile -t arquivos < <(git ls-files 'src/*.cpp' 'demo/*.cpp' 'bench/*.cpp')
fi
if [[ " ${arquivos[*]}" == *" bench/"* ]] &&
    ! grep -q '"file": ".*/bench/main.cpp"' build/release/compile_commands.json; then
    echo "The bench is not in the release build: ./bench.sh --check puts it there." >&2
    exit 1
fi
# The compiler writes its precompiled header in its own format: clang reads the sources without it.
banco=$(mktemp -d)
trap 'rm -rf "$banco"' EXIT
sed -E 's/-include [^ ]*cmake_pch\.hxx//g; s/-Winvalid-pch//g' build/release/compile_commands.json \
    >"$banco/compile_commands.json"
printf '%s\n' "${arquivos[@]}" |
    xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$banco" 2>/dev/null
echo "clang-tidy: ${#arquivos[@]} files"
