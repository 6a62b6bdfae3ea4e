#!/bin/sh
# The sample devices' PPDs, and the ones that tests read, are sound, and the
# committed sample PPDs are what make-ppds writes.
set -eu
source=$1
ppds=$source/resources/ppds
status=0

# Page size names are those that tickets know; some have another name in the
# standard's table, which is a warning and no error.
cupstestppd -q "$ppds"/*.ppd "$source"/tests/data/ppds/*.ppd || {
    echo "cupstestppd finds errors:"
    cupstestppd "$ppds"/*.ppd "$source"/tests/data/ppds/*.ppd | grep -B1 -A4 FAIL
    status=1
}

# Python is not needed to build, and so need not be here.
if command -v python3 >/dev/null; then
    fresh=$(mktemp -d)
    trap 'rm -rf "$fresh"' EXIT
    python3 "$ppds/make-ppds" "$fresh"
    for made in "$fresh"/*.ppd; do
        cmp "$made" "$ppds/${made##*/}" || status=1
    done
    for kept in "$ppds"/*.ppd; do
        [ -f "$fresh/${kept##*/}" ] || { echo "make-ppds does not write ${kept##*/}"; status=1; }
    done
fi
exit $status
