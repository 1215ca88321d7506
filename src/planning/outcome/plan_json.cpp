// SPDX-License-Identifier: MIT
#include "planning/outcome/plan_json.h"

#include "platform/json/json_writer.h"

namespace rbt::planning {
namespace {

constexpr Micros kMicrosInUnit = 1'000'000;

double Kilograms(Milligrams weight) {
  return static_cast<double>(weight) / static_cast<double>(kMicrosInUnit);
}

/// A whole number where it is one.
JsonWriter& AddUnits(JsonWriter& json, Micros millionths) {
  if (millionths % kMicrosInUnit == 0) return json.Value(millionths / kMicrosInUnit);
  return json.Value(static_cast<double>(millionths) / static_cast<double>(kMicrosInUnit));
}

JsonWriter& Add(JsonWriter& json, const std::optional<int>& number) {
  return number ? json.Value(*number) : json.Null();
}

void AddPercent(JsonWriter& json, std::string_view name, const std::optional<double>& percent) {
  json.Name(name);
  if (percent) {
    json.Value(*percent);
  } else {
    json.Null();
  }
}

void AddSteel(JsonWriter& json, const BarSteel& steel) {
  json.Field("diameter", steel.diameter).Field("kind", steel.kind).Field("hoop", steel.hoop);
}

void AddNumbers(JsonWriter& json, std::string_view name, const std::vector<int>& numbers) {
  json.Name(name).BeginArray();
  for (const int number : numbers) json.Value(number);
  json.EndArray();
}

void AddOptions(JsonWriter& json, const PlanOptions& options) {
  json.Name("options").BeginObject();
  json.Field("kerf", options.bar.kerf).Field("trim", options.bar.trim).Field("plus", options.bar.plus);
  json.Field("mix", options.mix).Field("maxLengths", options.max_lengths).Field("usable", options.usable);
  json.Field("scope", options.scope).Field("welded", options.keep_welded ? "keep" : "plan");
  json.Field("aim", options.aim == Aim::money ? "money" : "steel").EndObject();
}

void AddCuts(JsonWriter& json, const std::vector<OutcomeCut>& cuts) {
  json.Name("pieces").BeginArray();
  for (const OutcomeCut& cut : cuts) {
    json.BeginArray().Value(cut.mm).Value(cut.count).BeginArray();
    for (const OutcomeShare& share : cut.rows) {
      json.BeginArray();
      Add(json, share.page);
      Add(json, share.line).Value(share.pieces).EndArray();
    }
    json.EndArray().EndArray();
  }
  json.EndArray();
}

void AddPatterns(JsonWriter& json, const std::vector<OutcomePattern>& patterns) {
  json.Name("patterns").BeginArray();
  for (const OutcomePattern& of : patterns) {
    json.BeginObject().Field("stock", of.pattern.stock_mm).Field("rest", of.pattern.rest);
    json.Field("bars", of.pattern.bars).Name("pieces").BeginArray();
    for (const auto& [cut, pieces] : of.pattern.pieces) json.Row(cut, pieces);
    json.EndArray().Field("used", of.used_mm).Field("left", of.left_mm).Field("cuts", of.cuts).EndObject();
  }
  json.EndArray();
}

void AddProof(JsonWriter& json, const OutcomeGroup& group) {
  json.Name("bound").BeginObject().Name("cost");
  AddUnits(json, group.bound).Name("prices").BeginArray();
  for (const Price& price : group.prices) json.Row(price.cut_mm, price.price);
  json.EndArray().EndObject();
}

void AddGroup(JsonWriter& json, const OutcomeGroup& group) {
  json.BeginObject().Field("scope", group.scope);
  AddSteel(json, group.steel);
  AddNumbers(json, "lengths", group.lengths);
  AddCuts(json, group.cuts);
  AddPatterns(json, group.patterns);
  json.Field("method", MethodName(group.method)).Name("cost");
  AddUnits(json, group.cost);
  json.Field("steelKg", Kilograms(group.steel_weight)).Field("tableKg", Kilograms(group.table_weight));
  json.Field("installedKg", Kilograms(group.installed_weight)).Field("lossPercent", group.loss_percent);
  AddProof(json, group);
  json.EndObject();
}

void AddRows(JsonWriter& json, const Outcome& outcome) {
  json.Name("kept").BeginArray();
  for (const OutcomeKept& row : outcome.kept) {
    json.BeginArray();
    Add(json, row.page);
    Add(json, row.line).Value(ReasonName(row.reason)).EndArray();
  }
  json.EndArray().Name("short").BeginArray();
  for (const OutcomeShort& row : outcome.short_rows) {
    json.BeginArray();
    Add(json, row.page);
    Add(json, row.line).Value(row.bars_needed).EndArray();
  }
  json.EndArray();
}

void AddPurchase(JsonWriter& json, const std::vector<PurchaseLine>& purchase) {
  json.Name("purchase").BeginArray();
  for (const PurchaseLine& line : purchase) {
    json.BeginObject();
    AddSteel(json, line.steel);
    json.Field("stock", line.stock_mm).Field("planned", line.planned).Field("kept", line.kept);
    json.Field("bars", line.Bars()).Field("tableKg", Kilograms(line.table_weight)).Name("yen");
    if (line.yen) {
      AddUnits(json, *line.yen);
    } else {
      json.Null();
    }
    json.EndObject();
  }
  json.EndArray();
}

void AddRests(JsonWriter& json, const std::vector<UsableRest>& rests) {
  json.Name("rests").BeginArray();
  for (const UsableRest& rest : rests) {
    json.BeginObject();
    AddSteel(json, rest.steel);
    json.Field("length", rest.mm).Field("count", rest.count).EndObject();
  }
  json.EndArray();
}

void AddTally(JsonWriter& json, const std::optional<TallyFigures>& tally) {
  if (!tally) {
    json.Name("TotalStockWeight").Null().Name("TotalInstalledWeight").Null().Name("LossRatePercent").Null();
    return;
  }
  json.Field("TotalStockWeight", tally->stock_weight).Field("TotalInstalledWeight", tally->installed_weight);
  json.Field("LossRatePercent", tally->loss_rate_percent);
}

/// Leaves the object open.
void BeginFigures(JsonWriter& json, std::string_view name, const Figures& figures) {
  json.Name(name).BeginObject();
  AddTally(json, figures.tally);
  json.Field("bars", figures.bars).Field("steelKg", Kilograms(figures.steel_weight));
  json.Field("tableKg", Kilograms(figures.table_weight)).Field("lossPercent", figures.loss_percent);
  json.Field("cuts", figures.cuts);
}

void AddFigures(JsonWriter& json, const Outcome& outcome) {
  json.Name("figures").BeginObject();
  if (outcome.schedule) {
    BeginFigures(json, "schedule", *outcome.schedule);
    json.EndObject();
  } else {
    json.Name("schedule").Null();
  }
  BeginFigures(json, "perRow", outcome.per_row);
  json.EndObject();
  BeginFigures(json, "plan", outcome.plan.common);
  json.Field("patterns", outcome.plan.patterns).Field("lengths", outcome.plan.lengths);
  json.Field("usableKg", Kilograms(outcome.plan.usable_weight)).EndObject().EndObject();
}

void AddBound(JsonWriter& json, const OutcomeBound& bound) {
  json.Name("bound").BeginObject().Name("cost");
  AddUnits(json, bound.cost).Name("planCost");
  AddUnits(json, bound.plan_cost);
  AddPercent(json, "gapPercent", bound.gap_percent);
  AddPercent(json, "lossPercent", bound.loss_percent);
  json.EndObject();
}

void AddAdvice(JsonWriter& json, const Outcome& outcome) {
  if (outcome.options.advise == 0) return;
  json.Name("advice").BeginArray();
  for (const OutcomeAdvice& advice : outcome.advice) {
    json.BeginObject();
    AddSteel(json, advice.steel);
    json.Name("curve").BeginArray();
    for (const OutcomeAdvice::Point& point : advice.curve) {
      json.BeginObject().Field("count", point.count);
      AddNumbers(json, "lengths", point.lengths);
      json.Field("steelKg", Kilograms(point.steel_weight)).Field("lossPercent", point.loss_percent);
      json.EndObject();
    }
    json.EndArray().EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string PlanJson(const Outcome& outcome) {
  JsonWriter json(JsonWriter::Layout::entry_a_line);
  json.BeginObject().Field("kind", "plan").Field("stopped", StoppedName(outcome.stopped));
  AddOptions(json, outcome.options);
  json.Name("groups").BeginArray();
  for (const OutcomeGroup& group : outcome.groups) AddGroup(json, group);
  json.EndArray();
  AddRows(json, outcome);
  AddPurchase(json, outcome.purchase);
  AddRests(json, outcome.rests);
  AddFigures(json, outcome);
  AddBound(json, outcome.bound);
  AddAdvice(json, outcome);
  return json.EndObject().Text();
}

}  // namespace rbt::planning
