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
# finds NAME FILE LINE TEXT: the output of NAME has the line "FILE:LINE: TEXT" exactly, whichever
# separator its path is written with.
finds() {
  checks=$((checks + 1))
  tr '\\' / <"$1.out" | grep -qxF -- "$2:$3: $4" || fail "$1: no line '$2:$3: $4' in: $(cat "$1.out")"
}
# line_of FILE KEY: the line of the first definition of colour KEY.
line_of() { grep -n "name=\"$2\"" "$1" | head -n 1 | cut -d: -f1; }
# colour FILE KEY VALUE: sets the value of every definition of colour KEY.
colour() { sed -i "s|name=\"$2\" value=\"[^\"]*\"|name=\"$2\" value=\"$3\"|" "$1"; }

# The sample schemes: no error, and exactly the contrast warnings the README lists and explains
# (the selection colour, and the scroll bar's faint frame and disabled arrows).
fresh good
lint good 0 --root good
says good '^kivlint: 0 errors, 14 warnings$'
dark=good/cfg/kiv_skin/dark/colorfont.xml light=good/cfg/kiv_skin/light/colorfont.xml
navy=good/cfg/kiv_skin/navy/colorfont.xml
finds good $dark "$(line_of $dark UPTEXT)" 'warning: "UPTEXT" 0x005454FF (#FF5454) on "PLUG_SELCOLOR" 0x00783C1E (#1E3C78): contrast 3.36:1, text needs 4.5:1 (a rising row the style editor'"'"'s preview highlights); nearest that passes: 0x007E85FF (#FF857E)'
finds good $dark "$(line_of $dark PLUG_SELCOLOR)" 'warning: "PLUG_SELCOLOR" 0x00783C1E (#1E3C78) on "PLUG_BGCOLOR" 0x00000000 (#000000): contrast 1.97:1, graphic needs 3:1 (the selection mark around a panel'"'"'s selected item); nearest that passes: 0x00965740 (#405796)'
finds good $dark "$(line_of $dark SCROLLBARLINE)" 'warning: "SCROLLBARLINE" 0x00504848 (#484850) on "PLUG_BGCOLOR" 0x00000000 (#000000): contrast 2.31:1, graphic needs 3:1 (the frame of the scroll bar'"'"'s pieces on its track); nearest that passes: 0x00615959 (#595961)'
finds good $dark "$(line_of $dark SCROLLBARTEXT)" 'warning: "SCROLLBARTEXT" 0x00686060 (#606068) on "SCROLLBARBACK" 0x00282020 (#202028): contrast 2.59:1, graphic needs 3:1 (scroll bar arrows that cannot scroll further); nearest that passes: 0x00726A6A (#6A6A72)'
finds good $light "$(line_of $light UPTEXT)" 'warning: "UPTEXT" 0x001E1EE0 (#E01E1E) on "PLUG_SELCOLOR" 0x00FFE4CC (#CCE4FF): contrast 3.68:1, text needs 4.5:1 (a rising row the style editor'"'"'s preview highlights); nearest that passes: 0x001000CC (#CC0010)'
finds good $light "$(line_of $light DOWNTEXT)" 'warning: "DOWNTEXT" 0x003D8528 (#28853D) on "PLUG_SELCOLOR" 0x00FFE4CC (#CCE4FF): contrast 3.56:1, text needs 4.5:1 (a falling row the preview highlights); nearest that passes: 0x002E740F (#0F742E)'
finds good $light "$(line_of $light PLUG_SELCOLOR)" 'warning: "PLUG_SELCOLOR" 0x00FFE4CC (#CCE4FF) on "PLUG_BGCOLOR" 0x00FFFFFF (#FFFFFF): contrast 1.30:1, graphic needs 3:1 (the selection mark around a panel'"'"'s selected item); nearest that passes: 0x00B09780 (#8097B0)'
finds good $light "$(line_of $light SCROLLBARLINE)" 'warning: "SCROLLBARLINE" 0x00D4CCC8 (#C8CCD4) on "PLUG_BGCOLOR" 0x00FFFFFF (#FFFFFF): contrast 1.60:1, graphic needs 3:1 (the frame of the scroll bar'"'"'s pieces on its track); nearest that passes: 0x009D9591 (#91959D)'
finds good $light "$(line_of $light SCROLLBARTEXT)" 'warning: "SCROLLBARTEXT" 0x00C4BCB8 (#B8BCC4) on "SCROLLBARBACK" 0x00ECE7E4 (#E4E7EC): contrast 1.53:1, graphic needs 3:1 (scroll bar arrows that cannot scroll further); nearest that passes: 0x008C8480 (#80848C)'
finds good $navy "$(line_of $navy UPTEXT)" 'warning: "UPTEXT" 0x005A5AFF (#FF5A5A) on "PLUG_SELCOLOR" 0x00965A2C (#2C5A96): contrast 2.27:1, text needs 4.5:1 (a rising row the style editor'"'"'s preview highlights); nearest that passes: 0x00B6C1FF (#FFC1B6)'
finds good $navy "$(line_of $navy DOWNTEXT)" 'warning: "DOWNTEXT" 0x008EDA44 (#44DA8E) on "PLUG_SELCOLOR" 0x00965A2C (#2C5A96): contrast 3.87:1, text needs 4.5:1 (a falling row the preview highlights); nearest that passes: 0x009CEA57 (#57EA9C)'
finds good $navy "$(line_of $navy PLUG_SELCOLOR)" 'warning: "PLUG_SELCOLOR" 0x00965A2C (#2C5A96) on "PLUG_BGCOLOR" 0x00281C14 (#141C28): contrast 2.45:1, graphic needs 3:1 (the selection mark around a panel'"'"'s selected item); nearest that passes: 0x00A5673D (#3D67A5)'
finds good $navy "$(line_of $navy SCROLLBARLINE)" 'warning: "SCROLLBARLINE" 0x00644C3A (#3A4C64) on "PLUG_BGCOLOR" 0x00281C14 (#141C28): contrast 1.95:1, graphic needs 3:1 (the frame of the scroll bar'"'"'s pieces on its track); nearest that passes: 0x00816856 (#566881)'
finds good $navy "$(line_of $navy SCROLLBARTEXT)" 'warning: "SCROLLBARTEXT" 0x00705A4A (#4A5A70) on "SCROLLBARBACK" 0x003C2A1E (#1E2A3C): contrast 2.05:1, graphic needs 3:1 (scroll bar arrows that cannot scroll further); nearest that passes: 0x008B7464 (#64748B)'

