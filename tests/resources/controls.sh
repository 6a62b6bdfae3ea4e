#!/bin/sh
# docs/controls.md is what the program lists. Where it differs, make it again:
# kelvo-print --list-controls > docs/controls.md
set -eu
"$1" --list-controls | diff -u "$2/docs/controls.md" -
