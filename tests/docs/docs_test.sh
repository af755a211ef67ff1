#!/usr/bin/env bash
# docs_test.sh SOURCE RADIOCTL MODEM_SIM PROTOCOL_PAGE: what README and docs print is so, and what they tell to type works.
set -euo pipefail
source=$1 radioctl=$2 modem_sim=$3 protocol_page=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$protocol_page" | diff "$source/docs/protocol.md" -
sed -n '/^```cpp$/,/^```$/p' "$source/README.md" | sed '1d;$d' | diff - "$source/examples/client/main.cpp"

# The blocks run with the built programs, which ./dev run and ./dev modem-sim would build first.
mkdir "$work/bin"
ln -s "$radioctl" "$work/bin/radioctl"
ln -s "$modem_sim" "$work/bin/modem-sim"
cat >"$work/bin/dev" <<END
#!/usr/bin/env bash
case \$1 in
run) exec "$radioctl" "\${@:2}" ;;
modem-sim) exec "$modem_sim" "\${@:2}" ;;
esac
exit 2
END
chmod +x "$work/bin/dev"
export PATH=$work/bin:$PATH RADIO_LOG=off RADIO_DEVICE_ROOT=$source/examples/device
unset RADIO_VORN_DEVICE

for page in "$source/README.md" "$source"/docs/*.md; do
    # Each block of shell into a file of its own.
    rm -f "$work"/block.*
    awk -v out="$work/block." '/^```sh$/ {inside = 1; ++n; next} /^```$/ {inside = 0} inside {print > (out n)}' "$page"
    for block in "$work"/block.*; do
        [ -e "$block" ] || continue
        folder=$(mktemp -d -p "$work")
        ln -s "$work/bin/dev" "$folder/dev"
        if ! (cd "$folder" && setsid timeout 60 bash -euc "trap 'kill \$(jobs -p) 2>/dev/null || :' EXIT
            . '$block'" >"$work/output" 2>&1 </dev/null); then
            echo "$page: this does not work:"
            cat "$block" "$work/output"
            exit 1
        fi
    done
done
