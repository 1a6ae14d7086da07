#include "scripts/ListScript.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>

#include "rom/Failure.h"
#include "rom/HexField.h"
#include "text/Braille2Text.h"

namespace tessarine {
namespace {

// What a person load leaves in Text3 for a script pointer of 0. Compared as text, exactly.
constexpr std::string_view kOffsetBad = "&HF8000000";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::uint8_t kEndOpcode = 0x02;

// The most bytes of one command that are looked at: the opcode and six operand bytes.
constexpr std::size_t kCommandSpan = 7;

// A listing can run through megabytes of free space; the file is read a block at a time.
constexpr std::size_t kBlockSize = std::size_t{1} << 20;

// Offsets reach no further than a RomOffset does.
constexpr std::int64_t kAddressable = kLastRomOffset + 1;

// ---- The command vocabulary -------------------------------------------------------------

// One piece of a command's operand text: a literal, then the unsigned little-endian value
// of `width` bytes (1 or 2) at distance `at` from the opcode, in hexadecimal with no leading
// zeros. A width of 0 ends the pieces.
struct OperandPiece {
  std::string_view literal;
  std::uint8_t at = 0;
  std::uint8_t width = 0;
};

struct Command {
  std::string_view mnemonic;  // empty: no command; the byte is listed on a line of its own
  std::uint8_t length = 1;    // the opcode included
  std::array<OperandPiece, 3> operands{};
};

// The 19 opcodes that the lister knows. Lengths and groupings are the lister's own: "call"
// shows only the low half of its pointer, "if" passes over its operands unread, "cry"
// passes over byte 1, and 0x79 and 0xB6 are shown as plain words and bytes.
constexpr std::array<Command, 256> kCommands = [] {
  std::array<Command, 256> table{};
  const auto put = [&table](std::uint8_t opcode, std::string_view mnemonic, std::uint8_t length,
                            std::array<OperandPiece, 3> operands = {}) {
    table[opcode] = Command{mnemonic, length, operands};
  };
  put(0x00, "nop", 1);
  put(0x01, "nop", 1);
  put(0x02, "end", 1);
  put(0x04, "call", 5, {{{"&H", 1, 2}}});
  put(0x05, "goto", 5, {{{"&H", 3, 2}, {"", 1, 2}}});  // a pointer: high half, then low half
  put(0x06, "if", 6);
  put(0x09, "boxset", 2, {{{"&H", 1, 1}}});
  put(0x0F, "msgbox", 5, {{{" &H", 3, 2}, {"", 1, 2}}});
  put(0x16, "setvar", 5, {{{" &H", 1, 2}, {" &H", 3, 2}}});
  put(0x21, "compare", 5, {{{" &H", 1, 2}, {" &H", 3, 2}}});
  put(0x2B, "checkflag", 3, {{{"&H", 1, 2}}});
  put(0x30, "cry", 4, {{{" &H", 2, 2}}});
  put(0x5A, "faceplayer", 1);
  put(0x69, "jingle", 1);
  put(0x6A, "lock", 1);
  put(0x78, "braille", 5, {{{" &H", 3, 2}, {"", 1, 2}}});
  put(0x79, "givepokemon:", 7, {{{"&H", 1, 2}, {" &H", 3, 2}, {" &H", 5, 2}}});
  put(0xB6, "wildpkmnbattle:", 6, {{{"&H", 1, 2}, {" &H", 3, 2}, {" &H", 5, 1}}});
  put(0xC6, "nop", 1);
  return table;
}();

// The header of a braille record, one byte each, in this order.
constexpr std::array<std::string_view, 6> kBrailleHeaderLabels = {
    "Postion.Left:", "Postion.Top:", "Msgbox.Left:", "Msgbox.Top:", "Braille.Left:", "Braille.Top:",
};
constexpr std::string_view kBrailleRule = "-------Braille-------";

// ---- Reading ------------------------------------------------------------------------------

// The ROM's bytes for one pass of a listing, read a block at a time. Bytes past the end of
// the file are not asked of it; they read as 0.
class ByteWindow {
 public:
  ByteWindow(RomImage& rom, std::int64_t length) : rom_(rom), readEnd_(std::min(length, kAddressable)) {}

  // The `count` bytes from `position` on, for count up to kCommandSpan; valid until the
  // next call. A position before the start of the ROM is a Failure of the RomImage.
  const std::uint8_t* At(std::int64_t position, std::size_t count) {
    if (position < start_ || position + static_cast<std::int64_t>(count) > start_ + covered_) Fill(position);
    return buffer_.data() + (position - start_);
  }

