#!/usr/bin/env bash
# ManPageCheck.sh PAGE PLUREX...: the man page PAGE documents every verb and option that "plurex ... --help"
# lists (each verb in its subsection ".SS VERB" of VERBS, with an entry, .TP, for each option, its
# arguments and its example), and names no verb or option that the tool lacks.
set -uo pipefail
page=$1
shift
PLUREX=("$@")
# shellcheck source=PlurexHelp.sh
source "$(dirname "$0")/PlurexHelp.sh"
table=$(plurex_help_table) || exit 1
plurex_load "$table"

# The page as text: roff's escapes for -, the fonts, \ and the empty glyph undone.
text=$(sed -e 's/\\-/-/g' -e 's/\\f[BIRP]//g' -e 's/\\e/\\/g' -e 's/\\&//g' "$page")

# section HEADING: the lines under ".SH HEADING" or ".SS HEADING", to the next heading.
section() {
    awk -v heading="$1" '/^\.S[HS] / { sub(/^\.S[HS] +/, ""); gsub(/"/, ""); on = $0 == heading; next } on' \
        <<<"$text"
}
# The options of the entries (.TP and .TQ tags) of the text on standard input.
entries() {
    awk '/^\.T[PQ]/ { tag = 1; next } tag { print; tag = 0 }' | plurex_options_in
}
long() {
    grep -e '^--' || true
}

root=${facts[plurex option]}
verbs=$(for node in "${nodes[@]}"; do [[ -n ${facts[$node verb]-} ]] || echo "$node"; done)

plurex_expect "the verbs (.SS) under VERBS" "${verbs//plurex /}" \
    "$(awk '/^\.SH/ { on = $2 == "VERBS"; next } on && /^\.SS / { sub(/^\.SS +/, ""); gsub(/"/, ""); print }' \
        <<<"$text")"
plurex_expect "the entries of OPTIONS" "$root" "$(section OPTIONS | entries)"
plurex_within "options the page names and no help does" "$(plurex_options_in <<<"$text" | long)" \
    "$(awk -F'\t' '$2 == "mention" { print $3 }' <<<"$table")"

while read -r verb; do
    name=${verb#plurex }
    body=$(section "$name")
    # -h and --help are every verb's, and under OPTIONS once.
    plurex_within "'$name': options of its help without an entry (.TP) in its section" \
        "$(grep -vxE -e '-h|--help' <<<"${facts[$verb option]}")" "$(entries <<<"$body")"
    plurex_within "'$name': options its section names and its help does not" \
        "$(plurex_options_in <<<"$body" | long)" "${facts[$verb mention]-}$root"
    plurex_within "'$name': entries for options it lacks" "$(entries <<<"$body")" \
        "${facts[$verb option]-}$root"
    plurex_within "'$name': arguments missing from its section" "${facts[$verb positional]-}" \
        "$(grep -oE '[[:alnum:]_]+' <<<"$body")"
    plurex_within "'$name': example lines missing from its section" "${facts[$verb example]-}" "$body"
done <<<"$verbs"

((failures == 0)) || exit 1
echo "$(wc -l <<<"$verbs") verbs, $(grep -c $'\toption\t' <<<"$table") options: the man page matches"
