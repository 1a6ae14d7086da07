#pragma once

#include <string_view>

#include "rom/Bytes.h"

namespace tessarine {

// The bytes of a script message: a narrower token set than EncodeGameText, with "[N]"
// and "[End]" of its own, and "&" as 0x2B. No terminator.
Bytes EncodeMessageText(std::string_view text);

}  // namespace tessarine
