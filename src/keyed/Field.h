#pragma once

#include "keyed/Fields.h"
#include "keyed/Keyed.h"
#include "keyed/Observable.h"

#include <cstdint>
#include <memory>

namespace ombrivane {

/// A value that tells its observers of every assignment.
template <class T> struct Cell final : Observable {
    explicit Cell(T initial) : value(std::move(initial)) {}
    T value;
    std::uint64_t version = 0;
};

/// A handle on a cell. The cell lives as long as any handle, so that a late write is harmless.
template <class T> class Field : public Member {
public:
    /// The value, good until the next assignment; a computation that is being tracked follows it. Main
    /// thread.
    const T& get() const {
        cell_->noteRead();
        return cell_->value;
    }
    /// The same as `get`.
    operator const T&() const { return get(); }
    /// The same as `get`, for its members.
    const T* operator->() const { return &get(); }

    /// Stores, then tells, also when nothing changes. Main thread.
    void set(T value) {
        const auto cell = cell_;
        cell->value = std::move(value);
        ++cell->version;
        cell->notify();
    }

    Json read() const override { return Keyed<T>::toJson(get()); }
    void write(const Json& value) override { set(Keyed<T>::fromJson(value)); }
    Subscription observe(Observer observer) override { return cell_->observe(std::move(observer)); }

    /// The number of assignments so far: what was computed from the value is good while this stays.
    std::uint64_t version() const {
        cell_->noteRead();
        return cell_->version;
    }

protected:
    /// A handle on `cell` under `key`.
    Field(Fields& owner, std::string_view key, std::shared_ptr<Cell<T>> cell) :
        Member(owner, key, MemberKind::field), cell_(std::move(cell)) {}
    ~Field() = default;

    /// What a binding shares with its source.
    static std::shared_ptr<Cell<T>> cellOf(const Field& other) { return other.cell_; }

private:
    std::shared_ptr<Cell<T>> cell_;
};

/// A field of a model or a screen: `Published<bool> isLoading{fields, "isLoading", true};`
template <class T> class Published final : public Field<T> {
public:
    /// A field of its own under `key`, which is text that outlives it.
    Published(Fields& owner, std::string_view key, T initial = T()) :
        Field<T>(owner, key, std::make_shared<Cell<T>>(std::move(initial))) {}

    /// The same as `set`.
    Published& operator=(T value) {
        this->set(std::move(value));
        return *this;
    }
};

/// A reference to somebody else's field under a key of one's own: what a sheet edits.
template <class T> class Binding final : public Field<T> {
public:
    /// The value of `source` under `key`; it stays good when the source is gone.
    Binding(Fields& owner, std::string_view key, const Field<T>& source) :
        Field<T>(owner, key, Field<T>::cellOf(source)) {}

    /// The same as `set`: the source has the value, too.
    Binding& operator=(T value) {
        this->set(std::move(value));
        return *this;
    }
};

} // namespace ombrivane
