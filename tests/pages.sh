# shellcheck shell=bash
# Sourced by tests, with the project's folder in $top: what the README and the pages show.
: "${top:?}"

# readme_block KIND: the block of code of that KIND (cpp, c, text).
readme_block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$top/README.md" | sed '1d; $d'; }

# What the first program of the pages, docs/snippets/road, prints.
# shellcheck disable=SC2016 # the marks of a block of code, not commands
road_output() {
  sed -n '/{#output}/,/{#layers}/{/^```$/,/^```$/p}' "$top/docs/index.md" | sed '1d; $d'
}

# header_examples: the code in the comments of the classes, as one C++ program.
header_examples() {
  echo '#undef NDEBUG'
  printf '#include <%s>\n' cassert ZRString/ZRStringMutator.h ZRString/ZRStringPtrArray.h
  echo 'int main() {'
  sed -n '/^\/\/\/ @code$/,/^\/\/\/ @endcode$/s/^\/\/\/ \{0,1\}//p' \
    "$top"/include/ZRString/ZRString{,Mutator,PtrArray}.h | sed 's/^@code$/{/; s/^@endcode$/}/'
  echo '}'
}
