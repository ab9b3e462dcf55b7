# Where everything goes when it is installed, and what other projects find it by.

# Programs look for the libraries beside themselves, so that an installed tree can be moved; an absolute folder stays.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_BINDIR}")
    set(QV_PROGRAM_RPATH "${CMAKE_INSTALL_FULL_LIBDIR}")
else()
    file(RELATIVE_PATH toLibraries "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
    set(QV_PROGRAM_RPATH "$ORIGIN/${toLibraries}")
endif()

# The CMake package. The build folder holds one as well, in the same place.
set(QV_PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/qv_database)
set(QV_BUILD_PACKAGE_FOLDER ${CMAKE_BINARY_DIR}/lib/cmake/qv_database)

# qv_install_library(<target>), called by qv_library, whose arguments it reads.
function(qv_install_library target)
    install(TARGETS ${target} EXPORT qv_database_targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(DIRECTORY ${arg_HEADERS}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h*")

    set(siblings)
    foreach(sibling ${arg_LINK})
        list(APPEND siblings "$<TARGET_PROPERTY:${sibling},OUTPUT_NAME>")
    endforeach()
    list(JOIN siblings " " siblings)
    foreach(folder LIBDIR INCLUDEDIR)
        set(${folder} "${CMAKE_INSTALL_${folder}}")
        if(NOT IS_ABSOLUTE "${${folder}}")
            set(${folder} "\${prefix}/${${folder}}")
        endif()
    endforeach()
    # The prefix may be chosen as late as by `cmake --install --prefix`.
    file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/pkgconfig/${arg_OUTPUT}.pc.in CONTENT
"prefix=@CMAKE_INSTALL_PREFIX@
libdir=${LIBDIR}
includedir=${INCLUDEDIR}

Name: ${arg_OUTPUT}
Description: ${arg_DESCRIPTION}
Version: ${PROJECT_VERSION}
Requires.private: ${siblings}
Libs: -L\${libdir} -l${arg_OUTPUT}
Cflags: -I\${includedir}
")
    install(CODE "
        configure_file(\"${CMAKE_BINARY_DIR}/pkgconfig/${arg_OUTPUT}.pc.in\"
            \"${CMAKE_BINARY_DIR}/pkgconfig/${arg_OUTPUT}.pc\" @ONLY)")
    install(FILES ${CMAKE_BINARY_DIR}/pkgconfig/${arg_OUTPUT}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# Called once all libraries stand.
function(qv_install_project)
    include(CMakePackageConfigHelpers)
    write_basic_package_version_file(${QV_BUILD_PACKAGE_FOLDER}/qv_database-config-version.cmake
        VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/qv_database-config.cmake
        ${QV_BUILD_PACKAGE_FOLDER}/qv_database-config.cmake COPYONLY)
    export(EXPORT qv_database_targets NAMESPACE qv:: FILE ${QV_BUILD_PACKAGE_FOLDER}/qv_database-targets.cmake)
    install(EXPORT qv_database_targets NAMESPACE qv:: DESTINATION ${QV_PACKAGE_FOLDER} FILE qv_database-targets.cmake)
    install(FILES
        ${QV_BUILD_PACKAGE_FOLDER}/qv_database-config.cmake
        ${QV_BUILD_PACKAGE_FOLDER}/qv_database-config-version.cmake
        DESTINATION ${QV_PACKAGE_FOLDER})

    # What the build writes for people at a terminal, where it does.
    set(share ${CMAKE_BINARY_DIR}/share)
    install(DIRECTORY ${share}/man/man1 DESTINATION ${CMAKE_INSTALL_MANDIR} OPTIONAL)
    install(FILES ${share}/bash-completion/completions/qvdb
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions OPTIONAL)
    install(FILES ${share}/zsh/site-functions/_qvdb DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions OPTIONAL)
    install(FILES README.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
    install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN "*.md")
    install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
endfunction()
