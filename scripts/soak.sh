#!/usr/bin/env bash
# A mission day under load: two stations serve their share of the persons at
# the same time, through the script driver, on one network journal.
#
#   scripts/soak.sh [--persons N] [--seed S] [--keep DIR]
#
# --persons  persons in all, shared out between the stations (default 3000)
# --seed     the day drawn (default 1); the same seed gives the same scripts
# --keep     run in DIR and keep it (the folders, journals, outputs); without
#            it a temporary folder is used and removed after a passing run
#
# Uses the programs of the build named by VISTREL_SOAK_BUILD, else builds
# them in build-soak/ (core, driver and the soak tools only, without Qt).
#
# The day (vistrel-soakgen) is a demo-sized inventory, each station's
# options (network journal on, its own autorefractor) and a script per
# station: persons typed or read from the autorefractor, searches, the
# wizard, pairs given out and refused from the result list, pairs brought
# back from the person list, saved measurements, reading glasses, reports and
# the minutes of the timers, with the station switched off and on once in
# the day. Both stations run at once; each stops at the end of its day (its
# output waits in a pipe no one reads), and when both are there they are let
# go to refresh once more and print their tables. A fresh start on each
# station's folders prints the same tables. vistrel-soakcheck then checks the
# files and outputs (see its head); this script watches each station's
# memory as it serves. Exit status 0 when the day passed.
set -euo pipefail

# shellcheck source-path=SCRIPTDIR
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

persons=3000
seed=1
keep=""
while [ $# -gt 0 ]; do
    case $1 in
        --persons) persons=${2:?--persons needs a number}; shift 2 ;;
        --seed) seed=${2:?--seed needs a number}; shift 2 ;;
        --keep) keep=${2:?--keep needs a folder}; shift 2 ;;
        -h | --help) sed -n '2,/^set -euo/p' "$0" | sed '$d; s/^# \{0,1\}//'; exit 0 ;;
        *) echo "soak.sh: unknown argument $1 (see --help)" >&2; exit 2 ;;
    esac
done
[[ $persons =~ ^[0-9]+$ && $seed =~ ^[0-9]+$ ]] || { echo "soak.sh: --persons and --seed take numbers" >&2; exit 2; }

now="2026-11-21 08:00:00"
timeout_s=${VISTREL_SOAK_TIMEOUT:-1800}

microseconds() {
    if [ -n "${EPOCHREALTIME:-}" ]; then echo "${EPOCHREALTIME//[!0-9]/}"; else date +%s%6N; fi
}
seconds() { printf "%d.%d" $(($1 / 1000000)) $(($1 / 100000 % 10)); }
mib() { printf "%d.%d" $(($1 / 1024)) $(($1 * 10 / 1024 % 10)); }
started=$(microseconds)

# ---- The programs ----
build=${VISTREL_SOAK_BUILD:-}
if [ -z "$build" ]; then
    build="$VISTREL_ROOT/build-soak"
    echo "== Building the driver and the soak tools in $build"
    cmake -S "$VISTREL_ROOT" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVISTREL_BUILD_APP=OFF \
        -DVISTREL_BUILD_BENCH=OFF -DVISTREL_BUILD_TESTS=ON >"$build.log" 2>&1 ||
        { cat "$build.log"; exit 1; }
    cmake --build "$build" --parallel 2 --target vistrel-script vistrel-soakgen vistrel-soakcheck >>"$build.log" 2>&1 ||
        { tail -n 40 "$build.log"; exit 1; }
fi
driver="$build/tools/vistrel-script/vistrel-script"
soakgen="$build/tests/soak/vistrel-soakgen"
soakcheck="$build/tests/soak/vistrel-soakcheck"
for program in "$driver" "$soakgen" "$soakcheck"; do
    [ -x "$program" ] || { echo "soak.sh: $program is missing (VISTREL_SOAK_BUILD=$build)" >&2; exit 2; }
done

# ---- The run's folder ----
if [ -n "$keep" ]; then
    if [ -e "$keep/.vistrel-soak" ]; then
        chmod -R u+rwX "$keep" && rm -rf "$keep"
    elif [ -e "$keep" ] && [ -n "$(ls -A "$keep")" ]; then
        echo "soak.sh: $keep is not empty and holds no earlier soak run" >&2
        exit 2
    fi
    mkdir -p "$keep"
    run=$(cd "$keep" && pwd)
else
    run=$(mktemp -d "${TMPDIR:-/tmp}/vistrel-soak-XXXXXX")
fi
: >"$run/.vistrel-soak"
case $run in *,* | *\"*) echo "soak.sh: the run's folder can't hold a comma or a quote: $run" >&2; exit 2 ;; esac

