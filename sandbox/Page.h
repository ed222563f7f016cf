// The page of the sandbox: one file, which asks for nothing but the sandbox.
#pragma once

#include "sandbox/wire/HttpMessage.h"

#include <string_view>

namespace ombrivane::sandbox {

/// page.html as it stands in the tree.
extern const std::string_view pageText;

/// The page, under a policy that lets nothing run but its own script.
HttpAnswer pageAnswer();

} // namespace ombrivane::sandbox
