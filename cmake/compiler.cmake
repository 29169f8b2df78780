# Warnings, sanitizers and link settings shared by every target.

add_library(varrocade_options INTERFACE)
target_include_directories(varrocade_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(MSVC)
    target_compile_options(varrocade_options INTERFACE /W4 /WX /permissive- /utf-8)
else()
    target_compile_options(varrocade_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
    # GCC 12 sees overlaps in std::string's operator+ that are not there (https://gcc.gnu.org/PR105651), and in a
    # std::variant members of other alternatives than the one it holds.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(varrocade_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
    endif()
endif()

if(WIN32)
    # The program is 8-bit (ANSI) throughout: the A functions are the ones that are called, by name.
    target_compile_definitions(varrocade_options INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00 WINVER=0x0A00)
    if(MINGW)
        add_link_options(-static)
    endif()
endif()

if(VARROCADE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined,float-cast-overflow,fuzzer-no-link -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=address,undefined,float-cast-overflow)
endif()

# One library target a folder of src/.
function(varrocade_library NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${NAME} STATIC ${ARG_SOURCES})
    target_link_libraries(${NAME} PUBLIC varrocade_options ${ARG_LINKS})
endfunction()
