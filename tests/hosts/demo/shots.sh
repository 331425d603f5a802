#!/bin/bash
# The demo host that draws its screens without anybody in front of it: a box must not make it wait,
# but be said on standard error, with exit status 1.
#
#   shots.sh DEMO QVDB    the two programs
set -u
demo=$1 qvdb=$2
export QT_QPA_PLATFORM=offscreen

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $1"
  cat "$work/output" "$work/said"
  exit 1
}

shoot() { # DATA
  timeout 300 "$demo" --data "$1" --settings "$work/settings" --shots "$work/pictures" \
    >"$work/output" 2>"$work/said"
}

shoot "$work/missing"
[ $? -eq 1 ] || fail "a missing data folder is to end with status 1"
grep -q "系统数据库 $work/missing 属早期版本" "$work/said" || fail "the box was not said"
[ "$(grep -c 属早期版本 "$work/said")" -eq 1 ] || fail "the box was said more than once"

"$qvdb" demo --data "$work/data" --customers 5 --entries 40 >"$work/output" 2>&1 ||
  fail "no data"
shoot "$work/data" || fail "the screens were not drawn"
for picture in customers-simplified accounts-traditional-print-end customers-dark-find suite-dark; do
  [ -s "$work/pictures/$picture.png" ] || fail "the picture $picture is missing"
done
! grep -q "^qvzj-demo:" "$work/said" || fail "something was said"
