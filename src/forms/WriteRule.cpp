#include "forms/WriteRule.h"

#include <algorithm>
#include <filesystem>
#include <span>

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/FilePath.h"
#include "rom/GameProfile.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

std::string FieldAndText(std::string_view field, std::string_view text) {
  return std::string(field) + ": \"" + std::string(text) + "\"";
}

std::string HeaderRange() {
  return ToHexText(RomOffset{0}) + " to " + ToHexText(kCartridgeHeaderEnd - 1);
}

// "the script" as the subject of a sentence: "The script".
std::string Capitalized(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

std::string Size(std::size_t count) { return std::to_string(count) + (count == 1 ? " byte" : " bytes"); }

// "the body and the declined branch", "the body, the branch and the text".
std::string JoinNames(const std::vector<std::string>& names) {
  std::string joined;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) joined += i + 1 == names.size() ? " and " : ", ";
    joined += names[i];
  }
  return joined;
}

std::int64_t EndOf(const WritePiece& piece) { return piece.at + static_cast<std::int64_t>(piece.bytes.size()); }

struct Run {
  std::int64_t at;
  std::int64_t end;
  std::vector<std::string> names;
};

// The pieces, in their order, as runs of bytes: pieces that meet or overlap the run before
// are one run with it.
std::vector<Run> MergedRuns(std::span<const WritePiece> pieces) {
  std::vector<Run> runs;
  for (const WritePiece& piece : pieces) {
    const std::int64_t end = EndOf(piece);
    if (!runs.empty() && piece.at <= runs.back().end && end >= runs.back().at) {
      runs.back().at = std::min(runs.back().at, piece.at);
      runs.back().end = std::max(runs.back().end, end);
      runs.back().names.push_back(piece.name);
    } else {
      runs.push_back({piece.at, end, {piece.name}});
    }
  }
  return runs;
}

// The pieces as runs of bytes, each named by the pieces it holds.
std::vector<std::string> Runs(std::span<const WritePiece> pieces) {
  const std::vector<Run> runs = MergedRuns(pieces);
  std::vector<std::string> texts;
  for (const Run& run : runs) {
    texts.push_back(Size(static_cast<std::size_t>(run.end - run.at)) + " at " + PlaceText(run.at) + " (" +
                    JoinNames(run.names) + ")");
  }
  return texts;
}

// The first or the last `count` bytes of a piece: "the first 74 of the 76 bytes at &H700000
// (the body)", "the last byte of the 2 bytes at &H169BB5 (Ball 1)".
std::string PartOf(const WritePiece& piece, std::size_t count, bool first) {
  return std::string(first ? "the first " : "the last ") + (count == 1 ? "byte" : std::to_string(count)) + " of the " +
         Size(piece.bytes.size()) + " at " + PlaceText(piece.at) + " (" + piece.name + ")";
}

// Where a piece is, for a sentence: its field and text when a field placed it.
std::string PieceAt(const WritePiece& piece) {
  const std::string what = piece.name + ", " + Size(piece.bytes.size()) + " from " + PlaceText(piece.at);
  return piece.field.empty() ? Capitalized(what) : FieldAndText(piece.field, piece.fieldText) + ": " + what;
}

}  // namespace

RomOffset ParseInsertOffset(std::string_view text, std::string_view field, std::string_view hint) {
  const RomOffset offset = ParseOffset(text, field);
  if (offset >= kCartridgeHeaderEnd) return offset;
  const std::string where = offset < 0
                                ? " lies before the start of the ROM."
                                : " lies inside the cartridge header, " + HeaderRange() + ", and would write over it.";
  throw Failure(FieldAndText(field, text) + where + " " + std::string(hint));
}

RomWrite& RomWrite::From(const FilledAt& filled, std::string_view refusal) {
  filled_ = &filled;
  refusal_ = refusal;
  return *this;
}

RomWrite& RomWrite::FromWindow(const FilledAt& filled, std::string_view again) {
  return From(filled, (filled.opening ? "This window was filled before the last Open ROM, so what it holds may "
                                        "belong to the ROM opened before. "
                                      : "This window holds nothing read from the ROM that is open now: its last read "
                                        "failed. ") +
                          std::string(again));
}

RomWrite& RomWrite::Add(WritePiece piece) {
  std::erase_if(expected_, [&](const WritePiece& expected) { return expected.name == piece.name; });
  pieces_.push_back(std::move(piece));
  return *this;
}

RomWrite& RomWrite::Expect(WritePiece piece) {
  expected_.push_back(std::move(piece));
  return *this;
}

RomWrite& RomWrite::KeepApart() {
  apart_ = true;
  return *this;
}

