#!/usr/bin/env bash
# InstallCheck.sh CMAKE BUILD_DIR MANDIR DATADIR TOOL_SOURCE_DIR: installing the tool component of the build
# into a temporary prefix puts the tool, its man page (compressed as Debian packages want, gzip -9n: no
# name, no time) and its bash completion in place.
set -euo pipefail
cmake=$1 build=$2 mandir=$3 datadir=$4 source=$5
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
"$cmake" --install "$build" --component tool --prefix "$prefix" >/dev/null

test -x "$prefix/bin/plurex" || { echo "FAIL: no bin/plurex"; exit 1; }
page=$prefix/$mandir/man1/plurex.1.gz
gzip -dc "$page" | cmp - "$source/plurex.1" || { echo "FAIL: $page is not plurex.1"; exit 1; }
# Bytes 3 to 7 of a gzip header: the flags (a stored name sets 0x08) and the time.
header=$(od -An -tu1 -j3 -N5 "$page" | tr -s ' ')
[[ $header == " 0 0 0 0 0" ]] || { echo "FAIL: $page keeps a name or a time:$header"; exit 1; }
cmp "$prefix/$datadir/bash-completion/completions/plurex" "$source/plurex.bash-completion" ||
    { echo "FAIL: the completion is not installed"; exit 1; }
echo "installed: bin/plurex, $mandir/man1/plurex.1.gz, $datadir/bash-completion/completions/plurex"
