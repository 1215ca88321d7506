// SPDX-License-Identifier: MIT
#include "desktop/preview_form.h"

#include <chrono>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/preview_sheet.h"
#include "platform/fault.h"
#include "platform/print/paper.h"
#include "platform/system/message.h"
#include "support/desktop/key_press.h"
#include "support/kept_services.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

PrintedDocument Document(const std::string& device, std::int32_t paper, std::int32_t orientation,
                         std::size_t pages, std::size_t texts = 1) {
  PrintedDocument document{device, paper, orientation, {}};
  const PrintedText text{
      .x = 1440, .y = 1440, .text = "鉄筋 1,234 Kg", .font_name = "ＭＳ ゴシック", .font_size = 10};
  document.pages.assign(pages, PrintedPage(texts, text));
  return document;
}

/// A preview with everything around it scripted.
class Preview : public testing::Test {
 protected:
  Preview() {
    Services.Messages = [this](std::string_view text, std::string_view, MessageButtons) {
      messages.emplace_back(text);
      return MessageAnswer::ok;
    };
  }

  void Open(std::vector<PrintedDocument> documents) {
    PreviewParts parts;
    parts.printers = printers;
    parts.settings_printer = settings_printer;
    parts.print = [this](const std::string& device, const PrintedDocument& document) {
      if (print_fault) throw Fault(FaultKind::file, device + ": out of paper");
      printed.emplace_back(device, document.pages.size());
    };
    parts.choose_printer = [this](const std::vector<std::string>& offered) {
      offers.push_back(offered);
      return choice;
    };
    form = std::make_unique<PreviewForm>(std::move(documents), std::move(parts));
    form->show();
    form->activateWindow();
    Settle();
  }
  void OpenPages(std::size_t pages) { Open({Document("PDF", kPaperA4, kPortrait, pages)}); }

  std::string Label(const char* name) const { return form->findChild<QLabel*>(name)->text().toStdString(); }
  std::string PageAfter(int key, bool repeat = false) {
    EXPECT_TRUE(Press(*form, key, Qt::NoModifier, repeat));
    return Label("lblPage");
  }
  PreviewSheet& Sheet() const { return *form->findChild<PreviewSheet*>("picSheet"); }
  QPushButton& Button(const char* name) const { return *form->findChild<QPushButton*>(name); }
  bool SheetIsInside() const { return QRectF(Sheet().viewport()->rect()).contains(Sheet().SheetPlace()); }

  std::string settings_printer;
  std::vector<std::string> printers{"甲", "乙"};
  std::optional<std::string> choice;
  bool print_fault = false;
  std::vector<std::vector<std::string>> offers;
  std::vector<std::pair<std::string, std::size_t>> printed;  ///< device and pages
  std::vector<std::string> messages;
  std::unique_ptr<PreviewForm> form;

 private:
  test::KeptServices services_;
};

using Clock = std::chrono::steady_clock;

}  // namespace

TEST_F(Preview, OpensOnTheFirstPageShownWholeWithTheFocusOnTheSheet) {
  OpenPages(3);
  EXPECT_EQ(form->windowTitle(), "印刷プレビュー");
  EXPECT_EQ(Label("lblPage"), "頁 1 / 3");
  EXPECT_EQ(form->focusWidget(), &Sheet());
  EXPECT_EQ(Sheet().FitMode(), PreviewSheet::Fit::whole);
  EXPECT_TRUE(SheetIsInside());
  EXPECT_TRUE(form->screen()->availableSize().width() >= form->width());
  EXPECT_TRUE(form->screen()->availableSize().height() >= form->height());
  EXPECT_THAT(Label("lblZoom"), testing::MatchesRegex("全体 [0-9]+ %"));
}

TEST_F(Preview, PageKeysTurnPagesAndStopAtTheFirstAndTheLast) {
  OpenPages(3);
  EXPECT_EQ(PageAfter(Qt::Key_PageUp), "頁 1 / 3");
  EXPECT_EQ(PageAfter(Qt::Key_PageDown), "頁 2 / 3");
  EXPECT_EQ(PageAfter(Qt::Key_PageDown), "頁 3 / 3");
  EXPECT_EQ(PageAfter(Qt::Key_PageDown), "頁 3 / 3");
  EXPECT_EQ(PageAfter(Qt::Key_Home), "頁 1 / 3");
  EXPECT_EQ(PageAfter(Qt::Key_End), "頁 3 / 3");
  EXPECT_EQ(PageAfter(Qt::Key_PageUp), "頁 2 / 3");
}

