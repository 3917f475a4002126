# SPDX-License-Identifier: GPL-3.0-or-later
# The cross compiler of Debian 12 for Windows of 64 bits. Libraries are those that packaging/windows/construir has built:
# RTN_WINDOWS_RAIZ in the environment, or the folder that it uses by itself.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(maquina x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${maquina}-gcc-posix)
set(CMAKE_CXX_COMPILER ${maquina}-g++-posix)
set(CMAKE_RC_COMPILER ${maquina}-windres)
if(DEFINED ENV{RTN_WINDOWS_RAIZ})
  set(raiz $ENV{RTN_WINDOWS_RAIZ})
elseif(DEFINED ENV{XDG_CACHE_HOME})
  set(raiz $ENV{XDG_CACHE_HOME}/vedra-rtn-windows/raiz)
else()
  set(raiz $ENV{HOME}/.cache/vedra-rtn-windows/raiz)
endif()

# Nothing of the machine that builds is linked: headers, libraries and packages of the two roots alone.
set(CMAKE_FIND_ROOT_PATH ${raiz} /usr/${maquina})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${raiz}/lib/pkgconfig)
set(PKG_CONFIG_ARGN --static CACHE STRING "All libraries are static")
set(ZLIB_LIBRARY /usr/${maquina}/lib/libz.a CACHE FILEPATH "Beside it lies the import library of a DLL")
set(QT_HOST_PATH /usr CACHE PATH "moc, uic and rcc of this machine")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake CACHE PATH "Where Debian keeps them")

# Programs that start on a Windows without anything installed, of Windows 10 on, with random addresses.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--dynamicbase,--nxcompat,--high-entropy-va")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT -s)
set(CMAKE_C_FLAGS_INIT "-D_WIN32_WINNT=0x0A00")
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0A00")
