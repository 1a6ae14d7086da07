// Picking an event on a fixture ROM whose person record, and the bytes where its script
// pointer leads, come from the input: the load runs through or fails with a sentence, and
// where it runs through, the fields show the record's sprite and flag.
#include <memory>

#include "FuzzInput.h"
#include "events/EventSelection.h"
#include "events/PersonRecord.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "support/EventFixtures.h"
#include "support/MainSession.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  // A game's fixture, open in a session of its own from the first input that picks it.
  static std::vector<std::unique_ptr<test::MainSession>> sessions(test::AllGames().size());
  fuzz::Input in{{data, size}};
  const std::uint32_t which = in.Number(1) % sessions.size();
  const GameIdentity& code = test::AllGames()[which];
  if (!sessions[which]) sessions[which] = std::make_unique<test::MainSession>(test::EventFixtureRom(code));
  test::MainSession& game = *sessions[which];
  RomImage& rom = game.rom;
  const std::vector<test::FixtureEvent> events = test::FixtureEvents(code);
  const int index = static_cast<int>(in.Number(1) % 14);  // the lists hold 7, 6 and 13 entries
  const bool listed = static_cast<std::size_t>(index) < events.size();
  const RomOffset person = listed ? events[index].person : 0;
  const Bytes record = in.Block(listed ? PersonRecord::kSize : 0);
  const Bytes pointed = in.Block();

  // The input's bytes go into the file, and afterwards the fixture's back.
  rom.WriteBytes(person, record);
  const PersonRecord read = PersonRecord::FromBytes(rom.ReadBytes(person, PersonRecord::kSize));
  const std::int64_t script = std::int64_t{read.script} - 0x08000000;
  const bool apart = script >= person + std::int64_t{PersonRecord::kSize} || script + std::ssize(pointed) <= person;
  const bool placed = apart && rom.Holds(script, std::ssize(pointed));
  if (placed) rom.WriteBytes(static_cast<RomOffset>(script), pointed);
  try {
    SelectEvent(game.form, rom, game.dialogs, index);
    fuzz::Require(!listed || ParseWord(game.form.spritetxt.text) == read.sprite, "the record's sprite is shown");
    fuzz::Require(!listed || ParseWord(game.form.flagtxt.text) == read.flag, "the record's flag is shown");
  } catch (const Failure& failure) {
    fuzz::Require(*failure.what() != '\0', "a failure has a sentence");
  }
  game.dialogs.messages.clear();
  const std::span<const std::uint8_t> fixture = game.fixture->image();
  if (placed) rom.WriteBytes(static_cast<RomOffset>(script), fixture.subspan(script, pointed.size()));
  rom.WriteBytes(person, fixture.subspan(person, record.size()));
  return 0;
}
