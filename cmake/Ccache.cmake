find_program(CCACHE ccache)
if(CCACHE)
  # Without the first ccache keeps nothing that was built with a precompiled header. With the second it knows a source
  # again in the folder of another preset.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
    CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${CCACHE})
endif()
