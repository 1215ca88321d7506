// SPDX-License-Identifier: MIT
#include "platform/system/own_library.h"

#include <dlfcn.h>
#include <string>

#include "platform/fault.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

fs::path FileBesideProgram(const char* name) {
  return (fs::read_symlink("/proc/self/exe").parent_path() / name).lexically_normal();
}

/// What the loader last found wrong names the file.
Fault LoadFault(const char* what) {
  return {FaultKind::file, std::string(what) + " is not available: " + dlerror()};
}

}  // namespace

OwnLibrary::OwnLibrary(const char* name, const char* what)
    : file_(FileBesideProgram(name)), what_(what), handle_(dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (handle_ == nullptr) throw LoadFault(what_);
}

void* OwnLibrary::Function(const char* function) const {
  void* const found = dlsym(handle_, function);
  if (found == nullptr) throw LoadFault(what_);
  return found;
}

void OwnLibrary::Refuse(const char* version) const {
  throw Fault(FaultKind::file,
              std::string(what_) + " is not available: " + file_.string() + " is not of version " + version);
}

}  // namespace rbt
