#include "shell/SpeciesList.h"

#include <span>

#include "forms/Form1.h"
#include "forms/ListRows.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "text/mdlTextSapp.h"

namespace tessarine {

void FillSpeciesList(Form1& form, RomImage& rom) {
  rom.Seek(ParseOffset(form.Label20, "Species names offset"));
  // The whole table in one read: the records lie back to back, and a table that runs
  // past the end of the file yields shorter names, never bytes from outside it.
  const Bytes table = rom.ReadBytes(std::size_t{kSpeciesCount} * kSpeciesNameLength);
  const std::span<const std::uint8_t> all(table);
  form.Combo1.rows.reserve(form.Combo1.rows.size() + kSpeciesCount);
  for (int index = 0; index < kSpeciesCount; ++index) {
    const std::size_t start = std::min(all.size(), std::size_t(index) * kSpeciesNameLength);
    const std::size_t length = std::min<std::size_t>(kSpeciesNameLength, all.size() - start);
    const std::string name = CutDecodedName(DecodeGameText(all.subspan(start, length), false));
    form.Combo1.rows.push_back(NumberedRow(index, name));
  }
}

}  // namespace tessarine
