// SPDX-License-Identifier: MIT
#include "cli/pdf_library.h"

#include <dlfcn.h>
#include <string>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/print/pdf_library.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

fs::path LibraryFile() {
  return (fs::read_symlink("/proc/self/exe").parent_path() / kPdfLibrary).lexically_normal();
}

/// What the loader last found wrong names the file.
Fault LoadFault() { return {FaultKind::file, fmt::format("PDF is not available: {}", dlerror())}; }

PdfLibraryFunction& LoadFunction() {
  // It stays for the run: Qt does not end before the program does.
  void* const library = dlopen(LibraryFile().c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw LoadFault();
  void* const function = dlsym(library, kPdfLibraryFunction);
  if (function == nullptr) throw LoadFault();
  return *reinterpret_cast<PdfLibraryFunction*>(function);
}

}  // namespace

void PaintPdfByLibrary(std::span<const PrintedDocument> documents, const fs::path& file) {
  std::string refusal;
  if (!LoadFunction()(RBTALLY_VERSION, documents, file, refusal)) {
    throw Fault(FaultKind::file, fmt::format("PDF is not available: {} is not of version {}",
                                             LibraryFile().string(), RBTALLY_VERSION));
  }
  if (!refusal.empty()) throw Fault(FaultKind::file, refusal);
}

}  // namespace rbt
