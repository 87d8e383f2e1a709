# Format and source checks, and ccache where there is one. Included before the first target.

option(KW_TIDY "Run clang-tidy on each file before it is compiled" OFF)

find_program(KW_CCACHE ccache)
if(KW_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${KW_CCACHE})
endif()

# As a part of compiling, the check follows the build's own dependencies: a file is looked at again only when it or
# a header of it changed. The compiler's warnings are the compiler's business (-w).
if(KW_TIDY)
  find_program(KW_CLANG_TIDY clang-tidy REQUIRED)
  set(CMAKE_CXX_CLANG_TIDY ${KW_CLANG_TIDY} --quiet --extra-arg=-w)
endif()
add_custom_target(tidy
  COMMAND ${CMAKE_SOURCE_DIR}/scripts/build tidy USES_TERMINAL VERBATIM)

find_program(KW_CLANG_FORMAT clang-format)
if(KW_CLANG_FORMAT)
  file(GLOB_RECURSE ours CONFIGURE_DEPENDS src/*.cpp src/*.h tests/*.cpp tests/*.h)
  add_custom_target(format COMMAND ${KW_CLANG_FORMAT} -i ${ours} VERBATIM)
  add_custom_target(format-check COMMAND ${KW_CLANG_FORMAT} --dry-run --Werror --ferror-limit=1 ${ours} VERBATIM)
endif()
