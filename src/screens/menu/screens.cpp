// SPDX-License-Identifier: MIT
#include "screens/menu/screens.h"

#include <array>

#include <QWidget>

#include "screens/floorpart/floorpart_forms.h"
#include "screens/result/result_forms.h"
#include "screens/settings/settings_forms.h"

namespace rbt {

namespace {

constexpr std::array<MenuScreen, 7> kMenuScreens{{
    {"JS", MakeJS},
    {"KEIJOJS", MakeKEIJOJS},
    {"PGJS", MakePGJS},
    {"PKEIJOJS", MakePKEIJOJS},
    {"KAIJS", MakeKAIJS},
    {"BUIJS", MakeBUIJS},
    {"SETJS", MakeSETJS},
}};

}  // namespace

std::span<const MenuScreen> MenuScreens() { return kMenuScreens; }

}  // namespace rbt
