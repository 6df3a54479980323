#!/usr/bin/env bash
# Seeds a demo installation: a bin directory with the data files, logs and a stand-in collector,
# and a settings file that points at it. Running it again gives the same installation: every
# seeded file and value is rewritten, and what the console leaves behind (.bak, .new, the special
# run's list) is removed. Layouts: docs/data-files.md, docs/settings-values.md.
# Usage: seed.sh <directory> <path of the qd7gd tool>
set -euo pipefail
# Byte semantics for printf widths; the data files are single-byte text.
export LC_ALL=C

if [ $# -ne 2 ]; then
    echo "usage: seed.sh <directory> <path of the qd7gd tool>" >&2
    exit 2
fi
here=$(cd "$(dirname "$0")" && pwd)
tool=$2
mkdir -p "$1/bin"
dir=$(cd "$1" && pwd)
bin=$dir/bin
export QD7_REGISTRY=$dir/registry.ini

encrypt() { "$tool" encrypt "$1"; }

# --- Settings -----------------------------------------------------------------------------------

# A fresh store, so that values the console added since the last seed go too.
rm -f "$QD7_REGISTRY"
access=$(encrypt 'Repo-Demo-2002')
set_value() { "$tool" set "$1" "$2"; }
set_value BinDir "$bin"
set_value StatiInput "$bin/qd7server.dat"
set_value SnapInput "$bin/qd7server.dat"
set_value DB Oracle
set_value Oracle 81
set_value User qd7owner
set_value DSN QD7REPO
set_value Access "$access"
set_value Notation .
set_value System_SLA 2000
# Entries of "hh:mm" and one blank, joined; the five overflow values stay empty.
set_value StatiSchedule "06:00 12:00 18:30 "
for n in 2 3 4 5 6; do set_value "StatiSchedule$n" ""; done
set_value SnapRunDays " 31" # Monday to Friday, with the blank of the sign place
set_value SnapSleepTime 300
set_value DetailKeepDays -90
set_value SnapDebug False
set_value StatiDebug False
set_value LoadDebug False

# --- Leftovers of the console and of earlier runs -----------------------------------------------

for name in qd7server.bak qd7server.new qd7SpecRunServList.dat qd7stati.dat \
    qd7AppGroup.new qd7TransGroup.new qd7IDsToIgnore.bak qd7ProgsToIgnore.bak qd7TransToIgnore.bak \
    trace_qd7snapsum.log trace_qd7_load_snap.log trace_qd7_agg_snap.log; do
    rm -f "$bin/$name"
done

# --- qd7server.dat: 183-byte records ending in CR LF --------------------------------------------

# server id password sid client instance language
server_record() {
    local password
    password=$(encrypt "$3")
    printf '%-100.100s%-30.30s%-30.30s%-3.3s%-3.3s%-2.2s%-6.6s%-6.6s%-1.1s\r\n' \
        "$1" "$2" "$password" "$4" "$5" "$6" 000000 240000 "$7"
}
{
    server_record sapprd01.corp.example.com QD7MON 'Prd-Monitor1' PRD 100 00 E
    server_record sapprd02.corp.example.com QD7MON 'Prd-Monitor1' PRD 100 01 E
    server_record sapqas01.corp.example.com QD7MON 'Qas-Monitor7' QAS 200 00 D
    # Reached through a router: only the host after the last "/" is the server's own name.
    server_record /H/saprouter.example.com/S/3299/H/sapdev01.corp.example.com QD7MON 'Dev#Monitor3' DEV 010 10 ""
} >"$bin/qd7server.dat"

# --- SLA groups: 39-byte and 55-byte records, no line ends --------------------------------------

# Group names in order, their stored targets (thousandths of a second) and their members.
groups=("Sales Order Processing" "Purchasing" "Financial Accounting" $'Lager S\xfcd')
targets=(2000 1500 1000 2500)
members=("VA01 VA02 VA03 VL01N VF01" "ME21N ME22N ME23N MIGO MIRO" "FB01 FB03 FB50 FBL1N FBL3N F110"
    "LT01 LT03 LX02 MB51 MMBE")
{
    for i in "${!groups[@]}"; do printf '%-35.35s%-4.4s' "${groups[$i]}" "${targets[$i]}"; done
} >"$bin/qd7AppGroup.dat"
{
    for i in "${!groups[@]}"; do
        for code in ${members[$i]}; do printf '%-35.35s%-20.20s' "${groups[$i]}" "$code"; done
    done
} >"$bin/qd7TransGroup.dat"

# --- Exclusion lists: upper-case entries blank-filled to their width, CR LF, sorted ------------

# width file entries...
exclusion_list() {
    local width=$1 file=$2
    shift 2
    printf '%s\n' "$@" | sort | while read -r entry; do printf "%-$width.${width}s\r\n" "$entry"; done >"$bin/$file"
}
exclusion_list 12 qd7IDsToIgnore.dat DDIC SAPCPIC EARLYWATCH TMSADM SAPSYS
exclusion_list 30 qd7ProgsToIgnore.dat RSBTCRTE SAPMSSY0 SAPMSSY1 SAPMSSY6 RSCONN01 RSM13000
exclusion_list 20 qd7TransToIgnore.dat SMEN SM04 SM50 SM66 ST22

# --- Transaction code catalogue: sorted 22-byte records, and the site's own codes ---------------

# Letters and digits only, so that byte order and every case-blind order agree.
if grep -qvE '^[A-Z0-9]{1,20}$' "$here/sap_tcodes.txt"; then
    echo "seed.sh: sap_tcodes.txt holds a line that is no code of letters and digits" >&2
    exit 1
fi
sort -u "$here/sap_tcodes.txt" | while read -r code; do printf '%-20.20s\r\n' "$code"; done >"$bin/qd7tcodes.dat"
printf '%s\r\n' ZSD_ORDER_MONITOR ZMM_STOCK_AGING ZFI_OPEN_ITEMS YHR_TIMESHEET ZSE16 >"$bin/qd7ztcodes.dat"

# --- Stand-in collector -------------------------------------------------------------------------

cat >"$bin/qd7stati.exe" <<'EOF'
#!/bin/sh
# Demo stand-in for the statistics collector: records how it was called, one argument a bracket,
# in trace_qd7stati.log beside itself, and ends.
log="$(dirname "$0")/trace_qd7stati.log"
{
    printf '%s qd7stati (stand-in) started with %d arguments:' "$(date '+%m/%d/%Y %H:%M:%S')" "$#"
    for arg in "$@"; do printf ' [%s]' "$arg"; done
    printf '\n'
} >>"$log"
EOF
chmod 755 "$bin/qd7stati.exe"

# --- Logs and traces ----------------------------------------------------------------------------

cat >"$bin/trace_qd7stati.log" <<EOF
10/01/2002 08:00:02 qd7stati started: -if $bin/qd7server.dat -of $bin/qd7stati.dat -bindir $bin -dbtype ORACLE
10/01/2002 08:00:03 sapprd01.corp.example.com 00: logon PRD/100 as QD7MON
10/01/2002 08:00:41 sapprd01.corp.example.com 00: 18214 statistics records 07:00:00-08:00:00
10/01/2002 08:00:42 sapprd02.corp.example.com 01: logon PRD/100 as QD7MON
10/01/2002 08:01:15 sapprd02.corp.example.com 01: 15872 statistics records 07:00:00-08:00:00
10/01/2002 08:01:16 sapqas01.corp.example.com 00: logon QAS/200 as QD7MON
10/01/2002 08:01:19 sapqas01.corp.example.com 00: 904 statistics records 07:00:00-08:00:00
10/01/2002 08:01:20 /H/saprouter.example.com/S/3299/H/sapdev01.corp.example.com 10: logon DEV/010 as QD7MON
10/01/2002 08:01:50 /H/saprouter.example.com/S/3299/H/sapdev01.corp.example.com 10: RFC error: partner not reached (timeout)
10/01/2002 08:01:50 qd7stati ended: 3 of 4 servers, 34990 records written to $bin/qd7stati.dat
EOF
cat >"$bin/trace_qd7statisum.log" <<'EOF'
10/01/2002 06:01:12 run 06:00 ended: 4 servers, 4 reached, 21377 records
10/01/2002 08:01:50 run 08:00 ended: 4 servers, 3 reached, 34990 records
10/01/2002 08:01:50 warning: sapdev01.corp.example.com 10 not reached
EOF
cat >"$bin/trace_qd7snap.log" <<'EOF'
10/01/2002 08:05:00 qd7snap started, polling every 300 seconds
10/01/2002 08:05:02 sapprd01.corp.example.com 00: 12 work processes, 3 busy, 0 in PRIV mode
10/01/2002 08:05:03 sapprd02.corp.example.com 01: 12 work processes, 2 busy, 0 in PRIV mode
10/01/2002 08:05:04 sapqas01.corp.example.com 00: 8 work processes, 1 busy, 0 in PRIV mode
EOF
cat >"$bin/trace_qd7_load_stati.log" <<'EOF'
10/01/2002 08:02:10 loading qd7stati.dat into QD7REPO as qd7owner
10/01/2002 08:03:44 34990 rows loaded, 0 rejected
EOF
cat >"$bin/trace_qd7_agg_stati.log" <<'EOF'
10/02/2002 01:00:05 daily aggregation for 10/01/2002 started
10/02/2002 01:00:06 leaving out 5 user IDs, 6 programs, 5 transactions
10/02/2002 01:04:31 4 application groups, SLA met by 96.2 % of dialog steps
10/02/2002 01:04:58 detail rows older than 90 days removed: 412877
EOF
cat >"$bin/trace_qd7ldr.log" <<'EOF'
10/01/2002 08:02:09 loader started (halt switch off)
10/01/2002 08:03:44 loader ended normally
EOF

echo "demo installation in $dir"
