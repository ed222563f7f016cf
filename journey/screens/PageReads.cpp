#include "PageReads.h"

#include <cctype>
#include <fstream>
#include <iterator>
#include <regex>

namespace ombrivane::journey {
namespace {

bool isLetter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

/// The word that ends before `end`.
std::string wordBefore(const std::string& text, std::size_t end) {
    std::size_t begin = end;
    while (begin > 0 && isLetter(text[begin - 1]))
        --begin;
    return text.substr(begin, end - begin);
}

std::string wordAt(const std::string& text, std::size_t begin) {
    std::size_t end = begin;
    while (end < text.size() && isLetter(text[end]))
        ++end;
    return text.substr(begin, end - begin);
}

/// Whether what ends before `end` is assigned there, and not compared.
bool isAssigned(const std::string& text, std::size_t end) {
    const auto next = text.find_first_not_of(' ', end);
    return next != std::string::npos && text[next] == '=' && text.compare(next, 2, "==") != 0;
}

} // namespace

PageReads::PageReads(const std::filesystem::path& folder, std::multimap<std::string, std::string> parts) :
    parts_(std::move(parts)) {
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
        if (file.path().extension() != ".qml") continue;
        std::ifstream stream(file.path());
        pages_[file.path().stem().string()] =
            parse({std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()});
    }
    for (const auto& [name, page] : pages_)
        note(page);
}

PageReads::Page PageReads::parse(const std::string& text) {
    static const std::regex root(R"((?:^|\n)(\w+) \{)");
    static const std::regex declaration(R"(\bproperty (\w+) (\w+))");
    static const std::regex id(R"(\bid: (\w+))");
    Page page{text, {}, {}, {}};
    std::smatch match;
    if (std::regex_search(text, match, root)) page.root = match[1];
    for (std::sregex_iterator at(text.begin(), text.end(), declaration), end; at != end; ++at)
        page.declared.emplace((*at)[2], (*at)[1]);
    for (std::sregex_iterator at(text.begin(), text.end(), id), end; at != end; ++at)
        page.ids.insert((*at)[1]);
    return page;
}

std::set<std::string> PageReads::typesOf(const Page& page, const std::string& name) const {
    std::set<std::string> types;
    const auto add = [&](const std::multimap<std::string, std::string>& named) {
        for (auto [at, end] = named.equal_range(name); at != end; ++at)
            types.insert(at->second);
    };
    for (const Page* at = &page; at != nullptr;) {
        add(at->declared);
        const auto base = pages_.find(at->root);
        at = base == pages_.end() || &base->second == at ? nullptr : &base->second;
    }
    if (!types.empty() || page.ids.count(name) > 0) return types;
    add(parts_);
    for (const auto& [made, other] : pages_)
        add(other.declared);
    return types;
}

void PageReads::note(const Page& page) {
    const std::string& text = page.text;
    for (auto dot = text.find('.'); dot != std::string::npos; dot = text.find('.', dot + 1)) {
        const std::string read = wordAt(text, dot + 1);
        if (read.empty() || isAssigned(text, dot + 1 + read.size())) continue;
        for (const auto& type : typesOf(page, wordBefore(text, dot)))
            reads_[type].insert(read);
    }
}

bool PageReads::reads(std::string_view type, std::string_view name) const {
    const auto found = reads_.find(type);
    return found != reads_.end() && found->second.count(std::string(name)) > 0;
}

} // namespace ombrivane::journey
