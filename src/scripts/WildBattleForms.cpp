#include "scripts/WildBattleForms.h"

#include "forms/Dialogs.h"
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

void InsertWildBattle(Form3& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  RomWrite write(rom, main);
  write.From(form.filled, FilledBeforeLastOpen(kLoadAgain));
  try {
    const Battle b = ParseBattle(form, form.Text1);
    write.Add({std::string(kScriptPiece), ParseInsertOffset(form.Text3.text, kScriptField),
               BuildWildBattleScript(b.species, b.level, b.item, b.cry), std::string(kScriptField), form.Text3.text});
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  write.CheckAndWrite();
  Finish(WindowName::Form3, dialogs);
}

void InsertWildBattle(Form4& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  RomWrite write(rom, main);
  write.From(form.filled, FilledBeforeLastOpen(kLoadAgain));
  WritePiece message{"the message", 0, MessageTextBytes(""), std::string(kTextField), form.Text12.text};
  try {
    const Battle b = ParseBattle(form, form.Text14);
    message.at = ParseInsertOffset(form.Text12.text, kTextField);
    const RomOffset script = ParseInsertOffset(form.Text3.text, kScriptField);
    write.Add({std::string(kScriptPiece), script,
               BuildWildBattleMessageScript(b.species, b.level, b.item, b.cry, static_cast<RomOffset>(message.at)),
               std::string(kScriptField), form.Text3.text});
    write.Expect(message);
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  write.CheckAndWrite();
  AskAndWriteMessage(write, dialogs, kWildMessageTitle, kWildMessagePrompt, std::move(message));
  Finish(WindowName::Form4, dialogs);
}

}  // namespace tessarine
