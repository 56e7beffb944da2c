#!/usr/bin/env bash
# A print server of its own in FOLDER, in the foreground: socket FOLDER/sock, no port. Queues with the device
# slips:FOLDER/out leave each job there as NUMBER.pdf, its title and options as NUMBER.txt.
set -euo pipefail
folder=$1
PATH="$PATH:/usr/sbin:/sbin"
command -v cupsd >/dev/null || bash tools/packages.sh check
command -v cupsd >/dev/null || { echo "cupsd is missing and could not be installed" >&2; exit 1; }
mkdir -p "$folder"/{etc,spool/tmp,cache,state,log,out,bin/backend,bin/filter}
ln -sfn /usr/lib/cups/daemon "$folder/bin/daemon"
cat >"$folder/etc/cupsd.conf" <<END
Listen $folder/sock
LogLevel warn
MaxLogSize 0
DefaultAuthType None
WebInterface No
Browsing Off
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
END
cat >"$folder/etc/cups-files.conf" <<END
ServerRoot $folder/etc
ServerBin $folder/bin
RequestRoot $folder/spool
TempDir $folder/spool/tmp
CacheDir $folder/cache
StateDir $folder/state
ErrorLog $folder/log/error
AccessLog $folder/log/access
PageLog $folder/log/page
Sandboxing relaxed
END
cat >"$folder/bin/backend/slips" <<'END'
#!/bin/sh
[ $# -eq 0 ] && { echo 'direct slips:/ "Unknown" "slips"'; exit 0; }
out=${DEVICE_URI#slips:}
cat "${6:-/dev/stdin}" >"$out/$1.part"
printf '%s\n%s\n' "$3" "$5" >"$out/$1.txt"
mv "$out/$1.part" "$out/$1.pdf"
END
chmod 700 "$folder/bin/backend/slips" # so the server runs it as itself
exec cupsd -f -c "$folder/etc/cupsd.conf" -s "$folder/etc/cups-files.conf"
