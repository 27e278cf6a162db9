# The clang of this system: Debian 12 and 13 have it under different names.
find_program(CMAKE_CXX_COMPILER NAMES clang++-16 clang++-19 clang++ REQUIRED)
