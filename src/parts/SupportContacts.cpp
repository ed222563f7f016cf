#include "parts/SupportContacts.h"

#include "base/SharedInstance.h"
#include "keyed/Field.h"

namespace ombrivane {
namespace {

struct ContactsState {
    std::shared_ptr<Cell<SupportContacts>> cell = std::make_shared<Cell<SupportContacts>>(SupportContacts());
};

std::shared_ptr<Cell<SupportContacts>> contactsCell() { return SharedInstance<ContactsState>::get().cell; }

} // namespace

const SupportContacts& SupportContacts::current() {
    const auto cell = contactsCell();
    cell->noteRead();
    return cell->value;
}

void SupportContacts::use(SupportContacts contacts) {
    const auto cell = contactsCell();
    cell->value = std::move(contacts);
    cell->notify();
}

} // namespace ombrivane
