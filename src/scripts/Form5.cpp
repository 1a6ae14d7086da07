#include "scripts/Form5.h"

#include <algorithm>

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "forms/InsertPlace.h"
#include "rom/Failure.h"
#include "rom/GameProfile.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "scripts/ItemList.h"
#include "scripts/ScriptBuilders.h"

namespace tessarine {
namespace {

// The item table of the open ROM, when there is one to read.
bool HasItemTable(const RomImage& rom, std::string_view itemRecords) {
  if (!rom.IsOpen()) return false;
  try {
    return ParseOffset(itemRecords) >= 0;
  } catch (const Failure&) {
    return false;  // an unknown game before the Unsupported ROM dialog gave the offset
  }
}

}  // namespace

void LoadForm5Lists(Form5& form, Form1& main, RomImage& rom) {
  if (const auto profile = FindGameProfile(main.headtxt)) main.itemRecords = profile->itemRecords;
  form.Label7.caption = main.itemRecords;
  form.Combo1.Clear();
  form.Combo1.rows = main.Combo1.rows;
  form.Combo2.Clear();
  if (HasItemTable(rom, main.itemRecords)) form.Combo2.rows = LoadItemList(rom, main.itemRecords);
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

void InsertGivePokemon(Form5& form, RomImage& rom, Dialogs& dialogs) {
  constexpr std::string_view kScriptField = "Offset To insert Script";
  constexpr std::string_view kTextField = "Offset to insert new text";
  RomOffset script = 0;
  RomOffset text = 0;
  std::vector<ScriptPiece> pieces;
  try {
    text = ParseInsertOffset(form.Text12.text, kTextField);
    const std::int16_t item = ParseWord(form.Text2.text, "Held Item");
    const std::uint8_t level = ParseByte(form.Text1.text, "Level");
    const std::int16_t species = ParseWord(form.pkmntxt.text, "Pokemon");
    script = ParseInsertOffset(form.Text3.text, kScriptField);
    pieces = GivePokemonPieces(species, level, item, script, text);
    std::int64_t end = script;
    for (const ScriptPiece& piece : pieces) {
      end = std::max(end, std::int64_t{piece.at} + static_cast<std::int64_t>(piece.bytes.size()));
    }
    RequireInsideRom(rom, script, end - script, "the script", kScriptField, form.Text3.text);
    RequireInsideRom(rom, text, 2, "the question", kTextField, form.Text12.text);
  } catch (const Failure& failure) {
    throw failure.Then("Nothing was written.");
  }
  for (const ScriptPiece& piece : pieces) rom.WriteBytes(piece.at, piece.bytes);
  AskAndWriteMessage(rom, dialogs, kGiveMessageTitle, kGiveMessagePrompt, text, kTextField, form.Text12.text,
                     "The give-Pokemon script was written at " + ToHexText(script) + ".");
  dialogs.Hide(WindowName::Form5);
}

}  // namespace tessarine
