#include "scripts/ListScript.h"

#include <algorithm>
#include <array>
#include <functional>

#include "forms/FreeSpace.h"
#include "forms/ListRows.h"
#include "rom/HexField.h"
#include "scripts/ScriptBuilders.h"
#include "support/Tests.h"

namespace tessarine {
namespace {

std::string Repeat(std::string_view text, std::size_t times) {
  std::string out;
  for (std::size_t i = 0; i < times; ++i) out += text;
  return out;
}

// The six header lines of a braille record, with these values, and the rule below them.
std::string Header(std::array<const char*, 6> values) {
  const char* labels[] = {"Postion.Left: ", "Postion.Top: ", "Msgbox.Left: ", "Msgbox.Top: ", "Braille.Left: ",
                          "Braille.Top: "};
  std::string text;
  for (std::size_t i = 0; i < values.size(); ++i) text += labels[i] + std::string(values[i]) + "\r\n";
  return text + "-------Braille-------\r\n";
}
const std::string kZeroHeader = Header({"0", "0", "0", "0", "0", "0"});

// Each case in a file of its own of 0x100 bytes of 0xFF, so that the last ones meet its end.
TEST(ListScriptTest, ListsEachCommandAndBrailleCellByItsRules) {
  const std::string header56789A = Header({"5", "6", "7", "8", "9", "A"});
  struct Case {
    std::string bytes, listing;
    bool braille = false;
    std::size_t at = 0;            // where the bytes go
    const char* offset = nullptr;  // the text typed; else `at` in hexadecimal
  };
  const Case cases[] = {
      {"0F 64 55 3C 08 02", "msgbox  &H83C5564\r\nend \r\n"},  // two blanks, the pointer, no blank behind
      {"04 16 F3 15 08 02", "call &HF316\r\nend \r\n"},        // the low half only
      {"05 16 00 15 08 02", "goto &H81516\r\nend \r\n"},       // a low half below &H1000 is not padded
      {"78 00 10 16 08 02", "braille  &H8161000\r\nend \r\n"}, {"00 01 C6 02", "nop \r\nnop \r\nnop \r\nend \r\n"},
      {"03 07 FF 02", "Byte: &H3 \r\nByte: &H7 \r\nByte: &HFF \r\nend \r\n"},  // each alone, and the scan goes on
      {"06 02 02 02 02 02 5A 02", "if \r\nfaceplayer \r\nend \r\n"},            // 0x02 as an operand ends nothing
      {"09 02 2B 00 08 69 02", "boxset &H2\r\ncheckflag &H800\r\njingle \r\nend \r\n"},
      {"B6 19 00 05 8B 01 02", "wildpkmnbattle: &H19 &H8B05 &H1\r\nend \r\n"},  // word, word, byte
      {"79 19 00 05 00 00 " + Repeat("00 ", 17) + "02",  // givepokemon takes the first of its 17 zeros
       "givepokemon: &H19 &H5 &H0\r\n" + Repeat("nop \r\n", 16) + "end \r\n"},
      {"02 02 02 02 02 02 01 FF", "end \r\n"},  // a braille record's header is commands like any others
      {"05 06 07 08 09 0A 0D 09 15 15 19 FF", header56789A + "HELLO", true},
      {"05 06 07 08 09 0A 01 02 01 FF", header56789A + "AEnd", true},  // 0x02 prints End and stops
      {"00 00 00 00 00 00 08 FE 00 01 2D FF", kZeroHeader + "[&H8]\r\n A[&H2D]", true},
      {"02 FF 02 FF 02 FF 01 FF", Header({"2", "FF", "2", "FF", "2", "FF"}) + "A", true},  // no stop in the header
      // Script mode reads the longest number at the start of the text, or lists from 0; braille mode a strict one.
      {"6A 02", "lock \r\nend \r\n", false, 0, "abc"}, {"5A 02", "faceplayer \r\nend \r\n", false, 0x10, "&H10zz"},
      {"00 00 00 00 00 00 01 FF", kZeroHeader + "A", true, 0x20, " &H20 "},
      // At the end of the file: a command or cell is listed while it starts at or before the end.
      {"FF", "Byte: &HFF \r\nnop \r\n", false, 0xFF}, {"", "nop \r\n", false, 0, "&H7FFFFFFF"},
      {"05", "goto &H00\r\n", false, 0xFF},  // bytes past the end are 0
      {"0F 64 55", "msgbox  &H05564\r\n", false, 0xFD},
      {"", kZeroHeader + " ", true, 0, "&H100"},
      {"00 00 00 00 00 00 01 01", kZeroHeader + "AA" + std::string(7, ' '), true, 0xF8},
  };
  for (const Case& c : cases) {
    FixtureRom fixture("AXPE", 0x100);
    fixture.PutBytes(c.at, test::FromHex(c.bytes));
    RomImage rom;
    rom.Open(fixture.path());
    ScriptedDialogs ui;
    const std::string offset = c.offset ? c.offset : ToHexText(static_cast<std::int32_t>(c.at));
    EXPECT_EQ(ListScript(rom, ui, offset, c.braille), c.listing) << c.bytes << " from " << offset;
    EXPECT_THAT(ui.messages, IsEmpty()) << c.bytes;
  }
}

// The press of Load: Text4 takes a whole listing, and keeps its text when the offset is refused: by
// "Offset Bad" where the text is exactly that of a null pointer, else by a sentence.
TEST(ListScriptTest, ThePressReplacesText4OnlyWithAWholeListing) {
  FixtureRom fixture("AXPE", 0x100);
  fixture.PutBytes(0x40, {0x6A, 0x02});
  RomImage rom;
  rom.Open(fixture.path());
  const std::tuple<const char*, bool, const char*> rows[] = {
      {"&H40", false, "lock \r\nend \r\n"}, {"&HF8000000", false, "Offset Bad"}, {"&HF8000000", true, "Offset Bad"},
      {"&H20zz", true, "Offset: \"&H20zz\" is not an offset. Type &H and up to 8 hexadecimal digits, or a whole "
                       "number from -2147483648 to 2147483647. Nothing was listed."},
      // The same number written otherwise lies before the start.
      {"&hF8000000", false, "The offset &HF8000000 lies before the start of the ROM, so nothing was read or written "
                            "there. Nothing was listed."},
      {"-1", false, "The offset &HFFFFFFFF lies before the start of the ROM, so nothing was read or written there. "
                    "Nothing was listed."},
  };
  for (const auto& [text, braille, said] : rows) {
    Form1 form;
    form.Text3.text = text;
    form.Check1.checked = braille;
    form.Text4.text = "what was there";
    ScriptedDialogs ui;
    bool listed = false;
    const std::string told = FailureOf([&] { listed = ListIntoText4(form, rom, ui); });
    EXPECT_EQ(listed ? form.Text4.text : told + (ui.messages.empty() ? "" : ui.messages[0].text), said) << text;
    EXPECT_EQ(form.Text4.text == "what was there", !listed) << text;
  }
}

// 10 bytes whose commands straddle any block edge of a power of two, repeated over 2.5 MiB after two
// nops (so that the first edge of a MiB cuts a msgbox): a listing told along the way, from 0 to 1.
// (The listing dialog's test shows a cancel stop it.)
TEST(ListScriptTest, ALongListingIsTheSameAcrossBlocks) {
  const std::string unitListing = "lock \r\nmsgbox  &H83C5564\r\ncry  &H19\r\n";
  constexpr std::size_t kRepeats = 262144;
  FixtureRom fixture = FixtureRom::Ruby();
  fixture.PutBytes(0x100003, test::FromHex("00 00 " + Repeat("6A 0F 64 55 3C 08 30 A1 19 00 ", kRepeats) + "02"));
  RomImage rom;
  rom.Open(fixture.path());
  ScriptedDialogs ui;
  std::vector<double> told;
  const std::optional<std::string> listing = ListScript(rom, ui, "&H100003", false, [&](double done) {
    told.push_back(done);
    return true;
  });
  ASSERT_TRUE(listing.has_value());
  ASSERT_EQ(listing->size(), 12 + unitListing.size() * kRepeats + 6);  // and no diff of megabytes
  EXPECT_EQ(*listing, "nop \r\nnop \r\n" + Repeat(unitListing, kRepeats) + "end \r\n");
  ASSERT_GE(told.size(), 10u);  // told along the way, not only at the end
  EXPECT_EQ(told.back(), 1.0);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
}

constexpr std::size_t kS = 0x700000;  // script offset of the cases
constexpr std::size_t kT = 0x7A0000;  // text offset

// A ROM whose free space at kS and kT holds 0x11, so that every byte a builder writes
// there shows as a change, and forms filled in as a person would.
struct Builder : test::MainSession {
  Form3 form3;
  Form4 form4;
  Form5 form5;

