#!/usr/bin/env bash
# Builds the fuzz targets and runs each on its corpus, which stays as it is. What is found on the way
# is kept in build/fuzz/finds, an input that breaks a target in build/logs.
#
#   fuzz/run.sh [SECONDS]    of processor time for each target; ten without a number
#   fuzz/run.sh grow [SECONDS [TARGET]...]
#                            runs one after the other, 300 seconds without a number, and makes each
#                            corpus the fewest inputs that reach all that was reached
#   fuzz/run.sh record       writes the inputs with a name anew, from the simulated office
set -u
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
source tools/build.sh

mkdir -p build/logs || exit 1
build_quietly fuzz || exit 1
if [[ ${1:-} == record ]]; then
    exec build/fuzz/record_fuzz_corpus fuzz/corpus
fi
if [[ ${1:-} == grow ]]; then
    exec nice tools/grow_fuzz.py build/fuzz fuzz/corpus build/logs "${2:-300}" "${@:3}"
fi
exec tools/run_fuzz.py build/fuzz fuzz/corpus build/logs "${1:-10}"
