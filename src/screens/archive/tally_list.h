// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <QListWidget>

namespace rbt {

/// A list of saved tallies. Where nothing is selected an arrow key selects the current entry, so that a list
/// of one is worked without a mouse.
class TallyList : public QListWidget {
 public:
  explicit TallyList(QWidget* parent = nullptr) : QListWidget(parent) {}

  /// Called with the selected entries, in their order, when they have changed.
  void OnSelection(std::function<void(std::vector<std::size_t> entries)> changed);
  /// Shows entries and which of them are selected, silently; `notice`, which cannot be selected, where there
  /// are none.
  void Show(const std::vector<std::string>& entries, std::span<const std::size_t> selected = {},
            std::string_view notice = {});

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::vector<std::size_t> Selected() const;
  void Fill(const std::vector<std::string>& entries, std::string_view notice);
};

}  // namespace rbt
