// SPDX-License-Identifier: MIT
#include "platform/print/pdf_library.h"

#include <dlfcn.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "platform/print/paper.h"
#include "support/temporary_folder.h"

namespace rbt::test {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

PdfLibraryFunction& Loaded() {
  void* const library = dlopen(RBTALLY_PDF_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  void* const function = library == nullptr ? nullptr : dlsym(library, kPdfLibraryFunction);
  if (function == nullptr) throw std::runtime_error(dlerror());
  return *reinterpret_cast<PdfLibraryFunction*>(function);
}

const std::vector<PrintedDocument> kDocuments{{"PDF", kPaperA4, kPortrait, {PrintedPage{}}}};

}  // namespace

TEST(PdfLibrary, PaintsForAProgramOfItsVersion) {
  const TemporaryFolder folder;
  std::string refusal;
  EXPECT_TRUE(Loaded()(RBTALLY_VERSION, kDocuments, folder.Path() / "a.pdf", refusal));
  EXPECT_THAT(refusal, IsEmpty());
  EXPECT_THAT(ReadFileBytes(folder.Path() / "a.pdf"), StartsWith("%PDF"));
}

TEST(PdfLibrary, DoesNothingForAProgramOfAnotherVersion) {
  const TemporaryFolder folder;
  std::string refusal;
  EXPECT_FALSE(Loaded()("0.0.9", kDocuments, folder.Path() / "a.pdf", refusal));
  EXPECT_THAT(refusal, IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "a.pdf"));
}

TEST(PdfLibrary, TellsWhyAFileCannotBeWrittenAndThrowsNothing) {
  const TemporaryFolder folder;
  std::string refusal;
  EXPECT_TRUE(Loaded()(RBTALLY_VERSION, kDocuments, folder.Path() / "none" / "a.pdf", refusal));
  EXPECT_THAT(refusal, HasSubstr((folder.Path() / "none").string()));
}

}  // namespace rbt::test
