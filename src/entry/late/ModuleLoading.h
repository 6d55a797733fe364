#pragma once

#include <cstdio>
#include <dlfcn.h>

namespace tarnloft {

// What that entry of the module gives; null where it can't be loaded, which is told once to whoever
// looks at the program's output.
template <class Service>
Service* fromModule(const char* file, const char* entryName) {
  using Entry = Service* (*)();
  void* const module = ::dlopen(file, RTLD_NOW | RTLD_LOCAL);
  void* const entry = module ? ::dlsym(module, entryName) : nullptr;
  if (entry) return reinterpret_cast<Entry>(entry)();
  std::fprintf(stderr, "Tarn Loft: %s\n", ::dlerror());
  return nullptr;
}

}  // namespace tarnloft
