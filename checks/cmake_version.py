"""Fails where CMake files use what is newer than the CMake that they ask for.

    cmake_version.py [ROOT]

The installed CMake is newer, and says nothing of it.  It knows the versions, though: `cmake
--help-command NAME`, --help-variable and others have them.  Add what a new version brings.
"""

import argparse
import re
import sys
from pathlib import Path

# A word; a command, with "("; a command with what it takes, at any place; a part of a word, with
# "*"; a generator expression; what cmake -E does.
NEWER = {
    "3.17": """
        foreach(ZIP_LISTS message(CHECK_START message(CHECK_PASS message(CHECK_FAIL
        CMAKE_CURRENT_FUNCTION* CMAKE_MESSAGE_LOG_LEVEL CMAKE_MESSAGE_CONTEXT*
        CMAKE_CTEST_ARGUMENTS -E:rm""",
    "3.18": """
        cmake_language( file(CONFIGURE file(ARCHIVE_CREATE file(ARCHIVE_EXTRACT string(HEX
        list(NATURAL find_program(REQUIRED find_library(REQUIRED find_file(REQUIRED
        find_path(REQUIRED execute_process(ECHO_OUTPUT_VARIABLE execute_process(ECHO_ERROR_VARIABLE
        TARGET_DIRECTORY CheckLinkerFlag CMAKE_*_LINK_WHAT_YOU_USE_FLAG ALIAS_GLOBAL
        PCH_WARN_INVALID UNITY_BUILD_MODE $<LINK_LANGUAGE $<LINK_LANG_AND_ID $<DEVICE_LINK
        $<HOST_LINK -E:cat""",
    "3.19": """
        file(CHMOD file(CHMOD_RECURSE file(REAL_PATH file(TARGET string(JSON cmake_language(DEFER
        execute_process(COMMAND_ERROR_IS_FATAL separate_arguments(PROGRAM
        configure_file(NO_SOURCE_PERMISSIONS CheckCompilerFlag CheckSourceCompiles CheckSourceRuns
        OPTIMIZE_DEPENDENCIES -E:create_hardlink""",
    "3.20": """
        cmake_path( file(FILE_PERMISSIONS file(NO_SOURCE_PERMISSIONS file(USE_SOURCE_PERMISSIONS
        file(NEWLINE_STYLE configure_file(FILE_PERMISSIONS configure_file(USE_SOURCE_PERMISSIONS
        try_run(WORKING_DIRECTORY CMAKE_*_BYTE_ORDER EXPORT_COMPILE_COMMANDS cxx_std_23
        $<COMMAND_CONFIG $<OUTPUT_CONFIG""",
    "3.21": """
        *_IS_TOP_LEVEL file(COPY_FILE file(NO_REPLACE file(EXPAND_TILDE find_program(NO_CACHE
        find_library(NO_CACHE find_file(NO_CACHE find_path(NO_CACHE install(RUNTIME_DEPENDENCIES
        install(RUNTIME_DEPENDENCY_SET install(IMPORTED_RUNTIME_ARTIFACTS *_LINKER_LAUNCHER
        target_link_libraries($<TARGET_OBJECTS $<TARGET_RUNTIME_DLLS""",
    "3.22": """
        cmake_dependent_option(( cmake_host_system_information(DISTRIB_INFO
        CMAKE_*_EXTENSIONS_DEFAULT CMAKE_REQUIRE_FIND_PACKAGE_* ENVIRONMENT_MODIFICATION""",
    "3.23": """
        FILE_SET HEADER_SET* HEADER_DIRS* define_property(INITIALIZE_FROM_VARIABLE
        IMPORTED_NO_SYSTEM CMAKE_IGNORE_PREFIX_PATH CMAKE_LINK_LIBRARIES_ONLY_TARGETS""",
    "3.24": """
        FIND_PACKAGE_ARGS OVERRIDE_FIND_PACKAGE DOWNLOAD_EXTRACT_TIMESTAMP find_package(GLOBAL
        if(PATH_EQUAL *COMPILE_WARNING_AS_ERROR CMAKE_COLOR_DIAGNOSTICS REGISTRY_VIEW
        CMAKE_FIND_PACKAGE_TARGETS_GLOBAL CMAKE_PROJECT_TOP_LEVEL_INCLUDES
        CMAKE_FIND_USE_INSTALL_PREFIX *VERIFY_INTERFACE_HEADER_SETS LINK_LIBRARY_OVERRIDE*
        INTERFACE_LINK_LIBRARIES_DIRECT* $<LINK_LIBRARY $<LINK_GROUP $<PATH""",
    "3.25": """
        block( endblock( return(PROPAGATE add_subdirectory(SYSTEM FetchContent_Declare(SYSTEM
        find_program(VALIDATOR find_library(VALIDATOR find_file(VALIDATOR find_path(VALIDATOR
        SOURCE_FROM_* cmake_language(GET_MESSAGE_LOG_LEVEL EXPORT_NO_SYSTEM CMAKE_HOST_LINUX LINUX
        cxx_std_26""",
    "3.26": "message(CONFIGURE_LOG $<BUILD_LOCAL_INTERFACE",
    "3.27": "cmake_file_api( SKIP_LINTING $<COMPILE_ONLY $<LIST $<TARGET_IMPORT_FILE",
    "3.28": """
        FetchContent_Declare(EXCLUDE_FROM_ALL set_tests_properties(DIRECTORY
        CXX_SCAN_FOR_MODULES""",
    "3.29": "if(IS_READABLE if(IS_WRITABLE if(IS_EXECUTABLE *LINKER_TYPE",
    "3.30": "CMAKE_*_STANDARD_LATEST $<QUOTE",
}
# The files where it is stated what others need: all of them, and those below directories that only
# who works on this project builds.
STATED = {
    "": ("CMakeLists.txt", r"cmake_minimum_required\(VERSION ([\d.]+)\)"),
    "tests/": ("cmake/Parts.cmake", r"VORN_TESTS AND CMAKE_VERSION VERSION_LESS ([\d.]+)\)"),
}