# What this script started and must end should it stop early: the drivers
# (also when GNU time runs them), the launchers and the readers.
pids=()
cleanup() {
    local pid name
    [ ${#pids[@]} -gt 0 ] || return 0
    for name in a b; do
        if [ -s "$run/$name/pid" ] && read -r _ pid <"$run/$name/pid"; then
            kill "$pid" 2>/dev/null || true
        fi
    done
    for pid in "${pids[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
}
trap cleanup EXIT

echo "== The day: $persons persons, seed $seed, in $run"
"$soakgen" --out "$run" --network "$run/network" --seed "$seed" --persons "$persons" >"$run/generate.log"
mkdir -p "$run/network"

# ---- Two stations at once ----

# A value in kB from /proc/PID/status (VmRSS, VmHWM), 0 when gone.
memory_of() {
    local pid=$1 key=$2 status k v _
    # Read whole before it is parsed: the file changes while it is read.
    status=$(cat "/proc/$pid/status" 2>/dev/null) || true
    while read -r k v _; do
        if [ "$k" = "$key:" ]; then echo "$v"; return; fi
    done <<<"$status"
    echo 0
}

# The number after KEY in one of the generator's "key value" files.
figure() {
    local k v
    while read -r k v; do
        if [ "$k" = "$2" ]; then echo "$v"; return; fi
    done <"$1"
    echo 0
}

# A station's output: the day line by line. Each run of the driver begins
# with "Frm_Vistrel.InventoryCount="; at every twentieth of the persons the
# station's resident set is noted, from the process of the run DIR/pid names
# ("RUN PID"). At the day's end the reading stops, so that the station
# blocks in its gate until the release; then the rest.
read_station() {
    local dir=$1 line served=0 step runs=0 pid="" run_of="" rss
    step=$(($(figure "$dir/counts.txt" persons) / 20))
    [ "$step" -gt 0 ] || step=1
    exec 3>"$dir/live.out" 4>"$dir/memory.txt"
    while IFS= read -r line; do
        printf '%s\n' "$line" >&3
        case $line in
            Frm_Vistrel.InventoryCount=*)
                runs=$((runs + 1))
                pid=""
                printf 'start %s\n' "$served" >&4
                ;;
            Frm_Vistrel.Txt_PersonNumber=*)
                served=$((served + 1))
                if [ $((served % step)) -eq 0 ]; then
                    if [ -z "$pid" ] && [ -s "$dir/pid" ]; then
                        read -r run_of pid <"$dir/pid"
                        [ "$run_of" = "$runs" ] || pid=""
                    fi
                    # A run that has ended while its output is read gives no sample.
                    rss=$(memory_of "${pid:-0}" VmRSS)
                    [ "$rss" -eq 0 ] || printf '%s %s\n' "$served" "$rss" >&4
                fi
                ;;
            Frm_Vistrel.VistrelFlag=*) break ;;
        esac
    done
    : >"$dir/day-over"
    while [ ! -e "$run/release" ]; do sleep 0.05; done
    cat >&3
}

# The station's own process: the driver, or GNU time's child running it.
driver_pid() {
    local pid=$1 child=""
    if [ -x /usr/bin/time ] && [ -r "/proc/$pid/task/$pid/children" ]; then
        for _ in 1 2 3 4 5 6 7 8 9 10; do
            read -r child _ <"/proc/$pid/task/$pid/children" || true
            [ -n "$child" ] && break
            sleep 0.02
        done
    fi
    echo "${child:-$pid}"
}

# A station's day: its runs of the driver one after the other (the station
# switched off and on between them), each measured by GNU time where it is
# there. Its status is the first failing run's.
run_station() {
    local dir=$1 part n=0 launched status=0
    local options=(--documents "$dir/docs" --shared "$dir/shared" --now "$now")
    for part in "$dir"/part*.vs; do
        n=$((n + 1))
        if [ -x /usr/bin/time ]; then
            /usr/bin/time -f '%M' -o "$dir/time-$n.txt" \
                "$driver" "${options[@]}" --print-to "$dir/slips-$n.txt" "$part" 2>>"$dir/live.err" &
        else
            "$driver" "${options[@]}" --print-to "$dir/slips-$n.txt" "$part" 2>>"$dir/live.err" &
        fi
        launched=$!
        echo "$n $(driver_pid "$launched")" >"$dir/pid.new"
        mv "$dir/pid.new" "$dir/pid"
        wait "$launched" || status=$?
        [ "$status" -eq 0 ] || return "$status"
    done
}

declare -A launcher
for name in a b; do
    dir="$run/$name"
    mkfifo "$dir/live.fifo"
    read_station "$dir" <"$dir/live.fifo" &
    pids+=("$!")
done
day_started=$(microseconds)
for name in a b; do
    run_station "$run/$name" >"$run/$name/live.fifo" &
    launcher[$name]=$!
    pids+=("$!")
done

