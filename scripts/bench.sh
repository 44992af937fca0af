#!/usr/bin/env bash
# Installs what is missing, builds, and runs the benchmarks under Wine; writes
# docs/benchmarks.md. Arguments go to the program (e.g. --only tokens,startup).
set -euo pipefail
. "$(dirname "$0")/env.sh"
oru_install
oru_build
oru_start_display
oru_log "running the benchmarks (a few minutes; keep the machine otherwise quiet)"
cd "$ORU_ROOT"
"$(oru_wine64)" "$ORU_BUILD/bin/oru_bench.exe" --markdown docs/benchmarks.md "$@"
cat bench/notes.md >>docs/benchmarks.md
oru_log "wrote docs/benchmarks.md"
