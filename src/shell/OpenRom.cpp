#include "shell/OpenRom.h"

#include <cctype>
#include <filesystem>

#include "events/EventSelection.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/Failure.h"
#include "rom/FilePath.h"
#include "rom/GameProfile.h"
#include "rom/RomImage.h"
#include "shell/SpeciesList.h"

namespace tessarine {
namespace {

void ApplyProfile(Form1& form, const GameProfile& profile) {
  form.cowmoo = profile.cowmoo;
  const bool rs = FollowsRs(profile.cowmoo);  // Emerald's buttons and fields are Ruby's
  form.Command6.visible = rs;
  form.frlgl.visible = !rs;
  form.frlgl.enabled = true;
  form.Combo3.enabled = profile.cowmoo == kFamilyRs;
  form.Combo4.enabled = true;
  form.Combo5.enabled = true;
  form.Command2.enabled = true;
  form.Command9.enabled = true;
  form.Command10.enabled = true;
  form.Label20 = profile.Label20;
  form.Label1 = profile.Label1;
  form.raytxt = profile.raytxt;
  if (rs) form.grou = profile.grou;  // FireRed and LeafGreen have no such event
  form.regi1 = profile.regi1;
  form.regi2 = profile.regi2;
  form.regi3 = profile.regi3;
}

// What an unknown game is told. A known game of a revision whose tables are not known is
// told which revision it is: it is no game of another revision.
std::string UnsupportedRom(const GameIdentity& game) {
  if (!IsKnownCode(game.code) || FindGameProfile(game) != nullptr) return "Unsupported ROM";
  const std::string revision = game.revision < 0 ? "its header ends before its revision byte"
                                                 : "its revision byte holds " + std::to_string(game.revision);
  return "Unsupported ROM\n\nThis ROM's game code is " + game.code + ", and " + revision +
         ". Tessarine does not know the tables of that revision, so it takes those of no other revision for it.";
}

// Steps 1 and 2 of every open: no list, no file, and nothing read before belongs to the ROM
// that comes.
void CloseRom(Form1& form, RomImage& rom) {
  form.Combo1.Clear();
  rom.Close();
  // From here on, what was read from the file before belongs to no open ROM: the tools read
  // again, and the event fields wait for an event to be picked.
  ++form.romOpenings;
}

// The steps after the file dialog, on the file it gave.
void OpenRomFile(Form1& form, RomImage& rom, Dialogs& dialogs, const std::string& path) {
  // From here each step runs whatever the one before it did; what went wrong is told.
  try {
    rom.Open(path);
  } catch (const Failure& failure) {
    dialogs.Message(failure.what());
  }
  GameIdentity game;
  if (rom.IsOpen()) {
    game = ReadGameIdentity(rom);
    if (game.code.empty()) {
      dialogs.Message("\"" + path + "\" is too short to be a ROM: it ends before the game code of its header.");
    }
  }
  form.headtxt = game.code;
  form.revision = game.revision;
  // A file that cannot be written is told at once, not at the first write that fails.
  form.hdtxt.caption = ShownIdentity(game) + (rom.IsOpen() && rom.IsReadOnly() ? " (read-only)" : "");

  if (const GameProfile* profile = FindGameProfile(game); profile != nullptr && profile->Opens()) {
    ApplyProfile(form, *profile);
    form.tables.Fill(form);
    try {
      FillSpeciesList(form, rom);
      SetCombo1Selection(form, 0);
    } catch (const Failure& failure) {
      dialogs.Message(failure.what());
    }
    form.rom = "Loaded";
    form.Combo3.visible = profile->cowmoo == kFamilyRs;
    form.Combo4.visible = profile->cowmoo == kFamilyFrlg;
    form.Combo5.visible = profile->cowmoo == kFamilyE;
    return;
  }

  dialogs.Message(UnsupportedRom(game));
  dialogs.Hide(WindowName::Form1);
  dialogs.Show(WindowName::Form9);
  // No event list reads this ROM at the offsets of the game opened before.
  form.Combo3.enabled = false;
  form.Combo4.enabled = false;
  form.Combo5.enabled = false;
  form.Command10.enabled = false;
  form.Command9.enabled = false;
  form.Command6.enabled = false;
  form.frlgl.enabled = false;
}

// What was dropped, in quotes, as its sentence names it: a path with its file name whole and,
// where it is long, only the start of its folder; a piece of text only by its start.
std::string Quoted(const std::string& dropped, bool isPath) {
  constexpr std::size_t kLongest = 60;
  const auto cutAt = [](const std::string& text, std::size_t cut) {
    while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80) --cut;  // not inside a letter
    return text.substr(0, cut);
  };
  std::string shown = dropped.substr(0, dropped.find_first_of("\r\n"));
  if (isPath && shown.size() > kLongest) {
    const std::size_t name = shown.find_last_of("/\\") + 1;  // 0 where there is no folder
    const std::size_t room = kLongest - std::min(kLongest, shown.size() - name);
    if (room < name) shown = cutAt(shown, room) + ".../" + shown.substr(name);
  } else if (shown.size() > kLongest) {
    shown = cutAt(shown, kLongest) + "...";
  } else if (shown.size() < dropped.size()) {
    shown += "...";
  }
  return "\"" + shown + "\"";
}

bool NamesAGbaFile(const std::string& path) {
  std::string end = path.size() < 4 ? std::string() : path.substr(path.size() - 4);
  for (char& c : end) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return end == ".gba";
}

// Why a drop opens nothing, or "" when it is one .gba file.
std::string RefusalOf(const Dropped& dropped) {
  std::vector<std::string> all = dropped.paths;
  all.insert(all.end(), dropped.others.begin(), dropped.others.end());
  if (all.empty()) return "What was dropped is no file.";
  if (all.size() > 1) {
    constexpr std::size_t kNamed = 3;
    std::string names;
    for (std::size_t i = 0; i < all.size() && i < kNamed; ++i) {
      const bool last = i + 1 == all.size();
      names += (i == 0 ? "" : last ? " and " : ", ") + Quoted(all[i], i < dropped.paths.size());
    }
    if (all.size() > kNamed) names += " and " + std::to_string(all.size() - kNamed) + " more";
    return std::to_string(all.size()) + " things were dropped: " + names + ".";
  }
  if (dropped.paths.empty()) return Quoted(all[0], false) + " is not a file on this computer.";
  // A path that cannot be looked at is no folder: opening it will tell.
  if (std::filesystem::is_directory(StatusAt(all[0]))) return Quoted(all[0], true) + " is a folder.";
  if (!NamesAGbaFile(all[0])) return Quoted(all[0], true) + " is not a .gba file.";
  return "";
}

}  // namespace

void OpenRom(Form1& form, RomImage& rom, Dialogs& dialogs) {
  CloseRom(form, rom);
  const std::string path = dialogs.OpenFile("Open", "Pokemon Advance rom|*.gba");
  if (path.empty()) return;
  OpenRomFile(form, rom, dialogs, path);
}

void OpenRomAt(Form1& form, RomImage& rom, Dialogs& dialogs, const std::string& path) {
  CloseRom(form, rom);
  OpenRomFile(form, rom, dialogs, path);
}

bool TakesDrop(const Dropped& dropped) { return RefusalOf(dropped).empty(); }

void OpenDropped(Form1& form, RomImage& rom, Dialogs& dialogs, const Dropped& dropped) {
  if (const std::string refusal = RefusalOf(dropped); !refusal.empty()) {
    throw Failure(refusal + " Drop one .gba file on the window to open it; nothing was opened.");
  }
  OpenRomAt(form, rom, dialogs, dropped.paths.front());
}

}  // namespace tessarine
