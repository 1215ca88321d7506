// SPDX-License-Identifier: MIT
#include "demo/shapes.h"

#include <stdexcept>
#include <string>

namespace rbt::demo {

namespace {

constexpr Shape kShapes[] = {
    {1, "直筋", Outline::straight},
    {2, "片フック", Outline::one_leg},
    {3, "両フック", Outline::two_legs},
    {4, "Ｌ型", Outline::one_leg},
    {5, "コ型", Outline::two_legs},
    {6, "クランク", Outline::two_legs},
    {11, "帯筋", Outline::closed},
    {12, "あばら筋", Outline::closed},
    {13, "中子筋", Outline::two_legs},
    {14, "ダイヤ筋", Outline::closed},
    {21, "円形帯筋", Outline::round},
    {31, "段筋", Outline::four_sides},
    {41, "ベント筋", Outline::four_sides},
    {87, "溶接閉鎖型フープ", Outline::closed},
    {138, "ネジ直筋片定着板", Outline::straight, 1},
    {139, "ネジ直筋", Outline::straight, 2},
    {140, "ネジ直筋定着板継手", Outline::straight, 1},
    {141, "ネジ片フック", Outline::one_leg, 1},
    {142, "ネジＬ型", Outline::one_leg, 1},
    {143, "ネジ直筋両定着板", Outline::straight, 2},
    {144, "定着板片フック", Outline::one_leg},
    {145, "定着板Ｌ型", Outline::one_leg},
    {146, "両定着板コ型", Outline::two_legs},
    {147, "定着板コ型", Outline::two_legs},
    {161, "定着板クランク", Outline::two_legs},
    {162, "ネジコ型", Outline::two_legs, 2},
    {163, "ネジクランク", Outline::two_legs, 2},
    {164, "定着板段差筋", Outline::two_legs},
    {165, "定着板折曲筋", Outline::one_leg},
    {166, "ネジ定着板片フック", Outline::one_leg, 1},
    {167, "ネジ定着板Ｌ型", Outline::one_leg, 1},
    {168, "ネジ定着板コ型", Outline::two_legs, 1},
    {169, "ネジ定着板クランク", Outline::two_legs, 1},
    {170, "ネジ折曲筋", Outline::one_leg, 1},
    {171, "ネジ段差筋", Outline::two_legs, 2},
    {172, "ネジ両フック", Outline::two_legs, 2},
    {173, "ネジハンチ筋", Outline::four_sides, 2},
    {174, "ネジ斜筋", Outline::one_leg, 1},
    {175, "ネジ定着板段差筋", Outline::two_legs, 1},
    {176, "ネジ定着板折曲筋", Outline::one_leg, 1},
    {177, "ネジ継手筋", Outline::one_leg, 2},
    {201, "ネジ直筋片側継手", Outline::straight, 1},
    {202, "ネジ直筋両側継手", Outline::straight, 2},
};

}  // namespace

std::span<const Shape> Shapes() { return kShapes; }

const Shape& ShapeOf(std::int32_t number) {
  for (const Shape& shape : kShapes) {
    if (shape.number == number) return shape;
  }
  throw std::logic_error("no shape " + std::to_string(number) + " in the demonstration table");
}

}  // namespace rbt::demo