# Both days run; when both are over the stations wait in their gates.
deadline=$((SECONDS + timeout_s))
while [ ! -e "$run/a/day-over" ] || [ ! -e "$run/b/day-over" ]; do
    if [ $SECONDS -ge $deadline ]; then
        echo "soak.sh: the day took longer than ${timeout_s}s; stopped" >&2
        exit 1
    fi
    sleep 0.02
done
day_ended=$(microseconds)
declare -A gate_rss gate_hwm
for name in a b; do
    read -r _ pid <"$run/$name/pid"
    gate_rss[$name]=$(memory_of "$pid" VmRSS)
    gate_hwm[$name]=$(memory_of "$pid" VmHWM)
done
: >"$run/release"

failed=0
for name in a b; do
    status=0
    wait "${launcher[$name]}" || status=$?
    if [ "$status" -ne 0 ] || [ -s "$run/$name/live.err" ]; then
        echo "FAIL: station $name ended with status $status:"
        sed 's/^/    /' "$run/$name/live.err"
        failed=1
    fi
done
wait
rm -f "$run/a/pid" "$run/b/pid"
pids=()

# ---- The restarts ----
for name in a b; do
    dir="$run/$name"
    "$driver" --documents "$dir/docs" --shared "$dir/shared" --now "$now" "$run/restart.vs" \
        >"$dir/restart.out" 2>"$dir/restart.err" &
    launcher[$name]=$!
    pids+=("$!")
done
for name in a b; do
    status=0
    wait "${launcher[$name]}" || status=$?
    if [ "$status" -ne 0 ] || [ -s "$run/$name/restart.err" ]; then
        echo "FAIL: the restart of station $name ended with status $status:"
        sed 's/^/    /' "$run/$name/restart.err"
        failed=1
    fi
done
pids=()

# ---- The checks ----
echo "== Checks"
"$soakcheck" "$run" || failed=1

# Memory: the resident set as the persons were served and at the end of the
# day (the station waiting in its gate, its largest print made); the peak
# from GNU time or the kernel's high-water mark. From a quarter of its last
# run on, the start-up and the first searches have filled what the station
# keeps: after that it must not grow with the persons served.
sanitized=0
if [ -n "${ASAN_OPTIONS:-}" ] || grep -qa __asan_init "$driver"; then
    sanitized=1
fi
echo "== Memory (resident set in MiB, by persons served)"
for name in a b; do
    served=$(figure "$run/$name/counts.txt" persons)
    line="station $name:"
    base=0 first=0 most=0 quarter=1
    # Samples at every twentieth of the persons, shown at every quarter.
    while read -r count rss; do
        if [ "$count" = start ]; then
            base=$rss first=0 most=0
            [ "$base" -eq 0 ] || line+=" switched off and on,"
            continue
        fi
        if [ $((count * 4)) -ge $((quarter * served)) ]; then
            line+=" $count: $(mib "$rss"),"
            quarter=$((count * 4 / served + 1))
        fi
        if [ "$first" -eq 0 ] && [ $(((count - base) * 4)) -ge $((served - base)) ]; then
            first=$rss
        fi
        [ "$first" -eq 0 ] || [ "$rss" -le "$most" ] || most=$rss
    done <"$run/$name/memory.txt"
    end=${gate_rss[$name]}
    [ "$end" -le "$most" ] || most=$end
    peak=${gate_hwm[$name]}
    for timed in "$run/$name"/time-*.txt; do
        if [ -s "$timed" ] && read -r time_peak <"$timed" && [[ $time_peak =~ ^[0-9]+$ ]] &&
            [ "$time_peak" -gt "$peak" ]; then
            peak=$time_peak
        fi
    done
    echo "$line end of day $(mib "$end"); grew $((most - first)) kB after a quarter of the last run;" \
        "peak $(mib "$peak") MiB"
    # A leak of a kB a person shows as a MiB over a day. Under a sanitizer
    # the allocator holds freed memory back, and the curve tells nothing.
    limit=$((1024 + first / 50))
    if [ "$sanitized" -eq 1 ]; then
        echo "(the driver is built with a sanitizer: its memory is shown, not judged)"
    elif [ "$first" -le 0 ] || [ $((most - first)) -gt "$limit" ]; then
        echo "FAIL: station $name's resident set went from $first kB to $most kB after a quarter of its last run" \
            "(allowed: $limit kB more)"
        failed=1
    fi
done

finished=$(microseconds)
echo "== Time: the day $(seconds $((day_ended - day_started)))s for $persons persons at two stations;" \
    "in all $(seconds $((finished - started)))s"
if [ "$failed" -ne 0 ]; then
    echo "soak: FAILED; the run is kept in $run"
    exit 1
fi
if [ -z "$keep" ]; then
    rm -rf "$run"
fi
echo "soak: passed"
