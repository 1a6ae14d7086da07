#include "shell/NameEditorMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "editors/NameEditors.h"
#include "rom/HexField.h"
#include "shell/OpenRom.h"
#include "shell/Session.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"
#include "support/FixtureRom.h"

namespace tessarine {
namespace {

// On a fixture of 0xFF with no names, through the menu. An unknown game first passes the
// "Unsupported ROM" dialog with the two offsets typed.
TEST(NameEditorMenuTest, TheTwoAnswersWriteTheEncodedNameAndNothingElse) {
  using Answer = std::optional<std::string>;
  struct Case {
    const char* code;
    MenuEntry entry;
    Answer number, name;
    std::vector<test::ByteRange> changes;
    std::string written;  // the bytes of the changed range
    std::string row;      // the entry's row of Combo1 after a Pokemon rename, or a cancel
    std::string failure;  // part of the sentence that ends the action
    std::array<const char*, 2> typedInForm9{};
  };
  const Case cases[] = {
      {"AXVE", MenuEntry::mnuedipmon, "&H19", "PIKA", {{0x1F727F, 11}}, "CA C3 C5 BB 00 00 00 00 00 00 00",
       "019 - PIKA      "},
      {"AXVE", MenuEntry::mnuedipmon, "&H19", "AB[PK]CDEFGHIJ", {{0x1F727F, 8}}, "BB BC 53 BD BE BF C0 C1",
       "019 - ABPKCDEFG"},
      {"BPRE", MenuEntry::mnuedipmon, "", "", {{0x245EE0, 11}}, "00 00 00 00 00 00 00 00 00 00 00",
       "000 - " + std::string(10, ' ')},
      {"AXVE", MenuEntry::mnuedipmon, std::nullopt, "PIKA", {}, "", "000 - "},
      {"AXVE", MenuEntry::mnuedipmon, "&H19", std::nullopt, {}, "", "019 - "},
      {"AXVE", MenuEntry::mnuedipmon, "&H200000", "A", {}, "", "",
       "Pokemon: \"&H200000\": its name in the table at &H1F716C, 11 bytes from &H17F716C, would run past the end "
       "of the ROM, which is &H1000000 bytes long. Nothing was written."},
      {"BPEJ", MenuEntry::mnuedipmon, "&H19", "PIKA", {{0x245FF3, 11}}, "CA C3 C5 BB 00 00 00 00 00 00 00",
       "019 - PIKA      ", "", {"&H245EE0", "&H000000"}},
      {"AXPE", MenuEntry::mnuediten, "&H2", "Abcdefghijklmn", {{0x3C5614, 14}},
       "BB D6 D7 D8 D9 DA DB DC DD DE DF E0 E1 E2"},
      {"BPGE", MenuEntry::mnuediten, "2", "Abcdefghijklmno", {{0x3DAEBC, 14}},
       "BB D6 D7 D8 D9 DA DB DC DD DE DF E0 E1 E2"},
      {"BPRE", MenuEntry::mnuediten, "&H2", "ééééééééééééééé", {{0x3DB080, 14}},  // cut in characters, not in bytes
       "1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B"},
      {"BPEJ", MenuEntry::mnuediten, "&H2", "A", {}, "", "", "Item records offset: \"&H24SEE0\" is not",
       {"&H245EE0", "&H24SEE0"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.code) + " " + c.number.value_or("(cancel)") + " " + c.name.value_or("(cancel)"));
    test::FixtureRom fixture(c.code);
    Session session;
    test::ScriptedDialogs dialogs;
    dialogs.openFileAnswers.push_back(fixture.path());
    OpenRom(session.form1, session.rom, dialogs);
    if (c.typedInForm9[0] != nullptr) {
      session.form9.Text1.text = c.typedInForm9[0];
      session.form9.Text2.text = c.typedInForm9[1];
      PressContinue(session.form9, session.form1, dialogs);
    }
    dialogs.inputAnswers = {c.number, c.name};
    const test::ByteOracle oracle(fixture.path());
    const std::string failure = test::FailureOf([&] { RunMenuEntry(c.entry, session, dialogs); });

    EXPECT_EQ(oracle.Changes(), c.changes);
    const Bytes now = oracle.Now();
    const test::ByteRange r = c.changes.empty() ? test::ByteRange{0, 0} : c.changes[0];
    EXPECT_EQ(test::ToHex(Bytes(now.begin() + long(r.offset), now.begin() + long(r.offset + r.length))), c.written);
    EXPECT_EQ(failure.empty(), c.failure.empty()) << failure;
    EXPECT_THAT(failure, ::testing::HasSubstr(c.failure));
    EXPECT_EQ(dialogs.inputs.size(), c.number ? 2u : 1u);
    EXPECT_EQ(dialogs.inputs[0].prompt, c.entry == MenuEntry::mnuediten ? kItemEntryPrompt : kPokemonEntryPrompt);
    if (c.row.empty()) continue;
    ASSERT_EQ(session.form1.Combo1.rows.size(), 412u);  // a cancel keeps the list of the open
    EXPECT_EQ(session.form1.Combo1.rows[std::size_t(ParseLenient(c.number.value_or("")))], c.row);
    EXPECT_EQ(session.form1.Combo1.selected, 0);
  }
}

TEST(NameEditorMenuTest, APlaceBeyondTheLastOffsetIsRefusedOnADeviceToo) {
  RomImage rom;
  rom.Open(test::EndlessDevice());  // every place lies inside it
  EXPECT_EQ(test::FailureOf([&] { EditPokemonName(rom, "&H10", 0x1745D174, "A"); }),  // &H10 + 11 * entry wraps to 12
            "Pokemon: \"&H1745D174\": its name in the table at &H10, 11 bytes from 4294967308, would lie beyond "
            "&H7FFFFFFF, the last offset of a ROM. Nothing was written.");
}

}  // namespace
}  // namespace tessarine
