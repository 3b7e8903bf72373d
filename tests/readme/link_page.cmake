# Checks that a project with the block of `cmake` of a page can be generated:
# cmake -DPAGE=FILE -DSOURCE=DIRECTORY -DDIRECTORY=DIRECTORY -DGENERATOR=NAME -P link_page.cmake
file(READ "${PAGE}" page)
if(NOT page MATCHES "\n```cmake\n([^`]*)```\n")
    message(FATAL_ERROR "${PAGE} has no block of cmake.")
endif()
set(block "${CMAKE_MATCH_1}")

file(REMOVE_RECURSE "${DIRECTORY}")
file(MAKE_DIRECTORY "${DIRECTORY}/source")
file(CREATE_LINK "${SOURCE}" "${DIRECTORY}/source/vorn_parsers" SYMBOLIC)
file(WRITE "${DIRECTORY}/source/main.cpp" "#include <vorn/parsers/toml.h>\nint main() {}\n")
file(WRITE "${DIRECTORY}/source/CMakeLists.txt" "cmake_minimum_required(VERSION 3.16)
project(my_service CXX)
add_executable(my_service main.cpp)
${block}")
# The service itself is compiled, which needs the library's header.
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${DIRECTORY}/source" -B "${DIRECTORY}/build"
    -G "${GENERATOR}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${DIRECTORY}/build"
    --target CMakeFiles/my_service.dir/main.cpp.o COMMAND_ERROR_IS_FATAL ANY)
