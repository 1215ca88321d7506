// SPDX-License-Identifier: MIT
#include "shell/output/output_files.h"

#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"
#include "store/database_file.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPdfMark = "%PDF-";
constexpr std::string_view kTraceMark = "document\t";
/// The first line of a CSV file: it begins with the site, or goes on so behind the name of a floor.
constexpr std::string_view kCsvSiteHead = "\"工事No\",";
constexpr std::string_view kCsvFloorHead = "\",\"部位\",\"D10\",";

/// Where a file stands or would stand, links resolved.
fs::path Resolved(const fs::path& file) {
  std::error_code error;
  fs::path resolved = fs::weakly_canonical(fs::absolute(file), error);
  if (error) throw FileFault(file, "cannot be written", error.value());
  return resolved;
}

std::string FirstBytes(const fs::path& file) {
  constexpr std::streamsize kEnough = 4096;
  std::string bytes(kEnough, '\0');
  std::ifstream in(file, std::ios::binary);
  in.read(bytes.data(), kEnough);
  if (in.bad() || !in.is_open()) throw FileFault(file, "cannot be read");
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

bool BeginsAsCsv(std::string_view first_bytes) {
  const std::string_view line = first_bytes.substr(0, first_bytes.find("\r\n"));
  if (line.starts_with(ToCp932(kCsvSiteHead))) return true;
  return line.starts_with('"') && line.find(ToCp932(kCsvFloorHead)) != std::string_view::npos;
}

bool IsText(std::string_view bytes) { return bytes.find('\0') == std::string_view::npos; }

bool IsOfKind(const OutputFile& output, std::string_view first_bytes) {
  switch (output.kind) {
    case OutputKind::pdf:
      return first_bytes.starts_with(kPdfMark);
    case OutputKind::trace:
      return first_bytes.starts_with(kTraceMark);
    case OutputKind::csv:
      return BeginsAsCsv(first_bytes) ||
             (EqualIgnoringCase(output.path.extension().string(), ".csv") && IsText(first_bytes));
  }
  return false;
}

}  // namespace

void RequireOutputPlace(const fs::path& file) {
  const fs::path resolved = Resolved(file);
  if (!Root().empty() && LiesIn(Resolved(MapPath("\\RBK\\DATA")), resolved)) {
    throw FileFaultText(file, "lies in the folder of the databases, where no result is written");
  }
  if (BeginsAsDatabase(resolved)) throw FileFaultText(file, "is a database and is not overwritten");
}

bool ReplacesAnotherKind(const OutputFile& output) {
  std::error_code error;
  const fs::path resolved = Resolved(output.path);
  // What is no file is refused by whoever writes it.
  if (!fs::is_regular_file(resolved, error) || fs::file_size(resolved, error) == 0) return false;
  return !IsOfKind(output, FirstBytes(resolved));
}

std::optional<std::pair<std::size_t, std::size_t>> NamedTwice(std::span<const OutputFile> outputs) {
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      std::error_code not_there;
      if (fs::equivalent(outputs[i].path, outputs[k].path, not_there) ||
          Resolved(outputs[i].path) == Resolved(outputs[k].path)) {
        return std::pair(k, i);
      }
    }
  }
  return std::nullopt;
}

}  // namespace rbt
