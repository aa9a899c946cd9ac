#!/usr/bin/env bash
# scripts/make-pictures.sh
#
# Makes the pictures of the README and the guides anew, in docs/pictures: pages of the gallery as
# ./run --pictures shows them, without what is not needed in the files.

set -u
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
for part in wine packages; do
    source "$root/scripts/$part.sh"
done

# PAGE-MODE, as the gallery names its files, at 96 dots per inch; with -DPI behind it at another
# resolution, on a screen that has room for it.
pictures=(
    start-std start-onboard
    list-boxes-std list-boxes-onboard
    dialogs-std dialogs-onboard
    buttons-onboard edits-onboard checklist-onboard combos-onboard
    reportlist-onboard trees-onboard messagebox-onboard
    edits-std edits-std-144 edits-onboard-144
)
largest=61440 # bytes of a file

needed_packages=(optipng)
ensure_packages

made=$root/build/guide-pictures
rm -rf "$made"
for picture in "${pictures[@]}"; do
    dpi=96
    name=$picture
    if [[ $picture =~ ^(.*)-([0-9]+)$ ]]; then
        name=${BASH_REMATCH[1]}
        dpi=${BASH_REMATCH[2]}
    fi
    # One run for each, so that no page shows what another was told.
    ONBOARDUI_DPI=$dpi ONBOARDUI_SCREEN=$((1280 * dpi / 96))x$((1024 * dpi / 96)) "$root/run" \
        --pictures "$made/$dpi" --page "${name%-*}" --mode "${name##*-}" > /dev/null ||
        fail "The gallery failed."
    file=$made/$picture.png
    mv "$made/$dpi/$name.png" "$file" || fail "The gallery made no $picture."
    optipng -quiet -o7 -strip all "$file" || fail "$file could not be made smaller."
    [[ $(stat -c %s "$file") -le $largest ]] || fail "$file is larger than $largest bytes."
done
rm -f "$root"/docs/pictures/*.png
for picture in "${pictures[@]}"; do
    mv "$made/$picture.png" "$root/docs/pictures/"
    printf '%s\n' "$root/docs/pictures/$picture.png"
done
