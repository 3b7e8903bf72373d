# Adds to the packages what Debian wants in them: cpack runs this before it makes them.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(share ${CPACK_TEMPORARY_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
    set(documentation ${share}/doc/${package})

    file(COPY ${CPACK_VORN_COPYRIGHT} ${CPACK_VORN_CHANGELOG} DESTINATION ${documentation}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    # A package that no Debian revision is made of has its own changelog in Debian's form.
    file(WRITE ${documentation}/changelog
        "vorn-parsers (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium\n\n"
        "  * Version ${CPACK_PACKAGE_VERSION}; CHANGELOG.md says what is new.\n\n"
        " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    file(CHMOD ${documentation}/changelog PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

    file(GLOB pages ${share}/man/man?/*)
    execute_process(COMMAND gzip -9n ${documentation}/changelog ${pages}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
