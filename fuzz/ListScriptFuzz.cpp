// The lister in both modes over a ROM made of the input's bytes, from an offset that is any
// text, or the text of any offset, or of one near the file.
#include "FuzzInput.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "scripts/ListScript.h"
#include "support/ScriptedDialogs.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  fuzz::Input in{{data, size}};
  const std::uint32_t flags = in.Number(1);
  std::string offsetText = in.Text(flags >> 3);
  const auto number = static_cast<std::int32_t>(in.Number(4));
  const Bytes bytes = in.Block();
  const auto near = static_cast<std::int32_t>(number % static_cast<std::int32_t>(bytes.size() + 16));
  if (flags & 2) offsetText = ToHexText(flags & 4 ? number : near);
  const bool braille = flags & 1;

  RomImage rom;
  rom.Open(fuzz::ScratchRom(static_cast<std::int64_t>(bytes.size()), 0, bytes));
  test::ScriptedDialogs dialogs;
  try {
    if (const auto listing = ListScript(rom, dialogs, offsetText, braille)) {
      fuzz::Require(braille ? listing->starts_with("Postion.Left: ") : listing->ends_with("\r\n"),
                    "a listing has whole lines");
    }
  } catch (const Failure&) {
  }
  return 0;
}
