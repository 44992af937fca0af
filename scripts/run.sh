#!/usr/bin/env bash
# Installs what is missing, builds, and runs oglinfo and recorddemo under Wine.
set -euo pipefail
. "$(dirname "$0")/env.sh"
oru_install
oru_build
oru_start_display
"$(oru_wine64)" "$ORU_BUILD/bin/oglinfo.exe" "$@"
"$(oru_wine64)" "$ORU_BUILD/bin/recorddemo.exe"
oru_log "recorddemo's trace, recording and scene.png are in $ORU_BUILD/recorddemo"