# Colours: a value without 0x, a duplicate, a missing key, a first element that stops the read.
colours=cfg/kiv_skin/dark/colorfont.xml
fresh c
sed -i 's|name="AXIS" value="0x00|name="AXIS" value="|' "c/$colours"
sed -i 's|\(<color name="UPTEXT"[^>]*/>\)|\1<color name="AXIS" value="0x00FFFFFF" des="" />|' "c/$colours"
sed -i '/name="SCROLLBARBACK"/d' "c/$colours"
line_axis=$(grep -n 'name="AXIS" value="3' "c/$colours" | cut -d: -f1)
line_up=$(grep -n 'name="UPTEXT"' "c/$colours" | cut -d: -f1)
lint colours 1 --root c dark
says colours "$(file "c/$colours"):$line_axis: error: \"AXIS\" has the value \"3E48CA\", which is no colour"
says colours "$(file "c/$colours"):$line_up: warning: \"AXIS\" is defined again: the first definition \(line $line_axis\) is the one used"
says colours "$(file "c/$colours"): error: colour \"SCROLLBARBACK\" is missing; the library uses it for the scroll bar's plain pieces"
says colours '^kivlint: 2 errors, 4 warnings$'  # and three of dark's contrast warnings
fresh first
sed -i 's|<colors>|<colors><note />|' "first/$colours"
lint first 1 --root first dark
says first "$(file "first/$colours"):3: error: the first element of <colors> is <note>, so no colour is read"

