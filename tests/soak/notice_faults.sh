#!/usr/bin/env bash
# The soak check must notice what it is there for. Each fault below is made
# in a copy of a passed day's folder (the short day's, kept by soak.sh), and
# vistrel-soakcheck must fail on it, naming it.
#
#   tests/soak/notice_faults.sh VISTREL-SOAKCHECK DAY-FOLDER WORK-FOLDER

# The spoilers below are run through fault.
# shellcheck disable=SC2317
set -euo pipefail

check=$1 day=$2 work=$3
failed=0

# fault NAME EXPECTED-WORDS COMMAND...: the command spoils the copy in $copy.
fault() {
    local name=$1 words=$2
    shift 2
    copy="$work/$name"
    rm -rf "$copy"
    mkdir -p "$work"
    cp -R "$day" "$copy"
    "$@"
    if "$check" "$copy" >"$copy.out" 2>&1; then
        echo "FAIL: $name went unnoticed"
        failed=1
    elif ! grep -q -- "$words" "$copy.out"; then
        echo "FAIL: $name was noticed without \"$words\":"
        sed 's/^/    /' "$copy.out"
        failed=1
    else
        echo "noticed: $name"
    fi
}

# Line N of a file dropped, or written twice.
drop_line() { sed -i "${2}d" "$copy/$1"; }
double_line() { sed -i "${2}p" "$copy/$1"; }

# The line end of the last line cut off.
tear_end() { truncate -s -2 "$copy/$1"; }

# The first line matching PATTERN changed by EDIT ("from/to").
edit_first() { sed -i "0,/$2/{/$2/s/$3/}" "$copy/$1"; }

fault lost_network_record "woven together" drop_line network/JournalFile.txt 10
fault doubled_network_record "woven together" double_line network/JournalFile.txt 10
fault torn_network_record "torn" tear_end network/JournalFile.txt
fault lost_local_record "local journal record" drop_line a/docs/Vistrel/JournalFile.txt 5
fault restart_differs "a live and a restarted differ" edit_first a/restart.out 'Inv_Removed([0-9]*)=True' '=True/=False'
fault journal_error "the station said" edit_first b/live.out 'Txt_PersonNumber=' \
    '^/MsgBox: Journal File Error! | This change was NOT recorded\n'
fault reader_lost "reading glasses of cell" edit_first a/live.out 'Txt_NNN(4)=' '=[0-9-]*$/=999'
exit "$failed"
