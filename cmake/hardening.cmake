# Hardening by the compiler and the linker, for installed files. Flags that this compiler or processor does not support are
# left out. A sanitized build has stricter checks of its own; an unoptimised one cannot have these. -fcf-protection is not
# used: it has an effect only if every linked object has it, and the objects of libc that are linked into each file do not.
option(PONDIFF_HARDEN "Build with the hardening that the compiler has" ON)
add_library(pondiff-hardening INTERFACE)
if(NOT PONDIFF_HARDEN OR PONDIFF_SANITIZE OR CMAKE_BUILD_TYPE STREQUAL "Debug")
    return()
endif()

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported()

function(harden_where_possible flag)
    string(MAKE_C_IDENTIFIER "PONDIFF_HAS${flag}" known)
    set(CMAKE_REQUIRED_FLAGS -Werror)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
        target_compile_options(pondiff-hardening INTERFACE ${flag})
    endif()
endfunction()

foreach(flag
        -fstack-protector-strong -fstack-clash-protection -ftrivial-auto-var-init=zero
        -fno-strict-aliasing -fno-strict-overflow -fno-delete-null-pointer-checks
        -mbranch-protection=standard)
    harden_where_possible(${flag})
endforeach()
target_compile_options(pondiff-hardening INTERFACE
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS -Werror=format-security)
target_link_options(pondiff-hardening INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
