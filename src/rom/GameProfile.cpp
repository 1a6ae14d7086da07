#include "rom/GameProfile.h"

#include <algorithm>
#include <array>

#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

// One row a game and revision. Ruby and Sapphire 1.1 and 1.2 keep their data at the same
// offsets, so each of those two games has one row for both revisions (revision 1 and 2).
constexpr GameProfile kRuby10{"AXVE", 0, "rs",
                              "&H1F716C", "&H38EE50", "&H391E78", "&H38D880", "&H38E674", "&H38E6DC", "&H38BEBC",
                              "&H160B9B", "&H15DDD7", "&H3C5564",
                              {0x3F76C4, 0x3F76C6, 0x3F76C8}, 0x3E5A2E, FlyList::hoenn};
constexpr GameProfile kRuby11{"AXVE", 1, "rs",
                              "&H1F7184", "&H38EE68", "&H391E90", "&H38D898", "&H38E68C", "&H38E6F4", "&H38BED4",
                              "&H160BBB", "&H15DDF7", "&H3C5580",
                              {0x3F76E0, 0x3F76E2, 0x3F76E4}, 0x3E5A4A, FlyList::hoenn};
constexpr GameProfile kSapphire10{"AXPE", 0, "rs",
                                  "&H1F70FC", "&H38EDE0", "&H391E08", "&H38D810", "&H38E604", "&H38E66C", "&H38BE4C",
                                  "&H160B2B", "&H15DD67", "&H3C55BC",
                                  {0x3F771C, 0x3F771E, 0x3F7720}, 0x3E5A86, FlyList::hoenn};
constexpr GameProfile kSapphire11{"AXPE", 1, "rs",
                                  "&H1F7114", "&H38EDF8", "&H391E20", "&H38D828", "&H38E61C", "&H38E684", "&H38BE64",
                                  "&H160B4B", "&H15DD87", "&H3C55DC",
                                  {0x3F773C, 0x3F773E, 0x3F7740}, 0x3E5AA6, FlyList::hoenn};

// English Emerald's events, in the order of its list: Rayquaza, Kyogre, Groudon, Regirock,
// Regice, Registeel, Latias/Latios (no script: its species comes from a variable), Deoxys,
// Mew, Lugia, Ho-Oh, Sudowoodo (whose person's script only shakes the tree).
constexpr std::array<EventPlace, 12> kEmerald10Events{{
    {"&H537188", ""},         {"&H5377E8", "&H23B01B"}, {"&H537850", "&H23B0EC"}, {"&H534354", ""},
    {"&H536C74", ""},         {"&H536CDC", ""},         {"&H53B8B4", ""},         {"&H53D7F4", "&H267FC1"},
    {"&H53D7A0", ""},         {"&H53DD50", ""},         {"&H53DB74", "&H26916F"}, {"&H53BC48", "&H242CFC"},
}};

// The revision's own offset of every table; the same revision number, another field.
constexpr GameProfile Revision(const GameProfile& same, int revision) {
  GameProfile profile = same;
  profile.revision = revision;
  return profile;
}

constexpr std::array kProfiles{
    kRuby10,
    kRuby11,
    Revision(kRuby11, 2),
    kSapphire10,
    kSapphire11,
    Revision(kSapphire11, 2),
    GameProfile{"BPRE", 0, "frlg",
                "&H245EE0", "&H3B27D4", "&H3B4BFC", "", "&H3B2D7C", "&H3B2120", "&H3B177C", "", "", "&H3DB028",
                {0x169BB5, 0x169D82, 0x169DB8}, 0x3EEBF6, FlyList::kanto},
    GameProfile{"BPRE", 1, "frlg",
                "&H245F50", "&H3B2844", "&H3B4C6C", "", "&H3B2DEC", "&H3B2190", "&H3B17EC", "", "", "&H3DB098",
                {0x169C2D, 0x169DFA, 0x169E30}, 0x3EEC66, FlyList::kanto},
    GameProfile{"BPGE", 0, "frlg",
                "&H245EBC", "&H3B27B4", "&H3B4BDC", "", "&H3B2D5C", "&H3B2100", "&H3B175C", "", "", "&H3DAE64",
                {0x169B91, 0x169D5E, 0x169D94}, 0x3EEA32, FlyList::kanto},
    GameProfile{"BPGE", 1, "frlg",
                "&H245F2C", "&H3B2824", "&H3B4C4C", "", "&H3B2DCC", "&H3B2170", "&H3B17CC", "", "", "&H3DAED4",
                {0x169C09, 0x169DD6, 0x169E0C}, 0x3EEAA2, FlyList::kanto},
    GameProfile{"BPEE", 0, "e", "&H3185C8", "", "", "", "", "", "", "", "", "&H5839A0",
                {0x5B1DF8, 0x5B1DFA, 0x5B1DFC}, 0x59F54A, FlyList::emerald, kEmerald10Events},
    // Japanese Emerald: Open ROM does not take it; the starter editor and Wingfall know it.
    GameProfile{"BPEJ", kAnyRevision, "", "", "", "", "", "", "", "", "", "", "",
                {0x590C08, 0x590C0A, 0x590C0C}, 0x57B11A, FlyList::hoenn},
};

}  // namespace

GameIdentity ReadGameIdentity(RomImage& rom) {
  GameIdentity identity;
  const Bytes code = rom.ReadBytes(kGameCodeOffset, 4);
  if (code.size() == 4) identity.code.assign(code.begin(), code.end());
  const Bytes revision = rom.ReadBytes(kRevisionOffset, 1);
  if (!revision.empty()) identity.revision = revision[0];
  return identity;
}

std::string ShownIdentity(const GameIdentity& identity) {
  std::string shown;
  for (const char c : identity.code) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F) {  // a control byte, which would show as nothing
      shown += "&H" + HexDigits(byte, 2);
    } else if (byte < 0x80) {
      shown.push_back(c);
    } else {
      shown.push_back(static_cast<char>(0xC0 | (byte >> 6)));
      shown.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
    }
  }
  if (identity.revision > 0) shown += " 1." + std::to_string(identity.revision);
  return shown;
}

const GameProfile* FindGameProfile(const GameIdentity& identity) {
  const auto profile = std::ranges::find_if(kProfiles, [&](const GameProfile& p) {
    return p.code == identity.code && (p.revision == identity.revision || p.revision == kAnyRevision);
  });
  return profile != kProfiles.end() ? &*profile : nullptr;
}

bool IsKnownCode(std::string_view code) {
  return std::ranges::any_of(kProfiles, [&](const GameProfile& p) { return p.code == code; });
}

}  // namespace tessarine
