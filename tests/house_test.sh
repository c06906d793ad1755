#!/usr/bin/env bash
# The structure of the house: no include that runs upward, no file over 600 lines, no toolkit, printing or exit in the
# lower libraries. house_test.sh SOURCE_DIR BUILD_DIR
set -u
source_dir=$1
build_dir=$2
faults=0
complain() { echo "$*"; faults=1; }

# What each floor may include, besides itself.
declare -A below=(
    [core]="" [ui]="core" [settings]="core ui" [trace]="core ui" [upb]="core ui" [batch]="core ui" [import]="core ui trace"
    [screens]="core ui settings trace import upb batch" [qt]="core ui settings trace import upb batch screens"
    [app]="core ui settings trace import upb batch screens qt")
for floor in "${!below[@]}"; do
    while IFS=: read -r file include; do
        target=$(sed -E 's/.*"([a-z0-9_]+)\/.*/\1/' <<<"$include")
        [ "$target" = "$floor" ] && continue
        [[ " ${below[$floor]} " == *" $target "* ]] || complain "$file includes upward: $include"
    done < <(grep -rE '^#include "[a-z0-9_]+/' "$source_dir/src/$floor" --include='*.cpp' --include='*.hpp' 2>/dev/null)
done
for floor in core ui settings trace upb batch import screens; do
    grep -rnE '#include *[<"]Q' "$source_dir/src/$floor" && complain "toolkit in src/$floor"
    library="$build_dir/libkolvar_$floor.a"
    [ -f "$library" ] || { complain "$library is missing"; continue; }
    symbols=$(nm -C --undefined-only "$library" 2>/dev/null | grep -E '\b(QString|QWidget|QObject|QApplication)\b|std::c(out|err)|\b(printf|puts|exit|abort|_exit)$')
    [ -z "$symbols" ] || complain "src/$floor uses: $(sort -u <<<"$symbols" | head -5)"
done
while read -r file; do
    lines=$(wc -l <"$file")
    [ "$lines" -le 600 ] || complain "$file has $lines lines"
done < <(find "$source_dir"/{src,tests,tools,bench,fuzz} -name '*.cpp' -o -name '*.hpp' -o -name '*.py' -o -name '*.sh')
exit $faults
