# quen_embed_texts(OUTPUT <file.cpp> HEADER <include> NAMESPACE <ns> ENTRIES <name> <file> ...)
#
# Generates a C++ source that defines, for each entry, `char const <name>[]`
# holding the bytes of <file>, declared by the header <include>. The source is
# regenerated whenever one of the files changes, with CMake alone.
function(quen_embed_texts)
  cmake_parse_arguments(PARSE_ARGV 0 EMBED "" "OUTPUT;HEADER;NAMESPACE" "ENTRIES")
  set(files)
  set(entries)
  list(LENGTH EMBED_ENTRIES count)
  math(EXPR last "${count} - 1")
  foreach(at RANGE 0 ${last} 2)
    math(EXPR next "${at} + 1")
    list(GET EMBED_ENTRIES ${at} name)
    list(GET EMBED_ENTRIES ${next} file)
    get_filename_component(file "${file}" ABSOLUTE BASE_DIR "${PROJECT_SOURCE_DIR}")
    list(APPEND files "${file}")
    list(APPEND entries "${name}" "${file}")
  endforeach()
  # '|' instead of ';' keeps the list one argument on the command line.
  string(REPLACE ";" "|" entries "${entries}")
  set(script "${PROJECT_SOURCE_DIR}/cmake/QuenEmbedTextScript.cmake")
  add_custom_command(
    OUTPUT "${EMBED_OUTPUT}"
    COMMAND "${CMAKE_COMMAND}" "-DOUTPUT=${EMBED_OUTPUT}" "-DHEADER=${EMBED_HEADER}"
            "-DNAMESPACE=${EMBED_NAMESPACE}" "-DENTRIES=${entries}" -P "${script}"
    DEPENDS "${script}" ${files}
    COMMENT "Embedding the texts of ${EMBED_HEADER}"
    VERBATIM)
endfunction()
