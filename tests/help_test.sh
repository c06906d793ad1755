#!/usr/bin/env bash
# The help documents: each that a menu names has a source and was printed beside the programs, and each picture in them
# is taken by the build. help_test.sh SOURCE_DIR BUILD_DIR
set -u
source_dir=$1
app_dir=$2/app
faults=0
complain() { echo "$*"; faults=1; }

documents=(kol-steps Intro-to-Kolvar-H kol-files Example-files-for-Kolvar kol-equ-01 kol-out kol-grubbs)
for document in "${documents[@]}"; do
    [ -f "$source_dir/help/$document.html" ] || complain "help/$document.html is missing"
    printed=$app_dir/$document.pdf
    [ -f "$printed" ] || { complain "$document.pdf was not printed"; continue; }
    [ "$(head -c 5 "$printed")" = "%PDF-" ] || complain "$document.pdf is no PDF"
    [ "$(stat -c %s "$printed")" -gt 8000 ] || complain "$document.pdf is too small for a document"
    tail -c 16 "$printed" | grep -q '%%EOF' || complain "$document.pdf has no end"
done
cmp "$source_dir/help/kol-read-me.riz" "$app_dir/kol-read-me.riz" || faults=1

named=$(grep -rhoE '"[A-Za-z0-9-]+\.(pdf|riz)"' "$source_dir/src/screens" | tr -d '"' | sort -u)
[ "$(wc -l <<<"$named")" -eq 8 ] || complain "the menus name other documents than these eight: $named"
for name in $named; do
    [ -f "$source_dir/help/${name/%.pdf/.html}" ] || complain "a menu names $name, which has no source"
done

taken=$(sed -nE 's/^screenshot [^ ]+ //p' "$source_dir/tools/help_pictures.scn")
pictures=0
for text in "$source_dir"/help/*.html; do
    for picture in $(tr '\n' ' ' <"$text" | grep -oE '<img [^>]*>' | sed -E 's/.*src="(pictures\/)?([^"]*)".*/\2/'); do
        pictures=$((pictures + 1))
        grep -qxF "$picture" <<<"$taken" || complain "$text shows pictures/$picture, which nothing takes"
    done
done
[ "$pictures" -gt 0 ] || complain "no document shows a picture"
exit $faults
