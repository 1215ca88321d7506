// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QCheckBox>

#include "platform/system/printing.h"
#include "platform/text/characters.h"
#include "screens/result/result_form_driver.h"
#include "session/result/print_order.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"
#include "support/drawn_page.h"

namespace rbt::test {

/// What a number on a screen or sheet says, without what stands around it: "1,234" of "  1,234 Kg".
inline std::string NumberIn(std::string_view text) {
  std::string number;
  for (const char c : text) {
    if ((c >= '0' && c <= '9') || c == ',' || c == '.' || c == '-') number += c;
  }
  return number;
}

inline std::int64_t WholeOf(std::string_view text) {
  std::string digits = NumberIn(text);
  std::erase(digits, ',');
  return std::stoll(digits);
}

inline std::string WithoutBlanks(std::string_view text) {
  return ReplaceAll(ReplaceAll(text, " ", ""), "　", "");
}

/// A printed page as a reader takes it in.
struct Sheet : DrawnPage {
  explicit Sheet(PrintedDocument document) { documents.push_back(std::move(document)); }

  const PrintedDocument& Document() const { return documents.back(); }
  /// The first text that reads so apart from its blanks, or that starts so.
  PrintedText Find(std::string_view start) const {
    for (const PrintedText& text : Texts()) {
      if (WithoutBlanks(text.text).starts_with(start)) return text;
    }
    throw std::runtime_error("the sheet lacks " + std::string(start));
  }
  /// The numbers to the right of a label, from left to right; a grade is none.
  std::vector<std::string> Row(std::string_view label) const {
    const PrintedText found = Find(label);
    std::vector<std::pair<float, std::string>> row;
    for (const PrintedText& text : Texts()) {
      if (text.y != found.y || text.x <= found.x || text.text.starts_with("SD")) continue;
      if (const std::string number = NumberIn(text.text); !number.empty()) row.emplace_back(text.x, number);
    }
    std::sort(row.begin(), row.end());
    std::vector<std::string> numbers;
    for (const auto& [x, number] : row) numbers.push_back(number);
    return numbers;
  }
};

/// A result screen with printers that keep what they print, and a preview that keeps what it is shown. The
/// bars of D16 are cut from longer stock, so that stock and installed weight differ.
class PrintDriver : public ResultFormDriver {
 public:
  explicit PrintDriver(const ResultScreen& screen = kBulkScreen) : screen_(screen) {
    Cells cut = TenBars(16, 1, 2);
    for (auto& [field, value] : cut) {
      if (field == "伸切寸") value = std::int64_t{5000};
    }
    cut.emplace_back("切断", std::int64_t{4});
    site.AddRow(cut);
    site.SetIni(kSteelFile, "自社名", "会社名", "試験鉄筋");
    SaveSetting(kTallyPrinterKey, "甲");
    parts.print = [this](PrintOrder order) {
      if (spoils_result) order.result.tables = BeyondAllSums(order.result.Grid());
      return CarryOut(order, [this](std::vector<PrintedDocument> documents) {
        for (PrintedDocument& document : documents) shown.push_back(std::move(document));
        if (while_shown) while_shown();
      });
    };
    Install({{"甲", DeviceKind::installed_printer}});
  }
  PrintDriver(const PrintDriver&) = delete;
  PrintDriver& operator=(const PrintDriver&) = delete;
  ~PrintDriver() { form.reset(); }

  /// The printers of the machine, the first current.
  void Install(const std::vector<std::pair<std::string, DeviceKind>>& devices) {
    Services.Printers = Devices(devices);
  }
  PrinterList Devices(const std::vector<std::pair<std::string, DeviceKind>>& devices) {
    std::list<PrinterSurface> printers;
    for (const auto& [name, kind] : devices) {
      printers.emplace_back(name, kind,
                            [this](const PrintedDocument& document) { printed.push_back(document); });
    }
    return PrinterList(std::move(printers));
  }

  /// Opens the screen and brings the tally: a scoped screen takes its default range.
  void Start() {
    Open(screen_);
    for (const char* last : {"txtEndGyo", "txtEndKeijouNo"}) {
      if (Box(last) == nullptr) continue;
      Box(last)->setFocus();
      Key(Qt::Key_Return);
    }
  }
  void Keys(std::initializer_list<int> keys) {
    for (const int key : keys) this->Key(key);
  }
  QCheckBox* PreviewBox() const { return form->findChild<QCheckBox*>("chkPreview"); }
  std::string Cell(const std::string& label, int column) const {
    for (int row = 0; row < Grid()->RowCount(); ++row) {
      if (WithoutBlanks(Grid()->Cell(row, 0)).ends_with(label)) return NumberIn(Grid()->Cell(row, column));
    }
    throw std::runtime_error("the grid lacks " + label);
  }
  Sheet LastPrinted() const { return Sheet(printed.at(printed.size() - 1)); }
  Sheet LastShown() const { return Sheet(shown.at(shown.size() - 1)); }

  std::vector<PrintedDocument> printed;  ///< on any of the printers
  std::vector<PrintedDocument> shown;    ///< in the preview
  std::function<void()> while_shown;
  bool spoils_result = false;  ///< the report faults at the sum of the welds

 private:
  static TallyTable BeyondAllSums(TallyTable table) {
    table.UlbonWeldCount[12] = INT32_MAX;
    table.UlbonWeldCount[13] = 1;
    return table;
  }

  const ResultScreen& screen_;
};

}  // namespace rbt::test
