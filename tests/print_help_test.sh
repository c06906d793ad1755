#!/usr/bin/env bash
# What the printer of the help documents refuses, and what it makes. print_help_test.sh PRINTER
set -u
printer=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
faults=0
complain() { echo "$*"; faults=1; }
page() { echo "<html><head><title>$1</title></head><body>$2</body></html>"; }

# refused NAME REASON: nothing is printed, and the report names the source and what is wrong with it.
refused() {
    "$printer" . "$1.html" "$1.pdf" 2>report
    [ $? -eq 1 ] || complain "$1: exit status"
    grep -q "^$1.html: .*$2" report || complain "$1: reported $(cat report)"
    [ ! -e "$1.pdf" ] || complain "$1: printed all the same"
}

page "Gap" '<p>text</p><p><img src="pictures/missing.png" width="100"></p>' >picture.html
refused picture "pictures/missing.png"
page "Gap" '<table><tr><td><img src="pictures/in-a-table.png"></td></tr></table>text' >table.html
refused table "pictures/in-a-table.png"
page "Empty" '<p> </p>' >empty.html
refused empty "no text"
page "" '<p>text</p>' >untitled.html
refused untitled "no title"
refused absent "can't be read"

page "Blank and signal" '<p>text</p>' >short.html
"$printer" . short.html short.pdf || complain "short: exit status"
[ "$(head -c 5 short.pdf)" = "%PDF-" ] || complain "short: no PDF"
grep -aq '/MediaBox \[0 0 59[45][^ ]* 84[12]' short.pdf || complain "short: not A4"  # 210 x 297 mm in points
pages() { grep -ac '^/Type /Page$' "$1"; }
[ "$(pages short.pdf)" -eq 1 ] || complain "short: $(pages short.pdf) pages"
# 1 mm is 2.83 points: a line of 9.5 points takes 3.9 mm of the 249 mm between the margins, so 100 of them need two pages.
page "Long" "$(for line in $(seq 100); do echo "$line<br>"; done)" >long.html
"$printer" . long.html long.pdf || complain "long: exit status"
[ "$(pages long.pdf)" -eq 2 ] || complain "long: $(pages long.pdf) pages"

"$printer" . short.html no-such-folder/short.pdf 2>/dev/null && complain "printed into no folder"
"$printer" 2>/dev/null
[ $? -eq 2 ] || complain "called without words: exit status"
exit $faults
