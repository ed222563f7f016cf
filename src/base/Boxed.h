#pragma once

#include <memory>
#include <optional>
#include <utility>

namespace ombrivane {

/// An optional value that takes no more than a pointer while it is absent: for large groups that most records
/// lack. A value like any other: a copy is a copy of what it holds.
template <class T> class Boxed {
public:
    Boxed() = default;
    Boxed(std::nullopt_t /*absent*/) {}
    Boxed(T value) : held_(std::make_unique<T>(std::move(value))) {}
    Boxed(const Boxed& other) : held_(other.held_ ? std::make_unique<T>(*other.held_) : nullptr) {}
    Boxed(Boxed&&) noexcept = default;
    Boxed& operator=(const Boxed& other) { return *this = Boxed(other); }
    Boxed& operator=(Boxed&&) noexcept = default;
    ~Boxed() = default;

    bool has_value() const { return held_ != nullptr; }
    explicit operator bool() const { return has_value(); }

    /// What it holds; only while it holds something.
    T& operator*() { return *held_; }
    const T& operator*() const { return *held_; }
    T* operator->() { return held_.get(); }
    const T* operator->() const { return held_.get(); }

    /// Holds a new value from here on.
    T& emplace() { return *(held_ = std::make_unique<T>()); }
    void reset() { held_.reset(); }

    bool operator==(const Boxed& other) const {
        return held_ && other.held_ ? *held_ == *other.held_ : held_ == other.held_;
    }

private:
    std::unique_ptr<T> held_;
};

} // namespace ombrivane
