// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace rbt::test {

/// Runs in a child process, so that it can lose rights or be killed; true when it returned true.
bool InChild(const std::function<bool()>& action);

/// Runs an action in a child process that is killed right before its `n`th system call, from 1 on, that
/// changes a file or a folder. False when the action came to its end before: it makes fewer. What a kill at
/// any moment may leave is met by counting `n` up until then.
bool KilledBeforeChange(int n, const std::function<void()>& action);

/// Runs an action in a child process; before its `n`th such call `meddle` happens here, as if another program
/// did it. Throws when the action makes fewer, or does not come to its end.
void MeddleBeforeChange(int n, const std::function<void()>& action, const std::function<void()>& meddle);

/// How an action ended whose system call was made to fail.
enum class Ending {
  too_few_calls,  ///< it makes fewer
  well,           ///< it returned true
  fault,          ///< it threw, with a text
  wrong,          ///< it returned false
  crash,          ///< a signal, an exception without a text
};
/// Runs an action in a child process in which its `n`th system call, from 1 on, that has to do with files
/// fails: for want of space where it writes, else as from a broken disk. Not on every kind of machine, see
/// `CanFailCalls`.
Ending WithFailingCall(int n, const std::function<bool()>& action);
bool CanFailCalls();
/// How far apart the calls stand that a test lets fail: `usual`, or 1 where RBTALLY_STRESS is "full".
int FailingCallStep(int usual);

/// From now on the file system of this process, which is to be a child, gives no file a second name: as where
/// it knows none, or where the file is another user's.
void ForbidHardLinks();

/// Runs an action in a child process in which no file may grow beyond a size: a full disk. True when it came
/// to its end and no expectation failed.
bool WithFilesOfAtMost(std::uint64_t bytes, const std::function<void()>& action);

}  // namespace rbt::test
