# cmake -D TARGET=FILE.cpp -D NAMES=NAME,... -D FILES=FILE,... -P embedText.cmake: a C++ source in which
# each sorvik::NAME() gives the text of its file. A further file of the same name is appended.
string(REPLACE "," ";" NAMES "${NAMES}")
string(REPLACE "," ";" FILES "${FILES}")
set(source "#include \"app/view/assets.hpp\"\n\nnamespace sorvik {\n")
foreach(name file IN ZIP_LISTS NAMES FILES)
  file(READ "${file}" text)
  string(APPEND ${name}_text "${text}\n")
endforeach()
list(REMOVE_DUPLICATES NAMES)
foreach(name IN LISTS NAMES)
  string(APPEND source "std::string_view ${name}() {\n    return R\"sorvikText(" "${${name}_text}" ")sorvikText\";\n}\n")
endforeach()
file(WRITE "${TARGET}" "${source}} // namespace sorvik\n")
