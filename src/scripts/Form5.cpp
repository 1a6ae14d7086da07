#include "scripts/Form5.h"

#include <algorithm>

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "forms/FreeSpace.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/GameProfile.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "scripts/ItemList.h"
#include "scripts/ScriptBuilders.h"

namespace tessarine {
namespace {

// The item table of the open ROM, when there is one to read.
bool HasItemTable(const RomImage& rom, const Form1& main) {
  if (!rom.IsOpen() || !main.tables.Current(main)) return false;  // the tables of another ROM, or of none
  try {
    return ParseOffset(main.itemRecords) >= 0;
  } catch (const Failure&) {
    return false;  // an unknown game before the Unsupported ROM dialog gave the offset
  }
}

constexpr std::string_view kScriptField = "Offset To insert Script";
constexpr std::string_view kTextField = "Offset to insert new text";
constexpr std::string_view kQuestion = "the question";

// The bytes from S to the end of the block's last piece, in the mode the box selects.
std::int64_t BlockLength(const Form5& form) {
  if (form.Check1.checked) return kGameReadyGiveBlockLength;
  return kNoRoomTextAt + std::ssize(GivePokemonPieces(0, 0, 0, 0, 0).back().bytes);
}

}  // namespace

void LoadForm5Lists(Form5& form, Form1& main, RomImage& rom) {
  if (const GameProfile* profile = ProfileOf(main); profile != nullptr && profile->Opens()) {
    main.itemRecords = profile->itemRecords;
  }
  form.Label7.caption = main.itemRecords;
  form.Combo1.Clear();
  form.Combo1.rows = main.Combo1.rows;
  // The held item follows the list: emptied, it shows no row, and the item written is the
  // one shown, the field's initial value.
  form.Combo2.Clear();
  form.Text2.text = Form5{}.Text2.text;
  if (HasItemTable(rom, main)) form.Combo2.rows = LoadItemList(rom, main.itemRecords);
}

void SetCombo1Selection(Form5& form, int index) {
  if (!form.Combo1.Show(index)) return;
  form.pkmntxt.text = ToHexText(index);
}

void SetCombo3Selection(Form5& form, int index) {
  if (!form.Combo3.Show(index)) return;
  form.Text1.text = ToHexText(index);
}

void SetCombo2Selection(Form5& form, int index) {
  if (!form.Combo2.Show(index)) return;
  form.Text2.text = ToHexText(index);
}

void InsertGivePokemon(Form5& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  RomWrite write(rom, main);
  write.FromWindow(form.filled, "Close the form and open it again from the Tools menu to take the lists of the ROM "
                                "that is open now.");
  const bool gameReady = form.Check1.checked;
  std::string family;
  std::optional<std::string> typed;
  if (gameReady) {
    write.KeepApart().Check();  // a window that may not write says so before the question
    if (const GameProfile* profile = ProfileOf(main); profile != nullptr) family = profile->cowmoo;
    try {
      GameReadyGiveFanfare(family);
    } catch (const Failure& failure) {
      throw write.Stopped(failure);
    }
    typed = AskMessage(dialogs, kGiveMessageTitle, kGiveMessagePrompt, form.keptMessage);
    if (!typed) return;
  }
  WritePiece question{std::string(kQuestion), 0, MessageTextBytes(""), std::string(kTextField), form.Text12.text};
  try {
    const RomOffset text = ParseInsertOffset(form.Text12.text, kTextField);
    question.at = text;
    const std::int16_t item = ParseWord(form.Text2.text, "Held Item");
    const std::uint8_t level = ParseByte(form.Text1.text, "Level");
    const std::int16_t species = ParseWord(form.pkmntxt.text, "Pokemon");
    const RomOffset script = ParseInsertOffset(form.Text3.text, kScriptField);
    for (ScriptPiece& piece : gameReady ? GameReadyGivePokemonPieces(family, species, level, item, script, text, *typed)
                                        : GivePokemonPieces(species, level, item, script, text)) {
      const bool isQuestion = piece.name == kQuestion;
      write.Add({std::string(piece.name), piece.at, std::move(piece.bytes),
                 std::string(isQuestion ? kTextField : kScriptField), isQuestion ? form.Text12.text : form.Text3.text});
    }
    if (!gameReady) write.Expect(question);
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  if (!write.CheckAskAndWrite(dialogs)) return;
  if (!gameReady &&
      !AskAndWriteMessage(write, dialogs, kGiveMessageTitle, kGiveMessagePrompt, std::move(question), form.keptMessage)) {
    return;
  }
  dialogs.Hide(WindowName::Form5);
}

void PressFindScriptSpace(Form5& form, RomImage& rom, Dialogs& dialogs) {
  const std::optional<std::string> question = MessageForFreeSpace(
      form.Text3, kScriptField, form.Text12, dialogs, kGiveMessageTitle, kGiveMessagePrompt, form.keptMessage);
  if (!question) return;
  PressFindFreeSpace(form.Text3, kScriptField, "the script", BlockLength(form), &form.Text12,
                     std::ssize(BuilderMessageBytes(form.Check1, *question)), rom, dialogs);
}

void PressFindTextSpace(Form5& form, RomImage& rom, Dialogs& dialogs) {
  const std::optional<std::string> typed = MessageForFreeSpace(
      form.Text12, kTextField, form.Text12, dialogs, kGiveMessageTitle, kGiveMessagePrompt, form.keptMessage);
  if (!typed) return;
  PressFindFreeSpace(form.Text12, kTextField, kQuestion, std::ssize(BuilderMessageBytes(form.Check1, *typed)),
                     &form.Text3, BlockLength(form), rom, dialogs);
}

}  // namespace tessarine
