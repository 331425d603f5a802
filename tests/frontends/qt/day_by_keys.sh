#!/bin/bash
# A short working day by real keys and mouse clicks in the demo host's window: keys an entry,
# approves it, searches a customer and keys an entry for it, exports the ledger and prints it to a
# PDF file, and looks in the data file and for the files after each.
#
#   day_by_keys.sh DEMO QVDB SCRIPT    the three programs
#
# Needs an X server of its own (Xvfb) and xdotool; without them it says so and ends with 77.
set -u
demo=$1 qvdb=$2 script=$3

for tool in Xvfb xdotool; do
  if ! command -v "$tool" >/dev/null; then
    echo "SKIPPED: $tool is not installed, so no real keys can be pressed here"
    exit 77
  fi
done

work=$(mktemp -d)
server= host=
finish() {
  [ -z "$host" ] || kill "$host" 2>/dev/null
  [ -z "$server" ] || kill "$server" 2>/dev/null
  wait 2>/dev/null
  rm -rf "$work"
}
trap finish EXIT

fail() {
  echo "FAILED: $1"
  echo "--- the host said:"
  cat "$work/host.log"
  echo "--- windows:"
  for window in $(xdotool search --onlyvisible --name . 2>/dev/null); do
    xdotool getwindowname "$window"
  done
  if [ -n "${QV_KEEP_PICTURE:-}" ] && command -v import >/dev/null; then
    import -window root "$QV_KEEP_PICTURE"
  fi
  exit 1
}

# until_true SECONDS WHAT COMMAND...: tries the command until it succeeds.
until_true() {
  local seconds=$1 what=$2 end
  shift 2
  end=$((SECONDS + seconds))
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$end" ] || fail "waited in vain for $what"
    sleep 0.1
  done
}

windows() { xdotool search --onlyvisible --name "$1" 2>/dev/null | wc -l; }
shows() { [ "$(windows "$1")" -ge "$2" ]; }
# The suite's window and the customers' window are there all the time; a third one is a box.
box() { [ "$(windows .)" -ge 3 ]; }
boxes_of() { [ "$(windows .)" -ge $((2 + $1)) ]; }
no_window() { [ "$(windows "$1")" -eq 0 ]; }
no_box() { [ "$(windows .)" -le 2 ]; }
answer_of() { printf 'sql %s\n' "\"$1\"" | "$script" --data "$work/data" -; }
answers() { [ "$(answer_of "$1")" = "sql: $2" ]; }
press() { for key; do xdotool key "$key"; sleep 0.15; done; }
put() { xdotool type --delay 40 "$1"; sleep 0.15; }
click() { xdotool mousemove --window "$1" "$2" "$3"; sleep 0.1; xdotool click 1; sleep 0.3; }

"$qvdb" demo --data "$work/data" --seed 7 --customers 20 --accounts 3 --entries 200 --years 1 \
  --until 2024-12-31 >"$work/qvdb.log" || { cat "$work/qvdb.log"; exit 1; }

exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1400x900x24 -nolisten tcp 2>"$work/xvfb.log" &
server=$!
until_true 20 "the X server" test -s "$work/display"
DISPLAY=:$(tr -d '[:space:]' <"$work/display")
export DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work

"$demo" --data "$work/data" --settings "$work/settings.ini" >"$work/host.log" 2>&1 &
host=$!

title=客户往来帐管理系统
until_true 30 "the suite's window" shows 示例进销存 1
suite=$(xdotool search --onlyvisible --name 示例进销存)
click "$suite" 110 130
until_true 30 "the customers' window" shows "$title" 1
main=$(xdotool search --onlyvisible --name "$title" | tail -1)
sleep 0.5

confirm() {
  until_true 20 "$1" box
  sleep 0.3
  press Return
  sleep 0.3
}

echo "Keying an entry for the second customer"
press Down alt+n Return
press Return Return Return
put 1234.5
press Return
put 1000
press Tab Tab Tab Tab Tab
put "by keys"
press alt+s
confirm "the report of the saved entry"
until_true 20 "the entry in the data file" answers \
  "select count(*) from tAccountDetail where fCompID=2 and fMoneyA=1234.5 and fMoneyB=1000 and fBrief='by keys' and fChecker=''" 1

echo "Approving it"
click "$main" 450 300
press End alt+k
sleep 0.3
press Return
confirm "the question whether to approve"
until_true 20 "the checker in the data file" answers \
  "select fChecker from tAccountDetail where fBrief='by keys'" admin
until_true 20 "the end of the boxes" no_box

echo "Searching a customer and keying an entry for it"
code=$(answer_of "select CompCode from cards where fID=5" | sed 's/^sql: //')
click "$main" 178 122
press Tab space
put "$code"
press alt+s
sleep 0.7
press alt+n Return Return Return Return
put 77
press alt+s
confirm "the report of the second entry"
until_true 20 "the second entry in the data file" answers \
  "select count(*) from tAccountDetail where fCompID=5 and fMoneyA=77" 1

echo "Exporting the ledger"
click "$main" 450 300
xdotool mousemove --window "$main" 450 300 click 3
sleep 0.5
press e
until_true 20 "the question for the file" box
sleep 0.5
press ctrl+a
put "$work/ledger.xlsx"
press Return
until_true 20 "the workbook" test -s "$work/ledger.xlsx"
number=$(answer_of "select fAcntNo from tAccountDetail where fCompID=5 and fMoneyA=77" |
  sed 's/^sql: //')
if command -v unzip >/dev/null; then
  unzip -p "$work/ledger.xlsx" xl/worksheets/sheet1.xml >"$work/sheet.xml"
  grep -q "$number" "$work/sheet.xml" || fail "the entry $number is not in the workbook"
  grep -q "<v>77</v>" "$work/sheet.xml" || fail "its amount is not a number in the workbook"
else
  echo "unzip is not installed, so the workbook's contents are not looked at"
fi
confirm "the report of the export"
until_true 20 "the end of the boxes" no_box

echo "Printing the ledger to PDF"
click "$main" 780 17
until_true 20 "the preview" box
sleep 0.5
press ctrl+s
until_true 20 "the question for the file" boxes_of 2
sleep 0.5
press ctrl+a
put "$work/ledger.pdf"
press Return
until_true 20 "the PDF file" grep -q '%%EOF' "$work/ledger.pdf"
if command -v pdftotext >/dev/null; then
  pdftotext "$work/ledger.pdf" "$work/ledger.txt"
  grep -q 往来总帐清单 "$work/ledger.txt" || fail "the printed page has no title"
  grep -q "$number" "$work/ledger.txt" || fail "the entry $number is not on the printed page"
else
  echo "pdftotext is not installed, so the PDF file's contents are not looked at"
fi
press Escape
until_true 20 "the end of the preview" no_box

echo "Closing"
xdotool windowfocus "$main"
sleep 0.2
click "$main" 938 17
until_true 20 "the end of the customers' window" no_window "$title"
echo "PASSED: the day's entries are in the data file, the lists in their files"