bool RomWrite::ConfirmFreeSpace(Dialogs& dialogs, const std::vector<std::string>& alsoNotWritten) {
  std::vector<WritePiece> places(pieces_.begin() + static_cast<std::ptrdiff_t>(asked_), pieces_.end());
  std::ranges::sort(places, {}, &WritePiece::at);
  std::vector<std::string> taken;
  std::size_t notFree = 0;
  std::vector<std::size_t> ours(written_);  // of each piece written, its bytes among those not FF
  for (const Run& run : MergedRuns(places)) {
    const Bytes there = rom_.ReadBytes(static_cast<RomOffset>(run.at), static_cast<std::size_t>(run.end - run.at));
    std::size_t count = 0;
    for (std::int64_t at = run.at; at < run.at + std::ssize(there); ++at) {
      if (there[static_cast<std::size_t>(at - run.at)] == 0xFF) continue;
      ++count;
      // The byte is that of the last piece written over it, if any.
      for (std::size_t k = written_; k-- > 0;) {
        if (pieces_[k].at <= at && at < EndOf(pieces_[k])) {
          ++ours[k];
          break;
        }
      }
    }
    if (count == 0) continue;
    notFree += count;
    taken.push_back("the " + Size(static_cast<std::size_t>(run.end - run.at)) + " at " + PlaceText(run.at));
  }
  if (notFree > 0) {
    std::vector<std::string> written;
    for (std::size_t k = 0; k < written_; ++k) {
      if (ours[k] > 0) written.push_back(Size(ours[k]) + " of " + pieces_[k].name);
    }
    const bool one = taken.size() == 1 && taken[0].starts_with("the 1 byte ");
    const std::string question = Capitalized(JoinNames(taken)) + (one ? " is" : " are") + " not free space: " +
                                 std::to_string(notFree) +
                                 (notFree == 1 ? " of them is not FF" : " of them are not FF") +
                                 (written.empty() ? "" : ", among them " + JoinNames(written) + " written just now") +
                                 ". Write over them?";
    MessageAnswer answer = MessageAnswer::No;
    try {
      answer = dialogs.Message(question, MessageButtons::YesNo, "Not free space");
    } catch (const Failure& failure) {  // a question that no one may answer ends the action here
      throw Stopped(failure, alsoNotWritten);
    }
    if (answer != MessageAnswer::Yes) {
      if (written_ == 0) return false;
      throw Stopped(Failure("You chose not to write over the bytes that are not free space."), alsoNotWritten);
    }
  }
  asked_ = pieces_.size();
  return true;
}

void RomWrite::CheckFile(const std::vector<std::string>& alsoNotWritten) const {
  const auto refuse = [&](const std::string& why) { return Stopped(Failure(why), alsoNotWritten); };
  if (!rom_.IsOpen()) throw refuse("No ROM is open. Open a ROM first.");
  try {
    rom_.RequireWritable();
  } catch (const Failure& failure) {
    throw Stopped(failure, alsoNotWritten);
  }
  if (!rom_.StillAtItsPath()) {
    throw refuse("\"" + rom_.romPath() + "\" is no longer the file that was opened: another program replaced, " +
                 "moved or removed it since. Open the ROM again to work on the file that is there now.");
  }
  const GameIdentity now = ReadGameIdentity(rom_);
  if (now != IdentityOf(main_)) {
    throw refuse("The header of \"" + rom_.romPath() + "\" no longer names the game that was opened (" +
                 ShownIdentity(IdentityOf(main_)) + "): it now reads \"" + ShownIdentity(now) +
                 "\". Another program changed the file since. Open the ROM again.");
  }
}

std::string RomWrite::NowAtPath() const {
  // What was written went into the file as it was opened: a file put at its path since holds
  // none of it, one moved or removed took it along, and another program that wrote into the
  // file or cut it short may have written over it or cut it off.
  if (!rom_.IsOpen()) return {};
  if (!rom_.StillAtItsPath()) {
    return std::filesystem::exists(StatusAt(rom_.romPath()))
               ? "the file now at that path holds none of them"
               : "no file is at that path now: another program moved or removed the file, and them with it";
  }
  if (ReadGameIdentity(rom_) != IdentityOf(main_)) {
    return "the file at that path may not hold them: another program has written into it since";
  }
  std::int64_t end = 0;
  for (std::size_t i = 0; i < written_; ++i) end = std::max(end, EndOf(pieces_[i]));
  if (reached_ > 0) end = std::max(end, pieces_[written_].at + static_cast<std::int64_t>(reached_));
  if (rom_.Length() < end) {
    return "the file at that path now ends at " + PlaceText(rom_.Length()) +
           ": another program cut it short, and it holds at most what of them lies before that end";
  }
  return {};
}

