// SPDX-License-Identifier: GPL-3.0-or-later
// A library of the system that is loaded when it is first needed, so that the program starts
// without it, and works without it where it is not installed.
#pragma once

#include <dlfcn.h>

#include <initializer_list>

namespace tallyroll {

class LoadedLibrary {
 public:
  // The first of the names that is installed. It stays loaded: loading it twice finds the same one.
  explicit LoadedLibrary(std::initializer_list<const char*> names) {
    for (const char* name : names)
      if (!library_) library_ = dlopen(name, RTLD_NOW | RTLD_LOCAL);
  }

  // False where the library is not installed, or lacks the call; `call` is null then.
  template <typename Call>
  bool Find(const char* name, Call& call) const {
    call = library_ ? reinterpret_cast<Call>(dlsym(library_, name)) : nullptr;
    return call != nullptr;
  }

 private:
  void* library_ = nullptr;
};

}  // namespace tallyroll
