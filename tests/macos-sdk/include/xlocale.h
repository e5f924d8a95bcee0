// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// libSystem: functions that take a locale as an argument.

#pragma once

#include <locale.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>
#include <wchar.h>

extern "C" {
struct lconv* localeconv_l(locale_t locale);
int asprintf_l(char** result, locale_t locale, const char* format, ...);
int snprintf_l(char* text, size_t size, locale_t locale, const char* format, ...);
int sscanf_l(const char* text, locale_t locale, const char* format, ...);
int vasprintf_l(char** result, locale_t locale, const char* format, va_list arguments);
int vsnprintf_l(char* text, size_t size, locale_t locale, const char* format, va_list arguments);
int vsscanf_l(const char* text, locale_t locale, const char* format, va_list arguments);
double strtod_l(const char* text, char** end, locale_t locale);
float strtof_l(const char* text, char** end, locale_t locale);
long double strtold_l(const char* text, char** end, locale_t locale);
long long strtoll_l(const char* text, char** end, int base, locale_t locale);
unsigned long long strtoull_l(const char* text, char** end, int base, locale_t locale);
wint_t btowc_l(int character, locale_t locale);
int wctob_l(wint_t character, locale_t locale);
int mbtowc_l(wchar_t* character, const char* bytes, size_t size, locale_t locale);
size_t mbrlen_l(const char* bytes, size_t size, mbstate_t* state, locale_t locale);
size_t mbrtowc_l(wchar_t* character, const char* bytes, size_t size, mbstate_t* state, locale_t locale);
size_t mbsnrtowcs_l(wchar_t* text, const char** bytes, size_t count, size_t size, mbstate_t* state,
                    locale_t locale);
size_t mbsrtowcs_l(wchar_t* text, const char** bytes, size_t size, mbstate_t* state, locale_t locale);
size_t wcrtomb_l(char* bytes, wchar_t character, mbstate_t* state, locale_t locale);
size_t wcsnrtombs_l(char* bytes, const wchar_t** text, size_t count, size_t size, mbstate_t* state,
                    locale_t locale);
int ___mb_cur_max_l(locale_t locale);
}

#define MB_CUR_MAX_L(locale) ___mb_cur_max_l(locale)
