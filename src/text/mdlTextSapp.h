#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "rom/Bytes.h"

// Game text: the cartridge's one-byte character encoding.
//
// Text crosses between the windows and the core as UTF-8 in std::string: a person's
// "é" is the two bytes C3 A9 on the way in and comes back the same way. Bytes of the ROM
// are Bytes (one element per byte). The codecs count characters, not UTF-8 bytes.
namespace tessarine {

// Every byte becomes text: its form in the Western (or Japanese) table, else "&H" and two
// upper-case digits. The byte after 0xFC or 0xFD is always printed as "&H..". There is no
// terminator: 0xFF is "\x" like any other form.
std::string DecodeGameText(std::span<const std::uint8_t> bytes, bool japanese);

// The name in a decoded fixed-length field: the text before the first "\x". A text with
// no "\x" loses its last character.
std::string CutDecodedName(std::string_view decoded);

// The bytes of typed text, by the Western encode table, longest form first, with "\h"
// and two hexadecimal digits for any byte. Unknown characters give 0x00. No terminator.
Bytes EncodeGameText(std::string_view text);

// True when every character is a hexadecimal digit (the empty text included).
bool IsHexText(std::string_view text);

}  // namespace tessarine
