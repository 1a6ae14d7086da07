#include "scripts/ItemList.h"

#include <algorithm>
#include <span>

#include "forms/ListRows.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "text/mdlTextSapp.h"

namespace tessarine {

std::vector<std::string> LoadItemList(RomImage& rom, std::string_view itemRecords) {
  rom.Seek(ParseOffset(itemRecords, "Item records offset"));
  // The whole table in one read; a table that runs past the end of the file gives shorter
  // names, never bytes from outside it.
  const Bytes table = rom.ReadBytes(std::size_t{kItemCount} * kItemRecordLength);
  const std::span<const std::uint8_t> all(table);
  std::vector<std::string> rows;
  rows.reserve(kItemCount);
  for (int index = 0; index < kItemCount; ++index) {
    const std::size_t start = std::min(all.size(), std::size_t(index) * kItemRecordLength);
    const std::size_t length = std::min<std::size_t>(kItemNameLength, all.size() - start);
    rows.push_back(NumberedRow(index, CutDecodedName(DecodeGameText(all.subspan(start, length), false))));
  }
  return rows;
}

}  // namespace tessarine
