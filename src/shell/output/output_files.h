// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <utility>

namespace rbt {

/// What a file that the user names is to hold. Each kind is told by its first bytes; for a CSV file any text
/// passes under a name that ends in .csv.
enum class OutputKind { pdf, trace, csv };

struct OutputFile {
  std::filesystem::path path;
  OutputKind kind = OutputKind::pdf;
};

/// Throws `file` for a name under which nothing of ours may be written, whatever the user says: a database's,
/// the store's or a real Jet one, and anything in the root's DATA, links resolved.
void RequireOutputPlace(const std::filesystem::path& file);
/// True where a file of another kind stands under the name; the user is asked before it goes.
bool ReplacesAnotherKind(const OutputFile& output);
/// The places of two of the files that are one, by whatever names; nothing when all differ.
std::optional<std::pair<std::size_t, std::size_t>> NamedTwice(std::span<const OutputFile> outputs);

}  // namespace rbt
