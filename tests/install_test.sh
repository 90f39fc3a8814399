#!/usr/bin/env bash
# Installs the build into a fresh prefix and checks what a caller relies on:
# the installed files, the library's dynamic dependencies and exports, and a
# C99 program built against the install through pkg-config and through CMake.
# usage: install_test.sh BUILD_DIR SOURCE_DIR [EXTRA_C_FLAGS...]
# A cross build sets APP_S2J_CC (the C compiler), APP_S2J_EMULATOR (runs target
# programs), APP_S2J_TOOLCHAIN (for the CMake consumers) and PKG_CONFIG_LIBDIR.
set -u
build=$1
src=$2
shift 2
extra=("$@")
cc=${APP_S2J_CC:-cc}
read -r -a run <<< "${APP_S2J_EMULATOR:-}"
cmake_cross=()
[ -n "${APP_S2J_TOOLCHAIN:-}" ] && cmake_cross=(-DCMAKE_TOOLCHAIN_FILE="$APP_S2J_TOOLCHAIN")
tmp=$(mktemp -d)
trap '[ -n "${KEEP:-}" ] || rm -rf "$tmp"' EXIT
prefix=$tmp/prefix
. "$(dirname "$0")/shell_checks.sh"

check "cmake --install" cmake --install "$build" --prefix "$prefix"
libdir=$(dirname "$(find "$prefix" -name libapp_s2j.so.1 | head -n 1)")
for f in "$prefix/include/app_s2j/app_s2j.h" "$prefix/include/app_s2j/app_s2j_types.h" "$libdir/libapp_s2j.so.1" \
         "$libdir/libapp_s2j.so" "$libdir/pkgconfig/app_s2j.pc" "$libdir/cmake/app_s2j/app_s2jConfig.cmake" \
         "$libdir/cmake/app_s2j/app_s2jTargets.cmake"; do
  [ -e "$f" ] && ok || fail "installed $f"
done
lib=$(readlink -f "$libdir/libapp_s2j.so.1")
# The manual pages: app_s2j(3) always, app_s2j(1) with the tool.
[ -e "$prefix/share/man/man3/app_s2j.3" ] && ok || fail "installed share/man/man3/app_s2j.3"
if [ -e "$build/tools/app_s2j" ]; then
  [ -x "$prefix/bin/app_s2j" ] && ok || fail "installed bin/app_s2j"
  [ -e "$prefix/share/man/man1/app_s2j.1" ] && ok || fail "installed share/man/man1/app_s2j.1"
fi

# Soname and dynamic dependencies: the C library and cJSON only.
soname=$(readelf -d "$lib" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
[ "$soname" = "libapp_s2j.so.1" ] && ok || fail "soname is '$soname'"
needed=$(readelf -d "$lib" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | grep -v -E '^lib(asan|ubsan)\.so' |
  sort | tr '\n' ' ')
[ "$needed" = "libc.so.6 libcjson.so.1 " ] && ok || fail "NEEDED is '$needed'"

# Exports: exactly the functions the public header declares.
declared=$(cpp -P -I"$prefix/include/app_s2j" "$prefix/include/app_s2j/app_s2j.h" 2>/dev/null |
  tr ';' '\n' |
  grep -o -E '\b((s2j_|c2s_|j2s_|f2s_|s2f_|struct_to_json_|json_to_struct_)[A-Za-z0-9_]*|'\
'cJSON_CreateInt|cJSON_AddIntToObject|cJSON_IsInt)\(' |
  tr -d '(' | sort -u)
exported=$(nm -D --defined-only "$lib" | awk '$2 == "T" {print $3}' | sort -u)
others=$(nm -D --defined-only "$lib" | awk '$2 != "T" && $3 !~ /^_/ {print $3}' | sort -u)
if [ "$declared" = "$exported" ]; then ok; else
  fail "exports differ from declarations"; diff <(echo "$declared") <(echo "$exported") | head -20
fi
[ -z "$others" ] && ok || fail "other exported symbols: $others"
[ "$(echo "$exported" | wc -l)" -gt 10 ] && ok || fail "too few exports"

# A C99 consumer through pkg-config, and through the CMake package, for each
# spelling of the include: <app_s2j.h> and <app_s2j/app_s2j.h>.
export PKG_CONFIG_PATH=$libdir/pkgconfig
check "pkg-config finds app_s2j" pkg-config --exists app_s2j
mkdir -p "$tmp/data"
for form in plain dir; do
  defs=()
  [ "$form" = dir ] && defs=(-DAPP_S2J_INCLUDE_DIR_FORM)
  check "C99 consumer ($form include form) compiles against the installed header (pkg-config)" \
    "$cc" -std=c99 -pedantic-errors -Wall -Wextra -Werror "${extra[@]}" "${defs[@]}" "$src/tests/consumer/consumer.c" \
       $(pkg-config --cflags --libs app_s2j) -o "$tmp/consumer_$form"
  if LD_LIBRARY_PATH=$libdir "${run[@]}" "$tmp/consumer_$form" "$tmp/data" > "$tmp/run" 2>&1 &&
     grep -q "consumer ok" "$tmp/run"; then ok
  else fail "pkg-config consumer ($form include form) runs"; cat "$tmp/run"; fi
done
check "CMake consumer configures" cmake -S "$src/tests/consumer" -B "$tmp/cbuild" -DCMAKE_PREFIX_PATH="$prefix" \
  "${cmake_cross[@]}" -DCMAKE_C_FLAGS="${extra[*]}" -DCMAKE_EXE_LINKER_FLAGS="${extra[*]}"
check "CMake consumer builds (both include forms)" cmake --build "$tmp/cbuild"
for exe in consumer consumer_dir_form; do
  if LD_LIBRARY_PATH=$libdir "${run[@]}" "$tmp/cbuild/$exe" "$tmp/data" > "$tmp/run" 2>&1 &&
     grep -q "consumer ok" "$tmp/run"; then ok
  else fail "CMake consumer $exe runs"; cat "$tmp/run"; fi
done

# The example consumer, examples/c-consumer: through its Makefile (pkg-config)
# and through its CMake project, each built and run against the install.
. "$src/tests/schedule_request_checks.sh"
mkdir -p "$tmp/mk"
check "examples/c-consumer builds with make and pkg-config" \
  make -C "$tmp/mk" -f "$src/examples/c-consumer/Makefile" VPATH="$src/examples/c-consumer" \
       CC="$cc" CFLAGS="-O2 ${extra[*]}" LDFLAGS="${extra[*]}"
LD_LIBRARY_PATH=$libdir schedule_request_checks "schedule_request (pkg-config)" "${run[@]}" "$tmp/mk/schedule_request"
check "examples/c-consumer configures with find_package" \
  cmake -S "$src/examples/c-consumer" -B "$tmp/ebuild" -DCMAKE_PREFIX_PATH="$prefix" "${cmake_cross[@]}" \
  -DCMAKE_C_FLAGS="${extra[*]}" -DCMAKE_EXE_LINKER_FLAGS="${extra[*]}"
check "examples/c-consumer builds with CMake" cmake --build "$tmp/ebuild"
LD_LIBRARY_PATH=$libdir schedule_request_checks "schedule_request (CMake)" "${run[@]}" "$tmp/ebuild/schedule_request"

finish
