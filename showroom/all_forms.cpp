// SPDX-License-Identifier: MIT
#include "showroom/all_forms.h"

#include <iterator>

#include "showroom/accumulation_forms.h"
#include "showroom/archive_forms.h"
#include "showroom/detail_forms.h"
#include "showroom/floorpart_forms.h"
#include "showroom/menu_forms.h"
#include "showroom/names_forms.h"
#include "showroom/planning_forms.h"
#include "showroom/preview_forms.h"
#include "showroom/result_forms.h"
#include "showroom/selection_forms.h"
#include "showroom/settings_forms.h"

namespace rbt {

std::vector<FormEntry> AllForms() {
  std::vector<FormEntry> all;
  for (std::vector<FormEntry> forms :
       {MenuForms(), SettingsForms(), ResultForms(), DetailForms(), PlanningForms(), FloorPartForms(),
        ArchiveForms(), NamesForms(), AccumulationForms(), SelectionForms(), PreviewForms()}) {
    std::move(forms.begin(), forms.end(), std::back_inserter(all));
  }
  return all;
}

}  // namespace rbt
