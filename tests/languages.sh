#!/usr/bin/env bash
# Builds the programs of examples/languages/ with the installed library, or those of the languages
# that are named, and compares what they print with docs/languages.md. Checks that they destroy all
# objects that they create, and checks the declarations of the functions. Installs the Debian
# packages that are missing; skips a language whose compiler cannot be installed.
# usage: tests/languages.sh [rust|go|csharp]...
set -euo pipefail
top=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
. "$top/tools/steps.inc.sh"
build=$top/build/languages
examples=$top/examples/languages

# need COMMAND PACKAGE...: installs the packages if there is no COMMAND.
need() { command -v "$1" > /dev/null || "$top/tools/install-packages.sh" "${@:2}"; }

install_library() {
  cmake --preset install -S "$top" -B "$build/zrstring"
  cmake --build "$build/zrstring"
  cmake --install "$build/zrstring" --prefix "$build/prefix"
  c++ -shared -fPIC "$top/tests/languages/Alive.cpp" -o "$build/alive.so"
}

# For each language: installs its compiler; and builds `program`, with a check of all declarations.
get_rust() { need rustc rustc && "$top/tools/install-packages.sh" bindgen libclang-dev; }
build_rust() {
  local clang
  rustc --edition 2021 -D warnings -L "$build/prefix/lib" "$examples/rust/main.rs" -o program
  # The compiler compares types, but no names and not which object a handle stands for, with those
  # that clang reads in the C header. Of several versions of libclang, bindgen would take the
  # newest, which may be too new for it.
  clang=$(dpkg-query -W -f '${Depends}' libclang-dev | grep -oE '[0-9]+' | head -n 1)
  LIBCLANG_PATH=/usr/lib/llvm-$clang/lib bindgen -o header.rs \
    "$top/include/ZRString/ZRStringHandles.h" -- -I "$top/include"
  printf '#[path = "%s"]\n#[allow(warnings)]\n#[deny(clashing_extern_declarations)]\nmod m%d;\n' \
    "$examples/rust/handles.rs" 1 header.rs 2 > all.rs
  rustc --edition 2021 --crate-type lib --emit metadata all.rs
}

get_go() { need go golang-go; }
build_go() { # cgo compares the declarations with the C header
  (cd "$examples/go" && go vet ./... && go build -o "$build/go/program" .)
}

get_csharp() { need mcs mono-mcs && need mono mono-runtime; }
build_csharp() {
  mcs -warnaserror -out:program.exe "$examples"/csharp/*.cs
  printf '#!/bin/sh\nexec mono %q\n' "$PWD/program.exe" > program
  chmod +x program
  mcs -out:calls.exe "$top/tests/languages/Calls.cs" "$examples/csharp/Handles.cs"
  mono calls.exe "$top/tests/HandleRows.inc"
}

for language; do
  [[ $language =~ ^(rust|go|csharp)$ ]] || die "the languages are rust, go and csharp"
done
"$top/tools/install-packages.sh" cmake g++ libicu-dev make pkg-config python3
say "building the library"
logged "$build/library.log" install_library
export LD_LIBRARY_PATH=$build/prefix/lib PKG_CONFIG_PATH=$build/prefix/lib/pkgconfig
[ $# -gt 0 ] || set -- rust go csharp
for language; do
  "get_$language" || { say "$language: SKIPPED: its compiler cannot be installed"; continue; }
  say "$language"
  rm -rf "${build:?}/$language"
  mkdir "$build/$language"
  cd "$build/$language"
  logged "$build/$language.log" "build_$language"
  "$top/docs/check-page.py" "$top/docs/languages.md" \
    env ALIVE=alive LD_PRELOAD=../alive.so ./program
  counts=$(od -An -td4 alive)
  [[ $counts =~ ^\ *[1-9][0-9]*\ +0$ ]] || die "objects that were created, and left alive: $counts"
done
