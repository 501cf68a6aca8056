# Shared by .ci/run and its steps: installs Debian packages that are missing.
need() {
  local missing=()
  for pkg in "$@"; do
    dpkg -s "$pkg" >/dev/null 2>&1 || missing+=("$pkg")
  done
  if [ ${#missing[@]} -gt 0 ]; then
    echo "== installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    if [ -z "${KVT_APT_UPDATED:-}" ]; then apt-get update -qq -o DPkg::Lock::Timeout=600; KVT_APT_UPDATED=1; fi
    apt-get install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=600 "${missing[@]}" >/dev/null
  fi
}

# Runs a step with a heading and its time.
step() {
  local started=$SECONDS
  echo "==== $1"
  "${@:2}"
  echo "==== $1: done in $((SECONDS - started)) s"
}
