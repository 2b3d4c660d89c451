#!/usr/bin/env bash
# kivlint against the sample schemes (which must pass) and against copies broken on purpose, one
# fault each: every finding is checked with its file, line and text, and the exit status.
# usage: kivlint_tests.sh SOURCE_ROOT WORK_DIR KIVLINT_COMMAND...
set -uo pipefail
export LC_ALL=C  # the scheme files are GB2312: match bytes
source_root=$1 work=$2
shift 2
kivlint=("$@")
failures=0 checks=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }
rm -rf "$work" && mkdir -p "$work" && cd "$work" || exit 1

# A fresh copy of the sample schemes in folder $1.
fresh() { rm -rf "$1" && cp -r "$source_root/schemes" "$1" && rm -f "$1"/*.py && rm -rf "$1/bitmap_kit"; }
# Path pattern of a scheme file, whichever separator the build writes.
file() { echo "$1" | sed 's|/|[/\\\\]|g'; }

# lint NAME STATUS [ARGS...]: kivlint exits with STATUS; its output is left in NAME.out.
lint() {
  local name=$1 status=$2; shift 2
  checks=$((checks + 1))
  # Windows ends lines with CR LF.
  "${kivlint[@]}" "$@" 2>&1 | tr -d '\r' >"$name.out"; local got=${PIPESTATUS[0]}
  [ "$got" = "$status" ] || fail "$name: exit $got, expected $status: $(cat "$name.out")"
}
# says NAME PATTERN: the output of NAME has a line matching PATTERN (extended regex).
says() { checks=$((checks + 1)); grep -qE -- "$2" "$1.out" || fail "$1: no line matches '$2' in: $(cat "$1.out")"; }

# The sample schemes pass without a warning.
fresh good
lint good 0 --root good
says good '^kivlint: 0 errors, 0 warnings$'

# Colours: a value without 0x, a duplicate, a missing key, a first element that stops the read.
colours=cfg/kiv_skin/dark/colorfont.xml
fresh c
sed -i 's|name="AXIS" value="0x00|name="AXIS" value="|' "c/$colours"
sed -i 's|\(<color name="UPTEXT"[^>]*/>\)|\1<color name="AXIS" value="0x00FFFFFF" des="" />|' "c/$colours"
sed -i '/name="SCROLLBARBACK"/d' "c/$colours"
line_axis=$(grep -n 'name="AXIS" value="2' "c/$colours" | cut -d: -f1)
line_up=$(grep -n 'name="UPTEXT"' "c/$colours" | cut -d: -f1)
lint colours 1 --root c dark
says colours "$(file "c/$colours"):$line_axis: error: \"AXIS\" has the value \"2020A0\", which is no colour"
says colours "$(file "c/$colours"):$line_up: warning: \"AXIS\" is defined again: the first definition \(line $line_axis\) is the one used"
says colours "$(file "c/$colours"): error: colour \"SCROLLBARBACK\" is missing; the library uses it for the scroll bar's plain pieces"
says colours '^kivlint: 2 errors, 1 warnings$'
fresh first
sed -i 's|<colors>|<colors><note />|' "first/$colours"
lint first 1 --root first dark
says first "$(file "first/$colours"):3: error: the first element of <colors> is <note>, so no colour is read"

# Fonts: a face name one byte over the limit (and one at it), a missing key.
fresh f
sed -i 's|kivfontname="SMALL" facename="[^"]*"|kivfontname="SMALL" facename="ABCDEFGHIJKLMNOPQRSTUVWXYZ012345"|' "f/$colours"
sed -i 's|kivfontname="DEFAULT" facename="[^"]*"|kivfontname="DEFAULT" facename="ABCDEFGHIJKLMNOPQRSTUVWXYZ01234"|' "f/$colours"
sed -i '/kivfontname="PLUG_TITLE"/d' "f/$colours"
line_small=$(grep -n 'kivfontname="SMALL"' "f/$colours" | cut -d: -f1)
lint fonts 1 --root f dark
says fonts "$(file "f/$colours"):$line_small: error: the face name of \"SMALL\" has 32 bytes; a font face name holds at most 31"
says fonts "$(file "f/$colours"): error: font \"PLUG_TITLE\" is missing; the library uses it for the plug-in title bar"
says fonts '^kivlint: 2 errors, 0 warnings$'

