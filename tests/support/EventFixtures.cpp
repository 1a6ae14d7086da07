#include "support/EventFixtures.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace tessarine::test {
namespace {

// The game's offsets, stated here on their own so that the tests compare the system's
// tables against an independent copy.
struct GameOffsets {
  std::string_view code;
  bool rs;
  std::uint32_t speciesNames;
  std::uint32_t label1, raytxt, grou, regi1, regi2, regi3;
  std::uint32_t latiScript, groudonScript;
};

constexpr std::array<GameOffsets, 4> kGames{{
    {"AXVE", true, 0x1F716C, 0x38EE50, 0x391E78, 0x38D880, 0x38E674, 0x38E6DC, 0x38BEBC, 0x160B9B, 0x15DDD7},
    {"AXPE", true, 0x1F70FC, 0x38EDE0, 0x391E08, 0x38D810, 0x38E604, 0x38E66C, 0x38BE4C, 0x160B2B, 0x15DD67},
    {"BPRE", false, 0x245EE0, 0x3B27D4, 0x3B4BFC, 0, 0x3B2D7C, 0x3B2120, 0x3B177C, 0, 0},
    {"BPGE", false, 0x245EBC, 0x3B27B4, 0x3B4BDC, 0, 0x3B2D5C, 0x3B2100, 0x3B175C, 0, 0},
}};

const GameOffsets& Game(std::string_view code) {
  const auto game = std::ranges::find(kGames, code, &GameOffsets::code);
  if (game == kGames.end()) throw std::invalid_argument("no fixture events for this game code");
  return *game;
}

constexpr std::uint32_t kFreeSpace = 0xA00000;  // the fixtures' scripts live here

}  // namespace

std::string FixtureSpeciesName(int index) {
  static constexpr std::array<std::string_view, 16> kHeads{"Bra", "Quo", "Zel", "Mor", "Vin", "Tal", "Fer", "Lum",
                                                           "Osk", "Pim", "Rud", "Sol", "Tek", "Ulv", "Wix", "Yar"};
  static constexpr std::array<std::string_view, 16> kTails{"lit", "dor", "vex", "nip", "gal", "rum", "sek", "tov",
                                                           "bez", "kin", "pra", "wuf", "jol", "mec", "hax", "zub"};
  static constexpr std::array<std::string_view, 2> kEnds{"", "ba"};
  return std::string(kHeads[index % 16]) + std::string(kTails[(index / 16) % 16]) +
         std::string(kEnds[(index / 256) % 2]);
}

Bytes FixturePerson::Encode() const {
  Bytes b{0x01, 0, 0, 0x07, 0x0A, 0x00, 0x0B, 0x00, 0x03, behaviour, 0x11, 0x09, 0x00, 0x0D, 0x04, 0x00, 0, 0, 0, 0, 0, 0};
  for (std::size_t i = 0; i < 4; ++i) b[16 + i] = static_cast<std::uint8_t>(scriptPointer >> (8 * i));
  for (std::size_t i = 0; i < 2; ++i) b[1 + i] = static_cast<std::uint8_t>(sprite >> (8 * i));
  for (std::size_t i = 0; i < 2; ++i) b[20 + i] = static_cast<std::uint8_t>(flag >> (8 * i));
  return b;
}

std::uint32_t SpeciesTableOffset(std::string_view gameCode) { return Game(gameCode).speciesNames; }

std::vector<FixtureEvent> FixtureEvents(std::string_view gameCode) {
  const GameOffsets& g = Game(gameCode);
  // A script of 0: the person record's pointer leads to the words.
  std::vector<FixtureEvent> events;
  if (g.rs) {
    events = {{.name = "Select a Event", .person = g.label1},
              {.name = "Rayquaza", .person = g.label1, .firstAt = 3, .secondAt = 8},
              {.name = "Latias/Latios", .person = g.raytxt, .script = g.latiScript, .firstAt = 89, .secondAt = 51,
               .showsHoobla = true},
              {.name = "Groudon/Kyogre", .person = g.grou, .script = g.groudonScript, .firstAt = 79, .secondAt = 86,
               .showsHoobla = true},
              {.name = "Regiice", .person = g.regi1, .firstAt = 13, .secondAt = 4, .listFollowsSecond = true},
              {.name = "Regirock", .person = g.regi3, .firstAt = 13, .secondAt = 4, .listFollowsSecond = true},
              {.name = "Registeel", .person = g.regi2, .firstAt = 13, .secondAt = 4, .listFollowsSecond = true}};
  } else {
    events = {{.name = "Select a Event", .person = g.label1},
              {.name = "Zapdos", .person = g.label1, .firstAt = 20, .secondAt = 27},
              {.name = "Moltres", .person = g.regi1, .firstAt = 20, .secondAt = 27},
              {.name = "Articuno", .person = g.regi2, .firstAt = 20, .secondAt = 27},
              {.name = "Mewtwo", .person = g.regi3, .firstAt = 41, .secondAt = 20},
              {.name = "Deoxys", .person = g.raytxt}};
  }
  for (std::size_t i = 0; i < events.size(); ++i) {
    FixtureEvent& e = events[i];
    const auto k = static_cast<std::uint32_t>(i);
    const std::uint32_t pointed = kFreeSpace + 0x100 * k;
    e.index = static_cast<int>(i);
    e.record = {static_cast<std::uint16_t>(0x50 + k), static_cast<std::uint8_t>(k + 1),
                static_cast<std::uint16_t>(0x800 + k), pointed + 0x08000000};
    if (e.script == 0) e.script = pointed;
    e.first = static_cast<std::uint16_t>(0x100 + k);  // two distinct species numbers
    e.second = static_cast<std::uint16_t>(0x180 + k);
  }
  events[0].record = events[1].record;  // entry 0 shows the first event's person
  events[0].script = events[1].script;
  return events;
}

void PutSpeciesNames(FixtureRom& rom, std::uint32_t tableOffset) {
  for (int index = 0; index < 412; ++index) {
    rom.PutName(tableOffset + static_cast<std::uint32_t>(index) * 11, FixtureSpeciesName(index), 11);
  }
}

void PutEvents(FixtureRom& rom, const std::vector<FixtureEvent>& events) {
  for (const FixtureEvent& e : events) {
    if (e.index == 0) continue;  // entry 0 shares the first event's person record
    rom.PutBytes(e.person, e.record.Encode());
    if (e.firstAt < 0) continue;
    rom.PutWord(e.script + static_cast<std::uint32_t>(e.firstAt), e.first);
    rom.PutWord(e.script + static_cast<std::uint32_t>(e.secondAt), e.second);
  }
}

FixtureRom EventFixtureRom(std::string_view gameCode) {
  FixtureRom rom{gameCode};
  PutSpeciesNames(rom, SpeciesTableOffset(gameCode));
  PutEvents(rom, FixtureEvents(gameCode));
  return rom;
}

}  // namespace tessarine::test
