# The ANTLR 3 tool, which makes the recognisers, and its C runtime.

# An archive of scripts/release has the recognisers' sources in generated/, with the checksums of
# these and of what they were made with.  As long as all fit, nobody looks for the tool.
set(VORN_ARCHIVED_RECOGNISERS ${PROJECT_SOURCE_DIR}/generated)

# vorn_find_changes(VARIABLE): which of those files are not as they were.
function(vorn_find_changes variable)
    set(changed)
    file(STRINGS ${VORN_ARCHIVED_RECOGNISERS}/checksums lines REGEX "^[0-9a-f]")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "^([0-9a-f]+)  (.+)$" matched "${line}")
        set(expected "${CMAKE_MATCH_1}")
        set(name "${CMAKE_MATCH_2}")
        set(found)
        if(EXISTS ${PROJECT_SOURCE_DIR}/${name})
            file(SHA256 ${PROJECT_SOURCE_DIR}/${name} found)
        endif()
        if(NOT found STREQUAL expected)
            list(APPEND changed ${name})
        endif()
        # A later change makes CMake run again.
        set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY
            CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${name})
    endforeach()
    string(REPLACE ";" ", " changed "${changed}")
    set(${variable} ${changed} PARENT_SCOPE)
endfunction()

set(VORN_RECOGNISERS_ARE_ARCHIVED OFF)
set(why_again)
if(EXISTS ${VORN_ARCHIVED_RECOGNISERS}/checksums)
    vorn_find_changes(changed)
    if(changed)
        set(why_again "The recognisers have to be made again, since generated/ was made with "
            "another state of: ${changed}.\n")
    else()
        set(VORN_RECOGNISERS_ARE_ARCHIVED ON)
    endif()
endif()
# For the summary.
set(VORN_RECOGNISERS_FROM "not needed: the recognisers' sources are in the archive")
if(NOT VORN_RECOGNISERS_ARE_ARCHIVED)
    find_program(ANTLR3_TOOL antlr3 DOC "The ANTLR 3 tool")
    if(NOT ANTLR3_TOOL)
        message(FATAL_ERROR
            ${why_again} "antlr3 was not found. It is in the Debian package antlr3.")
    endif()
    set(VORN_RECOGNISERS_FROM ${ANTLR3_TOOL})
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
# the same place below the build directory, or takes the archive's.
function(antlr_recognisers grammar)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "OUTPUTS;DEPENDS")
    set(directory ${PROJECT_BINARY_DIR}/src/grammar)
    if(VORN_RECOGNISERS_ARE_ARCHIVED)
        list(TRANSFORM arg_OUTPUTS PREPEND ${VORN_ARCHIVED_RECOGNISERS}/ OUTPUT_VARIABLE archived)
        set(command -E copy ${archived} ${directory})
        set(depends ${archived})
        set(comment "Copying the recognisers of ${grammar}")
    else()
        set(script ${PROJECT_SOURCE_DIR}/cmake/RunAntlr.cmake)
        set(command -DANTLR3=${ANTLR3_TOOL} -DGRAMMAR=src/grammar/${grammar}
            -DOUTPUT=${directory} -P ${script})
        set(depends ${PROJECT_SOURCE_DIR}/src/grammar/${grammar} ${script})
        set(comment "Making the recognisers of ${grammar}")
    endif()
    # (Where the command becomes the other one, Ninja and CMake's Makefiles run it, whatever is
    # younger.)
    file(MAKE_DIRECTORY ${directory})
    list(TRANSFORM arg_OUTPUTS PREPEND ${directory}/)
    add_custom_command(
        OUTPUT ${arg_OUTPUTS}
        COMMAND ${CMAKE_COMMAND} ${command}
        DEPENDS ${depends} ${arg_DEPENDS}
        COMMENT "${comment}"
        VERBATIM)
endfunction()
