// SPDX-License-Identifier: MIT
#include <filesystem>
#include <thread>
#include <vector>

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

/// The site once more, its databases real Jet files that are read where they are.
class JetRoot {
 public:
  explicit JetRoot(const DemoSite& site) : site_(site), root_(site.Root().string() + "-jet") {}

  const std::filesystem::path& Path() const { return root_; }
  void Make() const {
    if (std::filesystem::exists(root_)) return;
    std::filesystem::create_directories(Data());
    for (const auto& entry : std::filesystem::directory_iterator(site_.Root() / "DATA")) {
      const std::filesystem::path target = Data() / entry.path().filename();
      const std::string kind = entry.path().extension().string();
      if (kind == ".MDB" || kind == ".mdb") {
        CostOf({Command{RBTALLY_STORE_TO_JET, "4", entry.path(), target}});
      } else {
        std::filesystem::copy_file(entry.path(), target);
      }
    }
  }
  /// As it stands before the program has met it.
  void Forget() const {
    std::vector<std::filesystem::path> copies;
    for (const auto& entry : std::filesystem::directory_iterator(Data())) {
      if (entry.path().filename().string().find(".work") != std::string::npos) copies.push_back(entry.path());
    }
    for (const std::filesystem::path& copy : copies) std::filesystem::remove(copy);
  }

 private:
  std::filesystem::path Data() const { return root_ / "DATA"; }

  DemoSite site_;
  std::filesystem::path root_;
};

Command BulkTally(const Program& program, const JetRoot& root) {
  return {program.file, "tally", "bulk", "--root", root.Path().string()};
}

/// From the first sight of the files to the figures.
Work FirstReadingInPlace(const Program& program) {
  const JetRoot root(program.site);
  const Command command = BulkTally(program, root);
  return {.name = "Jet site in place, first, cold",
          .begin = [root] { root.Make(); },
          .ready = [root] { root.Forget(); },
          .run = [command] { return CostOf({command}); },
          .counted = command};
}

Work LaterReadingInPlace(const Program& program) {
  const JetRoot root(program.site);
  const Command command = BulkTally(program, root);
  return {.name = "Jet site in place, later, cold",
          .begin =
              [root, command] {
                root.Make();
                CostOf({command});
                // What is known of a file that was just written is looked at once more.
                std::this_thread::sleep_for(DemoSite::kSettlingTime);
                CostOf({command});
                CostOf({command});
              },
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
  if (site.Rows() <= kMostRows) {
    works.push_back(Import(program));
    works.push_back(FirstReadingInPlace(program));
    works.push_back(LaterReadingInPlace(program));
  }
#endif
  return works;
}

}  // namespace rbt::bench
