#!/bin/sh
# kvtcalc's table and batch modes, end to end: row counts, the failed point's
# empty value and code, units on input, and batch results equal to single
# calls bit for bit. Usage: kvtcalc_arrays.sh KVTCALC
set -eu
calc=$1
fail() { echo "FAIL: $*"; exit 1; }
tmp=$(mktemp -d); trap 'rm -rf "$tmp"' EXIT

"$calc" table HPT p=1e5:1e7:5 T=300:900:13 > "$tmp/t.csv"
[ "$(head -1 "$tmp/t.csv")" = "p [Pa],T [K],HPT [J/kg],code" ] || fail "table header: $(head -1 "$tmp/t.csv")"
[ "$(tail -n +2 "$tmp/t.csv" | wc -l)" -eq 65 ] || fail "table rows"
"$calc" table VPT p=1e5 T=100:400:4 | grep -q '^100000,100,,2$' || fail "failed point"
"$calc" --units eng table TSP p=1bar:100bar:2 | grep -q '^1,99.6' || fail "eng table"

# A header, a row with units, a bad row and a row out of range; the run goes on.
printf 'p,T\n1e5,300\n30bar,300C\nfoo,1\n1e5,200\n' | "$calc" --exact batch HPT > "$tmp/b.csv" 2>/dev/null
[ "$(sed -n 2p "$tmp/b.csv")" = "1e5,300,$("$calc" --exact HPT 1e5 300),0" ] || fail "batch row: $(sed -n 2p "$tmp/b.csv")"
[ "$(sed -n 3p "$tmp/b.csv")" = "30bar,300C,$("$calc" --exact HPT 3e6 573.15),0" ] || fail "batch units"
[ "$(sed -n 4p "$tmp/b.csv")" = "foo,1,,1" ] || fail "bad row: $(sed -n 4p "$tmp/b.csv")"
[ "$(sed -n 5p "$tmp/b.csv")" = "1e5,200,,2" ] || fail "range row"
echo ok
