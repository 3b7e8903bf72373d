# vorn_own_code(TARGET): what holds for hand-written code, and not for generated code.
option(VORN_WARNINGS_AS_ERRORS "Stop at any warning in hand-written code" OFF)

function(vorn_own_code target)
    target_compile_options(${target} PRIVATE
        $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow>
        $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<BOOL:${VORN_WARNINGS_AS_ERRORS}>>:-Werror>)
endfunction()
