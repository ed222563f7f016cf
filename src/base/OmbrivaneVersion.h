#pragma once

#include "base/Api.h"

#ifdef __cplusplus
extern "C" {
#endif

/// Which component this is, in a form that compares: 1.2.3 is 1.0203, so a later version is the larger
/// number.
OMBRIVANE_API extern const double OmbrivaneVersionNumber;

/// The same as text, "1.2.3", closed by a null character.
OMBRIVANE_API extern const char OmbrivaneVersionString[];

#ifdef __cplusplus
}
#endif
