// Asked by ICU, which kind of device it is.
#pragma once

#define TARGET_OS_IPHONE 1
#define TARGET_OS_MACCATALYST 0
