#include "scripts/ScriptBuilders.h"

#include "rom/Failure.h"
#include "rom/GameProfile.h"
#include "text/Table2Text.h"

namespace tessarine {
namespace {

// Appends little-endian values as a script lays them out.
class ScriptBytes {
 public:
  ScriptBytes& Byte(std::uint8_t value) {
    bytes_.push_back(value);
    return *this;
  }
  ScriptBytes& Word(std::int16_t value) {
    AppendLittleEndian(bytes_, static_cast<std::uint16_t>(value), 2);
    return *this;
  }
  ScriptBytes& Pointer(RomOffset offset) {
    AppendLittleEndian(bytes_, static_cast<std::uint32_t>(ToGbaPointer(offset)), 4);
    return *this;
  }
  ScriptBytes& Zeros(int count) {
    bytes_.insert(bytes_.end(), static_cast<std::size_t>(count), 0x00);
    return *this;
  }
  Bytes Take() { return std::move(bytes_); }

 private:
  Bytes bytes_;
};

// wildpkmnbattle, cry, end: the tail that both wild battle scripts share.
ScriptBytes& BattleAndCry(ScriptBytes& script, std::int16_t species, std::uint8_t level, std::int16_t item,
                          std::int16_t cry) {
  return script.Byte(0xB6).Word(species).Byte(level).Word(item).Byte(0x30).Byte(0xA1).Word(cry).Byte(0x02);
}

// msgbox to a text behind the script offset, boxset 4, 0x6B, end.
Bytes MessageBranch(RomOffset scriptOffset, int textAt) {
  return ScriptBytes()
      .Byte(0x0F)
      .Pointer(OffsetPlus(scriptOffset, textAt))
      .Byte(0x09)
      .Byte(0x04)
      .Byte(0x6B)
      .Byte(0x02)
      .Take();
}

// Set up the wild battle, wait for sound, cry in mode 2, wait for the cry, start the battle,
// release, end: the tail of both game-ready wild battle scripts.
ScriptBytes& GameReadyBattle(ScriptBytes& script, std::int16_t species, std::uint8_t level, std::int16_t item,
                             std::int16_t cry) {
  script.Byte(0xB6).Word(species).Byte(level).Word(item).Byte(0x30);
  return script.Byte(0xA1).Word(cry).Word(0x0002).Byte(0xC5).Byte(0xB7).Byte(0x6C).Byte(0x02);
}

// Show the text at `text` (bank 0) in a box of kind `box`.
ScriptBytes& ShowText(ScriptBytes& script, RomOffset text, std::uint8_t box) {
  return script.Byte(0x0F).Byte(0x00).Pointer(text).Byte(0x09).Byte(box);
}

// The game-ready give-Pokemon block, piece by piece, at distances from S.
constexpr int kGrDeclinedBranchAt = 65;
constexpr int kGrNoRoomBranchAt = 75;
constexpr int kGrDeclinedTextAt = 85;
constexpr int kGrNoRoomTextAt = 121;
constexpr std::int16_t kLastTalked = static_cast<std::int16_t>(0x800F);
constexpr std::int16_t kResult = static_cast<std::int16_t>(0x800D);

}  // namespace

Bytes BuildWildBattleScript(std::int16_t species, std::uint8_t level, std::int16_t item, std::int16_t cry) {
  ScriptBytes script;
  script.Byte(0x6A).Byte(0x5A);
  return BattleAndCry(script, species, level, item, cry).Take();
}

Bytes BuildWildBattleMessageScript(std::int16_t species, std::uint8_t level, std::int16_t item, std::int16_t cry,
                                   RomOffset textOffset) {
  ScriptBytes script;
  script.Byte(0x6A).Byte(0x5A).Byte(0x0F).Pointer(textOffset).Byte(0x09).Byte(0x06);
  return BattleAndCry(script, species, level, item, cry).Take();
}

Bytes BuildGivePokemonBody(std::int16_t species, std::uint8_t level, std::int16_t item, RomOffset scriptOffset,
                           RomOffset textOffset) {
  return ScriptBytes()
      .Byte(0x69)                                                    // jingle
      .Byte(0x0F).Pointer(textOffset)                                // msgbox: the question
      .Byte(0x09).Byte(0x05)                                         // boxset 5: yes or no
      .Byte(0x21).Word(static_cast<std::int16_t>(0x800D)).Word(0x0000)  // compare the answer with no
      .Byte(0x06).Byte(0x01).Pointer(OffsetPlus(scriptOffset, kDeclinedBranchAt)).Byte(0x43)
      .Byte(0x21).Word(static_cast<std::int16_t>(0x800D)).Word(0x0006)  // compare the party with full
      .Byte(0x06).Byte(0x01).Pointer(OffsetPlus(scriptOffset, kNoRoomBranchAt)).Byte(0x19)
      .Word(static_cast<std::int16_t>(0x8004)).Word(static_cast<std::int16_t>(0x800D))
      .Byte(0x53).Word(0x0002).Byte(0x31).Word(0x0172).Byte(0x67).Byte(0x61).Byte(0x32).Byte(0x66)
      .Byte(0x79).Word(species).Byte(level).Word(item).Zeros(17)     // givepokemon
      .Byte(0x7D).Word(species).Byte(0x01)
      .Byte(0x0F).Byte(0x00).Byte(0x02)
      .Take();
}

Bytes BuildDeclinedBranch(RomOffset scriptOffset) { return MessageBranch(scriptOffset, kDeclinedTextAt); }
Bytes BuildNoRoomBranch(RomOffset scriptOffset) { return MessageBranch(scriptOffset, kNoRoomTextAt); }

std::vector<ScriptPiece> GivePokemonPieces(std::int16_t species, std::uint8_t level, std::int16_t item,
                                           RomOffset scriptOffset, RomOffset textOffset) {
  const auto at = [scriptOffset](int distance) { return OffsetPlus(scriptOffset, distance); };
  std::vector<ScriptPiece> pieces;
  pieces.push_back({"the body", scriptOffset, BuildGivePokemonBody(species, level, item, scriptOffset, textOffset)});
  pieces.push_back({"the declined branch", at(kDeclinedBranchAt), BuildDeclinedBranch(scriptOffset)});
  pieces.push_back({"the no-room branch", at(kNoRoomBranchAt), BuildNoRoomBranch(scriptOffset)});
  pieces.push_back({"the declined text", at(kDeclinedTextAt), EncodeMessageText(kDeclinedText)});
  pieces.push_back({"the no-room text", at(kNoRoomTextAt), EncodeMessageText(kNoRoomText)});
  return pieces;
}

Bytes BuildGameReadyWildBattleScript(std::int16_t species, std::uint8_t level, std::int16_t item, std::int16_t cry) {
  ScriptBytes script;
  script.Byte(0x6A).Byte(0x5A);
  return GameReadyBattle(script, species, level, item, cry).Take();
}

Bytes BuildGameReadyWildBattleMessageScript(std::int16_t species, std::uint8_t level, std::int16_t item,
                                            std::int16_t cry, RomOffset textOffset) {
  ScriptBytes script;
  script.Byte(0x6A).Byte(0x5A);
  ShowText(script, textOffset, 0x04);
  return GameReadyBattle(script, species, level, item, cry).Take();
}

std::int16_t GameReadyGiveFanfare(std::string_view family) {
  if (family == kFamilyRs || family == kFamilyE) return 0x0172;
  if (family == kFamilyFrlg) return 0x0101;
  throw Failure("A game-ready give-Pokemon script plays the fanfare of its game's family (&H172 in Ruby, Sapphire "
                "and Emerald, &H101 in FireRed and LeafGreen), and the open ROM is none of these games. Untick "
                "\"Game-ready script\" to write the form's own layout.");
}

std::vector<ScriptPiece> GameReadyGivePokemonPieces(std::string_view family, std::int16_t species, std::uint8_t level,
                                                    std::int16_t item, RomOffset scriptOffset, RomOffset textOffset,
                                                    std::string_view question) {
  const std::int16_t fanfare = GameReadyGiveFanfare(family);
  const auto at = [scriptOffset](int distance) { return OffsetPlus(scriptOffset, distance); };
  ScriptBytes body;
  body.Byte(0x69);                                   // lock all
  ShowText(body, textOffset, 0x05);                  // the question, yes or no
  body.Byte(0x21).Word(kResult).Word(0x0000)         // no: to the declined branch
      .Byte(0x06).Byte(0x01).Pointer(at(kGrDeclinedBranchAt))
      .Byte(0x43)                                    // count the party; 6: to the no-room branch
      .Byte(0x21).Word(kResult).Word(0x0006)
      .Byte(0x06).Byte(0x01).Pointer(at(kGrNoRoomBranchAt))
      .Byte(0x19).Word(static_cast<std::int16_t>(0x8004)).Word(kResult)
      .Byte(0x53).Word(kLastTalked)                  // the person talked to goes
      .Byte(0x31).Word(fanfare).Byte(0x32)
      .Byte(0x79).Word(species).Byte(level).Word(item).Zeros(9)
      .Byte(0x7D).Byte(0x01).Word(species)           // the species' name into string buffer 1
      .Byte(0x6B).Byte(0x02);                        // release all, end
  const auto branch = [&](int textAt) {
    ScriptBytes script;
    return ShowText(script, at(textAt), 0x04).Byte(0x6B).Byte(0x02).Take();
  };
  std::vector<ScriptPiece> pieces;
  pieces.push_back({"the body", scriptOffset, body.Take()});
  pieces.push_back({"the declined branch", at(kGrDeclinedBranchAt), branch(kGrDeclinedTextAt)});
  pieces.push_back({"the no-room branch", at(kGrNoRoomBranchAt), branch(kGrNoRoomTextAt)});
  pieces.push_back({"the declined text", at(kGrDeclinedTextAt), GameReadyMessageBytes(kDeclinedText)});
  pieces.push_back({"the no-room text", at(kGrNoRoomTextAt), GameReadyMessageBytes(kNoRoomText)});
  pieces.push_back({"the question", textOffset, GameReadyMessageBytes(question)});
  return pieces;
}

Bytes GameReadyMessageBytes(std::string_view message) {
  Bytes bytes = EncodeMessageText(message);
  bytes.push_back(0xFF);
  return bytes;
}

Bytes MessageTextBytes(std::string_view message) {
  Bytes bytes = EncodeMessageText(message);
  bytes.push_back(0xFF);  // the word 0x00FF
  bytes.push_back(0x00);
  return bytes;
}

}  // namespace tessarine
