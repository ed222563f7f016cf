#include "base/OmbrivaneVersion.h"

const double OmbrivaneVersionNumber = OMBRIVANE_VERSION_NUMBER;
const char OmbrivaneVersionString[] = OMBRIVANE_VERSION_STRING;
