#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite under Wine.
# Without arguments it also builds everything with Clang (build-clang/),
# warnings failing the build, and runs the suite of that build too; arguments
# go to ctest and skip the Clang build.
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
if [ "$#" -eq 0 ]; then
    oru_log "running the tests of the Clang build"
    cd "$ORU_ROOT/build-clang"
    ctest --output-on-failure
fi
