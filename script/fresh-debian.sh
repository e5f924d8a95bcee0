# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# To be sourced: makes a fresh Debian below build/ and runs commands in it. Nothing outside its folder is touched.
# Takes root or sudo, and the network. The machine's mirror, proxies, npm registry and certificates hold in there.

asRoot=()
[[ $EUID -eq 0 ]] || asRoot=(sudo)

root= # the folder of the system that was made last

# Removes it, with what may still be mounted elsewhere left alone.
removeDebian() { [[ -z $root ]] || "${asRoot[@]}" rm -rf --one-file-system "$root"; }

# freshDebian RELEASE: makes the system, with nothing but what every Debian has, in the place of an earlier one
freshDebian() {
    local codename mirror
    case $1 in
    12) codename=bookworm ;;
    13) codename=trixie ;;
    *)
        echo "${0##*/}: \"$1\" is no release of Debian that Selvane knows; 12 and 13 are" >&2
        exit 1
        ;;
    esac
    script/bootstrap fresh-debian
    # Every release lies on the mirror that this machine uses; debootstrap knows one for a machine that isn't Debian.
    # shellcheck disable=SC2016 # apt fills it in
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Origin: Debian' 'Label: Debian' \
        'Component: main' | sed -n 1p)
    root=$PWD/build/debian-$1.root
    removeDebian
    trap removeDebian EXIT
    mkdir -p build
    "${asRoot[@]}" debootstrap --variant=minbase "$codename" "$root" ${mirror:+"$mirror"}
    "${asRoot[@]}" cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
    "${asRoot[@]}" mkdir -p "$root/usr/local/share/ca-certificates"
    find /usr/local/share/ca-certificates -name '*.crt' -exec \
        "${asRoot[@]}" cp -t "$root/usr/local/share/ca-certificates/" {} +
}

# inDebian COMMAND...: runs it as root in the system; what it leaves running or mounted ends with it
inDebian() {
    local name settings=(PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 TERM=dumb)
    for name in http_proxy https_proxy no_proxy; do
        [[ -z ${!name:-} ]] || settings+=("$name=${!name}")
    done
    ! command -v npm >/dev/null || settings+=("npm_config_registry=$(npm config get registry)")
    # The shell stays, as the one that looks after processes whose parents are gone.
    # shellcheck disable=SC2016 # $1 belongs to the inner shell
    "${asRoot[@]}" unshare --mount --pid --fork --kill-child bash -c '
        set -e
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm"
        chroot "$1" env -i "${@:2}"
        exit' bash "$root" "${settings[@]}" "$@" </dev/null
}

# addUser: gives the system the user anna, who may do everything with sudo, and a checkout of the last commit in
# her home
addUser() {
    local checkout=$root/home/anna/selvane
    inDebian apt-get -q update
    inDebian env DEBIAN_FRONTEND=noninteractive apt-get -q -y install --no-install-recommends sudo ca-certificates
    inDebian useradd --create-home --shell /bin/bash anna
    "${asRoot[@]}" tee "$root/etc/sudoers.d/anna" >/dev/null <<'END'
Defaults:anna env_keep += "http_proxy https_proxy no_proxy"
anna ALL=(ALL) NOPASSWD: ALL
END
    "${asRoot[@]}" mkdir "$checkout"
    git archive HEAD | "${asRoot[@]}" tar -x -C "$checkout"
    inDebian chown -R anna: /home/anna/selvane
}

# takePackages FOLDER: the packages that she has made, and nothing else, are in FOLDER afterwards
takePackages() {
    rm -rf "$1"
    mkdir "$1"
    inDebian bash -c 'cd /home/anna/selvane/build/package && tar -c ./*.deb' | tar -x --no-same-owner -C "$1"
}

# asAnna COMMAND...: runs it as that user in her checkout
asAnna() {
    # shellcheck disable=SC2016 # "$@" belongs to the inner shell
    inDebian runuser -u anna -- env HOME=/home/anna USER=anna bash -c 'cd /home/anna/selvane && exec "$@"' bash "$@"
}
