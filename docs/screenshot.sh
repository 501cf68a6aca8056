#!/bin/sh
# Renders parts of the generated reference to PNG with headless Chromium, to
# look at: the top of the page, and the entries of the functions named.
#   docs/screenshot.sh build/release/reference/reference.html OUTDIR kvtHPT kvtPTHS
set -eu
page=$1 out=$2; shift 2
mkdir -p "$out"
shot() { chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --window-size=1280,"$2" \
           --screenshot="$out/$1.png" "file://$3" 2>/dev/null; }
shot top 1600 "$(readlink -f "$page")"
for id in "$@"; do
  # Keep the navigation and the entry alone: a copy with every other part hidden.
  sed "s|</style>|main>*{display:none} main>#$id{display:block}</style>|" "$page" > "$out/$id.html"
  shot "$id" 700 "$(readlink -f "$out/$id.html")"
  rm "$out/$id.html"
done
