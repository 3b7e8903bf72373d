# The parts that are built, installed and tested: docs/packaging.md has a table of them.
#
# A part that nobody has switched on or off has a default, which depends on the others and is not
# kept in the cache: there it would stay as it was when one of them changes.

# vorn_part(NAME CONDITION...): a part that is on by default where the condition, as if() has it,
# holds.
macro(vorn_part name)
    if(NOT DEFINED ${name})
        set(${name} OFF)
        if(${ARGN})
            set(${name} ON)
        endif()
    endif()
endmacro()

# vorn_needs(NAME PARTS...): stops where a part is on, and one that it needs is off.
function(vorn_needs name)
    foreach(needed IN LISTS ARGN)
        if(${name} AND NOT ${needed})
            message(FATAL_ERROR "${name} needs ${needed}: switch both on, or ${name} off.")
        endif()
    endforeach()
endfunction()

# With this, configurations read and show floats.
include(CheckCXXSourceCompiles)
check_cxx_source_compiles("
    #include <charconv>
    #ifndef __cpp_lib_to_chars
    #error
    #endif
    int main() {}
    " VORN_HAS_FLOAT_CONVERSIONS)
set(float_conversions "std::to_chars() for double, which GCC has from version 11 on")

vorn_part(VORN_INSTALL VORN_TOP_LEVEL)
vorn_part(VORN_DIAGNOSIS TRUE)
vorn_part(VORN_CONFIG VORN_DIAGNOSIS AND VORN_HAS_FLOAT_CONVERSIONS)
vorn_part(VORN_TOOL VORN_DIAGNOSIS AND (VORN_TOP_LEVEL OR VORN_TESTS))
# BUILD_TESTING is about the tests of the project at the top.
vorn_part(VORN_TESTS VORN_TOP_LEVEL AND BUILD_TESTING AND VORN_CONFIG AND VORN_TOOL)

# What only who works on this project builds.
if(VORN_TOP_LEVEL)
    option(VORN_BENCHMARKS "Build the programs that compare speed with other parsers" OFF)
    option(VORN_FUZZING "Build the programs that libFuzzer runs; needs clang and VORN_TESTS" OFF)
else()
    set(VORN_BENCHMARKS OFF)
    set(VORN_FUZZING OFF)
endif()

if(VORN_TESTS AND CMAKE_VERSION VERSION_LESS 3.20)
    message(FATAL_ERROR
        "The tests need CMake 3.20, this is ${CMAKE_VERSION}: switch VORN_TESTS off.")
endif()
vorn_needs(VORN_CONFIG VORN_DIAGNOSIS)
if(NOT VORN_HAS_FLOAT_CONVERSIONS)
    if(VORN_CONFIG)
        message(FATAL_ERROR "VORN_CONFIG needs ${float_conversions}: switch it off.")
    endif()
    message(STATUS "vorn::toml_config is left out: it needs ${float_conversions}")
endif()
vorn_needs(VORN_TOOL VORN_DIAGNOSIS)
vorn_needs(VORN_TESTS VORN_DIAGNOSIS VORN_CONFIG VORN_TOOL)
vorn_needs(VORN_BENCHMARKS VORN_CONFIG)
vorn_needs(VORN_FUZZING VORN_TESTS)
