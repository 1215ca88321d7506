// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>

namespace rbt {

/// A fault, or a plan that is refused, as the user is told of it: the file that it names, what is wrong, what
/// to do; below an empty line its own text, for those who look after the programs.
std::string FaultWords(const std::exception& fault);

/// True for a fault that came of a file which another program holds.
bool IsOfLock(const std::exception& fault);
/// True for the end of work that its user has stopped.
bool IsOfStop(const std::exception& fault);

}  // namespace rbt
