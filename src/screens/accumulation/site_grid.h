// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

#include "desktop/grid_control.h"
#include "session/accumulation/site_choice.h"

namespace rbt {

/// The list of sites: number and name, one of them the chosen one.
class SiteGrid : public GridControl {
 public:
  explicit SiteGrid(QWidget* parent = nullptr);

  /// Called with the row that the user has gone to.
  void OnRow(std::function<void(std::size_t row)> gone_to) { gone_to_ = std::move(gone_to); }
  /// Shows the sites and which is chosen, silently.
  void Show(const SiteChoiceView& view);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void GoneTo(const QModelIndex& cell) const;

  std::function<void(std::size_t row)> gone_to_;
  bool silent_ = false;
};

}  // namespace rbt
