# shellcheck shell=bash
# Sourced by scripts that try something on a bare Debian system, after tools/steps.inc.sh and with
# the project's folder in $top. They must run as root. $work is a scratch folder.

: "${top:?}"
[ "$(id -u)" -eq 0 ] || die "must be run as root"
"$top/tools/install-packages.sh" debian-archive-keyring mmdebstrap
work=$(mktemp -d "${TMPDIR:-/var/tmp}/zrstring.XXXXXX")
chmod 755 "$work"
trap 'rm -rf --one-file-system "$work"' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# make_debian CODENAME FOLDER [OPTION...]: a system of essential packages and apt in FOLDER, with
# mmdebstrap's options.
make_debian() {
  apt-config dump Acquire | grep -E '^Acquire::(https?::|Check-|Retries)' > "$work/apt.conf" || true
  mmdebstrap --mode=root --variant=minbase --aptopt="$work/apt.conf" "${@:3}" \
    --keyring=/usr/share/keyrings/debian-archive-keyring.gpg \
    "$1" "$2" "$("$top/tools/debian-mirror.sh")"
}

# in_debian FOLDER COMMAND...: runs COMMAND in that system. What is mounted for it exists only in
# its own mount namespace and vanishes with its last process.
in_debian() {
  local root=$1
  shift
  # shellcheck disable=SC2016 # expanded by the shell in there
  unshare --mount --propagation private bash -ec '
    mount -t proc proc "$1/proc"
    mount --bind /dev "$1/dev"
    exec chroot "$@"' in_debian "$root" env -i HOME=/root TERM=dumb \
    PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"
}
