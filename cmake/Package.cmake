# What `find_package(Ombrivane)` reads. The headers and libraries are installed beside their targets.

include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Ombrivane)

configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/OmbrivaneConfig.cmake.in ${PROJECT_BINARY_DIR}/OmbrivaneConfig.cmake
    INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OmbrivaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/OmbrivaneConfig.cmake ${PROJECT_BINARY_DIR}/OmbrivaneConfigVersion.cmake
    DESTINATION ${package_folder})
install(EXPORT OmbrivaneCore NAMESPACE Ombrivane:: DESTINATION ${package_folder})
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/THIRD-PARTY.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR})
# Where it is unpacked to is found from where it lies.
file(RELATIVE_PATH from_pkgconfig_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${CMAKE_CURRENT_LIST_DIR}/ombrivane-core.pc.in ${PROJECT_BINARY_DIR}/ombrivane-core.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ombrivane-core.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
include(Sbom)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs 
    FILES_MATCHING PATTERN *.md PATTERN pictures/*.png)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/contract/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ombrivane/contract)
# Beside the documents too, which link to it.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/contract/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/contract)
if(OMBRIVANE_TOOLS)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/journeys/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ombrivane/journeys
        FILES_MATCHING PATTERN unmet-expectation.journey EXCLUDE PATTERN *.journey PATTERN *.steps PATTERN *.png)
    install(EXPORT OmbrivaneKit NAMESPACE Ombrivane:: DESTINATION ${package_folder})
    if(OMBRIVANE_VIEW)
        install(EXPORT OmbrivaneKitPages NAMESPACE Ombrivane:: DESTINATION ${package_folder})
    endif()
endif()
if(OMBRIVANE_VIEW)
    install(EXPORT OmbrivaneView NAMESPACE Ombrivane:: DESTINATION ${package_folder})
    install(FILES ${PROJECT_SOURCE_DIR}/resources/fonts/OFL.txt DESTINATION ${CMAKE_INSTALL_DOCDIR}/fonts)
endif()

# `cpack` in a build folder makes a Debian package of what is installed.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME libombrivane-dev)
set(CPACK_PACKAGE_VENDOR "The Ombrivane developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "A flight booking that a mobile wallet embeds as one view")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Ombrivane developers <developers@ombrivane.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# What a host builds against.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libcurl4-openssl-dev (>= 7.87), libfmt-dev, libicu-dev, libjpeg-dev, libpng-dev, libsimdjson-dev, libssl-dev, nlohmann-json3-dev")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS 
    "qt6-declarative-dev, qt6-svg-dev, qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-dialogs, \
qml6-module-qtquick-layouts, qml6-module-qtquick-shapes, qml6-module-qtquick-templates, qml6-module-qtquick-window, \
qml6-module-qtqml-models, qml6-module-qtqml-workerscript, qml6-module-qt-labs-folderlistmodel, zlib1g-dev")
include(CPack)
