# What moves with a finger has code made ahead for its bindings. Of all other pages the byte code is enough: it is a
# third of the size, and made at a customer's pace they cost the same.

set(OMBRIVANE_MOVING
    AirportRow CardText FlightTime FoundText KeyList ListEntry Logo OfferCard OfferJourney OfferListView OfferSegments
    PlainText PlaneLine Pressable PriceSlider ResultsHeader ResultsPage RouteLine SegmentLine
    SegmentStop StripCard Wheel WheelEntry)

# Before the pages are added to `target`. A build machine without a shell makes code for all of them.
function(ombrivane_pages target)
    if(NOT CMAKE_HOST_UNIX)
        return()
    endif()
    get_target_property(OMBRIVANE_QMLCACHEGEN Qt6::qmlcachegen LOCATION)
    list(TRANSFORM OMBRIVANE_MOVING APPEND .qml)
    list(JOIN OMBRIVANE_MOVING " | " OMBRIVANE_MOVING_PAGES)
    set(compiler ${CMAKE_CURRENT_BINARY_DIR}/qmlcachegen)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/qmlcachegen.in ${compiler} @ONLY
                   FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    set_target_properties(${target} PROPERTIES QT_QMLCACHEGEN_EXECUTABLE ${compiler})
endfunction()
