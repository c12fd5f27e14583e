# Toolchain of Debian for another processor, and the emulator that runs what it builds: see scripts/cross-test.
#   PONDIFF_PROCESSOR  arm, aarch64 or mipsel
#   PONDIFF_PACKAGES   folder in which the libraries' packages for that processor are unpacked
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES PONDIFF_PROCESSOR PONDIFF_PACKAGES)

set(triplet_of_arm arm-linux-gnueabihf)
set(triplet_of_aarch64 aarch64-linux-gnu)
set(triplet_of_mipsel mipsel-linux-gnu)
set(triplet ${triplet_of_${PONDIFF_PROCESSOR}})
if(NOT triplet)
    message(FATAL_ERROR "No toolchain for the processor '${PONDIFF_PROCESSOR}'")
endif()

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${PONDIFF_PROCESSOR})
set(CMAKE_C_COMPILER ${triplet}-gcc)
set(CMAKE_CXX_COMPILER ${triplet}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${triplet})
set(emulator qemu-${PONDIFF_PROCESSOR} -L /usr/${triplet})
if(PONDIFF_PROCESSOR STREQUAL arm)
    set(CMAKE_CXX_FLAGS_INIT -Wno-psabi) # notes on what g++ 7 changed
elseif(PONDIFF_PROCESSOR STREQUAL aarch64)
    list(APPEND emulator -cpu max,pauth-impdef=on) # signs return addresses in a way that takes a third of the time
endif()
set(CMAKE_CROSSCOMPILING_EMULATOR "${emulator}" CACHE STRING "Command that runs programs of that processor" FORCE)

set(CMAKE_FIND_ROOT_PATH ${PONDIFF_PACKAGES})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
