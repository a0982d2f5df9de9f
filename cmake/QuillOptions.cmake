# Precompiles headers that take up most of a target's compile time.
function(quill_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  # Out of a precompiled header, g++ 12 reports what it thinks of the standard library's insides.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
endfunction()

# One interface target carries what every target of the project is compiled with.
add_library(quill_options INTERFACE)
target_compile_options(quill_options INTERFACE -Wall -Wextra -Wshadow -Wconversion)
# g++ 12 sees overlapping copies in plain concatenations of texts (GCC bug 105329).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(quill_options INTERFACE -Wno-restrict)
endif()
if(QUILL_WERROR)
  target_compile_options(quill_options INTERFACE -Werror)
endif()
if(QUILL_SANITIZE)
  target_compile_options(quill_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(quill_options INTERFACE -fsanitize=address,undefined)
endif()
