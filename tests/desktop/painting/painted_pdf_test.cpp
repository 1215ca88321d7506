// SPDX-License-Identifier: MIT
#include <cstdio>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/painting/painting_surface.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/print/paper.h"
#include "support/temporary_folder.h"

namespace rbt::test {

namespace {

using testing::ContainsRegex;
using testing::HasSubstr;

/// A page with one text of 10 points, its corner one inch from the left and two from the top.
PrintedPage Page(const std::string& text) {
  return {PrintedText{.x = 1440, .y = 2880, .text = text, .font_name = "ＭＳ ゴシック", .font_size = 10}};
}

PrintedDocument Document(std::int32_t paper, std::int32_t orientation,
                         const std::vector<std::string>& texts) {
  PrintedDocument document{"PDF", paper, orientation, {}};
  for (const std::string& text : texts) document.pages.push_back(Page(text));
  return document;
}

/// What another program says of a file.
std::string Said(const std::string& command) {
  std::FILE* pipe = popen(command.c_str(), "r");
  std::string said;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) said += static_cast<char>(c);
  EXPECT_EQ(pclose(pipe), 0) << command;
  return said;
}

/// The words of a line of pdftotext -bbox: <word xMin="72.0" yMin=...>text</word>.
struct Word {
  double x = 0;
  double y = 0;
  std::string text;
};
std::vector<Word> Words(const std::filesystem::path& file) {
  std::istringstream lines(Said("pdftotext -bbox '" + file.string() + "' -"));
  std::vector<Word> words;
  for (std::string line; std::getline(lines, line);) {
    const auto number = [&](const std::string& name) {
      return std::stod(line.substr(line.find(name + "=\"") + name.size() + 2));
    };
    if (line.find("<word") == std::string::npos) continue;
    const std::size_t text = line.find('>') + 1;
    words.push_back({number("xMin"), number("yMin"), line.substr(text, line.find("</word>") - text)});
  }
  return words;
}

}  // namespace

TEST(PaintedPdf, HoldsSeveralDocumentsEachOnItsOwnPaper) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder / "a.pdf";
  std::vector<PrintedDocument> documents{
      Document(kPaperA4, kPortrait, {"alpha", "beta"}), Document(kPaperB5, kLandscape, {"gamma"}),
      Document(kPaperA3, kLandscape, {"delta"}), Document(kPaperA4, kPortrait, {"omega"})};
  documents.front().title = "重量対比表 見本町";
  PaintPdf(documents, file);
  const std::string sheets = Said("pdfinfo -enc UTF-8 -f 1 -l 9 '" + file.string() + "'");
  EXPECT_THAT(sheets, ContainsRegex("Title: +重量対比表 見本町\n"));
  EXPECT_THAT(sheets, HasSubstr("Pages:           5"));
  // Points, to the tenth or so: A4 210 x 297 mm, the Japanese B5 182 x 257 mm, A3 297 x 420 mm.
  EXPECT_THAT(sheets, HasSubstr("Page    1 size:  595 x 842"));
  EXPECT_THAT(sheets, HasSubstr("Page    2 size:  595 x 842"));
  EXPECT_THAT(sheets, HasSubstr("Page    3 size:  729 x 516"));
  EXPECT_THAT(sheets, HasSubstr("Page    4 size:  1191 x 842"));
  EXPECT_THAT(sheets, HasSubstr("Page    5 size:  595 x 842"));
}

TEST(PaintedPdf, MeasuresEveryPageFromTheCornerOfItsOwnSheet) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder / "a.pdf";
  const std::vector<PrintedDocument> documents{Document(kPaperA4, kPortrait, {"alpha"}),
                                               Document(kPaperB5, kLandscape, {"beta"}),
                                               Document(kPaperA3, kPortrait, {"gamma"})};
  PaintPdf(documents, file);
  const std::vector<Word> words = Words(file);
  ASSERT_EQ(words.size(), 3U);
  const std::vector<std::string> texts{"alpha", "beta", "gamma"};
  for (std::size_t i = 0; i < words.size(); ++i) {
    EXPECT_EQ(words[i].text, texts[i]);
    EXPECT_NEAR(words[i].x, 72.0, 1.0) << texts[i];
    EXPECT_NEAR(words[i].y, 144.0, 2.0) << texts[i];
  }
}

TEST(PaintedPdf, WithoutAPageIsAFaultAndLeavesTheFileAsItWas) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder / "a.pdf";
  std::ofstream(file) << "old";
  const std::vector<PrintedDocument> documents{Document(kPaperA4, kPortrait, {})};
  EXPECT_THROW(PaintPdf(documents, file), Fault);
  EXPECT_THROW(PaintPdf({}, file), Fault);
  EXPECT_EQ(ReadFileBytes(file), "old");
}

TEST(PaintedPdf, ThatCannotBeWrittenNamesTheFile) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder / "none" / "a.pdf";
  const std::vector<PrintedDocument> documents{Document(kPaperA4, kPortrait, {"alpha"})};
  try {
    PaintPdf(documents, file);
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file);
    EXPECT_THAT(fault.what(), HasSubstr(file.string()));
  }
}

}  // namespace rbt::test
