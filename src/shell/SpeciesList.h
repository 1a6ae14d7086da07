#pragma once

namespace tessarine {

struct Form1;
class RomImage;

// Appends the 412 species names to Combo1 (the caller clears it first): one Seek to
// Label20, then the records in order.
void FillSpeciesList(Form1& form, RomImage& rom);

}  // namespace tessarine