  explicit Builder(FixtureRom made = FixtureRom::Sapphire())
      : MainSession(std::move(made.PutBytes(kS, Bytes(0x100, 0x11)).PutBytes(kT, Bytes(0x10, 0x11)))) {
    const auto fill = [this](auto& f, int species, int item) {
      f.filled.Fill(form);
      f.Combo1.rows.resize(412);
      f.Combo2.rows.resize(347);
      SetCombo1Selection(f, species);
      SetCombo2Selection(f, item);
      SetCombo3Selection(f, 5);
      f.Text3.text = "&H700000";
    };
    fill(form3, 0x19, 0);
    fill(form4, 0x19, 0x8B);
    fill(form5, 0x176, 0);
    form4.Text12.text = form5.Text12.text = "&H7A0000";
  }
  void Insert(int which) {
    if (which == 3) InsertWildBattle(form3, form, rom, dialogs);
    if (which == 4) InsertWildBattle(form4, form, rom, dialogs);
    if (which == 5) InsertGivePokemon(form5, form, rom, dialogs);
  }
};

// Each builder's layout from the same fields, byte for byte over the whole file: the builders' own layouts (the
// give-Pokemon pieces overlap as laid out: the body's last two bytes are the declined branch's first two, the gaps keep
// their bytes, and the declined text shows ten bytes and then the no-room text) and the game-ready ones, on the example
// battle and a second one (species &H96, level 70, item &H8B, cry &HFFFF, message "A", typed over the lists' numbers),
// in a Sapphire and a FireRed ROM. A message box closed writes FF 00 (own) or FF (game-ready).
TEST(ScriptBuildersTest, EachLayoutIsWrittenFromTheSameFields) {
  const std::string declined = "FD 01 00 E0 D9 DA E8 00 E8 DC D9 00 CA C9 C5 1B 00 BC BB C6 C6 00 EB DC D9 E6 D9 FE DD "
                               "E8 00 EB D5 E7 AD FF";
  const std::string noRoom = "CE DC D9 E6 D9 00 DD E7 00 E2 E3 00 E7 E4 D5 D7 D9 00 DA E3 E6 00 D5 E2 E3 E8 DC D9 E6 "
                             "00 CA C9 C5 1B C7 C9 C8 AD";
  const auto give = [&](std::string fanfare, std::string battle, std::string species) {
    return "69 0F 00 00 00 7A 08 09 05 21 0D 80 00 00 06 01 41 00 70 08 43 21 0D 80 06 00 06 01 4B 00 70 08 19 04 80 "
           "0D 80 53 0F 80 31 " + fanfare + " 32 79 " + battle + " 00 00 00 00 00 00 00 00 00 7D 01 " + species +
           " 6B 02 0F 00 55 00 70 08 09 04 6B 02 0F 00 79 00 70 08 09 04 6B 02 " + declined + " " + noRoom + " FF";
  };
  // The form, "Game-ready script" ticked, a FireRed ROM, the second battle; what is written; the message typed
  const std::tuple<int, bool, bool, bool, test::WrittenRuns, std::optional<std::string>> rows[] = {
      {3, false, false, false, {{kS, "6A 5A B6 19 00 05 00 00 30 A1 19 00 02"}}, "AB"},
      {4, false, false, true,
       {{kS, "6A 5A 0F 00 00 7A 08 09 06 B6 96 00 46 8B 00 30 A1 FF FF 02"}, {kT, "BB FF 00"}}, "A"},
      {4, false, false, false, {{kS, "6A 5A 0F 00 00 7A 08 09 06 B6 19 00 05 8B 00 30 A1 19 00 02"}, {kT, "FF 00"}},
       std::nullopt},
      {5, false, false, false, {{kS, "69 0F 00 00 7A 08 09 05 21 0D 80 00 00 06 01 4A 00 70 08 43 21 0D 80 06 00 06 01 5D 00 70 08 19 04 80 "
                "0D 80 53 02 00 31 72 01 67 61 32 66 79 76 01 05 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
                "00 00 00 7D 76 01 01 0F 0F 67 00 70 08 09 04 6B 02"}, {kS + 93, "0F 71 00 70 08 09 04 6B 02"},
       {kS + 103, declined.substr(0, 29) + " " + noRoom}, {kT, "BB BC FF 00"}}, "AB"},
      {3, true, false, false, {{kS, "6A 5A B6 19 00 05 00 00 30 A1 19 00 02 00 C5 B7 6C 02"}}, "AB"},
      {3, true, true, true, {{kS, "6A 5A B6 96 00 46 8B 00 30 A1 FF FF 02 00 C5 B7 6C 02"}}, "AB"},
      {4, true, false, false,
       {{kS, "6A 5A 0F 00 00 00 7A 08 09 04 B6 19 00 05 8B 00 30 A1 19 00 02 00 C5 B7 6C 02"}, {kT, "BB BC FF"}}, "AB"},
      {4, true, true, true,
       {{kS, "6A 5A 0F 00 00 00 7A 08 09 04 B6 96 00 46 8B 00 30 A1 FF FF 02 00 C5 B7 6C 02"}, {kT, "BB FF"}}, "A"},
      {5, true, false, false, {{kS, give("72 01", "76 01 05 00 00", "76 01")}, {kT, "BB BC FF"}}, "AB"},
      {5, true, true, true, {{kS, give("01 01", "96 00 46 8B 00", "96 00")}, {kT, "BB FF"}}, "A"},
  };
  for (const auto& [form, gameReady, fireRed, second, written, message] : rows) {
    SCOPED_TRACE(written[0].second);
    Builder b(fireRed ? FixtureRom::FireRed() : FixtureRom::Sapphire());
    b.form3.Check1.checked = b.form4.Check1.checked = b.form5.Check1.checked = gameReady;
    if (second) {
      for (TextBox* box : {&b.form3.pkmntxt, &b.form4.pkmntxt, &b.form5.pkmntxt}) box->text = "&H96";
      for (TextBox* box : {&b.form3.Text1, &b.form4.Text14, &b.form5.Text1}) box->text = "&H46";
      for (TextBox* box : {&b.form3.Text2, &b.form4.Text2, &b.form5.Text2}) box->text = "&H8B";
      b.form3.crytxt.text = b.form4.crytxt.text = "&HFFFF";
    }
    b.dialogs.inputAnswers = {message};
    b.dialogs.messageAnswers = {MessageAnswer::Yes, MessageAnswer::Yes};  // over what is not free space
    const ByteOracle oracle(b.fixture->path());
    b.Insert(form);
    EXPECT_EQ(oracle.Written(), written);
    const std::string prompt = form == 4 ? "Wild Pokemon Message: Type the Message you would like your Event to have. "
                                           "[N] = Next Line"
                                         : "Give Pokemon Message: Type the Message you would like your Event to have. "
                                           "[N] = Next Line| Example: \\v\\h01 checked the POK\xC3\xA9 BALL.";
    ASSERT_EQ(b.dialogs.inputs.size(), form == 3 ? 0u : 1u);
    if (form > 3) {
      EXPECT_THAT(b.dialogs.inputs[0].title + ": " + b.dialogs.inputs[0].prompt, HasSubstr(prompt));
    }
    // The questions (game-ready: one, once all is checked), then "Inserted" from the wild battle forms.
    const std::vector<std::string> asked = b.dialogs.MessageTexts();
    EXPECT_EQ(asked.size(), (gameReady || form == 3 ? 1u : 2u) + (form == 5 ? 0u : 1u));
    EXPECT_EQ(asked.back() == "Inserted", form != 5);
    EXPECT_THAT(b.dialogs.windowEvents, ElementsAre(ScriptedDialogs::WindowEvent{std::array{WindowName::Form3, WindowName::Form4, WindowName::Form5}[form - 3], false}));
  }
  EXPECT_EQ(GameReadyGivePokemonPieces("e", 1, 2, 3, kS, kT, "Q")[0].bytes,  // Emerald plays Ruby's fanfare
            GameReadyGivePokemonPieces("rs", 1, 2, 3, kS, kT, "Q")[0].bytes);
}

// The one free-space question (No is its default), and the refusals of a game-ready script, with
// six bytes of FF at the start of the script's place: what is asked, written and said.
TEST(ScriptBuildersTest, NoToTheFreeSpaceQuestionWritesNothingOrSaysWhatWasWritten) {
  using enum MessageAnswer;
  // The road; the form, its script game-ready; the answers, the questions asked, the bytes changed and what is said;
  // what is done before the insert, and how many input boxes are shown.
  using Row = std::tuple<const char*, int, bool, std::deque<MessageAnswer>, std::vector<std::string>,
                         std::vector<ByteRange>, const char*, std::function<void(Builder&)>, std::size_t>;
  const Row rows[] = {
      {"game-ready, No", 3, true, {No},
       {"The 18 bytes at &H700000 are not free space: 12 of them are not FF. Write over them?"}, {}, "", {}, 0},
      {"game-ready, both places in one question", 4, true, {No},
       {"The 26 bytes at &H700000 and the 3 bytes at &H7A0000 are not free space: 23 of them are not FF. Write over "
        "them?"}, {}, "", {}, 1},
      {"own layout, No to the message's place", 4, false, {Yes, No},
       {"The 20 bytes at &H700000 are not free space: 14 of them are not FF. Write over them?",
        "The 4 bytes at &H7A0000 are not free space: 4 of them are not FF. Write over them?"},
       {{kS, 20}},
       "You chose not to write over the bytes that are not free space. Written before it stopped: 20 bytes at "
       "&H700000 (the script). Not written: 4 bytes at &H7A0000 (the message).", {}, 1},
      {"own layout, a message past the end, checked once typed", 4, false, {Yes}, {"The 20 bytes at &H700000 are not "
       "free space: 14 of them are not FF. Write over them?"}, {{kS, 4}, {kS + 6, 14}},
       "Text Offset: \"&HFFFFFD\": the message, 4 bytes from &HFFFFFD, would run past the end of the ROM, which is "
       "&H1000000 bytes long. Written before it stopped: 20 bytes at &H700000 (the script). Not written: 4 bytes at "
       "&HFFFFFD (the message).", [](Builder& b) { b.form4.Text12.text = "&HFFFFFD"; }, 1},  // room for FF 00 only
      {"own layout, a message over the script just written", 4, false, {Yes}, {"The 4 bytes at &H7000FE are not "
       "free space: 4 of them are not FF, among them 2 bytes of the script written just now. Write over them?"},
       {{kS + 0xFE, 2}, {kS + 0x101, 19}}, "",  // FF 00 over the script's first two bytes, where FF stood
       [](Builder& b) { b.form4.Text3.text = "&H700100", b.form4.Text12.text = "&H7000FE"; }, 1},
      {"own layout, No to the block", 5, false, {No}, {"The 83 bytes at &H700000, the 9 bytes at &H70005D and the 48 "
       "bytes at &H700067 are not free space: 134 of them are not FF. Write over them?"}, {}, "", {}, 0},
      {"game-ready, over free space: no question", 5, true, {}, {}, {{kS + 0x200, 120}, {kS + 0x279, 38}, {kT + 0x100, 2}},
       "", [](Builder& b) { b.form5.Text3.text = "&H700200", b.form5.Text12.text = "&H7A0100"; }, 1},
      {"the first offset behind the header is free to use", 3, false, {}, {}, {{0xC0, 13}}, "",
       [](Builder& b) { b.form3.Text3.text = "&HC0"; }, 0},
      {"a script over its own message", 4, true, {}, {}, {},
       "Offset: \"&H700000\": the script, 26 bytes from &H700000, and Text Offset: \"&H700010\": the message, 3 bytes "
       "from &H700010, would share bytes", [](Builder& b) { b.form4.Text12.text = "&H700010"; }, 1},
      {"cancelled message", 4, true, {}, {}, {}, "", [](Builder& b) { b.dialogs.inputAnswers = {std::nullopt}; }, 1},
      {"a game of no family", 5, true, {}, {}, {}, "the open ROM is none of these games. Untick \"Game-ready script\"",
       [](Builder& b) {  // Japanese Emerald
         b.fixture->PutBytes(0xAC, test::FromHex("42 50 45 4A")), b.Open(b.fixture->path()), b.form5.filled.Fill(b.form);
         b.dialogs = ScriptedDialogs();
       }, 0},
  };
  for (const auto& [road, form, gameReady, answers, questions, changes, says, set, inputs] : rows) {
    SCOPED_TRACE(road);
    Builder b;
    b.fixture->PutBytes(kS, Bytes(6, 0xFF));
    b.form3.Check1.checked = b.form4.Check1.checked = b.form5.Check1.checked = gameReady;
    b.dialogs.inputAnswers = {"AB"};
    if (set) set(b);
    b.dialogs.messageAnswers = answers;
    const ByteOracle oracle(b.fixture->path());
    const std::string failure = FailureOf([&] { b.Insert(form); });
    EXPECT_THAT(failure, HasSubstr(says));
    EXPECT_EQ(failure.empty(), *says == '\0');
    EXPECT_EQ(oracle.Changes(), changes);
    std::vector<std::string> asked = b.dialogs.MessageTexts();
    std::erase(asked, "Inserted");
    EXPECT_EQ(asked, questions);
    for (const auto& m : b.dialogs.messages) EXPECT_EQ(m.buttons == MessageButtons::YesNo, m.text != "Inserted");
    EXPECT_EQ(b.dialogs.inputs.size(), inputs);
    const bool closed = !changes.empty() && *says == '\0';  // only once all is written
    EXPECT_EQ(b.dialogs.windowEvents.size(), closed ? 1u : 0u);
  }
}

// Each case an insert that must write nothing, and asks nothing: what is wrong, which form, what is said.
TEST(ScriptBuildersTest, ABadFieldOrAPlaceOutsideTheFileWritesNothingAndAsksNothing) {
  const std::tuple<std::function<void(Builder&)>, int, const char*> refusals[] = {
      {[](Builder& b) { b.form3.crytxt.text = "x", b.form3.Text3.text = "?"; }, 3, "PKMN Cry: \"x\""},  // fields first
      {[](Builder& b) { b.form3.Text3.text = "&H000000"; }, 3,
       "Offset: \"&H000000\" lies inside the cartridge header, &H0 to &HBF,"},
      {[](Builder& b) { b.form5.Text3.text = "&HBF"; }, 5, "Offset To insert Script: \"&HBF\" lies inside"},
      {[](Builder& b) { b.form3.Text3.text = "&HF8000000"; }, 3, "lies before the start of the ROM"},
      {[](Builder& b) { b.form5.Text12.text = "&H0", b.form5.pkmntxt.text = "?"; }, 5,
       "Offset to insert new text: \"&H0\""},  // the text's offset before the species
      {[](Builder& b) { b.form3.Text3.text = "&HFFFFF4"; }, 3,
       "the script, 13 bytes from &HFFFFF4, would run past the end of the ROM, which is &H1000000 bytes long"},
      {[](Builder& b) { b.form5.Text3.text = "&HFFFF6A"; }, 5, "the no-room text, 38 bytes from &HFFFFDB, would run"},
      {[](Builder& b) { b.form4.Text12.text = "&HFFFFFF"; }, 4, "Text Offset: \"&HFFFFFF\": the message, 2 bytes"},
      {[](Builder& b) { b.form5.Text12.text = "&HFFFFFF"; }, 5, "the question, 2 bytes"},
  };
  for (const auto& [set, form, says] : refusals) {
    SCOPED_TRACE(says);
    Builder b;
    set(b);
    const ByteOracle oracle(b.fixture->path());
    EXPECT_THAT(FailureOf([&] { b.Insert(form); }), AllOf(HasSubstr(says), HasSubstr("Nothing was written.")));
    EXPECT_THAT(oracle.Changes(), IsEmpty());
    EXPECT_THAT(b.dialogs.inputs, IsEmpty());
    EXPECT_THAT(b.dialogs.windowEvents, IsEmpty());
  }
}

// Runs of FF in a ROM of 00 bytes: the finder takes the first multiple of 4 at or after the start
// (never in the header) that has the length and one FF more; the file's search reads in blocks of a
// MiB, so a run across the end of the first block is found all the same.
TEST(FreeSpaceTest, FindsTheFirstAlignedRunWithOneFFBehind) {
  using Runs = std::vector<std::pair<std::size_t, std::size_t>>;  // where, how long
  const std::tuple<Runs, std::int64_t, std::int64_t, std::optional<RomOffset>, std::size_t> rows[] = {
      {{{0xC0, 8}}, 0, 8, std::nullopt, 0x200},              // one byte too short
      {{{0xC0, 8}, {0x100, 9}}, 0, 8, 0x100, 0x200},         // so the next is taken
      {{{0xC1, 12}}, 0, 8, 0xC4, 0x200},                     // from its first multiple of 4
      {{{0x1F7, 9}}, 0, 8, std::nullopt, 0x200},             // too short once aligned
      {{{0x1F0, 16}}, 0x1F1, 8, 0x1F4, 0x200},               // the last place there is
      {{{0xC0, 0x140}}, 0x1FC, 3, 0x1FC, 0x200},             // the very end of the file
      {{{0x00, 0x200}}, 0, 8, 0xC0, 0x200},                  // never in the header
      {{{0x00, 0x200}}, 0x101, 0, 0x104, 0x200},             // length 0 takes one FF
      {{}, 0, 0, std::nullopt, 0x200},
      {{{0x1000A0, 0x40}}, 0xC0, 0x30, 0x1000A0, 0x300000},  // across the first block's end
      {{{0xC0, 0x140}}, INT64_MAX, 1, std::nullopt, 0x200},  // a start or a length past the last offset a ROM can
      {{{0xC0, 0x140}}, 0, INT64_MAX, std::nullopt, 0x200},  // have finds nothing
  };
  for (const auto& [runs, from, length, found, size] : rows) {
    test::FixtureRom fixture("AXPE", size);
    fixture.PutBytes(0xC0, Bytes(size - 0xC0, 0x00));
    for (const auto& [at, count] : runs) fixture.PutBytes(at, Bytes(count, 0xFF));
    RomImage rom;
    rom.Open(fixture.path());
    EXPECT_EQ(FindFreeSpace(fixture.image(), from, length), found) << from << " " << length;
    EXPECT_EQ(FindFreeSpace(rom, from, length), found) << from << " " << length;
  }
}

// The "Find Free Space" buttons: each puts the first place for its piece into its field, clear of the
// form's other piece (and an FF behind each); one beside a text field, or beside the script while no
// message is kept for a text offset, asks for the message first and keeps it for the insert (the
// windows' test shows it there). Each press returns what its field shows then.
TEST(FreeSpaceTest, EachButtonFindsRoomForItsPieceOrSaysThereIsNone) {
  const std::tuple<std::function<std::string(Builder&)>, const char*, const char*> rows[] = {  // press, shows, said
      {[](Builder& b) { return PressFindScriptSpace(b.form3, b.rom, b.dialogs), b.form3.Text3.text; }, "&H700100",
       ""},
      {[](Builder& b) { return PressFindTextSpace(b.form4, b.rom, b.dialogs), b.form4.Text12.text + b.form4.keptMessage; },
       "&H7A0010AB", ""},
      {[](Builder& b) {
         b.form4.Text12.text = "&H700100";
         return PressFindScriptSpace(b.form4, b.rom, b.dialogs), b.form4.Text3.text + b.form4.keptMessage;
       }, "&H700108AB", ""},  // behind the message asked for first (BB BC FF 00) and one FF
      {[](Builder& b) {
         b.form5.Check1.checked = true, b.form5.Text12.text = "&H700180";  // the game-ready block
         return PressFindScriptSpace(b.form5, b.rom, b.dialogs), b.form5.Text3.text + b.form5.keptMessage;
       }, "&H700184AB", ""},
      {[](Builder& b) { return PressFindTextSpace(b.form5, b.rom, b.dialogs), b.form5.Text12.text; }, "&H7A0010", ""},
      {[](Builder& b) {
         b.form3.Text3.text = "&HFFFFF4";
         return PressFindScriptSpace(b.form3, b.rom, b.dialogs), b.form3.Text3.text;
       }, "&HFFFFF4", "Offset: no free space at or after &HFFFFF4 holds the script (13 bytes of FF and one more "
       "behind them). The field keeps its text."},
      {[](Builder& b) {
         b.dialogs.inputAnswers = {std::nullopt};  // the message cancelled
         return PressFindTextSpace(b.form4, b.rom, b.dialogs), b.form4.Text12.text;
       }, "&H7A0000", ""},
      {[](Builder& b) {
         b.dialogs.inputAnswers = {std::nullopt}, b.form4.Text12.text = "&H700100";  // the script clear of FF 00
         return PressFindScriptSpace(b.form4, b.rom, b.dialogs), b.form4.Text3.text;
       }, "&H700104", ""},
  };
  for (const auto& [press, shows, said] : rows) {
    Builder b;
    b.dialogs.inputAnswers = {"AB"};
    const ByteOracle oracle(b.fixture->path());
    EXPECT_EQ(press(b), shows);
    EXPECT_EQ(b.dialogs.MessageTexts(), *said ? std::vector<std::string>{said} : std::vector<std::string>{});
    EXPECT_THAT(oracle.Changes(), IsEmpty());
  }
  Builder b;  // a field that is no offset is named, before any question
  b.form3.Text3.text = b.form4.Text12.text = "xyz";
  EXPECT_THAT(FailureOf([&] { PressFindScriptSpace(b.form3, b.rom, b.dialogs); }), HasSubstr("Offset: \"xyz\""));
  EXPECT_THAT(FailureOf([&] { PressFindTextSpace(b.form4, b.rom, b.dialogs); }), HasSubstr("Text Offset: \"xyz\""));
  EXPECT_THAT(b.dialogs.inputs, IsEmpty());
}

// Enter in the species box picks the row named by what was typed, and only that.
TEST(ScriptBuildersTest, EnterInTheSpeciesBoxPicksTheRowTyped) {
  const std::pair<const char*, int> rows[] = {
      {"MEWTWO", 150}, {"mewtwo", 150}, {"096 - MEWTWO", 150}, {"096 - mewTwo", 150}, {"MEW", 151},
      {"MEWT", -1},    {"096", -1},     {"", -1},             {"Select a Pokemon", -1}, {"pika", 0x19},  // renamed
  };
  for (const auto& [typed, row] : rows) {
    Form3 form;
    for (int i = 0; i < 412; ++i) form.Combo1.rows.push_back(NumberedRow(i, i == 150 ? "MEWTWO" : i == 151 ? "MEW" : "?"));
    form.Combo1.rows[0x19] = "019 - PIKA       ";  // as a rename fills it up
    form.Combo1.text = typed;
    ScriptedDialogs ui;
    PickTypedSpecies(form, ui);
    EXPECT_EQ(form.Combo1.selected, row) << typed;
    EXPECT_EQ(form.pkmntxt.text, row < 0 ? "&H0000" : ToHexText(row)) << typed;
    EXPECT_EQ(ui.messages.size(), row < 0 ? 1u : 0u) << typed;
  }
}

}  // namespace
}  // namespace tessarine
