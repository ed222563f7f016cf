// What the standard library asks that system's C library for, to read and write in a locale of its own.
#pragma once

#include <ctype.h>
#include <locale.h>

// Functions there, where a locale may be null; here macros that look into it.
#undef isdigit_l
#undef isxdigit_l

extern "C" {
float strtof_l(const char* text, char** end, locale_t locale);
double strtod_l(const char* text, char** end, locale_t locale);
long double strtold_l(const char* text, char** end, locale_t locale);
long long strtoll_l(const char* text, char** end, int base, locale_t locale);
unsigned long long strtoull_l(const char* text, char** end, int base, locale_t locale);
int asprintf_l(char** text, locale_t locale, const char* format, ...);
int snprintf_l(char* text, size_t size, locale_t locale, const char* format, ...);
int sscanf_l(const char* text, locale_t locale, const char* format, ...);
}
