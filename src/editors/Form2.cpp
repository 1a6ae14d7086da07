#include "editors/Form2.h"

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "forms/InsertPlace.h"
#include "forms/ListRows.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

struct StarterTable {
  std::string_view code;
  StarterOffsets balls;
};

constexpr StarterTable kStarters[] = {
    {"AXVE", {0x3F76C4, 0x3F76C6, 0x3F76C8}}, {"AXPE", {0x3F771C, 0x3F771E, 0x3F7720}},
    {"BPRE", {0x169BB5, 0x169D82, 0x169DB8}}, {"BPGE", {0x169B91, 0x169D5E, 0x169D94}},
    {"BPEJ", {0x590C08, 0x590C0A, 0x590C0C}},
};

constexpr int kBallCount = 3;

// The controls of one ball, in the order Ball 1, 2, 3.
struct Ball {
  std::string_view name;
  ComboBox Form2::*list;
  TextBox Form2::*read;
  TextBox Form2::*save;
};
constexpr Ball kBalls[kBallCount] = {{"Ball 1", &Form2::Combo1, &Form2::Text1, &Form2::balltxt},
                                     {"Ball 2", &Form2::Combo2, &Form2::Text2, &Form2::balltxt2},
                                     {"Ball 3", &Form2::Combo3, &Form2::Text3, &Form2::balltxt3}};

bool SideBySide(const StarterOffsets& balls) { return balls[1] == balls[0] + 2 && balls[2] == balls[1] + 2; }

void Choose(Form2& form, const Ball& ball, int index) {
  if (!(form.*ball.list).Show(index)) return;
  const std::string text = ToHexText(index);
  (form.*ball.read).text = text;
  (form.*ball.save).text = text;
}

}  // namespace

std::optional<StarterOffsets> FindStarterOffsets(std::string_view gameCode) {
  for (const StarterTable& game : kStarters) {
    if (game.code == gameCode) return game.balls;
  }
  return std::nullopt;
}

std::optional<Starters> ReadStarters(RomImage& rom, std::string_view gameCode) {
  const auto balls = FindStarterOffsets(gameCode);
  if (!balls) return std::nullopt;
  Starters starters{};
  if (SideBySide(*balls)) {  // one table: one Seek, three reads in a row
    rom.Seek((*balls)[0]);
    for (std::int16_t& starter : starters) starter = rom.ReadWord();
  } else {
    for (int i = 0; i < kBallCount; ++i) starters[i] = rom.ReadWord((*balls)[i]);
  }
  return starters;
}

void WriteStarters(RomImage& rom, std::string_view gameCode, std::int16_t ball1, std::int16_t ball2,
                   std::int16_t ball3) {
  const auto balls = FindStarterOffsets(gameCode);
  if (!balls) return;
  try {
    for (int i = 0; i < kBallCount; ++i) {
      RequireInsideRom(rom, (*balls)[i], 2, "its species", kBalls[i].name, ToHexText((*balls)[i]));
    }
  } catch (const Failure& failure) {
    throw failure.Then("No starter was written.");
  }
  const Starters values{ball1, ball2, ball3};
  for (int i = 0; i < kBallCount; ++i) rom.WriteWord((*balls)[i], values[i]);
}

void LoadForm2(Form2& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  if (!FindStarterOffsets(main.headtxt)) return;
  // Read first: a read that fails (no ROM open) leaves the form as it stood.
  const Starters starters = *ReadStarters(rom, main.headtxt);
  std::vector<std::string> rows(kSpeciesCount);
  for (std::size_t i = 0; i < rows.size() && i < main.Combo1.rows.size(); ++i) rows[i] = main.Combo1.rows[i];
  for (const Ball& ball : kBalls) {
    (form.*ball.list).Clear();
    (form.*ball.list).rows = rows;
  }
  std::string withoutRow;
  for (int i = 0; i < kBallCount; ++i) {
    const Ball& ball = kBalls[i];
    (form.*ball.read).text = ToHexText(starters[i]);
    (form.*ball.save).text = (form.*ball.read).text;
    const std::int32_t row = ParseLenient((form.*ball.read).text);
    if (IsSpeciesNumber(row)) {
      Choose(form, ball, row);
      continue;
    }
    const std::string number = (form.*ball.read).text;
    withoutRow += (withoutRow.empty() ? "" : "\n") + std::string(ball.name) + " holds species " + number +
                  ", which has no row in the list (the last is " + ToHexText(kSpeciesCount - 1) +
                  "). Its list shows no choice, and \"Save\" writes " + number +
                  " back unless you choose a row for it.";
  }
  form.readAt = main.romOpenings;
  if (!withoutRow.empty()) dialogs.Message(withoutRow);
}

void SetCombo1Selection(Form2& form, int index) { Choose(form, kBalls[0], index); }
void SetCombo2Selection(Form2& form, int index) { Choose(form, kBalls[1], index); }
void SetCombo3Selection(Form2& form, int index) { Choose(form, kBalls[2], index); }

void PressSave(Form2& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  if (!FindStarterOffsets(main.headtxt)) return;
  // With no ROM open the write's own check says so: no ROM is open now whose starters Reload could read.
  if (rom.IsOpen() && form.readAt != main.romOpenings) {
    throw Failure(
        "The lists were filled before the last Open ROM. Press \"Reload\" to read the starters of the ROM "
        "that is open now. Nothing was saved.");
  }
  Starters values{};
  try {
    for (int i = 0; i < kBallCount; ++i) values[i] = ParseWord((form.*kBalls[i].save).text, kBalls[i].name);
  } catch (const Failure& failure) {
    throw failure.Then("Nothing was saved.");
  }
  WriteStarters(rom, main.headtxt, values[0], values[1], values[2]);
  dialogs.Message("Saved");
}

void PressDone(Dialogs& dialogs) { dialogs.Hide(WindowName::Form2); }

}  // namespace tessarine
