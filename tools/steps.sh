# The steps of ./test: each tells its time, a failed one the end of its log, and runners are counted
# at the end. To be sourced, in the project's folder.

failed_steps=0
counts=()

# step NAME COMMAND...   The whole output is in build/logs/NAME.log.
step() {
    local name=$1 log=build/logs/$1.log begin=$SECONDS
    shift
    printf '%-18s ' "$name"
    if "$@" >"$log" 2>&1 </dev/null; then
        printf 'ok      %4d s\n' $((SECONDS - begin))
        return 0
    fi
    printf 'FAILED  %4d s   %s\n' $((SECONDS - begin)) "$log"
    tail -n 80 "$log" | sed 's/^/    /'
    failed_steps=$((failed_steps + 1))
    return 1
}

# runner NAME COMMAND...   A step that counts tests: the last line of its output that begins with
# "NAME: " and a number counts. One that ends without such a line, or badly without a failed test,
# has failed itself.
runner() {
    local name=$1 status=0 count
    step "$@" || status=1
    count=$(grep -E "^$name: [0-9]+ passed, [0-9]+ failed" "build/logs/$name.log" | tail -n 1)
    if [[ -z $count ]]; then
        count="$name: 0 passed, 1 failed (it ended without a count)"
        failed_steps=$((failed_steps + 1))
    elif [[ $status -ne 0 && $count == *", 0 failed"* ]]; then
        count="$name: 0 passed, 1 failed (it ended with an error)"
    fi
    counts+=("$count")
}

# Prints what was counted; fails when anything failed.
summary() {
    printf '\n'
    [[ ${#counts[@]} -eq 0 ]] || printf '%s\n' "${counts[@]}"
    [[ $failed_steps -eq 0 ]]
}
