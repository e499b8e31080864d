# Every target of ours links this.
add_library(quillfen_warnings INTERFACE)
if(MSVC)
  target_compile_options(quillfen_warnings INTERFACE /W4 $<$<BOOL:${QUILLFEN_FATAL_WARNINGS}>:/WX> /permissive- /utf-8)
else()
  target_compile_options(quillfen_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-qual
    -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi -Wformat=2 -Wundef -Wunused
    $<$<BOOL:${QUILLFEN_FATAL_WARNINGS}>:-Werror>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees an overlap in the standard library's own string concatenation.
  target_compile_options(quillfen_warnings INTERFACE -Wno-restrict)
endif()
