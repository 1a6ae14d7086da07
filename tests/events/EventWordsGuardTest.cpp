#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "events/EventSelection.h"
#include "forms/Form1.h"
#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/MainSession.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::FixtureRom;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Ranges = std::vector<ByteRange>;

constexpr std::uint32_t kScript = 0xB00000;

// A game whose chosen event's person points at a script that we lay out ourselves.
struct ScriptSession : test::MainSession {
  FixtureRom fixture;

  ScriptSession(std::string_view code, std::uint32_t person, const Bytes& script) : fixture(test::EventFixtureRom(code)) {
    fixture.PutLong(person + 16, kScript + 0x08000000).PutBytes(kScript, script);
    Open(fixture.path());
  }
  ~ScriptSession() { rom.Close(); }  // before the fixture goes: Windows deletes no file that is open
};

// The shape of the wild battles that the builders of this system write, and of Ruby's and
// Sapphire's own Rayquaza: lock, faceplayer, battle (species, level, item), cry (30 A1 and
// the species), end. The cry's species lies two bytes behind distance 8, where the opcode
// bytes 30 A1 stand.
Bytes BuilderBattle(std::uint16_t species, std::uint16_t crySpecies) {
  return {0x6A, 0x5A, 0xB6, static_cast<std::uint8_t>(species), static_cast<std::uint8_t>(species >> 8), 0x46,
          0x00, 0x00, 0x30, 0xA1, static_cast<std::uint8_t>(crySpecies), static_cast<std::uint8_t>(crySpecies >> 8),
          0x02};
}

TEST(EventWordsGuardTest, AWordThatIsNoSpeciesNumberIsLeftAsItIsAndTheSaveSaysSo) {
  ScriptSession s("AXVE", 0x38EE50, BuilderBattle(0x196, 0x196));
  s.PickEvent(1);  // Rayquaza
  EXPECT_EQ(s.form.Combo1.selected, 0x196);  // the first word is right and stays editable

  const ByteOracle oracle(s.fixture.path());
  SetCombo1Selection(s.form, 0x0AB);
  s.Save();

  EXPECT_EQ(oracle.Changes(), (Ranges{{kScript + 3, 2}}));
  const Bytes now = oracle.Now();
  EXPECT_THAT(Bytes(now.begin() + kScript, now.begin() + kScript + 13),
              ElementsAre(0x6A, 0x5A, 0xB6, 0xAB, 0x00, 0x46, 0x00, 0x00, 0x30, 0xA1, 0x96, 0x01, 0x02));
  EXPECT_THAT(s.dialogs.MessageTexts(),
              ElementsAre("The Cry word was left as it is: at &HB00008 stands &HA130, which is no species number "
                          "(&H0 to &H19B), and writing a species there would break the event's script. "
                          "The person record and the Pokemon word were saved."));
}

TEST(EventWordsGuardTest, MewtwosCryOneByteBehindItsPlaceIsLeftAsItIs) {
  // FireRed's Mewtwo: 0xA1 at distance 20, the species at 21 and at 41.
  Bytes script(43, 0x00);
  script[20] = 0xA1;
  script[21] = 0x96;
  script[41] = 0x96;
  ScriptSession s("BPRE", 0x3B177C, script);
  s.PickEvent(4);
  EXPECT_EQ(s.form.Combo1.selected, 0x96);

  const ByteOracle oracle(s.fixture.path());
  SetCombo1Selection(s.form, 0x0C2);
  s.Save();

  EXPECT_EQ(oracle.Changes(), (Ranges{{kScript + 41, 1}}));
  EXPECT_EQ(oracle.Now()[kScript + 41], 0xC2);
  EXPECT_THAT(s.dialogs.MessageTexts(),
              ElementsAre("The Cry word was left as it is: at &HB00014 stands &H96A1, which is no species number "
                          "(&H0 to &H19B), and writing a species there would break the event's script. "
                          "The person record and the Pokemon word were saved."));
}

TEST(EventWordsGuardTest, SpeciesNumbersAtBothPlacesAreWrittenAsAlwaysWithNoMessage) {
  Bytes script(13, 0xFF);
  script[3] = 0x19;  // first word 0x0019
  script[4] = 0x00;
  script[8] = 0x9B;  // second word 0x019B, the last species
  script[9] = 0x01;
  ScriptSession s("AXPE", 0x38EDE0, script);
  s.PickEvent(1);

  const ByteOracle oracle(s.fixture.path());
  SetCombo1Selection(s.form, 0x0AB);
  s.Save();

  EXPECT_EQ(oracle.Changes(), (Ranges{{kScript + 3, 1}, {kScript + 8, 2}}));
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
}

TEST(EventWordsGuardTest, BothWordsLeftAloneAreNamedInOneMessage) {
  ScriptSession s("AXVE", 0x38EE50, BuilderBattle(0x196, 0x196));
  s.PickEvent(1);
  s.form.scriptpointxt.text = "&HB00100";  // nothing but 0xFF there
  const ByteOracle oracle(s.fixture.path());
  s.Save();
  EXPECT_THAT(oracle.Changes(), IsEmpty());
  EXPECT_THAT(s.dialogs.MessageTexts(),
              ElementsAre("The Pokemon and Cry words were left as they are: at &HB00103 stands &HFFFF and at "
                          "&HB00108 stands &HFFFF, which are no species numbers (&H0 to &H19B), and writing a "
                          "species there would break the event's script. The person record was saved."));
}

TEST(EventWordsGuardTest, AWordThatRunsPastTheEndOfTheFileIsLeftAlone) {
  // A script whose cry word would be the last byte of the file and one byte behind it.
  constexpr std::uint32_t kNearEnd = test::FixtureRom::kSize - 9;
  FixtureRom fixture = test::EventFixtureRom("AXVE");
  fixture.PutLong(0x38EE50 + 16, kNearEnd + 0x08000000).PutBytes(kNearEnd, {0x6A, 0x5A, 0xB6, 0x96, 0x01, 0x46, 0x00, 0x00, 0x05});
  test::MainSession s;
  s.Open(fixture.path());
  s.PickEvent(1);
  const ByteOracle oracle(fixture.path());
  SetCombo1Selection(s.form, 0x0AB);
  s.Save();
  EXPECT_EQ(oracle.Changes(), (Ranges{{kNearEnd + 3, 2}}));  // the file keeps its size
  EXPECT_THAT(s.dialogs.MessageTexts(),
              ElementsAre("The Cry word was left as it is: at &HFFFFFF stands the end of the ROM, which is no "
                          "species number (&H0 to &H19B), and writing a species there would break the event's "
                          "script. The person record and the Pokemon word were saved."));
}

}  // namespace
}  // namespace tessarine
