// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace rbt {

/// What is told of work that goes on.
struct WorkNews {
  bool may_stop = true;   ///< false while it must come to its end
  std::int64_t page = 0;  ///< the one that is drawn, from 1; 0: the work has no pages
};

/// Told now and then, about every millisecond, that work goes on; true when the user wants it stopped.
using WorkHook = std::function<bool(const WorkNews& news)>;
/// That of the command line, whose user ends the program.
bool WorkOn(const WorkNews& news);

/// Tells that work goes on. True when the user wants it stopped, never while it must come to its end: it
/// then ends by a fault of kind `stopped`.
bool StopAsked(const WorkNews& news = {});
/// The same before a page is drawn, counted from 1; throws that fault.
void NotePage(std::int64_t page);

/// How many steps of a statement lie between two news of it.
int WorkPace();

/// As long as it lives work must come to its end: what it does cannot be taken back. One inside another
/// changes nothing.
class MustFinish {
 public:
  /// Tells so.
  MustFinish();
  MustFinish(const MustFinish&) = delete;
  MustFinish& operator=(const MustFinish&) = delete;
  ~MustFinish();
};

}  // namespace rbt
