#include "editors/Form2.h"

#include "support/Tests.h"

namespace tessarine {
namespace {

// The game opened and the form loaded, rows picked; then another tool writes AA AA over the three words, so that the
// oracle sees every word that "Save" writes. Each game and revision has its starters at its own places; Japanese
// Emerald is known to this editor, a revision with no known tables is not.
TEST(Form2Test, SaveWritesTheRowOfEachListAtTheGamesPlaces) {
  // The game; the places of the three words and what they hold; the rows the load picks (-1: the number has no row);
  // the picks (ball, row); the three words after the save; what is said.
  using Case = std::tuple<GameIdentity, std::array<std::uint32_t, 3>, std::array<std::uint16_t, 3>, std::array<int, 3>,
                          std::vector<std::pair<int, int>>, std::string, std::vector<std::string>>;
  std::vector<Case> cases;
  for (const GameIdentity& game : test::AllGames()) {
    cases.push_back({game, test::OffsetsOf(game).starters, {0x115, 0x118, 0x11B}, {277, 280, 283}, {{1, 0x19}},
                     "15 01 19 00 1B 01", {"Saved"}});
  }
  const std::string noRow = ", which has no row in the list (the last is &H19B). Its list shows no choice, and ";
  const std::array<std::uint32_t, 3> ruby{0x3F76C4, 0x3F76C6, 0x3F76C8};
  cases.insert(cases.end(), {
      {{"BPEJ", 0}, {0x590C08, 0x590C0A, 0x590C0C}, {0x115, 0x118, 0x11B}, {277, 280, 283}, {}, "15 01 18 01 1B 01",
       {"Saved"}},
      {{"BPGE", 0}, {0x169B91, 0x169D5E, 0x169D94}, {0x19B, 0, 0x100}, {411, 0, 256}, {{0, 0}}, "00 00 00 00 00 01",
       {"Saved"}},
      {{"AXPE", 0}, {0x3F771C, 0x3F771E, 0x3F7720}, {0x1F4, 2, 0xFFFF}, {-1, 2, -1}, {{2, 5}}, "F4 01 02 00 05 00",
       {"Ball 1 holds species &H1F4" + noRow + "\"Save\" writes &H1F4 back unless you choose a row for it.\nBall 3 "
        "holds species &HFFFF" + noRow + "\"Save\" writes &HFFFF back unless you choose a row for it.", "Saved"}},
      {{"ABCD", 0}, ruby, {1, 2, 3}, {0, 0, 0}, {}, "AA AA AA AA AA AA", {}},
      {{"AXVE", 3}, ruby, {1, 2, 3}, {0, 0, 0}, {}, "AA AA AA AA AA AA", {}},
  });
  for (const auto& [game, at, stored, shown, picks, written, told] : cases) {
    SCOPED_TRACE(ShownIdentity(game));
    test::FixtureRom fixture(game.code, test::FixtureRom::kSize, game.revision);
    for (int i = 0; i < 3; ++i) fixture.PutWord(at[i], stored[i]);
    test::MainSession s(std::move(fixture));
    s.dialogs.messages.clear();
    Form2 form;
    LoadForm2(form, s.form, s.rom, s.dialogs);
    EXPECT_EQ((std::array{form.Combo1.selected, form.Combo2.selected, form.Combo3.selected}), shown);
    void (*const pick[])(Form2&, int) = {SetCombo1Selection, SetCombo2Selection, SetCombo3Selection};
    for (const auto& [ball, row] : picks) pick[ball](form, row);
    for (const RomOffset word : at) s.rom.WriteWord(word, std::int16_t(0xAAAA));
    const test::ByteOracle oracle(s.fixture->path());
    PressSave(form, s.form, s.rom, s.dialogs);
    std::size_t changed = 0;
    for (const test::ByteRange& range : oracle.Changes()) changed += range.length;
    EXPECT_EQ(changed, told.empty() ? 0u : 6u);  // the three words, and nothing else
    EXPECT_EQ(oracle.Hex(at[0], 2) + " " + oracle.Hex(at[1], 2) + " " + oracle.Hex(at[2], 2), written);
    EXPECT_EQ(s.dialogs.MessageTexts(), told);
  }
}

// "Reload" reads the starters again; "Save" refuses lists that were read before the last Open ROM.
TEST(Form2Test, ReloadShowsAnotherToolsWriteAndSaveRefusesListsOfTheRomBefore) {
  test::MainSession s(test::FixtureRom::Ruby());
  Form2 form;
  LoadForm2(form, s.form, s.rom, s.dialogs);
  s.rom.WriteWord(0x3F76C6, 0x19);
  LoadForm2(form, s.form, s.rom, s.dialogs);
  EXPECT_EQ(form.Combo2.selected, 0x19);
  s.Open(s.fixture->path());
  const test::ByteOracle oracle(s.fixture->path());
  EXPECT_EQ(test::FailureOf([&] { PressSave(form, s.form, s.rom, s.dialogs); }),
            "This window was filled before the last Open ROM, so what it holds may belong to the ROM opened before. "
            "Press \"Reload\" to read the starters of the ROM that is open now. Nothing was written.");
  EXPECT_THAT(oracle.Changes(), IsEmpty());
}

}  // namespace
}  // namespace tessarine
