#pragma once

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <dlfcn.h>

namespace tarnloft {

// The folder of the loaded file that the address belongs to, wherever it was installed.
inline QString folderOf(const void* address) {
  Dl_info file;
  if (::dladdr(address, &file) == 0) return {};
  return QFileInfo(QFile::decodeName(file.dli_fname)).absolutePath();
}

// What that entry of the module gives; null where it can't be loaded, which is told once to whoever
// looks at the program's output.
template <class Service>
Service* fromModule(const char* file, const char* entryName) {
  using Entry = Service* (*)(const QString&);
  void* const module = ::dlopen(file, RTLD_NOW | RTLD_LOCAL);
  void* const entry = module ? ::dlsym(module, entryName) : nullptr;
  if (entry) return reinterpret_cast<Entry>(entry)(folderOf(entry));
  std::fprintf(stderr, "Tarn Loft: %s\n", ::dlerror());
  return nullptr;
}

}  // namespace tarnloft
