# shellcheck shell=bash
# Sourced by tests, with the project's folder in $top: what the project shows and promises.
: "${top:?}"

# commented HEADER...: a program of the code in the comments of public headers, a block for each.
commented() {
  printf '#include <%s>\n' assert.h "${@/#/ZRString/}"
  echo 'int main(void) {'
  (cd "$top/include/ZRString" &&
    sed -n '/^ *\/\/\/ @code/,/^ *\/\/\/ @endcode$/s/^ *\/\/\/ \{0,1\}//p' "$@") |
    sed 's/^@code.*/{/; s/^@endcode$/}/'
  printf '%s\n' 'return 0;' '}'
}

# write_programs FOLDER: the programs of the README, the first one of the pages, and the code in the
# comments of the headers; and in NAME.txt what program NAME prints.
write_programs() {
  local kind
  for kind in c cpp text; do
    sed -n "/^\`\`\`$kind\$/,/^\`\`\`\$/{/^\`\`\`/!p}" "$top/README.md" > "$1/readme.${kind/ext/xt}"
  done
  cp "$top/docs/snippets/road.c" "$1/"
  # shellcheck disable=SC2016 # the marks of a block of code, not commands
  sed -n '/^### Output/,/^## Layers/{/^```$/,/^```$/{/^```/!p}}' "$top/docs/index.md" \
    > "$1/road.txt"
  commented ZR{Types,String{,Mutator,PtrArray,Stream,Output}}.h > "$1/classes.cpp"
  commented ZRStringInterop.h > "$1/interop.cpp"
  commented ZRStringHandles.h ZRStringUtf8.h > "$1/handles.c"
  : | tee "$1/classes.txt" "$1/interop.txt" > "$1/handles.txt"
}

# installed_files COMPONENTS PREFIX LIBDIR CONFIG: the files of install/files.txt for COMPONENTS, a
# regular expression.
installed_files() {
  local version
  version=$(sed -n 's/^project(ZRString VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")
  sed -nE "s#^($1) ##; T
    s#/PREFIX/#$2/#; s#\<LIBDIR/#$3/#; s#CONFIG#${4,,}#; s#VERSION#$version#; p" \
    "$top/tests/install/files.txt"
}
