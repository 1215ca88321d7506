// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

#include "store/database.h"
#include "tally/tally_grid.h"

namespace rbt {

/// The file of the sum while sites are being added up, a family path. It lives for one adding step.
inline constexpr std::string_view kHozonFile = "\\RBK\\DATA\\hozon.MDB";

/// Makes the table `T_hozon`: a record for each row of the sum, 列番号 null, and for each cell of it.
void Make_Hozon(Database& hozon);

/// Where the sum is kept. Where the family's databases, the site or a file of that name are real Jet files it
/// is `hozon.MDB.work`: none of ours stands there under a name that other programs look for, and what another
/// program has in its own is neither read nor deleted.
std::filesystem::path FileOfSum();

/// Stores what is kept of a bulk tally, see `KeptForSum`, in place of what is stored: all of it or, with a
/// fault or at a kill, nothing. The file is made where it is missing.
void Save_Hozon(const TallyTable& sum);

/// What is stored; an empty table where there is no file. A null figure is 0. Faults: what the store throws;
/// `subscript out of range` for a record of no row or column.
TallyTable Load_Hozon();

/// Deletes the file, if there is one, and what a killed save has left beside it. Throws `file` where that
/// fails. What another program has under that name as a real Jet file stays.
void Delete_Hozon();

}  // namespace rbt
