// SPDX-License-Identifier: MIT
#include <filesystem>

#include "work.h"

namespace rbt::bench {

namespace {

/// A program and the site that it works on.
struct Program {
  const DemoSite& site;
  std::string file;

  Command OnSite(const std::vector<std::string>& words) const {
    Command command{file};
    command.insert(command.end(), words.begin(), words.end());
    command.insert(command.end(), {"--root", site.Root().string()});
    return command;
  }
};

/// A command on the site as it stands when it has been prepared and the command has run before.
Work Prepared(std::string_view name, const Program& program, const std::vector<std::string>& words) {
  const Command command = program.OnSite(words);
  const Command prepare = program.OnSite({"prepare"});
  return {.name = name,
          .begin =
              [prepare, command, site = program.site] {
                CostOf({prepare});
                site.AwaitSettled();
                CostOf({command});
              },
          .run = [command] { return CostOf({command}); },
          .counted = command};
}

Work TwoAtOnce(const Program& program) {
  Work work = Prepared("two bulk tallies at once, cold", program, {"tally", "bulk"});
  const Command command = work.counted;
  work.run = [command] { return CostOf({command, command}); };
  work.counted.clear();
  return work;
}

Work Fresh(const Program& program) {
  const Command command = program.OnSite({"prepare"});
  return {.name = "fresh site prepared, cold",
          .ready = [site = program.site] { site.MakeFresh(); },
          .run = [command] { return CostOf({command}); },
          .counted = command};
}

#ifdef RBTALLY_STORE_TO_JET
Work Import(const Program& program) {
  const DemoSite& site = program.site;
  const std::filesystem::path jet = site.Root() / "site.jet";
  const std::filesystem::path target = site.Root() / "imported.MDB";
  const Command command{program.file, "import", jet, target};
  return {.name = "import of a Jet file, cold",
          .begin =
              [site, jet] {
                CostOf({Command{RBTALLY_STORE_TO_JET, "4", site.Schedule(), jet}});
              },
          .ready = [target] { std::filesystem::remove(target); },
          .run = [command] { return CostOf({command}); },
          .counted = command};
}
#endif

}  // namespace

std::vector<Work> ColdWorks(const DemoSite& site, const std::string& program_file) {
  const Program program{site, program_file};
  const Command version{program_file, "--version"};
  std::vector<Work> works{
      {.name = "start and end, cold", .run = [version] { return CostOf({version}); }, .counted = version}};
  for (const auto& [name, kind] :
       std::initializer_list<std::pair<std::string_view, const char*>>{{"bulk tally, cold", "bulk"},
                                                                       {"shape tally, cold", "shape"},
                                                                       {"floor tally, cold", "floor"},
                                                                       {"part tally, cold", "part"}}) {
    works.push_back(Prepared(name, program, {"tally", kind}));
  }
  works.push_back(TwoAtOnce(program));
  works.push_back(Prepared("report, cold", program,
                           {"report", "taihi-a-a4t", "--force", "-o", (site.Root() / "sheet.pdf").string()}));
  works.push_back(Fresh(program));
#ifdef RBTALLY_STORE_TO_JET
  // The writer of the tests, which makes the file, is no fast one.
  constexpr std::int64_t kMostRows = 100'000;
  if (site.Rows() <= kMostRows) works.push_back(Import(program));
#endif
  return works;
}

}  // namespace rbt::bench
