#!/usr/bin/env bash
# Compiles the sample .po files with msgfmt (.mo) and with moxc built natively and for Windows
# (.mox), into the test executable's locale\zh_CN\LC_MESSAGES directory; and so the zh_CN
# catalogues of gettext and coreutils that Debian installs (coreutils' holds "©", which code page
# 936 lacks: compiled with --substitute), taken from the system, else from the packages
# script/setup unpacked into .deps/locale when the system leaves locale files out.
# usage: gettext_fixture.sh FIXTURES BIN_DIR NATIVE_MOXC WINDOWS_MOXC_COMMAND...
set -euo pipefail
fixtures=$1 bin=$2 native=$3
shift 3
dir="$bin/locale/zh_CN/LC_MESSAGES"
mkdir -p "$dir" && cd "$dir"
for po in real_zh_CN features; do
  cp "$fixtures/$po.po" "moxc_$po.po"
  msgfmt -o "moxc_$po.mo" "moxc_$po.po"
  "$native" compile "moxc_$po.po" -o "moxc_${po}_native.mox" 2>/dev/null
  "$@" compile "moxc_$po.po" -o "moxc_${po}_windows.mox" 2>/dev/null
  rm "moxc_$po.po"
done
for mo in gettext-tools gettext-runtime coreutils; do
  found=""
  for system in /usr/share/locale "$fixtures/../../../.deps/locale/usr/share/locale"; do
    [ -f "$system/zh_CN/LC_MESSAGES/$mo.mo" ] && found="$system/zh_CN/LC_MESSAGES/$mo.mo" && break
  done
  [ -n "$found" ] || { echo "no zh_CN catalogue $mo.mo: run script/setup" >&2; exit 1; }
  options=(); [ $mo = coreutils ] && options=(--substitute)
  cp "$found" "system_$mo.mo"
  "$native" compile "system_$mo.mo" -o "system_${mo}_native.mox" --lang zh_CN "${options[@]}" 2>/dev/null
  "$@" compile "system_$mo.mo" -o "system_${mo}_windows.mox" --lang zh_CN "${options[@]}" 2>/dev/null
done
