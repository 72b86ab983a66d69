# What the makers of both packages share. The same commit gives the same bytes.
# shellcheck shell=bash
export LC_ALL=C.UTF-8 TZ=UTC
umask 022

stop() {
  printf '%s\n' "$*" >&2
  exit 1
}
need() { # PROGRAM PACKAGE
  command -v "$1" >/dev/null || stop "The packages cannot be made: there is no $1 here, of the package $2."
}

linux=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
source=$(dirname "$(dirname "$linux")")
# The day of the newest version, where the sources are no clone.
releaseday() { sed -n 's/^## [^,]*, //p' "$source/CHANGELOG.md" | head -n 1; }
if [[ -z ${SOURCE_DATE_EPOCH:-} ]]; then
  SOURCE_DATE_EPOCH=$(git -C "$source" log -1 --format=%ct 2>/dev/null) ||
    SOURCE_DATE_EPOCH=$(date -d "$(releaseday)" +%s)
fi
export SOURCE_DATE_EPOCH

# Everything in FOLDER as it is for everybody, and of one time.
settle() { # FOLDER
  chmod -R u+rwX,go+rX,go-w "$1"
  find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}
