#!/usr/bin/env bash
# Installs what is missing, builds, and runs the benchmarks under Wine; writes
# docs/benchmarks.md. Arguments go to the program (e.g. --only tokens,startup).
set -euo pipefail
. "$(dirname "$0")/env.sh"
oru_install
oru_build
oru_start_display
cd "$ORU_ROOT"
oru_log "load average: $(cut -d' ' -f1-3 /proc/loadavg) (keep the machine otherwise quiet)"
# Start-up with the driver reporting OpenGL 2.1 needs its own process, as Mesa
# reads the override when the program starts.
legacy="$ORU_BUILD/bench-startup-gl21.tsv"
legacy_windows="Z:$(printf '%s' "$legacy" | tr / '\\')"
rm -f "$legacy"
oru_log "start-up with MESA_GL_VERSION_OVERRIDE=2.1"
MESA_GL_VERSION_OVERRIDE=2.1 "$(oru_wine64)" "$ORU_BUILD/bin/oru_bench.exe" --section startup --rows "$legacy_windows" || true
oru_log "the benchmarks"
"$(oru_wine64)" "$ORU_BUILD/bin/oru_bench.exe" --markdown docs/benchmarks.md --legacy-rows "$legacy_windows" "$@"
cat bench/notes.md >>docs/benchmarks.md
oru_log "wrote docs/benchmarks.md"
