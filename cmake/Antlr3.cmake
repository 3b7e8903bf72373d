# The ANTLR 3 tool, which makes the recognisers, and its C runtime.
find_program(ANTLR3_TOOL antlr3 DOC "The ANTLR 3 tool")
if(NOT ANTLR3_TOOL)
    message(FATAL_ERROR "antlr3 was not found. It is in the Debian package antlr3.")
endif()

find_path(ANTLR3C_INCLUDE_DIR antlr3.h DOC "Where the ANTLR 3 C runtime's headers are")
find_library(ANTLR3C_LIBRARY antlr3c DOC "The ANTLR 3 C runtime")
if(NOT ANTLR3C_INCLUDE_DIR OR NOT ANTLR3C_LIBRARY)
    message(FATAL_ERROR "libantlr3c was not found. It is in the Debian package libantlr3c-dev.")
endif()

add_library(antlr3c UNKNOWN IMPORTED)
set_target_properties(antlr3c PROPERTIES
    IMPORTED_LOCATION ${ANTLR3C_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${ANTLR3C_INCLUDE_DIR})

# Debian's headers differ between processors: those for another word size would give the
# runtime's objects another layout, and nothing else would tell.
include(CheckCXXSourceCompiles)
set(CMAKE_REQUIRED_INCLUDES ${ANTLR3C_INCLUDE_DIR})
set(CMAKE_REQUIRED_LIBRARIES ${ANTLR3C_LIBRARY})
check_cxx_source_compiles("
    #include <antlr3.h>
    static_assert(sizeof(ANTLR3_MARKER) == sizeof(void*), \"the word size of the headers\");
    int main() { return antlr3VectorNew(0) == nullptr; }
    " ANTLR3C_IS_FOR_THIS_PROCESSOR)
unset(CMAKE_REQUIRED_INCLUDES)
unset(CMAKE_REQUIRED_LIBRARIES)
if(NOT ANTLR3C_IS_FOR_THIS_PROCESSOR)
    # The next run looks again.
    unset(ANTLR3C_IS_FOR_THIS_PROCESSOR CACHE)
    message(FATAL_ERROR
        "libantlr3c is for another processor: ${ANTLR3C_INCLUDE_DIR}/antlr3config.h and "
        "${ANTLR3C_LIBRARY} do not fit ${CMAKE_CXX_COMPILER}, whose pointers have "
        "${CMAKE_SIZEOF_VOID_P} bytes. The package libantlr3c-dev of that processor has both.")
endif()

# antlr_recognisers(GRAMMAR OUTPUTS...): makes the recognisers of src/grammar/GRAMMAR in
# the same place below the build directory.
function(antlr_recognisers grammar)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "OUTPUTS;DEPENDS")
    list(TRANSFORM arg_OUTPUTS PREPEND ${PROJECT_BINARY_DIR}/src/grammar/)
    add_custom_command(
        OUTPUT ${arg_OUTPUTS}
        COMMAND ${CMAKE_COMMAND} -DANTLR3=${ANTLR3_TOOL} -DGRAMMAR=src/grammar/${grammar}
            -DOUTPUT=${PROJECT_BINARY_DIR}/src/grammar -P ${PROJECT_SOURCE_DIR}/cmake/RunAntlr.cmake
        DEPENDS ${PROJECT_SOURCE_DIR}/src/grammar/${grammar}
            ${PROJECT_SOURCE_DIR}/cmake/RunAntlr.cmake ${arg_DEPENDS}
        COMMENT "Making the recognisers of ${grammar}"
        VERBATIM)
endfunction()
