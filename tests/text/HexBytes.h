#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "rom/Bytes.h"

namespace tessarine::test {

// Bytes written as in a hex dump, "BB BC FF", so that a failing comparison reads like one.
inline Bytes FromHex(std::string_view hex) {
  Bytes bytes;
  for (std::size_t at = 0; at + 1 < hex.size(); at += 3) {
    bytes.push_back(static_cast<std::uint8_t>(std::stoi(std::string(hex.substr(at, 2)), nullptr, 16)));
  }
  return bytes;
}

inline std::string ToHex(const Bytes& bytes) {
  std::string hex;
  for (const std::uint8_t byte : bytes) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%02X", byte);
    if (!hex.empty()) hex += ' ';
    hex += digits;
  }
  return hex;
}

}  // namespace tessarine::test