# Images: a missing file, a wrong geometry, a strip naming more cells than it holds.
images=cfg/kiv_skin/dark/images.xml
fresh i
rm i/skin/dark/kiv_mark.bmp
sed -i 's|name="KIV_DOT" file="skin\\dark\\kiv_dot.bmp"|name="KIV_DOT" file="skin\\dark\\kiv_btn.bmp"|' "i/$images"
sed -i 's|\(<image name="IMG_STOP" />\)|\1<image name="IMG_MORE" />|' "i/$images"
line_mark=$(grep -n 'name="KIV_MARK"' "i/$images" | cut -d: -f1)
line_dot=$(grep -n 'name="KIV_DOT"' "i/$images" | cut -d: -f1)
line_list=$(grep -n '<imagelist' "i/$images" | cut -d: -f1)
lint images 1 --root i dark
says images "$(file "i/$images"):$line_mark: error: image file \"skin.dark.kiv_mark.bmp\" is missing"
says images "$(file "i/$images"):$line_dot: error: KIV_DOT is [0-9]+ x 21 at 24 bits; the library expects an 8 x 8 brush at 24 bits"
says images "$(file "i/$images"):$line_list: error: the strip holds 12 cells of 16 x 17 but names 13"
says images '^kivlint: 3 errors, 0 warnings$'

# Image-list art in colours a 16-colour list does not have, and pure red, which is cut out.
fresh art
python3 - art/skin/dark/idb_images.bmp <<'PY'
import struct, sys
width, height = 16 * 12, 17
pixels = bytearray()
for y in range(height):
    row = bytearray()
    for x in range(width):
        b, g, r = (0x20, 0x40, 0x60) if x < 3 else (0, 0, 255) if x < 5 else (255, 255, 255)
        row += bytes((b, g, r))
    pixels += row + bytes(-len(row) % 4)
header = struct.pack('<2sIHHIIiiHHIIiiII', b'BM', 54 + len(pixels), 0, 0, 54, 40, width, height, 1, 24, 0,
                     len(pixels), 2835, 2835, 0, 0)
open(sys.argv[1], 'wb').write(header + pixels)
PY
lint art 0 --root art dark
says art "$(file "art/$images"):$line_list: warning: IDB_IMAGES: 34 pixels of pure red #FF0000 are cut out as transparent"
says art "$(file "art/$images"):$line_list: warning: IDB_IMAGES: 51 pixels of #604020 are not among the list's 16 colours; nearest #800000"
says art '^kivlint: 0 errors, 2 warnings$'

# The catalogue: "default" after "des", and a scheme it does not hold.
fresh cat
sed -i 's|<style name="dark" default="1" des="\([^"]*\)"|<style name="dark" des="\1" default="1"|' cat/cfg/kiv_skin/style.xml
lint catalogue 1 --root cat dark
says catalogue "$(file cat/cfg/kiv_skin/style.xml):3: error: default=\"1\" must follow \"name\" and precede \"des\""
lint unknown 1 --root good purple
says unknown '^purple: error: no such scheme in the catalogue$'

# Usage and unreadable catalogues.
lint usage 2 --frobnicate
lint no_catalogue 2 --root nowhere
says no_catalogue 'style.xml: error: cannot open the file'

# Every key the drawing code, the scroll bar and the style dialog spell out is one kivlint knows.
lint keys 0 --keys
for key in $(grep -rhoE '"[A-Z][A-Z0-9]*_[A-Z0-9_]+"|"(AXIS|BACKGROUND|DEFAULT|SMALL|UPTEXT|EQUTEXT|DOWNTEXT|DEFCOLOR)"' \
               "$source_root"/kiv_skin/draw "$source_root"/kiv_skin/scrollbar "$source_root"/kiv_skin/styledlg 2>/dev/null |
             tr -d '"' | sort -u); do
  says keys "^(colour|font|image) $key: "
done

# The scheme designers' reference names every key kivlint knows.
for key in $(sed -n 's/^[a-z]* \([A-Z_0-9]*\): .*/\1/p' keys.out); do
  checks=$((checks + 1))
  grep -q "\`$key\`" "$source_root/docs/schemes.md" || fail "docs/schemes.md does not name $key"
done

echo "$checks checks, $failures failures"
[ $failures = 0 ]
