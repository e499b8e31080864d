# A program for 64-bit Windows, built on Debian with MinGW. What it is built with and is not Debian's lies in the folder
# that scripts/windows keeps; Wine starts what has to be started on the way.
if(DEFINED ENV{QUILLFEN_WINDOWS_QT})
  set(kept "$ENV{QUILLFEN_WINDOWS_QT}")
else()
  set(kept "$ENV{HOME}/.cache/quillfen/windows-qt")
endif()

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine)

# The variant with POSIX threads is the one that has all of <thread> and <mutex>.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The same sources give the same bytes at any time.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
endforeach()

# moc, rcc and uic are the host's, of the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

set(CMAKE_FIND_ROOT_PATH ${kept}/root /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
