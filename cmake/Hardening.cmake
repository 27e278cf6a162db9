# What Debian calls hardening=+all, for every build that is optimised: a fault in the handling of
# foreign bytes should end the program rather than run somebody else's code.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
add_compile_options(-fstack-protector-strong -fstack-clash-protection
    -Wformat -Werror=format-security
    $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>:-fcf-protection=full>)
# FORTIFY needs optimised code; some compilers define a weaker one by themselves.
add_compile_options($<$<CONFIG:Release>:-U_FORTIFY_SOURCE> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
