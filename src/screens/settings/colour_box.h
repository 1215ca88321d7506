// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include <QPushButton>

namespace rbt {

/// A button that is nothing but its colour, with a frame that tells the focus.
class ColourBox : public QPushButton {
 public:
  explicit ColourBox(QWidget* parent = nullptr);

  /// RGB with red in the low byte.
  void SetRgb(std::int32_t rgb);
  std::int32_t Rgb() const { return rgb_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::int32_t rgb_ = 0;
};

}  // namespace rbt
