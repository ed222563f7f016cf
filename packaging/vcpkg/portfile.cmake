# An overlay port: vcpkg install ombrivane --overlay-ports=packaging/vcpkg. It builds the tree that it lies in.
cmake_path(SET source NORMALIZE "${CURRENT_PORT_DIR}/../..")

vcpkg_check_features(OUT_FEATURE_OPTIONS features FEATURES
    view OMBRIVANE_VIEW
    kit OMBRIVANE_TOOLS)
vcpkg_cmake_configure(
    SOURCE_PATH "${source}"
    OPTIONS ${features} -DOMBRIVANE_TESTS=OFF -DOMBRIVANE_INSTALL=ON)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME Ombrivane CONFIG_PATH lib/cmake/Ombrivane)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${source}/LICENSE" "${source}/THIRD-PARTY.md")
