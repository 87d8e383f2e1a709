# Format and source checks, and ccache where there is one. Included before the first target.

option(KW_TIDY "Run clang-tidy on each file before it is compiled" OFF)

find_program(KW_CCACHE ccache)
if(KW_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  # It keeps what was compiled with precompiled headers only when told that these hold no macros of their own.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${KW_CCACHE})
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

# Headers that most files of a target read, parsed once a target where one works on it. No file may lean on them: release
# and tidy builds go without, so that a missing include is found there.
set(KW_STANDARD_HEADERS <algorithm> <array> <cmath> <functional> <map> <optional> <string> <string_view> <utility> <vector>)
set(KW_QT_HEADERS <QApplication> <QKeyEvent> <QLabel> <QPainter> <QStyle> <QTimer> <QToolButton>)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
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
  file(GLOB_RECURSE ours CONFIGURE_DEPENDS src/*.cpp src/*.h tests/*.cpp tests/*.h benchmarks/*.cpp benchmarks/*.h
       fuzzing/*.cpp fuzzing/*.h proof/*.cpp proof/*.h packaging/*.cpp)
  add_custom_target(format COMMAND ${KW_CLANG_FORMAT} -i ${ours} VERBATIM)
  add_custom_target(format-check COMMAND ${KW_CLANG_FORMAT} --dry-run --Werror --ferror-limit=1 ${ours} VERBATIM)
endif()
