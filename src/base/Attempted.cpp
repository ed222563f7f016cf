#include "base/Attempted.h"

#include "base/ErrorDomains.h"
#include "base/ErrorTexts.h"
#include "base/Fault.h"

namespace ombrivane {
namespace {

Error unforeseen(const char* what) {
    return {
        errorDomain::service, static_cast<int>(ServiceError::notCompleted), errorText::notCompleted, what};
}

} // namespace

Error detail::currentError() {
    try {
        throw;
    } catch (const Fault&) {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const ErrorSource& source) {
        return source.error();
    } catch (const std::exception& exception) {
        return unforeseen(exception.what());
    } catch (...) {
        return unforeseen("an exception of an unknown type");
    }
}

void contained(const std::function<void()>& step) {
    guarded([&step] { attempted(step); });
}

} // namespace ombrivane