TEST_F(Preview, AHeldPageKeyTurnsOn) {
  OpenPages(4);
  PageAfter(Qt::Key_PageDown);
  EXPECT_EQ(PageAfter(Qt::Key_PageDown, true), "頁 3 / 4");
}

TEST_F(Preview, WithOnePageThereIsNothingToTurn) {
  OpenPages(1);
  EXPECT_EQ(PageAfter(Qt::Key_PageDown), "頁 1 / 1");
  for (const char* name : {"cmdPrev", "cmdNext", "cmdFirst", "cmdLast"})
    EXPECT_FALSE(Button(name).isEnabled());
}

TEST_F(Preview, PlusAndMinusZoomAndF2F3F4SetTheZoom) {
  OpenPages(1);
  Press(*form, Qt::Key_F2);
  EXPECT_EQ(Label("lblZoom"), "100 %");
  Press(*form, Qt::Key_Plus, Qt::ShiftModifier);
  EXPECT_EQ(Label("lblZoom"), "125 %");
  Press(*form, Qt::Key_Minus, Qt::KeypadModifier);
  Press(*form, Qt::Key_Minus);
  EXPECT_EQ(Label("lblZoom"), "90 %");
  Press(*form, Qt::Key_F3);
  EXPECT_EQ(Sheet().FitMode(), PreviewSheet::Fit::whole);
  Press(*form, Qt::Key_F4);
  EXPECT_EQ(Sheet().FitMode(), PreviewSheet::Fit::width);
  EXPECT_THAT(Label("lblZoom"), testing::StartsWith("頁幅 "));
}

TEST_F(Preview, ArrowsScrollOnTheSheetAndWalkTheButtonsElsewhere) {
  OpenPages(2);
  Press(*form, Qt::Key_Down);
  EXPECT_EQ(form->focusWidget(), &Sheet());
  Press(*form, Qt::Key_Tab);
  EXPECT_EQ(form->focusWidget(), &Button("cmdPrev"));
  Press(*form, Qt::Key_Right);
  EXPECT_EQ(form->focusWidget(), &Button("cmdNext"));
  Press(*form, Qt::Key_Return);
  EXPECT_EQ(Label("lblPage"), "頁 2 / 2");
  EXPECT_EQ(form->focusWidget(), &Button("cmdNext")) << "at the last page the focus stays too";
}

TEST_F(Preview, DocumentsOfDifferentPapersFollowOneAnother) {
  Open({Document("PDF", kPaperA4, kPortrait, 1), Document("PDF", kPaperA4, kPortrait, 0),
        Document("PDF", kPaperB5, kLandscape, 2)});
  EXPECT_EQ(Label("lblPage"), "頁 1 / 3");
  EXPECT_LT(Sheet().SheetPlace().width(), Sheet().SheetPlace().height());
  EXPECT_EQ(PageAfter(Qt::Key_PageDown), "頁 2 / 3");
  EXPECT_GT(Sheet().SheetPlace().width(), Sheet().SheetPlace().height());
  EXPECT_TRUE(SheetIsInside());
}

TEST_F(Preview, PrintsOnThePrinterThatTheDocumentsWereMadeFor) {
  Open({Document("乙", kPaperA4, kPortrait, 1), Document("乙", kPaperB5, kLandscape, 2)});
  EXPECT_EQ(Label("lblStatus"), "印刷先：乙");
  Press(*form, Qt::Key_F5);
  EXPECT_THAT(printed, ElementsAre(std::pair("乙", 1U), std::pair("乙", 2U)));
  EXPECT_TRUE(offers.empty());
  EXPECT_EQ(Label("lblStatus"), "「乙」に送りました。");
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Preview, SaysThatAPrinterOtherThanTheOneOfTheSettingsKeepsItsPaper) {
  settings_printer = "事務所";
  Open({Document("乙", kPaperA4, kLandscape, 1)});
  EXPECT_EQ(Label("lblStatus"), "印刷先：乙（今の用紙 A4 横 のまま：入らない部分は切れます）");
  settings_printer = "乙";
  Open({Document("乙", kPaperA4, kLandscape, 1)});
  EXPECT_EQ(Label("lblStatus"), "印刷先：乙");
}

TEST_F(Preview, AHeldPrintKeyPrintsOnce) {
  Open({Document("乙", kPaperA4, kPortrait, 1)});
  Press(*form, Qt::Key_F5);
  Press(*form, Qt::Key_F5, Qt::NoModifier, true);
  EXPECT_EQ(printed.size(), 1U);
}

