#include "braille/Form6.h"
#include "support/Tests.h"

#include <array>

namespace tessarine {
namespace {

using Fields = std::array<const char*, 6>;  // postionleft to brailletop
constexpr Fields kBare = {"&H", "&H", "&H", "&H", "&H", "&H"}, kZero = {"&H0", "&H0", "&H0", "&H0", "&H0", "&H0"};
constexpr TextBox Form6::*kFields[] = {&Form6::postionleft, &Form6::postiontop,  &Form6::msgboxleft,
                                       &Form6::msgboxtop,   &Form6::brailleleft, &Form6::brailletop};

// The inserter, opened on a ROM of 8 MiB of 0xFF. Where the tests write, a filler stands, so
// that every byte written shows as a change.
struct Inserter : test::MainSession {
  Form6 form;

  Inserter() : MainSession(Filled(FixtureRom("AXPE", 0x800000))) { form.filled.Fill(MainSession::form); }
  static FixtureRom Filled(FixtureRom rom) {
    for (const std::size_t at : {0x700000, 0x700100, 0x7A0000}) rom.PutBytes(at, Bytes(16, 0x11));
    return rom;
  }
  void Insert() { PressInsert(form, MainSession::form, rom, dialogs); }
  void Load(Form6& into) { PressLoad(into, MainSession::form, rom); }
  void Type(const Fields& fields, const char* text, const char* braille, const char* script) {
    for (std::size_t i = 0; i < fields.size(); ++i) (form.*kFields[i]).text = fields[i];
    SetText1(form, text);
    std::tie(form.Text2.text, form.Text3.text) = std::pair(braille, script);
  }
};

// The question ("Braille Inserted.", Yes or No; none to a window that may not write), then where all is parsed and
// placed apart in the file the free-space question; nothing after them. The whole file is compared before and after.
TEST(Form6Test, InsertWritesTheRecordAndItsScriptOrNothing) {
  using enum MessageAnswer;
  // The row's name; the six fields, the text, the braille and script offsets; the answers to the question and to the
  // free-space question; what is written; what is said; what happens before the insert.
  using Row = std::tuple<const char*, Fields, const char*, const char*, const char*, std::deque<MessageAnswer>,
                         test::WrittenRuns, const char*, void (*)(Inserter&)>;
  const Row rows[] = {
      {"all zero, A", kZero, "A", "&H700000", "&H700100", {Yes, Yes},
       {{0x700000, "00 00 00 00 00 00 01 FF 00"}, {0x700100, "6A 5A 78 00 00 70 08 02"}}, "", nullptr},
      {"lower case is blank", {"1", "2", "3", "4", "5", "31"}, "Hi", "&H7A0000", "&H700000", {Yes, Yes},
       {{0x700000, "6A 5A 78 00 00 7A 08 02"}, {0x7A0000, "01 02 03 04 05 1F 0D 00 FF 00"}}, "", nullptr},
      {"line break and escape", kZero, "A\r\nB\\h02C'", "&H700000", "&H700100", {Yes, Yes},
       {{0x700000, "00 00 00 00 00 00 01 FE 05 02 03 04 FF 00"}, {0x700100, "6A 5A 78 00 00 70 08 02"}}, "", nullptr},
      {"answered No", kZero, "A", "&H700000", "&H700100", {No}, {}, "", nullptr},
      {"No to writing over what is not free space", kZero, "A", "&H700000", "&H700100", {Yes, No}, {}, "", nullptr},
      {"fresh window", kBare, "A", "&H700000", "&H700100", {Yes}, {}, "Postion.Left: \"&H\" is not a byte.", nullptr},
      {"bad script offset", kZero, "A", "&H700000", "&Hxyz", {Yes}, {}, "Script Offset: \"&Hxyz\"", nullptr},
      {"no pointer", kZero, "A", "&H78000000", "&H700100", {Yes}, {},
       "Braille Offset: The offset &H78000000 cannot be a pointer", nullptr},
      {"record past the end", kZero, "A", "&H7FFFF8", "&H700100", {Yes}, {},
       "Braille Offset: \"&H7FFFF8\": the braille record, 9 bytes from &H7FFFF8, would run past the end", nullptr},
      {"script before the start", kZero, "A", "&H700000", "&HFFFFFFF0", {Yes}, {},
       "Script Offset: \"&HFFFFFFF0\" lies before the start of the ROM.", nullptr},
      {"script offset left at its start", kZero, "HELLO", "&H700000", "&H000000", {Yes}, {},
       "Script Offset: \"&H000000\" lies inside the cartridge header, &H0 to &HBF, and would write over it.", nullptr},
      {"script over its own record", kZero, "A", "&H700000", "&H700004", {Yes}, {}, "would share bytes", nullptr},
      {"window of the ROM opened before: no question", kZero, "A", "&H700000", "&H700100", {}, {},
       "This window was filled before the last Open ROM", [](Inserter& i) { i.Open(i.fixture->path()); }},
  };
  for (const auto& [name, fields, text, braille, script, answers, written, says, before] : rows) {
    SCOPED_TRACE(name);
    Inserter inserter;
    inserter.Type(fields, text, braille, script);
    if (before) before(inserter);
    inserter.dialogs.messages.clear();
    inserter.dialogs.messageAnswers = answers;
    const ByteOracle oracle(inserter.fixture->path());
    const std::string failure = FailureOf([&] { inserter.Insert(); });
    EXPECT_THAT(failure, AllOf(HasSubstr(says), HasSubstr(*says ? "Nothing was written." : "")));
    EXPECT_EQ(failure.empty(), *says == '\0');
    EXPECT_EQ(oracle.Written(), written);
    const auto& asked = inserter.dialogs.messages;
    ASSERT_EQ(asked.size(), answers.size());
    if (asked.empty()) continue;
    EXPECT_EQ(asked[0].title + ": " + asked[0].text, "Braille Inserted.: Are you sure that you wan't to insert?");
    EXPECT_EQ(asked.back().buttons, MessageButtons::YesNo);
    EXPECT_THAT(asked.back().text, HasSubstr(asked.size() > 1 ? "bytes at &H70" : ""));
  }
}

// Find Free Space: room for the record of the text typed (header, cells, FF 00) and for the script,
// each clear of the other and of the filler at &H700000.
TEST(Form6Test, FindFreeSpaceFindsRoomForTheRecordAndForTheScriptApart) {
  Inserter inserter;
  inserter.Type(kBare, "AB", "&H700000", "&H700010");
  PressFindRecordSpace(inserter.form, inserter.rom, inserter.dialogs);  // 10 bytes: behind the script's 8 and an FF
  EXPECT_EQ(inserter.form.Text2.text, "&H70001C");
  inserter.form.Text3.text = "&H700018";
  PressFindScriptSpace(inserter.form, inserter.rom, inserter.dialogs);
  EXPECT_EQ(inserter.form.Text3.text, "&H700028");
  EXPECT_TRUE(inserter.dialogs.messages.empty());
}

// What the window shows, in one line: the six fields, [the text], the frame, the text's corner and the preview's text.
std::string Shown(const Form6& f) {
  std::string line;
  for (TextBox Form6::*field : kFields) line += (f.*field).text + " ";
  const auto at = [](int x, int y, char between) { return std::to_string(x) + between + std::to_string(y); };
  return line + "[" + f.Text1.text + "] frame " + at(f.Shape1.Left, f.Shape1.Top, ',') + " " +
         at(f.Shape1.Width, f.Shape1.Height, 'x') + " text " + at(f.Label1.Left, f.Label1.Top, ',') + " [" +
         f.Label1.caption + "]";
}

// Load reads the record into the fields and applies them; the cell typed "'" reads as ",", and what Insert wrote loads
// back in capitals (31 units put the frame beyond the preview, so it stays whole). A refused offset loads nothing.
TEST(Form6Test, LoadReadsTheRecordIntoTheFieldsAndApplies) {
  const std::pair<const char*, const char*> rows[] = {
      {"05 06 07 08 09 0A 0D 09 15 15 19 FF 00",
       "&H5 &H6 &H7 &H8 &H9 &HA [HELLO] frame 40,48 193x103 text 72,80 [HELLO]"},
      {"00 00 00 01 02 03 01 FE 05 04 2D 02 09",
       "&H0 &H0 &H0 &H1 &H2 &H3 [A\r\nB,[&H2D]End] frame 0,0 240x158 text 16,24 [A\r\n\r\nB,[&H2D]End]"},
      {nullptr, "&H1F &H1F &H0 &H5 &H2 &H3 [IT,S A\r\nTEST] frame 0,0 240x159 text 16,24 [IT,S A\r\n\r\nTEST]"},
  };
  for (const auto& [bytes, shown] : rows) {
    Inserter inserter;
    if (bytes) {
      inserter.rom.WriteBytes(0x700000, test::FromHex(bytes));
    } else {
      inserter.Type({"31", "&H1F", "0", "5", "2", "3"}, "IT'S A\r\nTEST", "&H700000", "&H700100");
      inserter.dialogs.messageAnswers = {MessageAnswer::Yes, MessageAnswer::Yes};
      inserter.Insert();
    }
    Form6 loaded;
    loaded.Shape1 = {1, 2, 3, 4};
    loaded.Text2.text = "&H700000";
    inserter.Load(loaded);
    EXPECT_EQ(Shown(loaded), shown);
  }
  Inserter inserter;
  Form6 loaded;
  loaded.Text2.text = "&HFFFFFFFF";
  loaded.Shape1 = {1, 2, 3, 4};
  EXPECT_THAT(FailureOf([&] { inserter.Load(loaded); }), HasSubstr("Nothing was loaded."));
  EXPECT_EQ(Shown(loaded), Shown(Form6{}));  // Restore ran first
}

TEST(Form6Test, PreviewLayoutStopsAtTheFirstNegativeSide) {
  const std::pair<Fields, PreviewPlacement> rows[] = {
      {kBare, {240, 0, 159, 0, 0, 0}},
      {{"1", "2", "3", "4", "5", "6"}, {229, 8, 139, 16, 40, 48}},
      {{"&H1E", "&H13", "0", "7", "&H1F", "-1"}, {0, 240, 0, 152, 248, -8}},
      {{"-1", "0", "0", "0", "0", "0"}, {248, -8, 159, 0, 0, 0}},
      {{"31", "0", "0", "0", "1", "1"}, {}},
      {{"0", "0", "241", "0", "1", "1"}, {240, 0, 159, 0}},
      {{"&H10000000", "0", "0", "0", "0", "0"}, {}},  // beyond 32 bits
  };
  for (const auto& [f, placed] : rows) {
    EXPECT_EQ(PreviewLayout(f[0], f[1], f[2], f[3], f[4], f[5]), placed) << f[0] << " " << f[1] << " " << f[3];
  }

  Form6 form;  // Apply moves only what the layout reaches; Restore never moves the text
  form.postionleft.text = "31";
  SetBrailleLeft(form, "3");
  form.Shape1 = {1, 2, 3, 4};
  PressApply(form);
  EXPECT_EQ(form.Shape1, Shape{});
  EXPECT_EQ(form.Label1.Left, 24);
  SetBrailleTop(form, "&H10000000");
  EXPECT_EQ(form.Label1.Top, 8);
  PressRestore(form);
  EXPECT_EQ(form.Label1.Left, 24);
}

// The pieces in which a text box holds the text: each line its own, a long one cut at the start
// of a character, and the pieces of a line say that they go on it.
TEST(Form6Test, TextPiecesKeepTheLinesAndCutLongOnesAtACharacter) {
  const auto pieces = [](std::string_view text, std::size_t bytes) {
    std::string shown;
    for (const TextPiece& piece : TextPieces(text, bytes)) shown += (piece.continues ? "+" : "|") + std::string(piece.text);
    return shown;
  };
  EXPECT_EQ(pieces("", 4), "|");
  EXPECT_EQ(pieces("ABCDEFGHIJ\r\n\r\nAB", 4), "|ABCD+EFGH+IJ||AB");
  EXPECT_EQ(pieces("AB\xC3\xA9" "CD\r\n", 3), "|AB+\xC3\xA9" "C+D|");  // é stays whole
  for (const char* text : {"", "ABCDEFGHIJ\r\n\r\nAB", "AB\xC3\xA9" "CD\r\n"}) {  // and the way back
    EXPECT_EQ(TextOfPieces(TextPieces(text, 3)), text);
  }
}

// The preview draws the cells as braille patterns, as many lines and cells a line as fit.
TEST(Form6Test, ThePreviewDrawsTheCellsAsBraillePatterns) {
  const std::tuple<const char*, std::size_t, std::size_t, const char*> rows[] = {
      {"ABCDEFGHIJKLMNOPQRSTUVWXYZ.", 9, 99, "⠁⠃⠉⠙⠑⠋⠛⠓⠊⠚⠅⠇⠍⠝⠕⠏⠟⠗⠎⠞⠥⠧⠺⠭⠽⠵⠲"},
      {"A\r\n\r\nB", 9, 99, "⠁\n\n⠃"}, {"ABC\r\nDEF\r\nG", 2, 2, "⠁⠃\n⠙⠑"}, {"A", 0, 9, ""}};
  for (const auto& [text, lines, cells, glyphs] : rows) EXPECT_EQ(BrailleGlyphText(text, lines, cells), glyphs) << text;
}

}  // namespace
}  // namespace tessarine
