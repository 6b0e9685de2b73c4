# Compiler settings that every target of the project shares.

add_library(brask_options INTERFACE)
target_compile_features(brask_options INTERFACE cxx_std_20)
target_include_directories(brask_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(brask_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlapping copies in every `"text" + std::string` (GCC bug 105651)
  target_compile_options(brask_options INTERFACE -Wno-restrict)
endif()

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported()

set(hardened "$<AND:$<CONFIG:Release>,$<NOT:$<BOOL:${BRASK_SANITIZE}>>>")
target_compile_options(brask_options INTERFACE
  "$<${hardened}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
if(WIN32)
  # the checks that the options above compile in are in a library there
  target_link_options(brask_options INTERFACE "$<${hardened}:-fstack-protector-strong>")
else()
  # g++ 12 for Windows breaks off at -fstack-clash-protection; the others are of the ELF linker
  target_compile_options(brask_options INTERFACE "$<${hardened}:-fstack-clash-protection>")
  target_link_options(brask_options INTERFACE "$<${hardened}:-Wl,-z,relro,-z,now>")
endif()

if(BRASK_SANITIZE)
  target_compile_options(brask_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
  target_link_options(brask_options INTERFACE -fsanitize=address,undefined)
endif()
if(BRASK_FUZZ)
  target_compile_options(brask_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -O1)
  target_link_options(brask_options INTERFACE -fsanitize=address,undefined)
endif()

# A rebuild after a branch change should cost seconds.
find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
  endif()
endif()

# brask_library(NAME SOURCES ... LINKS ...): one floor, or one room of a floor.
function(brask_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC brask_options ${ARG_LINKS})
endfunction()
