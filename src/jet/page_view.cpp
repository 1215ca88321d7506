// SPDX-License-Identifier: MIT
#include "jet/page_view.h"

#include <bit>

#include <fmt/format.h>

#include "platform/fault.h"

namespace rbt::jet {

double PageView::F64(std::size_t at) const { return std::bit_cast<double>(U64(at)); }

float PageView::F32(std::size_t at) const { return std::bit_cast<float>(U32(at)); }

void PageView::Damaged(const std::string& cause) const {
  throw Fault(FaultKind::file,
              fmt::format("{}: page {}: {}", file_ == nullptr ? std::string("?") : *file_, page_, cause));
}

void PageView::OutOfPage(std::size_t at, std::size_t count) const {
  Damaged(fmt::format("{} bytes at {} lie outside the {} that are there", count, at, bytes_.size()));
}

}  // namespace rbt::jet
