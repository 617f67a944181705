#include "graphs/ui/print_support.h"

#ifdef TNW_PRINT_MODULE
// POSIX
#include <dlfcn.h>
#endif

namespace tnw {

#ifdef TNW_PRINT_MODULE

namespace {

std::string& moduleFile() {
  static std::string file = TNW_PRINT_MODULE;
  return file;
}

// The module once loaded, or why it could not be.
struct LoadedModule {
  const PrintSupportFunctions* functions = nullptr;
  QString error;
};

// The folder of the library (or program) this code is part of, with its trailing '/'; empty
// when the dynamic loader cannot tell.
std::string ownFolder() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&printSupport), &info) == 0 || info.dli_fname == nullptr) {
    return {};
  }
  const std::string path(info.dli_fname);
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// The module is looked for beside this library first, as it is built and installed, then where
// the dynamic loader looks (the program's RUNPATH, LD_LIBRARY_PATH). It stays loaded: the dialogs
// and printers it makes use its code until the process ends.
LoadedModule loadModule() {
  const char* file = moduleFile().c_str();
  void* handle = nullptr;
  const std::string folder = ownFolder();
  if (!folder.empty()) handle = dlopen((folder + file).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) handle = dlopen(file, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    const char* why = dlerror();
    return {nullptr, QString::fromLocal8Bit(why != nullptr ? why : file)};
  }
  using Entry = const PrintSupportFunctions* (*)();
  auto entry = reinterpret_cast<Entry>(dlsym(handle, "tnw_print_support"));
  if (entry == nullptr) return {nullptr, QStringLiteral("%1 has no entry point").arg(file)};
  return {entry(), QString()};
}

}  // namespace

const PrintSupportFunctions* printSupport(QString* error) {
  static const LoadedModule loaded = loadModule();
  if (loaded.functions == nullptr && error != nullptr) *error = loaded.error;
  return loaded.functions;
}

void setPrintModuleFile(const std::string& file) { moduleFile() = file; }

#else

const PrintSupportFunctions* printSupport(QString*) { return tnw_print_support(); }

void setPrintModuleFile(const std::string&) {}

#endif

}  // namespace tnw
