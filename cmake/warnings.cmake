# The one warning list of all our targets. CI turns warnings into errors; a developer who tries a
# newer compiler can switch that off.
option(ZEV_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)

add_library(zev_warnings INTERFACE)
target_compile_options(zev_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-align -Wformat=2 -Wimplicit-fallthrough
    $<$<BOOL:${ZEV_WARNINGS_AS_ERRORS}>:-Werror>)

# GCC bug 105651: assigning a literal to a std::string is taken for an overlapping copy.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(zev_warnings INTERFACE -Wno-restrict)
endif()
