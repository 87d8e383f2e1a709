# Format and source checks, and ccache where there is one. Included before the first target.

find_program(KW_CCACHE ccache)
if(KW_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  # It keeps what was compiled with precompiled headers only when told that these hold no macros of their own.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${KW_CCACHE})
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

# Headers that most files of a target read, parsed once a target. No file may lean on them: clang-tidy goes without, so
# that a missing include is found there. (GCC 12 takes more of the library's code for ours when it comes precompiled, and
# warns of it at -O3. Over -O2 that gains half a millisecond of loading 900 persons, and nothing of drawing them.)
set(KW_STANDARD_HEADERS <algorithm> <array> <cmath> <functional> <map> <optional> <string> <string_view> <utility> <vector>)
set(KW_QT_HEADERS <QApplication> <QKeyEvent> <QLabel> <QPainter> <QStyle> <QTimer> <QToolButton>)

add_custom_target(tidy
  COMMAND ${CMAKE_SOURCE_DIR}/scripts/tidy USES_TERMINAL VERBATIM)

find_program(KW_CLANG_FORMAT clang-format)
if(KW_CLANG_FORMAT)
  file(GLOB_RECURSE ours CONFIGURE_DEPENDS src/*.cpp src/*.h tests/*.cpp tests/*.h benchmarks/*.cpp benchmarks/*.h
       fuzzing/*.cpp fuzzing/*.h proof/*.cpp proof/*.h packaging/*.cpp help/*.cpp scripts/*.cpp)
  add_custom_target(format COMMAND ${KW_CLANG_FORMAT} -i ${ours} VERBATIM)
  add_custom_target(format-check COMMAND ${KW_CLANG_FORMAT} --dry-run --Werror --ferror-limit=1 ${ours} VERBATIM)
endif()
