// SPDX-License-Identifier: MIT
#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include <QApplication>
#include <QLoggingCategory>
#include <QPushButton>

#include "desktop/look.h"
#include "desktop/work_watch.h"
#include "platform/system/services.h"
#include "screens/result/result_form.h"
#include "screens/result/result_forms.h"
#include "session/result/result_screen.h"
#include "work.h"

namespace rbt::bench {

namespace {

/// The application object for as long as screens are worked on; no display is needed.
class Desktop {
 public:
  Desktop() {
    PrepareDesktop();
    Services.PendingEvents = ProcessEventsOfWork;
    Services.OnWork = ShowWork();
  }

 private:
  /// What Qt finds wrong with a desktop that is none does not concern us.
  static int& Quiet() {
    static int count = 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    return count;
  }

  std::array<char, 14> program_{"rbtally_bench"};
  std::array<char*, 2> arguments_{program_.data(), nullptr};
  QApplication application_{Quiet(), arguments_.data()};
};

/// What is due now, repaints too.
void Settle() {
  constexpr int kRounds = 5;
  for (int i = 0; i < kRounds; ++i) QApplication::processEvents();
}

void PressFilter(QWidget& form) {
  form.findChild<QPushButton*>("cmdHoop")->click();
  Settle();
}

/// The filter of welded hoops at the press that brings all rows back: each press tallies anew.
Work Filter(std::string_view name, const DemoSite& site, const ResultScreen& screen,
            const std::shared_ptr<std::optional<Desktop>>& desktop) {
  const auto form = std::make_shared<std::unique_ptr<QWidget>>();
  return {.name = name,
          .begin =
              [site, &screen, form, desktop] {
                if (!*desktop) desktop->emplace();
                site.Open();
                *form = MakeResultForm(screen);
                (*form)->show();
                static_cast<ResultForm&>(**form).TakeRange();
                Settle();
              },
          .ready =
              [form] {
                PressFilter(**form);  // leaves them out
                PressFilter(**form);  // them alone
              },
          .run = [form] { return CostOf([&] { PressFilter(**form); }); },
          .end = [form] { form->reset(); }};
}

}  // namespace

std::vector<Work> ScreenWorks(const DemoSite& site) {
  // Made when the first begins, ended with the last.
  const auto desktop = std::make_shared<std::optional<Desktop>>();
  std::vector<Work> works{Filter("filter to redraw, bulk", site, kBulkScreen, desktop),
                          Filter("filter to redraw, shape", site, kShapeScreen, desktop)};
  // As the tally by page.
  constexpr std::int64_t kMostRows = 500'000;
  if (site.Rows() <= kMostRows) works.push_back(Filter("filter to redraw, page", site, kPageScreen, desktop));
  return works;
}

}  // namespace rbt::bench
