#include "text/Table2Text.h"

#include "text/GameTextTables.h"
#include "text/TextTokenizer.h"

namespace tessarine {
namespace {

using tokenizer::Forms;
using tokenizer::Single;
using tokenizer::Stage;
using tokenizer::Token;

// A message knows fewer tokens than game text: no "[Lv]", "[PO]", "[Ke]", no form of three
// characters but its own "[N]", and no "\x"; "[End]" is its end byte.
constexpr Token kEnd[] = {{"[End]", 0xFF}};
constexpr Token kSymbols[] = {{"[PK]", 0x53}, {"[MN]", 0x54}, {"[BL]", 0x57}, {"[OC]", 0x58}};
constexpr Token kLineBreak[] = {{"[N]", 0xFE}};
constexpr Token kControls[] = {{"\\l", 0xFA}, {"\\p", 0xFB}, {"\\c", 0xFC}, {"\\v", 0xFD}, {"\\n", 0xFE}};

constexpr Stage kStages[] = {Forms(kEnd), Forms(kSymbols), tokenizer::kHexEscape, Forms(kLineBreak),
                             Forms(kControls)};
static_assert(tokenizer::AreWellFormed(kStages));

// Messages take the one-character forms of game text, except "&", which is 0x2B here.
constexpr Single kAmpersand[] = {{U'&', 0x2B}};

}  // namespace

Bytes EncodeMessageText(std::string_view text) {
  return tokenizer::Tokenize(text, {kStages, kAmpersand, WesternEncode().one});
}

}  // namespace tessarine
