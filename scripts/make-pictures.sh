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

# PAGE-MODE, as the gallery names its files.
pictures=(
    list-boxes-std list-boxes-onboard
    dialogs-std dialogs-onboard
    buttons-onboard edits-onboard checklist-onboard combos-onboard
    reportlist-onboard trees-onboard messagebox-onboard
)
largest=61440 # bytes of a file

needed_packages=(optipng)
ensure_packages

made=$root/build/guide-pictures
rm -rf "$made"
for picture in "${pictures[@]}"; do
    # One run for each, so that no page shows what another was told.
    "$root/run" --pictures "$made" --page "${picture%-*}" --mode "${picture##*-}" > /dev/null ||
        fail "The gallery failed."
    file=$made/$picture.png
    [[ -f $file ]] || fail "The gallery made no $picture."
    optipng -quiet -o7 -strip all "$file" || fail "$file could not be made smaller."
    [[ $(stat -c %s "$file") -le $largest ]] || fail "$file is larger than $largest bytes."
done
rm -f "$root"/docs/pictures/*.png
for picture in "${pictures[@]}"; do
    mv "$made/$picture.png" "$root/docs/pictures/"
    printf '%s\n' "$root/docs/pictures/$picture.png"
done
