#!/usr/bin/env bash
# Generates the reference documentation of the public headers with Doxygen into
# build/docs/html. Installs what is missing (Doxygen included), configures and
# generates the generated headers first; fails on any Doxygen warning, such as
# a public member without documentation, or a parameter or result of the
# library's own headers without one (second pass, docs/Doxyfile-parameters).
set -euo pipefail
. "$(dirname "$0")/env.sh"
ORU_PACKAGES="$ORU_PACKAGES doxygen"
oru_install
oru_configure
oru_log "generating the generated headers"
cmake --build "$ORU_BUILD" --target oru_generated >/dev/null

ORU_VERSION=$(sed -n 's/^#define ORU_OGL_VERSION_STRING "\(.*\)"$/\1/p' "$ORU_BUILD/generated/oru_ogl/Version.h")
export ORU_ROOT ORU_BUILD ORU_VERSION
rm -rf "$ORU_BUILD/docs"
mkdir -p "$ORU_BUILD/docs"
oru_log "running doxygen $(doxygen --version)"
status=0
(cd "$ORU_ROOT" && doxygen docs/Doxyfile) || status=$?
# The library's own headers also document every parameter and result.
mkdir -p "$ORU_BUILD/docs/parameters"
oru_log "checking the parameters and results of the library's headers"
(cd "$ORU_ROOT" && doxygen docs/Doxyfile-parameters) || status=$?

logs=("$ORU_BUILD/docs/warnings.log" "$ORU_BUILD/docs/parameters/warnings.log")
count=$(cat "${logs[@]}" 2>/dev/null | grep -c . || true)
if [ "$status" -ne 0 ] || [ "${count:-0}" -ne 0 ]; then
    cat "${logs[@]}" >&2 2>/dev/null || true
    oru_log "doxygen: ${count:-0} warning lines, exit status $status"
    exit 1
fi
oru_log "no warnings; open $ORU_BUILD/docs/html/index.html"
