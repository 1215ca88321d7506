// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "support/site_fixture.h"

namespace rbt::test {

/// Schedules without sense but with every value that the preparation tells apart, nulls among them.
class RandomSchedule {
 public:
  explicit RandomSchedule(unsigned seed) : engine_(seed) {}

  std::vector<Cells> Rows(int count) {
    std::vector<Cells> rows(static_cast<std::size_t>(count));
    for (Cells& row : rows) row = Row();
    return rows;
  }

 private:
  Cells Row() {
    Cells row{
        {"太さ", OneOf({6, 7, 9, 10, 11, 12, 13, 16, 19, 51})},
        {"形状No", OneOf({0,   1,   2,   87,  137, 138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 148,
                          160, 161, 162, 163, 164, 166, 169, 170, 174, 175, 176, 177, 178, 200, 201, 210})},
        {"本数", OneOf({0, 1, 3, 12})},
        {"ヶ所", OneOf({0, 1, 4})},
        {"伸切寸", OneOf({3400, 3500, 6000, 6001, 12000, 12500, 13000})},
        {"伸本定", OneOf({0, 1, 2})},
        {"圧接", OneOf({0, 1, 5, -1})},
        {"圧接太さ", OneOf({0, 19, 25})},
        {"予備2", OneOf({0, 1, 2, 3, 4, 5})},
        {"予備3", OneOf({0, 1, 2, 3, 4})},
        {"定着板数", OneOf({0, 1, 9})},
        {"部位", OneOf({0, 2, 3})},
        {"名称", TextOf({"柱", "縦ｽﾘｯﾄ筋　", "横ｽﾘｯﾄ筋　", "縦ｽﾘｯﾄ筋", "横ｽﾘｯﾄ筋 ", ""})},
    };
    for (int i = 1; i <= 10; ++i)
      row.emplace_back("寸法" + std::to_string(i), TextOf({"", "120", "R50", "450"}));
    return row;
  }

  bool IsNull() { return engine_() % 8 == 0; }
  template <typename List>
  const auto& Pick(const List& list) {
    return list.begin()[engine_() % list.size()];
  }
  Value OneOf(std::initializer_list<std::int64_t> values) { return IsNull() ? Value{} : Value{Pick(values)}; }
  Value TextOf(std::initializer_list<const char*> texts) {
    return IsNull() ? Value{} : Value{std::string(Pick(texts))};
  }

  std::mt19937 engine_;
};

}  // namespace rbt::test
