// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>

#include "platform/date_time.h"
#include "platform/print/pdf_writer.h"
#include "platform/print/printer_list.h"
#include "platform/system/clock.h"
#include "platform/system/colour_choice.h"
#include "platform/system/long_reading.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "platform/system/patience.h"
#include "platform/system/process.h"
#include "platform/system/work.h"

namespace rbt {

/// What comes from outside and what tests replace. A program's main puts here what it has in place of the
/// defaults, tests put what they script; nobody else includes this header. Everybody goes through the doors
/// named here.
struct ServicesData {
  /// `Root()`, `MapPath()`: the folder that `\RBK\` stands for; empty: nobody has said.
  std::filesystem::path Root = RootOfEnvironment();
  /// `FamilyDirectory()`: where siblings start, as `ChangeFamilyDirectory` has last said.
  std::optional<std::filesystem::path> FamilyDirectory;
  /// `Now()`.
  std::function<DateTime()> Clock = SystemClock;
  /// `MsgBox()`.
  MessageHandler Messages = TellOnStandardError;
  /// `LockWait`: how long a file is waited for that another program holds, who is asked whether to wait on,
  /// and who is told of each pause.
  std::chrono::milliseconds LockPatience{10'000};
  LockQuestion WaitOn = GiveUpWaiting;
  WaitHook OnWait = [] {};
  /// `StopAsked()`, `NotePage()`: who is told that work goes on and may stop it; how many `MustFinish` live.
  WorkHook OnWork = WorkOn;
  int WorkThatMustFinish = 0;
  /// `WorkPace()`: about a millisecond of work.
  int WorkPace = 100'000;
  /// `TellOfLongReading()`.
  LongReadingHook OnLongReading = TellLongReadingOnStandardError;
  /// `StatementLimit()`.
  std::chrono::milliseconds StatementLimit{600'000};
  /// `ChooseColour()`: without a desktop nothing is chosen.
  ColourChooser Colours = ChooseNoColour;
  /// `OwnProgram()`: the folder of this program and of those that are installed with it; empty: none are.
  std::filesystem::path ProgramFolder;
  /// `RunAndWait()`, `RunAndWaitPoll()`.
  Launcher Launch = LaunchProgram;
  /// `RunPendingEvents()`: without windows there are none.
  std::function<void()> PendingEvents = [] {};
  /// `Printers()`: at first the PDF device alone, whose documents have nowhere to go: delivering one throws
  /// `file`.
  PrinterList Printers = PdfDeviceWithoutDestination();
  /// `RefreshPrinters()`: tells which printers there are now; empty: the list stays as it is. It is not asked
  /// before, so that a start never waits for a print server.
  PrinterSource FindPrinters;
  /// `WritePdf()`; empty: nothing can paint.
  PdfWriter PaintPdf;
};

extern ServicesData Services;

}  // namespace rbt
