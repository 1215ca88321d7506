// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

class QWidget;

namespace rbt {

/// Asks for an existing CSV file, beginning with the one named, or where the user keeps documents. Nothing
/// when the user turns back.
std::optional<std::string> AskCsvFile(QWidget& form, const std::string& named);

}  // namespace rbt
