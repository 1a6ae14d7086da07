#include "text/GameTextTables.h"

namespace tessarine {
namespace {

using tokenizer::Single;
using tokenizer::SingleRun;
using tokenizer::Token;

// Byte to form, eight bytes a line. nullptr: the byte has no form and prints in hexadecimal.
// 0x00 is a printable blank and 0x20 is "î": a space in stored text is not the ASCII byte.
// 0x2B and 0x2D both read "&"; 0x53 to 0x59 read without the brackets that encoding asks for.
constexpr auto kWesternDecode = std::to_array<const char*>({
    /* 0x00 */ " ",     "À",     "Á",     "Â",     "Ç",     "È",     "É",     "Ê",
    /* 0x08 */ "Ë",     "Ì",     nullptr, "Î",     "Ï",     "Ò",     "Ó",     "Ô",
    /* 0x10 */ "Œ",     "Ù",     "Ú",     "Û",     nullptr, "ß",     "à",     "á",
    /* 0x18 */ nullptr, "ç",     "è",     "é",     "ê",     "ë",     "ì",     nullptr,
    /* 0x20 */ "î",     "ï",     "ò",     "ó",     "œ",     "ù",     "ú",     nullptr,
    /* 0x28 */ "°",     "ª",     nullptr, "&",     "+",     "&",     nullptr, nullptr,
    /* 0x30 */ nullptr, nullptr, nullptr, nullptr, "[Lv]",  "=",     nullptr, nullptr,
    /* 0x38 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x40 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x48 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x50 */ nullptr, "¿",     "¡",     "PK",    "MN",    "PO",    "Ke",    "BL",
    /* 0x58 */ "OC",    "K",     "Í",     "%",     "(",     ")",     nullptr, nullptr,
    /* 0x60 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x68 */ "â",     nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, "í",
    /* 0x70 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x78 */ nullptr, "[U]",   "[D]",   "[L]",   "[R]",   nullptr, nullptr, nullptr,
    /* 0x80 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x88 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x90 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0x98 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xA0 */ nullptr, "0",     "1",     "2",     "3",     "4",     "5",     "6",
    /* 0xA8 */ "7",     "8",     "9",     "!",     "?",     ".",     "-",     "·",
    /* 0xB0 */ "[.]",   "[\"]",  "\"",    "[']",   "'",     "[m]",   "[f]",   "[p]",
    /* 0xB8 */ ",",     "[x]",   "/",     "A",     "B",     "C",     "D",     "E",
    /* 0xC0 */ "F",     "G",     "H",     "I",     "J",     "K",     "L",     "M",
    /* 0xC8 */ "N",     "O",     "P",     "Q",     "R",     "S",     "T",     "U",
    /* 0xD0 */ "V",     "W",     "X",     "Y",     "Z",     "a",     "b",     "c",
    /* 0xD8 */ "d",     "e",     "f",     "g",     "h",     "i",     "j",     "k",
    /* 0xE0 */ "l",     "m",     "n",     "o",     "p",     "q",     "r",     "s",
    /* 0xE8 */ "t",     "u",     "v",     "w",     "x",     "y",     "z",     "[>]",
    /* 0xF0 */ ":",     "Ä",     "Ö",     "Ü",     "ä",     "ö",     "ü",     "[u]",
    /* 0xF8 */ "[d]",   "[l]",   "\\l",   "\\p",   "\\c",   "\\v",   "\\n",   "\\x",
});
static_assert(kWesternDecode.size() == 256);

// Syllables in Latin letters: lower case from 0x01, upper case from 0x51. The two halves are not
// a shift of each other (0x43 "zu" but 0x93 "DU"; three lower-case B syllables, five upper-case).
// 0x7C is a blank and 0x80 adds nothing.
constexpr auto kJapaneseDecode = std::to_array<const char*>({
    /* 0x00 */ " ",     "a",     "i",     "u",     "e",     "o",     "ka",    "ki",
    /* 0x08 */ "ku",    "ke",    "ko",    "sa",    "shi",   "su",    "se",    "so",
    /* 0x10 */ "ta",    "chi",   "tsu",   "te",    "to",    "na",    "ni",    "nu",
    /* 0x18 */ "ne",    "no",    "ha",    "hi",    "fu",    "he",    "ho",    "ma",
    /* 0x20 */ "mi",    "mu",    "me",    "mo",    nullptr, nullptr, nullptr, "ra",
    /* 0x28 */ "ri",    "ru",    "re",    "ro",    nullptr, nullptr, "n",     nullptr,
    /* 0x30 */ nullptr, nullptr, nullptr, nullptr, "ya",    "yu",    "yo",    "ga",
    /* 0x38 */ "gi",    "gu",    "ge",    "go",    "za",    "ji",    "zu",    "ze",
    /* 0x40 */ "zo",    "da",    "dji",   "zu",    "de",    "do",    "ba",    "be",
    /* 0x48 */ "bo",    "pa",    "pi",    "pu",    "pe",    "po",    nullptr, nullptr,
    /* 0x50 */ nullptr, "A",     "I",     "U",     "E",     "O",     "KA",    "KI",
    /* 0x58 */ "KU",    "KE",    "KO",    "SA",    "SHI",   "SU",    "SE",    "SO",
    /* 0x60 */ "TA",    "CHI",   "TSU",   "TE",    "TO",    "NA",    "NI",    "NU",
    /* 0x68 */ "NE",    "NO",    "HA",    "HI",    "FU",    "HE",    "HO",    "MA",
    /* 0x70 */ "MI",    "MU",    "ME",    "MO",    nullptr, nullptr, nullptr, "RA",
    /* 0x78 */ "RI",    "RU",    "RE",    "RO",    " ",     nullptr, "N",     nullptr,
    /* 0x80 */ "",      nullptr, nullptr, nullptr, "YA",    "YU",    "YO",    "GA",
    /* 0x88 */ "GI",    "GU",    "GE",    "GO",    "ZA",    "JI",    "ZU",    "ZE",
    /* 0x90 */ "ZO",    "DA",    "DJI",   "DU",    "DE",    "DO",    "BA",    "BI",
    /* 0x98 */ "BU",    "BE",    "BO",    "PA",    "PI",    "PU",    "PE",    "PO",
    /* 0xA0 */ "_",     "0",     "1",     "2",     "3",     "4",     "5",     "6",
    /* 0xA8 */ "7",     "8",     "9",     nullptr, "?",     nullptr, "-",     nullptr,
    /* 0xB0 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xB8 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xC0 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xC8 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xD0 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xD8 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xE0 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xE8 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xF0 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* 0xF8 */ nullptr, nullptr, "\\l",   "\\p",   "\\c",   "\\v",   "\\n",   "\\x",
});
static_assert(kJapaneseDecode.size() == 256);

// Form to byte. Only the typed forms of the decode table's rows, with these differences: "&" is
// 0x2D (0x2B has no form); "K" is 0xC5 (0x59 is "[K]"); 0x53 to 0x58 take their brackets.
constexpr Token kFour[] = {
    {"[Lv]", 0x34}, {"[PK]", 0x53}, {"[MN]", 0x54}, {"[PO]", 0x55},
    {"[Ke]", 0x56}, {"[BL]", 0x57}, {"[OC]", 0x58},
};

// Case matters: "[u]" is 0xF7 and "[U]" 0x79.
constexpr Token kThree[] = {
    {"[K]", 0x59}, {"[U]", 0x79},  {"[D]", 0x7A}, {"[L]", 0x7B}, {"[R]", 0x7C}, {"[.]", 0xB0},
    {"[\"]", 0xB1}, {"[']", 0xB3}, {"[m]", 0xB5}, {"[f]", 0xB6}, {"[p]", 0xB7}, {"[x]", 0xB9},
    {"[>]", 0xEF}, {"[u]", 0xF7},  {"[d]", 0xF8}, {"[l]", 0xF9},
};

constexpr Token kTwo[] = {
    {"\\l", 0xFA}, {"\\p", 0xFB}, {"\\c", 0xFC}, {"\\v", 0xFD}, {"\\n", 0xFE}, {"\\x", 0xFF},
};

constexpr tokenizer::Stage kFormStages[] = {tokenizer::Forms(kFour), tokenizer::Forms(kThree),
                                            tokenizer::Forms(kTwo)};
static_assert(tokenizer::AreWellFormed(kFormStages));
static_assert(kFormStages[0].length == 4 && kFormStages[1].length == 3 && kFormStages[2].length == 2);

// The one-character forms, each run at consecutive bytes from its first.
constexpr SingleRun kOneRuns[] = {
    {0x00, " ÀÁÂÇÈÉÊËÌ"},
    {0x0B, "ÎÏÒÓÔŒÙÚÛ"},
    {0x15, "ßàá"},
    {0x19, "çèéêëì"},
    {0x20, "îïòóœùú"},
    {0x28, "°ª"},
    {0x2C, "+&"},
    {0x35, "="},
    {0x51, "¿¡"},
    {0x5A, "Í%()"},
    {0x68, "â"},
    {0x6F, "í"},
    {0xA1, "0123456789!?.-·"},
    {0xB2, "\""},
    {0xB4, "'"},
    {0xB8, ","},
    {0xBA, "/ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"},
    {0xF0, ":ÄÖÜäöü"},
};
static_assert(tokenizer::AreWellFormed(kOneRuns));

// Each one-character form is typed as it is printed: it stands at the byte that decodes to it.
constexpr bool AgreesWithDecoding(std::span<const SingleRun> runs) {
  for (const SingleRun& run : runs) {
    std::size_t byte = run.first;
    for (std::size_t at = 0; at < run.characters.size(); ++byte) {
      const std::size_t length = ReadUtf8Character(run.characters, at).length;
      const char* decoded = kWesternDecode[byte];
      if (decoded == nullptr || std::string_view(decoded) != run.characters.substr(at, length)) return false;
      at += length;
    }
  }
  return true;
}
static_assert(AgreesWithDecoding(kOneRuns));

constexpr std::size_t kOneCount = tokenizer::CharacterCount(kOneRuns);
static_assert(kOneCount == 126);  // the 128 one-character forms of decoding, less 0x2B and 0x59
constexpr std::array<Single, kOneCount> kOne = tokenizer::ExpandRuns<kOneCount>(kOneRuns);
static_assert(tokenizer::IsLookupTable(kOne));

constexpr WesternEncodeTable kWesternEncode{kFour, kThree, kTwo, kOne};

}  // namespace

const DecodeTable& WesternDecodeTable() { return kWesternDecode; }
const DecodeTable& JapaneseDecodeTable() { return kJapaneseDecode; }
const WesternEncodeTable& WesternEncode() { return kWesternEncode; }

}  // namespace tessarine
