#!/usr/bin/env bash
# moxc against GNU gettext: round trips through .mox and back agree with msgfmt, bad input gets
# an error naming file and line, a non-zero status and no output file.
# usage: moxc_tests.sh FIXTURES WORK_DIR MOXC_COMMAND...
set -uo pipefail
fixtures=$1 work=$2
shift 2
moxc=("$@")
rm -rf "$work" && mkdir -p "$work" && cd "$work" || exit 1
cp "$fixtures"/*.po .
failures=0 checks=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }
check() { checks=$((checks + 1)); "$@"; }

# The messages of a .mo file as msgunfmt sees them, without the header entry.
messages() { msgunfmt --no-wrap "$1" | awk 'BEGIN { RS = ""; ORS = "\n\n" } !/^msgid ""\nmsgstr/'; }

# ok NAME ARGS...: moxc succeeds.
ok() {
  local name=$1; shift
  "${moxc[@]}" "$@" >"$name.out" 2>"$name.err" || fail "$name: moxc $* failed: $(cat "$name.err")"
}

# error NAME OUTPUT PATTERN ARGS...: moxc fails with a message matching PATTERN and leaves no OUTPUT.
error() {
  local name=$1 output=$2 pattern=$3; shift 3
  local status=0
  "${moxc[@]}" "$@" >"$name.out" 2>"$name.err" || status=$?
  [ "$status" != 0 ] || fail "$name: moxc $* succeeded"
  grep -qE -- "$pattern" "$name.err" || fail "$name: message '$(cat "$name.err")' (status $status) does not match '$pattern'"
  [ ! -e "$output" ] && [ ! -e "$output.tmp" ] || fail "$name: output $output was left behind"
}

# contains FILE HEX: the file holds the bytes.
contains() { LC_ALL=C grep -qF "$(printf "$2")" "$1" || fail "$1 does not hold the bytes $2"; }

# Round trip: .po -> .mox -> .po gives msgfmt the same messages as the original.
# round_trip NAME LANGUAGE [COMPILE OPTIONS...]
round_trip() {
  local po=$1 lang=$2; shift 2
  ok "compile_$po" compile "$po.po" -o "$po.mox" "$@"
  ok "dump_$po" dump "$po.mox" -o "$po.back.po" --lang "$lang"
  msgfmt -o "$po.mo" "$po.po" && msgfmt -o "$po.back.mo" "$po.back.po" || fail "$po: msgfmt failed"
  [ -n "$(messages "$po.mo")" ] || fail "$po: msgfmt produced no messages"
  diff <(messages "$po.mo") <(messages "$po.back.mo") || fail "$po: round trip differs from msgfmt"
}
check round_trip real_zh_CN zh_CN
check round_trip real_zh_TW zh_TW
check round_trip en en --code-page CP1252
# Records come in ascending byte order of their keys, each key once, whatever the .po's order.
ascending() {
  python3 - "$1" <<'PY' || fail "$1: keys not in ascending order"
import struct, sys
data = open(sys.argv[1], 'rb').read()
pos, keys = 6, []
while pos < len(data):
    (k,) = struct.unpack_from('<i', data, pos); key = data[pos + 4:pos + 4 + k]; pos += 4 + k
    (v,) = struct.unpack_from('<i', data, pos); pos += 4 + v
    keys.append(key)
sys.exit(0 if len(keys) > 1 and all(a < b for a, b in zip(keys, keys[1:])) else 1)
PY
}
printf 'msgid "b"\nmsgstr "2"\n\nmsgid "C"\nmsgstr "3"\n\nmsgid "a"\nmsgstr "1"\n' > unordered.po
check ok compile_unordered compile unordered.po -o unordered.mox --lang en
check ascending unordered.mox
check ascending real_zh_CN.mox
check contains real_zh_CN.mox '\xd7\xee\xd0\xc2\xbc\xdb'   # 最新价 in GB2312
check contains real_zh_TW.mox '\xc0\xc9\xae\xd7'           # 檔案 in Big5
check contains en.mox 'Caf\xe9'
check contains en.mox '\x80 price'

# Fuzzy, untranslated and obsolete entries are left out as msgfmt leaves them out.
check ok check_real check real_zh_CN.mox
check grep -q "15 records, 15 keys" check_real.out || fail "real_zh_CN.mox should hold 15 records"

# A .mo compiles to the same catalogue as its .po.
check ok compile_mo compile real_zh_CN.mo -o from_mo.mox --lang zh_CN
check ok dump_mo dump from_mo.mox -o from_mo.po --lang zh_CN
check cmp -s from_mo.po real_zh_CN.back.po || fail ".mo and .po give different catalogues"

# The language's code page from --lang, the header, or a directory in the output path.
mkdir -p locale/zh_TW/LC_MESSAGES
sed '/^"Language:/d' real_zh_TW.po > nolang.po
check ok compile_path compile nolang.po -o locale/zh_TW/LC_MESSAGES/x.mox
check contains locale/zh_TW/LC_MESSAGES/x.mox '\xc0\xc9\xae\xd7'
check error no_language nolang.mox "--lang|--code-page" compile nolang.po -o nolang.mox

# The language from a directory in the input's path when neither header nor output name one.
mkdir -p in/zh_TW/LC_MESSAGES && cp nolang.po in/zh_TW/LC_MESSAGES/
check ok compile_input_path compile in/zh_TW/LC_MESSAGES/nolang.po -o from_input.mox
check contains from_input.mox '\xc0\xc9\xae\xd7'

# --substitute: what the code page cannot hold becomes a transliteration ("(C)", "c", "i", "*";
# a combining mark is dropped) or "?", the same bytes from every build, and each message so
# written gets one warning naming its characters.
check ok substitutes compile substitutes.po -o substitutes.mox --substitute
check contains substitutes.mox '\xb0\xe6\xc8\xa8\xcb\xf9\xd3\xd0 (C) %%s'
check contains substitutes.mox 'Curacao * Sanliurfa s ?'
check contains substitutes.mox '\xce\xa2\xd0\xa6'
check grep -qE 'substitutes.po:6: warning: .*U\+00A9 "©" \(character 6\) as "\(C\)"' substitutes.err ||
  fail "no warning for the copyright sign: $(cat substitutes.err)"
check grep -qE 'substitutes.po:9: warning: .*U\+00E7 .*U\+2022 .*U\+0131 .*U\+0327 .*left out.*U\+0259 .*as "\?"' substitutes.err ||
  fail "no warning naming every character of line 9: $(cat substitutes.err)"
[ "$(grep -c 'warning: code page' substitutes.err)" = 2 ] || fail "not one warning per substituted message: $(cat substitutes.err)"
check grep -q '2 of them with substitutes' substitutes.err || fail "no count of substituted messages: $(cat substitutes.err)"
check ok unrepresentable_substituted compile unrepresentable.po -o u_sub.mox --substitute
check contains u_sub.mox '\xce\xa2\xd0\xa6 ?'

# Contexts and plural forms: warnings that name the line.
check ok features compile features.po -o features.mox
check grep -qE "features.po:12: warning: .*context \"menu\"" features.err || fail "no context warning: $(cat features.err)"
check grep -qE "features.po:19: warning: plural message \"%d day\"" features.err || fail "no plural warning"

# Bad input.
check error unrepresentable u.mox 'unrepresentable.po:6: .*cannot be represented in code page 936' compile unrepresentable.po -o u.mox
check grep -q -- '--substitute' unrepresentable.err || fail "the error does not name --substitute"
check error substitutes_refused s.mox 'substitutes.po:6: .*code page 936.*--substitute' compile substitutes.po -o s.mox
check error substitute_dump out.po '--substitute is an option of compile' dump real_zh_CN.mox -o out.po --substitute
check error not_latin en_bad.mox 'en_bad.po:3: .*cannot be represented' compile en_bad.po -o en_bad.mox --lang en
# bad_po NAME CONTENT PATTERN: a .po with CONTENT fails to compile with a message matching PATTERN.
bad_po() { printf "$2" > "$1.po"; error "$1" out.mox "$3" compile "$1.po" -o out.mox --lang en; }
check bad_po unterminated 'msgid "a"\nmsgstr "b\n' 'unterminated.po:2: .*double quotes'
check bad_po escape 'msgid "a"\nmsgstr "\\q"\n' 'escape.po:2: invalid escape sequence'
check bad_po orphan '\nmsgstr "b"\n' 'orphan.po:2: msgstr without a msgid'
check bad_po duplicate 'msgid "a"\nmsgstr "b"\n\nmsgid "a"\nmsgstr "c"\n' \
  'duplicate.po:4: duplicate message "a" \(first defined on line 1\)'
check bad_po keyword 'msgid "a"\nmsgtext "b"\n' 'keyword.po:2: unknown keyword msgtext'
check bad_po nostr 'msgid "a"\n' 'nostr.po:1: msgid "a" has no msgstr'
# Found by fuzzing: a keyword followed by blanks only used to end moxc with an uncaught exception,
# a long hexadecimal escape overflowed, and a raw zero byte was taken into a string although its
# escaped form \000 is refused.
check bad_po long_hex 'msgid "a"\nmsgstr "\\x1000000000000000000041"\n' 'long_hex.po:2: .*value over 255'
check bad_po zero_byte 'msgid "a"\nmsgstr "b\0c"\n' 'zero_byte.po:2: zero byte in a string'
check bad_po blank_after_keyword 'msgid "a"\nmsgstr \n' 'blank_after_keyword.po:2: expected a keyword and a string'
head -c 30 real_zh_CN.mo > cut.mo
check error cut_mo out.mox 'cut.mo: .*past the end' compile cut.mo -o out.mox --lang zh_CN
# Found by fuzzing: a plural entry whose singular is empty used to fail as "message too long".
python3 - <<'PY'
entries = [(b"", b"Content-Type: text/plain; charset=UTF-8\n"), (b"\0files", b"a\0b"), (b"kept", b"yes")]
n, text = len(entries), 28 + 16 * len(entries)
tables, strings = b"", b""
for column in (0, 1):
    for entry in entries:
        s = entry[column]
        tables += len(s).to_bytes(4, "little") + (text + len(strings)).to_bytes(4, "little")
        strings += s + b"\0"
header = b"".join(v.to_bytes(4, "little") for v in (0x950412DE, 0, n, 28, 28 + 8 * n, 0, 0))
open("empty_singular.mo", "wb").write(header + tables + strings)
PY
check ok empty_singular compile empty_singular.mo -o empty_singular.mox --lang en
check grep -q 'plural message with an empty singular left out' empty_singular.err || fail "empty singular: no warning"
check contains empty_singular.mox 'kept'
printf 'not a mo file at all....' > bad.mo
check error bad_mo out.mox 'bad.mo: not a .mo file' compile bad.mo -o out.mox --lang zh_CN
check error missing out.mox 'missing.po: cannot open' compile missing.po -o out.mox --lang en
echo keep > kept.mox
"${moxc[@]}" compile unrepresentable.po -o kept.mox >/dev/null 2>&1
check grep -qx keep kept.mox || fail "a failed compile touched an existing output"

# Checking damaged catalogues.
checkfile() { # NAME BYTES STATUS PATTERN
  printf "$2" > "$1.mox"
  "${moxc[@]}" check "$1.mox" > "$1.out" 2>&1; local status=$?
  [ "$status" = "$3" ] || fail "check $1: status $status, expected $3"
  grep -qE "$4" "$1.out" || fail "check $1: '$(cat "$1.out")' does not match '$4'"
}
check checkfile six 'mox1.0' 1 'shorter than 10 bytes'
check checkfile zero 'mox1.0\0\0\0\0' 1 'offset 6: key length below 1'
check checkfile huge 'mox1.0\1\0\0\0a\1\0\0\0b\377\377\377\177xxxx' 1 '1 records.*|offset 16: key length'
check checkfile negative 'mox1.0\1\0\0\0a\377\377\377\377' 1 'offset 11: translation length negative'
check checkfile halfcut 'mox1.0\1\0\0\0a\0\0\0\0\5\0' 1 'offset 15: key length cut short'
check checkfile magic 'MOX1.0\1\0\0\0a\0\0\0\0' 1 'does not start with'
check checkfile good 'mox1.0\1\0\0\0a\0\0\0\0' 0 'ok: end of file'

# Usage errors.
"${moxc[@]}" frobnicate x >/dev/null 2>&1; [ $? = 2 ] || fail "unknown command: status not 2"
"${moxc[@]}" compile real_zh_CN.po >/dev/null 2>&1; [ $? = 2 ] || fail "missing -o: status not 2"
"${moxc[@]}" compile real_zh_CN.po -o x.mox --lang fr >/dev/null 2>&1; [ $? = 2 ] || fail "unknown language: status not 2"

echo "$checks checks, $failures failures"
[ "$failures" = 0 ]
