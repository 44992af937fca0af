#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite under Wine.
set -euo pipefail
. "$(dirname "$0")/env.sh"
oru_install
oru_build
oru_start_display
oru_log "running the tests"
cd "$ORU_BUILD"
ctest --output-on-failure "$@"
