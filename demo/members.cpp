// SPDX-License-Identifier: MIT
#include "demo/members.h"

namespace rbt::demo {

namespace {

using Codes = std::int32_t;

// Diameters, top of the building first.
constexpr Codes kD10[] = {10};
constexpr Codes kD13[] = {13};
constexpr Codes kD10ToD13[] = {10, 13};
constexpr Codes kD10ToD16[] = {10, 13, 16};
constexpr Codes kD13ToD16[] = {13, 16};
constexpr Codes kD13ToD22[] = {13, 16, 19, 22};
constexpr Codes kD16ToD25[] = {16, 19, 22, 25};
constexpr Codes kD22ToD29[] = {22, 25, 29};
constexpr Codes kD22ToD32[] = {22, 25, 29, 32};
constexpr Codes kD22ToD35[] = {22, 25, 29, 32, 35};
constexpr Codes kD25ToD35[] = {25, 29, 32, 35};
constexpr Codes kD38ToD41[] = {38, 41};
constexpr Codes kD35ToD51[] = {35, 51};
constexpr Codes kThinTies[] = {7, 9, 11, 12, 16};
constexpr Codes kThinStirrups[] = {6, 7, 9, 11};
constexpr Codes kThinOpenings[] = {6, 7};

constexpr Codes kStraight[] = {1};
constexpr Codes kMainBar[] = {1, 1, 1, 2, 3};
constexpr Codes kHooked[] = {2, 3, 4};
constexpr Codes kBent[] = {4, 5, 6};
constexpr Codes kChannel[] = {5};
constexpr Codes kTies[] = {11, 11, 14, 21};
constexpr Codes kWeldedHoop[] = {87};
constexpr Codes kThinTie[] = {87, 11, 14};
constexpr Codes kStirrup[] = {12};
constexpr Codes kCrossTie[] = {13};
constexpr Codes kSpiralTie[] = {21};
constexpr Codes kStairs[] = {31};
constexpr Codes kSlab[] = {1, 1, 1, 4, 41};
constexpr Codes kAnchored[] = {138, 140, 143, 144, 145, 146, 147, 161,
                               164, 165, 166, 167, 168, 169, 175, 176};
constexpr Codes kThreaded[] = {139, 139, 141, 142, 162, 163, 170, 171, 172, 173, 174, 177, 201, 202};

constexpr unsigned kFrame = kBasementZone | kStoreyZone;
constexpr unsigned kFooting = kFoundationZone;
constexpr unsigned kOnGround = kFoundationZone | kBasementZone;
constexpr unsigned kColumns = kFrame | kPenthouseZone;
constexpr unsigned kFrameAndRoof = kFrame | kRoofZone;
constexpr unsigned kTop = kRoofZone | kPenthouseZone;
constexpr unsigned kUpper = kStoreyZone | kRoofZone;
constexpr unsigned kAbove = kFrame | kRoofZone | kPenthouseZone;

constexpr Joint kFree = Joint::none;
constexpr Joint kWelded = Joint::weld;
constexpr Joint kClosed = Joint::closed;
constexpr Steel kStrong = Steel::strong_below;
constexpr Steel kThin = Steel::thin;

// One row a line, so that the table reads as one.
// clang-format off
constexpr BarPattern kPatterns[] = {
    // 1 基礎
    {1, "ベース筋", kFooting, 30, kD16ToD25, kHooked, {1500, 4800}, {8, 16}, {1, 6}},
    {1, "はかま筋", kFooting, 15, kD13ToD16, kChannel, {2600, 5600}, {6, 12}, {1, 6}},
    {1, "杭頭補強筋", kFooting, 10, kD22ToD29, kAnchored, {1500, 2600}, {8, 12}, {2, 10}},
    {1, "耐圧版主筋", kFooting, 15, kD22ToD32, kStraight, {5000, 12000}, {10, 40}, {1, 2}, 60, kWelded},
    {1, "芯鉄筋", kFooting, 8, kD35ToD51, kStraight, {5000, 8000}, {4, 8}, {1, 4}, 60, kWelded},
    {1, "耐圧版配力筋", kFooting, 10, kD16ToD25, kStraight, {3500, 12000}, {20, 60}, {1, 2}, 60},
    // 2 柱
    {2, "主筋", kColumns, 40, kD22ToD35, kStraight, {2800, 5600}, {8, 16}, {1, 8}, 30, kWelded, kStrong},
    {2, "隅柱主筋", kBasementZone, 12, kD38ToD41, kStraight, {3500, 5500}, {4, 8}, {1, 4}, 30, kWelded, kStrong},
    {2, "主筋（ネジ継手）", kFrame, 12, kD25ToD35, kThreaded, {2800, 5600}, {8, 12}, {1, 6}, 25},
    {2, "柱頭定着筋", kColumns, 6, kD22ToD29, kAnchored, {1200, 3200}, {4, 8}, {1, 6}},
    {2, "帯筋", kAbove, 20, kD10ToD16, kTies, {2200, 4200}, {18, 45}, {1, 8}},
    {2, "溶接帯筋", kFrame, 20, kD13ToD16, kWeldedHoop, {2400, 4000}, {25, 45}, {2, 8}, 0, kClosed},
    {2, "高強度せん断補強筋", kFrame, 14, kThinTies, kThinTie, {2400, 4000}, {25, 45}, {2, 8}, 0, kFree, kThin},
    {2, "中子筋", kFrame, 12, kD10ToD13, kCrossTie, {700, 1200}, {20, 60}, {2, 8}},
    {2, "差筋", kFooting, 10, kD22ToD32, kHooked, {1800, 3600}, {8, 16}, {1, 8}},
    // 3 壁
    {3, "縦筋", kAbove, 30, kD10ToD16, kStraight, {1800, 5000}, {10, 60}, {1, 3}, 20},
    {3, "横筋", kAbove, 30, kD10ToD16, kMainBar, {1500, 8000}, {10, 40}, {1, 3}, 20},
    {3, "開口補強筋", kAbove, 14, kD13ToD16, kStraight, {1500, 3000}, {4, 8}, {1, 6}},
    {3, "縦ｽﾘｯﾄ筋　", kFrame, 5, kD10ToD13, kStraight, {600, 1200}, {8, 24}, {1, 3}},
    {3, "横ｽﾘｯﾄ筋　", kFrame, 5, kD10ToD13, kStraight, {600, 1200}, {8, 24}, {1, 3}},
    // 4 大梁
    {4, "上端主筋", kFrameAndRoof, 26, kD22ToD32, kMainBar, {3500, 12000}, {3, 6}, {1, 5}, 50, kWelded, kStrong},
    {4, "下端主筋", kFrameAndRoof, 26, kD22ToD32, kMainBar, {3500, 12000}, {3, 6}, {1, 5}, 50, kWelded, kStrong},
    {4, "端部定着筋", kFrameAndRoof, 12, kD22ToD32, kAnchored, {2000, 5000}, {2, 6}, {1, 5}},
    {4, "主筋（ネジ継手）", kFrame, 8, kD22ToD32, kThreaded, {3500, 9000}, {3, 6}, {1, 4}, 40},
    {4, "あばら筋", kFrameAndRoof, 22, kD10ToD16, kStirrup, {1800, 3200}, {20, 50}, {1, 5}},
    {4, "高強度あばら筋", kFrame, 10, kThinStirrups, kStirrup, {1800, 3200}, {20, 50}, {1, 5}, 0, kFree, kThin},
    {4, "貫通孔補強筋", kFrame, 4, kThinOpenings, kSpiralTie, {900, 2200}, {4, 12}, {1, 6}, 0, kFree, kThin},
    {4, "腹筋", kFrameAndRoof, 8, kD10ToD13, kStraight, {3000, 8000}, {2, 4}, {1, 5}, 30},
    {4, "幅止筋", kFrameAndRoof, 8, kD10, kCrossTie, {450, 800}, {10, 40}, {1, 5}},
    // 5 小梁
    {5, "上端筋", kFrameAndRoof, 26, kD16ToD25, kMainBar, {2500, 9000}, {2, 4}, {1, 6}, 30},
    {5, "下端筋", kFrameAndRoof, 26, kD16ToD25, kStraight, {2500, 9000}, {2, 4}, {1, 6}, 30},
    {5, "あばら筋", kFrameAndRoof, 24, kD10ToD13, kStirrup, {1300, 2400}, {15, 40}, {1, 6}},
    // 6 スラブ
    {6, "短辺方向筋", kAbove, 30, kD10ToD13, kSlab, {1500, 6000}, {15, 80}, {1, 3}, 40},
    {6, "長辺方向筋", kAbove, 30, kD10ToD13, kStraight, {2500, 9000}, {15, 80}, {1, 3}, 40},
    {6, "端部補強筋", kAbove, 12, kD13, kBent, {1000, 2500}, {6, 30}, {1, 4}},
    // 7 地中梁
    {7, "上端主筋", kFooting, 26, kD25ToD35, kMainBar, {4000, 13000}, {4, 8}, {1, 4}, 55, kWelded},
    {7, "下端主筋", kFooting, 26, kD25ToD35, kMainBar, {4000, 13000}, {4, 8}, {1, 4}, 55, kWelded},
    {7, "あばら筋", kFooting, 24, kD13ToD16, kStirrup, {3000, 5600}, {20, 60}, {1, 4}},
    {7, "腹筋", kFooting, 10, kD13, kStraight, {3000, 9000}, {4, 8}, {1, 4}, 30},
    {7, "幅止筋", kFooting, 8, kD10, kCrossTie, {500, 900}, {20, 60}, {1, 4}},
    // 8 階段
    {8, "段筋", kFrame, 20, kD10ToD13, kStairs, {1200, 2400}, {8, 20}, {1, 2}},
    {8, "主筋", kFrame, 16, kD13ToD22, kBent, {2500, 5500}, {6, 14}, {1, 2}},
    // 9 土間
    {9, "土間筋", kOnGround, 20, kD10ToD13, kStraight, {3000, 9000}, {15, 60}, {1, 2}, 50},
    // 10 雑
    {10, "パラペット縦筋", kTop, 20, kD10ToD13, kBent, {900, 2200}, {20, 80}, {1, 4}},
    {10, "パラペット横筋", kTop, 14, kD10ToD13, kStraight, {2500, 6000}, {4, 8}, {1, 4}, 40},
    {10, "立上り筋", kUpper, 12, kD10ToD13, kBent, {800, 1800}, {10, 40}, {1, 4}},
    {10, "設備基礎筋", kRoofZone, 10, kD13ToD16, kHooked, {900, 2400}, {6, 20}, {1, 3}},
    // 11 その他
    {11, "共通補強筋", kNoFloorZone, 20, kD10ToD16, kMainBar, {800, 4000}, {10, 60}, {1, 3}, 15},
    {11, "段取筋", kNoFloorZone, 14, kD13ToD22, kBent, {700, 1800}, {10, 40}, {1, 2}},
};
// clang-format on

// The lines are drawn up floor by floor in the order of the work.
constexpr Storey kStoreys[] = {
    {0, kFoundationZone, 24, 0.0}, {-2, kBasementZone, 8, 0.05}, {-1, kBasementZone, 8, 0.1},
    {1, kStoreyZone, 9, 0.2},      {2, kStoreyZone, 8, 0.3},     {3, kStoreyZone, 8, 0.4},
    {4, kStoreyZone, 7, 0.5},      {5, kStoreyZone, 7, 0.6},     {6, kStoreyZone, 6, 0.7},
    {7, kStoreyZone, 6, 0.8},      {8, kStoreyZone, 6, 0.9},     {9, kStoreyZone, 6, 0.95},
    {76, kRoofZone, 4, 1.0},       {77, kPenthouseZone, 2, 1.0}, {78, kNoFloorZone, 12, 1.0},
};

}  // namespace

std::span<const BarPattern> BarPatterns() { return kPatterns; }
std::span<const Storey> Storeys() { return kStoreys; }

}  // namespace rbt::demo
