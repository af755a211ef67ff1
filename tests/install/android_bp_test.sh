#!/usr/bin/env bash
# android_bp_test.sh SOURCE: both build systems make the library of the same sources, which are all there are.
set -euo pipefail
cd "$1"
diff <(grep -oE '"src/[^"]*\.cpp"' Android.bp | tr -d '"' | sort) <(find src -name '*.cpp' | sort)
