# A bare Debian 12 to try things in: no package but those that make a system, and sudo.
# For scripts that are started at the root of the sources, with $0 as they were called.
# What they try is mounted and ends in a namespace of their own, so that nothing is left to
# be unmounted, whatever ends them. Packages come from where this machine has its own.
#
#   enter_bare "$@"             goes on in the namespace, with the same arguments; then
#                               $folder is a folder of this run's own, below TMPDIR (/var/tmp)
#   make_bare                   the system, as $folder/bare
#   begin_system NAME           a copy of it, $folder/NAME, mounted and with the user "office"
#   in_system USER FOLDER COMMAND...    runs it in the system that was begun last
#   passes WHAT COMMAND...      runs it and tells how it went; tell_results tells all again
#
# With KELVO_BARE_CCACHE=DIR builds in there use that ccache folder and add to it.

stop() {
    echo "tools/${0##*/}: $*" >&2
    exit 2
}

enter_bare() {
    [ "$(id -u)" = 0 ] || stop "only root can make a system of its own; try with sudo"
    command -v debootstrap >/dev/null || stop "debootstrap is missing (apt-get install debootstrap)"
    unshare --mount true 2>/dev/null || stop "this container may not make mount namespaces"
    cache=${KELVO_BARE_CCACHE:-}
    [ -z "$cache" ] || [ -d "$cache" ] || stop "KELVO_BARE_CCACHE: there is no folder $cache"
    if [ -z "${KELVO_BARE_FOLDER:-}" ]; then
        KELVO_BARE_FOLDER=$(mktemp -d "${TMPDIR:-/var/tmp}/kelvo-bare-XXXXXX")
        export KELVO_BARE_FOLDER
        inside=
        clean() {
            trap '' INT TERM HUP
            [ -z "$inside" ] || kill -KILL "$inside" 2>/dev/null || true
            wait
            rm -rf --one-file-system "$KELVO_BARE_FOLDER"
        }
        trap clean EXIT
        trap 'exit 130' INT TERM HUP
        unshare --mount --pid --fork --kill-child "tools/${0##*/}" "$@" </dev/null &
        inside=$!
        status=0
        wait "$inside" || status=$?
        inside=
        exit "$status"
    fi
    folder=$KELVO_BARE_FOLDER
    chmod 755 "$folder"
}

make_bare() {
    # Debian 12 as this machine gets it: "URI SUITE" a line.
    sources=$(apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' |
        awk '$2 ~ /^bookworm/ && $3 == "main" { sub("/*$", "", $1); print $1, $2 }' | sort -u)
    mirror=$(printf '%s\n' "$sources" | awk '$2 == "bookworm" { print $1; exit }')
    [ -n "$mirror" ] || stop "this machine's apt has no source of Debian 12 (bookworm, main)"
    # As apt reaches it, through proxies and all.
    if ! timeout 60 /usr/lib/apt/apt-helper download-file "$mirror/dists/bookworm/Release" \
        "$folder/Release" >"$folder/answer" 2>&1; then
        cat "$folder/answer" >&2
        stop "no package mirror answers: nothing was tried"
    fi
    for scheme in http https; do
        proxy=
        eval "$(apt-config shell proxy "Acquire::$scheme::Proxy")"
        [ -z "$proxy" ] || export "${scheme}_proxy=$proxy"
    done
    include=sudo
    case $sources in
    *https:*) include=sudo,ca-certificates ;;
    esac
    echo "Making a bare Debian 12 ..."
    if ! debootstrap --variant=minbase --include="$include" bookworm "$folder/bare" "$mirror" \
        >"$folder/log" 2>&1; then
        tail -n 20 "$folder/log" >&2
        stop "no bare Debian 12 could be made; the lines above say why"
    fi
    printf '%s\n' "$sources" | sed 's/^\([^ ]*\) \(.*\)$/deb \1 \2 main/' \
        >"$folder/bare/etc/apt/sources.list"
    apt-config dump Acquire >"$folder/bare/etc/apt/apt.conf.d/90machine"
    for keys in /etc/apt/trusted.gpg.d /etc/apt/keyrings /usr/share/keyrings; do
        [ ! -d "$keys" ] || cp -a --no-target-directory "$keys" "$folder/bare$keys"
    done
    cp /etc/resolv.conf /etc/hosts "$folder/bare/etc/"
    echo "127.0.0.1 $(uname -n)" >>"$folder/bare/etc/hosts"
    {
        echo 'Defaults env_keep += "http_proxy https_proxy CCACHE_DIR CCACHE_BASEDIR CCACHE_NOHASHDIR"'
        echo 'office ALL=(ALL) NOPASSWD: ALL'
    } >"$folder/bare/etc/sudoers.d/office"
    chroot "$folder/bare" useradd --create-home office
}

begin_system() {
    try=$1
    system=$folder/$try
    cp -a "$folder/bare" "$system"
    mount --bind "$system" "$system" # a root folder that is no mount allows no namespaces
    mount -t proc proc "$system/proc"
    mount --rbind /dev "$system/dev"
    if [ -n "$cache" ]; then
        mkdir "$system/ccache"
        mount --bind "$cache" "$system/ccache"
    fi
}

in_system() {
    user=$1
    within=$2
    shift 2
    home=/root
    lent= # what is lent is root's: others only read it
    if [ "$user" != root ]; then
        home=/home/$user
        lent=${cache:+yes}
    fi
    set -- env -i HOME="$home" USER="$user" PATH=/usr/sbin:/usr/bin:/sbin:/bin \
        ${lent:+CCACHE_READONLY=1 CCACHE_TEMPDIR=/tmp} \
        ${http_proxy:+"http_proxy=$http_proxy"} ${https_proxy:+"https_proxy=$https_proxy"} \
        ${cache:+CCACHE_DIR=/ccache CCACHE_NOHASHDIR=1 "CCACHE_BASEDIR=$within"} \
        sh -c 'cd "$1" && shift && exec "$@"' sh "$within" "$@"
    if [ "$user" != root ]; then
        set -- setpriv --reuid="$user" --regid="$user" --init-groups "$@"
    fi
    chroot "$system" "$@"
}

all=0
told=
passes() {
    name=$1
    shift
    echo
    echo "---- $try: $name"
    begin=$(date +%s)
    if "$@"; then
        result=passed
    else
        result=FAILED
        all=1
    fi
    told="$told
$try: $name $result after $(($(date +%s) - begin)) s"
}

tell_results() {
    echo "$told"
    exit $all
}
