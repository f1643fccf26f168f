// SPDX-License-Identifier: GPL-3.0-or-later
#include "post/curl_calls.h"

#include "platform/loaded_library.h"

namespace tallyroll {

bool LoadCurl(CurlCalls& curl) {
  const LoadedLibrary library{"libcurl.so.4", "libcurl-gnutls.so.4"};
  return library.Find("curl_global_init", curl.global_init) &&
         library.Find("curl_easy_init", curl.easy_init) &&
         library.Find("curl_easy_setopt", curl.easy_setopt) &&
         library.Find("curl_easy_perform", curl.easy_perform) &&
         library.Find("curl_easy_cleanup", curl.easy_cleanup) &&
         library.Find("curl_easy_strerror", curl.easy_strerror) &&
         library.Find("curl_slist_append", curl.slist_append) &&
         library.Find("curl_slist_free_all", curl.slist_free_all);
}

}  // namespace tallyroll
