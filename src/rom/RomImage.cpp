#include "rom/RomImage.h"

#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>

#include "rom/Failure.h"
#include "rom/FilePath.h"
#include "rom/HexField.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <sys/stat.h>
#endif

namespace tessarine {
namespace {

std::string SystemReason(int error) { return error != 0 ? std::strerror(error) : "unknown error"; }

#ifdef _WIN32
// The C library's error number of a failed open, for the sentence that tells it.
int ErrorNumberOf(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_LOCK_VIOLATION:
      return EACCES;
    default:
      return EIO;
  }
}
#endif

std::FILE* OpenUnbuffered(const std::filesystem::path& file, bool writable) {
#ifdef _WIN32
  // The wide call: the narrow one would read the name in the ANSI code page. Other programs
  // may read, write, rename and delete the file while it is open, as they may elsewhere: a
  // tool that saves by renaming a new file over it is not locked out, and Tessarine finds
  // the file replaced before it writes (StillAtItsPath).
  const HANDLE system = ::CreateFileW(file.c_str(), GENERIC_READ | (writable ? GENERIC_WRITE : 0),
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
  if (system == INVALID_HANDLE_VALUE) {
    errno = ErrorNumberOf(::GetLastError());
    return nullptr;
  }
  const int descriptor = ::_open_osfhandle(reinterpret_cast<intptr_t>(system), writable ? _O_RDWR : _O_RDONLY);
  if (descriptor == -1) {
    ::CloseHandle(system);
    return nullptr;
  }
  std::FILE* handle = ::_fdopen(descriptor, writable ? "r+b" : "rb");
  if (handle == nullptr) ::_close(descriptor);
#else
  std::FILE* handle = std::fopen(file.c_str(), writable ? "r+b" : "rb");
#endif
  // Unbuffered: every read and write goes straight to the operating system.
  if (handle != nullptr) std::setvbuf(handle, nullptr, _IONBF, 0);
  return handle;
}

// Positions are 64-bit on every system; a long, which fseek and ftell take, has only 32
// bits on Windows.
bool SeekTo(std::FILE* file, std::int64_t position) {
#ifdef _WIN32
  return ::_fseeki64(file, position, SEEK_SET) == 0;
#else
  return std::fseek(file, static_cast<long>(position), SEEK_SET) == 0;
#endif
}

std::int64_t SizeOf(std::FILE* file) {
  if (std::fseek(file, 0, SEEK_END) != 0) return 0;
#ifdef _WIN32
  const std::int64_t length = ::_ftelli64(file);
#else
  const std::int64_t length = std::ftell(file);
#endif
  return length < 0 ? 0 : length;
}

}  // namespace

RomImage::~RomImage() { Close(); }

void RomImage::Open(const std::string& path) {
  Close();
  std::filesystem::path file;
  try {
    file = ToFilePath(path);
  } catch (const std::exception&) {
    throw Failure("Could not open \"" + path + "\": the name is not UTF-8 text.");
  }
  // A folder opens for reading on some systems, and then reads nothing and claims to be
  // endless; a pipe waits for a writer. Neither is a ROM.
  std::error_code ignored;
  const auto kind = std::filesystem::status(file, ignored).type();
  if (kind == std::filesystem::file_type::directory || kind == std::filesystem::file_type::fifo) {
    throw Failure("Could not open \"" + path + "\": it is " +
                  (kind == std::filesystem::file_type::directory ? "a folder" : "a pipe") +
                  ", not a ROM file. Nothing was opened.");
  }
  readOnly_ = false;
  file_ = OpenUnbuffered(file, true);
  if (file_ == nullptr) {
    const int writeError = errno;
    file_ = OpenUnbuffered(file, false);
    readOnly_ = file_ != nullptr;
    if (file_ == nullptr) {
      throw Failure("Could not open \"" + path + "\": " + SystemReason(writeError) + ".");
    }
  }
  romPath_ = path;
  position_ = 0;
  regularFile_ = kind == std::filesystem::file_type::regular;
}

void RomImage::Close() noexcept {
  if (file_ != nullptr) std::fclose(file_);
  file_ = nullptr;
  readOnly_ = false;
  regularFile_ = false;
  romPath_.clear();
  position_ = 0;
  lastWriteReached_ = 0;
}

bool RomImage::StillAtItsPath() const {
  if (file_ == nullptr) return false;
  if (!regularFile_) return true;  // a device: nothing else can be put at its name
#ifdef _WIN32
  // A file is the same when its volume and its index on that volume are.
  BY_HANDLE_FILE_INFORMATION open{};
  const auto openHandle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(file_)));
  if (openHandle == INVALID_HANDLE_VALUE || !::GetFileInformationByHandle(openHandle, &open)) return false;
  std::filesystem::path named;
  try {
    named = ToFilePath(romPath_);
  } catch (const std::exception&) {
    return false;
  }
  const HANDLE namedHandle = ::CreateFileW(named.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                           nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (namedHandle == INVALID_HANDLE_VALUE) return false;
  BY_HANDLE_FILE_INFORMATION now{};
  const bool read = ::GetFileInformationByHandle(namedHandle, &now);
  ::CloseHandle(namedHandle);
  return read && now.dwVolumeSerialNumber == open.dwVolumeSerialNumber &&
         now.nFileIndexHigh == open.nFileIndexHigh && now.nFileIndexLow == open.nFileIndexLow;
#else
  // A file is the same when its device and its inode are.
  struct stat open {};
  struct stat named {};
  return ::fstat(::fileno(file_), &open) == 0 && ::stat(romPath_.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
#endif
}

void RomImage::RequireOpen(const char* what) const {
  if (file_ == nullptr) {
    throw Failure(std::string("No ROM is open, so nothing was ") + what + ". Open a ROM first.");
  }
}

void RomImage::RequireWritable() const {
  RequireOpen("written");
  if (readOnly_) {
    throw Failure("\"" + romPath_ + "\" is open read-only: the file cannot be written.");
  }
}

void RomImage::Seek(RomOffset offset) {
  RequireOpen("read or written");
  if (offset < 0) {
    throw Failure("The offset " + ToHexText(offset) +
                  " lies before the start of the ROM, so nothing was read or written there.");
  }
  position_ = offset;
}

std::int64_t RomImage::Length() const {
  RequireOpen("measured");
  return SizeOf(file_);
}

bool RomImage::Holds(std::int64_t at, std::int64_t count) const {
  RequireOpen("measured");
  if (at < 0 || count < 0) return false;
  return !regularFile_ || at + count <= Length();  // a device has no end and takes what it takes
}

Bytes RomImage::ReadBytes(std::size_t count) {
  RequireOpen("read");
  Bytes bytes(count);
  std::size_t got = 0;
  if (count > 0 && SeekTo(file_, position_)) {
    got = std::fread(bytes.data(), 1, count, file_);
  }
  std::clearerr(file_);  // the end of the file is no lasting state
  bytes.resize(got);
  position_ += static_cast<std::int64_t>(count);
  return bytes;
}

std::uint32_t RomImage::ReadLittleEndian(int width) {
  return LittleEndian(ReadBytes(static_cast<std::size_t>(width)));  // missing bytes count as 0
}

std::uint8_t RomImage::ReadByte() { return static_cast<std::uint8_t>(ReadLittleEndian(1)); }
std::int16_t RomImage::ReadWord() { return static_cast<std::int16_t>(ReadLittleEndian(2)); }
std::int32_t RomImage::ReadLong() { return static_cast<std::int32_t>(ReadLittleEndian(4)); }

void RomImage::WriteBytes(std::span<const std::uint8_t> bytes) {
  lastWriteReached_ = 0;
  RequireWritable();
  const std::string where = " at " + PlaceText(position_) + " of \"" + romPath_ + "\"";
  if (!Holds(position_, static_cast<std::int64_t>(bytes.size()))) {
    throw Failure("Nothing was written" + where + ": " + std::to_string(bytes.size()) +
                  " bytes there would run past the end of the ROM, which is " + PlaceText(Length()) +
                  " bytes long.");
  }
  errno = 0;
  const bool placed = SeekTo(file_, position_);
  // No bytes may come with no buffer at all, which fwrite must not be given.
  const std::size_t put = placed && !bytes.empty() ? std::fwrite(bytes.data(), 1, bytes.size(), file_) : 0;
  lastWriteReached_ = put;  // unbuffered: what fwrite took has reached the file
  const bool flushed = std::fflush(file_) == 0;
  const int error = errno;
  std::clearerr(file_);
  if (!placed || put != bytes.size() || !flushed) {
    throw Failure("The system refused to write " + std::to_string(bytes.size()) + " bytes" + where + ": " +
                  SystemReason(error) + ". The write did not complete.");
  }
  position_ += static_cast<std::int64_t>(bytes.size());
}

void RomImage::WriteLittleEndian(std::uint32_t value, int width) {
  std::uint8_t bytes[4];
  const std::span<std::uint8_t> used(bytes, static_cast<std::size_t>(width));
  PutLittleEndian(value, used);
  WriteBytes(used);
}

void RomImage::WriteByte(std::uint8_t value) { WriteLittleEndian(value, 1); }
void RomImage::WriteWord(std::int16_t value) { WriteLittleEndian(static_cast<std::uint16_t>(value), 2); }
void RomImage::WriteLong(std::int32_t value) { WriteLittleEndian(static_cast<std::uint32_t>(value), 4); }

std::uint8_t RomImage::ReadByte(RomOffset offset) { Seek(offset); return ReadByte(); }
std::int16_t RomImage::ReadWord(RomOffset offset) { Seek(offset); return ReadWord(); }
std::int32_t RomImage::ReadLong(RomOffset offset) { Seek(offset); return ReadLong(); }
Bytes RomImage::ReadBytes(RomOffset offset, std::size_t count) { Seek(offset); return ReadBytes(count); }
void RomImage::WriteByte(RomOffset offset, std::uint8_t value) { Seek(offset); WriteByte(value); }
void RomImage::WriteWord(RomOffset offset, std::int16_t value) { Seek(offset); WriteWord(value); }
void RomImage::WriteLong(RomOffset offset, std::int32_t value) { Seek(offset); WriteLong(value); }
void RomImage::WriteBytes(RomOffset offset, std::span<const std::uint8_t> bytes) { Seek(offset); WriteBytes(bytes); }

}  // namespace tessarine
