#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rom/Bytes.h"
#include "rom/Failure.h"
#include "rom/GbaPointer.h"

namespace tessarine {

class Dialogs;
struct FilledAt;
struct Form1;
class RomImage;

// The one rule for every write of the system: whether an action may write, and what it tells
// the person when it may not or when it stops half way. Every tool that writes asks it.

// The cartridge header runs from 0 to &HBF: entry code, logo, title, game code and revision.
// No tool writes there: an offset field that still holds its initial "&H000000" would.
inline constexpr RomOffset kCartridgeHeaderEnd = 0xC0;

// ParseOffset of an offset field's text, refused where it lies inside the cartridge header
// ("&H000000", "0" and "&H0" alike) or before the start of the ROM. The Failure names the
// field and its text, and ends with `hint`.
inline constexpr std::string_view kFreeSpaceHint = "Type the offset of free space (a place with lots of FFs).";
RomOffset ParseInsertOffset(std::string_view text, std::string_view field, std::string_view hint = kFreeSpaceHint);

// One piece of what an action writes: what it is ("the script", "Ball 2"), where, and its
// bytes. `at` is wide, so that a place worked out from a table and an entry number (which may
// lie anywhere) is tested as it is, never wrapped. A place that a field gave names the field
// and its text in the sentences.
struct WritePiece {
  std::string name;
  std::int64_t at = 0;
  Bytes bytes;
  std::string field;
  std::string fieldText;
};

// What an action writes, piece by piece: checked by the rule before the first write, and
// accounted for as it goes. An action that writes in steps (a script, then a message typed
// in between) adds and writes each step's pieces in turn; the account spans all of them.
class RomWrite {
 public:
  RomWrite(RomImage& rom, const Form1& main) : rom_(rom), main_(main) {}

  // The values to write come from what was filled after some Open ROM (FilledAt); when that
  // was not the last Open ROM, the action may not write and `refusal` says why.
  RomWrite& From(const FilledAt& filled, std::string_view refusal);
  // From, for a tool window: its refusal says that the window holds nothing read from the ROM
  // that is open now, because it was filled before the last Open ROM or a read that failed
  // emptied it (`filled` tells which), and ends with `again`, how to fill it from that ROM.
  RomWrite& FromWindow(const FilledAt& filled, std::string_view again);
  RomWrite& Add(WritePiece piece);
  // A piece that the action writes later, once it knows its bytes (a message still to be
  // typed): its place is checked with the others, for as many bytes as `piece` holds, the
  // least it will take. Adding a piece of the same name later puts it in its place.
  RomWrite& Expect(WritePiece piece);
  // The pieces make one thing that runs in the game (a script and its own texts): none may
  // lie over another, since the later one would break the earlier. Check refuses two that
  // share a byte.
  RomWrite& KeepApart();

  // The rule, before the pieces added and not yet written, and those expected, are written:
  //   - a ROM is open and can be written, the path it was opened by still names that file, and
  //     its header still holds the game code and revision read at the last Open ROM;
  //   - the form the values come from was filled after the last Open ROM;
  //   - each piece lies wholly inside the file, ends at or before the last offset a ROM can
  //     have, and keeps out of the cartridge header.
  // Throws the Failure that says why not, followed by the account of what was written and
  // what was not (`alsoNotWritten`: as for Stopped).
  void Check(const std::vector<std::string>& alsoNotWritten = {}) const;

  // Writes the pieces added and not yet written, in order, after a last look at the file (open,
  // at its path, with its header): a question may have stood since the check. A write that
  // fails ends the action with its sentence and the account.
  void Write(const std::vector<std::string>& alsoNotWritten = {});

  void CheckAndWrite(const std::vector<std::string>& alsoNotWritten = {}) {
    Check(alsoNotWritten);
    Write(alsoNotWritten);
  }

  // The free-space question, for a tool that writes new data into free space (0xFF bytes):
  // reads the places of the pieces added since the last question, and when any byte there is
  // not 0xFF asks once, Yes or No with No the default, where and how many ("The 18 bytes at
  // &H700000 are not free space: 12 of them are not FF. Write over them?"), and how many of
  // them the pieces this action wrote before hold ("..., among them 2 bytes of the script
  // written just now. ..."). True on Yes, or when all is free. On No: false while nothing is
  // written, so that the action stops with nothing written; after a write, the Failure that
  // names what was written. Asked after Check, which makes sure that the places lie inside
  // the file.
  bool ConfirmFreeSpace(Dialogs& dialogs, const std::vector<std::string>& alsoNotWritten = {});

  // Check, the free-space question, Write; false when the answer No left all unwritten.
  [[nodiscard]] bool CheckAskAndWrite(Dialogs& dialogs, const std::vector<std::string>& alsoNotWritten = {}) {
    Check(alsoNotWritten);
    if (!ConfirmFreeSpace(dialogs, alsoNotWritten)) return false;
    Write(alsoNotWritten);
    return true;
  }

  // Whether the action has written any byte yet.
  bool HasWritten() const { return written_ > 0 || reached_ > 0; }

  // The failure that ends the action here, followed by the account: "Nothing was written.",
  // or what was written (runs of bytes, with the pieces they hold, and the first bytes of a
  // piece whose write the system refused part way) and what was not: the rest of that piece,
  // the pieces added and not yet written, those expected, and `alsoNotWritten`, which the
  // action had still to work out. Bytes written into a file that another program has since
  // changed are said to be in the file as it was opened (NowAtPath).
  [[nodiscard]] Failure Stopped(const Failure& failure, const std::vector<std::string>& alsoNotWritten = {}) const;

  // What the action wrote, as "83 bytes at &H700000 (the body and the declined branch)";
  // empty when nothing.
  std::string WrittenText() const;

 private:
  // The part of the rule that looks at the file: open, writable, at its path, with its header.
  void CheckFile(const std::vector<std::string>& alsoNotWritten) const;
  // What the file at the path holds of the bytes written: "" when it is the file they went
  // into, as it was opened; otherwise what another program that replaced, moved, removed,
  // wrote into or cut short the file since has left of them ("the file now at that path
  // holds none of them").
  std::string NowAtPath() const;

  RomImage& rom_;
  const Form1& main_;
  const FilledAt* filled_ = nullptr;
  std::string refusal_;
  std::vector<WritePiece> pieces_;
  std::vector<WritePiece> expected_;
  std::size_t written_ = 0;  // pieces_[0, written_) are in the file
  std::size_t reached_ = 0;  // and the first bytes of pieces_[written_], when the system refused the rest
  std::size_t asked_ = 0;    // pieces_[0, asked_) have been through the free-space question
  bool apart_ = false;
};

}  // namespace tessarine
