# shellcheck shell=bash
# Roots of Debian releases to build and test in. They are kept in the user's cache folder and used again.

cache=${XDG_CACHE_HOME:-$HOME/.cache}/kzmutilities/matrix

# Where this machine's apt takes its packages from.
mirror() { apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | grep -m 1 debian/; }

# prepare_root ROOT: makes it if it is not there: RELEASE, or RELEASE-i386, RELEASE-cross, RELEASE-bare or
# RELEASE-empty. RELEASE-new is made anew each time, from the one that stays empty.
prepare_root() {
    local root=$1 release=${1%%-*} architecture
    case $root in
        *-new)
            prepare_root "$release-empty" && leave_root "$root" && cp -a "$cache/$release-empty" "$cache/$root"
            return
            ;;
        *-i386) architecture=i386 ;;
        *) architecture=$(dpkg --print-architecture) ;;
    esac
    [ ! -e "$cache/$root/ready" ] || return 0
    rm -rf --one-file-system "${cache:?}/$root"
    debootstrap --variant=minbase --arch="$architecture" --include=ca-certificates "$release" "$cache/$root" \
        "$(mirror)" &&
        cp -L /etc/resolv.conf "$cache/$root/etc/resolv.conf" &&
        touch "$cache/$root/ready"
}

# leave_root ROOT: nobody uses it any more; what is made anew each time need not be kept.
leave_root() { case $1 in *-new) rm -rf --one-file-system "${cache:?}/$1" ;; esac; }

# in_root ROOT FOLDER SCRIPT ARGUMENTS: runs the script, named from the folder, there, with nothing of this machine's
# environment. The mounts are gone when it ends.
in_root() {
    local root=$1 folder=$2 script=$3 arguments=$4
    unshare --mount --propagation private bash -euc '
        root=$1 folder=$2 script=$3 arguments=$4
        bind_device() { touch "$root/dev/$1" && mount --bind "/dev/$1" "$root/dev/$1"; }
        case $root in
            *-bare) for device in null zero full random urandom; do bind_device $device; done ;;
            *)
                mount --bind /dev "$root/dev"
                mount -t devpts -o newinstance,ptmxmode=0666 devpts "$root/dev/pts"
                mount -t proc proc "$root/proc"
                ;;
        esac
        exec chroot "$root" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 TERM=dumb \
            DEBIAN_FRONTEND=noninteractive bash -euo pipefail -c \
            "cd $folder && . ./$script" "$script" "$arguments"
    ' in_root "$cache/$root" "$folder" "$script" "$arguments"
}
