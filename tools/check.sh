#!/usr/bin/env bash
# The look of the sources and who may include whom; quick, runs with the tests.
set -euo pipefail
cd "$(dirname "$0")/.."
bad=0
say() { echo "check: $*"; bad=1; }
sources() { git ls-files -co --exclude-standard -- "$@" | grep -E '\.(cpp|h)$' || true; }

clang-format --dry-run --Werror $(sources .) 2>&1 | head -20
[ "${PIPESTATUS[0]}" -eq 0 ] || say "clang-format would change the lines above"

# Core files include no widget header: the core could run where there is no screen.
subjects=$(sources . | grep -vE '^(tests|samples|bench)/')
core=$(echo "$subjects" | grep -vE '/(frm|Frm|form_)[^/]*$|/main.cpp|^ui/[^m][^/]*/')
hits=$(grep -nE '#include <(QtWidgets|QtGui|QtPrintSupport|Q(Widget|Application|Dialog|Painter|Table|Line|Label|Main|Message|Font|Print|Color))' $core || true)
[ -z "$hits" ] || { echo "$hits"; say "a core file includes a widget header"; }

# Arrows point one way.
grep -nHoE '^#include "[^"]+"' $subjects | tr -d '"' | awk '
  function room(path) { return path ~ /^store\/jet\// ? "store/jet" : substr(path, 1, index(path, "/") - 1) }
  FNR == NR { if ($0 !~ /^#/ && NF) { known[$1] = 1; for (i = 2; i <= NF; i++) may[$1, $i] = 1 } next }
  { split($1, at, ":"); to = $2; from = room(at[1]); target = room(to); sub(/\/[^\/]*$/, "", to) }
  !(from in known) { print $0 ": " from " is not in tools/layers"; next }
  from != target && !((from, target) in may) && !((from, to) in may) { print }
' tools/layers - >/tmp/haeon-arrows.$$ || true
[ ! -s /tmp/haeon-arrows.$$ ] || { cat /tmp/haeon-arrows.$$; say "these includes point the wrong way (tools/layers)"; }
rm -f /tmp/haeon-arrows.$$

# A setting's texts stand in store/settings_table alone.
hits=$(grep -nE '\b(Get|Save)Setting\(' $(sources . | grep -vE '^(tests/|pc/settings)') || true)
[ -z "$hits" ] || { echo "$hits"; say "a setting is read or written past store/settings_table"; }

# One habit for literals (CONTRIBUTING.md).
hits=$(grep -nE '\bQStringLiteral\(|(^|[^:A-Za-z_])QString\("' $(sources .) || true)
[ -z "$hits" ] || { echo "$hits"; say "a literal is u\"...\"_s, or plain where it converts by itself"; }

# Nothing joined into a statement leaves its place.
tools/plain_texts $(echo "$subjects" | grep -vE '^(store/jet|pc|ui)/') ||
  say "a value could become part of a statement"

# What the texts for developers and operators name is there, and every folder stands in the map.
tools/doc_paths $(git ls-files '*.md') || say "a text names a path that is not there"
for folder in $(sources . | grep / | cut -d/ -f1 | sort -u); do
  grep -q "^| \`$folder/\`" README.md || say "$folder/ is not in the README's map"
done
exit $bad
