#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "rom/Bytes.h"
#include "text/Utf8.h"

// The staged tokenizer behind the encoders of typed text (game text, messages, braille).
//
// The engine knows no form of its own: each encoder hands it a token set, the stages it tries at
// every position in their order and its one-character forms. A stage is tried only when at least
// as many characters remain as its forms are long, so a form cut short by the end of the text
// never matches. The first stage that matches gives the byte and the step; if none does, the
// character alone gives its byte, or 0x00 when it has none. One byte per position, nothing added.
//
// Characters are code points of the UTF-8 input, so "é" is one character and "remaining" is
// counted in characters, never in UTF-8 bytes.
namespace tessarine::tokenizer {

// A form of several characters and its byte. Every such form is ASCII.
struct Token {
  std::string_view form;
  std::uint8_t byte;
};

// A character that is a form by itself, and its byte.
struct Single {
  char32_t character;
  std::uint8_t byte;
};

struct Stage {
  enum class Kind {
    kForms,      // one of `forms`, all of `length` characters
    kHexEscape,  // "\h" and two hexadecimal digits give the byte they spell
  };
  Kind kind;
  std::size_t length;
  std::span<const Token> forms;
};

// A stage of forms that are all as long as the first.
constexpr Stage Forms(std::span<const Token> forms) {
  return {Stage::Kind::kForms, forms.empty() ? 0 : forms.front().form.size(), forms};
}

inline constexpr Stage kHexEscape{Stage::Kind::kHexEscape, 4, {}};

struct TokenSet {
  std::span<const Stage> stages;      // tried in this order at every position
  std::span<const Single> overrides;  // one-character forms that win over `singles`
  std::span<const Single> singles;    // sorted by character, each character once
};

Bytes Tokenize(std::string_view text, const TokenSet& tokens);

// Checks for the tables, meant for static_assert: a mistake in a form list then fails the build.

// Every stage of forms is non-empty and its forms are ASCII, of the stage's length and distinct.
constexpr bool AreWellFormed(std::span<const Stage> stages) {
  for (const Stage& stage : stages) {
    if (stage.kind == Stage::Kind::kHexEscape) continue;
    if (stage.forms.empty() || stage.length < 2) return false;
    for (std::size_t i = 0; i < stage.forms.size(); ++i) {
      const std::string_view form = stage.forms[i].form;
      if (form.size() != stage.length) return false;
      if (std::ranges::any_of(form, [](char c) { return static_cast<unsigned char>(c) >= 0x80; })) {
        return false;
      }
      for (std::size_t j = 0; j < i; ++j) {
        if (stage.forms[j].form == form) return false;
      }
    }
  }
  return true;
}

// The one-character forms are in ascending order with no character twice, as lookup needs.
constexpr bool IsLookupTable(std::span<const Single> singles) {
  return std::ranges::adjacent_find(singles, [](const Single& a, const Single& b) {
           return a.character >= b.character;
         }) == singles.end();
}

// One-character forms written as in a table of bytes: `characters`, in UTF-8, are the forms of
// the bytes `first`, `first` + 1, and so on.
struct SingleRun {
  std::uint8_t first;
  std::string_view characters;
};

// Every run decodes cleanly and stays within the byte range.
constexpr bool AreWellFormed(std::span<const SingleRun> runs) {
  for (const SingleRun& run : runs) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < run.characters.size(); ++count) {
      const Utf8Character c = ReadUtf8Character(run.characters, at);
      if (c.code == kUndecodable) return false;
      at += c.length;
    }
    if (count == 0 || run.first + count > 0x100) return false;
  }
  return true;
}

constexpr std::size_t CharacterCount(std::span<const SingleRun> runs) {
  std::size_t count = 0;
  for (const SingleRun& run : runs) {
    for (std::size_t at = 0; at < run.characters.size(); ++count) {
      at += ReadUtf8Character(run.characters, at).length;
    }
  }
  return count;
}

// The forms of the runs as a lookup table, sorted by character. N is CharacterCount(runs).
template <std::size_t N>
constexpr std::array<Single, N> ExpandRuns(std::span<const SingleRun> runs) {
  std::array<Single, N> singles{};
  std::size_t n = 0;
  for (const SingleRun& run : runs) {
    std::size_t byte = run.first;
    for (std::size_t at = 0; at < run.characters.size() && n < N; ++byte) {
      const Utf8Character c = ReadUtf8Character(run.characters, at);
      singles[n++] = {c.code, static_cast<std::uint8_t>(byte)};
      at += c.length;
    }
  }
  std::ranges::sort(singles, {}, &Single::character);
  return singles;
}

}  // namespace tessarine::tokenizer
