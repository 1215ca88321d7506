// SPDX-License-Identifier: MIT
#include "platform/print/pdf_library.h"

#include <exception>
#include <string>
#include <type_traits>

#include "desktop/painting/painting_surface.h"

// Only the version is sure to be where it is looked for until it is known to be ours.
extern "C" __attribute__((visibility("default"))) bool rbtally_paint_pdf(
    const char* version, std::span<const rbt::PrintedDocument> documents, const std::filesystem::path& file,
    std::string& refusal) noexcept {
  if (version != std::string_view(RBTALLY_VERSION)) return false;
  try {
    rbt::PaintPdf(documents, file);
  } catch (const std::exception& error) {
    refusal = error.what();
  }
  return true;
}

static_assert(std::is_same_v<decltype(rbtally_paint_pdf), rbt::PdfLibraryFunction>);