# Contrast and colour vision, on the light scheme made to pass every check: a black selection (an
# outline on white, and a fill under rows of text), a darker scroll bar frame and disabled arrow,
# and rise, flat and fall of equal luminance that pass on both, red, grey and blue.
light=cfg/kiv_skin/light/colorfont.xml
passing() {
  fresh "$1"
  colour "$1/$light" PLUG_SELCOLOR 0x00000000
  colour "$1/$light" SCROLLBARLINE 0x00808080
  colour "$1/$light" SCROLLBARTEXT 0x00767676
  colour "$1/$light" UPTEXT 0x000000EB
  colour "$1/$light" EQUTEXT 0x00767676
  colour "$1/$light" DOWNTEXT 0x00F56E00
}
passing pass
lint pass 0 --root pass light
says pass '^kivlint: 0 errors, 0 warnings$'
passing text
colour "text/$light" EQUTEXT 0x00999999
lint text 0 --root text light
finds text "text/$light" "$(line_of "text/$light" EQUTEXT)" 'warning: "EQUTEXT" 0x00999999 (#999999) on "PLUG_BGCOLOR" 0x00FFFFFF (#FFFFFF): contrast 2.84:1, text needs 4.5:1 (unchanged prices on a panel); nearest that passes: 0x00767676 (#767676)'
says text '^kivlint: 0 errors, 1 warnings$'
passing graphic
colour "graphic/$light" PLUG_BTN_TEXTCOLOR 0x00887870
lint graphic 0 --root graphic light
finds graphic "graphic/$light" "$(line_of "graphic/$light" PLUG_BTN_TEXTCOLOR)" 'warning: "PLUG_BTN_TEXTCOLOR" 0x00887870 (#707888) on "PLUG_BTN_BGCOLOR_PRESSED" 0x00EED0B8 (#B8D0EE): contrast 2.81:1, graphic needs 3:1 (glyphs of pressed buttons); nearest that passes: 0x0083736C (#6C7383)'
says graphic '^kivlint: 0 errors, 1 warnings$'

# Look-ups as the library's: a second definition is never seen, and a missing key takes the last
# DEFCOLOR; the warning then stands at the ground's line.
passing lookup
sed -i 's|\(<color name="DOWNTEXT"[^>]*/>\)|\1<color name="UPTEXT" value="0x00FFFFFF" des="" /><color name="DEFCOLOR" value="0x00E0E0E0" des="" />|' "lookup/$light"
sed -i '/name="PLUG_TIME_COLOR1"/d' "lookup/$light"
lint lookup 1 --root lookup light
line_down=$(line_of "lookup/$light" DOWNTEXT)
finds lookup "lookup/$light" "$line_down" 'warning: "UPTEXT" is defined again: the first definition (line '"$(line_of "lookup/$light" UPTEXT)"') is the one used'
finds lookup "lookup/$light" "$(line_of "lookup/$light" PLUG_TITLE_BGCOLOR)" 'warning: "PLUG_TIME_COLOR1" 0x00E0E0E0 (#E0E0E0) on "PLUG_TITLE_BGCOLOR" 0x00F2ECE8 (#E8ECF2): contrast 1.11:1, text needs 4.5:1 (the clock on the preview'"'"'s title bar); nearest that passes: 0x006A6A6A (#6A6A6A)'
says lookup '^kivlint: 1 errors, 3 warnings$'

# Rise, flat and fall that only one deficiency merges: each check names its own and no other.
# merges NAME KEY VALUE KEY2 VALUE2 WARNING: the passing light scheme with two direction colours
# changed gives one warning, at the first key's line.
merges() {
  passing "$1"
  colour "$1/$light" "$2" "$3"
  colour "$1/$light" "$4" "$5"
  lint "$1" 0 --root "$1" light
  finds "$1" "$1/$light" "$(line_of "$1/$light" "$2")" "$6"
  says "$1" '^kivlint: 0 errors, 1 warnings$'
}
merges protan DOWNTEXT 0x00878200 EQUTEXT 0x006E5FAA \
  'warning: under protanopia "DOWNTEXT" 0x00878200 (#008287) and "EQUTEXT" 0x006E5FAA (#AA5F6E) are 7.9 apart in CIEDE2000 (10 needed; 53.3 with normal vision); the rise and fall marks that DrawArrow and DrawUL draw before a price still tell the direction without colour'
