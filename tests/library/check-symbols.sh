#!/usr/bin/env bash
# A library embedded in a host process must neither print nor end that process, and must export
# nothing but its own interface. Usage: check-symbols.sh LIBRARY
set -euo pipefail
library=$1
status=0

# Imports that would print or end the host.
forbidden='^(printf|vprintf|puts|putchar|abort|exit|_exit|_Exit|quick_exit|std::cout|std::cerr|std::clog)(@.*)?$'
imports=$(nm -D --undefined-only "$library" | awk '{print $NF}' | c++filt)
bad_imports=$(grep -E "$forbidden" <<<"$imports" || true)
if [ -n "$bad_imports" ]; then
    echo "forbidden imports in $library:"
    sed 's/^/  /' <<<"$bad_imports"
    status=1
fi

# Exports: only the Korv namespaces, with their classes' type information and virtual tables.
allowed='^((typeinfo|typeinfo name|vtable|VTT) for |(non-)?virtual thunk to )?Korv::'
exports=$(nm -D --defined-only "$library" | awk '$2 != "A" {sub(/^[^ ]+ [^ ]+ /, ""); print}' | c++filt)
if [ -z "$exports" ]; then
    echo "$library exports nothing"
    status=1
fi
bad_exports=$(grep -v -E "$allowed" <<<"$exports" || true)
if [ -n "$bad_exports" ]; then
    echo "symbols outside the Korv namespaces exported by $library:"
    sed 's/^/  /' <<<"$bad_exports"
    status=1
fi

[ $status -eq 0 ] && echo "$(wc -l <<<"$exports") exported symbols, all in the Korv namespaces; no forbidden import"
exit $status
