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
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/contract/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ombrivane/contract)
if(OMBRIVANE_VIEW)
    install(EXPORT OmbrivaneView NAMESPACE Ombrivane:: DESTINATION ${package_folder})
    install(FILES ${PROJECT_SOURCE_DIR}/resources/fonts/OFL.txt DESTINATION ${CMAKE_INSTALL_DOCDIR}/fonts)
endif()