merges deutan UPTEXT 0x00460FE6 DOWNTEXT 0x00378700 \
  'warning: under deuteranopia "UPTEXT" 0x00460FE6 (#E60F46) and "DOWNTEXT" 0x00378700 (#008737) are 7.7 apart in CIEDE2000 (10 needed; 75.6 with normal vision); the rise and fall marks that DrawArrow and DrawUL draw before a price still tell the direction without colour'
merges tritan UPTEXT 0x00AF7D00 DOWNTEXT 0x003C8700 \
  'warning: under tritanopia "UPTEXT" 0x00AF7D00 (#007DAF) and "DOWNTEXT" 0x003C8700 (#00873C) are 7.8 apart in CIEDE2000 (10 needed; 42.8 with normal vision); the rise and fall marks that DrawArrow and DrawUL draw before a price still tell the direction without colour'

# Fonts: a face name one byte over the limit (and one at it), a missing key.
fresh f
sed -i 's|kivfontname="SMALL" facename="[^"]*"|kivfontname="SMALL" facename="ABCDEFGHIJKLMNOPQRSTUVWXYZ012345"|' "f/$colours"
sed -i 's|kivfontname="DEFAULT" facename="[^"]*"|kivfontname="DEFAULT" facename="ABCDEFGHIJKLMNOPQRSTUVWXYZ01234"|' "f/$colours"
sed -i '/kivfontname="PLUG_TITLE"/d' "f/$colours"
line_small=$(grep -n 'kivfontname="SMALL"' "f/$colours" | cut -d: -f1)
lint fonts 1 --root f dark
says fonts "$(file "f/$colours"):$line_small: error: the face name of \"SMALL\" has 32 bytes; a font face name holds at most 31"
says fonts "$(file "f/$colours"): error: font \"PLUG_TITLE\" is missing; the library uses it for the plug-in title bar"
says fonts '^kivlint: 2 errors, 4 warnings$'  # and dark's four contrast warnings

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
says images '^kivlint: 3 errors, 4 warnings$'

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
says art '^kivlint: 0 errors, 6 warnings$'

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

# Every pair kivlint checks is drawn where it says: the ink's file spells the ink's key and the
# ground's file the ground's, and both are colours it knows; so are the direction colours.
lint pairs 0 --pairs
says pairs '^pair UPTEXT on PLUG_BGCOLOR: text 4\.5:1: rising prices on a panel \(kiv_skin/styledlg/style_dlg_preview\.cpp, '
says pairs '^pair SCROLLBARTEXT on SCROLLBARBACK: graphic 3:1: '
says pairs '^direction UPTEXT against DOWNTEXT: at least 10 apart in CIEDE2000 under protanopia, deuteranopia, tritanopia$'
while read -r ink ground ink_source ground_source; do
  says keys "^colour $ink: "
  says keys "^colour $ground: "
  checks=$((checks + 1))
  grep -qF "\"$ink\"" "$source_root/$ink_source" || fail "$ink_source does not name \"$ink\""
  checks=$((checks + 1))
  grep -qF "\"$ground\"" "$source_root/$ground_source" || fail "$ground_source does not name \"$ground\""
done < <(sed -n 's/^pair \([A-Z0-9_]*\) on \([A-Z0-9_]*\): .* (\([^,]*\), \([^)]*\))$/\1 \2 \3 \4/p' pairs.out)
for key in $(sed -n 's/^direction \([A-Z_]*\) against \([A-Z_]*\): .*/\1 \2/p' pairs.out); do
  says keys "^colour $key: "
done
checks=$((checks + 1))
[ "$(grep -c '^pair ' pairs.out)" = "$(sed -n 's/^pair \([A-Z0-9_]*\) on \([A-Z0-9_]*\): .* (\([^,]*\), \([^)]*\))$/x/p' pairs.out | wc -l)" ] ||
  fail "pairs: a pair line without its two source files: $(cat pairs.out)"

# The scheme designers' reference names every key kivlint knows.
for key in $(sed -n 's/^[a-z]* \([A-Z_0-9]*\): .*/\1/p' keys.out); do
  checks=$((checks + 1))
  grep -q "\`$key\`" "$source_root/docs/schemes.md" || fail "docs/schemes.md does not name $key"
done

echo "$checks checks, $failures failures"
[ $failures = 0 ]
