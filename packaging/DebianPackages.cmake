# Debian packages, made by cpack; scripts/package says how they are built.
#
# libvorn-parsers0 has the library, libvorn-toml-diagnosis0 that of the diagnoses,
# libvorn-toml-config0 that of values and places, libvorn-parsers-dev what programs are compiled
# with for all of them, vorn-toml the tool, and libvorn-utils0 the host's stand-in for the device's
# utility library.
set(VORN_UTILS_PACKAGE "" CACHE STRING
    "The Debian package of VORN_UTILS_LIBRARY, for libvorn-parsers0 to depend on")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vorn-parsers)
set(CPACK_PACKAGE_CONTACT "vorn_parsers maintainers <vorn-parsers@vorn.example>")
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL Runtime Diagnosis Config Development Tool)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(CMAKE_LIBRARY_ARCHITECTURE STREQUAL arm-linux-gnueabihf)
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE armhf)
endif()

# vorn_debian_package(COMPONENT NAME SECTION SUMMARY TEXT DEPENDENCIES...)
function(vorn_debian_package component name section summary text)
    string(TOUPPER ${component} upper)
    list(JOIN ARGN ", " dependencies)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}\n${text}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${dependencies}" PARENT_SCOPE)
endfunction()

# vorn_debian_library(COMPONENT LIBRARY SOVERSION PACKAGE): what others depend on who link the
# library, and that the loader's cache is renewed.
function(vorn_debian_library component library soversion package)
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/${component})
    file(WRITE ${directory}/shlibs "${library} ${soversion} ${package} (>= ${PROJECT_VERSION})\n")
    file(WRITE ${directory}/triggers "activate-noawait ldconfig\n")
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA
        ${directory}/shlibs ${directory}/triggers PARENT_SCOPE)
endfunction()

# They are stated, since those of another processor cannot be looked up here: Debian 12's.
set(runtime "libc6 (>= 2.36)" "libgcc-s1 (>= 3.5)" "libstdc++6 (>= 12)")
set(library_package libvorn-parsers${VORN_PARSERS_SOVERSION})
set(diagnosis_package libvorn-toml-diagnosis${VORN_TOML_DIAGNOSIS_SOVERSION})
set(config_package libvorn-toml-config${VORN_TOML_CONFIG_SOVERSION})
# Of one build: the diagnosis has parts of the other library, and the tool has of both.
set(libraries
    "${library_package} (= ${PROJECT_VERSION})" "${diagnosis_package} (= ${PROJECT_VERSION})")
set(utils ${VORN_UTILS_PACKAGE})
if(NOT VORN_UTILS_LIBRARY)
    set(utils "libvorn-utils0")
    list(APPEND CPACK_COMPONENTS_ALL HostUtils)
    vorn_debian_package(HostUtils libvorn-utils0 libs
        "stand-in for the utility library of a device"
        "It logs to standard error, tests for files and formats texts, for\nlibvorn_parsers on a machine that is not the device."
        ${runtime})
    vorn_debian_library(HostUtils libvorn_utils 0 libvorn-utils0)
endif()
vorn_debian_package(Runtime ${library_package} libs
    "event reader for TOML"
    "It checks a TOML document and calls a visitor for every header, key, array,\ninline table and scalar."
    "libantlr3c-3.4-0" ${runtime} ${utils})
vorn_debian_library(Runtime libvorn_parsers ${VORN_PARSERS_SOVERSION} ${library_package})
vorn_debian_package(Diagnosis ${diagnosis_package} libs
    "event reader for TOML - explanation of mistakes"
    "It says what is wrong with a TOML document, where, and how to put it right."
    "libantlr3c-3.4-0" ${runtime} "${library_package} (= ${PROJECT_VERSION})")
vorn_debian_library(Diagnosis libvorn_toml_diagnosis ${VORN_TOML_DIAGNOSIS_SOVERSION}
    ${diagnosis_package})
vorn_debian_package(Config ${config_package} libs
    "event reader for TOML - values and places"
    "It turns the texts of a TOML document into checked values, and says where they\nstand."
    ${runtime} ${libraries})
vorn_debian_library(Config libvorn_toml_config ${VORN_TOML_CONFIG_SOVERSION} ${config_package})
vorn_debian_package(Development libvorn-parsers-dev libdevel
    "event reader for TOML - development files"
    "The headers of libvorn_parsers, libvorn_toml_diagnosis and libvorn_toml_config,\ntheir CMake package and their pkg-config files."
    ${libraries} "${config_package} (= ${PROJECT_VERSION})")
vorn_debian_package(Tool vorn-toml utils
    "event reader for TOML - command-line tool"
    "It prints what libvorn_parsers reports of TOML documents, and tells whether it\naccepts them."
    "libantlr3c-3.4-0" ${runtime} ${libraries} ${utils})

# Documentation that only Debian's packages have.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian_documentation.cmake)
set(CPACK_VORN_COPYRIGHT ${CMAKE_CURRENT_SOURCE_DIR}/copyright)
set(CPACK_VORN_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
include(CPack)
