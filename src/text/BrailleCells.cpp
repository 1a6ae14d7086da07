#include <array>

#include "rom/HexField.h"
#include "text/Braille2Text.h"

namespace tessarine {
namespace {

struct Cell {
  std::uint8_t byte;
  const char* text;
};

// Braille cells: dot 1 = 0x01, dot 4 = 0x02, dot 2 = 0x04, dot 5 = 0x08, dot 3 = 0x10,
// dot 6 = 0x20.
constexpr std::array<Cell, 29> kCells{{
    {0x00, " "}, {0x01, "A"}, {0x03, "C"}, {0x04, ","}, {0x05, "B"}, {0x06, "I"}, {0x07, "F"}, {0x09, "E"},
    {0x0B, "D"}, {0x0D, "H"}, {0x0E, "J"}, {0x0F, "G"}, {0x11, "K"}, {0x13, "M"}, {0x15, "L"}, {0x16, "S"},
    {0x17, "P"}, {0x19, "O"}, {0x1B, "N"}, {0x1D, "R"}, {0x1E, "T"}, {0x1F, "Q"}, {0x2C, "."}, {0x2E, "W"},
    {0x31, "U"}, {0x33, "X"}, {0x35, "V"}, {0x39, "Z"}, {0x3B, "Y"},
}};

}  // namespace

std::string BrailleCellText(std::uint8_t cell) {
  switch (cell) {
    case 0x02: return "End";
    case 0xFE: return "\r\n";
    case 0xFF: return "";
    default: break;
  }
  for (const Cell& c : kCells) {
    if (c.byte == cell) return c.text;
  }
  std::string unknown = "[";  // built in steps: GCC 12 warns falsely of "[" + a string
  return unknown.append(ToHexText(cell)).append("]");
}

}  // namespace tessarine