 private:
  void Fill(std::int64_t position) {
    std::size_t got = 0;
    std::size_t wanted = 0;
    // Beyond the addressable range there is nothing to read, and no Seek could name it.
    if (position < kAddressable) {
      wanted = position < readEnd_ ? static_cast<std::size_t>(
                                         std::min<std::int64_t>(kBlockSize, readEnd_ - position))
                                   : 0;
      // Also with nothing wanted: the RomImage refuses a position before the start.
      const Bytes block = rom_.ReadBytes(static_cast<RomOffset>(position), wanted);
      got = std::min(block.size(), kBlockSize);
      std::copy_n(block.begin(), got, buffer_.begin());
    }
    std::fill(buffer_.begin() + static_cast<std::ptrdiff_t>(got), buffer_.end(), std::uint8_t{0});
    start_ = position;
    // A block that reaches the end of the file also holds the zeros behind the end.
    const bool reachesEnd = got < wanted || position + static_cast<std::int64_t>(got) >= readEnd_;
    covered_ = reachesEnd ? static_cast<std::int64_t>(buffer_.size()) : static_cast<std::int64_t>(got);
  }

  RomImage& rom_;
  std::int64_t readEnd_;
  std::int64_t start_ = 0;
  std::int64_t covered_ = 0;  // bytes of buffer_ that stand for the ROM from start_ on
  Bytes buffer_ = Bytes(kBlockSize + kCommandSpan);
};

// ---- Writing ------------------------------------------------------------------------------

// A listing is made in two passes over the same bytes: the first measures the text, the
// second writes it into a string made once at its final size. So the text is never copied
// while it grows, and the memory it takes is the text and one block of the ROM.
class MeasuringSink {
 public:
  void Put(std::string_view text) { size_ += text.size(); }
  void PutHex(std::uint32_t value) {
    HexDigitBuffer digits;
    size_ += WriteHexDigits(value, digits).size();
  }
  std::size_t size() const { return size_; }

 private:
  std::size_t size_ = 0;
};

class TextSink {
 public:
  explicit TextSink(std::size_t size) { text_.reserve(size); }
  void Put(std::string_view text) { text_.append(text); }
  // Upper-case hexadecimal, no prefix, no leading zeros.
  void PutHex(std::uint32_t value) {
    HexDigitBuffer digits;
    text_.append(WriteHexDigits(value, digits));
  }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

template <typename Sink>
void PutCommandLine(Sink& sink, const Command& command, const std::uint8_t* bytes) {
  if (command.mnemonic.empty()) {
    sink.Put("Byte: &H");
    sink.PutHex(bytes[0]);
    sink.Put(" ");
  } else {
    // The blank is always there, so a command with no operand text ends in one.
    sink.Put(command.mnemonic);
    sink.Put(" ");
    for (const OperandPiece& piece : command.operands) {
      if (piece.width == 0) break;
      sink.Put(piece.literal);
      sink.PutHex(LittleEndian(std::span(bytes + piece.at, piece.width)));
    }
  }
  sink.Put(kLineEnd);
}

// ---- Progress -----------------------------------------------------------------------------

// How often a pass tells the ListingProgress, in bytes of the ROM.
constexpr std::int64_t kProgressStep = 64 * 1024;
// The measuring pass is the cheaper one; it takes this share of the whole.
constexpr double kMeasuringShare = 0.3;

// One pass over [from, to) of the ROM, told to the ListingProgress as the part
// [first, first + share] of the whole listing.
class PassProgress {
 public:
  PassProgress(const ListingProgress& progress, double first, double share, std::int64_t from,
               std::int64_t to)
      : progress_(progress), first_(first), share_(share), from_(from), to_(to), nextReport_(from) {}

  // False once the person has cancelled.
  bool At(std::int64_t position) {
    if (!progress_ || position < nextReport_) return true;
    nextReport_ = position + kProgressStep;
    const double span = static_cast<double>(to_ - from_);
    const double done = to_ > from_ ? std::min(1.0, static_cast<double>(position - from_) / span) : 1.0;
    return progress_(first_ + share_ * done);
  }

