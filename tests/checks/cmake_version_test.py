"""Tests checks/cmake_version.py: cmake_version_test.py SCRIPT"""

import importlib.util
import re
import subprocess
import sys
import unittest

from small_tree import check, tree_of

PARTS = """\
if(VORN_TESTS AND CMAKE_VERSION VERSION_LESS 3.20)
    message(FATAL_ERROR "The tests need CMake 3.20.")
endif()
"""
# What CMake 3.16 has, though it looks like what it has not.
RIGHT = {
    "CMakeLists.txt": """\
cmake_minimum_required(VERSION 3.16)
# PROJECT_IS_TOP_LEVEL is newer, and so is cmake_path().
if(CMAKE_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR)  # not PROJECT_IS_TOP_LEVEL
    find_package(Threads REQUIRED)
endif()
file(GENERATE OUTPUT name CONTENT "$<TARGET_FILE:tool>")
target_sources(one PRIVATE $<TARGET_OBJECTS:objects>)
cmake_dependent_option(OURS "Ours" ON "THEIRS;NOT OTHERS" OFF)
message(DEPRECATION "old")
foreach(name IN LISTS names)
endforeach()
return()
""",
    "cmake/Parts.cmake": PARTS,
    "tests/CMakeLists.txt": "execute_process(COMMAND one COMMAND_ERROR_IS_FATAL ANY)\n",
    "build/test/made.cmake": "cmake_path(GET one PARENT_PATH two)\n",
}
REFUSED = [
    ("if(PROJECT_IS_TOP_LEVEL)", "*_IS_TOP_LEVEL is CMake 3.21's"),
    ("if(vorn_parsers_IS_TOP_LEVEL)", "*_IS_TOP_LEVEL is CMake 3.21's"),
    ("cmake_path(GET one PARENT_PATH two)", "cmake_path( is CMake 3.20's"),
    ("CMAKE_PATH (GET one PARENT_PATH two)", "cmake_path( is CMake 3.20's"),
    ('install(CODE "cmake_path(GET one PARENT_PATH two)")', "cmake_path( is CMake 3.20's"),
    ("file(CHMOD one PERMISSIONS OWNER_READ)", "file(CHMOD is CMake 3.19's"),
    ("string(JSON one GET two)", "string(JSON is CMake 3.19's"),
    ("execute_process(COMMAND one\n    COMMAND_ERROR_IS_FATAL ANY)",
     "execute_process(COMMAND_ERROR_IS_FATAL is CMake 3.19's"),
    ("find_program(TOOL tool REQUIRED)", "find_program(REQUIRED is CMake 3.18's"),
    ("foreach(one IN ZIP_LISTS ones)", "foreach(ZIP_LISTS is CMake 3.17's"),
    ("return(PROPAGATE one)", "return(PROPAGATE is CMake 3.25's"),
    ("target_link_libraries(one PRIVATE $<TARGET_OBJECTS:two>)",
     "target_link_libraries($<TARGET_OBJECTS is CMake 3.21's"),
    ("add_test(NAME one COMMAND two $<TARGET_RUNTIME_DLLS:one>)",
     "$<TARGET_RUNTIME_DLLS is CMake 3.21's"),
    ('cmake_dependent_option(A "a" ON "B AND (C OR D)" OFF)',
     "cmake_dependent_option(( is CMake 3.22's"),
    ("FetchContent_Declare(one URL two FIND_PACKAGE_ARGS)", "FIND_PACKAGE_ARGS is CMake 3.24's"),
    ("add_subdirectory(one SYSTEM)", "add_subdirectory(SYSTEM is CMake 3.25's"),
    ("set(CMAKE_CXX_LINKER_LAUNCHER one)", "*_LINKER_LAUNCHER is CMake 3.21's"),
    ("execute_process(COMMAND ${CMAKE_COMMAND} -E rm one)", "-E:rm is CMake 3.17's"),
]


class CMakeVersion(unittest.TestCase):
    def expect(self, files, *said):
        with tree_of(files) as root:
            status, output = check(sys.argv[1], root)
        self.assertEqual(output.splitlines()[1:], list(said))
        self.assertEqual(status, 1 if said else 0)

    def test_what_every_version_has(self):
        self.expect(RIGHT)

    def test_what_is_newer(self):
        for text, said in REFUSED:
            with self.subTest(text=text):
                line = text.count("\n") + 2
                self.expect({**RIGHT, "src/CMakeLists.txt": f"# This is:\n{text}\n"},
                            f"src/CMakeLists.txt:{line}: {said}, not 3.16's")

    def test_tests_have_a_version_of_their_own(self):
        self.expect({**RIGHT, "tests/scan/CMakeLists.txt": "file(COPY_FILE one two)\n"},
                    "tests/scan/CMakeLists.txt:1: file(COPY_FILE is CMake 3.21's, not 3.20's")

    def test_version_that_is_not_stated(self):
        self.expect({**RIGHT, "CMakeLists.txt": "project(one)\n"},
                    "CMakeLists.txt states no version")

    def test_table_agrees_with_the_manual(self):
        """Where the installed CMake has a page of a word, with the version that it is from."""
        manual = subprocess.run(["cmake", "--help-full"], stdin=subprocess.DEVNULL,
                                capture_output=True, text=True, check=True).stdout
        pages = re.findall(r"^(\w+)\n-+\n\n\.\. versionadded:: ([\d.]+)$", manual, re.MULTILINE)
        spec = importlib.util.spec_from_file_location("cmake_version", sys.argv[1])
        module = importlib.util.module_from_spec(spec)
        spec.loader.exec_module(module)
        table = {word.rstrip("("): version
                 for version, words in module.NEWER.items() for word in words.split()}
        both = [(name, version) for name, version in pages if name in table]
        self.assertGreater(len(both), 10)
        for name, version in both:
            with self.subTest(name=name):
                self.assertIn((name, table[name]), both)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
