# Run by quen_embed_texts with -DOUTPUT, -DHEADER, -DNAMESPACE and
# -DENTRIES=name|file|name|file...: writes the C++ source with the bytes.
string(REPLACE "|" ";" entries "${ENTRIES}")
set(text "// Generated at build time from the files named below; edit those instead.\n")
string(APPEND text "#include \"${HEADER}\"\n\nnamespace ${NAMESPACE} {\n")
while(entries)
  list(POP_FRONT entries name file)
  file(READ "${file}" hex HEX)
  # Every byte as \xNN, one string literal per line of the file.
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" bytes "${hex}")
  string(REPLACE "\\x0a" "\\x0a\"\n    \"" bytes "${bytes}")
  string(APPEND text "\n// ${file}\nchar const ${name}[] =\n    \"${bytes}\";\n")
endwhile()
string(APPEND text "\n}  // namespace ${NAMESPACE}\n")
# Written only when it changes, so that an unchanged text compiles nothing.
file(WRITE "${OUTPUT}.new" "${text}")
file(COPY_FILE "${OUTPUT}.new" "${OUTPUT}" ONLY_IF_DIFFERENT)
file(REMOVE "${OUTPUT}.new")
