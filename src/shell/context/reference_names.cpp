// SPDX-License-Identifier: MIT
#include "shell/context/reference_names.h"

#include <algorithm>
#include <utility>

#include "data/reference.h"
#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"

namespace rbt {

std::string Get_SDName(std::int32_t code) {
  const auto& names = SiteContext.GradeNames;
  if (code < 1 || code >= static_cast<std::int32_t>(names.size())) return {};
  return names[static_cast<std::size_t>(code)];
}

std::array<std::string, 12> DiameterGradeNames() { return ReadBarOrigins().grades; }

BarOrigins ReadBarOrigins() {
  SiteGrades read = ReadSiteGrades(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  BarOrigins origins{.grades = {}, .makers = std::move(read.makers)};
  std::transform(read.codes.begin(), read.codes.end(), origins.grades.begin(), Get_SDName);
  return origins;
}

std::string Get_BuiNa(std::int32_t part) {
  constexpr std::int32_t kSecondNaming = 2;
  if (!SiteContext.MasterDatabase) throw Fault(FaultKind::database, "SORANO.MDB is not open");
  const PartNaming naming = Settings.ShippingDate == kSecondNaming ? PartNaming::second : PartNaming::first;
  return PartName(*SiteContext.MasterDatabase, part, naming);
}

std::array<std::string, kLastNamedPart> NamesOfParts() {
  std::array<std::string, kLastNamedPart> names;
  for (std::int32_t part = 1; part <= kLastNamedPart; ++part) {
    names[static_cast<std::size_t>(part - 1)] = Get_BuiNa(part);
  }
  return names;
}

}  // namespace rbt
