#!/usr/bin/env bash
# CompletionCheck.sh SCRIPT PLUREX...: the bash completion SCRIPT offers exactly the verbs and options that
# "plurex ... --help" lists, knows which options take a value, offers the fixed choices the help shows,
# and offers only charsets and cameras that the tool takes.
set -uo pipefail
script=$1
shift
PLUREX=("$@")
# shellcheck source=PlurexHelp.sh
source "$(dirname "$0")/PlurexHelp.sh"
table=$(plurex_help_table) || exit 1
plurex_load "$table"
# shellcheck source=../../tools/plurex/plurex.bash-completion
source "$script"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# offers WORD...: what completing the last word offers, one a line, as bash would call the function.
COMP_WORDBREAKS=$' \t\n"\'@><=;|&(:'
offers() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMP_LINE="$*"
    COMP_POINT=${#COMP_LINE}
    COMPREPLY=()
    _plurex plurex "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    printf '%s\n' "${COMPREPLY[@]}"
}

for verb in "${nodes[@]}"; do
    read -ra words <<<"$verb"
    name=${verb#plurex}
    name=${name# }
    options=${facts[$verb option]}
    values=${facts[$verb value]-}
    if [[ -n $name ]]; then  # the root's, taken after any verb
        options+=$'--json\n-o\n--output\n'
        values+=$'-o\n--output\n'
    fi
    plurex_expect "'$verb -' offers its options" "$options" "$(offers "${words[@]}" -)"
    verbs=${facts[$verb verb]-}
    [[ -z $verbs ]] || plurex_expect "'$verb' offers its verbs" "$verbs" "$(offers "${words[@]}" '')"
    plurex_expect "'$verb': the options that take a value" "$values" \
        "$(for option in $options; do _plurex_takes_value "$name" "$option" && printf "%s\n" "$option"; done)"
    positionals=${facts[$verb positional]-}
    for key in "${!facts[@]}"; do
        [[ $key == "$verb choices "* ]] || continue
        option=${key#"$verb choices "}
        choices=${facts[$key]}
        if [[ $option == -* ]]; then
            got=$(offers "${words[@]}" "$option" '')
        else  # an argument: as many words before it as arguments come first
            before=()
            while read -r positional && [[ $positional != "$option" ]]; do
                before+=(x)
            done <<<"$positionals"
            got=$(offers "${words[@]}" "${before[@]}" '')
        fi
        plurex_expect "'$verb $option' offers its choices" "${choices//,/$'\n'}" "$got"
    done
done

# Enumerations, charsets and cameras have no choices in the help: the tool's lists, and what it takes,
# decide.
plurex_expect "'enum list' offers the enumerations" "$("${PLUREX[@]}" enum list | awk '{ print $1 }')" \
    "$(offers plurex enum list '')"
charsets=$("${PLUREX[@]}" text charsets |
    awk '{ sub(/ *\(.*/, ""); print $1; for (i = 2; i <= NF; i++) if ($i != "-") { sub(/,$/, "", $i); print $i } }')
for option in -f --from -t --to; do
    plurex_expect "'text convert $option' offers every charset" "$charsets" "$(offers plurex text convert $option '')"
done
"${PLUREX[@]}" clip new >"$work/clip.json"
texts=$(for charset in $charsets; do
    "${PLUREX[@]}" clip encode --hex --charset "$charset" "$work/clip.json" >/dev/null 2>&1 && echo "$charset"
done)
for verb in decode encode diff; do
    plurex_expect "'clip $verb --charset' offers the charsets of clip texts" "$texts" \
        "$(offers plurex clip $verb --charset '')"
done
cameras=$(for camera in {A..Z}; do
    "${PLUREX[@]}" kep-id --page 1 --bank 1 --clip 1 --camera "$camera" >/dev/null 2>&1 && echo "$camera"
done)
plurex_expect "'kep-id --camera' offers the cameras" "$cameras" "$(offers plurex kep-id --camera '')"

# The words bash splits (--byte-order=b, Essences::V), an option's value before a verb, help's verbs,
# file names.
cd "$work" && touch capture.bin || exit 1
plurex_expect "'--byte-order=b'" big-endian "$(offers plurex clip decode --byte-order = b)"
plurex_expect "'--byte-order='" $'auto\nlittle-endian\nbig-endian' "$(offers plurex clip encode --byte-order =)"
plurex_expect "'enum name Essences::V'" $'VideoCompressionType\nVideoCompressionInfo' \
    "$(offers plurex enum name Essences :: V)"
plurex_expect "'enum value Camera'" "" "$(offers plurex enum value Camera '')"
clipVerbs=${facts[plurex clip verb]}
plurex_expect "'-o FILE clip'" "$clipVerbs" "$(offers plurex -o out clip '')"
plurex_expect "'help clip'" "$clipVerbs" "$(offers plurex help clip '')"
plurex_expect "'help'" "$(grep -vx help <<<"${facts[plurex verb]}")" "$(offers plurex help '')"
plurex_expect "'clip diff A B'" capture.bin "$(offers plurex clip diff capture.bin ca)"
plurex_expect "'text convert -o FILE'" capture.bin "$(offers plurex text convert -o ca)"

((failures == 0)) || exit 1
echo "the completion knows every verb and option"
