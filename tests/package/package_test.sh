#!/usr/bin/env bash
# The installed package as a plug-in project sees it: cmake --install lays out include/, lib/,
# bin/ and the CMake package; every installed header compiles on its own; the example plug-in
# (examples/quote_panel) configures with find_package(kiv_skin), builds against the package
# alone, and paints its panel under Wine in the sample scheme's colours; a consumer built for the
# other architecture is refused with a message that says so.
# usage: package_test.sh SOURCE_ROOT BUILD_DIR WORK_DIR VERSION TOOLCHAIN CXX OTHER_TOOLCHAIN
set -uo pipefail
source_root=$1 build=$2 work=$3 version=$4 toolchain=$5 cxx=$6 other_toolchain=$7
failures=0 checks=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }
check() { checks=$((checks + 1)); "$@" || fail "$*"; }
rm -rf "$work" && mkdir -p "$work" && cd "$work" || exit 1
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" >install.log || { cat install.log; exit 1; }

# Layout.
for file in bin/kiv_skin.dll bin/kiv_base.dll bin/kiv_core.dll bin/moxc.exe bin/kivlint.exe \
            lib/libkiv_skin.dll.a lib/libkiv_base.dll.a lib/libkiv_core.dll.a include/compat/afxwin.h \
            include/kiv_skin/draw/kiv_draw.h lib/cmake/kiv_skin/kiv_skinConfig.cmake \
            lib/cmake/kiv_skin/kiv_skinConfigVersion.cmake share/kiv_skin/schemes/cfg/kiv_skin/style.xml; do
  check test -f "$prefix/$file"
done
# x86 modules share MinGW's runtime DLLs, which the package ships and names; x64 ones carry theirs.
runtime=(libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
for dll in "${runtime[@]}"; do
  if grep -q i686 "$toolchain"; then check test -f "$prefix/bin/$dll"; else check test ! -e "$prefix/bin/$dll"; fi
done
# Public headers only: every header that exports something is installed, and nothing else is.
exported=$(cd "$source_root" && grep -rl 'KIV_SKIN_API' kiv_skin --include='*.h' | sort)
installed=$(cd "$prefix/include" && find kiv_skin -name '*.h' | sort)
checks=$((checks + 1))
[ "$exported" = "$installed" ] || fail "installed headers differ from the exporting ones: $(diff <(echo "$exported") <(echo "$installed"))"
check test -z "$(find "$prefix" -name '*.cpp')"
# Each installed header compiles on its own, as the first include of a plug-in's source.
for header in $(cd "$prefix/include" && find kiv_skin kiv_base kiv_core -name '*.h'); do
  checks=$((checks + 1))
  echo "#include <$header>" | "$cxx" -std=c++17 -D_MBCS -fsyntax-only -x c++ - \
    -I"$prefix/include" -I"$prefix/include/compat" 2>header.err || fail "$header does not compile on its own: $(head -3 header.err)"
done

# The example: configured, built and run against the package alone.
cmake -S "$source_root/examples/quote_panel" -B example -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_PREFIX_PATH="$prefix" >configure.log 2>&1 || { cat configure.log; exit 1; }
check grep -q "Found kiv_skin $version\$" configure.log
cmake --build example >build.log 2>&1 || { cat build.log; exit 1; }
check grep -q "$prefix/include" example/build.ninja
if grep -q i686 "$toolchain"; then
  for dll in "${runtime[@]}"; do check test -f "example/$dll"; done
fi
checks=$((checks + 1))
grep -q "$source_root/kiv_skin\|$source_root/compat" example/build.ninja && fail "the example reaches into the source tree"
(cd example && "$source_root/cmake/wine-run" paint_panel.exe "panel.bmp") >run.log 2>&1 || fail "paint_panel failed: $(cat run.log)"
# Pixels of the dark scheme: the frame, the title band, rising prices in their colour, and the
# scroll bar's frame at the right.
checks=$((checks + 1))
python3 - example/panel.bmp <<'PY' || fail "the panel's pixels are not the dark scheme's"
import struct, sys
data = open(sys.argv[1], 'rb').read()
offset, = struct.unpack_from('<I', data, 10)
width, height = struct.unpack_from('<ii', data, 18)
stride = (width * 3 + 3) // 4 * 4
def pixel(x, y):
    b, g, r = data[offset + (height - 1 - y) * stride + 3 * x:][:3]
    return r << 16 | g << 8 | b
prices = set(pixel(x, y) for x in range(width // 2, width - 20) for y in range(20, height - 2))
bar = set(pixel(x, 60) for x in range(width - 20, width))
checks = [pixel(0, 0) == 0x505058, pixel(5, 5) == 0x181820, 0xFF5454 in prices, 0x484850 in bar]
print(checks)
sys.exit(0 if all(checks) else 1)
PY

# A plug-in asking for a later version than the package's is refused at configure time.
mkdir -p too_new && printf 'cmake_minimum_required(VERSION 3.21)\nproject(too_new NONE)\nfind_package(kiv_skin 9.0 REQUIRED)\n' >too_new/CMakeLists.txt
checks=$((checks + 1))
cmake -S too_new -B too_new/build -DCMAKE_PREFIX_PATH="$prefix" >too_new.log 2>&1 && fail "find_package(kiv_skin 9.0) succeeded"
check grep -q "kiv_skinConfig.cmake, version: $version$" too_new.log

# A plug-in built for the other architecture is refused, and told why.
checks=$((checks + 1))
cmake -S "$source_root/examples/quote_panel" -B other_arch -G Ninja -DCMAKE_TOOLCHAIN_FILE="$other_toolchain" \
  -DCMAKE_PREFIX_PATH="$prefix" >other_arch.log 2>&1 && fail "a consumer of the other architecture was accepted"
arch=x64 other=x86
case $other_toolchain in *i686*) ;; *) arch=x86 other=x64 ;; esac
# CMake wraps the package's message over lines: joined again before it is matched.
tr -s ' \n' '  ' <other_arch.log >other_arch.txt
check grep -qF "kiv_skin in $prefix is built for $arch, but this project builds for $other: use the kiv_skin package installed for $other" other_arch.txt

echo "$checks checks, $failures failures"
[ $failures = 0 ]
