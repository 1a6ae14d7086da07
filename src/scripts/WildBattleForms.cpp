#include "scripts/WildBattleForms.h"

#include <algorithm>

#include "forms/Dialogs.h"
#include "forms/FreeSpace.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "scripts/ScriptBuilders.h"

namespace tessarine {
namespace {

// The values of the fields both forms parse, in the order both parse them: species, the
// level (from the form's own field), cry, held item.
struct Battle {
  std::int16_t species;
  std::uint8_t level;
  std::int16_t cry;
  std::int16_t item;
};

Battle ParseBattle(const WildBattleForm& form, const TextBox& levelField) {
  Battle battle{};
  battle.species = ParseWord(form.pkmntxt.text, "Pokemon");
  battle.level = ParseByte(levelField.text, "Level");
  battle.cry = ParseWord(form.crytxt.text, "PKMN Cry");
  battle.item = ParseWord(form.Text2.text, "Held Item");
  return battle;
}

constexpr std::string_view kScriptField = "Offset";
constexpr std::string_view kTextField = "Text Offset";
constexpr std::string_view kScriptPiece = "the script";
constexpr std::string_view kLoadAgain =
    "Close the form and open it again from the Tools menu to take the lists of the ROM that is open now.";

void Finish(WindowName window, Dialogs& dialogs) {
  dialogs.Message("Inserted");
  dialogs.Hide(window);
}

// How many bytes each form's script takes in the mode its box selects.
std::int64_t ScriptLength(const Form3& form) {
  return form.Check1.checked ? kGameReadyWildBattleLength : std::ssize(BuildWildBattleScript(0, 0, 0, 0));
}
std::int64_t ScriptLength(const Form4& form) {
  return form.Check1.checked ? kGameReadyWildBattleMessageLength
                             : std::ssize(BuildWildBattleMessageScript(0, 0, 0, 0, 0));
}

// Upper-case ASCII letters, so that a name typed in small letters names its row, and no blanks
// at the end: a renamed species' row is filled up with them to the field's length.
std::string Folded(std::string_view text) {
  std::string folded(text.substr(0, text.find_last_not_of(' ') + 1));
  for (char& c : folded) c = (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
  return folded;
}

constexpr std::string_view kRowNameAfter = " - ";

}  // namespace

void LoadWildBattleLists(WildBattleForm& form, const Form1& main, const std::vector<std::string>& itemRows) {
  form.Combo1.rows = main.Combo1.rows;
  form.Combo2.Clear();
  form.Text2.text = WildBattleForm{}.Text2.text;  // what the emptied list shows
  form.Combo2.rows = itemRows;
  form.filled.Fill(main);
}

void SetCombo1Selection(WildBattleForm& form, int index) {
  if (!form.Combo1.Show(index)) return;
  form.pkmntxt.text = ToHexText(index);
  form.crytxt.text = ToHexText(index);
}

void SetCombo2Selection(WildBattleForm& form, int index) {
  if (!form.Combo2.Show(index)) return;
  form.Text2.text = ToHexText(index);
}

void SetCombo3Selection(Form3& form, int index) {
  if (!form.Combo3.Show(index)) return;
  form.Text1.text = ToHexText(index);
}

void SetCombo3Selection(Form4& form, int index) {
  if (!form.Combo3.Show(index)) return;
  form.Text14.text = ToHexText(index);
}

void PickTypedSpecies(WildBattleForm& form, Dialogs& dialogs) {
  const std::string typed = Folded(form.Combo1.text);
  const auto& rows = form.Combo1.rows;
  auto row = std::ranges::find_if(rows, [&](const std::string& r) { return Folded(r) == typed; });
  if (row == rows.end() && !typed.empty()) {  // nothing typed names no row, also not one of blanks
    row = std::ranges::find_if(rows, [&](const std::string& r) {
      const std::size_t at = r.find(kRowNameAfter);
      return at != std::string::npos && Folded(r.substr(at + kRowNameAfter.size())) == typed;
    });
  }
  if (row == rows.end()) {
    dialogs.Message("No row of the Pokemon list is named \"" + form.Combo1.text +
                    "\". Type a name as the list shows it, or a whole row: its number, \" - \" and the name.");
    return;
  }
  SetCombo1Selection(form, static_cast<int>(row - rows.begin()));
}

void InsertWildBattle(Form3& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  RomWrite write(rom, main);
  write.FromWindow(form.filled, kLoadAgain);
  try {
    const Battle b = ParseBattle(form, form.Text1);
    write.Add({std::string(kScriptPiece), ParseInsertOffset(form.Text3.text, kScriptField),
               form.Check1.checked ? BuildGameReadyWildBattleScript(b.species, b.level, b.item, b.cry)
                                   : BuildWildBattleScript(b.species, b.level, b.item, b.cry),
               std::string(kScriptField), form.Text3.text});
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  if (!write.CheckAskAndWrite(dialogs)) return;
  Finish(WindowName::Form3, dialogs);
}

void InsertWildBattle(Form4& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  RomWrite write(rom, main);
  write.FromWindow(form.filled, kLoadAgain);
  const bool gameReady = form.Check1.checked;
  std::optional<std::string> typed;
  if (gameReady) {
    write.KeepApart().Check();  // a window that may not write says so before the question
    typed = AskMessage(dialogs, kWildMessageTitle, kWildMessagePrompt, form.keptMessage);
    if (!typed) return;
  }
  WritePiece message{"the message", 0, BuilderMessageBytes(form.Check1, typed.value_or("")), std::string(kTextField),
                     form.Text12.text};
  try {
    const Battle b = ParseBattle(form, form.Text14);
    message.at = ParseInsertOffset(form.Text12.text, kTextField);
    const RomOffset script = ParseInsertOffset(form.Text3.text, kScriptField);
    const auto text = static_cast<RomOffset>(message.at);
    write.Add({std::string(kScriptPiece), script,
               gameReady ? BuildGameReadyWildBattleMessageScript(b.species, b.level, b.item, b.cry, text)
                         : BuildWildBattleMessageScript(b.species, b.level, b.item, b.cry, text),
               std::string(kScriptField), form.Text3.text});
    gameReady ? write.Add(message) : write.Expect(message);
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  if (!write.CheckAskAndWrite(dialogs)) return;
  if (!gameReady &&
      !AskAndWriteMessage(write, dialogs, kWildMessageTitle, kWildMessagePrompt, std::move(message), form.keptMessage)) {
    return;
  }
  Finish(WindowName::Form4, dialogs);
}

void PressFindScriptSpace(Form3& form, RomImage& rom, Dialogs& dialogs) {
  PressFindFreeSpace(form.Text3, kScriptField, kScriptPiece, ScriptLength(form), nullptr, 0, rom, dialogs);
}

void PressFindScriptSpace(Form4& form, RomImage& rom, Dialogs& dialogs) {
  const std::optional<std::string> message = MessageForFreeSpace(
      form.Text3, kScriptField, form.Text12, dialogs, kWildMessageTitle, kWildMessagePrompt, form.keptMessage);
  if (!message) return;
  PressFindFreeSpace(form.Text3, kScriptField, kScriptPiece, ScriptLength(form), &form.Text12,
                     std::ssize(BuilderMessageBytes(form.Check1, *message)), rom, dialogs);
}

void PressFindTextSpace(Form4& form, RomImage& rom, Dialogs& dialogs) {
  const std::optional<std::string> typed = MessageForFreeSpace(
      form.Text12, kTextField, form.Text12, dialogs, kWildMessageTitle, kWildMessagePrompt, form.keptMessage);
  if (!typed) return;
  PressFindFreeSpace(form.Text12, kTextField, "the message", std::ssize(BuilderMessageBytes(form.Check1, *typed)),
                     &form.Text3, ScriptLength(form), rom, dialogs);
}

}  // namespace tessarine
