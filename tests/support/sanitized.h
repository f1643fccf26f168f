// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the address sanitizer is compiled in, by either compiler.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define TALLYROLL_ADDRESS_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TALLYROLL_ADDRESS_SANITIZED 1
#endif
#endif
