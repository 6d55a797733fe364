#pragma once

#include "platform/desktop/system/ProgramFile.h"

#include <cstdio>
#include <dlfcn.h>

namespace tarnloft {

// What that entry of the module gives; null where it can't be loaded, or belongs to another version
// of the program, which is told once to whoever looks at the program's output.
template <class Service>
Service* fromModule(const char* file, const char* entryName) {
  using Entry = Service* (*)();
  if (isProgramReplaced()) {
    std::fprintf(stderr, "Tarn Loft: %s is another version's\n", file);
    return nullptr;
  }
  void* const module = ::dlopen(file, RTLD_NOW | RTLD_LOCAL);
  void* const entry = module ? ::dlsym(module, entryName) : nullptr;
  if (entry) return reinterpret_cast<Entry>(entry)();
  std::fprintf(stderr, "Tarn Loft: %s\n", ::dlerror());
  return nullptr;
}

}  // namespace tarnloft
