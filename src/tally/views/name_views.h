// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "tally/names/name_list.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// What stands above the columns of the list of registered names.
inline constexpr std::array<std::string_view, 5> kNameCaptions{"No", "登録名", "選択", "定尺重量",
                                                               "取付重量"};

/// The list as it is shown: a number that is null is an empty cell, a mark 1 or 0, weights as "#,##0".
GridRows NameRows(std::span<const RegisteredName> names);
/// The same with a header line, for other programs: weights without thousands separators, names as they are.
std::string NameCsv(std::span<const RegisteredName> names);
/// `{ "kind": "name-list", "names": [[number, name, mark, stock, installed], ...] }`.
std::string NameListJson(std::span<const RegisteredName> names);

}  // namespace rbt
