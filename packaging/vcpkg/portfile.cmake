# An overlay port: vcpkg install ombrivane --overlay-ports=packaging/vcpkg. It builds the tree that it lies in.
cmake_path(SET source NORMALIZE "${CURRENT_PORT_DIR}/../..")

vcpkg_check_features(OUT_FEATURE_OPTIONS features FEATURES
    view OMBRIVANE_VIEW
    kit OMBRIVANE_TOOLS)
vcpkg_add_to_path("${CURRENT_HOST_INSTALLED_DIR}/tools/gettext/bin") # msgfmt, which compiles the translations
vcpkg_cmake_configure(
    SOURCE_PATH "${source}"
    OPTIONS ${features} -DOMBRIVANE_TESTS=OFF -DOMBRIVANE_INSTALL=ON)
vcpkg_cmake_install()
# The configuration, once it is fixed up, names the programs where they lie then.
if("kit" IN_LIST FEATURES)
    vcpkg_copy_tools(TOOL_NAMES ombrivane-sandbox ombrivane-journey AUTO_CLEAN)
endif()
vcpkg_cmake_config_fixup(PACKAGE_NAME Ombrivane CONFIG_PATH lib/cmake/Ombrivane)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${source}/LICENSE" "${source}/THIRD-PARTY.md")
