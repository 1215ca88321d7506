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
#include "store/database_file.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPdfMark = "%PDF-";
constexpr std::string_view kTraceMark = "document\t";

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

bool IsOfKind(const OutputFile& output, std::string_view first_bytes) {
  switch (output.kind) {
    case OutputKind::pdf:
      return first_bytes.starts_with(kPdfMark);
    case OutputKind::trace:
      return first_bytes.starts_with(kTraceMark);
    case OutputKind::csv:
      return EqualIgnoringCase(output.path.extension().string(), ".csv") &&
             first_bytes.find('\0') == std::string_view::npos;
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
