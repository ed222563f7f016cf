#pragma once

#include <QString>
#include <QtGlobal>

namespace ombrivane::demo {

/// Counts what the toolkit complains about while it lives, and prints each as an event: a page that complains
/// is broken, also where a script sees nothing of it.
class Complaints {
public:
    Complaints();
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;
    ~Complaints();

    static int count();

private:
    QtMessageHandler before_;
};

} // namespace ombrivane::demo