TEST_F(Preview, AsksForAPrinterWhereTheDocumentsWereMadeForNone) {
  choice = "乙";
  for (const char* device : {"PDF", "取り外したプリンタ"}) {
    printed.clear();
    offers.clear();
    Open({Document(device, kPaperA4, kPortrait, 1)});
    Press(*form, Qt::Key_P);
    EXPECT_THAT(offers, ElementsAre(printers));
    EXPECT_THAT(printed, ElementsAre(std::pair("乙", 1U)));
  }
}

TEST_F(Preview, TurnedBackInTheChoiceNothingIsPrinted) {
  OpenPages(1);
  Press(*form, Qt::Key_F5);
  EXPECT_EQ(offers.size(), 1U);
  EXPECT_TRUE(printed.empty());
}

TEST_F(Preview, APrinterThatRefusesIsNamedAndThePreviewStays) {
  print_fault = true;
  Open({Document("乙", kPaperA4, kPortrait, 1)});
  Press(*form, Qt::Key_F5);
  EXPECT_THAT(messages, ElementsAre(HasSubstr("乙: out of paper")));
  EXPECT_EQ(Label("lblStatus"), "印刷先：乙");
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Preview, WithoutAPrinterTheButtonIsOffAndTheReasonIsTold) {
  printers.clear();
  OpenPages(1);
  EXPECT_FALSE(Button("cmdPrint").isEnabled());
  EXPECT_EQ(Label("lblStatus"), "プリンタがないため、印刷できません。");
  EXPECT_EQ(Button("cmdPrint").toolTip(), "プリンタがないため、印刷できません。");
  EXPECT_TRUE(Press(*form, Qt::Key_F5));
  EXPECT_THAT(messages, ElementsAre("プリンタがないため、印刷できません。"));
}

TEST_F(Preview, ShiftF1ShowsTheKeysThatActNowOnACard) {
  printers.clear();
  OpenPages(1);
  QStringList told;
  QTimer::singleShot(50, [&told] {
    QWidget* card = QApplication::activeModalWidget();
    ASSERT_NE(card, nullptr);
    for (const QLabel* label : card->findChildren<QLabel*>()) told.push_back(label->text());
    card->close();
  });
  EXPECT_TRUE(Press(*form, Qt::Key_F1, Qt::ShiftModifier));
  EXPECT_TRUE(told.contains("ＰＤＦ保存 （F7）"));
  EXPECT_TRUE(told.contains("全ての帳票を一つのＰＤＦファイルに保存する"));
  EXPECT_TRUE(told.filter("F5").isEmpty()) << "there is no printer";
}

TEST_F(Preview, EscClosesIt) {
  OpenPages(2);
  EXPECT_TRUE(Press(*form, Qt::Key_Escape));
  EXPECT_FALSE(form->isVisible());
}

TEST_F(Preview, ManyPagesOpenAndTurnAsQuicklyAsOne) {
  constexpr std::size_t kPages = 60;
  constexpr std::size_t kTexts = 1000;
  const auto time_of = [this](std::size_t pages) {
    const auto start = Clock::now();
    Open({Document("PDF", kPaperA4, kPortrait, pages, kTexts)});
    form->grab();
    Press(*form, Qt::Key_End);
    form->grab();
    return std::chrono::duration<double>(Clock::now() - start).count();
  };
  time_of(1);  // fonts are loaded
  const double one = time_of(1);
  const double many = time_of(kPages);
  EXPECT_LT(many, 10 * one + 0.2) << "only the page that is shown is drawn";
}

TEST_F(Preview, ShownWithoutAPageReturnsAtOnce) {
  ShowPreview({});
  ShowPreview({Document("PDF", kPaperA4, kPortrait, 0)});
}

TEST_F(Preview, ShownReturnsAfterEscAndIsModal) {
  QString title;
  Qt::WindowModality modality = Qt::NonModal;
  QTimer::singleShot(0, [&] {
    QWidget* shown = QApplication::activeModalWidget();
    ASSERT_NE(shown, nullptr);
    title = shown->windowTitle();
    modality = shown->windowModality();
    Press(*shown, Qt::Key_Escape);
  });
  ShowPreview({Document("PDF", kPaperA4, kPortrait, 2)});
  EXPECT_EQ(title, "印刷プレビュー");
  EXPECT_EQ(modality, Qt::ApplicationModal);
}

}  // namespace rbt::test
