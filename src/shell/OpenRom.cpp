#include "shell/OpenRom.h"

#include "events/EventSelection.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/Failure.h"
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

}  // namespace tessarine
