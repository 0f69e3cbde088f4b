# What makes faults hard to use for an attacker, as distributions ask for: included by the folder of
# the program, and by none of tests. Sanitizers find the same faults and don't go together with it.
if(TESSARINE_SANITIZE)
    return()
endif()

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection
        -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "TESSARINE_HAS${flag}" has)
    check_cxx_compiler_flag(-Werror\ ${flag} ${has})
    if(${has})
        add_compile_options(${flag})
    endif()
endforeach()

# The C library checks sizes only where the compiler knows them, which takes optimisation.
add_compile_options("$<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
if(TESSARINE_SYSTEM STREQUAL linux)
    add_link_options(LINKER:-z,relro,-z,now)
endif()
