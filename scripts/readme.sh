#!/usr/bin/env bash
# Puts the demo's Grupos screen into the README as it stands in its files.
set -euo pipefail
cd "$(dirname "$0")/.."
python3 - <<'P'
import re
texto = open("README.md").read()
def bloco(m):
    return f"<!-- {m[1]} -->\n```{m[2]}\n{open(m[1]).read()}```"
open("README.md", "w").write(re.sub(r"<!-- (\S+) -->\n```(\w+)\n.*?```", bloco, texto, flags=re.S))
P