 private:
  const ListingProgress& progress_;
  double first_;
  double share_;
  std::int64_t from_;
  std::int64_t to_;
  std::int64_t nextReport_;
};

// `scan(sink, pass)` lists into the sink and gives the position where it stopped, or none
// when cancelled. It runs twice: once to measure, once to write. `worstEnd` is where the
// scan stops at the latest.
template <typename Scan>
std::optional<std::string> BuildListing(const Scan& scan, std::int64_t from, std::int64_t worstEnd,
                                        const ListingProgress& progress) {
  MeasuringSink measure;
  PassProgress measuring(progress, 0.0, kMeasuringShare, from, worstEnd);
  const std::optional<std::int64_t> end = scan(measure, measuring);
  if (!end) return std::nullopt;

  TextSink text(measure.size());
  PassProgress writing(progress, kMeasuringShare, 1.0 - kMeasuringShare, from, *end);
  if (!scan(text, writing)) return std::nullopt;
  if (progress && !progress(1.0)) return std::nullopt;
  return text.Take();
}

// ---- The two modes ------------------------------------------------------------------------

// Commands in file order from `start`. The stop test follows the command, so one command is
// always listed, and a command that starts exactly at the end of the file is listed too.
std::optional<std::string> ListCommands(RomImage& rom, std::int64_t start, std::int64_t length,
                                        const ListingProgress& progress) {
  const auto scan = [&](auto& sink, PassProgress& pass) -> std::optional<std::int64_t> {
    ByteWindow bytes(rom, length);
    std::int64_t position = start;
    for (;;) {
      if (!pass.At(position)) return std::nullopt;
      const std::uint8_t* command = bytes.At(position, kCommandSpan);
      const Command& known = kCommands[command[0]];
      PutCommandLine(sink, known, command);
      position += known.length;
      if (command[0] == kEndOpcode || position > length) return position;
    }
  };
  return BuildListing(scan, start, std::max(start, length + 1), progress);
}

// The six header bytes, the rule, then the cells up to a stop byte. The cells may run up to
// six bytes past the end of the file, where they read as blanks.
std::optional<std::string> ListBraille(RomImage& rom, std::int64_t start, std::int64_t length,
                                       const ListingProgress& progress) {
  static const std::array<std::string, 256> kCellTexts = [] {
    std::array<std::string, 256> texts;
    for (std::size_t cell = 0; cell < texts.size(); ++cell) {
      texts[cell] = BrailleCellText(static_cast<std::uint8_t>(cell));
    }
    return texts;
  }();
  static_assert(std::ssize(kBrailleHeaderLabels) == kBrailleHeaderSize);

  const auto scan = [&](auto& sink, PassProgress& pass) -> std::optional<std::int64_t> {
    ByteWindow bytes(rom, length);
    const std::uint8_t* header = bytes.At(start, kBrailleHeaderLabels.size());
    for (std::size_t i = 0; i < kBrailleHeaderLabels.size(); ++i) {
      sink.Put(kBrailleHeaderLabels[i]);
      sink.Put(" ");
      sink.PutHex(header[i]);
      sink.Put(kLineEnd);
    }
    sink.Put(kBrailleRule);
    sink.Put(kLineEnd);

    std::int64_t position = start + kBrailleHeaderSize;
    for (;;) {
      if (!pass.At(position)) return std::nullopt;
      const std::uint8_t cell = *bytes.At(position, 1);
      sink.Put(kCellTexts[cell]);
      ++position;
      if (EndsBrailleText(cell, position, length)) return position;
    }
  };
  return BuildListing(scan, start, std::max(start, length + kBrailleHeaderSize + 1), progress);
}

}  // namespace

std::optional<std::string> ListScript(RomImage& rom, Dialogs& dialogs, std::string_view offsetText,
                                      bool brailleMode, const ListingProgress& progress) {
  if (offsetText == kOffsetBad) {
    dialogs.Message("Offset Bad", MessageButtons::Ok);
    return std::nullopt;
  }
  try {
    // A script offset that is no number lists from 0; a braille offset must be one.
    const std::int64_t start = brailleMode ? ParseOffset(offsetText, "Offset") : ParseLenient(offsetText);
    const std::int64_t length = rom.Length();
    if (brailleMode) return ListBraille(rom, start, length, progress);
    return ListCommands(rom, start, length, progress);
  } catch (const Failure& failure) {
    throw failure.Then("Nothing was listed.");
  }
}

bool ListIntoText4(Form1& form, RomImage& rom, Dialogs& dialogs, const ListingProgress& progress) {
  std::optional<std::string> listing =
      ListScript(rom, dialogs, form.Text3.text, form.Check1.checked, progress);
  if (!listing) return false;
  form.Text4.Put(std::move(*listing));
  return true;
}

}  // namespace tessarine
