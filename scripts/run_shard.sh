#!/usr/bin/env bash
# run_shard.sh PROGRAM SHARD: one share of a test program's tests (GTEST_TOTAL_SHARDS says of how many). Tells in a line
# how it went, and all that it printed where it failed.
set -u
said=$(GTEST_SHARD_INDEX=$2 "$1" 2>&1)
status=$?
if [ $status -ne 0 ]; then
  printf '%s, share %s, failed with %s:\n%s\n' "$1" "$2" "$status" "$said"
  exit 1
fi
printf '%s, share %s: %s\n' "$1" "$2" "$(grep -F '  PASSED  ' <<<"$said" | tail -1)"
