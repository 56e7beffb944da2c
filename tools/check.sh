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
core=$(sources app store pc master trade billing giro documents links | grep -vE '/(frm|Frm|form_)[^/]*$|app/main.cpp')
core="$core ui/spread_model.h ui/spread_model.cpp ui/prompts.h ui/commands.h"
hits=$(grep -nE '#include <(QtWidgets|QtGui|QtPrintSupport|Q(Widget|Application|Dialog|Painter|Table|Line|Label|Main|Message|Font|Print|Color))' $core || true)
[ -z "$hits" ] || { echo "$hits"; say "a core file includes a widget header"; }

# Arrows point one way.
arrow() { # folder, what it may not include
  local hits
  hits=$(grep -nE "#include \"($2)/" $(sources "$1") /dev/null || true)
  [ -z "$hits" ] || { echo "$hits"; say "$1 points the wrong way"; }
}
arrow store/jet 'app|store/[^j]|master|trade|billing|giro|documents|links|ui'
arrow pc 'app|store|master|trade|billing|giro|documents|links|ui'
arrow store 'app|master|trade|billing|giro|documents|links'
arrow ui 'app|master|trade|billing|giro|documents|links'
arrow master 'app|trade|billing|giro|documents|links'
arrow trade 'app|billing|giro|documents|links'
arrow billing 'app|trade|giro|documents|links'
arrow documents 'app|trade|billing|giro|links'
arrow links 'app|trade|billing|giro|documents'
arrow giro 'app|trade|documents|links'

# Nothing joined into a statement leaves its place.
tools/plain_texts $(sources app store master trade billing giro documents links | grep -v '^store/jet/') ||
  say "a value could become part of a statement"
exit $bad
