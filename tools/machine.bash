# What ./play and ./check share: the packages that the game needs, and the build.
# shellcheck shell=bash

say() { printf '%s: %s\n' "${0##*/}" "$*"; }
stop() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# CMake reads some characters in the name of a folder as its own, and loses others.
needplainname() {
  # shellcheck disable=SC2016 # as they stand
  local refused='["\\;<>|#*?[:cntrl:]]|\[|\]|\$[({<]|\$ENV\{'
  [[ ! $PWD =~ $refused ]] || stop "I cannot build in this folder, because CMake does not understand" \
    "${BASH_REMATCH[0]@Q} in its name or in one above. Please rename it: $PWD"
}

# Passes its input on, but turns the lines that match PATTERN, whose group is a percentage, into a
# line on descriptor 3 for every tenth of the way.
tenths() { # VERB PATTERN
  local line last=0
  while IFS= read -r line; do
    if [[ ! $line =~ $2 ]]; then
      printf '%s\n' "$line"
    elif ((BASH_REMATCH[1] / 10 > last)); then
      last=$((BASH_REMATCH[1] / 10))
      printf '  %s %s0 percent\n' "$1" "$last" >&3
    fi
  done
}

# The packages wanted for PURPOSE... (build, run, test ...), each with what it is for.
wanted() {
  awk -v purposes=" $* " '
    /^[a-z]/ && index(purposes, " " $1 " ") {
      name = $2; sub(/^[a-z]+ +[^ ]+ +/, ""); print name ": " $0
    }' packages
}

# Those of them that are not installed.
missing() {
  local list installed entry
  list=$(wanted "$@")
  # A name that it does not know at all is merely an error to dpkg-query.
  # shellcheck disable=SC2016 # placeholders of its own
  installed=$(cut -d : -f 1 <<<"$list" |
    xargs dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null) || true
  while IFS= read -r entry; do
    [[ $'\n'$installed$'\n' == *$'\n'"installed ${entry%%:*}"$'\n'* ]] || printf '%s\n' "$entry"
  done <<<"$list"
}

# Runs apt-get; what it says goes to a log, whose end is shown when it fails. Its progress alone goes
# through a pipe: apt does not wait for a reader that falls behind, and neither would the packages'
# own scripts, which fail when they cannot write.
aptget() {
  local log=build/packages.log
  local options=(APT::Status-Fd=3 Acquire::Retries=3 Dpkg::Use-Pty=0 DPkg::Lock::Timeout=600)
  {
    # shellcheck disable=SC2016 # for the shell inside; sudo passes on no descriptors but three
    "${asroot[@]}" sh -c 'exec 3>&1 >&2 && DEBIAN_FRONTEND=noninteractive exec apt-get -y "$@"' \
      apt-get "${options[@]/#/-o}" "$@" 2>"$log" </dev/null |
      tenths fetched '^dlstatus:.*:([0-9]+)(\.[0-9]+)?:' |
      tenths installed '^pmstatus:.*:([0-9]+)(\.[0-9]+)?:' >/dev/null
  } 3>&1 || { tail -n 15 "$log" >&2 && return 1; }
}

# How many megabytes installing PACKAGE... would fetch.
tofetch() {
  apt-get install --print-uris -qq --no-install-recommends "$@" 2>/dev/null |
    awk '{ bytes += $3 } END { printf "%d MB", (bytes + 999999) / 1000000 }'
}

# Installs what is missing for PURPOSE..., telling first what and why. Elsewhere than on Debian and
# Ubuntu it goes by the tools that are there, and names the packages where there are none.
needpackages() {
  local lacking names
  if ! command -v apt-get >/dev/null; then
    needtools && return
    wanted "$@" | sed 's/^/  /'
    stop "There is no apt here. Please install what is named above, in your system's own way."
  fi
  lacking=$(missing "$@")
  [[ -z $lacking ]] && return
  names=$(cut -d : -f 1 <<<"$lacking" | paste -s -d ' ')

  say "These packages are missing:"
  # shellcheck disable=SC2001 # a substitution for each line
  sed 's/^/  /' <<<"$lacking"
  asroot=()
  if ((EUID != 0)); then
    command -v sudo >/dev/null ||
      stop "There is no sudo here. As the administrator, run: apt-get install $names"
    say "sudo installs them, and may ask for your password."
    sudo -v || stop "Not installed, because sudo refused: $names"
    asroot=(sudo)
  fi
  mkdir -p build
  aptget update || say "The lists of packages could not be brought up to date; trying without."
  # shellcheck disable=SC2086 # one word a package
  say "Installing them: $(tofetch $names) to fetch. On a new machine this takes a few minutes."
  # shellcheck disable=SC2086 # one word a package
  aptget install --no-install-recommends $names ||
    stop "apt-get could not install all of these; its reasons are above: $names"
}

# Whether the build's tools are there and new enough.
needtools() {
  local tool version oldest=3.22
  for tool in c++ cmake ninja pkg-config; do
    command -v "$tool" >/dev/null || { say "There is no program \"$tool\" here." && return 1; }
  done
  version=$(cmake --version | awk 'NR == 1 { print $3 }')
  [[ $(printf '%s\n' "$oldest" "$version" | sort -V | head -n 1) == "$oldest" ]] ||
    { say "CMake $version is too old; it takes $oldest or newer." && return 1; }
}

# Whether build/PRESET is prepared, by the presets as they are and for the folder as it is.
configured() { # PRESET
  [[ build/$1/build.ninja -nt CMakePresets.json ]] && ! moved "$1"
}
moved() { # PRESET
  ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$1/CMakeCache.txt"
}

# Prepares build/PRESET. ccache saves time where there is one.
configure() { # PRESET [CMAKE-OPTION...]
  local folder=build/$1 options=("${@:2}") launcher=()
  needtools || stop "So nothing can be built."
  [[ $PWD != *[\&\`\'^]* ]] || launcher+=("$PWD/tools/compile_nearby")
  command -v ccache >/dev/null && launcher+=(ccache)
  options+=("-DCMAKE_CXX_COMPILER_LAUNCHER=$(IFS=';' && printf '%s' "${launcher[*]}")")
  moved "$1" && rm -rf "$folder/CMakeCache.txt" "$folder/CMakeFiles"
  mkdir -p build
  say "Preparing the $1 build."
  cmake --preset "$1" "${options[@]}" >"$folder.log" 2>&1 ||
    { cat "$folder.log" >&2 && stop "The $1 build could not be prepared; the reason is above."; }
}

# Builds what has changed; silent when nothing has.
build() { # PRESET TARGET...
  {
    NINJA_STATUS='%p ' cmake --build --preset "$1" --target "${@:2}" --parallel "$(nproc)" 2>&1 |
      sed -u '/^ninja: no work to do/d; /^ *[0-9]*% Re-/d; /^-- /d' | tenths built '^ *([0-9]+)% '
  } 3>&1 || stop "The $1 build failed; the reason is above."
}
