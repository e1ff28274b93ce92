# shellcheck shell=bash
# Sourced by ManPageCheck.sh and CompletionCheck.sh: what "plurex ... --help" says about every verb.
# PLUREX is an array: the command that runs the tool (after the emulator, if there is one).

# plurex_help_table [WORDS]: one line per fact, tab-separated, for the root and every verb under it:
#   WORDS node                        every group and verb ("plurex", "plurex clip decode")
#   WORDS verb NAME                   a verb of the group WORDS
#   WORDS option NAME                 one line per name: -n and --count
#   WORDS value NAME                  an option that takes a value
#   WORDS choices NAME a,b,c          the fixed choices of an option or argument
#   WORDS positional NAME
#   WORDS example LINE
#   WORDS mention NAME                every option the help text names, wherever
# Hand it to plurex_load.
plurex_help_table() {
    local words=${1:-plurex} help name path
    read -ra path <<<"${words#plurex}"
    help=$("${PLUREX[@]}" "${path[@]}" --help </dev/null) || {
        echo "plurex help: ${words#plurex} --help failed" >&2
        return 1
    }
    printf '%s\tnode\n' "$words"
    awk -v words="$words" '
        BEGIN { OFS = "\t" }
        /^$/ { section = ""; next }
        /^[A-Z][A-Za-z ]*:$/ { section = substr($0, 1, length($0) - 1); next }
        section == "Example" { sub(/^  /, ""); print words, "example", $0; next }
        !/^  [^ ]/ { next }
        section == "Subcommands" || section == "Verbs" { print words, "verb", $1 }
        section == "Options" || section == "Positionals" {
            kind = section == "Options" ? "option" : "positional"
            choices = match($0, /:\{[^}]*\}/) ? substr($0, RSTART + 2, RLENGTH - 3) : ""
            # "--offset UINT=0": a type, one space after the name, means a value.
            takes = $0 ~ /^  [^ ]+ [A-Z]+/ && $2 !~ /^(Excludes|Needs):$/
            n = split($1, names, ",")
            for (i = 1; i <= n; i++) {
                print words, kind, names[i]
                if (takes && kind == "option") print words, "value", names[i]
                if (choices != "") print words, "choices", names[i], choices
            }
        }' <<<"$help"
    plurex_options_in <<<"$help" | sed "s/^/$words\tmention\t/"
    while read -r name; do
        plurex_help_table "$words $name" || return 1
    done < <(awk '/^(Subcommands|Verbs):$/ { on = 1; next } /^$/ { on = 0 } on && /^  [^ ]/ { print $1 }' <<<"$help")
}

# plurex_options_in: the options (-o, --json) named in the text on standard input, one a line, sorted.
plurex_options_in() {
    grep -oE -- '(^|[^[:alnum:]-])--?[[:alpha:]][[:alnum:]-]*' | sed -E 's/^[^-]//' | sort -u
}

# plurex_load TABLE: the facts of the table in the array `facts`, by "WORDS KIND" ("plurex clip decode
# option"): the values one a line; choices by "WORDS choices NAME", comma-separated; and `nodes`.
declare -A facts=()
nodes=()
plurex_load() {
    local words kind name value
    while IFS=$'\t' read -r words kind name value; do
        if [[ $kind == node ]]; then
            nodes+=("$words")
        elif [[ $kind == choices ]]; then
            facts[$words choices $name]=$value
        else
            facts[$words $kind]+=$name$'\n'
        fi
    done <<<"$1"
}

# plurex_within WHAT ITEMS ALLOWED: a failure, counted in `failures`, for the items (one a line) that are
# not among the allowed ones.
failures=0
plurex_within() {
    local -A allowed=()
    local item extra=''
    while IFS= read -r item; do
        [[ -z $item ]] || allowed[$item]=1
    done <<<"$3"
    while IFS= read -r item; do
        if [[ -n $item && -z ${allowed[$item]-} ]]; then
            extra+=" $item"
            allowed[$item]=1
        fi
    done <<<"$2"
    if [[ -n $extra ]]; then
        echo "FAIL $1:$extra" >&2
        failures=$((failures + 1))
    fi
}

# plurex_expect WHAT EXPECTED ACTUAL: a failure unless the two lists hold the same items.
plurex_expect() {
    plurex_within "$1: missing" "$2" "$3"
    plurex_within "$1: unexpected" "$3" "$2"
}
