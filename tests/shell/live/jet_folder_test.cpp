// SPDX-License-Identifier: MIT
#include "shell/live/jet_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/live/live_site.h"
#include "support/looking_only.h"

namespace rbt::test {
namespace {

using ::testing::ElementsAre;

class JetFolder : public testing::Test {
 protected:
  std::filesystem::path Data() const { return site.Root() / "DATA"; }

  LiveSite site;
};

TEST_F(JetFolder, NamesTheJetFilesAmongThoseOfTheFamily) {
  site.PutJet(1);
  Database::CreateDatabase(site.Data("SORANO.MDB"));
  EXPECT_THAT(
      JetFilesAmong({"\\RBK\\DATA\\genba001.mdb", "\\RBK\\DATA\\SORANO.MDB", "\\RBK\\DATA\\none.MDB"}),
      ElementsAre(site.File()));
}

TEST_F(JetFolder, RemembersTheAnswerForAFolder) {
  EXPECT_EQ(RememberedJetChoice(Data()), std::nullopt);
  RememberJetChoice(Data(), JetChoice::read_in_place);
  EXPECT_EQ(RememberedJetChoice(Data()), JetChoice::read_in_place);
  RememberJetChoice(Data(), JetChoice::import);
  EXPECT_EQ(RememberedJetChoice(Data()), JetChoice::import);
  std::filesystem::create_directory_symlink(Data(), site.Root() / "LINK");
  EXPECT_EQ(RememberedJetChoice(site.Root() / "LINK"), JetChoice::import);
  EXPECT_EQ(RememberedJetChoice(site.Root().Path()), std::nullopt);
}

TEST_F(JetFolder, RemembersForAFileThatItsReadingWasTold) {
  site.PutJet(1);
  EXPECT_FALSE(WasToldOfReading(site.File()));
  NoteToldOfReading(site.File());
  EXPECT_TRUE(WasToldOfReading(site.File()));
  EXPECT_FALSE(WasToldOfReading(site.Data("GENBA002.MDB")));
}

TEST_F(JetFolder, WithoutRightToTheSettingsAsksAgain) {
  const LookingOnly looking({site.Root().SettingsFile().parent_path()});
  RememberJetChoice(Data(), JetChoice::import);
  EXPECT_EQ(RememberedJetChoice(Data()), std::nullopt);
}

}  // namespace
}  // namespace rbt::test
