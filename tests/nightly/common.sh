# What the nightly runs share; sourced. Exit 77 is "cannot be run here", as CTest's SKIP_RETURN_CODE has it.

skip() {
  echo "skipped: $*" >&2
  exit 77
}

# need PACKAGE=COMMAND...: installs the packages whose command is missing, where that is possible.
need() {
  local missing=() pair
  for pair in "$@"; do
    PATH=$PATH:/usr/sbin command -v "${pair#*=}" >/dev/null || missing+=("${pair%%=*}")
  done
  [ ${#missing[@]} -eq 0 ] && return
  [ "$(id -u)" -eq 0 ] || skip "not installed: ${missing[*]}"
  apt-get update >/dev/null 2>&1 || true
  DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" >/dev/null 2>&1 ||
    skip "cannot be installed: ${missing[*]}"
}

# await SECONDS COMMAND...: until the command succeeds.
await() {
  local end=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$end" ] || return 1
    sleep 0.1
  done
}

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# Rows of a table that stand in a file so far, without its head.
rows_in() {
  local lines
  lines=$(wc -l <"$1" 2>/dev/null) || lines=1
  echo $((lines - 1))
}
has_rows() { [ "$(rows_in "$1")" -ge "$2" ]; }

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
[ -n "${BUILD:-}" ] || "$root/scripts/build" release lithmark-cli
cli=${BUILD:-$root/build/release}/cli/lithmark-cli
cli=$(readlink -f "$cli")
[ -x "$cli" ] || fail "$cli is not built"
