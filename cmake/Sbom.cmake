# What the component is made of and links, as an SPDX document: names, versions found by this configuration, licences.

set(sbom_packages "")
# One package, and how the component has it: CONTAINS what lies in its files, DEPENDS_ON what is linked.
function(sbom_package name version licence relation)
    if(NOT version)
        set(version NOASSERTION)
    endif()
    set(id "SPDXRef-${name}")
    string(APPEND sbom_packages "
PackageName: ${name}
SPDXID: ${id}
PackageVersion: ${version}
PackageDownloadLocation: NOASSERTION
FilesAnalyzed: false
PackageLicenseConcluded: ${licence}
PackageLicenseDeclared: ${licence}
PackageCopyrightText: NOASSERTION
Relationship: ${relation} ${id}
")
    set(sbom_packages "${sbom_packages}" PARENT_SCOPE)
endfunction()

set(depends "SPDXRef-ombrivane DEPENDS_ON")
sbom_package(ombrivane "${PROJECT_VERSION}" MIT "SPDXRef-DOCUMENT DESCRIBES")
sbom_package(Fira-Sans NOASSERTION OFL-1.1 "SPDXRef-ombrivane CONTAINS")
sbom_package(curl "${CURL_VERSION_STRING}" curl "${depends}")
sbom_package(openssl "${OPENSSL_VERSION}" Apache-2.0 "${depends}")
sbom_package(icu "${ICU_VERSION}" ICU "${depends}")
sbom_package(simdjson "${simdjson_VERSION}" Apache-2.0 "${depends}")
sbom_package(nlohmann-json "${nlohmann_json_VERSION}" MIT "${depends}")
sbom_package(fmt "${fmt_VERSION}" MIT "${depends}")
sbom_package(libjpeg-turbo "" "IJG AND BSD-3-Clause AND Zlib" "${depends}")
sbom_package(libpng "${PNG_VERSION_STRING}" libpng-2.0 "${depends}")
if(OMBRIVANE_VIEW)
    sbom_package(qt "${Qt6_VERSION}" LGPL-3.0-only "${depends}")
endif()

# The time of the sources, not of the build: two builds of the same sources are to be equal.
set(sbom_created "$ENV{SOURCE_DATE_EPOCH}")
if(NOT sbom_created)
    execute_process(COMMAND git -C ${PROJECT_SOURCE_DIR} log -1 --format=%ct
                    OUTPUT_VARIABLE sbom_created OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT sbom_created)
    set(sbom_created 0)
endif()
set(ENV{SOURCE_DATE_EPOCH} "${sbom_created}")
string(TIMESTAMP sbom_created "%Y-%m-%dT%H:%M:%SZ" UTC)
configure_file(${CMAKE_CURRENT_LIST_DIR}/ombrivane.spdx.in ${PROJECT_BINARY_DIR}/ombrivane.spdx @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ombrivane.spdx DESTINATION ${CMAKE_INSTALL_DOCDIR})
