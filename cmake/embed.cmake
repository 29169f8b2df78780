# Writes the bytes of SOURCES (paths) into the C++ source OUTPUT, each as a std::string_view named after its file:
# "cold_war.txt" as varrocade::embedded::ColdWar.
set(CODE "// Made by cmake/embed.cmake.\n#include <string_view>\n\nnamespace varrocade::embedded {\n")
foreach(SOURCE IN LISTS SOURCES)
    get_filename_component(FILE_NAME ${SOURCE} NAME_WE)
    string(REPLACE "_" ";" WORDS ${FILE_NAME})
    set(NAME "")
    foreach(WORD IN LISTS WORDS)
        string(SUBSTRING ${WORD} 0 1 FIRST)
        string(SUBSTRING ${WORD} 1 -1 REST)
        string(TOUPPER ${FIRST} FIRST)
        string(APPEND NAME ${FIRST}${REST})
    endforeach()
    file(READ ${SOURCE} BYTES HEX)
    string(REGEX REPLACE "(..)" "'\\\\x\\1'," BYTES "${BYTES}")
    string(REGEX REPLACE "(.........................................................................................................)" "\\1\n" BYTES "${BYTES}")
    string(APPEND CODE "static const char ${NAME}Bytes[] = {\n${BYTES}};\n"
           "extern const std::string_view ${NAME};\n"
           "const std::string_view ${NAME}{static_cast<const char*>(${NAME}Bytes), sizeof ${NAME}Bytes};\n")
endforeach()
file(WRITE ${OUTPUT} "${CODE}}\n")
