find_program(CCACHE ccache)
if(CCACHE)
  # Without this ccache keeps nothing that was built with a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()
