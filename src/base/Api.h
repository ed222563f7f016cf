#pragma once

/// Marks what a host links against. Everything else of the component is hidden in a shared library.
#define OMBRIVANE_API __attribute__((visibility("default")))