def number(version):
    return tuple(int(part) for part in version.split("."))


def pattern_of(word):
    """What finds a word of the table."""
    escaped = re.escape(word).replace(r"\*", r"\w*")
    if word.startswith("$<"):
        return rf"{escaped}\b"
    if word.startswith("-E:"):
        return rf"-E\s+{word[3:]}\b"
    command, opened, taken = word.partition("(")
    if not opened:
        return rf"(?<![\w-]){escaped}(?![\w-])"
    if not taken:
        return rf"(?i:\b{command})\s*\("
    # What a command takes may have parentheses in strings and conditions.
    taken = r"\(" if taken == "(" else rf"(?<!\w){re.escape(taken)}\b"
    return rf"(?i:(?<!\w){command})\s*\((?:[^()]|\([^()]*\))*?{taken}"


def without_comments(text):
    return re.sub(r"(?m)(^|(?<=\s))#[^\n]*", "", text)


def table():
    return [(number(version), word, re.compile(pattern_of(word)))
            for version, words in NEWER.items() for word in words.split()]


def findings(root, files):
    stated = {}
    for directory, (file, pattern) in STATED.items():
        found = re.search(pattern, (root / file).read_text(encoding="utf-8"))
        if not found:
            yield f"{file} states no version"
            return
        stated[directory] = found[1]
    words = table()
    for file in files:
        directory = max((one for one in stated if file.startswith(one)), key=len)
        text = without_comments((root / file).read_text(encoding="utf-8"))
        for version, word, pattern in words:
            if version > number(stated[directory]):
                for found in pattern.finditer(text):
                    line = text.count("\n", 0, found.end()) + 1
                    shown = ".".join(str(part) for part in version)
                    yield f"{file}:{line}: {word} is CMake {shown}'s, not {stated[directory]}'s"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", nargs="?", type=Path, default=Path("."))
    root = parser.parse_args().root
    files = sorted(
        str(file.relative_to(root))
        for pattern in ("CMakeLists.txt", "*.cmake", "*.cmake.in")
        for file in root.rglob(pattern)
        if not str(file.relative_to(root)).startswith(("build", "."))
    )
    print(f"{len(files)} files, {len(table())} words")
    found = list(findings(root, files))
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
