#!/usr/bin/env bash
# Runs the programs of Debian's 32-bit Wine on a 64-bit machine, whose packages cannot be installed
# beside those of 64 bits:
#   scripts/wine-root.sh wine [argument...]         or wineserver
#   scripts/wine-root.sh --make                     prints the folder they are in, made if need be
#   scripts/wine32/wine [argument...]               the same as the first, for use in PATH
# The packages are unpacked once, into a folder below ${XDG_CACHE_HOME:-~/.cache}/lumenkit, which
# LUMENKIT_CACHE replaces. Only /usr comes from there, all else is the machine's own, under the same
# paths. That view of the files is the program's alone: nothing is mounted for others to see.
set -euo pipefail
top=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)

packages="wine wine32 dash coreutils tzdata"
cache=${LUMENKIT_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/lumenkit}
release=$(. /etc/os-release && echo "$VERSION_CODENAME")

fail() {
    printf 'wine-root: %s\n' "$@" >&2
    exit 1
}

# The machine's own source of the release. Its update suites are not asked: mirrors that carry them
# for one architecture only are common.
write_source() {
    local entry file number
    entry=$(apt-get indextargets --format '$(RELEASE) $(CODENAME) $(COMPONENT) $(SOURCESENTRY)' \
        'Identifier: Packages' |
        awk -v release="$release" '($1 == release || $2 == release) && $3 == "main" {print $4; exit}')
    [ -n "$entry" ] || fail "apt has no source of $release main"
    file=${entry%:*}
    number=${entry##*:}
    case $file in
        *.sources)
            # A paragraph, in which comments may lie.
            grep -v '^#' "$file" | awk -v RS= -v number="$number" 'NR == number' |
                awk '/^[^ \t]/ {kept = tolower($1) !~ /^(types|suites|components|architectures|targets|languages|enabled):/}
                     kept' >"$1/source.sources"
            printf 'Types: deb\nSuites: %s\nComponents: main\nArchitectures: i386\n' "$release" \
                >>"$1/source.sources"
            ;;
        *)
            sed -n "${number}p" "$file" | sed -E "
                s/ arch=[^] ]*//; s/\[arch=[^] ]* ?/[/; s/\[ *\] *//
                s/^(deb +(\[[^]]*\] +)?[^ ]+) .*/\1 $release main/" >"$1/source.list"
            ;;
    esac
}

# apt with the machine's settings and keys, but with packages, lists and sources of its own.
unpacking_apt() {
    apt-get -c "$1/apt.conf" "${@:2}"
}
write_settings() {
    mkdir -p "$1"/{lists,archives}/partial "$1/sources"
    touch "$1/status"
    write_source "$1/sources"
    cat >"$1/apt.conf" <<END
APT::Architecture "i386";
#clear APT::Architectures;
APT::Architectures { "i386"; };
APT::Install-Recommends "false";
APT::Sandbox::User "$(id -un)";
#clear APT::Update::Post-Invoke;
#clear APT::Update::Post-Invoke-Success;
#clear DPkg::Pre-Install-Pkgs;
#clear DPkg::Post-Invoke;
Dir::State::lists "$1/lists";
Dir::State::status "$1/status";
Dir::Cache::archives "$1/archives";
Dir::Cache::pkgcache "";
Dir::Cache::srcpkgcache "";
Dir::Etc::SourceList "/dev/null";
Dir::Etc::SourceParts "$1/sources";
Debug::NoLocking "true";
END
}

# What Wine's package does when it is installed: it takes the compression library in, with the mark by
# which Wine knows its own.
set_up() {
    {
        head -c 64 "$2"
        printf 'Wine builtin DLL\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0'
        tail -c +97 "$2"
    } >"$1/i386-windows/zlib1.dll"
}

