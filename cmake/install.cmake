# What cmake --install puts where, and the Debian package of it.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/radio_apis)
set(data_dir ${CMAKE_INSTALL_DATADIR}/radio_apis)

install(DIRECTORY include/radio_apis DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS radioapis EXPORT radio_apisTargets)
install(EXPORT radio_apisTargets NAMESPACE radio_apis:: DESTINATION ${package_dir})

configure_package_config_file(cmake/radio_apisConfig.cmake.in radio_apisConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(radio_apisConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/radio_apisConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/radio_apisConfigVersion.cmake
        DESTINATION ${package_dir})

# From the file itself, so that the whole may be moved.
file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/radio_apis.pc.in radio_apis.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/radio_apis.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(RADIO_PLATFORM STREQUAL host)
    # The stand-ins for the device's libraries, and all that is needed to work with them.
    install(TARGETS vorn radio_base radio_platform EXPORT radio_apisTargets)
    install(TARGETS kst radioctl modem-sim)
    install(DIRECTORY examples/device examples/scenarios DESTINATION ${data_dir})
    install(FILES examples/every-request.txt DESTINATION ${data_dir})
    install(FILES interface/radio_apis.json interface/radio_apis.schema.json DESTINATION ${data_dir})
    install(FILES protocol/messages.json sim/default_scenario.json sim/scenario.schema.json DESTINATION ${data_dir})

    # What radioctl tells of itself.
    set(generated ${CMAKE_CURRENT_BINARY_DIR}/generated)
    file(MAKE_DIRECTORY ${generated})
    add_custom_command(
        OUTPUT ${generated}/radioctl.1 ${generated}/radioctl.bash ${generated}/_radioctl
        COMMAND radioctl man > ${generated}/radioctl.1
        COMMAND radioctl completion bash > ${generated}/radioctl.bash
        COMMAND radioctl completion zsh > ${generated}/_radioctl
        DEPENDS radioctl
        VERBATIM)
    add_custom_target(radioctl_pages ALL
                      DEPENDS ${generated}/radioctl.1 ${generated}/radioctl.bash ${generated}/_radioctl)
    install(FILES ${generated}/radioctl.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES ${generated}/radioctl.bash RENAME radioctl
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES ${generated}/_radioctl DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME radio-apis)
set(CPACK_PACKAGE_CONTACT "the radio_apis developers <radio-apis@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${CMAKE_BINARY_DIR}/src ${CMAKE_BINARY_DIR}/platform/host/vorn ${CMAKE_BINARY_DIR}/platform/host/kst
    ${CMAKE_BINARY_DIR}/platform/host/base)
include(CPack)
