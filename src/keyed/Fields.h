#pragma once

#include "base/Api.h"
#include "base/Json.h"
#include "keyed/Observable.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ombrivane {

class Fields;

/// A key that does not exist, a value of the wrong form, a member that cannot do what was asked: the mistake
/// of whoever works a screen by its keys, never of a customer.
class OMBRIVANE_API KeyedError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What can be done with a member: assign and read, read, trigger, look below, look at rows.
enum class MemberKind { field, derived, action, model, rows };

/// One keyed member of a model or a screen: a field, a derived value, an action, a model, a list of rows.
class OMBRIVANE_API Member {
public:
    /// Enters itself in `owner`, which outlives it as does the text of `key`.
    Member(Fields& owner, std::string_view key, MemberKind kind);
    Member(const Member&) = delete;
    Member& operator=(const Member&) = delete;

    /// Its name, as a path spells it.
    std::string_view key() const { return key_; }
    /// Which of the five it is.
    MemberKind kind() const { return kind_; }

    /// The value as JSON; for an action its `{"enabled": …}`.
    /// @throws KeyedError where the member has no value.
    virtual Json read() const;
    /// Assigns a field from JSON. @throws KeyedError for another kind or a value of the wrong form.
    virtual void write(const Json& value);
    /// Does what a tap does. @throws KeyedError for another kind or wrong arguments.
    virtual void trigger(const std::vector<Json>& arguments);
    /// Tells of later changes of the value. @throws KeyedError where the member has none.
    virtual Subscription observe(Observer observer);
    /// The members below a model; nullptr for every other kind.
    virtual const Fields* model() const { return nullptr; }

protected:
    ~Member() = default;
    /// Throws a `KeyedError` that names this member.
    [[noreturn]] void refuse(const std::string& why) const;

private:
    std::string_view key_;
    MemberKind kind_;
};

/// The members of one model or screen in declared order. Must be declared before them, so that it outlives
/// them.
class OMBRIVANE_API Fields {
public:
    Fields() = default;
    Fields(const Fields&) = delete;
    Fields& operator=(const Fields&) = delete;

    /// All of them, in the order in which they were declared.
    const std::vector<Member*>& members() const { return members_; }

    /// The member with `key`, or nullptr.
    Member* find(std::string_view key) const;

private:
    friend class Member;
    std::vector<Member*> members_;
};

/// Makes the fields of a model reachable below a key of its screen.
class OMBRIVANE_API Model final : public Member {
public:
    /// `fields` outlive this.
    Model(Fields& owner, std::string_view key, const Fields& fields) :
        Member(owner, key, MemberKind::model), fields_(fields) {}

    Json read() const override;
    const Fields* model() const override { return &fields_; }

private:
    const Fields& fields_;
};

/// The readable members of `fields` as one object, actions left out.
OMBRIVANE_API Json readAll(const Fields& fields);

} // namespace ombrivane
