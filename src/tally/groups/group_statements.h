// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "tally/schedule_positions.h"
#include "tally/selection.h"

namespace rbt {

/// The two statements of a tally by groups. Neither has its closing clause yet.
struct GroupStatements {
  std::string main;  ///< pieces by diameter, weld diameter, shape, length, dimensions and stock
  std::string cuts;  ///< cuts by part, diameter and weld diameter
};

/// What closes a main statement and a cut statement.
inline constexpr std::string_view kGroupByPieces = " GROUP BY 太さ,圧接太さ,形状No,伸切寸,予備5,伸定尺 ";
inline constexpr std::string_view kGroupByPartAndWeld =
    " AND (部位=5 OR 部位=2) GROUP BY 部位,太さ,圧接太さ ";

/// Rows of the shape tally, and of the shape by page and line tally.
std::string ShapeRows(const SelectionData& selection);
std::string PageShapeRows(LineRange lines);

/// The shape tally: shapes `ShapeStart` to `ShapeEnd` of the selection.
std::string ShapeUlbonStatement(const SelectionData& selection);
/// The rows of the range and the kinds, for the presence probes.
std::string ShapeProbeStatement(const SelectionData& selection);
inline constexpr std::string_view kShapeHoopProbe = " AND 形状No = 87 AND Not IsNull(形状No) ";
/// Without hoops in the range the cut statement has no range: it counts the cuts of all shapes.
GroupStatements ShapeStatements(const SelectionData& selection, bool has_hoop_rows,
                                bool has_anchor_plate_rows);

/// The shape by page and line tally: a range of lines. Ulbon knows the hoop mode alone.
std::string PageShapeUlbonStatement(const SelectionData& selection, LineRange lines);
/// Before the plate mode, as the presence probes ask it.
GroupStatements PageShapeStatementsSoFar(const SelectionData& selection, LineRange lines);
GroupStatements PageShapeStatements(const SelectionData& selection, LineRange lines);
inline constexpr std::string_view kPageShapeHoopProbe = " AND 形状No=87";
/// A row without shape counts as one with a plate here, and nowhere else.
inline constexpr std::string_view kPageShapePlateProbe =
    " AND (IsNull(形状No) OR 形状No=0 or  形状No=138 OR 形状No=140 OR (形状No Between 143 And 147) OR "
    "形状No=161 OR (形状No Between 164 And 169) OR (形状No Between 175 And 176))";

}  // namespace rbt
