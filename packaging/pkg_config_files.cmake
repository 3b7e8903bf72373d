# Writes the pkg-config files when they are installed; CMakeLists.txt sets what is needed.
#
# What has been installed may be moved.  pkg-config --define-prefix takes the directory above that
# of the libraries for the prefix, whatever the file says.  Where the libraries are deeper, as
# Debian's are (lib/x86_64-linux-gnu), it is wrong, so that there directories are named from where
# the file is.  Elsewhere they are named below the prefix, which is written in full: all versions
# of pkg-config put PKG_CONFIG_SYSROOT_DIR before that, once.
set(prefix "${CMAKE_INSTALL_PREFIX}")
foreach(directory IN ITEMS libdir includedir)
    get_filename_component(${directory} "${${directory}}" ABSOLUTE BASE_DIR "${prefix}")
endforeach()

file(RELATIVE_PATH below_prefix "${prefix}" "${libdir}")
set(root "\${prefix}")
if(below_prefix MATCHES "/" AND NOT below_prefix MATCHES "^\\.\\./")
    string(REGEX REPLACE "[^/]+" ".." up "${below_prefix}")
    set(root "\${pcfiledir}/../${up}")
endif()
# What is not below the prefix stays where it is.
foreach(directory IN ITEMS libdir includedir)
    file(RELATIVE_PATH below_prefix "${prefix}" "${${directory}}")
    if(NOT below_prefix MATCHES "^\\.\\./")
        set(${directory} "${root}/${below_prefix}")
    endif()
endforeach()
if(NOT root STREQUAL "\${prefix}")
    set(prefix "${root}")
endif()

foreach(name IN LISTS names)
    configure_file("${CMAKE_CURRENT_LIST_DIR}/${name}.pc.in" "${written}/${name}.pc" @ONLY)
endforeach()
