#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/ListRows.h"

namespace tessarine {

class RomImage;

// The 347 rows of the item list: "000 - " and the name of item 0, up to "15A - ". Each
// name decoded as Western game text and cut at its first end byte (a name that fills its
// 14 bytes loses its last character). Throws Failure when `itemRecords` is no offset.
std::vector<std::string> LoadItemList(RomImage& rom, std::string_view itemRecords);

}  // namespace tessarine