void RomWrite::Check(const std::vector<std::string>& alsoNotWritten) const {
  const auto refuse = [&](const std::string& why) { return Stopped(Failure(why), alsoNotWritten); };
  CheckFile(alsoNotWritten);
  if (filled_ != nullptr && !filled_->Current(main_)) throw refuse(refusal_);
  std::vector<const WritePiece*> toCheck;
  for (std::size_t i = written_; i < pieces_.size(); ++i) toCheck.push_back(&pieces_[i]);
  for (const WritePiece& piece : expected_) toCheck.push_back(&piece);
  for (const WritePiece* checked : toCheck) {
    const WritePiece& piece = *checked;
    const auto length = static_cast<std::int64_t>(piece.bytes.size());
    if (piece.at < 0) throw refuse(PieceAt(piece) + ", would lie before the start of the ROM.");
    if (piece.at < kCartridgeHeaderEnd) {
      throw refuse(PieceAt(piece) + ", would lie inside the cartridge header, " + HeaderRange() +
                   ", and write over it.");
    }
    if (piece.at + length - 1 > kLastRomOffset) {
      throw refuse(PieceAt(piece) + ", would lie beyond " + ToHexText(static_cast<RomOffset>(kLastRomOffset)) +
                   ", the last offset of a ROM.");
    }
    if (!rom_.Holds(piece.at, length)) {
      throw refuse(PieceAt(piece) + ", would run past the end of the ROM, which is " + PlaceText(rom_.Length()) +
                   " bytes long.");
    }
  }
  if (!apart_) return;
  std::vector<const WritePiece*> all;
  for (const WritePiece& piece : pieces_) all.push_back(&piece);
  for (const WritePiece& piece : expected_) all.push_back(&piece);
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = i + 1; j < all.size(); ++j) {
      if (all[i]->at < EndOf(*all[j]) && all[j]->at < EndOf(*all[i])) {
        throw refuse(PieceAt(*all[i]) + ", and " + PieceAt(*all[j]) +
                     ", would share bytes: in the game a script that writes over its own pieces cannot run. Type "
                     "offsets that keep them apart.");
      }
    }
  }
}

void RomWrite::Write(const std::vector<std::string>& alsoNotWritten) {
  // A person may have taken their time over a question since the check: the file is looked
  // at again right before its first byte.
  if (written_ < pieces_.size()) CheckFile(alsoNotWritten);
  for (; written_ < pieces_.size(); ++written_) {
    const WritePiece& piece = pieces_[written_];
    try {
      rom_.WriteBytes(static_cast<RomOffset>(piece.at), piece.bytes);
    } catch (const Failure& failure) {
      // The system may refuse a write part way, after its first bytes.
      reached_ = rom_.LastWriteReached();
      if (reached_ == piece.bytes.size()) {  // all of them, and only the flush behind them failed
        ++written_;
        reached_ = 0;
      }
      throw Stopped(failure, alsoNotWritten);
    }
  }
}

std::string RomWrite::WrittenText() const {
  std::vector<std::string> written = Runs(std::span<const WritePiece>(pieces_).first(written_));
  if (reached_ > 0) written.push_back(PartOf(pieces_[written_], reached_, true));
  return JoinNames(written);
}

Failure RomWrite::Stopped(const Failure& failure, const std::vector<std::string>& alsoNotWritten) const {
  if (!HasWritten()) return failure.Then("Nothing was written.");
  std::vector<std::string> notWritten;
  std::size_t next = written_;
  if (reached_ > 0) {
    notWritten.push_back(PartOf(pieces_[next], pieces_[next].bytes.size() - reached_, false));
    ++next;
  }
  const std::vector<std::string> rest = Runs(std::span<const WritePiece>(pieces_).subspan(next));
  notWritten.insert(notWritten.end(), rest.begin(), rest.end());
  // A piece expected has no length yet.
  for (const WritePiece& piece : expected_) notWritten.push_back(piece.name + " at " + PlaceText(piece.at));
  notWritten.insert(notWritten.end(), alsoNotWritten.begin(), alsoNotWritten.end());
  const std::string nowAtPath = NowAtPath();
  const std::string written = nowAtPath.empty() ? "Written before it stopped: " + WrittenText() + "."
                                                : "Written before it stopped, into the file as it was opened: " +
                                                      WrittenText() + "; " + nowAtPath + ".";
  return failure.Then(written + (notWritten.empty() ? "" : " Not written: " + JoinNames(notWritten) + "."));
}

}  // namespace tessarine
