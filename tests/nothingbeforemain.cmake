# Holds the units of a library to running nothing before main: what has a constructor is made where it is first asked for,
# as a start needs few of all the declarations. usage: cmake -DNM=<nm> -DLIBRARY=<file> -P nothingbeforemain.cmake
execute_process(COMMAND ${NM} --defined-only ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES " T ")
  message(FATAL_ERROR "no code in ${LIBRARY}")
endif()
string(REGEX MATCHALL "_GLOBAL__sub_I[^\n]*" initialisers "${symbols}")
foreach(initialiser ${initialisers})
  message(SEND_ERROR "runs before main: ${initialiser}")
endforeach()
