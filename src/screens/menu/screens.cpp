// SPDX-License-Identifier: MIT
#include "screens/menu/screens.h"

#include <array>

#include <QWidget>

#include "screens/result/result_forms.h"
#include "screens/settings/settings_forms.h"

namespace rbt {

namespace {

constexpr std::array<MenuScreen, 5> kMenuScreens{{
    {"JS", MakeJS},
    {"KEIJOJS", MakeKEIJOJS},
    {"PGJS", MakePGJS},
    {"PKEIJOJS", MakePKEIJOJS},
    {"SETJS", MakeSETJS},
}};

}  // namespace

std::span<const MenuScreen> MenuScreens() { return kMenuScreens; }

}  // namespace rbt
