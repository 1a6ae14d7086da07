#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

#include "rom/Bytes.h"
#include "rom/GbaPointer.h"

namespace tessarine {

// The open ROM file, shared by every tool. One position: each read or write starts
// there and leaves it behind the last byte touched, so a run of fields is one Seek and
// then reads in order. Numbers are little-endian; words and longs are signed.
//
// Nothing is kept between operations: a write reaches the operating system before the
// call returns, and the next read, here or through any other handle, sees it.
//
// Reads that run past the end deliver no bytes from outside the file: ReadBytes gives
// the bytes that are there, the number reads count missing bytes as 0. Nothing extends
// the file: a write that would run past its end is refused whole, so a mistyped offset
// never grows a ROM. (A device, which has no end, takes what it takes.)
class RomImage {
 public:
  RomImage() = default;
  ~RomImage();
  RomImage(const RomImage&) = delete;
  RomImage& operator=(const RomImage&) = delete;

  // Opens for reading and writing; a file that cannot be written opens read-only.
  // Throws Failure when it cannot be opened at all. Closes any file open before.
  void Open(const std::string& path);
  void Close() noexcept;  // harmless when nothing is open

  bool IsOpen() const { return file_ != nullptr; }
  // Whether the path the file was opened by still names that same file: another program
  // may have put a new file there since (saved by writing a new file and renaming it over
  // this one), or deleted it, while this one stays open under no name. False when no file
  // is open.
  bool StillAtItsPath() const;
  bool IsReadOnly() const { return readOnly_; }
  // Throws the Failure that says so when no ROM is open or it is open read-only: the one
  // sentence by which every write of a read-only ROM is refused, for a tool to ask before
  // its questions.
  void RequireWritable() const;
  const std::string& romPath() const { return romPath_; }
  std::int64_t Position() const { return position_; }

  void Seek(RomOffset offset);
  std::int64_t Length() const;
  // Whether `count` bytes from `at` lie inside the file: the one test by which a write is
  // refused for running past the end, for a tool that writes several blocks to ask of each
  // before its first write. A device holds any run from 0 on.
  bool Holds(std::int64_t at, std::int64_t count) const;

  std::uint8_t ReadByte();
  std::int16_t ReadWord();
  std::int32_t ReadLong();
  Bytes ReadBytes(std::size_t count);

  void WriteByte(std::uint8_t value);
  void WriteWord(std::int16_t value);
  void WriteLong(std::int32_t value);
  void WriteBytes(std::span<const std::uint8_t> bytes);
  // How many bytes of the last write reached the file, from its first on: all of them after
  // a write that returned; after one that failed, those the system took before it refused
  // the rest (often none).
  std::size_t LastWriteReached() const { return lastWriteReached_; }

  // Positioned forms: Seek(offset), then the plain operation.
  std::uint8_t ReadByte(RomOffset offset);
  std::int16_t ReadWord(RomOffset offset);
  std::int32_t ReadLong(RomOffset offset);
  Bytes ReadBytes(RomOffset offset, std::size_t count);
  void WriteByte(RomOffset offset, std::uint8_t value);
  void WriteWord(RomOffset offset, std::int16_t value);
  void WriteLong(RomOffset offset, std::int32_t value);
  void WriteBytes(RomOffset offset, std::span<const std::uint8_t> bytes);

 private:
  void RequireOpen(const char* what) const;
  std::uint32_t ReadLittleEndian(int width);
  void WriteLittleEndian(std::uint32_t value, int width);

  std::FILE* file_ = nullptr;
  bool readOnly_ = false;
  bool regularFile_ = false;
  std::string romPath_;
  std::int64_t position_ = 0;
  std::size_t lastWriteReached_ = 0;
};

}  // namespace tessarine
