// SPDX-License-Identifier: GPL-3.0-or-later
// The calls of libcurl, by its own declarations. With it come some twenty libraries that no other
// part of the program needs, so it is loaded when the first mail is sent.
#pragma once

#include <curl/curl.h>

namespace tallyroll {

struct CurlCalls {
  decltype(&::curl_global_init) global_init = nullptr;
  decltype(&::curl_easy_init) easy_init = nullptr;
  decltype(&::curl_easy_setopt) easy_setopt = nullptr;
  decltype(&::curl_easy_perform) easy_perform = nullptr;
  decltype(&::curl_easy_cleanup) easy_cleanup = nullptr;
  decltype(&::curl_easy_strerror) easy_strerror = nullptr;
  decltype(&::curl_slist_append) slist_append = nullptr;
  decltype(&::curl_slist_free_all) slist_free_all = nullptr;
};

// False where the library is not installed.
bool LoadCurl(CurlCalls& curl);

}  // namespace tallyroll
