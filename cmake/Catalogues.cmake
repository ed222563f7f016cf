# The translations of resources/words, compiled by gettext's compiler and written as a source of the core, so that a
# wallet has no file more to ship.

find_program(MSGFMT msgfmt REQUIRED)
set(write_catalogues ${CMAKE_CURRENT_LIST_DIR}/WriteCatalogues.cmake)

function(ombrivane_catalogues target)
    file(GLOB translations CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/words/*.po)
    set(written ${CMAKE_CURRENT_BINARY_DIR}/Catalogues.cpp)
    add_custom_command(OUTPUT ${written}
        COMMAND ${CMAKE_COMMAND} -D MSGFMT=${MSGFMT} -D WRITTEN=${written} -D "TRANSLATIONS=${translations}"
                -P ${write_catalogues}
        DEPENDS ${translations} ${write_catalogues}
        VERBATIM)
    target_sources(${target} PRIVATE ${written})
endfunction()
