#include "keyed/Fields.h"

namespace ombrivane {

Member::Member(Fields& owner, std::string_view key, MemberKind kind) : key_(key), kind_(kind) {
    owner.members_.push_back(this);
}

void Member::refuse(const std::string& why) const { throw KeyedError(std::string(key_) + ": " + why); }

Json Member::read() const { refuse("has no value"); }

void Member::write(const Json& /*value*/) { refuse("cannot be set"); }

void Member::trigger(const std::vector<Json>& /*arguments*/) { refuse("is no action"); }

Subscription Member::observe(Observer /*observer*/) { refuse("cannot be observed"); }

Member* Fields::find(std::string_view key) const {
    for (Member* member : members_) {
        if (member->key() == key) return member;
    }
    return nullptr;
}

Json Model::read() const { return readAll(fields_); }

Json readAll(const Fields& fields) {
    Json object = Json::object();
    for (const Member* member : fields.members()) {
        if (member->kind() != MemberKind::action) object[std::string(member->key())] = member->read();
    }
    return object;
}

} // namespace ombrivane
