#include "rom/GbaPointer.h"

#include <limits>
#include <string>

#include "rom/Failure.h"
#include "rom/HexField.h"

namespace tessarine {
namespace {

bool FitsLong(std::int64_t value) {
  return value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace

RomOffset ToRomOffset(std::int32_t pointer) {
  const std::int64_t offset = std::int64_t{pointer} - kGbaRomBase;
  if (!FitsLong(offset)) {
    throw Failure("The pointer " + ToHexText(pointer) +
                  " does not lead into the ROM: taking &H8000000 from it goes beyond 32 bits.");
  }
  return static_cast<RomOffset>(offset);
}

RomOffset OffsetPlus(RomOffset base, std::int32_t distance) {
  const std::int64_t offset = std::int64_t{base} + distance;
  if (!FitsLong(offset)) {
    throw Failure("The offset " + ToHexText(base) + " plus " + std::to_string(distance) + " goes beyond 32 bits.");
  }
  return static_cast<RomOffset>(offset);
}

std::int32_t ToGbaPointer(RomOffset offset) {
  const std::int64_t pointer = std::int64_t{offset} + kGbaRomBase;
  if (!FitsLong(pointer)) {
    throw Failure("The offset " + ToHexText(offset) +
                  " cannot be a pointer: adding &H8000000 to it goes beyond 32 bits.");
  }
  return static_cast<std::int32_t>(pointer);
}

}  // namespace tessarine
