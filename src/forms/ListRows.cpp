#include "forms/ListRows.h"

#include "rom/HexField.h"

namespace tessarine {

std::string NumberedRow(int index, std::string_view name) {
  return HexDigits(static_cast<std::uint32_t>(index), 3) + " - " + std::string(name);
}

}  // namespace tessarine
