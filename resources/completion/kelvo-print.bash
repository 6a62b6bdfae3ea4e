# Completion of kelvo-print for bash; needs bash-completion.

# Offers what begins as the current word does, of names on standard input, a line each.
# Not by compgen -W: it would run what a name says, and queues are named by others.
_kelvo_print_offer()
{
    local name
    while IFS= read -r name; do
        printf -v name %q "$name"
        [[ $name != "$cur"* ]] || COMPREPLY+=("$name")
    done
}

# Presets by their file names: one's own, then the site's.
_kelvo_print_presets()
{
    local folder file folders
    IFS=: read -ra folders <<<"${XDG_CONFIG_HOME:-$HOME/.config}:${XDG_CONFIG_DIRS:-/etc/xdg}"
    for folder in "${folders[@]}"; do
        for file in "$folder"/kelvo/presets/*.plist; do
            file=${file##*/}
            [[ $file == '*.plist' ]] || printf '%s\n' "${file%.plist}"
        done
    done
}

_kelvo_print()
{
    local cur prev words cword split
    _init_completion -s || return

    case $prev in
        -d)
            # Two seconds: nobody waits longer for a server that does not answer.
            _kelvo_print_offer < <(kelvo-print --list-printers --timeout 2 2>/dev/null | cut -f 1)
            return
            ;;
        -o)
            compopt -o nospace
            _kelvo_print_offer < <(printf '%s\n' media= sides= orientation-requested= landscape \
                portrait copies= collate= multiple-document-handling= page-ranges= job-priority= \
                job-hold-until=)
            return
            ;;
        -H)
            COMPREPLY=($(compgen -W 'immediate hold day-time evening night second-shift third-shift weekend' -- "$cur"))
            return
            ;;
        --preset)
            _kelvo_print_offer < <(_kelvo_print_presets)
            return
            ;;
        --ppd)
            _filedir '@(ppd|PPD)'
            return
            ;;
        --script)
            _filedir kps
            return
            ;;
        --preset-out | --ticket-in | --ticket-out)
            _filedir plist
            return
            ;;
        --to)
            _filedir -d
            return
            ;;
        --language)
            COMPREPLY=($(compgen -W 'ar de en ja' -- "$cur"))
            return
            ;;
        -n | -P | -q | -t | --secret | --timeout)
            return
            ;;
    esac
    if [[ $split == true ]]; then
        return
    fi

    if [[ $cur == -* ]]; then
        _kelvo_print_offer < <(printf '%s\n' -d -n -o -P -q -H -t --join --ppd --demo --preset \
            --preset-out --ticket-in --ticket-out --script --print --secret --no-window --to --wait \
            --timeout --language --list-printers --list-controls --version --help-scripts -h --help)
        return
    fi
    _filedir '@(pdf|ps|eps|txt|png|jpg|jpeg|gif|bmp|tif|tiff|svg)'
} &&
    complete -F _kelvo_print kelvo-print
