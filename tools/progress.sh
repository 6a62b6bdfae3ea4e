# follow LOG: keeps the lines of a build in LOG, and tells on standard output of every
# twentieth part, by ninja's "[120/640] …" (NINJA_STATUS='[%f/%t] '). What takes seconds
# is not worth a line.
follow() {
    told=0
    while IFS= read -r line; do
        printf '%s\n' "$line" >&3
        count=${line%%]*}
        count=${count#[}
        done=${count%/*}
        total=${count#*/}
        case $done$total in
        '' | *[!0-9]*) continue ;;
        esac
        if [ "$total" -ge 40 ] && [ $((done * 20 / total)) -gt "$told" ]; then
            told=$((done * 20 / total))
            echo "  $done of $total"
        fi
    done 3>"$1"
}

# what_failed LOG: the lines that say it.
what_failed() {
    grep -E -A12 'FAILED|error|Error' "$1" | head -n 80
}
