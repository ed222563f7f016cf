# cmake -D MSGFMT=... -D WRITTEN=FILE.cpp -D TRANSLATIONS=ONE.po;... -P WriteCatalogues.cmake

set(tables "")
set(entries "")
foreach(translation IN LISTS TRANSLATIONS)
    cmake_path(GET translation STEM language)
    set(compiled ${WRITTEN}.${language}.mo)
    execute_process(
        COMMAND ${MSGFMT} --no-hash --check-format --endianness=little -o ${compiled} ${translation}
        COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${compiled} bytes HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
    string(MAKE_C_IDENTIFIER ${language} name)
    string(APPEND tables "constexpr unsigned char ${name}[] = {${bytes}};\n")
    string(APPEND entries "    {\"${language}\", ${name}},\n")
endforeach()
file(WRITE ${WRITTEN} "#include \"words/Catalogue.h\"

namespace ombrivane {
namespace {

${tables}
constexpr Catalogue all[] = {
${entries}};

} // namespace

std::span<const Catalogue> catalogues() { return all; }

} // namespace ombrivane
")
