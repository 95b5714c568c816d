#!/usr/bin/env bash
# Takes the pictures of the docs: the virtual office plays without a display, and each window is
# photographed on the way. All of them on a light desktop; a few on a dark one, and at two dots a
# pixel on both.
#
#   tools/take_pictures.sh DEMO FOLDER
set -eu

demo=$1
folder=$2
few=(groups history main popup-both-turns settings-general)
taken=$(mktemp -d)
trap 'rm -rf "$taken"' EXIT

# take DOTS INTO [OPTION]...
take() {
    local dots=$1 into=$2
    shift 2
    QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$dots "$demo" "$@" "$into"
}

take_few() {
    local name=$2 picture
    take "$1" "$taken/$name" "${@:3}" >/dev/null
    mkdir -p "$folder/$name"
    for picture in "${few[@]}"; do
        cp "$taken/$name/$picture.png" "$folder/$name/"
    done
}

rm -f "$folder"/*.png "$folder"/{dark,large,large-dark}/*.png
take 1 "$folder"
take_few 1 dark --dark
take_few 2 large
take_few 2 large-dark --dark