# Commands are joined by &&: in a function whose status is tested, set -e has no effect.
make_root() {
    local work=$1/work package
    rm -rf "$1"
    mkdir -p "$1/usr"/{bin,sbin,lib,share/fonts,local,src} &&
        ln -s usr/bin usr/sbin usr/lib "$1/" &&
        write_settings "$work" &&
        unpacking_apt "$work" -qq update &&
        unpacking_apt "$work" -qq --download-only -y install $packages || return
    for package in "$work"/archives/*.deb; do
        # Into /usr also what they have in /lib.
        dpkg-deb --fsys-tarfile "$package" |
            tar -x -C "$1" --keep-directory-symlink --no-same-owner || return
    done
    set_up "$1/usr/lib/i386-linux-gnu/wine" "$1/usr/i686-w64-mingw32/lib/zlib1.dll" &&
        rm -rf "$work" "$1/usr/share"/{doc,man,locale} "$1/usr/lib/i386-linux-gnu/wine/x86_64-windows"
}

# Made by one, awaited by the others. One that was made differently lies elsewhere.
root=$cache/wine32-$(
    {
        declare -f write_source write_settings unpacking_apt set_up make_root
        echo "$packages $release"
    } | sha256sum | cut -c1-16
)
ensure_root() {
    command -v bwrap >/dev/null || "$top/scripts/setup.sh" wine32
    [ ! -d "$root" ] || return 0
    [ "$(dpkg --print-architecture)" = amd64 ] ||
        fail "32-bit programs run on amd64 and i386, not on $(dpkg --print-architecture)"
    mkdir -p "$cache"
    exec 8>"$root.lock"
    flock 8
    if [ ! -d "$root" ]; then
        echo "Fetching Wine for 32-bit programs into $root" >&2
        make_root "$root.part" 8>&- </dev/null >"$root.log" 2>&1 || {
            cat "$root.log" >&2
            fail "Wine for 32-bit programs could not be fetched"
        }
        mv "$root.part" "$root"
    fi
    exec 8>&-
}

# Prints the mounts of the view: /usr from the root, all other folders from the machine. Each line has
# the kind (bind or link), the source and the place, separated by tabs.
places() {
    local place
    printf 'bind\t%s\t/usr\n' "$root/usr"
    for place in /usr/share/fonts /usr/local /usr/src; do
        [ ! -d "$place" ] || printf 'bind\t%s\t%s\n' "$place" "$place"
    done
    for place in /*; do
        case $place in
            /usr | /lib32 | /lib64 | /libx32) ;;
            /bin | /sbin | /lib) printf 'link\tusr%s\t%s\n' "$place" "$place" ;;
            *)
                if [ -L "$place" ] && [ -d "$place" ]; then
                    printf 'link\t%s\t%s\n' "$(readlink "$place")" "$place"
                elif [ -d "$place" ]; then
                    printf 'bind\t%s\t%s\n' "$place" "$place"
                fi
                ;;
        esac
    done
}

# As whoever calls, where users may have namespaces of their own, and as root elsewhere. Both ways
# the program takes the place of this one or ends with it.
run_in_bubble() {
    local arguments=() kind source place
    while IFS=$'\t' read -r kind source place; do
        case $kind in
            bind) arguments+=(--dev-bind "$source" "$place") ;;
            link) arguments+=(--symlink "$source" "$place") ;;
        esac
    done < <(places)
    exec bwrap --die-with-parent "${arguments[@]}" --chdir "$PWD" -- "$@"
}

# Where / is a folder that root changed to, no mount, it cannot be made private, which both
# namespaces of users and bwrap ask for. But /proc can: below it the view is put together.
run_in_changed_root() {
    exec unshare --mount --propagation unchanged -- bash -c '
        set -euo pipefail
        mount --make-rprivate / 2>/dev/null || mount --make-private /proc
        view=/proc/fs
        mount -t tmpfs -o mode=755 wine32 "$view"
        while IFS=$'"'\t'"' read -r -u 7 kind source place; do
            case $kind in
                bind)
                    mkdir -p "$view$place"
                    # Not with the view that lies below it.
                    how=--rbind
                    [ "$place" != /proc ] || how=--bind
                    mount --make-rprivate "$how" "$source" "$view$place"
                    ;;
                link) ln -s "$source" "$view$place" ;;
            esac
        done
        exec 7<&-
        exec chroot "$view" /usr/bin/env -C "$0" "$@"' "$PWD" "$@" 7< <(places)
}

run() {
    export PATH=/usr/bin:/usr/sbin
    if bwrap --dev-bind / / /bin/true 2>/dev/null; then
        run_in_bubble "$@"
    elif [ "$(id -u)" -eq 0 ]; then
        run_in_changed_root "$@"
    fi
    fail "a program cannot be given files of its own here. It takes either namespaces for users" \
        "(\"bwrap --dev-bind / / true\" must succeed) or root, with the right to mount."
}

case $(basename "$0") in
    wine | wineserver) set -- "$(basename "$0")" "$@" ;;
esac
case ${1:-} in
    --make)
        ensure_root
        echo "$root"
        ;;
    wine | wineserver)
        ensure_root
        run "$1-stable" "${@:2}"
        ;;
    *)
        sed -n '2,9s/^# \{0,1\}//p' "$0"
        exit 2
        ;;
esac
