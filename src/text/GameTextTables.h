#pragma once

#include <array>
#include <span>

#include "text/TextTokenizer.h"

// The character tables of game text. Decoding and encoding are separate tables that do not
// agree in every row, so neither is derived from the other.
namespace tessarine {

// The form of each byte on the way out (UTF-8), nullptr where the byte has none. An empty form
// is a byte that adds nothing to the text.
using DecodeTable = std::array<const char*, 256>;

const DecodeTable& WesternDecodeTable();
const DecodeTable& JapaneseDecodeTable();

// The Western encode table, by length of the form. Forms of several characters are tokens; the
// one-character forms are sorted by character for lookup.
struct WesternEncodeTable {
  std::span<const tokenizer::Token> four;
  std::span<const tokenizer::Token> three;
  std::span<const tokenizer::Token> two;
  std::span<const tokenizer::Single> one;
};

const WesternEncodeTable& WesternEncode();

}  // namespace tessarine
