// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt {

/// The two colours of every second grid row, RGB with red in the low byte, without their window: read from
/// `STEEL.INI` and written there by `Save` alone.
class ColoursPresenter {
 public:
  ColoursPresenter();

  std::int32_t Back() const { return back_; }
  std::int32_t Fore() const { return fore_; }

  /// Asks for a colour; without an answer it stays.
  void ChooseBack();
  void ChooseFore();
  /// Faults: `file`.
  void Save() const;

 private:
  std::int32_t back_;
  std::int32_t fore_;
};

}  // namespace rbt
