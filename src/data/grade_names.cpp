// SPDX-License-Identifier: MIT
#include "data/grade_names.h"

#include <algorithm>

#include "data/reference.h"
#include "data/site_context.h"

namespace rbt {

std::string Get_SDName(std::int32_t code) {
  const auto& names = SiteContext.GradeNames;
  if (code < 1 || code >= static_cast<std::int32_t>(names.size())) return {};
  return names[static_cast<std::size_t>(code)];
}

std::array<std::string, 12> DiameterGradeNames() {
  const SiteGrades grades = ReadSiteGrades(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  std::array<std::string, 12> names;
  std::transform(grades.codes.begin(), grades.codes.end(), names.begin(), Get_SDName);
  return names;
}

}  // namespace rbt
