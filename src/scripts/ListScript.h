#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/RomImage.h"

namespace tessarine {

// Told now and then how far a listing has come, as a fraction from 0 to 1; answers false
// to cancel it. An empty one lets every listing run to its end.
using ListingProgress = std::function<bool(double fractionDone)>;

// The script or braille record at the offset in `offsetText`, as text with CR LF line ends.
//
// Script mode reads one command after the other from the offset, in file order, until an
// "end" (0x02) or until the next command would start past the end of the file; at least
// one command is always listed. Braille mode lists the six header bytes of a braille
// record and then its cells up to 0x02 or 0xFF. Bytes past the end of the file are never
// read and count as 0.
//
// None when the person is told "Offset Bad" (the text is exactly "&HF8000000", which a
// person load leaves for a script pointer of 0) or when `progress` cancels. An offset that
// braille mode cannot parse, or that lies before the start of the ROM, is a Failure.
// Reads the ROM only; its position is left somewhere behind the listed bytes.
std::optional<std::string> ListScript(RomImage& rom, Dialogs& dialogs, std::string_view offsetText,
                                      bool brailleMode, const ListingProgress& progress = {});

// The press of Command2 ("Load"): lists from the offset in Text3, in the mode of Check1,
// and puts the whole listing into Text4. A refused offset, a cancel or a Failure leaves
// Text4 as it was. True when Text4 was replaced.
bool ListIntoText4(Form1& form, RomImage& rom, Dialogs& dialogs, const ListingProgress& progress = {});

}  // namespace tessarine
