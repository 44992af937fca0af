#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite under Wine.
# Without arguments it also builds everything with Clang (build-clang/),
# warnings failing the build; arguments go to ctest and skip that build.
set -euo pipefail
. "$(dirname "$0")/env.sh"
oru_install
oru_build
# The whole suite (no arguments, as CI runs it) also builds with Clang.
[ "$#" -ne 0 ] || oru_build_clang
oru_start_display
oru_log "running the tests"
cd "$ORU_BUILD"
ctest --output-on-failure "$@"
