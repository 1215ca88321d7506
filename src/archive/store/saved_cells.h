// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "archive/store/archive_row.h"
#include "shell/context/reference_names.h"
#include "tally/diameter_figures.h"

namespace rbt {

/// True when a field that is kept is not 0; the 13.0 m column is kept where it is in use.
bool HasFigures(const DiameterFigures& cells, bool with_13m);

/// The fields from 3500mm to 切断.
void PutCells(ArchiveRow& row, const DiameterFigures& cells, bool with_13m);
/// Reads them.
class CellReader {
 public:
  CellReader(const Recordset& rows, bool with_13m);
  DiameterFigures Read() const;

 private:
  std::vector<ArchiveField> bars_;
  std::vector<ArchiveField> weights_;
  ArchiveField stock_, installed_, welds_, threads_, plates_, cuts_;
};

/// The masks of a tally as its rows hold them.
struct RowMasks {
  std::int32_t kinds = 0;  ///< 材質
  std::int32_t forms = 0;  ///< 材料
};

/// The fields 太さ, SD, メーカー, 材質, 材質タイプ, 材料 of a diameter row (0 to 17). Thin bars have neither
/// grade nor maker.
void PutDiameter(ArchiveRow& row, int diameter_row, const BarOrigins& supply, const RowMasks& masks);

/// Reads of which bars a row is.
class MaterialReader {
 public:
  explicit MaterialReader(const Recordset& rows);
  RowMasks Masks() const { return {kinds_.Count(), forms_.Count()}; }
  /// Faults: `subscript out of range` for a diameter that is none.
  int DiameterRow() const;

 private:
  ArchiveField diameter_, type_, kinds_, forms_;
};

/// 部位１ to 部位１１.
std::string PartField(int part);
/// The part (1 to 11) that a field holds. Faults: `subscript out of range`.
int PartIn(const ArchiveField& field);

/// 材質タイプ: deformed or thin.
inline constexpr std::int32_t kDeformedType = 1;
inline constexpr std::int32_t kThinType = 2;

}  // namespace rbt
