#include "shell/OpenRom.h"

#include <cctype>
#include <filesystem>
#include <system_error>

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

// The header's bytes as a person reads them: each byte one character (Latin-1), in UTF-8.
std::string ShownCode(const std::string& code) {
  std::string shown;
  for (const char c : code) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      shown.push_back(c);
    } else {
      shown.push_back(static_cast<char>(0xC0 | (byte >> 6)));
      shown.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
    }
  }
  return shown;
}

void ApplyProfile(Form1& form, const GameProfile& profile) {
  form.cowmoo = profile.cowmoo;
  const bool rs = profile.cowmoo == kFamilyRs;
  form.Command6.visible = rs;
  form.frlgl.visible = !rs;
  form.Combo3.enabled = rs;
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

// Steps 1 and 2 of every open: no list, no file, and nothing read before belongs to the ROM
// that comes.
void CloseRom(Form1& form, RomImage& rom) {
  form.Combo1.Clear();
  rom.Close();
  // From here on, what was read from the file before belongs to no open ROM: the tools read
  // again, and the event fields wait for an event to be picked.
  ++form.romOpenings;
  form.eventFieldsMatchRom = false;
}

// The steps after the file dialog, on the file it gave.
void OpenRomFile(Form1& form, RomImage& rom, Dialogs& dialogs, const std::string& path) {
  // From here each step runs whatever the one before it did; what went wrong is told.
  try {
    rom.Open(path);
  } catch (const Failure& failure) {
    dialogs.Message(failure.what());
  }
  std::string code;
  if (rom.IsOpen()) {
    const Bytes header = rom.ReadBytes(kGameCodeOffset, 4);
    if (header.size() == 4) {
      code.assign(header.begin(), header.end());
    } else {
      dialogs.Message("\"" + path + "\" is too short to be a ROM: it ends before the game code of its header.");
    }
  }
  form.headtxt = code;
  form.hdtxt.caption = ShownCode(code);

  if (const auto profile = FindGameProfile(code)) {
    ApplyProfile(form, *profile);
    try {
      FillSpeciesList(form, rom);
      SetCombo1Selection(form, 0);
    } catch (const Failure& failure) {
      dialogs.Message(failure.what());
    }
    form.rom = "Loaded";
    form.Combo3.visible = profile->cowmoo == kFamilyRs;
    form.Combo4.visible = !form.Combo3.visible;
    return;
  }

  dialogs.Message("Unsupported ROM");
  dialogs.Hide(WindowName::Form1);
  dialogs.Show(WindowName::Form9);
  form.Combo3.enabled = false;
  form.Command10.enabled = false;
  form.Command9.enabled = false;
  form.Command6.enabled = false;
}

// What was dropped, in quotes, as its sentence names it: a piece of text only by its start.
std::string Quoted(const std::string& dropped) {
  constexpr std::size_t kLongest = 60;
  std::string shown = dropped.substr(0, dropped.find_first_of("\r\n"));
  if (shown.size() > kLongest) {
    std::size_t cut = kLongest;
    while (cut > 0 && (static_cast<unsigned char>(shown[cut]) & 0xC0) == 0x80) --cut;  // not inside a letter
    shown = shown.substr(0, cut) + "...";
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

bool IsFolder(const std::string& path) {
  std::error_code unknown;  // a path that cannot be looked at is no folder; opening it will tell
  try {
    return std::filesystem::is_directory(ToFilePath(path), unknown);
  } catch (const std::filesystem::filesystem_error&) {
    return false;
  }
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
      names += (i == 0 ? "" : last ? " and " : ", ") + Quoted(all[i]);
    }
    if (all.size() > kNamed) names += " and " + std::to_string(all.size() - kNamed) + " more";
    return std::to_string(all.size()) + " things were dropped: " + names + ".";
  }
  if (dropped.paths.empty()) return Quoted(all[0]) + " is not a file on this computer.";
  if (IsFolder(all[0])) return Quoted(all[0]) + " is a folder.";
  if (!NamesAGbaFile(all[0])) return Quoted(all[0]) + " is not a .gba file.";
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

void OpenDropped(Form1& form, RomImage& rom, Dialogs& dialogs, const Dropped& dropped) {
  if (const std::string refusal = RefusalOf(dropped); !refusal.empty()) {
    throw Failure(refusal + " Drop one .gba file on the window to open it; nothing was opened.");
  }
  OpenRomAt(form, rom, dialogs, dropped.paths.front());
}

}  // namespace tessarine
