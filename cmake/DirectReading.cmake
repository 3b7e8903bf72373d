# switched_direct_reader: for programs that link the library's objects.  Their calls of
# readDirectly() and DirectLines::read() reach tests/support/direct_reading.cpp, where they can be
# switched off.
string(CONCAT VORN_READ_DIRECTLY
    _ZN4vorn7parsers4toml12readDirectlyESt17basic_string_viewIcSt11char_traitsIcEE
    RNS1_16ITomlTreeVisitorE)
set(VORN_READ_LINES _ZN4vorn7parsers4toml11DirectLines4readEPKc)

add_library(switched_direct_reader STATIC ${PROJECT_SOURCE_DIR}/tests/support/direct_reading.cpp)
target_include_directories(switched_direct_reader
    PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src
    PUBLIC ${PROJECT_SOURCE_DIR}/tests)
target_compile_definitions(switched_direct_reader PRIVATE
    READ_DIRECTLY="${VORN_READ_DIRECTLY}" READ_LINES="${VORN_READ_LINES}")
target_link_options(switched_direct_reader INTERFACE
    LINKER:--wrap=${VORN_READ_DIRECTLY} LINKER:--wrap=${VORN_READ_LINES})
vorn_own_code(switched_direct_reader)
