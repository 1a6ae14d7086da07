#include "shell/ScriptForms.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/OpenRom.h"
#include "shell/Session.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::FixtureRom;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t kSapphireItems = 0x3C55BC;
constexpr std::size_t kFireRedItems = 0x3DB028;

struct Opened {
  Session session;
  test::ScriptedDialogs dialogs;
  void Open(const std::string& path) {
    dialogs.openFileAnswers.push_back(path);
    OpenRom(session.form1, session.rom, dialogs);
  }
  std::string Item(int row) { return RequireForm5Loaded(session).at(static_cast<std::size_t>(row)); }
};

TEST(ScriptFormsTest, TheItemListIsReadFromTheRomThatIsOpenAndOnlyWhenItIsNeeded) {
  FixtureRom sapphire = FixtureRom::Sapphire();
  sapphire.PutName(kSapphireItems, "Ball", 14)
      .PutName(kSapphireItems + 44, "Potion", 14)
      .PutName(kSapphireItems + 255 * 44, "Berry", 14)
      .PutName(kSapphireItems + 346 * 44, "Abcdefghijklmn", 14);  // fills its field: loses its last letter
  FixtureRom fireRed = FixtureRom::FireRed();
  fireRed.PutName(kFireRedItems + 44, "Elixir", 14);

  Opened s;
  s.Open(sapphire.path());
  const std::vector<std::string>& rows = RequireForm5Loaded(s.session);
  ASSERT_EQ(rows.size(), 347u);
  EXPECT_EQ(rows[0], "000 - Ball");
  EXPECT_EQ(rows[1], "001 - Potion");
  EXPECT_EQ(rows[255], "0FF - Berry");
  EXPECT_EQ(rows[346], "15A - Abcdefghijklm");
  EXPECT_EQ(s.session.form1.itemRecords, "&H3C55BC");
  EXPECT_EQ(s.session.form5.Label7.caption, "&H3C55BC");

  s.session.form5.pkmntxt.text = "&H5";  // typed into a Form5 that stands on the screen
  s.Open(fireRed.path());
  EXPECT_EQ(s.Item(1), "001 - Elixir");
  EXPECT_EQ(s.session.form1.itemRecords, "&H3DB028");
  EXPECT_EQ(s.session.form5.Combo1.rows, s.session.form1.Combo1.rows);
  EXPECT_EQ(s.session.form5.pkmntxt.text, "&H5");

  s.session.rom.WriteBytes(kFireRedItems + 44, Bytes{0xBF, 0xE8, 0xDC, 0xD9, 0xE6, 0xFF});  // renamed "Ether"
  EXPECT_EQ(s.Item(1), "001 - Elixir");  // Form5 stays loaded, its list as read
  UnloadForm5(s.session);
  LoadForm3(s.session);
  LoadForm4(s.session);
  EXPECT_EQ(s.session.form3.Combo2.rows.at(1), "001 - Ether");
  EXPECT_EQ(s.session.form4.Combo2.rows.at(1), "001 - Ether");
  EXPECT_EQ(s.session.form3.Combo1.text, "Select a Pokemon");

  s.Open("");  // cancelled: no ROM open, no list
  EXPECT_THAT(RequireForm5Loaded(s.session), IsEmpty());
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
}

TEST(ScriptFormsTest, AnUnknownGameWithNoItemOffsetHasAnEmptyListAndNoMessage) {
  FixtureRom emerald = FixtureRom::Emerald();
  Opened s;
  s.Open(emerald.path());
  LoadForm5(s.session);
  EXPECT_THAT(s.session.form5.Combo2.rows, IsEmpty());
  EXPECT_THAT(s.dialogs.MessageTexts(), ElementsAre("Unsupported ROM"));
}

}  // namespace
}  // namespace tessarine
