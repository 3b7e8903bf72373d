# Runs the antlr3 tool: cmake -DANTLR3=... -DGRAMMAR=... -DOUTPUT=... -P RunAntlr.cmake
#
# The tool prints two kinds of warnings that mean nothing here: (24), about templates
# of its own, and (200), about the three overlapping optional line breaks of the rule
# `array`, whose resolution (take the first) is what is meant.  Those are left out;
# everything else that the tool says is shown.
get_filename_component(root "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)
execute_process(
    COMMAND ${ANTLR3} -fo ${OUTPUT} -lib ${OUTPUT} ${GRAMMAR}
    WORKING_DIRECTORY ${root}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE said
    ERROR_VARIABLE said)

string(REGEX REPLACE "warning\\(24\\):[^\n]*\n" "" said "${said}")
string(REGEX REPLACE
    "warning\\(200\\): [^\n]*Toml\\.g:[0-9]+:[0-9]+: *\nDecision can match input such as \"(WS|COMMENT NL|NL)\" using multiple alternatives: 1, 2\n+As a result, alternative\\(s\\) 2 were disabled for that input\n"
    "" said "${said}")
if(NOT said STREQUAL "")
    message("${said}")
endif()
if(NOT result EQUAL 0 OR said MATCHES "error\\(")
    message(FATAL_ERROR "antlr3 could not make the recognisers from ${GRAMMAR}")
endif()

# The names of token types are pointers that the loader fills in, and that nobody changes
# afterwards: in this section they are read-only once it has.  (The runtime's interface takes
# them as pointers to what is not const.)
get_filename_component(name ${GRAMMAR} NAME_WE)
set(recogniser ${OUTPUT}/${name}Parser.c)
if(NOT EXISTS ${recogniser})
    set(recogniser ${OUTPUT}/${name}.c)
endif()
file(READ ${recogniser} text)
string(REGEX REPLACE "\n(pANTLR3_UINT8 +[A-Za-z]+TokenNames\\[)"
    "\n__attribute__((section(\".data.rel.ro\"))) \\1" changed "${text}")
if(changed STREQUAL text)
    message(FATAL_ERROR "${recogniser} does not define the names of token types")
endif()

# Of some 150 follow sets 26 differ.  Each takes a pointer, which the loader fills in, so that
# equal ones become one: 7 KB less.  Nobody asks for more than what is in a set.
string(REGEX MATCHALL "FOLLOW_[A-Za-z0-9_]+_bits\\[\\][ \t]*= {[^}]*}" sets "${changed}")
if(NOT sets)
    message(FATAL_ERROR "${recogniser} does not define follow sets")
endif()
foreach(set ${sets})
    string(REGEX MATCH "^(FOLLOW_.*)_bits[^{]*({.*})$" matched "${set}")
    set(name ${CMAKE_MATCH_1})
    string(MAKE_C_IDENTIFIER "${CMAKE_MATCH_2}" content)
    if(DEFINED same_as_${content})
        string(REGEX REPLACE
            "static[ \t]+ANTLR3_BITWORD ${name}_bits[^;]+;[ \t]*\nstatic[ \t]+ANTLR3_BITSET_LIST ${name}[ \t][^;]+;"
            "#define ${name} ${same_as_${content}}" changed "${changed}")
    else()
        set(same_as_${content} ${name})
    endif()
endforeach()
file(WRITE ${recogniser} "${changed}")
