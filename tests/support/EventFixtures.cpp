#include "support/EventFixtures.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <stdexcept>

namespace tessarine::test {
namespace {

const std::array<GameOffsets, 11> kGames{{
    {{"AXVE", 0}, "rs", 0x1F716C, 0x38EE50, 0x391E78, 0x38D880, 0x38E674, 0x38E6DC, 0x38BEBC, 0x160B9B, 0x15DDD7,
     0x3C5564, {0x3F76C4, 0x3F76C6, 0x3F76C8}, 0x3E5A2E},
    {{"AXVE", 1}, "rs", 0x1F7184, 0x38EE68, 0x391E90, 0x38D898, 0x38E68C, 0x38E6F4, 0x38BED4, 0x160BBB, 0x15DDF7,
     0x3C5580, {0x3F76E0, 0x3F76E2, 0x3F76E4}, 0x3E5A4A},
    {{"AXVE", 2}, "rs", 0x1F7184, 0x38EE68, 0x391E90, 0x38D898, 0x38E68C, 0x38E6F4, 0x38BED4, 0x160BBB, 0x15DDF7,
     0x3C5580, {0x3F76E0, 0x3F76E2, 0x3F76E4}, 0x3E5A4A},
    {{"AXPE", 0}, "rs", 0x1F70FC, 0x38EDE0, 0x391E08, 0x38D810, 0x38E604, 0x38E66C, 0x38BE4C, 0x160B2B, 0x15DD67,
     0x3C55BC, {0x3F771C, 0x3F771E, 0x3F7720}, 0x3E5A86},
    {{"AXPE", 1}, "rs", 0x1F7114, 0x38EDF8, 0x391E20, 0x38D828, 0x38E61C, 0x38E684, 0x38BE64, 0x160B4B, 0x15DD87,
     0x3C55DC, {0x3F773C, 0x3F773E, 0x3F7740}, 0x3E5AA6},
    {{"AXPE", 2}, "rs", 0x1F7114, 0x38EDF8, 0x391E20, 0x38D828, 0x38E61C, 0x38E684, 0x38BE64, 0x160B4B, 0x15DD87,
     0x3C55DC, {0x3F773C, 0x3F773E, 0x3F7740}, 0x3E5AA6},
    {{"BPRE", 0}, "frlg", 0x245EE0, 0x3B27D4, 0x3B4BFC, 0, 0x3B2D7C, 0x3B2120, 0x3B177C, 0, 0, 0x3DB028,
     {0x169BB5, 0x169D82, 0x169DB8}, 0x3EEBF6},
    {{"BPRE", 1}, "frlg", 0x245F50, 0x3B2844, 0x3B4C6C, 0, 0x3B2DEC, 0x3B2190, 0x3B17EC, 0, 0, 0x3DB098,
     {0x169C2D, 0x169DFA, 0x169E30}, 0x3EEC66},
    {{"BPGE", 0}, "frlg", 0x245EBC, 0x3B27B4, 0x3B4BDC, 0, 0x3B2D5C, 0x3B2100, 0x3B175C, 0, 0, 0x3DAE64,
     {0x169B91, 0x169D5E, 0x169D94}, 0x3EEA32},
    {{"BPGE", 1}, "frlg", 0x245F2C, 0x3B2824, 0x3B4C4C, 0, 0x3B2DCC, 0x3B2170, 0x3B17CC, 0, 0, 0x3DAED4,
     {0x169C09, 0x169DD6, 0x169E0C}, 0x3EEAA2},
    {{"BPEE", 0}, "e", 0x3185C8, 0, 0, 0, 0, 0, 0, 0, 0, 0x5839A0, {0x5B1DF8, 0x5B1DFA, 0x5B1DFC}, 0x59F54A},
}};

constexpr std::uint32_t kFreeSpace = 0xA00000;  // the fixtures' scripts live here

}  // namespace

const std::vector<GameIdentity>& AllGames() {
  const auto identities = std::views::transform(kGames, &GameOffsets::game);
  static const std::vector<GameIdentity> games(identities.begin(), identities.end());
  return games;
}

const GameOffsets& OffsetsOf(const GameIdentity& game) {
  const auto offsets = std::ranges::find(kGames, game, &GameOffsets::game);
  if (offsets == kGames.end()) throw std::invalid_argument("no fixture offsets for this game and revision");
  return *offsets;
}

std::string FixtureSpeciesName(int index) {
  constexpr std::string_view kHeads = "BraQuoZelMorVinTalFerLumOskPimRudSolTekUlvWixYar";  // 16 of 3 letters
  constexpr std::string_view kTails = "litdorvexnipgalrumsektovbezkinprawufjolmechaxzub";
  return std::string(kHeads.substr(index % 16 * 3, 3)) + std::string(kTails.substr(index / 16 % 16 * 3, 3)) +
         (index / 256 % 2 ? "ba" : "");
}

Bytes FixturePerson::Encode() const {
  Bytes b{0x01, 0, 0, 0x07, 0x0A, 0x00, 0x0B, 0x00, 0x03, behaviour, 0x11, 0x09, 0x00, 0x0D, 0x04, 0x00, 0, 0, 0, 0, 0, 0};
  for (std::size_t i = 0; i < 4; ++i) b[16 + i] = static_cast<std::uint8_t>(scriptPointer >> (8 * i));
  for (std::size_t i = 0; i < 2; ++i) b[1 + i] = static_cast<std::uint8_t>(sprite >> (8 * i));
  for (std::size_t i = 0; i < 2; ++i) b[20 + i] = static_cast<std::uint8_t>(flag >> (8 * i));
  return b;
}

std::vector<FixtureEvent> FixtureEvents(const GameIdentity& game) {
  const GameOffsets& g = OffsetsOf(game);
  // A script of 0: the person record's pointer leads to the words.
  std::vector<FixtureEvent> events;
  if (g.family == "rs") {
    events = {{.name = "Select a Event", .person = g.label1},
              {.name = "Rayquaza", .person = g.label1, .firstAt = 3, .secondAt = 8},
              {.name = "Latias/Latios", .person = g.raytxt, .script = g.latiScript, .firstAt = 89, .secondAt = 51,
               .showsHoobla = true},
              {.name = "Groudon/Kyogre", .person = g.grou, .script = g.groudonScript, .firstAt = 79, .secondAt = 86,
               .showsHoobla = true},
              {.name = "Regiice", .person = g.regi1, .firstAt = 13, .secondAt = 4, .listFollowsSecond = true},
              {.name = "Regirock", .person = g.regi3, .firstAt = 13, .secondAt = 4, .listFollowsSecond = true},
              {.name = "Registeel", .person = g.regi2, .firstAt = 13, .secondAt = 4, .listFollowsSecond = true}};
  } else if (g.family == "frlg") {
    events = {{.name = "Select a Event", .person = g.label1},
              {.name = "Zapdos", .person = g.label1, .firstAt = 20, .secondAt = 27},
              {.name = "Moltres", .person = g.regi1, .firstAt = 20, .secondAt = 27},
              {.name = "Articuno", .person = g.regi2, .firstAt = 20, .secondAt = 27},
              {.name = "Mewtwo", .person = g.regi3, .firstAt = 41, .secondAt = 20},
              {.name = "Deoxys", .person = g.raytxt}};
  } else {  // e: where the person's script is the event's, the words lie at the game's offsets
    events = {{.name = "Select a Event", .person = 0x537188},
              {.name = "Rayquaza", .person = 0x537188, .script = 0x239722, .firstAt = 0xC, .secondAt = 0x3},
              {.name = "Kyogre", .person = 0x5377E8, .script = 0x23B01B, .firstAt = 0x25, .secondAt = 0x17,
               .showsHoobla = true},
              {.name = "Groudon", .person = 0x537850, .script = 0x23B0EC, .firstAt = 0x25, .secondAt = 0x17,
               .showsHoobla = true},
              {.name = "Regirock", .person = 0x534354, .script = 0x22DA02, .firstAt = 0xD, .secondAt = 0x4},
              {.name = "Regice", .person = 0x536C74, .script = 0x238F58, .firstAt = 0xD, .secondAt = 0x4},
              {.name = "Registeel", .person = 0x536CDC, .script = 0x23905A, .firstAt = 0xD, .secondAt = 0x4},
              {.name = "Latias/Latios", .person = 0x53B8B4},
              {.name = "Deoxys", .person = 0x53D7F4, .script = 0x267FC1, .firstAt = 0x36, .secondAt = 0x26,
               .showsHoobla = true},
              {.name = "Mew", .person = 0x53D7A0, .script = 0x267DF2, .firstAt = 0x55, .secondAt = 0x1B},
              {.name = "Lugia", .person = 0x53DD50, .script = 0x2692A2, .firstAt = 0x50, .secondAt = 0x45},
              {.name = "Ho-Oh", .person = 0x53DB74, .script = 0x26916F, .firstAt = 0x5F, .secondAt = 0x30,
               .showsHoobla = true},
              {.name = "Sudowoodo", .person = 0x53BC48, .script = 0x242CFC, .firstAt = 0x2D, .secondAt = 0x1F,
               .showsHoobla = true}};
  }
  for (std::size_t i = 0; i < events.size(); ++i) {
    FixtureEvent& e = events[i];
    const auto k = static_cast<std::uint32_t>(i);
    // An event with hoobla on show reads its words at a constant of the game, and its person points
    // into free space; one with Text1 on show and a script of its own (Emerald's) points there.
    const std::uint32_t pointed = e.script != 0 && !e.showsHoobla ? e.script : kFreeSpace + 0x100 * k;
    e.index = static_cast<int>(i);
    // A movement of rows 1 to 10: each has a row, and none is the row 11 that the tests' saves pick.
    e.record = {static_cast<std::uint16_t>(0x50 + k), static_cast<std::uint8_t>(k % 10 + 1),
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

FixtureRom EventFixtureRom(const GameIdentity& game) {
  FixtureRom rom{game.code, FixtureRom::kSize, game.revision};
  PutSpeciesNames(rom, OffsetsOf(game).speciesNames);
  PutEvents(rom, FixtureEvents(game));
  return rom;
}

}  // namespace tessarine::test
