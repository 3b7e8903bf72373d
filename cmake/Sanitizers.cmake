# With VORN_SANITIZERS (the value of -fsanitize) all code is checked while it runs, and so is
# what it asks of the standard library.
#
# The runtime, libantlr3c, is Debian's: none of its own accesses to memory is checked.  Its
# blocks are the sanitizer's, so that lost ones are found, and accesses of other code after
# their ends.
set(VORN_SANITIZERS "" CACHE STRING "The sanitizers to build with: address,undefined or thread")
if(VORN_SANITIZERS)
    set(checked -fsanitize=${VORN_SANITIZERS} -fno-sanitize-recover=all)
    add_compile_options(${checked} -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
    add_link_options(${checked})
    # With a sanitizer GCC sees it in the standard library's own regular expressions.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

# vorn_leave_out(NAME [TESTS...]): does not run these tests, patterns of GoogleTest, or all of
# the test program NAME.
function(vorn_leave_out name)
    if(ARGN)
        list(JOIN ARGN ":" left_out)
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "GTEST_FILTER=-${left_out}")
    else()
        set_property(TEST ${name} PROPERTY DISABLED ON)
    endif()
endfunction()

# vorn_not_sanitized(NAME [TESTS...]): leaves them out where sanitizers are built in.
function(vorn_not_sanitized name)
    if(VORN_SANITIZERS)
        vorn_leave_out(${name} ${ARGN})
    endif()
endfunction()
