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
file(WRITE ${recogniser} "${changed}")
