#include "editors/Form2.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/MainSession.h"

namespace tessarine {
namespace {

using test::ByteOracle;

// The game opened and the form loaded, rows picked; then another tool writes AA AA over the
// three words, so that the oracle sees every word that "Save" writes.
TEST(Form2Test, SaveWritesTheRowOfEachListAtTheGamesPlaces) {
  struct Case {
    GameIdentity game;
    std::array<RomOffset, 3> at;
    std::array<std::uint16_t, 3> stored;
    std::array<int, 3> shown;                // rows chosen by the load; -1: the number has no row
    std::vector<std::pair<int, int>> picks;  // ball, row
    std::vector<test::ByteRange> changes;
    std::string written;  // the three words after the save
    std::vector<std::string> told{"Saved"};
  };
  const std::string noRow = ", which has no row in the list (the last is &H19B). Its list shows no choice, and ";
  const Case cases[] = {
      {{"AXVE", 0}, {0x3F76C4, 0x3F76C6, 0x3F76C8}, {0x115, 0x118, 0x11B}, {277, 280, 283}, {}, {{0x3F76C4, 6}},
       "15 01 18 01 1B 01"},
      {{"AXVE", 2}, {0x3F76E0, 0x3F76E2, 0x3F76E4}, {0x115, 0x118, 0x11B}, {277, 280, 283}, {}, {{0x3F76E0, 6}},
       "15 01 18 01 1B 01"},
      {{"AXPE", 1}, {0x3F773C, 0x3F773E, 0x3F7740}, {1, 2, 3}, {1, 2, 3}, {}, {{0x3F773C, 6}}, "01 00 02 00 03 00"},
      {{"BPRE", 0}, {0x169BB5, 0x169D82, 0x169DB8}, {1, 4, 7}, {1, 4, 7}, {},
       {{0x169BB5, 2}, {0x169D82, 2}, {0x169DB8, 2}}, "01 00 04 00 07 00"},
      {{"BPRE", 1}, {0x169C2D, 0x169DFA, 0x169E30}, {1, 4, 7}, {1, 4, 7}, {},
       {{0x169C2D, 2}, {0x169DFA, 2}, {0x169E30, 2}}, "01 00 04 00 07 00"},
      {{"BPGE", 1}, {0x169C09, 0x169DD6, 0x169E0C}, {1, 4, 7}, {1, 4, 7}, {},
       {{0x169C09, 2}, {0x169DD6, 2}, {0x169E0C, 2}}, "01 00 04 00 07 00"},
      {{"BPGE", 0}, {0x169B91, 0x169D5E, 0x169D94}, {0x19B, 0, 0x100}, {411, 0, 256}, {{0, 0}},
       {{0x169B91, 2}, {0x169D5E, 2}, {0x169D94, 2}}, "00 00 00 00 00 01"},
      {{"AXPE", 0}, {0x3F771C, 0x3F771E, 0x3F7720}, {0x1F4, 2, 0xFFFF}, {-1, 2, -1}, {{2, 5}}, {{0x3F771C, 6}},
       "F4 01 02 00 05 00",
       {"Ball 1 holds species &H1F4" + noRow + "\"Save\" writes &H1F4 back unless you choose a row for it.\nBall 3 "
        "holds species &HFFFF" + noRow + "\"Save\" writes &HFFFF back unless you choose a row for it.", "Saved"}},
      {{"BPEJ", 0}, {0x590C08, 0x590C0A, 0x590C0C}, {0x115, 0x118, 0x11B}, {277, 280, 283}, {}, {{0x590C08, 6}},
       "15 01 18 01 1B 01"},
      {{"BPEE", 0}, {0x5B1DF8, 0x5B1DFA, 0x5B1DFC}, {0x115, 0x118, 0x11B}, {277, 280, 283}, {{1, 0x19B}},
       {{0x5B1DF8, 6}}, "15 01 9B 01 1B 01"},
      {{"ABCD", 0}, {0x3F76C4, 0x3F76C6, 0x3F76C8}, {1, 2, 3}, {0, 0, 0}, {}, {}, "AA AA AA AA AA AA", {}},
      {{"AXVE", 3}, {0x3F76C4, 0x3F76C6, 0x3F76C8}, {1, 2, 3}, {0, 0, 0}, {}, {}, "AA AA AA AA AA AA", {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(ShownIdentity(c.game));
    test::FixtureRom fixture(c.game.code, test::FixtureRom::kSize, c.game.revision);
    for (int i = 0; i < 3; ++i) fixture.PutWord(c.at[i], c.stored[i]);
    test::MainSession s;
    s.Open(fixture.path());
    s.dialogs.messages.clear();
    Form2 form;
    LoadForm2(form, s.form, s.rom, s.dialogs);
    EXPECT_EQ((std::array{form.Combo1.selected, form.Combo2.selected, form.Combo3.selected}), c.shown);
    void (*const pick[])(Form2&, int) = {SetCombo1Selection, SetCombo2Selection, SetCombo3Selection};
    for (const auto& [ball, row] : c.picks) pick[ball](form, row);
    for (const RomOffset at : c.at) s.rom.WriteWord(at, std::int16_t(0xAAAA));
    const ByteOracle oracle(fixture.path());
    PressSave(form, s.form, s.rom, s.dialogs);

    EXPECT_EQ(oracle.Changes(), c.changes);
    const Bytes now = oracle.Now();
    Bytes words;
    for (const RomOffset at : c.at) words.insert(words.end(), now.begin() + at, now.begin() + at + 2);
    EXPECT_EQ(test::ToHex(words), c.written);
    EXPECT_EQ(s.dialogs.MessageTexts(), c.told);
  }
}

// "Reload" reads the starters again; "Save" refuses lists that were read before the last Open ROM.
TEST(Form2Test, ReloadShowsAnotherToolsWriteAndSaveRefusesListsOfTheRomBefore) {
  test::FixtureRom ruby = test::FixtureRom::Ruby(), sapphire = test::FixtureRom::Sapphire();
  test::MainSession s;
  s.Open(ruby.path());
  Form2 form;
  LoadForm2(form, s.form, s.rom, s.dialogs);
  s.rom.WriteWord(0x3F76C6, 0x19);
  LoadForm2(form, s.form, s.rom, s.dialogs);
  EXPECT_EQ(form.Combo2.selected, 0x19);

  s.Open(sapphire.path());
  const test::ByteOracle oracle(sapphire.path());
  EXPECT_EQ(test::FailureOf([&] { PressSave(form, s.form, s.rom, s.dialogs); }),
            "The lists hold no starters read from the ROM that is open now: they were filled before the last Open "
            "ROM, or their last read failed. Press \"Reload\" to read the starters of the ROM that is open now. "
            "Nothing was written.");
  EXPECT_THAT(oracle.Changes(), ::testing::IsEmpty());
}

}  // namespace
}  // namespace tessarine
