#pragma once

#include <string_view>

namespace ombrivane {

/// Walks over a text of JSON and tells where its values stand, without parsing them. Between values it takes
/// nothing but what belongs there; what a value consists of shows when it is parsed. What is asked for and
/// does not come next is a `DecodeError`.
class JsonScanner {
public:
    explicit JsonScanner(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

    /// Whether the next character is `mark`; white space is passed over.
    bool isAt(char mark);
    /// Passes over `mark` when it comes next.
    bool take(char mark);
    void expect(char mark);
    /// Nothing but white space may be left.
    void expectEnd();

    /// The text of the value that comes next.
    std::string_view value();
    /// Calls `visit` with the text of each key and of each value of the object that comes next. `visit`
    /// passes over the value itself.
    template <class Visit> void members(Visit visit) {
        expect('{');
        if (take('}')) return;
        do {
            const std::string_view key = string();
            expect(':');
            visit(key);
        } while (take(','));
        expect('}');
    }
    /// Calls `visit` with the text of each element of the array that comes next.
    template <class Visit> void elements(Visit visit) {
        expect('[');
        if (take(']')) return;
        do {
            visit(value());
        } while (take(','));
        expect(']');
    }
    /// The text of the string that comes next, its quotes included.
    std::string_view string();

    /// Where the walk has come to.
    const char* position() const { return at_; }

private:
    void passSpace();
    void passString();
    void passContainer();
    void passScalar();

    const char* at_;
    const char* end_;
};

} // namespace ombrivane
