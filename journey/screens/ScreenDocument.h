#pragma once

#include "ScreenCatalogue.h"

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace ombrivane::journey {

/// Tells screens in Markdown: each with its fields, derived values, actions, models, rows and parts by their
/// keys, and with what they hold at first. Rows and parts follow the screen in which they stand.
class ScreenDocument {
public:
    explicit ScreenDocument(const std::vector<CataloguedScreen>& screens);

    std::string text() const { return text_.str(); }

private:
    void addScreen(const std::shared_ptr<Screen>& screen, const std::string& reached);
    void addMembers(const Fields& fields, const std::string& prefix, const Screen& screen);
    void addMember(const Member& member, const std::string& prefix, const Screen& screen);
    void addLine(const std::string& key, const std::string& kind, const std::string& atFirst);

    std::ostringstream text_;
    std::set<std::string_view> told_;
    std::map<const Fields*, std::string> models_; ///< and the screen that told them
};

} // namespace ombrivane::journey
