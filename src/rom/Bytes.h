#pragma once

#include <cstdint>
#include <vector>

namespace tessarine {

// Raw bytes as they stand in the ROM: game text, script templates, fields read whole.
using Bytes = std::vector<std::uint8_t>;

}  // namespace tessarine
