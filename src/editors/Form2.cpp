#include "editors/Form2.h"

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "forms/ListRows.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

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

bool SideBySide(const std::array<RomOffset, 3>& balls) {
  return balls[1] == balls[0] + 2 && balls[2] == balls[1] + 2;
}

void Choose(Form2& form, const Ball& ball, int index) {
  if (!(form.*ball.list).Show(index)) return;
  const std::string text = ToHexText(index);
  (form.*ball.read).text = text;
  (form.*ball.save).text = text;
}

}  // namespace

std::optional<Starters> ReadStarters(RomImage& rom, const GameIdentity& game) {
  const GameProfile* profile = FindGameProfile(game);
  if (profile == nullptr) return std::nullopt;
  const auto& balls = profile->starters;
  for (int i = 0; i < kBallCount; ++i) {
    if (!rom.Holds(balls[i], 2)) {
      throw Failure("The starters of this game lie at " + ToHexText(balls[0]) + ", " + ToHexText(balls[1]) + " and " +
                    ToHexText(balls[2]) + ", past the end of the file, which is " +
                    PlaceText(rom.Length()) +
                    " bytes long. No starter was read.");
    }
  }
  Starters starters{};
  if (SideBySide(balls)) {  // one table: one Seek, three reads in a row
    rom.Seek(balls[0]);
    for (std::int16_t& starter : starters) starter = rom.ReadWord();
  } else {
    for (int i = 0; i < kBallCount; ++i) starters[i] = rom.ReadWord(balls[i]);
  }
  return starters;
}

void LoadForm2(Form2& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  if (FindGameProfile(IdentityOf(main)) == nullptr) return;
  std::vector<std::string> rows(kSpeciesCount);
  for (std::size_t i = 0; i < rows.size() && i < main.Combo1.rows.size(); ++i) rows[i] = main.Combo1.rows[i];
  // Read first: a read that fails for want of a ROM leaves the form as it stood.
  Starters starters{};
  try {
    starters = *ReadStarters(rom, IdentityOf(main));
  } catch (const Failure&) {
    if (!rom.IsOpen()) throw;
    // A file too short for the starters: the lists show no value of it.
    for (const Ball& ball : kBalls) {
      (form.*ball.list).Clear();
      (form.*ball.list).rows = rows;
      (form.*ball.read).text = Form2{}.Text1.text;
      (form.*ball.save).text = Form2{}.balltxt.text;
    }
    form.filled = {};  // it holds no starters of this ROM: Save refuses until a Reload reads them
    throw;
  }
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
  form.filled.Fill(main);
  if (!withoutRow.empty()) dialogs.Message(withoutRow);
}

void SetCombo1Selection(Form2& form, int index) { Choose(form, kBalls[0], index); }
void SetCombo2Selection(Form2& form, int index) { Choose(form, kBalls[1], index); }
void SetCombo3Selection(Form2& form, int index) { Choose(form, kBalls[2], index); }

void PressSave(Form2& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  const GameProfile* game = FindGameProfile(IdentityOf(main));
  if (game == nullptr) return;
  RomWrite write(rom, main);
  write.FromWindow(form.filled, "Press \"Reload\" to read the starters of the ROM that is open now.");
  try {
    for (int i = 0; i < kBallCount; ++i) {
      Bytes word;
      AppendLittleEndian(word, static_cast<std::uint16_t>(ParseWord((form.*kBalls[i].save).text, kBalls[i].name)), 2);
      write.Add({std::string(kBalls[i].name), game->starters[i], std::move(word)});
    }
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  write.CheckAndWrite();
  dialogs.Message("Saved");
}

void PressDone(Dialogs& dialogs) { dialogs.Hide(WindowName::Form2); }

}  // namespace tessarine
