#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

class RomImage;

// The item records: 347 of 44 bytes each, back to back from itemRecords, numbered from 0.
// The first 14 bytes of a record are the item's name in game text; the rest is not read.
inline constexpr int kItemCount = 347;
inline constexpr int kItemRecordLength = 44;
inline constexpr int kItemNameLength = 14;

// The 347 rows of the item list: "000 - " and the name of item 0, up to "15A - ". Each
// name decoded as Western game text and cut at its first end byte (a name that fills its
// 14 bytes loses its last character). Throws Failure when `itemRecords` is no offset.
std::vector<std::string> LoadItemList(RomImage& rom, std::string_view itemRecords);

}  // namespace tessarine
