#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tessarine {

// Raw bytes as they stand in the ROM: game text, script templates, fields read whole.
using Bytes = std::vector<std::uint8_t>;

// Numbers in the ROM are little-endian: the first byte is the lowest. These are the only
// places where the system turns bytes into numbers and back; widths are 1, 2 or 4 bytes.

// The unsigned number that up to four bytes spell.
constexpr std::uint32_t LittleEndian(std::span<const std::uint8_t> bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < bytes.size() && i < 4; ++i) value |= std::uint32_t{bytes[i]} << (8 * i);
  return value;
}

// The low bytes of `value`, as many as `out` holds (up to four), lowest first.
constexpr void PutLittleEndian(std::uint32_t value, std::span<std::uint8_t> out) {
  for (std::size_t i = 0; i < out.size() && i < 4; ++i) out[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

// Appends the `width` low bytes of `value` (1, 2 or 4), lowest first.
inline void AppendLittleEndian(Bytes& bytes, std::uint32_t value, std::size_t width) {
  const std::size_t at = bytes.size();
  bytes.resize(at + width);
  PutLittleEndian(value, std::span<std::uint8_t>(bytes).subspan(at));
}

}  // namespace tessarine
