#include "scripts/WildBattleForms.h"

#include "forms/Dialogs.h"
#include "forms/InsertPlace.h"
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

void Finish(WindowName window, Dialogs& dialogs) {
  dialogs.Message("Inserted");
  dialogs.Hide(window);
}

}  // namespace

void LoadWildBattleLists(WildBattleForm& form, const std::vector<std::string>& speciesRows,
                         const std::vector<std::string>& itemRows) {
  form.Combo1.rows = speciesRows;
  form.Combo2.Clear();
  form.Combo2.rows = itemRows;
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

void InsertWildBattle(Form3& form, RomImage& rom, Dialogs& dialogs) {
  RomOffset script = 0;
  Bytes bytes;
  try {
    const Battle b = ParseBattle(form, form.Text1);
    script = ParseInsertOffset(form.Text3.text, kScriptField);
    bytes = BuildWildBattleScript(b.species, b.level, b.item, b.cry);
    RequireInsideRom(rom, script, static_cast<std::int64_t>(bytes.size()), "the script", kScriptField,
                     form.Text3.text);
  } catch (const Failure& failure) {
    throw failure.Then("Nothing was written.");
  }
  rom.WriteBytes(script, bytes);
  Finish(WindowName::Form3, dialogs);
}

void InsertWildBattle(Form4& form, RomImage& rom, Dialogs& dialogs) {
  RomOffset script = 0;
  RomOffset text = 0;
  Bytes bytes;
  try {
    const Battle b = ParseBattle(form, form.Text14);
    text = ParseInsertOffset(form.Text12.text, kTextField);
    script = ParseInsertOffset(form.Text3.text, kScriptField);
    bytes = BuildWildBattleMessageScript(b.species, b.level, b.item, b.cry, text);
    RequireInsideRom(rom, script, static_cast<std::int64_t>(bytes.size()), "the script", kScriptField,
                     form.Text3.text);
    RequireInsideRom(rom, text, 2, "the message", kTextField, form.Text12.text);
  } catch (const Failure& failure) {
    throw failure.Then("Nothing was written.");
  }
  rom.WriteBytes(script, bytes);
  AskAndWriteMessage(rom, dialogs, kWildMessageTitle, kWildMessagePrompt, text, kTextField, form.Text12.text,
                     "The wild battle script was written at " + ToHexText(script) + ".");
  Finish(WindowName::Form4, dialogs);
}

}  // namespace tessarine
