#!/usr/bin/env bash
# exports_test.sh LIBRARY HEADERS: the library exports the functions that its headers declare, and nothing else.
set -euo pipefail
declared=$(grep -ohE 'RADIO_API [a-z]+ [A-Za-z0-9]+\(' "$2"/*.h | sed -E 's/.* ([A-Za-z0-9]+)\(/\1/' | sort)
exported=$(nm -D --defined-only "$1" | awk '{print $3}' | sort)
[ -n "$declared" ]
diff <(echo "$declared") <(echo "$exported")
