# Every library that the component uses, each for its own field.

find_package(CURL 7.87 REQUIRED)
find_package(OpenSSL REQUIRED)
find_package(ICU REQUIRED COMPONENTS i18n uc)
find_package(simdjson REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(JPEG REQUIRED)
find_package(PNG REQUIRED)
find_package(fmt REQUIRED)
find_package(Threads REQUIRED)
if(OMBRIVANE_VIEW)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Network Qml Quick QuickControls2 Svg)
endif()
