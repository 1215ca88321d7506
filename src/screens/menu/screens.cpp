// SPDX-License-Identifier: MIT
#include "screens/menu/screens.h"

#include <array>

#include <QWidget>

#include "screens/result/result_forms.h"
#include "screens/settings/settings_forms.h"

namespace rbt {

namespace {

constexpr std::array<MenuScreen, 7> kMenuScreens{{
    {"JS", "一括集計", MakeJS},
    {"KEIJOJS", "形状別 一括集計", MakeKEIJOJS},
    {"PGJS", "頁行別集計", MakePGJS},
    {"PKEIJOJS", "形状別 頁行別集計", MakePKEIJOJS},
    {"KAIJS", "階別集計"},
    {"BUIJS", "部位別集計"},
    {"SETJS", "年号等集計印刷設定", MakeSETJS},
}};

}  // namespace

std::span<const MenuScreen> MenuScreens() { return kMenuScreens; }

}  // namespace rbt
