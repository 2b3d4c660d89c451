#!/usr/bin/env bash
# Compiles the sample .po files with msgfmt (.mo) and with moxc built natively and for Windows
# (.mox), into the test executable's locale\zh_CN\LC_MESSAGES directory.
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
